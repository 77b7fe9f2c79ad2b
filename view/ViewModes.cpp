#include "view/ViewModes.h"

#include <algorithm>
#include <array>

namespace knav {
namespace {

// The list's value for thumbnails, which is no LV_VIEW_ constant; it also marks the window.
constexpr DWORD kListThumbnails = 5;

struct ModeRow {
    unsigned mode;
    GUID viewId;
    DWORD listView;
};

constexpr std::array kModes{
    ModeRow{NavViewLargeIcons, {0x0057D0E0, 0x3573, 0x11CF, {0xAE, 0x69, 8, 0, 0x2B, 0x2E, 0x12, 0x62}}, LV_VIEW_ICON},
    ModeRow{
        NavViewSmallIcons, {0x089000C0, 0x3573, 0x11CF, {0xAE, 0x69, 8, 0, 0x2B, 0x2E, 0x12, 0x62}}, LV_VIEW_SMALLICON},
    ModeRow{NavViewList, {0x0E1FA5E0, 0x3573, 0x11CF, {0xAE, 0x69, 8, 0, 0x2B, 0x2E, 0x12, 0x62}}, LV_VIEW_LIST},
    ModeRow{NavViewDetails, {0x137E7700, 0x3573, 0x11CF, {0xAE, 0x69, 8, 0, 0x2B, 0x2E, 0x12, 0x62}}, LV_VIEW_DETAILS},
    ModeRow{
        NavViewThumbnails, {0x8BEBB290, 0x52D0, 0x11D0, {0xB7, 0xF4, 0, 0xC0, 0x4F, 0xD7, 6, 0xEC}}, kListThumbnails},
    ModeRow{NavViewTiles, {0x65F125E5, 0x7BE1, 0x4810, {0xBA, 0x9D, 0xD2, 0x71, 0xC8, 0x43, 0x2C, 0xE3}}, LV_VIEW_TILE},
};

const ModeRow* findMode(unsigned mode) {
    const auto row = std::ranges::find(kModes, mode, &ModeRow::mode);
    return row != kModes.end() ? &*row : nullptr;
}

}  // namespace

const GUID& viewIdOf(unsigned mode) {
    const auto* const row = findMode(mode);
    return row != nullptr ? row->viewId : findMode(NavViewThumbnails)->viewId;
}

DWORD listViewOf(unsigned mode) {
    const auto* const row = findMode(mode);
    return row != nullptr ? row->listView : LV_VIEW_LIST;
}

unsigned modeOfList(const ListViewFacts& facts) {
    if (facts.windowData == kListThumbnails) {
        return NavViewThumbnails;
    }
    switch (facts.view) {
        case LV_VIEW_DETAILS:
            return NavViewDetails;
        case LV_VIEW_SMALLICON:
            return NavViewSmallIcons;
        case LV_VIEW_LIST:
            return NavViewList;
        case LV_VIEW_TILE:
            return NavViewTiles;
        case LV_VIEW_ICON:
            return facts.itemSpacing > facts.iconSpacing ? NavViewThumbnails : NavViewLargeIcons;
        default:
            return NavViewThumbnails;
    }
}

void applyModeToList(HWND list, unsigned mode) {
    const auto view = listViewOf(mode);
    SendMessageW(list, LVM_SETVIEW, view, 0);
    SetWindowLongPtrW(list, GWL_STYLE, GetWindowLongPtrW(list, GWL_STYLE) | LVS_SHOWSELALWAYS);
    SetWindowLongPtrW(list, GWLP_USERDATA, static_cast<LONG_PTR>(view));
}

unsigned readModeOfList(HWND list) {
    return modeOfList({
        .view = static_cast<DWORD>(SendMessageW(list, LVM_GETVIEW, 0, 0)),
        .itemSpacing = LOWORD(SendMessageW(list, LVM_GETITEMSPACING, FALSE, 0)),
        .iconSpacing = GetSystemMetrics(SM_CXICONSPACING),
        .windowData = GetWindowLongPtrW(list, GWLP_USERDATA),
    });
}

}  // namespace knav
