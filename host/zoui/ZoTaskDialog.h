// Task dialogs that are written down in a file rather than in code.
//
// The file is UTF-8 XML in an RCDATA resource:
//
//     <TaskDialogs xmlns="urn:kelvara:task-dialogs">
//       <TaskDialog Name="Sample" Title="{Feature}" Icon="Warning" Buttons="Yes No" DefaultButton="No">
//         <MainInstruction>Replace {File}?</MainInstruction>
//         <Content>It was changed today.</Content>
//       </TaskDialog>
//     </TaskDialogs>
//
// Icon is None (the default), Information, Warning, Error or Shield; the buttons are Ok (the default), Cancel, Yes, No,
// Retry and Close. Only Name and the main instruction are required.
#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <platform/CString.h>
#include <platform/export.h>

class CWnd;

namespace zoui {
struct TaskDialogText;
}

/// User-interface thread only.
class ZOUI_API ZoTaskDialog {
public:
    /// Every "{key}" in the dialog's texts becomes `value`.
    struct Pair {
        CString key;
        CString value;
    };

    ZoTaskDialog();
    ~ZoTaskDialog();
    ZoTaskDialog(const ZoTaskDialog&) = delete;
    ZoTaskDialog& operator=(const ZoTaskDialog&) = delete;

    /// Takes the dialog `name` from the resource that `uri` names behind its last "/", as in
    /// "/Assembly;component/Dialogs.xaml"; the resource modules are searched, this framework last. A placeholder
    /// without a pair becomes empty, a pair without a placeholder is ignored. False, so that the caller can say it in
    /// another way, when the resource or the dialog is missing, or the file is damaged; nothing is loaded then.
    bool LoadFromFile(const wchar_t* uri, const wchar_t* name, const Pair* pairs, int count);
    /// The same from a text in memory.
    bool LoadFromText(std::string_view xml, const wchar_t* name, const Pair* pairs, int count);

    /// Shows it over `owner` (null: the thread's active window) through the prompt handler, and returns the button that
    /// was chosen: IDOK, IDCANCEL, IDYES, IDNO, IDRETRY or IDCLOSE. IDCANCEL when nothing is loaded.
    int ShowDialog(CWnd* owner);

private:
    std::unique_ptr<zoui::TaskDialogText> m_dialog;
    std::vector<std::pair<CString, CString>> m_arguments;
};
