// A task dialog as it is written down.
#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <platform/CString.h>

namespace zoui {

enum class TaskDialogIcon { None, Information, Warning, Error, Shield };

struct TaskDialogText {
    CString name;
    CString title;
    CString mainInstruction;
    CString content;
    TaskDialogIcon icon = TaskDialogIcon::None;
    TASKDIALOG_COMMON_BUTTON_FLAGS buttons = TDCBF_OK_BUTTON;
    int defaultButton = 0;  // 0: the first
};

// The dialog of that name from a file's text; nothing when it is not there or the file, any part of it, is damaged.
std::optional<TaskDialogText> readTaskDialog(std::string_view xml, const wchar_t* name);

// `text` with every "{key}" replaced by its value, or removed when there is none. Values are not looked into again. A
// brace without its partner stays.
CString filledIn(const CString& text, const std::vector<std::pair<CString, CString>>& values);

}  // namespace zoui
