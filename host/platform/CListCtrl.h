// A list view with columns, icons and in-place editing of names.
#pragma once

#include <platform/CWnd.h>

// Indices are zero-based; -1 means none or failure. Image lists are not owned.
class ZOUI_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_LISTVIEWW, nullptr, style, place, parent, id);
    }
    DWORD GetView() const { return static_cast<DWORD>(SendMessage(LVM_GETVIEW)); }
    DWORD SetView(int view) { return static_cast<DWORD>(SendMessage(LVM_SETVIEW, at(view))); }  // -1: not supported
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    DWORD SetExtendedStyle(DWORD style) {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
    }
    HIMAGELIST SetImageList(HIMAGELIST list, int which) {
        return reinterpret_cast<HIMAGELIST>(SendMessage(LVM_SETIMAGELIST, at(which), reinterpret_cast<LPARAM>(list)));
    }

    int GetItemCount() const { return number(LVM_GETITEMCOUNT); }
    int InsertItem(const LVITEMW* item) { return number(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(item)); }
    int InsertItem(int index, const wchar_t* text, int image = I_IMAGENONE);
    BOOL GetItem(LVITEMW* item) const { return number(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)); }
    BOOL SetItem(const LVITEMW* item) { return number(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)); }
    BOOL DeleteItem(int index) { return number(LVM_DELETEITEM, index); }
    BOOL DeleteAllItems() { return number(LVM_DELETEALLITEMS); }
    CString GetItemText(int index, int column) const;
    BOOL SetItemText(int index, int column, const wchar_t* text);
    LPARAM GetItemData(int index) const;  // 0 when there is no such item
    BOOL SetItemData(int index, LPARAM data);

    UINT GetItemState(int index, UINT mask) const { return static_cast<UINT>(number(LVM_GETITEMSTATE, index, mask)); }
    BOOL SetItemState(int index, UINT state, UINT mask);  // index -1: every item
    UINT GetSelectedCount() const { return static_cast<UINT>(number(LVM_GETSELECTEDCOUNT)); }
    int GetNextItem(int after, int flags) const { return number(LVM_GETNEXTITEM, after, MAKELPARAM(flags, 0)); }
    int FindItem(int after, const LVFINDINFOW* what) const {
        return number(LVM_FINDITEMW, after, reinterpret_cast<LPARAM>(what));
    }
    int HitTest(LVHITTESTINFO* where) const { return number(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(where)); }
    BOOL EnsureVisible(int index, BOOL partlyIsEnough) { return number(LVM_ENSUREVISIBLE, index, partlyIsEnough); }
    BOOL GetItemRect(int index, RECT* rectangle, int part) const;
    int GetTopIndex() const { return number(LVM_GETTOPINDEX); }
    DWORD GetItemSpacing(BOOL small) const { return static_cast<DWORD>(number(LVM_GETITEMSPACING, small)); }
    HWND EditLabel(int index) { return reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, at(index))); }
    HWND GetEditControl() const { return reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL)); }

    int InsertColumn(int column, const wchar_t* heading, int format = LVCFMT_LEFT, int width = -1);
    BOOL DeleteColumn(int column) { return number(LVM_DELETECOLUMN, column); }
    BOOL GetColumn(int column, LVCOLUMNW* data) const {
        return number(LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(data));
    }
    int GetColumnWidth(int column) const { return number(LVM_GETCOLUMNWIDTH, column); }
    BOOL SetColumnWidth(int column, int width) { return number(LVM_SETCOLUMNWIDTH, column, MAKELPARAM(width, 0)); }
    BOOL GetColumnOrderArray(int* order, int count) const {
        return number(LVM_GETCOLUMNORDERARRAY, count, reinterpret_cast<LPARAM>(order));
    }
    BOOL SetColumnOrderArray(int count, const int* order) {
        return number(LVM_SETCOLUMNORDERARRAY, count, reinterpret_cast<LPARAM>(order));
    }
    CWnd* GetHeaderCtrl() const { return FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER))); }
    BOOL SortItems(PFNLVCOMPARE compare, LPARAM data) {
        return number(LVM_SORTITEMS, static_cast<WPARAM>(data), reinterpret_cast<LPARAM>(compare));
    }

private:
    static WPARAM at(int index) noexcept { return static_cast<WPARAM>(index); }
    int number(UINT message, int index = 0, LPARAM lParam = 0) const { return number(message, at(index), lParam); }
    int number(UINT message, WPARAM wParam, LPARAM lParam) const {
        return static_cast<int>(SendMessage(message, wParam, lParam));
    }
};
