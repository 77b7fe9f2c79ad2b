// A push button, check box or radio button.
#pragma once

#include <platform/CWnd.h>

class ZOUI_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)
public:
    BOOL Create(const wchar_t* text, DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_BUTTONW, text, style, place, parent, id);
    }

    // Draws a BS_OWNERDRAW button. The base draws nothing.
    virtual void DrawItem(DRAWITEMSTRUCT* item);

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
