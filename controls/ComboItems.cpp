#include "controls/ComboItems.h"

#include <vector>

namespace knav {

void ComboItems::of(HWND combo) const {
    if (combo == m_combo && (!m_list || IsWindow(m_list))) {
        return;
    }
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    m_combo = combo;
    m_list = combo && GetComboBoxInfo(combo, &info) ? info.hwndList : nullptr;
    m_hasStrings = (GetWindowLongPtrW(combo, GWL_STYLE) & CBS_HASSTRINGS) != 0;
}

void ComboItems::beginDrop() const {
    if (m_list && m_dropped.m_hWnd != m_list) {
        m_dropped.UnsubclassWindow();
        m_dropped.SubclassWindow(m_list);
    }
}

int ComboItems::count() const {
    return m_list ? static_cast<int>(SendMessageW(m_list, LB_GETCOUNT, 0, 0)) : 0;
}

int ComboItems::insert(int index, const wchar_t* text, void* data) const {
    const auto value = reinterpret_cast<LPARAM>(data);
    const auto item = static_cast<int>(SendMessageW(m_list, LB_INSERTSTRING, static_cast<WPARAM>(index),
                                                    m_hasStrings ? reinterpret_cast<LPARAM>(text) : value));
    if (item >= 0 && m_hasStrings) {
        SendMessageW(m_list, LB_SETITEMDATA, static_cast<WPARAM>(item), value);
    }
    return m_list ? item : -1;
}

void* ComboItems::data(int index) const {
    return index >= 0 && index < count()
               ? reinterpret_cast<void*>(SendMessageW(m_list, LB_GETITEMDATA, static_cast<WPARAM>(index), 0))
               : nullptr;
}

bool ComboItems::text(int index, CString& text) const {
    const LRESULT length = SendMessageW(m_list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (!m_list || !m_hasStrings || length < 0) {
        return false;
    }
    std::vector<wchar_t> buffer(static_cast<std::size_t>(length) + 1);
    SendMessageW(m_list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer.data()));
    text = buffer.data();
    return true;
}

}  // namespace knav
