#include "HostCommands.h"

namespace {

DialogOptions open() {
    DialogOptions options;
    options.dialogCaption = L"Open Drawing";
    return options;
}

DialogOptions openSeveral() {
    DialogOptions options;
    options.dialogCaption = L"Open Drawings";
    options.multiSelectAllowed = 1;
    return options;
}

DialogOptions insert() {
    DialogOptions options;
    options.dialogCaption = L"Insert Drawings";
    options.okButtonText = L"&Insert";
    options.okButtonMenuExists = 0;
    options.multiSelectAllowed = 1;
    return options;
}

DialogOptions saveAs() {
    DialogOptions options;
    options.dialogCaption = L"Save Drawing As";
    options.okButtonText = L"&Save";
    options.okButtonMenuExists = 0;
    options.readOnlyHidden = 1;
    options.creatingFile = 1;
    options.confirmReplace = 1;
    options.defaultFileExtension = L"dwg";
    return options;
}

DialogOptions exportAs() {
    DialogOptions options = saveAs();
    options.dialogCaption = L"Export";
    options.okButtonText = L"&Export";
    options.fileTypes = L"Document (*.pdf)|*.pdf|Picture (*.png)|*.png|Exchange file (*.dxf)|*.dxf|";
    options.defaultFileExtension = L"";
    options.initialFileName = L"plan";
    options.noUrlsAllowed = 1;
    return options;
}

DialogOptions browse() {
    DialogOptions options;
    options.dialogCaption = L"Choose a Folder";
    options.okButtonText = L"&Select";
    options.okButtonMenuExists = 0;
    options.readOnlyHidden = 1;
    options.foldersOnly = 1;
    options.noUrlsAllowed = 1;
    return options;
}

}  // namespace

std::vector<HostCommand> standardCommands() {
    return {
        {ID_OPEN, L"Open", L"drafthost Open", open()},
        {ID_OPEN_SEVERAL, L"Open Several", L"drafthost Open Several", openSeveral()},
        {ID_INSERT, L"Insert", L"drafthost Insert", insert()},
        {ID_SAVE_AS, L"Save As", L"drafthost Save As", saveAs()},
        {ID_EXPORT, L"Export", L"drafthost Export", exportAs()},
        {ID_BROWSE, L"Browse for Folder", L"drafthost Browse for Folder", browse()},
    };
}
