#pragma once

#include <knav/export.h>
#include <platform/CWnd.h>

/// The placeholder of a dialog template at whose place the shell's view is shown. While it has a buddy, it keeps that
/// window at its own place and size. Neither owns the other. User-interface thread only.
class KNAV_API CNavCommDlgBuddy : public CWnd {
public:
    CNavCommDlgBuddy() = default;

    CWnd* GetBuddy() const { return m_buddy; }
    /// The buddy must be a sibling of this window, or null.
    void SetBuddy(CWnd* buddy) { m_buddy = buddy; }

protected:
    void OnSize(UINT type, int width, int height);
    void OnMove(int x, int y);
    DECLARE_MESSAGE_MAP()

private:
    void moveBuddy();

    CWnd* m_buddy = nullptr;
};
