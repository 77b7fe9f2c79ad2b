// Operates a navigation dialog, of this or another process, by keyboard and mouse.
#pragma once

#include <platform/Windows.h>

#include <string>
#include <vector>

namespace knav::input {

/// Failures throw std::runtime_error with a text for the person who runs the program.
class NavDialogWindow {
public:
    /// Waits for the dialog to come up with its folder. `process` 0: of any process.
    static NavDialogWindow waitFor(DWORD process = 0, DWORD limitMs = 30'000);

    HWND window() const noexcept { return m_dialog; }
    bool isOpen() const;

    /// Replaces the text of the file name field; does not press Enter.
    void typeName(const std::wstring& text) const;
    /// Clicks the items of these names, the second and further ones with Ctrl held, and waits until they are selected.
    void select(const std::vector<std::wstring>& names) const;
    /// Double-clicks the item of that name.
    void open(const std::wstring& name) const;
    /// Clicks into the list of file types without opening it.
    void focusFileType() const;
    void pressOk() const;
    void pressEnter() const;
    void pressEscape() const;

    /// Waits until the dialog has seen the input that was sent so far.
    void waitUntilHandled() const;
    /// Waits until the dialog has closed; false when it is still open after that time, or when a box came up over it.
    bool waitUntilClosed(DWORD limitMs = 10'000) const;
    /// The text of the box that has come up over the dialog, or empty. `dismiss` presses its default button.
    std::wstring boxText() const;
    void dismissBox() const;

private:
    explicit NavDialogWindow(HWND dialog) : m_dialog(dialog) {}
    HWND list() const;
    HWND box() const;
    void waitUntilInFront() const;
    POINT itemPoint(const std::wstring& name) const;

    HWND m_dialog;
};

/// The text of a dialog or box: that of its static controls, one below the other.
std::wstring textOfBox(HWND box);

}  // namespace knav::input
