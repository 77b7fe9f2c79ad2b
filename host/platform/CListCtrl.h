// A list view with columns.
#pragma once

#include <platform/CWnd.h>

// Indices are zero-based; -1 means none or failure.
class ZOUI_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_LISTVIEWW, nullptr, style, place, parent, id);
    }
    DWORD SetExtendedStyle(DWORD style) {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(style)));
    }

    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    int InsertItem(int index, const wchar_t* text, int image = I_IMAGENONE);
    BOOL DeleteAllItems() { return static_cast<BOOL>(SendMessage(LVM_DELETEALLITEMS)); }
    CString GetItemText(int index, int column) const;  // of any length
    BOOL SetItemText(int index, int column, const wchar_t* text);

    int InsertColumn(int column, const wchar_t* heading, int format = LVCFMT_LEFT, int width = -1);
    BOOL SetColumnWidth(int column, int width);
};
