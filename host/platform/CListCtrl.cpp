#include <platform/CListCtrl.h>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace {

LVITEMW itemAt(int index, UINT mask) noexcept {
    LVITEMW item{};
    item.iItem = index;
    item.mask = mask;
    return item;
}

}  // namespace

int CListCtrl::InsertItem(int index, const wchar_t* text, int image) {
    LVITEMW item = itemAt(index, LVIF_TEXT | LVIF_IMAGE);
    item.pszText = const_cast<wchar_t*>(text);
    item.iImage = image;
    return InsertItem(&item);
}

CString CListCtrl::GetItemText(int index, int column) const {
    LVITEMW item = itemAt(index, 0);
    item.iSubItem = column;
    CString text;
    int room = 0;
    int length = 0;
    do {  // the control tells the length of a text only by filling a buffer
        room = room == 0 ? 128 : 2 * room;
        item.pszText = text.GetBufferSetLength(room);
        item.cchTextMax = room;
        length = number(LVM_GETITEMTEXTW, index, reinterpret_cast<LPARAM>(&item));
        // It may also have answered with a text of its own instead of filling the buffer.
        const CString found(item.pszText, length);
        text = found;
    } while (length >= room - 1);
    return text;
}

BOOL CListCtrl::SetItemText(int index, int column, const wchar_t* text) {
    LVITEMW item = itemAt(index, 0);
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    return number(LVM_SETITEMTEXTW, index, reinterpret_cast<LPARAM>(&item));
}

LPARAM CListCtrl::GetItemData(int index) const {
    LVITEMW item = itemAt(index, LVIF_PARAM);
    return GetItem(&item) ? item.lParam : 0;
}

BOOL CListCtrl::SetItemData(int index, LPARAM data) {
    LVITEMW item = itemAt(index, LVIF_PARAM);
    item.lParam = data;
    return SetItem(&item);
}

BOOL CListCtrl::SetItemState(int index, UINT state, UINT mask) {
    LVITEMW item = itemAt(index, LVIF_STATE);
    item.state = state;
    item.stateMask = mask;
    return number(LVM_SETITEMSTATE, index, reinterpret_cast<LPARAM>(&item));
}

BOOL CListCtrl::GetItemRect(int index, RECT* rectangle, int part) const {
    rectangle->left = part;  // in: which part of the item
    return number(LVM_GETITEMRECT, index, reinterpret_cast<LPARAM>(rectangle));
}

int CListCtrl::InsertColumn(int column, const wchar_t* heading, int format, int width) {
    LVCOLUMNW data{};
    data.mask = LVCF_TEXT | LVCF_FMT | (width >= 0 ? LVCF_WIDTH : 0);
    data.pszText = const_cast<wchar_t*>(heading);
    data.fmt = format;
    data.cx = width;
    return number(LVM_INSERTCOLUMNW, column, reinterpret_cast<LPARAM>(&data));
}
