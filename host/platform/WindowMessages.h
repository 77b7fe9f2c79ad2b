// The ON_WM_ entries of message maps: each unpacks its message into the parameters of the member OnXxx.
#pragma once

#include <tuple>

#include <platform/MessageMap.h>

class CWnd;

namespace zoui {

// CWnd::FromHandle, for use before CWnd is declared.
ZOUI_API CWnd* windowOf(LPARAM handle);

template <UINT Message>
struct Unpacked;

#define ZOUI_UNPACK(message, ...)                                                               \
    template <>                                                                                 \
    struct Unpacked<message> {                                                                  \
        static auto from([[maybe_unused]] const MessageCall& c) {                               \
            [[maybe_unused]] const POINT point{GET_X_LPARAM(c.lParam), GET_Y_LPARAM(c.lParam)}; \
            return std::make_tuple(__VA_ARGS__);                                                \
        }                                                                                       \
    };

ZOUI_UNPACK(WM_ACTIVATE, UINT(LOWORD(c.wParam)), windowOf(c.lParam), BOOL(HIWORD(c.wParam)))
ZOUI_UNPACK(WM_CANCELMODE)
ZOUI_UNPACK(WM_CAPTURECHANGED, windowOf(c.lParam))
ZOUI_UNPACK(WM_CHAR, UINT(c.wParam), UINT(LOWORD(c.lParam)), UINT(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_CLOSE)
ZOUI_UNPACK(WM_CONTEXTMENU, windowOf(static_cast<LPARAM>(c.wParam)), point)
ZOUI_UNPACK(WM_CREATE, reinterpret_cast<CREATESTRUCTW*>(c.lParam))
ZOUI_UNPACK(WM_CTLCOLOR, reinterpret_cast<HDC>(c.wParam), windowOf(c.lParam), c.id)
ZOUI_UNPACK(WM_DELETEITEM, int(c.wParam), reinterpret_cast<DELETEITEMSTRUCT*>(c.lParam))
ZOUI_UNPACK(WM_DESTROY)
ZOUI_UNPACK(WM_DRAWITEM, int(c.wParam), reinterpret_cast<DRAWITEMSTRUCT*>(c.lParam))
ZOUI_UNPACK(WM_ENABLE, BOOL(c.wParam))
ZOUI_UNPACK(WM_ERASEBKGND, reinterpret_cast<HDC>(c.wParam))
ZOUI_UNPACK(WM_GETDLGCODE)
ZOUI_UNPACK(WM_GETMINMAXINFO, reinterpret_cast<MINMAXINFO*>(c.lParam))
ZOUI_UNPACK(WM_HELP, reinterpret_cast<HELPINFO*>(c.lParam))
ZOUI_UNPACK(WM_HSCROLL, UINT(LOWORD(c.wParam)), UINT(HIWORD(c.wParam)), windowOf(c.lParam))
ZOUI_UNPACK(WM_INITMENUPOPUP, reinterpret_cast<HMENU>(c.wParam), UINT(LOWORD(c.lParam)), BOOL(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_KEYDOWN, UINT(c.wParam), UINT(LOWORD(c.lParam)), UINT(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_KEYUP, UINT(c.wParam), UINT(LOWORD(c.lParam)), UINT(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_KILLFOCUS, windowOf(static_cast<LPARAM>(c.wParam)))
ZOUI_UNPACK(WM_LBUTTONDBLCLK, UINT(c.wParam), point)
ZOUI_UNPACK(WM_LBUTTONDOWN, UINT(c.wParam), point)
ZOUI_UNPACK(WM_LBUTTONUP, UINT(c.wParam), point)
ZOUI_UNPACK(WM_MEASUREITEM, int(c.wParam), reinterpret_cast<MEASUREITEMSTRUCT*>(c.lParam))
ZOUI_UNPACK(WM_MOUSELEAVE)
ZOUI_UNPACK(WM_MOUSEMOVE, UINT(c.wParam), point)
ZOUI_UNPACK(WM_MOUSEWHEEL, UINT(LOWORD(c.wParam)), short(HIWORD(c.wParam)), point)
ZOUI_UNPACK(WM_MOVE, int(point.x), int(point.y))
ZOUI_UNPACK(WM_NCDESTROY)
ZOUI_UNPACK(WM_PAINT)
ZOUI_UNPACK(WM_RBUTTONDOWN, UINT(c.wParam), point)
ZOUI_UNPACK(WM_RBUTTONUP, UINT(c.wParam), point)
ZOUI_UNPACK(WM_SETCURSOR, windowOf(static_cast<LPARAM>(c.wParam)), UINT(LOWORD(c.lParam)), UINT(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_SETFOCUS, windowOf(static_cast<LPARAM>(c.wParam)))
ZOUI_UNPACK(WM_SETTINGCHANGE, UINT(c.wParam), reinterpret_cast<const wchar_t*>(c.lParam))
ZOUI_UNPACK(WM_SHOWWINDOW, BOOL(c.wParam), UINT(c.lParam))
ZOUI_UNPACK(WM_SIZE, UINT(c.wParam), int(LOWORD(c.lParam)), int(HIWORD(c.lParam)))
ZOUI_UNPACK(WM_SYSCOLORCHANGE)
ZOUI_UNPACK(WM_SYSCOMMAND, UINT(c.wParam), c.lParam)
ZOUI_UNPACK(WM_THEMECHANGED)
ZOUI_UNPACK(WM_TIMER, UINT_PTR(c.wParam))
ZOUI_UNPACK(WM_VSCROLL, UINT(LOWORD(c.wParam)), UINT(HIWORD(c.wParam)), windowOf(c.lParam))
ZOUI_UNPACK(WM_WINDOWPOSCHANGED, reinterpret_cast<WINDOWPOS*>(c.lParam))
ZOUI_UNPACK(WM_WINDOWPOSCHANGING, reinterpret_cast<WINDOWPOS*>(c.lParam))

#undef ZOUI_UNPACK

template <UINT Message, auto Handler>
bool callMessage(CCmdTarget& target, const MessageCall& call) {
    auto& object = targetOf<Handler>(target);
    const auto handle = [&object](auto... arguments) { return (object.*Handler)(arguments...); };
    const auto arguments = Unpacked<Message>::from(call);
    using Result = decltype(std::apply(handle, arguments));
    if constexpr (std::is_void_v<Result>) {
        std::apply(handle, arguments);
        *call.result = 0;
    } else if constexpr (std::is_pointer_v<Result>) {
        *call.result = reinterpret_cast<LRESULT>(std::apply(handle, arguments));
    } else {
        *call.result = static_cast<LRESULT>(std::apply(handle, arguments));
    }
    return true;
}

}  // namespace zoui

#define ZOUI_ON_WM(message, member) {(message), 0, 0, 0, &zoui::callMessage<(message), &ThisClass::member>},

#define ON_WM_ACTIVATE() ZOUI_ON_WM(WM_ACTIVATE, OnActivate)
#define ON_WM_CANCELMODE() ZOUI_ON_WM(WM_CANCELMODE, OnCancelMode)
#define ON_WM_CAPTURECHANGED() ZOUI_ON_WM(WM_CAPTURECHANGED, OnCaptureChanged)
#define ON_WM_CHAR() ZOUI_ON_WM(WM_CHAR, OnChar)
#define ON_WM_CLOSE() ZOUI_ON_WM(WM_CLOSE, OnClose)
#define ON_WM_CONTEXTMENU() ZOUI_ON_WM(WM_CONTEXTMENU, OnContextMenu)
#define ON_WM_CREATE() ZOUI_ON_WM(WM_CREATE, OnCreate)
#define ON_WM_CTLCOLOR() ZOUI_ON_WM(WM_CTLCOLOR, OnCtlColor)
#define ON_WM_DELETEITEM() ZOUI_ON_WM(WM_DELETEITEM, OnDeleteItem)
#define ON_WM_DESTROY() ZOUI_ON_WM(WM_DESTROY, OnDestroy)
#define ON_WM_DRAWITEM() ZOUI_ON_WM(WM_DRAWITEM, OnDrawItem)
#define ON_WM_ENABLE() ZOUI_ON_WM(WM_ENABLE, OnEnable)
#define ON_WM_ERASEBKGND() ZOUI_ON_WM(WM_ERASEBKGND, OnEraseBkgnd)
#define ON_WM_GETDLGCODE() ZOUI_ON_WM(WM_GETDLGCODE, OnGetDlgCode)
#define ON_WM_GETMINMAXINFO() ZOUI_ON_WM(WM_GETMINMAXINFO, OnGetMinMaxInfo)
#define ON_WM_HELPINFO() ZOUI_ON_WM(WM_HELP, OnHelpInfo)
#define ON_WM_HSCROLL() ZOUI_ON_WM(WM_HSCROLL, OnHScroll)
#define ON_WM_INITMENUPOPUP() ZOUI_ON_WM(WM_INITMENUPOPUP, OnInitMenuPopup)
#define ON_WM_KEYDOWN() ZOUI_ON_WM(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() ZOUI_ON_WM(WM_KEYUP, OnKeyUp)
#define ON_WM_KILLFOCUS() ZOUI_ON_WM(WM_KILLFOCUS, OnKillFocus)
#define ON_WM_LBUTTONDBLCLK() ZOUI_ON_WM(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_LBUTTONDOWN() ZOUI_ON_WM(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() ZOUI_ON_WM(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_MEASUREITEM() ZOUI_ON_WM(WM_MEASUREITEM, OnMeasureItem)
#define ON_WM_MOUSELEAVE() ZOUI_ON_WM(WM_MOUSELEAVE, OnMouseLeave)
#define ON_WM_MOUSEMOVE() ZOUI_ON_WM(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_MOUSEWHEEL() ZOUI_ON_WM(WM_MOUSEWHEEL, OnMouseWheel)
#define ON_WM_MOVE() ZOUI_ON_WM(WM_MOVE, OnMove)
#define ON_WM_NCDESTROY() ZOUI_ON_WM(WM_NCDESTROY, OnNcDestroy)
#define ON_WM_PAINT() ZOUI_ON_WM(WM_PAINT, OnPaint)
#define ON_WM_RBUTTONDOWN() ZOUI_ON_WM(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() ZOUI_ON_WM(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_SETCURSOR() ZOUI_ON_WM(WM_SETCURSOR, OnSetCursor)
#define ON_WM_SETFOCUS() ZOUI_ON_WM(WM_SETFOCUS, OnSetFocus)
#define ON_WM_SETTINGCHANGE() ZOUI_ON_WM(WM_SETTINGCHANGE, OnSettingChange)
#define ON_WM_SHOWWINDOW() ZOUI_ON_WM(WM_SHOWWINDOW, OnShowWindow)
#define ON_WM_SIZE() ZOUI_ON_WM(WM_SIZE, OnSize)
#define ON_WM_SYSCOLORCHANGE() ZOUI_ON_WM(WM_SYSCOLORCHANGE, OnSysColorChange)
#define ON_WM_SYSCOMMAND() ZOUI_ON_WM(WM_SYSCOMMAND, OnSysCommand)
#define ON_WM_THEMECHANGED() ZOUI_ON_WM(WM_THEMECHANGED, OnThemeChanged)
#define ON_WM_TIMER() ZOUI_ON_WM(WM_TIMER, OnTimer)
#define ON_WM_VSCROLL() ZOUI_ON_WM(WM_VSCROLL, OnVScroll)
#define ON_WM_WINDOWPOSCHANGED() ZOUI_ON_WM(WM_WINDOWPOSCHANGED, OnWindowPosChanged)
#define ON_WM_WINDOWPOSCHANGING() ZOUI_ON_WM(WM_WINDOWPOSCHANGING, OnWindowPosChanging)
