#include "dialog/DialogMenus.h"

#include <knav/NavToolsMenuItem.h>
#include <knav/NavViewMode.h>
#include <platform/CMenu.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/ResourceModule.h"
#include "resources/ids.h"
#include "shell/TextRules.h"

namespace knav {
namespace {

/// A folder that is a place already cannot be added once more.
void preparePlaces(CMenu& menu, const ToolsMenuFacts& facts) {
    if (!(facts.present & NavToolsAddToPlaces) || !facts.hasPlaces) {
        menu.DeleteMenu(IDM_KNAV_ADD_TO_PLACES, MF_BYCOMMAND);
    } else if (facts.isPlace) {
        menu.EnableMenuItem(IDM_KNAV_ADD_TO_PLACES, MF_BYCOMMAND | MF_GRAYED);
    }
}

void fillFavorites(CMenu& favorites, const ToolsMenuFacts& facts) {
    while (favorites.GetMenuItemCount() > 0 && favorites.DeleteMenu(0, MF_BYPOSITION)) {
    }
    CString folder = facts.folder;
    folder.Replace(L"&", L"&&");
    favorites.AppendMenu(MF_STRING, IDM_KNAV_FAVORITE_FOLDER, messageText(IDS_KNAV_FAVORITE_FOLDER, folder));
    if (facts.selected == 1) {
        favorites.AppendMenu(MF_STRING, IDM_KNAV_FAVORITE_ITEM, messageText(IDS_KNAV_FAVORITE_ITEM));
    } else if (facts.selected > 1) {
        favorites.AppendMenu(MF_STRING, IDM_KNAV_FAVORITE_ITEMS, messageText(IDS_KNAV_FAVORITE_ITEMS));
    }
}

/// The Favorites submenu is the first entry that is a submenu.
void prepareFavorites(CMenu& menu, const ToolsMenuFacts& facts) {
    int position = 0;
    while (position < menu.GetMenuItemCount() && menu.GetMenuItemID(position) != static_cast<UINT>(-1)) {
        ++position;
    }
    if (position == menu.GetMenuItemCount()) {
        return;
    }
    if (!(facts.present & NavToolsAddToFavorites)) {
        menu.DeleteMenu(position, MF_BYPOSITION);
    } else if (facts.isRemote) {
        menu.EnableMenuItem(position, MF_BYPOSITION | MF_GRAYED);
    } else {
        fillFavorites(*menu.GetSubMenu(position), facts);
    }
}

}  // namespace

int toolsMenuItemPosition(unsigned int item) {
    constexpr unsigned int kItems[] = {NavToolsFind,  NavToolsLocate,      NavToolsItem3,
                                       NavToolsItem4, NavToolsAddToPlaces, NavToolsAddToFavorites};
    const auto found = std::ranges::find(kItems, item);
    return found == std::end(kItems) ? -1 : static_cast<int>(found - kItems);
}

unsigned int viewCommandOf(unsigned int mode) {
    switch (mode) {
        case NavViewList:
            return IDM_KNAV_LIST;
        case NavViewDetails:
            return IDM_KNAV_DETAILS;
        case NavViewThumbnails:
            return IDM_KNAV_THUMBNAILS;
        default:
            return 0;
    }
}

void dropIdleSeparators(CMenu& menu) {
    const auto isLine = [&menu](int position) {
        return (GetMenuState(menu.m_hMenu, static_cast<UINT>(position), MF_BYPOSITION) & MF_SEPARATOR) != 0;
    };
    for (int position = menu.GetMenuItemCount() - 1; position >= 0; --position) {
        const bool isLast = position == menu.GetMenuItemCount() - 1;
        if (isLine(position) && (position == 0 || isLast || isLine(position + 1))) {
            menu.DeleteMenu(static_cast<UINT>(position), MF_BYPOSITION);
        }
    }
    if (menu.GetMenuItemCount() > 0 && isLine(0)) {
        menu.DeleteMenu(0, MF_BYPOSITION);
    }
}

void prepareToolsMenu(CMenu& menu, const ToolsMenuFacts& facts) {
    // Commands of parts that the dialog does not have yet are not offered.
    for (const UINT absent : {IDM_KNAV_FIND, IDM_KNAV_FTP_LOCATIONS}) {
        menu.DeleteMenu(absent, MF_BYCOMMAND);
    }
    if (!(facts.present & NavToolsLocate)) {
        menu.DeleteMenu(IDM_KNAV_LOCATE, MF_BYCOMMAND);
    } else if (!facts.hasName) {
        menu.EnableMenuItem(IDM_KNAV_LOCATE, MF_BYCOMMAND | MF_GRAYED);
    }
    preparePlaces(menu, facts);
    prepareFavorites(menu, facts);
}

}  // namespace knav

int CNavDialogImp::PrepareButtonMenu(UINT buttonId, CMenu& menu) {
    const UINT menuId = buttonId == IDOK             ? IDR_KNAV_OK_MENU
                        : buttonId == IDC_KNAV_TOOLS ? IDR_KNAV_TOOLS_MENU
                                                     : IDR_KNAV_VIEWS_MENU;
    if (!menu.LoadMenu(menuId, knav::ownResources())) {
        return 0;
    }
    CMenu* popup = menu.GetSubMenu(0);
    if (buttonId == IDOK) {
        CString caption;
        m_okButton.GetWindowText(caption);
        popup->ModifyMenu(IDM_KNAV_OPEN, MF_BYCOMMAND | MF_STRING, IDM_KNAV_OPEN, caption);
        m_facade.PrepareOkMenu(popup);
    } else if (buttonId == IDC_KNAV_TOOLS) {
        m_facade.PrepareToolsMenu(popup);
    } else {
        m_facade.PrepareViewsMenu(popup);
    }
    knav::dropIdleSeparators(*popup);
    return popup->GetMenuItemCount() > 0;
}

void CNavDialogImp::PrepareViewsMenu(CMenu* menu) {
    if (const UINT command = knav::viewCommandOf(m_browser.GetViewMode())) {
        menu->EnableMenuItem(command, MF_BYCOMMAND | MF_GRAYED);
        CheckMenuRadioItem(menu->m_hMenu, command, command, command, MF_BYCOMMAND);
    }
}

void CNavDialogImp::PrepareToolsMenu(CMenu* menu) {
    knav::ToolsMenuFacts facts;
    facts.present = m_options.toolsMenuItemsPresent;
    facts.hasName = !knav::trimmed(fileNameText().view()).empty();
    facts.hasPlaces = m_places.GetSafeHwnd() && !m_policies.noPlacesList;
    facts.isPlace = facts.hasPlaces && m_places.GetCurSel() >= 0;
    const CNavNode* node = currentFolderNode();
    facts.isRemote =
        node && node->GetType() != NavNodeInternetRoot && (node->IsInternetType() || node->IsWebFoldersType());
    GetCurrentFolder(facts.folder);
    facts.selected = selectedCount();
    knav::prepareToolsMenu(*menu, facts);
}
