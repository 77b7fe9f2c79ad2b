// The one way to the user for a question or a message, and the place where a script or a test answers instead.
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <platform/CString.h>

// A task dialog about to be shown: its name in the resource, the arguments filled into its texts, and the texts
// themselves, buttons included, in `config`.
struct ZoTaskDialogPrompt {
    CString name;
    std::vector<std::pair<CString, CString>> arguments;
    const TASKDIALOGCONFIG* config = nullptr;
    bool* verification = nullptr;  // the state of its check box, in and out; null without one
};

enum class ZoPromptKind { MessageBox, TaskDialog };

struct ZoPrompt {
    ZoPromptKind kind = ZoPromptKind::MessageBox;
    HWND owner = nullptr;
    CString text;  // of a task dialog: its main instruction
    CString caption;
    UINT flags = 0;                                  // MB_... of a message box
    const ZoTaskDialogPrompt* taskDialog = nullptr;  // set for a task dialog
};

// Gives the answer (IDOK, IDYES, or a task dialog's button id), or nothing to let the prompt be shown. What it throws
// counts as nothing. Called on the thread that asks.
using ZoPromptHandler = std::function<std::optional<int>(const ZoPrompt&)>;

// Replaces the process's handler and returns the previous one. An empty handler lets every prompt be shown. Any thread.
ZOUI_API ZoPromptHandler ZoSetPromptHandler(ZoPromptHandler handler);

// Asks the handler, else calls `show`. Whatever shows a prompt in another form goes through this.
ZOUI_API int ZoAsk(const ZoPrompt& prompt, const std::function<int(const ZoPrompt&)>& show);

// A message box in the middle of the thread's active window, with the program's name as caption. Without an icon in
// `flags` it gets a question mark when it asks (any kind of Yes or Retry button) and a warning sign otherwise. Returns
// the button's id.
ZOUI_API int AfxMessageBox(const wchar_t* text, UINT flags = MB_OK);
ZOUI_API int AfxMessageBox(UINT textId, UINT flags = MB_OK);

// The same with every parameter; a null owner is the thread's active window, a null caption the program's name.
ZOUI_API int ZoMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT flags);

// The name shown as caption when nobody gives another: the program file's name without extension.
ZOUI_API CString ZoProgramName();

// "%1" to "%9" are replaced by the texts given, in one pass; any other "%" stays.
ZOUI_API CString ZoFormatText(const wchar_t* format, const std::vector<CString>& arguments);
