// A dialog template in memory, for tests that need any dialog.
#pragma once

#include <platform/Windows.h>

#include <string_view>
#include <vector>

namespace knav::test {

/// A captioned popup with OK and Cancel.
class DialogTemplate {
public:
    explicit DialogTemplate(const wchar_t* caption, DWORD style = 0) {
        put(DLGTEMPLATE{WS_POPUP | WS_CAPTION | WS_SYSMENU | style, 0, 2, 10, 10, 160, 100});
        text(L"");
        text(L"");
        text(caption);
        button(L"OK", IDOK, BS_DEFPUSHBUTTON, 60);
        button(L"Cancel", IDCANCEL, BS_PUSHBUTTON, 80);
    }

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_bytes.data()); }

private:
    void button(const wchar_t* content, WORD id, DWORD style, short top) {
        m_bytes.resize((m_bytes.size() + 3) / 4 * 4);
        put(DLGITEMTEMPLATE{WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 5, top, 120, 14, id});
        text(WC_BUTTONW);
        text(content);
        put(WORD{0});
    }
    template <class Value>
    void put(const Value& value) {
        const auto* const bytes = reinterpret_cast<const char*>(&value);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof value);
    }
    void text(std::wstring_view content) {
        for (const wchar_t character : content) {
            put(character);
        }
        put(L'\0');
    }

    std::vector<char> m_bytes;
};

}  // namespace knav::test
