#include <knav/CNavTree.h>

#include <knav/CNavExtension.h>
#include <knav/CNavExtensionPolicy.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <platform/CWnd.h>

#include <memory>
#include <utility>

#include "shell/FolderCalls.h"
#include "shell/NodeLinks.h"
#include "shell/RegisteredExtensions.h"

namespace {

constexpr DWORD kDesktopItems = SHCONTF_FOLDERS;
constexpr DWORD kDriveItems = SHCONTF_STORAGE;  // My Computer without Control Panel and the like
constexpr int kFetchNow = 0;
constexpr int kDeferWithIcon = 1;

// The target when the list is a shortcut; otherwise nothing.
knav::ItemList linkTarget(ITEMIDLIST* list) {
    return knav::ItemList::adopt(NavResolveLink(list, 0));
}

bool leavesOutDisabled(CWnd* dialog) {
    const auto* const policy = dynamic_cast<const CNavExtensionPolicy*>(dialog);
    return policy != nullptr && policy->LeavesOutDisabledExtensions() != 0;
}

}  // namespace

CNavTree::CNavTree() = default;

CNavTree::~CNavTree() {
    DeleteAllNodes();
}

CNavNode* CNavTree::AddChild(CNavNode* node) {
    if (m_root != nullptr) {
        return m_root->AddChild(node);
    }
    return m_root = node != nullptr ? node : new (std::nothrow) CNavNode(*this);
}

CNavNode* CNavTree::AddNode(CNavNode* node) {
    if (m_root == nullptr) {
        return AddChild(node);
    }
    CNavNode* const added = m_root->AddNode(node);
    m_root = m_root->GetFirst();
    return added;
}

void CNavTree::DeleteNode(CNavNode* node) {
    if (node == nullptr) {
        return;
    }
    if (node == m_root) {
        DeleteAllNodes();
        return;
    }
    if (knav::goesWith(m_currentPath, *node)) {
        m_currentPath = nullptr;
    }
    // The following siblings are destroyed with the node, so nothing may lead to them either.
    for (CNavNode* other = m_root; other != nullptr; other = CNavNode::EnumerateNextNode(other)) {
        if (other->GetDisplayNode() != nullptr && knav::goesWith(other->GetDisplayNode(), *node)) {
            other->SetDisplayNode(nullptr);
        }
    }
    CNavNode* const parent = node->GetParent();
    if (CNavNode* const previous = node->GetPrev()) {
        previous->SetNext(nullptr);
    } else if (parent != nullptr && parent->GetChild() == node) {
        parent->SetChild(nullptr);
    }
    const std::unique_ptr<CNavNode> destroyed(node);
}

void CNavTree::DeleteAllNodes() {
    const std::unique_ptr<CNavNode> destroyed(std::exchange(m_root, nullptr));
    m_currentPath = nullptr;
}

// Makes the desktop the root, without its children.
int CNavTree::makeDesktop(HWND owner) {
    m_root = new (std::nothrow) CNavNode(*this);
    if (m_root == nullptr) {
        return 0;
    }
    m_root->SetID(NavGetDesktopFolderItem(owner));
    m_root->SetFolder(NavGetDesktopFolder());
    return m_root->GetAttributes();
}

CNavNode* CNavTree::BuildSimpleHierarchy(HWND owner, ITEMIDLIST* list) {
    DeleteAllNodes();
    IMalloc* const allocator = *this;
    if (allocator == nullptr || list == nullptr || !makeDesktop(owner)) {
        return nullptr;
    }
    const knav::ItemList target = linkTarget(list);
    ITEMIDLIST* const shown = target ? target.get() : list;
    return NavIsDesktop(shown) ? m_root : m_root->ExpandNode(shown, nullptr);
}

int CNavTree::BuildStandardHierarchy(HWND owner, CWnd* dialog, int hideFtp, int hideExtensions, ITEMIDLIST* current) {
    if (m_root != nullptr) {
        DeleteNode(std::exchange(m_currentPath, nullptr));
    } else {
        m_hideFtp = hideFtp;
        m_hideExtensions = hideExtensions;
        if (!buildTopLevels(owner, dialog)) {
            return 0;
        }
    }
    return current != nullptr ? ExpandToItem(owner, current) : 1;
}

// Desktop, extensions and drives.
int CNavTree::buildTopLevels(HWND owner, CWnd* dialog) {
    const bool expanded = makeDesktop(owner) && m_root->ExpandFolder(owner, 1, kDesktopItems);
    AddExtensionsToDesktop(dialog, m_root);
    if (!expanded) {
        return 0;
    }
    const auto drivesList = knav::ItemList::adopt(NavGetDrivesFolderItem(owner));
    CNavNode* const first = m_root->GetChild();
    CNavNode* const drives = first != nullptr ? first->FindOrAddItemList(drivesList.get(), 0, nullptr) : nullptr;
    if (drives == nullptr || !drives->ExpandFolder(owner, 1, kDriveItems)) {
        return 0;
    }
    // A shell that does not know storage items enumerates nothing at all.
    return drives->GetChild() != nullptr || drives->ExpandFolder(owner, 1, SHCONTF_FOLDERS);
}

int CNavTree::ExpandToItem(HWND /*owner*/, ITEMIDLIST* list) {
    m_currentPath = nullptr;
    if (m_root == nullptr || list == nullptr || NavIsDesktop(list)) {
        return 1;
    }
    const knav::ItemList target = linkTarget(list);
    if (CNavNode* const first = m_root->GetChild()) {
        first->FindOrAddItemList(target ? target.get() : list, 1, &m_currentPath);
    }
    return 1;
}

bool CNavTree::isHidden(const CNavExtension& extension, bool leaveOutDisabled) const {
    const int hidden = extension.IsFTP() ? m_hideFtp : m_hideExtensions;
    return hidden != 0 || (leaveOutDisabled && extension.IsDisabled());
}

int CNavTree::AddExtensionsToDesktop(CWnd* dialog, CNavNode* desktop) {
    if (desktop == nullptr) {
        return 0;
    }
    const bool leaveOutDisabled = leavesOutDisabled(dialog);
    const CNavExtensionArray& extensions = knav::registeredExtensions();
    int added = 0;
    for (int index = 0; index < extensions.GetCount(); ++index) {
        CNavExtension* const extension = extensions.GetData(index);
        if (extension != nullptr && !isHidden(*extension, leaveOutDisabled) && addExtension(*extension, *desktop)) {
            ++added;
        }
    }
    return added;
}

bool CNavTree::addExtension(CNavExtension& extension, CNavNode& desktop) {
    auto folder = knav::ComPtr<IShellFolder>::retain(extension.GetRootFolder());
    if (!folder && extension.GetDelayInit() == kFetchNow) {
        folder = knav::ComPtr<IShellFolder>::adopt(extension.FetchRootFolder());
        if (!folder) {
            return false;
        }
    }
    auto* const node = new (std::nothrow) CNavNode(*this);
    if (node == nullptr) {
        return false;
    }
    node->SetParent(&desktop);
    node->SetFolder(folder.release());
    node->SetID(CopyItemList(extension.GetID()));
    node->SetType(NavNodeExtensionRoot);
    node->SetExtensionName(extension.GetName());
    if (node->GetFolder() != nullptr) {
        node->GetAttributes();
    } else if (extension.GetDelayInit() == kDeferWithIcon) {
        node->SetIcon();
    }
    knav::appendChild(desktop, *node);
    return true;
}

void CNavTree::Dump() const {
    if (m_root != nullptr) {
        m_root->Dump(0);
    }
}
