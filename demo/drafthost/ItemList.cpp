#include "ItemList.h"

#include <string>

namespace {

struct Column {
    const wchar_t* heading;
    int width;  // at 96 dots per inch; the rest of the room is the first column's
    CString (*text)(const CNavData& item);
};

constexpr Column kColumns[] = {
    {L"Text", 0, [](const CNavData& item) { return CString(item.GetText()); }},
    {L"Kind", 100,
     [](const CNavData& item) -> CString {
         return std::to_wstring(item.GetDataType()) + L" " + nameOf(item.GetDataType());
     }},
    {L"Name in folder", 120, [](const CNavData& item) { return CString(item.GetTextInFolder()); }},
    {L"Extension", 80, [](const CNavData& item) { return CString(item.GetExtensionName()); }},
    {L"User", 60, [](const CNavData& item) { return CString(item.GetUserName()); }},
};

}  // namespace

const wchar_t* nameOf(NAV_DATA_TYPE type) {
    switch (type) {
        case NAV_DATA_FILE:
            return L"file or folder";
        case NAV_DATA_URL:
            return L"URL";
        case NAV_DATA_NETWORK:
            return L"network path";
        case NAV_DATA_EXTENSION:
            return L"extension item";
        case NAV_DATA_FTP:
            return L"site item";
        default:
            return L"unknown";
    }
}

void ItemList::makeColumns() {
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_INFOTIP);
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i) {
        InsertColumn(i, kColumns[i].heading);
    }
    fitColumns();
}

void ItemList::fitColumns() {
    RECT room{};
    GetClientRect(&room);
    int rest = room.right;
    for (int i = 1; i < static_cast<int>(std::size(kColumns)); ++i) {
        const int width = MulDiv(kColumns[i].width, static_cast<int>(GetDpi()), USER_DEFAULT_SCREEN_DPI);
        SetColumnWidth(i, width);
        rest -= width;
    }
    SetColumnWidth(0, rest);
}

void ItemList::show(const CNavDataArray& items) {
    DeleteAllItems();
    for (int row = 0; row < items.GetCount(); ++row) {
        InsertItem(row, L"");
        for (int column = 0; column < static_cast<int>(std::size(kColumns)); ++column) {
            SetItemText(row, column, kColumns[column].text(*items.GetData(row)));
        }
    }
    fitColumns();
}
