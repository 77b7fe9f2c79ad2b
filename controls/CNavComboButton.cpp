#include <knav/CNavComboButton.h>

#include "controls/BackBuffer.h"
#include "controls/ButtonPainter.h"
#include "controls/DropMenu.h"
#include "controls/PaintMessages.h"

using namespace knav;

namespace {

// Messages at which a push button paints itself at once instead of waiting for WM_PAINT.
bool paintsAtOnce(UINT message) {
    switch (message) {
        case BM_SETSTATE:
        case BM_SETSTYLE:
        case BM_SETCHECK:
        case WM_SETTEXT:
        case WM_SETFONT:
        case WM_ENABLE:
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_UPDATEUISTATE:
            return true;
        default:
            return false;
    }
}

}  // namespace

CNavComboButton::CNavComboButton() : m_theme(std::make_unique<ButtonTheme>()) {
}

CNavComboButton::~CNavComboButton() = default;

void CNavComboButton::SetMenuExists(int exists) {
    m_menuExists = exists;
    Invalidate(FALSE);
}

void CNavComboButton::ClearState() {
    if (m_menuOpen)
        EndMenu();
    m_pressedPart = NoPart;
    m_menuOpen = 0;
    Invalidate(FALSE);
}

int CNavComboButton::DropMenu(int byKeyboard) {
    if (!m_menuExists || m_menuOpen || !IsWindowEnabled())
        return 0;
    m_pressedPart = MenuPart;
    m_menuOpen = 1;
    Invalidate(FALSE);
    UpdateWindow();
    const bool shown = dropButtonMenu(m_hWnd, m_menuSource, byKeyboard != 0);
    m_pressedPart = NoPart;
    m_menuOpen = 0;
    Invalidate(FALSE);
    return shown;
}

WORD CNavComboButton::PartAt(LPARAM position) const {
    RECT area{};
    GetClientRect(&area);
    const ButtonPart part =
        buttonPartAt(area, GetDpi(), m_menuExists != 0, {GET_X_LPARAM(position), GET_Y_LPARAM(position)});
    return part == ButtonPart::Menu ? MenuPart : part == ButtonPart::Main ? MainPart : NoPart;
}

bool CNavComboButton::DropsOn(UINT message, WPARAM wParam, LPARAM lParam) const {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return PartAt(lParam) == MenuPart;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            return m_menuExists && isDropKey(wParam, message == WM_SYSKEYDOWN, false);
        default:
            return false;
    }
}

void CNavComboButton::SetHotPart(WORD part) {
    if (part == m_hotPart)
        return;
    if (m_hotPart == NoPart) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hWnd, 0};
        TrackMouseEvent(&track);
    }
    m_hotPart = part;
    Invalidate(FALSE);
}

void CNavComboButton::Track(UINT message, LPARAM lParam) {
    switch (message) {
        case WM_MOUSEMOVE:
            SetHotPart(PartAt(lParam));
            break;
        case WM_MOUSELEAVE:
            SetHotPart(NoPart);
            break;
        case WM_LBUTTONDOWN:
            m_pressedPart = MainPart;
            break;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            m_pressedPart = NoPart;
            break;
        case WM_THEMECHANGED:
        case WM_DESTROY:
            m_theme->close();
            break;
        default:
            break;
    }
}

LRESULT CNavComboButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (DropsOn(message, wParam, lParam)) {
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
            SetFocus();
        DropMenu(message == WM_KEYDOWN || message == WM_SYSKEYDOWN);
        return 0;
    }
    if (const auto painted = answerPaintMessage(m_hWnd, message, wParam, [this](HDC dc) { Paint(dc); }))
        return *painted;
    if (message == WM_LBUTTONDBLCLK)  // every click of a quick series counts
        message = WM_LBUTTONDOWN;
    Track(message, lParam);
    return paintsAtOnce(message) ? WithoutPainting(message, wParam, lParam)
                                 : CButton::WindowProc(message, wParam, lParam);
}

// Painting of its own is kept from showing, and the button painted anew our way. A call inside another one finds the
// button off already and leaves it to the outer one.
LRESULT CNavComboButton::WithoutPainting(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = m_hWnd;
    const bool visible = (GetStyle() & WS_VISIBLE) != 0;
    if (visible)
        ::DefWindowProcW(window, WM_SETREDRAW, FALSE, 0);
    const LRESULT result = CButton::WindowProc(message, wParam, lParam);
    if (visible && IsWindow(window)) {
        ::DefWindowProcW(window, WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(window, nullptr, FALSE);
    }
    return result;
}

PushButtonLook CNavComboButton::Look() const {
    PushButtonLook look;
    GetClientRect(&look.area);
    look.dpi = GetDpi();
    look.menuExists = m_menuExists != 0;
    look.main.disabled = !IsWindowEnabled();
    look.main.isDefault = (GetStyle() & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
    look.menu = look.main;
    // The parts belong together: the pointer over one of them, and the open menu, light up both.
    look.main.hot = look.menu.hot = m_hotPart != NoPart || m_menuOpen;
    look.main.pressed = (SendMessage(BM_GETSTATE) & BST_PUSHED) != 0;
    look.menu.pressed = (m_pressedPart == MenuPart && !m_menuOpen) || (look.main.pressed && !look.menuExists);
    look.menu.dropped = m_menuOpen != 0;
    look.main.focusCue = ::GetFocus() == m_hWnd && !(SendMessage(WM_QUERYUISTATE) & UISF_HIDEFOCUS);
    return look;
}

void CNavComboButton::Paint(HDC target) {
    const PushButtonLook look = Look();
    if (IsRectEmpty(&look.area))
        return;
    const BackBuffer buffer(target, look.area);
    paintBackgroundOf(m_hWnd, buffer.dc(), look.area);
    paintPushButton(m_theme->open(m_hWnd, L"BUTTON"), buffer.dc(), look, captionOf(m_hWnd));
}
