#include "controls/ButtonTip.h"

#include <utility>

namespace knav {

TOOLINFOW ButtonTip::info() const {
    TOOLINFOW tool{};
    // The size without the last member, which the classic version of the control does not know.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(m_control);
    tool.uId = reinterpret_cast<UINT_PTR>(m_control);
    tool.lpszText = const_cast<wchar_t*>(m_text.c_str());
    return tool;
}

void ButtonTip::setText(std::wstring text) {
    m_text = std::move(text);
    if (!m_text.empty())  // some systems make a tip a little narrower than its text
        m_text += L' ';
    if (!m_window)
        return;
    TOOLINFOW tool = info();
    SendMessageW(m_window, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ButtonTip::create(HWND control) {
    m_control = control;
    const DWORD mirrored = static_cast<DWORD>(GetWindowLongPtrW(control, GWL_EXSTYLE)) & WS_EX_LAYOUTRTL;
    m_window =
        CreateWindowExW(WS_EX_TOPMOST | mirrored, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP,
                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, control, nullptr, nullptr, nullptr);
    TOOLINFOW tool = info();
    if (m_window && !SendMessageW(m_window, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool)))
        close();
}

void ButtonTip::pointerOver(HWND control) {
    if (!m_window && !m_text.empty())
        create(control);
}

void ButtonTip::close() {
    if (m_window)
        DestroyWindow(m_window);
    m_window = nullptr;
}

}  // namespace knav
