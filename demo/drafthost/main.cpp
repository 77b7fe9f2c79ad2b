// The sample host: shows the dialog as the command line says and prints what was chosen.
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>
#include <knav/CNavFilterArray.h>

#include <cstdio>
#include <string>

#include "HostOptions.h"

namespace {

enum ExitCode { kPicked = 0, kCancelled = 1, kWrongUse = 2, kNotShown = 3 };

std::string utf8(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
    result.resize(result.size() - 1);
    return result;
}

void configure(CNavDialog& dialog, const HostOptions& options) {
    dialog.SetDialogCaption(options.foldersOnly ? L"Choose Folder" : options.save ? L"Save Drawing" : L"Open Drawing");
    dialog.SetForceInitialFolder(options.folder);
    dialog.SetInitialFileName(options.name);
    dialog.SetFoldersOnly(options.foldersOnly);
    dialog.SetMultiSelectAllowed(options.multi);
    dialog.SetCreatingFile(options.save);
    dialog.SetConfirmReplace(options.save);
    if (options.save) {
        dialog.SetOkButtonText(L"&Save");
        dialog.SetReadOnlyHidden(1);
    }
}

int pick(const HostOptions& options) {
    CString types = options.filter + L"||";
    types.Replace(L'|', L'\0');
    CNavFilterArray filters;
    filters.SetFrom(types, 1);
    CNavDataArray data;

    CNavDialog dialog(data, filters);
    configure(dialog, options);
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
    return pick(options);
}
