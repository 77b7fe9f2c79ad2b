#include "controls/ButtonPainter.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <algorithm>

#include <platform/GdiOwners.h>

namespace knav {
namespace {

COLORREF textColour(const ButtonState& state) {
    return GetSysColor(state.disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
}

RECT inset(RECT area, int by) {
    InflateRect(&area, -by, -by);
    return area;
}

UINT textFlags(const ButtonCaption& caption) {
    return DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | (caption.hideMnemonics ? DT_HIDEPREFIX : 0u);
}

void paintFocusFrame(HDC dc, const RECT& area) {
    SetTextColor(dc, RGB(0, 0, 0));
    SetBkColor(dc, RGB(255, 255, 255));
    DrawFocusRect(dc, &area);
}

// --- push buttons with a theme ---------------------------------------------------------------------------------

COLORREF themedTextColour(HTHEME theme, const ButtonState& state) {
    COLORREF colour = textColour(state);
    GetThemeColor(theme, BP_PUSHBUTTON, pushButtonThemeState(state), TMT_TEXTCOLOR, &colour);
    return colour;
}

// The whole button is drawn for either part and cut to it, so that the two meet without an edge between them.
void paintThemedPart(HTHEME theme, HDC dc, const RECT& whole, const RECT& part, const ButtonState& state) {
    if (!IsRectEmpty(&part))
        DrawThemeBackground(theme, dc, BP_PUSHBUTTON, pushButtonThemeState(state), &whole, &part);
}

RECT themedContent(HTHEME theme, HDC dc, const RECT& area, const ButtonState& state) {
    RECT content = area;
    GetThemeBackgroundContentRect(theme, dc, BP_PUSHBUTTON, pushButtonThemeState(state), &area, &content);
    return content;
}

// --- push buttons without one ----------------------------------------------------------------------------------

void paintClassicPart(HDC dc, const RECT& area, const ButtonState& state) {
    const UINT pushed = state.pressed || state.dropped ? DFCS_PUSHED : 0u;
    RECT frame = area;
    DrawFrameControl(dc, &frame, DFC_BUTTON, DFCS_BUTTONPUSH | pushed);
}

void paintClassicButton(HDC dc, const PushButtonLook& look) {
    RECT area = look.area;
    if (look.main.isDefault && !look.main.disabled) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&area, -1, -1);
    }
    paintClassicPart(dc, mainPartOf(area, look.dpi, look.menuExists), look.main);
    if (look.menuExists)
        paintClassicPart(dc, menuPartOf(area, look.dpi, true), look.menu);
}

void paintClassicText(HDC dc, RECT area, const ButtonCaption& caption, const ButtonState& state) {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, textColour(state));
    DrawTextW(dc, caption.text.c_str(), -1, &area, textFlags(caption));
}

void paintSeparator(HDC dc, const RECT& menu, UINT dpi) {
    const int indent = scaled(5, dpi);
    const RECT line{menu.left, menu.top + indent, menu.left + std::max(scaled(1, dpi), 1), menu.bottom - indent};
    FillRect(dc, &line, GetSysColorBrush(COLOR_BTNSHADOW));
}

void paintMenuPart(HDC dc, const PushButtonLook& look, COLORREF colour, bool separate) {
    const RECT menu = menuPartOf(look.area, look.dpi, look.menuExists);
    if (IsRectEmpty(&menu))
        return;
    if (separate)
        paintSeparator(dc, menu, look.dpi);
    // The frame takes a little of the right end; centred in what is left, the arrow looks centred.
    RECT room = menu;
    room.right -= scaled(2, look.dpi);
    paintDropArrow(dc, room, look.dpi, colour);
}

}  // namespace

HANDLE ButtonTheme::open(HWND window, const wchar_t* className) {
    if (!m_asked) {
        m_theme = OpenThemeData(window, className);
        m_asked = true;
    }
    return m_theme;
}

void ButtonTheme::close() {
    if (m_theme)
        CloseThemeData(m_theme);
    m_theme = nullptr;
    m_asked = false;
}

