// Paints the toolbar and push buttons: with the system's theme where there is one, else the classic way. High contrast
// comes out right by itself, since every colour is the theme's or the system's.
#pragma once

#include <string>

#include "controls/ButtonRules.h"

namespace knav {

/// A button that takes a theme of its own class for painting; reopened when the user changes the theme.
class ButtonTheme {
public:
    ButtonTheme() = default;
    ~ButtonTheme() { close(); }
    ButtonTheme(const ButtonTheme&) = delete;
    ButtonTheme& operator=(const ButtonTheme&) = delete;

    /// The theme of `window` for that class, opened at the first call; null: paint the classic way.
    HANDLE open(HWND window, const wchar_t* className);
    void close();

private:
    HANDLE m_theme = nullptr;
    bool m_asked = false;
};

/// What a push button says, and in what.
struct ButtonCaption {
    std::wstring text;
    HFONT font = nullptr;
    bool hideMnemonics = false;
};
ButtonCaption captionOf(HWND button);

/// The parent's background behind a button.
void paintBackgroundOf(HWND button, HDC dc, const RECT& area);

/// A push button; with `menuExists` its right end shows a separate drop-down part in its own state.
struct PushButtonLook {
    RECT area{};
    UINT dpi = USER_DEFAULT_SCREEN_DPI;
    bool menuExists = false;
    ButtonState main;
    ButtonState menu;
};
void paintPushButton(HANDLE theme, HDC dc, const PushButtonLook& look, const ButtonCaption& caption);

/// The frame and background of a flat tool button, without its content.
void paintToolButtonFrame(HANDLE theme, HDC dc, const RECT& area, const ButtonState& state);

/// A drop arrow in the colour of text.
void paintDropArrow(HDC dc, const RECT& room, UINT dpi, COLORREF colour);

/// Text in the middle of an area, in the colour that the state asks for.
void paintToolButtonText(HDC dc, RECT area, const ButtonCaption& caption, const ButtonState& state);

/// How large that text is.
SIZE sizeOfCaption(HDC dc, const ButtonCaption& caption);

}  // namespace knav
