// The tip of a control with several places to explain: it follows the pointer from one to the next.
#pragma once

#include <string>

#include <platform/Windows.h>

namespace zoui {

class RowTip {
public:
    RowTip() = default;
    ~RowTip();
    RowTip(const RowTip&) = delete;
    RowTip& operator=(const RowTip&) = delete;

    // The pointer is over `area` of the control; empty text: there is nothing to explain there. The tip window is made
    // when it is first needed.
    void pointTo(HWND control, const RECT& area, const std::wstring& text);

    // Lets the tip time itself by the control's mouse messages.
    void relay(HWND control, UINT message, WPARAM wParam, LPARAM lParam) const;

private:
    bool create(HWND control, const std::wstring& shown);

    HWND m_tip = nullptr;
    RECT m_area{};
    std::wstring m_text;
};

}  // namespace zoui
