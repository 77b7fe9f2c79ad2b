// The sample host. Without options it shows its window; with options it shows one dialog as they say and prints what
// was chosen.
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFilterArray.h>
#include <knav/CNavHostApplication.h>

#include <cstdio>
#include <string>

#include "DialogOptions.h"
#include "FileTypes.h"
#include "HostOptions.h"
#include "MainWindow.h"

namespace {

enum ExitCode { kPicked = 0, kCancelled = 1, kWrongUse = 2, kNotShown = 3 };

std::string utf8(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
    result.resize(result.size() - 1);
    return result;
}

// A program with windows has no console of its own: it prints into that of the one who started it.
void useConsoleOfParent() {
    if (GetStdHandle(STD_OUTPUT_HANDLE) == nullptr && AttachConsole(ATTACH_PARENT_PROCESS)) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
}

DialogOptions optionsOf(const HostOptions& asked) {
    DialogOptions options;
    options.dialogCaption = asked.foldersOnly ? L"Choose Folder" : asked.save ? L"Save Drawing" : L"Open Drawing";
    options.forceInitialFolder = asked.folder;
    options.initialFileName = asked.name;
    options.foldersOnly = asked.foldersOnly;
    options.multiSelectAllowed = asked.multi;
    if (asked.save) {
        options.okButtonText = L"&Save";
        options.okButtonMenuExists = 0;
        options.readOnlyHidden = 1;
        options.creatingFile = 1;
        options.confirmReplace = 1;
    }
    return options;
}

int pick(const HostOptions& options) {
    CNavFilterArray filters;
    setFileTypes(filters, options.filter);
    CNavDataArray data;

    CNavDialog dialog(data, filters);
    optionsOf(options).applyTo(dialog);
    switch (dialog.DoModal()) {
        case IDOK:
            for (int i = 0; i < data.GetCount(); ++i) {
                const CNavData& item = *data.GetData(i);
                std::printf("picked %d %s\n", static_cast<int>(item.GetDataType()), utf8(item.GetText()).c_str());
            }
            return kPicked;
        case IDCANCEL:
            std::puts("cancelled");
            return kCancelled;
        default:
            std::fputs("drafthost: the dialog cannot be shown\n", stderr);
            return kNotShown;
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    useConsoleOfParent();
    HostOptions options;
    CString error;
    if (!HostOptions::parse({arguments + 1, static_cast<std::size_t>(count - 1)}, options, error)) {
        std::fprintf(stderr, "drafthost: %s\n\n%s", utf8(error).c_str(), HostOptions::usage());
        return kWrongUse;
    }
    if (options.help) {
        std::fputs(HostOptions::usage(), stdout);
        return kPicked;
    }
    if (!options.language.IsEmpty()) {
        KNavSetLanguage(options.language);
    }
    if (!options.settings.IsEmpty()) {
        CZoUiDialog::SetDefaultRootKey(options.settings);
    }
    if (options.window || count == 1) {
        return MainWindow(options).DoModal() == kDialogFailed ? kNotShown : kPicked;
    }
    return pick(options);
}
