// The rows' records.
#include <knav/CNavListBox.h>

#include "places/PlaceRecord.h"
#include "places/PlacesDropTarget.h"
#include "places/PlacesHost.h"
#include "places/PlacesRules.h"
#include "shell/ExtensionItems.h"
#include "shell/TextRules.h"

using namespace knav;

CNavListBox::CNavListBox() = default;

CNavListBox::~CNavListBox() = default;

PlaceRecord* CNavListBox::record(int index) const {
    return reinterpret_cast<PlaceRecord*>(GetUserData(index));
}

int CNavListBox::attach(int row, std::unique_ptr<PlaceRecord> record) {
    if (row >= 0) {
        SetUserData(row, reinterpret_cast<UINT_PTR>(record.get()));
        m_records.push_back(std::move(record));
    }
    return row;
}

void CNavListBox::DeleteItem(DELETEITEMSTRUCT* item) {
    if (const auto* data = reinterpret_cast<const BLBItemDataTag*>(item->itemData)) {
        const auto* place = reinterpret_cast<const PlaceRecord*>(data->userData);
        std::erase_if(m_records, [place](const auto& owned) { return owned.get() == place; });
    }
    CNavBitmapListBox::DeleteItem(item);
}

void CNavListBox::changed() {
    if (m_host)
        m_host->placesChanged();
}

// --- accessors -------------------------------------------------------------------------------------------------

PlacesItemType CNavListBox::GetItemType(int index) const {
    const PlaceRecord* place = record(index);
    return place ? place->type : PlacesItemNone;
}

void CNavListBox::SetItemType(int index, PlacesItemType type) {
    if (PlaceRecord* place = record(index))
        place->type = type;
}

unsigned CNavListBox::GetItemFlags(int index) const {
    const PlaceRecord* place = record(index);
    return place ? place->flags : 0;
}

void CNavListBox::SetItemFlags(int index, unsigned flags) {
    if (PlaceRecord* place = record(index))
        place->flags = flags;
}

CString CNavListBox::GetItemName(int index) const {
    const PlaceRecord* place = record(index);
    return place ? place->name : CString();
}

void CNavListBox::SetItemName(int index, const wchar_t* name) {
    if (PlaceRecord* place = record(index))
        place->name = name;
}

CString CNavListBox::GetItemExtensionName(int index) const {
    const PlaceRecord* place = record(index);
    return place ? place->extensionName : CString();
}

void CNavListBox::SetItemExtensionName(int index, const wchar_t* name) {
    if (PlaceRecord* place = record(index))
        place->extensionName = name;
}

ITEMIDLIST* CNavListBox::GetItemIdList(int index) const {
    const PlaceRecord* place = record(index);
    return place ? place->idList.get() : nullptr;
}

void CNavListBox::SetItemIdList(int index, ITEMIDLIST* list) {
    ItemList owned = ItemList::adopt(list);
    if (PlaceRecord* place = record(index))
        place->idList = std::move(owned);
}

CNavExtension* CNavListBox::GetItemExtension(int index) const {
    const PlaceRecord* place = record(index);
    return place ? NavFindExtensionByName(place->name) : nullptr;
}

int CNavListBox::CanDelete(int index) const {
    return (GetItemFlags(index) & NotDeletable) == 0;
}

int CNavListBox::CanEdit(int index) const {
    return (GetItemFlags(index) & NotEditable) == 0;
}

// --- finding ---------------------------------------------------------------------------------------------------

int CNavListBox::FindItem(const wchar_t* name) const {
    for (int i = 0; i < GetCount(); ++i) {
        const PlaceRecord* place = record(i);
        if (place && compareNoCase(place->name, name) == 0)
            return i;
    }
    return -1;
}

PlacesItemType CNavListBox::TypeFromName(const wchar_t* name) const {
    if (const StandardPlace* standard = findStandardPlace(name))
        return standard->type;
    return GetItemType(FindItem(name));
}

ITEMIDLIST* CNavListBox::GetUserItemIdFromName(const wchar_t* name) const {
    for (int i = 0; i < GetCount(); ++i) {
        const PlaceRecord* place = record(i);
        if (place && place->type == PlacesItemFolder && compareNoCase(place->name, name) == 0)
            return place->idList.get();
    }
    return nullptr;
}

// --- moving ----------------------------------------------------------------------------------------------------

int CNavListBox::MoveItemFromIndex(int from, int to) {
    return record(from) ? CNavBitmapListBox::MoveItemFromIndex(from, to) : -1;
}

int CNavListBox::DragLoop(POINT point) {
    const int result = CNavBitmapListBox::DragLoop(point);
    if (result == 1)
        changed();
    return result;
}

LRESULT CNavListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY)
        m_drop.reset();
    return CNavBitmapListBox::WindowProc(message, wParam, lParam);
}
