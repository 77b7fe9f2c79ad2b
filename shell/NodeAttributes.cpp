// What the shell says about a node.
#include <knav/CNavNode.h>
#include <knav/CNavShell.h>

#include "data/ApiEdge.h"
#include "shell/FolderCalls.h"
#include "shell/ItemIcons.h"

namespace {

constexpr DWORD kAttributeMask = SFGAO_CANCOPY | SFGAO_CANDELETE | SFGAO_CANLINK | SFGAO_CANMOVE | SFGAO_CANRENAME |
                                 SFGAO_HASSUBFOLDER | SFGAO_HASPROPSHEET | SFGAO_DROPTARGET | SFGAO_FILESYSANCESTOR |
                                 SFGAO_FOLDER | SFGAO_GHOSTED | SFGAO_FILESYSTEM | SFGAO_LINK | SFGAO_REMOVABLE |
                                 SFGAO_SHARE;
static_assert(kAttributeMask == 0xF2038177);

void setFrom(NavNodeAttributes& to, DWORD shell) {
    to.canCopy = (shell & SFGAO_CANCOPY) != 0;
    to.canDelete = (shell & SFGAO_CANDELETE) != 0;
    to.canLink = (shell & SFGAO_CANLINK) != 0;
    to.canMove = (shell & SFGAO_CANMOVE) != 0;
    to.canRename = (shell & SFGAO_CANRENAME) != 0;
    to.hasSubFolder = (shell & SFGAO_HASSUBFOLDER) != 0;
    to.hasPropSheet = (shell & SFGAO_HASPROPSHEET) != 0;
    to.isDropTarget = (shell & SFGAO_DROPTARGET) != 0;
    to.isFileSystemAncestor = (shell & SFGAO_FILESYSANCESTOR) != 0;
    to.isFolder = (shell & SFGAO_FOLDER) != 0;
    to.isGhosted = (shell & SFGAO_GHOSTED) != 0;
    to.isInFileSystem = (shell & SFGAO_FILESYSTEM) != 0;
    to.isLink = (shell & SFGAO_LINK) != 0;
    to.isOnRemovableMedia = (shell & SFGAO_REMOVABLE) != 0;
    to.isShared = (shell & SFGAO_SHARE) != 0;
}

// The icon that a node of its type has before its folder is asked.
zoui::UniqueIcon iconByType(const CNavNode& node) {
    switch (node.GetType()) {
        case NavNodeShell:
            return knav::systemIcon(knav::ItemList::adopt(node.CalculateQualifiedItemList()).get());
        case NavNodeExtensionRoot:
            return node.IsFTP() ? knav::ftpSitesIcon() : nullptr;
        case NavNodeExtensionItem:
            return node.IsFTP() ? knav::closedFolderIcon() : nullptr;
        default:
            return nullptr;
    }
}

}  // namespace

int CNavNode::GetAttributes() {
    IShellFolder* const parentFolder = GetParentFolder();
    IShellFolder* const folder = parentFolder != nullptr ? parentFolder : m_folder;
    const bool canAsk = folder != nullptr && m_id != nullptr;
    const auto attributes = canAsk ? knav::attributesOf(folder, m_id, kAttributeMask) : std::nullopt;
    if (!attributes) {
        return 0;
    }
    setFrom(m_attributes, *attributes);
    if (m_type == NavNodeExtensionRoot) {  // the shell knows nothing of it: it is a folder and has no path
        m_attributes.canRename = 0;
        m_attributes.isInFileSystem = 0;
        m_attributes.isFileSystemAncestor = 1;
        m_attributes.isFolder = 1;
    }
    m_isIconDue = true;
    return 1;
}

void CNavNode::SetIcon() {
    m_isIconDue = true;
    GetIcon();
}

HICON CNavNode::GetIcon() const {
    if (std::exchange(m_isIconDue, false)) {
        zoui::UniqueIcon(std::exchange(m_icon, nullptr)).reset();
        m_icon = knav::atApiEdge<HICON>(nullptr, [this] { return takeIcon(); });
    }
    return m_icon;
}

HICON CNavNode::ReleaseIcon() {
    m_isIconDue = m_isIconDue || m_icon != nullptr;
    return std::exchange(m_icon, nullptr);
}

HICON CNavNode::takeIcon() const {
    zoui::UniqueIcon icon = iconByType(*this);
    if (!icon) {
        const bool isRoot = m_type == NavNodeExtensionRoot;
        icon = knav::extractedIcon(isRoot ? m_folder : GetParentFolder(), isRoot ? nullptr : m_id);
    }
    return icon.release();
}
