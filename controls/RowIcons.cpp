#include "controls/RowIcons.h"

#include "shell/FolderPaths.h"
#include "shell/ItemIcons.h"
#include "shell/ItemList.h"

#include <knav/CNavNode.h>

namespace knav {

std::optional<SHSTOCKICONID> generalPicture(std::wstring_view path, UINT driveType) {
    if (path.starts_with(L"\\\\")) {
        return SIID_FOLDER;
    }
    if (path.size() < 2 || path[1] != L':') {
        return std::nullopt;
    }
    const bool isRoot = path.size() <= 3;
    switch (driveType) {
        case DRIVE_REMOTE:
            return isRoot ? SIID_DRIVENET : SIID_FOLDER;
        case DRIVE_CDROM:
            return isRoot ? SIID_DRIVECD : SIID_FOLDER;
        case DRIVE_REMOVABLE:
            return isRoot ? SIID_DRIVEREMOVE : SIID_FOLDER;
        default:
            return std::nullopt;
    }
}

// Found out without touching the location: from its path and the kind of its drive.
RowLook& RowIcons::lookOf(const CNavNode& node) {
    RowLook& look = m_looks[&node];
    if (!look.known) {
        look.known = true;
        const CString path = pathOfFolder(ItemList::adopt(node.CalculateQualifiedItemList()).get());
        const wchar_t root[] = {path[0], L':', L'\\', 0};
        look.general = path.IsEmpty() ? std::nullopt : generalPicture(path.view(), GetDriveTypeW(root));
    }
    return look;
}

RowLook RowIcons::giveUp(CNavNode& node) {
    RowLook look = std::move(lookOf(node));
    if (!look.icon) {
        look.icon.reset(node.ReleaseIcon());
    }
    return look;
}

void RowIcons::takeOver(const CNavNode& node, RowLook look) {
    RowLook& own = m_looks[&node];
    look.overlay = own.overlay;
    own = std::move(look);
}

void RowIcons::drawOverlay(HDC dc, int overlay, POINT at, SIZE size) {
    if (overlay == SharedOverlay || overlay == LinkOverlay) {
        draw(dc, overlay == LinkOverlay ? SIID_LINK : SIID_SHARE, at, size);
    }
}

void RowIcons::draw(HDC dc, SHSTOCKICONID id, POINT at, SIZE size) {
    const auto [icon, isNew] = m_icons.try_emplace(id);
    SHSTOCKICONINFO info{};
    info.cbSize = sizeof(info);
    if (isNew && SUCCEEDED(SHGetStockIconInfo(id, SHGSI_ICON | SHGSI_SMALLICON, &info))) {
        icon->second.reset(info.hIcon);
    }
    if (isNew && !icon->second && id != SIID_LINK && id != SIID_SHARE) {  // not every system has such pictures
        icon->second = closedFolderIcon();
    }
    drawIcon(dc, icon->second.get(), at, size);
}

void drawIcon(HDC dc, HICON icon, POINT at, SIZE size) {
    const UINT mirrored = (GetLayout(dc) & LAYOUT_RTL) != 0 ? DI_NOMIRROR : 0u;
    if (icon) {
        DrawIconEx(dc, at.x, at.y, icon, size.cx, size.cy, 0, nullptr, DI_NORMAL | mirrored);
    }
}

}  // namespace knav
