#include "controls/ComboItems.h"

namespace knav {

void ComboItems::of(HWND combo) {
    if (combo == m_combo && IsWindow(m_list)) {
        return;
    }
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    m_combo = combo;
    m_list = combo && GetComboBoxInfo(combo, &info) ? info.hwndList : nullptr;
}

void ComboItems::beginDrop() {
    if (m_list) {
        m_dropped.begin(m_combo, m_list);
    }
}

LRESULT ComboItems::ask(UINT message, int index, LPARAM parameter) const {
    return m_list ? SendMessageW(m_list, message, static_cast<WPARAM>(index), parameter) : LB_ERR;
}

int ComboItems::count() const {
    return m_list ? static_cast<int>(ask(LB_GETCOUNT, 0)) : 0;
}

int ComboItems::insert(int index, const wchar_t* text, void* data) {
    const auto item = static_cast<int>(ask(LB_INSERTSTRING, index, reinterpret_cast<LPARAM>(text)));
    if (item >= 0) {
        ask(LB_SETITEMDATA, item, reinterpret_cast<LPARAM>(data));
    }
    return item;
}

void* ComboItems::data(int index) const {
    const LRESULT data = ask(LB_GETITEMDATA, index);
    return data != LB_ERR ? reinterpret_cast<void*>(data) : nullptr;
}

CString ComboItems::text(int index) const {
    const bool hasStrings = (GetWindowLongPtrW(m_combo, GWL_STYLE) & CBS_HASSTRINGS) != 0;
    const LRESULT length = hasStrings ? ask(LB_GETTEXTLEN, index) : LB_ERR;
    CString text;
    if (length > 0) {
        ask(LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.GetBufferSetLength(static_cast<int>(length))));
    }
    return text;
}

}  // namespace knav
