#include "dialog/Messages.h"

#include <platform/CWnd.h>
#include <platform/Prompt.h>
#include <zoui/ZoTaskDialog.h>

#include <vector>

#include "dialog/ResourceModule.h"

namespace knav {
namespace {

constexpr wchar_t kTaskDialogs[] = L"/RyTaskDialogs;component/TaskDialogs.xaml";

}  // namespace

CString messageText(UINT id) {
    CString text;
    text.LoadString(ownResources(), id);
    return text;
}

CString messageText(UINT id, const CString& argument) {
    return ZoFormatText(messageText(id), {argument});
}

int showMessage(CWnd& owner, UINT id, UINT flags) {
    return showText(owner, messageText(id), flags);
}

int showMessage(CWnd& owner, UINT id, const CString& argument, UINT flags) {
    return showText(owner, messageText(id, argument), flags);
}

int showText(CWnd& owner, const CString& text, UINT flags) {
    CString title;
    owner.GetWindowText(title);
    return showText(owner, text, title, flags);
}

int showText(CWnd& owner, const CString& text, const CString& caption, UINT flags) {
    return owner.MessageBox(text, caption, flags);
}

bool showTaskDialog(CWnd& owner, const wchar_t* name, std::span<const TaskDialogPair> pairs) {
    std::vector<ZoTaskDialog::Pair> arguments;
    for (const TaskDialogPair& pair : pairs) {
        arguments.push_back({pair.key, pair.value});
    }
    ZoTaskDialog dialog;
    if (!dialog.LoadFromFile(kTaskDialogs, name, arguments.data(), static_cast<int>(arguments.size()))) {
        return false;
    }
    dialog.ShowDialog(&owner);
    return true;
}

}  // namespace knav
