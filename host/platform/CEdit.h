// A text field.
#pragma once

#include <platform/CWnd.h>

class ZOUI_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)
public:
    BOOL Create(DWORD style, const RECT& place, CWnd* parent, UINT id) {
        return CWnd::Create(WC_EDITW, nullptr, style, place, parent, id);
    }
    // 0, -1 selects all; -1 as start selects nothing.
    void SetSel(int start, int end, BOOL noScroll = FALSE) {
        SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
        if (!noScroll) {
            SendMessage(EM_SCROLLCARET);
        }
    }
    void ReplaceSel(const wchar_t* text, BOOL canUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
    }
    void SetLimitText(UINT characters) { SendMessage(EM_SETLIMITTEXT, characters); }
    void Copy() { SendMessage(WM_COPY); }
    void Clear() { SendMessage(WM_CLEAR); }
};
