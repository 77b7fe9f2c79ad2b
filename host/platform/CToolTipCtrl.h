// The small text that appears over a control.
#pragma once

#include <platform/CWnd.h>

// Follows the mouse by subclassing the tools itself, so no messages need to be relayed.
class ZOUI_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
public:
    BOOL Create(CWnd* owner, DWORD style = TTS_ALWAYSTIP | TTS_NOPREFIX);
    // The tool is a child window of the owner.
    BOOL AddTool(CWnd* tool, const wchar_t* text);
    void UpdateTipText(const wchar_t* text, CWnd* tool);
    void DelTool(CWnd* tool);
    CString GetText(CWnd* tool) const;  // the first 1023 characters
    void Activate(BOOL active) { SendMessage(TTM_ACTIVATE, static_cast<WPARAM>(active)); }
    void Pop() { SendMessage(TTM_POP); }
    void SetMaxTipWidth(int pixels) { SendMessage(TTM_SETMAXTIPWIDTH, 0, pixels); }
};
