#include <zoui/ZoTaskDialog.h>

#include <platform/CWnd.h>
#include <platform/Prompt.h>
#include <platform/Resources.h>

#include "platform/CentredBox.h"
#include "zoui/TaskDialogText.h"
#include "zoui/ThemedControls.h"

namespace {

std::string_view resourceText(const CString& name) noexcept {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_RCDATA);
    const HRSRC resource = FindResourceW(module, name, RT_RCDATA);
    const HGLOBAL loaded = resource != nullptr ? LoadResource(module, resource) : nullptr;
    const auto* const data = loaded != nullptr ? static_cast<const char*>(LockResource(loaded)) : nullptr;
    return data != nullptr ? std::string_view(data, SizeofResource(module, resource)) : std::string_view();
}

const wchar_t* systemIcon(zoui::TaskDialogIcon icon) noexcept {
    switch (icon) {
        case zoui::TaskDialogIcon::Information:
            return TD_INFORMATION_ICON;
        case zoui::TaskDialogIcon::Warning:
            return TD_WARNING_ICON;
        case zoui::TaskDialogIcon::Error:
            return TD_ERROR_ICON;
        case zoui::TaskDialogIcon::Shield:
            return TD_SHIELD_ICON;
        case zoui::TaskDialogIcon::None:
            break;
    }
    return nullptr;
}

// Not every system keeps to TDF_POSITION_RELATIVE_TO_WINDOW.
HRESULT CALLBACK placeOverOwner(HWND window, UINT notification, WPARAM, LPARAM, LONG_PTR owner) noexcept {
    if (notification == TDN_CREATED) {
        zoui::centreOver(window, reinterpret_cast<HWND>(owner));
    }
    return S_OK;
}

TASKDIALOGCONFIG configOf(const zoui::TaskDialogText& dialog, HWND owner) noexcept {
    TASKDIALOGCONFIG config{};
    config.cbSize = sizeof(config);
    config.hwndParent = owner;
    config.dwFlags = TDF_POSITION_RELATIVE_TO_WINDOW | TDF_SIZE_TO_CONTENT;
    if ((dialog.buttons & ~TDCBF_OK_BUTTON) == 0) {
        config.dwFlags |= TDF_ALLOW_DIALOG_CANCELLATION;
    }
    config.dwCommonButtons = dialog.buttons;
    config.pszWindowTitle = dialog.title;
    config.pszMainIcon = systemIcon(dialog.icon);
    config.pszMainInstruction = dialog.mainInstruction;
    config.pszContent = dialog.content;
    config.nDefaultButton = dialog.defaultButton;
    config.pfCallback = &placeOverOwner;
    config.lpCallbackData = reinterpret_cast<LONG_PTR>(owner);
    return config;
}

int showTaskDialog(const ZoPrompt& prompt) {
    const zoui::ThemedControls themed;
    int button = IDCANCEL;
    const TASKDIALOGCONFIG* const config = prompt.taskDialog->config;
    if (SUCCEEDED(TaskDialogIndirect(config, &button, nullptr, nullptr))) {
        return button;
    }
    // Better plain than not at all.
    const CString text = prompt.text + L"\n\n" + config->pszContent;
    return ::MessageBoxW(config->hwndParent, text, prompt.caption, MB_OK | MB_ICONWARNING);
}

}  // namespace

ZoTaskDialog::ZoTaskDialog() = default;

ZoTaskDialog::~ZoTaskDialog() = default;

bool ZoTaskDialog::LoadFromFile(const wchar_t* uri, const wchar_t* name, const Pair* pairs, int count) {
    const CString whole(uri);
    CString resource = whole.Mid(whole.ReverseFind(L'/') + 1);
    return LoadFromText(resourceText(resource.MakeUpper()), name, pairs, count);
}

bool ZoTaskDialog::LoadFromText(std::string_view xml, const wchar_t* name, const Pair* pairs, int count) {
    m_dialog.reset();
    m_arguments.clear();
    auto read = zoui::readTaskDialog(xml, name);
    if (!read) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        m_arguments.emplace_back(pairs[i].key, pairs[i].value);
    }
    for (CString* text : {&read->title, &read->mainInstruction, &read->content}) {
        *text = zoui::filledIn(*text, m_arguments).Trim();
    }
    if (read->title.IsEmpty()) {
        read->title = ZoProgramName();
    }
    m_dialog = std::make_unique<zoui::TaskDialogText>(std::move(*read));
    return true;
}

int ZoTaskDialog::ShowDialog(CWnd* owner) {
    if (m_dialog == nullptr) {
        return IDCANCEL;
    }
    const HWND window = owner != nullptr ? owner->m_hWnd : ::GetActiveWindow();
    const TASKDIALOGCONFIG config = configOf(*m_dialog, window);
    ZoTaskDialogPrompt details;
    details.name = m_dialog->name;
    details.arguments = m_arguments;
    details.config = &config;
    ZoPrompt prompt;
    prompt.kind = ZoPromptKind::TaskDialog;
    prompt.owner = window;
    prompt.text = m_dialog->mainInstruction;
    prompt.caption = m_dialog->title;
    prompt.taskDialog = &details;
    return ZoAsk(prompt, &showTaskDialog);
}
