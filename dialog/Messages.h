// The messages of the dialog: texts from the resource module, shown through the framework's prompt.
#pragma once

#include <platform/CString.h>

#include <span>

class CWnd;

namespace knav {

/// The text of a string resource, with `argument` in the place of %1.
CString messageText(UINT id);
CString messageText(UINT id, const CString& argument);

/// Shows a message over the owner and returns the button that was chosen. `flags` are those of MessageBox. Without a
/// caption it has the owner's.
int showMessage(CWnd& owner, UINT id, UINT flags = MB_OK);
int showMessage(CWnd& owner, UINT id, const CString& argument, UINT flags = MB_OK);
int showText(CWnd& owner, const CString& text, UINT flags = MB_OK);
int showText(CWnd& owner, const CString& text, const CString& caption, UINT flags);

/// A key of one of the host framework's task dialogs, and the text in its place.
struct TaskDialogPair {
    const wchar_t* key;
    CString value;
};

/// Shows the task dialog of that name. False when it cannot be loaded, and nothing was shown.
bool showTaskDialog(CWnd& owner, const wchar_t* name, std::span<const TaskDialogPair> pairs);

}  // namespace knav
