#include <knav/CNavNode.h>

#include <knav/CNavExtension.h>
#include <knav/CNavShell.h>
#include <knav/NavNames.h>
#include <platform/GdiOwners.h>

#include <utility>
#include <vector>

#include "data/ApiEdge.h"
#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"

CNavNode::CNavNode(CNavShell& shell) : m_shell(shell) {
    Initialize();
}

CNavNode::~CNavNode() {
    delete m_child;
    while (CNavNode* const next = m_next) {  // one after the other: a folder may have very many children
        m_next = std::exchange(next->m_next, nullptr);
        delete next;
    }
    knav::ItemList::adopt(m_id).reset();
    knav::ComPtr<IShellFolder>::adopt(m_folder).reset();
    zoui::UniqueIcon(m_icon).reset();
}

void CNavNode::Initialize() {
    m_folder = nullptr;
    m_id = nullptr;
    m_icon = nullptr;
    m_isIconDue = false;
    m_indent = 0;
    m_displayNode = nullptr;
    m_attributes = {};
    m_type = NavNodeShell;
    m_child = nullptr;
    m_next = nullptr;
    m_parent = nullptr;
    m_prev = nullptr;
}

void CNavNode::SetExtensionName(const wchar_t* name) {
    knav::atApiEdge([&] { m_extensionName = name; });
}

IShellFolder* CNavNode::GetParentFolder() const {
    return m_parent != nullptr ? m_parent->m_folder : nullptr;
}

CNavExtension* CNavNode::GetExtension() const {
    return NavFindExtensionByName(m_extensionName);
}

int CNavNode::IsFTPRoot() const {
    return IsFTP();
}

int CNavNode::IsFTP() const {
    const CNavExtension* const extension = GetExtension();
    return extension != nullptr && extension->IsFTP();
}

int CNavNode::GetNameInFolder(CString& name) const {
    if (m_type != NavNodeExtensionRoot) {
        return NavGetItemNameInFolder(GetParentFolder(), m_id, name);
    }
    if (m_folder != nullptr) {
        return NavGetItemDisplayName(SHGDN_NORMAL, m_folder, knav::listArgument(knav::emptyList()), name);
    }
    // The root of an extension that waits for its first click: loading its folder only for a name would end the wait.
    const CNavExtension* const extension = GetExtension();
    knav::atApiEdge([&] { name = extension != nullptr ? extension->GetRootFolderDisplayName() : L""; });
    return !name.IsEmpty();
}

int CNavNode::GetNameForParsing(CString& name) const {
    return NavGetItemNameForParsing(GetParentFolder(), m_id, name);
}

ITEMIDLIST* CNavNode::CalculateQualifiedItemList() const {
    if (NavIsItemListQualified(m_id)) {
        return m_shell.CopyItemList(m_id);
    }
    return knav::atApiEdge<ITEMIDLIST*>(nullptr, [this] {
        std::vector<ITEMIDLIST*> ids;
        for (const CNavNode* node = this; node != nullptr; node = node->m_parent) {
            ids.insert(ids.begin(), node->m_id);
        }
        return NavBuildItemList(m_shell, ids.data(), static_cast<int>(ids.size()));
    });
}

CNavNode* CNavNode::FindName(const wchar_t* name) {
    return knav::atApiEdge<CNavNode*>(nullptr, [&] {
        CString candidate;
        CNavNode* node = this;
        while (node != nullptr && !(node->GetNameInFolder(candidate) && candidate.CompareNoCase(name) == 0)) {
            node = node->m_next;
        }
        return node;
    });
}

void CNavNode::Dump(int level) const {
    for (const CNavNode* node = this; node != nullptr; node = node->m_next) {
        knav::atApiEdge([&] {
            CString line(L' ', level);
            CString name;
            line += node->GetNameInFolder(name) ? name : CString(L"???");
        });
        if (node->m_child != nullptr) {
            node->m_child->Dump(level + 1);
        }
    }
}
