#include "bench/open/Dialogs.h"

#include <commdlg.h>
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFilterArray.h>

#include <string>

#include "shell/ComPtr.h"

namespace {

/// "Drawings\0*.dwg\0", with the second zero at its end.
std::wstring fileTypes() {
    std::wstring types = bench::kDescription;
    types += L'\0';
    types += bench::kPattern;
    types += L'\0';
    return types;
}

}  // namespace

void bench::showThisDialog(const wchar_t* folder) {
    CNavFilterArray filters;
    filters.SetFrom(fileTypes().c_str(), 1);
    CNavDataArray chosen;
    CNavDialog dialog(chosen, filters);
    dialog.SetDialogCaption(kCaption);
    dialog.SetForceInitialFolder(folder);
    dialog.DoModal();
}

void bench::showOlderDialog(const wchar_t* folder) {
    const std::wstring types = fileTypes();
    wchar_t name[MAX_PATH] = L"";
    OPENFILENAMEW parameters{};
    parameters.lStructSize = sizeof parameters;
    parameters.lpstrFilter = types.c_str();
    parameters.lpstrFile = name;
    parameters.nMaxFile = MAX_PATH;
    parameters.lpstrInitialDir = folder;
    parameters.lpstrTitle = kCaption;
    parameters.Flags = OFN_EXPLORER | OFN_ENABLESIZING | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    GetOpenFileNameW(&parameters);
}

void bench::showNewerDialog(const wchar_t* folder) {
    knav::ComPtr<IFileOpenDialog> dialog;
    knav::ComPtr<IShellItem> item;
    CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(dialog.put()));
    SHCreateItemFromParsingName(folder, nullptr, IID_PPV_ARGS(item.put()));
    if (!dialog || !item) {
        return;
    }
    const COMDLG_FILTERSPEC type{kDescription, kPattern};
    dialog->SetFileTypes(1, &type);
    dialog->SetTitle(kCaption);
    dialog->SetFolder(item.get());
    dialog->Show(nullptr);
}
