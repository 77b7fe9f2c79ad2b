#include "zoui/RowTip.h"

namespace zoui {
namespace {

// Some systems make a tip a little narrower than its text; a blank is what is cut off then.
constexpr wchar_t kEndRoom[] = L" ";

// The size without the last member, which the classic version of the control does not know.
TOOLINFOW toolOf(HWND control, const RECT& area, const std::wstring& text) noexcept {
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = control;
    tool.rect = area;
    tool.lpszText = const_cast<wchar_t*>(text.c_str());
    return tool;
}

void tell(HWND tip, UINT message, const TOOLINFOW& tool) noexcept {
    SendMessageW(tip, message, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

RowTip::~RowTip() {
    if (m_tip != nullptr) {
        DestroyWindow(m_tip);
    }
}

bool RowTip::create(HWND control, const std::wstring& shown) {
    m_tip = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0,
                            0, control, nullptr, nullptr, nullptr);
    if (m_tip == nullptr) {
        return false;
    }
    tell(m_tip, TTM_ADDTOOLW, toolOf(control, m_area, shown));
    return true;
}

void RowTip::pointTo(HWND control, const RECT& area, const std::wstring& text) {
    // The owner's end may have taken the tip with it.
    if (m_tip != nullptr && !IsWindow(m_tip)) {
        m_tip = nullptr;
    }
    if (m_text == text && EqualRect(&m_area, &area)) {
        return;
    }
    m_area = text.empty() ? RECT{} : area;
    m_text = text;
    const std::wstring shown = text.empty() ? text : text + kEndRoom;
    if (m_tip == nullptr && (text.empty() || !create(control, shown))) {
        return;
    }
    const TOOLINFOW tool = toolOf(control, m_area, shown);
    SendMessageW(m_tip, TTM_POP, 0, 0);
    tell(m_tip, TTM_NEWTOOLRECTW, tool);
    tell(m_tip, TTM_UPDATETIPTEXTW, tool);
}

void RowTip::relay(HWND control, UINT message, WPARAM wParam, LPARAM lParam) const {
    if (m_tip == nullptr) {
        return;
    }
    MSG relayed{};
    relayed.hwnd = control;
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    SendMessageW(m_tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace zoui
