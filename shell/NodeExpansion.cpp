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

// The type of a node for one element of a list below `parent`.
NavNodeType elementType(const CNavNode& parent, ITEMIDLIST* element) {
    if (NavIsExtensionRootItem(element)) {
        return NavNodeExtensionRoot;
    }
    if (NavIsInternetRoot(element)) {
        return NavNodeInternetRoot;
    }
    const auto joined = knav::ItemList::join(parent.GetID(), element);
    return NavIsWebFoldersItem(joined.get()) ? NavNodeWebFoldersRoot : childType(parent.GetType());
}

bool isShown(const CNavNode& parent, const CNavNode& node) {
    return parent.IsExtensionType() || node.IsFileSystemAncestor() || node.IsInFileSystem() || node.IsWebFoldersType();
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

// Takes the item over; null when it is not shown.
CNavNode* CNavNode::appendEnumerated(ITEMIDLIST* item, bool alwaysShown, bool foldersOnly) {
    std::unique_ptr<CNavNode> node = newNode(m_shell, this, item);
    if (!node) {
        return nullptr;
    }
    const auto joined = knav::ItemList::join(m_id, item);
    node->m_type = NavIsWebFoldersItem(joined.get()) ? NavNodeWebFoldersRoot : childType(m_type);
    node->SetExtensionName(m_extensionName);
    node->GetAttributes();
    const bool qualifies = (alwaysShown || isShown(*this, *node)) && (!foldersOnly || node->IsFolder());
    if (!qualifies || !node->bindAsFolder()) {
        return nullptr;
    }
    knav::appendChild(*this, *node);
    return node.release();
}

int CNavNode::ExpandFolder(HWND owner, int foldersOnly, DWORD shcontf) {
    knav::ComPtr<IEnumIDList> items;
    if (m_folder == nullptr || !knav::enumerateItems(m_folder, owner, shcontf, items)) {
        return 0;
    }
    const bool isDesktop = NavIsDesktop(m_id) != 0;
    CNavNode* internet = nullptr;
    CNavNode* network = nullptr;
    while (knav::ItemList item = knav::nextItem(items)) {
        const bool isInternet = isDesktop && NavIsInternetRoot(item.get());
        CNavNode* const node = appendEnumerated(item.release(), isInternet, foldersOnly != 0);
        if (node != nullptr && isInternet) {
            internet = node;
        }
        if (node != nullptr && node->IsFolder() && NavIsNetwork(node->m_id)) {
            network = node;
        }
    }
    if (internet != nullptr && network != nullptr) {
        internet->SetDisplayNode(network);
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
    if (list == nullptr || NavIsDesktop(list)) {
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

CNavNode* CNavNode::FindOrAddItemList(ITEMIDLIST* list, int add, CNavNode** first) {
    const auto element = knav::ItemList::firstOf(list);
    if (!element) {
        return nullptr;
    }
    const auto desktop = GetParentFolder() == nullptr ? knav::desktopFolder() : nullptr;
    IShellFolder* const folder = desktop ? desktop.get() : GetParentFolder();
    CNavNode* match = this;
    while (match != nullptr && NavCompareFolderItems(folder, match->m_id, element.get()) != 0) {
        match = match->m_next;
    }
    ITEMIDLIST* const rest = NavGetNextItemElement(list);
    if (match == nullptr || rest == nullptr) {
        return match;
    }
    CNavNode* const below = match->m_child != nullptr ? match->m_child->FindOrAddItemList(rest, add, first) : nullptr;
    return below != nullptr || !add ? below : match->ExpandNode(rest, first);
}
