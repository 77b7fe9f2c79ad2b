// A list of texts or owner-drawn items.
#pragma once

#include <platform/CWnd.h>

// Indices are zero-based; LB_ERR (-1) means none or failure. Searches ignore case.
class ZOUI_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_LISTBOXW, nullptr, style, place, parent, id);
    }
    int GetCount() const { return number(LB_GETCOUNT); }
    int GetCurSel() const { return number(LB_GETCURSEL); }
    int SetCurSel(int index) { return number(LB_SETCURSEL, index); }
    int AddString(const wchar_t* text) { return number(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)); }
    int InsertString(int index, const wchar_t* text) {
        return number(LB_INSERTSTRING, index, reinterpret_cast<LPARAM>(text));
    }
    int DeleteString(int index) { return number(LB_DELETESTRING, index); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    void GetText(int index, CString& text) const;  // empty when there is no such item
    DWORD_PTR GetItemData(int index) const { return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, at(index))); }
    int SetItemData(int index, DWORD_PTR data) { return number(LB_SETITEMDATA, index, static_cast<LPARAM>(data)); }
    void* GetItemDataPtr(int index) const;  // null when there is no such item
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, reinterpret_cast<DWORD_PTR>(data)); }

    int GetItemRect(int index, RECT* rectangle) const {
        return number(LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(rectangle));
    }
    int GetItemHeight(int index) const { return number(LB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, int pixels) { return number(LB_SETITEMHEIGHT, index, pixels); }
    int GetTopIndex() const { return number(LB_GETTOPINDEX); }
    int SetTopIndex(int index) { return number(LB_SETTOPINDEX, index); }
    // The item nearest to a client position; `outside` tells that the position is not on an item.
    UINT ItemFromPoint(POINT point, BOOL& outside) const;

    // For owner-drawn lists. The base draws nothing, keeps the item height and treats all items as equal.
    virtual void DrawItem(DRAWITEMSTRUCT* item);
    virtual void MeasureItem(MEASUREITEMSTRUCT* item);
    virtual int CompareItem(COMPAREITEMSTRUCT* items);
    virtual void DeleteItem(DELETEITEMSTRUCT* item);

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    static WPARAM at(int index) noexcept { return static_cast<WPARAM>(index); }
    int number(UINT message, int index = 0, LPARAM lParam = 0) const {
        return static_cast<int>(SendMessage(message, at(index), lParam));
    }
};
