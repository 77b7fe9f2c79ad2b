#include <platform/Controls.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)

namespace {

// Leads the owner-draw messages to the virtual functions of a list or combo box.
template <class Control>
bool callItemFunction(Control& control, UINT message, LPARAM lParam, LRESULT* result) {
    *result = TRUE;
    switch (message) {
        case WM_DRAWITEM:
            control.DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
            return true;
        case WM_MEASUREITEM:
            control.MeasureItem(reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
            return true;
        case WM_COMPAREITEM:
            *result = control.CompareItem(reinterpret_cast<COMPAREITEMSTRUCT*>(lParam));
            return true;
        case WM_DELETEITEM:
            control.DeleteItem(reinterpret_cast<DELETEITEMSTRUCT*>(lParam));
            return true;
        default:
            return false;
    }
}

// The text of an item, asked for by the control's own length and text messages.
void readItemText(const CWnd& control, UINT lengthMessage, UINT textMessage, int index, CString& text) {
    const auto item = static_cast<WPARAM>(index);
    const int length = static_cast<int>(control.SendMessage(lengthMessage, item));
    text.Empty();
    if (length > 0) {
        wchar_t* const buffer = text.GetBufferSetLength(length);
        text.ReleaseBuffer(static_cast<int>(control.SendMessage(textMessage, item, reinterpret_cast<LPARAM>(buffer))));
    }
}

void* asPointer(DWORD_PTR data) noexcept {
    // The failure value of both kinds of control.
    return data == static_cast<DWORD_PTR>(-1) ? nullptr : reinterpret_cast<void*>(data);
}

}  // namespace

void CButton::DrawItem(DRAWITEMSTRUCT*) {
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (CWnd::OnChildNotify(message, wParam, lParam, result)) {
        return TRUE;
    }
    if (message != WM_DRAWITEM) {
        return FALSE;
    }
    DrawItem(reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
    *result = TRUE;
    return TRUE;
}

void CComboBox::GetLBText(int index, CString& text) const {
    readItemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, text);
}

void* CComboBox::GetItemDataPtr(int index) const {
    return asPointer(GetItemData(index));
}

BOOL CComboBox::GetComboBoxInfo(COMBOBOXINFO* info) const {
    info->cbSize = sizeof *info;
    return ::GetComboBoxInfo(m_hWnd, info);
}

void CComboBox::DrawItem(DRAWITEMSTRUCT*) {
}

void CComboBox::MeasureItem(MEASUREITEMSTRUCT*) {
}

int CComboBox::CompareItem(COMPAREITEMSTRUCT*) {
    return 0;
}

void CComboBox::DeleteItem(DELETEITEMSTRUCT*) {
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return CWnd::OnChildNotify(message, wParam, lParam, result) || callItemFunction(*this, message, lParam, result);
}

void CListBox::GetText(int index, CString& text) const {
    readItemText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, text);
}

void* CListBox::GetItemDataPtr(int index) const {
    return asPointer(GetItemData(index));
}

UINT CListBox::ItemFromPoint(POINT point, BOOL& outside) const {
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    outside = HIWORD(found);
    return LOWORD(found);
}

void CListBox::DrawItem(DRAWITEMSTRUCT*) {
}

void CListBox::MeasureItem(MEASUREITEMSTRUCT*) {
}

int CListBox::CompareItem(COMPAREITEMSTRUCT*) {
    return 0;
}

void CListBox::DeleteItem(DELETEITEMSTRUCT*) {
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return CWnd::OnChildNotify(message, wParam, lParam, result) || callItemFunction(*this, message, lParam, result);
}
