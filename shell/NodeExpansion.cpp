// Growing the folder hierarchy below a node, and finding nodes in it.
#include <knav/CNavNode.h>
#include <knav/CNavShell.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include <memory>

#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/NodeLinks.h"
#include "shell/SpecialItems.h"

namespace {

// Deeper than any place is. What destroys or shows a tree goes down level by level, so none may be as deep as a list of
// a broken extension is long.
constexpr int kDeepestChain = 1000;

// Children of a root are sites, and everything below a site is an item.
NavNodeType childType(NavNodeType parent) {
    switch (parent) {
        case NavNodeExtensionRoot:
            return NavNodeExtensionSite;
        case NavNodeExtensionSite:
        case NavNodeExtensionItem:
            return NavNodeExtensionItem;
        case NavNodeInternetRoot:
            return NavNodeInternetSite;
        case NavNodeInternetSite:
        case NavNodeInternetItem:
            return NavNodeInternetItem;
        case NavNodeWebFoldersRoot:
            return NavNodeWebFolderSite;
        case NavNodeWebFolderSite:
        case NavNodeWebFolderItem:
            return NavNodeWebFolderItem;
        case NavNodeShell:
            break;
    }
    return NavNodeShell;
}

// An item of a folder on a disk is an ordinary one. To compare it with the special ones takes the shell longer than all
// the rest of its node.
bool holdsOrdinaryItems(const CNavNode& parent) {
    return parent.GetType() == NavNodeShell && parent.IsInFileSystem() && parent.GetParent() != nullptr;
}

// The types of items of one node, which is looked at once for all of them.
class ChildTypes {
public:
    explicit ChildTypes(const CNavNode& parent)
        : m_usual(childType(parent.GetType())), m_below(NavGetNextItemElement(parent.GetID())) {
        const auto root = holdsOrdinaryItems(parent) ? knav::ItemList() : knav::ItemList::firstOf(parent.GetID());
        m_isInDrives = root && NavIsDrives(root.get());
    }

    NavNodeType of(ITEMIDLIST* item) const {
        const bool isWebFolders = m_isInDrives && knav::isWebFoldersInDrives(m_below != nullptr ? m_below : item);
        return isWebFolders ? NavNodeWebFoldersRoot : m_usual;
    }

private:
    NavNodeType m_usual;
    ITEMIDLIST* m_below;  // what of the parent itself lies below the first element
    bool m_isInDrives;
};

// The type of a node for one element of a list below `parent`.
NavNodeType elementType(const CNavNode& parent, ITEMIDLIST* element) {
    if (NavIsExtensionRootItem(element)) {
        return NavNodeExtensionRoot;
    }
    if (!holdsOrdinaryItems(parent) && NavIsInternetRoot(element)) {
        return NavNodeInternetRoot;
    }
    return ChildTypes(parent).of(element);
}

bool isShown(const CNavNode& parent, const CNavNode& node) {
    return parent.IsExtensionType() || node.IsFileSystemAncestor() || node.IsInFileSystem() || node.IsWebFoldersType();
}

// The last of the siblings that is the Network location; null when none is.
CNavNode* networkAmong(CNavNode* node) {
    CNavNode* network = nullptr;
    for (; node != nullptr; node = node->GetNext()) {
        if (node->IsFolder() && NavIsNetwork(node->GetID())) {
            network = node;
        }
    }
    return network;
}

std::unique_ptr<CNavNode> newNode(CNavShell& shell, CNavNode* parent, ITEMIDLIST* id) {
    std::unique_ptr<CNavNode> node(new (std::nothrow) CNavNode(shell));
    knav::ItemList owned = knav::ItemList::adopt(id);
    if (node) {
        node->SetParent(parent);
        node->SetID(owned.release());
    }
    return node;
}

}  // namespace

// Binds the folder of a node that is one; true also for a node that is none.
bool CNavNode::bindAsFolder() {
    if (IsFolder()) {
        m_folder = NavGetFolderFromItem(GetParentFolder(), m_id);
    }
    return !IsFolder() || m_folder != nullptr;
}

// A node for an enumerated item, which it takes over; not linked yet.
std::unique_ptr<CNavNode> CNavNode::makeChild(ITEMIDLIST* item) {
    std::unique_ptr<CNavNode> node = newNode(m_shell, this, item);
    if (node) {
        node->SetExtensionName(m_extensionName);
        node->GetAttributes();
    }
    return node;
}

