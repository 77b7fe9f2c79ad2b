// A combo box: an edit field or a chosen item with a list that drops down.
#pragma once

#include <platform/CWnd.h>

// Indices are zero-based; CB_ERR (-1) means none or failure. Searches ignore case.
class ZOUI_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_COMBOBOXW, nullptr, style, place, parent, id);
    }
    int GetCount() const { return number(CB_GETCOUNT); }
    int GetCurSel() const { return number(CB_GETCURSEL); }
    int SetCurSel(int index) { return number(CB_SETCURSEL, index); }
    int AddString(const wchar_t* text) { return number(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text)); }
    int InsertString(int index, const wchar_t* text) {
        return number(CB_INSERTSTRING, index, reinterpret_cast<LPARAM>(text));
    }
    int DeleteString(int index) { return number(CB_DELETESTRING, index); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindStringExact(int after, const wchar_t* text) const {
        return number(CB_FINDSTRINGEXACT, after, reinterpret_cast<LPARAM>(text));
    }
    void GetLBText(int index, CString& text) const;  // empty when there is no such item
    DWORD_PTR GetItemData(int index) const { return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, at(index))); }
    int SetItemData(int index, DWORD_PTR data) { return number(CB_SETITEMDATA, index, static_cast<LPARAM>(data)); }
    void* GetItemDataPtr(int index) const;  // null when there is no such item
    int SetItemDataPtr(int index, void* data) { return SetItemData(index, reinterpret_cast<DWORD_PTR>(data)); }

    // The edit field. GetEditSel packs start and end into the low and high word.
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int start, int end) {
        return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(start, end)));
    }
    BOOL LimitText(int characters) { return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, at(characters))); }

    void ShowDropDown(BOOL show = TRUE) { SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(show)); }
    BOOL GetDroppedState() const { return static_cast<BOOL>(SendMessage(CB_GETDROPPEDSTATE)); }
    int SetDroppedWidth(int pixels) { return number(CB_SETDROPPEDWIDTH, pixels); }
    int GetItemHeight(int index) const { return number(CB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, int pixels) { return number(CB_SETITEMHEIGHT, index, pixels); }
    int GetTopIndex() const { return number(CB_GETTOPINDEX); }
    BOOL GetComboBoxInfo(COMBOBOXINFO* info) const;  // fills in the size itself

    // For owner-drawn boxes. The base draws nothing, keeps the item height and treats all items as equal.
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
