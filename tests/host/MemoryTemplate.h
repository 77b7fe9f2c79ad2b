// A dialog template put together in memory.
#pragma once

#include <platform/Windows.h>

#include <string_view>
#include <vector>

namespace knav::test {

class MemoryTemplate {
public:
    enum Class : WORD { Button = 0x80, Edit = 0x81, Static = 0x82, ListBox = 0x83, ComboBox = 0x85 };

    explicit MemoryTemplate(std::wstring_view title, DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU) {
        addLong(style);
        addLong(0);
        m_words.push_back(0);  // number of controls
        addPlace();
        m_words.insert(m_words.end(), {0, 0});  // no menu, the standard dialog class
        addText(title);
    }

    MemoryTemplate& add(Class type, WORD id, std::wstring_view text, DWORD style = WS_TABSTOP) {
        m_words.resize((m_words.size() + 1) / 2 * 2);  // controls start at whole double words
        addLong(style | WS_CHILD | WS_VISIBLE);
        addLong(0);
        addPlace();
        m_words.insert(m_words.end(), {id, 0xFFFF, type});
        addText(text);
        m_words.push_back(0);
        ++m_words[4];
        return *this;
    }

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }
    std::size_t byteCount() const { return m_words.size() * sizeof(WORD); }

private:
    void addLong(DWORD value) { m_words.insert(m_words.end(), {LOWORD(value), HIWORD(value)}); }
    void addPlace() { m_words.insert(m_words.end(), {0, 0, 100, 14}); }
    void addText(std::wstring_view text) {
        m_words.insert(m_words.end(), text.begin(), text.end());
        m_words.push_back(0);
    }

    std::vector<WORD> m_words;
};

}  // namespace knav::test