int CNavNode::ExpandFolder(HWND owner, int foldersOnly, DWORD shcontf) {
    knav::ComPtr<IEnumIDList> items;
    if (m_folder == nullptr || !knav::enumerateItems(m_folder, owner, shcontf, items)) {
        return 0;
    }
    const bool isDesktop = NavIsDesktop(m_id) != 0;
    const ChildTypes types(*this);
    CNavNode* internet = nullptr;
    while (knav::ItemList item = knav::nextItem(items)) {
        std::unique_ptr<CNavNode> node = makeChild(item.release());
        if (!node) {
            return 0;
        }
        node->m_type = types.of(node->m_id);
        const bool isInternet = isDesktop && !node->IsInFileSystem() && NavIsInternetRoot(node->m_id);
        const bool qualifies = (isInternet || isShown(*this, *node)) && (!foldersOnly || node->IsFolder());
        if (qualifies && node->bindAsFolder()) {
            internet = isInternet ? node.get() : internet;
            knav::appendChild(*this, *node.release());
        }
    }
    if (internet != nullptr) {
        internet->SetDisplayNode(networkAmong(m_child));
    }
    return 1;
}

CNavNode* CNavNode::appendElement(ITEMIDLIST* element) {
    knav::ItemList id = m_folder != nullptr ? knav::ItemList::firstOf(element) : knav::ItemList();
    std::unique_ptr<CNavNode> node = id ? newNode(m_shell, this, id.release()) : nullptr;
    if (!node) {
        return nullptr;
    }
    node->m_type = elementType(*this, node->m_id);
    if (node->m_type == NavNodeExtensionRoot) {
        NavGetExtensionNameFromItem(node->m_id, node->m_extensionName);
    } else if (node->IsExtensionType()) {
        node->SetExtensionName(m_extensionName);
    }
    node->GetAttributes();
    if (!node->bindAsFolder()) {
        return nullptr;
    }
    knav::appendChild(*this, *node);
    return node.release();
}

CNavNode* CNavNode::ExpandNode(ITEMIDLIST* list, CNavNode** first) {
    if (list == nullptr || NavIsDesktop(list) || knav::measureList(list).count > kDeepestChain) {
        return nullptr;
    }
    CNavNode* parent = this;
    for (ITEMIDLIST* element = list; element != nullptr; element = NavGetNextItemElement(element)) {
        CNavNode* const node = parent->appendElement(element);
        if (node == nullptr) {
            return nullptr;
        }
        if (parent == this && first != nullptr) {
            *first = node;
        }
        parent = node;
    }
    return parent;
}

CNavNode* CNavNode::FindItemList(ITEMIDLIST* list) {
    return FindOrAddItemList(list, 0, nullptr);
}

// Among this node and its next siblings, the one that the list's first element names; null when there is none.
CNavNode* CNavNode::findElement(ITEMIDLIST* list) {
    const auto element = knav::ItemList::firstOf(list);
    if (!element) {
        return nullptr;
    }
    const auto desktop = GetParentFolder() == nullptr ? knav::desktopFolder() : nullptr;
    IShellFolder* const folder = desktop ? desktop.get() : GetParentFolder();
    CNavNode* match = this;
    const auto isMatch = [&](const CNavNode& node) {
        return knav::areSameBytes(node.m_id, element.get()) ||
               NavCompareFolderItems(folder, node.m_id, element.get()) == 0;
    };
    while (match != nullptr && !isMatch(*match)) {
        match = match->m_next;
    }
    return match;
}

CNavNode* CNavNode::FindOrAddItemList(ITEMIDLIST* list, int add, CNavNode** first) {
    CNavNode* match = nullptr;
    ITEMIDLIST* rest = list;
    for (CNavNode* next = findElement(list); next != nullptr;) {
        match = next;
        rest = NavGetNextItemElement(rest);
        next = match->m_child != nullptr ? match->m_child->findElement(rest) : nullptr;
    }
    if (match == nullptr || rest == nullptr) {
        return match;
    }
    return add ? match->ExpandNode(rest, first) : nullptr;
}
