// The tip of one control: made when the pointer first comes over the control, so that opening a dialog costs nothing.
#pragma once

#include <string>

#include <platform/Windows.h>

namespace knav {

class ButtonTip {
public:
    ButtonTip() = default;
    ~ButtonTip() { close(); }
    ButtonTip(const ButtonTip&) = delete;
    ButtonTip& operator=(const ButtonTip&) = delete;

    /// The text; empty: no tip. Taken up at once by a tip that shows.
    void setText(std::wstring text);

    /// The pointer moved over the control.
    void pointerOver(HWND control);

    /// Takes the tip down, and keeps one from coming that waits for its time, as when the control's menu drops.
    void close();

private:
    void create(HWND control);
    TOOLINFOW info() const;

    std::wstring m_text;
    HWND m_control = nullptr;
    HWND m_window = nullptr;
};

}  // namespace knav
