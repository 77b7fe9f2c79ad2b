// The windows of a view while it is shown in the dialog.
#pragma once

#include <platform/Windows.h>

class CNavCommDlgBrowser;

namespace knav {

struct BrowserState;

/// A window of the shell's own kind of view.
bool isStandardView(HWND window);

/// Has the current view save its state and the owner its columns; nothing without a view.
void saveView(CNavCommDlgBrowser& browser);

/// Gives the window and the list of the current view back; they then belong to the shell alone. Nothing is touched when
/// no view is there.
void releaseViewWindows(BrowserState& state);

/// The window was destroyed by somebody else: nothing points to it any more.
void viewWindowDestroyed(BrowserState& state, HWND window);

/// Takes over the window and the list of a view that was just made and puts it behind the placeholder in the tab order.
/// Its list shows the mode that was asked for, and the owner restores its columns.
void takeOverView(CNavCommDlgBrowser& browser);

/// When the focus is in the current view, it is in its successor at the end of the scope.
class FocusInView {
public:
    explicit FocusInView(const BrowserState& state);
    FocusInView(const FocusInView&) = delete;
    FocusInView& operator=(const FocusInView&) = delete;
    ~FocusInView();

private:
    const BrowserState& m_state;
    bool m_hadFocus;
};

}  // namespace knav
