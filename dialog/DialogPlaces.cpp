// The dialog's side of the Places list: what its rows stand for, where they lead, and keeping their order.
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <ry/RyRegKey.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "places/PlacesOrder.h"

namespace {

ITEMIDLIST* specialFolder(int csidl) {
    return NavGetSpecialFolderItem(nullptr, csidl);
}

}  // namespace

bool CNavDialogImp::readSharedText(const CString& name, CString& value) {
    return m_facade.GetAllDialogsData(name, value) != 0;
}

void CNavDialogImp::savePlaces() {
    SavePlacesList();
}

void CNavDialogImp::placesChanged() {
    SetPlacesListDirty(1);
    m_placesListCustomized = true;
}

bool CNavDialogImp::leavesOutDisabledExtensions() const {
    return m_options.useRegExtensionFlags != 0;
}

/// The key in which removed extensions are kept: the dialog's own, with its last part replaced.
int CNavDialogImp::GetDeletedExtensionsKey(CString& key) {
    key = m_facade.GetSettingsKey();
    const CString& name = m_facade.GetDialogName();
    if (name.IsEmpty() || !key.view().ends_with(name.view())) {
        return 0;
    }
    key = key.Left(key.GetLength() - name.GetLength()) + knav::kAllDialogsName + L"\\DeletedExtensions";
    return 1;
}

bool CNavDialogImp::isExtensionDeleted(const wchar_t* name) {
    CString path;
    RyRegKey key;
    if (!GetDeletedExtensionsKey(path) || !key.open(HKEY_CURRENT_USER, path)) {
        return false;
    }
    CString removed;
    DWORD type = 0;
    for (DWORD i = 0; ryRegEnumValue(key.get(), i, removed, &type) == ERROR_SUCCESS; ++i) {
        if (type == REG_SZ && removed.CompareNoCase(name) == 0) {
            return true;
        }
    }
    return false;
}

void CNavDialogImp::SavePlacesList() {
    if (m_policies.noPlacesList || !m_places.GetSafeHwnd()) {
        return;
    }
    knav::writePlacesOrder(
        m_places, [this](const CString& name, const CString& value) { m_facade.SetAllDialogsData(name, value); });
    SetPlacesListDirty(0);
}

CString CNavDialogImp::GetHistoryDirectoryForCurrentDialog() {
    CString folder;
    m_facade.GetRecentDirectory(folder);
    if (folder.IsEmpty()) {
        const auto recent = knav::ItemList::adopt(specialFolder(CSIDL_RECENT));
        NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, recent.get(), folder);
    }
    return folder;
}

void CNavDialogImp::SetPlacesId(int index) {
    switch (m_places.GetItemType(index)) {
        case PlacesItemHistory:
            m_places.SetItemIdList(index,
                                   NavGetQualifiedItemListFromFolderFullPath(GetHistoryDirectoryForCurrentDialog()));
            break;
        case PlacesItemPersonal:
            m_places.SetItemIdList(index, specialFolder(CSIDL_PERSONAL));
            break;
        case PlacesItemFavorites:
            m_places.SetItemIdList(index, specialFolder(CSIDL_FAVORITES));
            break;
        case PlacesItemDesktop:
            m_places.SetItemIdList(index, specialFolder(CSIDL_DESKTOP));
            break;
        default:
            break;
    }
}

void CNavDialogImp::OnPlacesSelected() {
    m_facade.OnPlacesChanged();
}

void CNavDialogImp::OnSelChangePlacesList() {
    const int row = m_places.GetCurSel();
    if (row < 0) {
        return;
    }
    const CString name = m_places.GetItemName(row);
    if (goOrTell(m_places.GetItemIdList(row))) {
        SetCurrentPlaces(name);
    } else {
        UpdatePlacesListBox();
    }
}

void CNavDialogImp::SetCurrentPlaces(const CString& name) {
    if (m_policies.noPlacesList) {
        return;
    }
    m_currentPlace = name;
    m_facade.UpdateUIState();
}

bool CNavDialogImp::placeStandsFor(int row, ITEMIDLIST* folder) {
    ITEMIDLIST* place = m_places.GetItemIdList(row);
    if (m_places.GetItemType(row) == PlacesItemDesktop) {
        return NavIsDesktop(folder) != 0;
    }
    return place && knav::sameFolder(place, folder);
}

void CNavDialogImp::UpdatePlacesListBox() {
    ITEMIDLIST* current = m_browser.GetCurrentObjectID();
    if (m_policies.noPlacesList || !m_places.GetSafeHwnd() || !current) {
        return;
    }
    int selected = -1;
    for (int row = 0; row < m_places.GetCount() && selected < 0; ++row) {
        if (placeStandsFor(row, current)) {
            selected = row;
        }
    }
    if (m_places.GetCurSel() != selected) {
        m_places.SetCurSel(selected);
    }
    m_currentPlace = m_places.GetItemName(selected);
}

int CNavDialogImp::InsertUserItemInPlaces(int index, const wchar_t* name, const wchar_t* path) {
    return m_places.GetSafeHwnd() ? m_places.InsertUserItem(index, path, name) : -1;
}

int CNavDialogImp::MovePlacesItem(int from, int to) {
    return m_places.GetSafeHwnd() ? m_places.MoveItemFromIndex(from, to) : -1;
}