ButtonCaption captionOf(HWND button) {
    ButtonCaption caption;
    caption.text.resize(static_cast<size_t>(GetWindowTextLengthW(button)) + 1);
    caption.text.resize(
        static_cast<size_t>(GetWindowTextW(button, caption.text.data(), static_cast<int>(caption.text.size()))));
    caption.font = reinterpret_cast<HFONT>(SendMessageW(button, WM_GETFONT, 0, 0));
    caption.hideMnemonics = (SendMessageW(button, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0;
    return caption;
}

void paintBackgroundOf(HWND button, HDC dc, const RECT& area) {
    const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
        GetParent(button), WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(button)));
    FillRect(dc, &area, brush ? brush : GetSysColorBrush(COLOR_BTNFACE));
    RECT behind = area;
    if (IsAppThemed())
        DrawThemeParentBackground(button, dc, &behind);
}

void paintPushButton(HANDLE theme, HDC dc, const PushButtonLook& look, const ButtonCaption& caption) {
    const zoui::SavedDC saved(dc);
    if (caption.font)
        SelectObject(dc, caption.font);
    RECT content = mainPartOf(look.area, look.dpi, look.menuExists);
    const bool parted = look.menuExists;
    if (theme) {
        paintThemedPart(theme, dc, look.area, content, look.main);
        paintThemedPart(theme, dc, look.area, menuPartOf(look.area, look.dpi, parted), look.menu);
        const RECT inner = themedContent(theme, dc, look.area, look.main);
        content.left = inner.left;
        content.top = inner.top;
        content.bottom = inner.bottom;
        DrawThemeText(theme, dc, BP_PUSHBUTTON, pushButtonThemeState(look.main), caption.text.c_str(), -1,
                      textFlags(caption), 0, &content);
        paintMenuPart(dc, look, themedTextColour(theme, look.menu), true);
    } else {
        paintClassicButton(dc, look);
        content = inset(content, scaled(3, look.dpi));
        RECT text = content;
        if (look.main.pressed)
            OffsetRect(&text, 1, 1);
        paintClassicText(dc, text, caption, look.main);
        paintMenuPart(dc, look, textColour(look.menu), false);
    }
    if (look.main.focusCue)
        paintFocusFrame(dc, theme ? inset(content, 1) : content);
}

void paintToolButtonFrame(HANDLE theme, HDC dc, const RECT& area, const ButtonState& state) {
    const zoui::SavedDC saved(dc);
    if (theme) {
        DrawThemeBackground(theme, dc, TP_BUTTON, toolButtonThemeState(state), &area, nullptr);
    } else if (const UINT edge = toolButtonEdge(state)) {
        RECT frame = area;
        DrawEdge(dc, &frame, edge, BF_RECT);
    }
    if (state.focusCue)
        paintFocusFrame(dc, inset(area, 2));
}

void paintDropArrow(HDC dc, const RECT& room, UINT dpi, COLORREF colour) {
    const zoui::SavedDC saved(dc);
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SelectObject(dc, GetStockObject(DC_PEN));
    SetDCBrushColor(dc, colour);
    SetDCPenColor(dc, colour);
    const ArrowCorners arrow = dropArrowIn(room, dpi);
    Polygon(dc, arrow.corners, static_cast<int>(std::size(arrow.corners)));
}

void paintToolButtonText(HDC dc, RECT area, const ButtonCaption& caption, const ButtonState& state) {
    const zoui::SavedDC saved(dc);
    if (caption.font)
        SelectObject(dc, caption.font);
    paintClassicText(dc, area, caption, state);
}

SIZE sizeOfCaption(HDC dc, const ButtonCaption& caption) {
    const zoui::SavedDC saved(dc);
    if (caption.font)
        SelectObject(dc, caption.font);
    RECT text{};
    DrawTextW(dc, caption.text.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
    return {text.right, text.bottom};
}

}  // namespace knav
