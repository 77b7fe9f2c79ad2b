// Data for the debugger view to show. It is looked at in the file, without running the program.
#include <knav/CNavNode.h>

#include "shell/ItemList.h"

// Two elements of three and one byte, and a terminator.
unsigned char g_bytes[] = {5, 0, 'a', 'b', 'c', 3, 0, 'd', 0, 0};
ITEMIDLIST* g_list = reinterpret_cast<ITEMIDLIST*>(g_bytes);
ITEMIDLIST* g_noList = nullptr;

// What a node looks like before it is given anything.
alignas(CNavNode) unsigned char g_node[sizeof(CNavNode)] = {};

int main() {
    const knav::ItemList owned = knav::ItemList::copyOf(g_list);
    const auto* const node = reinterpret_cast<const CNavNode*>(g_node);
    return owned && g_noList == nullptr && node->GetID() == nullptr ? 0 : 1;
}
