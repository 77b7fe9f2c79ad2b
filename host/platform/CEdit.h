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
    void GetSel(int& start, int& end) const {
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    }
    void ReplaceSel(const wchar_t* text, BOOL canUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), reinterpret_cast<LPARAM>(text));
    }
    void SetLimitText(UINT characters) { SendMessage(EM_SETLIMITTEXT, characters); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
    }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(modified)); }
    BOOL CanUndo() const { return static_cast<BOOL>(SendMessage(EM_CANUNDO)); }
    BOOL Undo() { return static_cast<BOOL>(SendMessage(EM_UNDO)); }
    void Cut() { SendMessage(WM_CUT); }
    void Copy() { SendMessage(WM_COPY); }
    void Paste() { SendMessage(WM_PASTE); }
    void Clear() { SendMessage(WM_CLEAR); }
};
