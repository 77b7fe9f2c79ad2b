// A push button, check box or radio button.
#pragma once

#include <platform/CWnd.h>

class ZOUI_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    BOOL Create(const wchar_t* text, DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_BUTTONW, text, style, place, parent, id);
    }
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL pressed) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(pressed)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
    UINT GetButtonStyle() const { return GetStyle() & BS_TYPEMASK; }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }
    HICON SetIcon(HICON icon) {
        return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
    }
    HBITMAP SetBitmap(HBITMAP bitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    }
    // Presses and releases the button as a user does.
    void Click() { SendMessage(BM_CLICK); }

    // Draws a BS_OWNERDRAW button. The base draws nothing.
    virtual void DrawItem(DRAWITEMSTRUCT* item);

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
