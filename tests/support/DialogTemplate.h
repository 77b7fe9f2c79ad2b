// A dialog template in memory, for tests that need a dialog with a few controls.
#pragma once

#include <platform/Windows.h>

#include <string_view>
#include <vector>

namespace knav::test {

class DialogTemplate {
public:
    /// Size in dialog units; `style` is added to that of a captioned popup, or to nothing for a child.
    explicit DialogTemplate(const wchar_t* caption, DWORD style = 0, short width = 160, short height = 100) {
        const DWORD frame = (style & WS_CHILD) != 0 ? 0 : WS_POPUP | WS_CAPTION | WS_SYSMENU;
        put(DLGTEMPLATE{frame | style, 0, 0, 10, 10, width, height});
        text(L"");
        text(L"");
        text(caption);
    }

    DialogTemplate& control(const wchar_t* windowClass, const wchar_t* content, WORD id, DWORD style, short top,
                            short height = 14) {
        align();
        put(DLGITEMTEMPLATE{WS_CHILD | WS_VISIBLE | style, 0, 5, top, 120, height, id});
        text(windowClass);
        text(content);
        put(WORD{0});
        ++reinterpret_cast<DLGTEMPLATE*>(m_bytes.data())->cdit;
        return *this;
    }

    DialogTemplate& okAndCancel() {
        control(WC_BUTTONW, L"OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 60);
        return control(WC_BUTTONW, L"Cancel", IDCANCEL, WS_TABSTOP, 80);
    }

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_bytes.data()); }

private:
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
    void align() { m_bytes.resize((m_bytes.size() + 3) / 4 * 4); }

    std::vector<char> m_bytes;
};

}  // namespace knav::test
