#include <platform/CListCtrl.h>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

int CListCtrl::InsertItem(int index, const wchar_t* text, int image) {
    LVITEMW item{};
    item.iItem = index;
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.pszText = const_cast<wchar_t*>(text);
    item.iImage = image;
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

CString CListCtrl::GetItemText(int index, int column) const {
    LVITEMW item{};
    item.iSubItem = column;
    CString text;
    int room = 0;
    int length = 0;
    do {  // the control tells the length of a text only by filling a buffer
        room = room == 0 ? 128 : 2 * room;
        item.pszText = text.GetBufferSetLength(room);
        item.cchTextMax = room;
        length = static_cast<int>(
            SendMessage(LVM_GETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
        // It may also have answered with a text of its own instead of filling the buffer.
        const CString found(item.pszText, length);
        text = found;
    } while (length >= room - 1);
    return text;
}

BOOL CListCtrl::SetItemText(int index, int column, const wchar_t* text) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    return static_cast<BOOL>(
        SendMessage(LVM_SETITEMTEXTW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

int CListCtrl::InsertColumn(int column, const wchar_t* heading, int format, int width) {
    LVCOLUMNW data{};
    data.mask = LVCF_TEXT | LVCF_FMT | (width >= 0 ? LVCF_WIDTH : 0);
    data.pszText = const_cast<wchar_t*>(heading);
    data.fmt = format;
    data.cx = width;
    return static_cast<int>(
        SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&data)));
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
    return static_cast<BOOL>(SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width, 0)));
}
