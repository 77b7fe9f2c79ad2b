// The examples of docs/hosting.md, in one program. With a folder as its argument it shows the drawing dialog there;
// without one it sets the dialogs up and takes the results apart without showing anything, which is how the tests run
// it.
#include <knav/knav.h>
#include <platform/CMenu.h>
#include <platform/Prompt.h>

#include <cstdio>

/// The file types of the host's drawings.
void fillFileTypes(CNavFilterArray& filters) {
    filters.SetFrom(
        L"Drawings (*.dwg)\0*.dwg\0"
        L"Exchange files (*.dxf;*.stp)\0*.dxf;*.stp\0"
        L"All files (*.*)\0*.*\0",
        1);
}

/// Asks where to save a drawing; empty when the user thought better of it.
CString askWhereToSave(CWnd* parent, const wchar_t* drawing) {
    CNavFilterArray filters;
    fillFileTypes(filters);
    CNavDataArray chosen;

    CNavDialog dialog(chosen, filters, 0, parent);
    dialog.SetDialogName(L"SaveDrawing");
    dialog.SetDialogCaption(L"Save Drawing As");
    dialog.SetOkButtonText(L"&Save");
    dialog.SetOkButtonMenuExists(0);
    dialog.SetCreatingFile(1);
    dialog.SetConfirmReplace(1);
    dialog.SetReadOnlyHidden(1);
    dialog.SetDefaultFileExtension(L"dwg");
    dialog.SetInitialFileName(drawing);
    if (dialog.DoModal() != IDOK || chosen.GetCount() == 0) {
        return CString();
    }
    return chosen.GetData(0)->GetText();
}

/// Asks for a folder; empty when none was chosen.
CString askForFolder(CWnd* parent) {
    CNavFilterArray filters;
    CNavDataArray chosen;
    CNavDialog dialog(chosen, filters, 0, parent);
    dialog.SetDialogName(L"ProjectFolder");
    dialog.SetDialogCaption(L"Project Folder");
    dialog.SetFoldersOnly(1);
    return dialog.DoModal() == IDOK && chosen.GetCount() > 0 ? CString(chosen.GetData(0)->GetText()) : CString();
}

/// A drawing, or the folder with all of its drawings.
INT_PTR askForDrawingOrFolder(CNavDialog& dialog) {
    const FileDialogAllowReturnFolderEnabler folderMayBeReturned;
    return dialog.DoModal();
}

/// Takes part in what the dialog does.
class DrawingDialog : public CNavDialog {
public:
    using CNavDialog::CNavDialog;

protected:
    // Asked once, before the dialog is shown: the host's own navigation extensions are registered below this name.
    int GetProductName(CString& name) override {
        name = L"Drafthost";
        return 1;
    }

    // The folder behind the History entry of the Places list.
    int GetRecentDirectory(CString& folder) override {
        folder = L"C:\\Projects";
        return 1;
    }

    void PrepareOkMenu(CMenu* menu) override {
        CNavDialog::PrepareOkMenu(menu);
        menu->AppendMenu(MF_STRING, kOpenPartly, L"Open &partly");
    }

    // What the default accepts is remembered at once, so the host's own check comes first. By now every item has its
    // full path. A refusal leaves the dialog open: say why.
    int OnFileNameOK() override {
        for (int i = 0; i < GetDataArray().GetCount(); ++i) {
            if (isOpenAlready(*GetDataArray().GetData(i))) {
                MessageBox(L"This drawing is open already.", L"Open Drawing", MB_OK | MB_ICONINFORMATION);
                return 0;
            }
        }
        return CNavDialog::OnFileNameOK();
    }

private:
    static constexpr UINT kOpenPartly = 0x7001;

    static bool isOpenAlready(const CNavData&) { return false; }
    void onOpenPartly() {
        m_openPartly = true;
        OnOK();
    }

    bool m_openPartly = false;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DrawingDialog, CNavDialog)
ON_COMMAND(kOpenPartly, &DrawingDialog::onOpenPartly)
END_MESSAGE_MAP()

/// What became of one chosen item.
void openItem(const CNavData& item) {
    CString url;
    switch (item.GetDataType()) {
        case NAV_DATA_FILE:
        case NAV_DATA_NETWORK:
            std::printf("open the file %ls\n", item.GetText());
            break;
        case NAV_DATA_URL:
        case NAV_DATA_FTP:
            item.GetURL(url);
            std::printf("fetch %ls as %ls\n", url.GetString(), item.GetUserName());
            break;
        case NAV_DATA_EXTENSION:
            std::printf("ask %ls for %ls\n", item.GetExtensionName(), item.GetText());
            break;
        default:
            std::printf("not classified: %ls\n", item.GetText());
    }
}

/// Shows the dialog and opens what was chosen.
void openDrawings(CWnd* parent, const wchar_t* folder) {
    CNavFilterArray filters;
    fillFileTypes(filters);
    CNavDataArray chosen;
    DrawingDialog dialog(chosen, filters, 0, parent);
    dialog.SetDialogName(L"OpenDrawing");
    dialog.SetDialogCaption(L"Open Drawing");
    dialog.SetDefaultInitialFolder(folder);
    dialog.SetMultiSelectAllowed(1);
    if (dialog.DoModal() != IDOK) {
        return;
    }
    for (int i = 0; i < chosen.GetCount(); ++i) {
        openItem(*chosen.GetData(i));
    }
}

/// Where the host keeps the registration of its navigation extensions.
class DraftHost : public CNavHostApplication {
public:
    int GetExtensionsKey(CString& key) override {
        key = L"Software\\Example\\Drafthost\\Extensions";
        return 1;
    }
};

/// Once, before the first dialog.
void setUpLibrary() {
    static DraftHost host;
    NavSetHostApplication(&host);
    KNavSetLanguage(L"de");
    CZoUiDialog::SetDefaultRootKey(L"Software\\Example\\Drafthost\\Dialogs");
}

/// A script answers in the user's place, and writes down what it was asked.
void runUnattended() {
    ZoSetPromptHandler([](const ZoPrompt& prompt) -> std::optional<int> {
        std::printf("asked: %ls\n", prompt.text.GetString());
        return (prompt.flags & MB_TYPEMASK) == MB_YESNO ? IDNO : IDOK;
    });
}

/// The results of a dialog that was never shown: none.
int countResults() {
    CNavFilterArray filters;
    fillFileTypes(filters);
    CNavDataArray chosen;
    DrawingDialog dialog(chosen, filters);
    for (int i = 0; i < chosen.GetCount(); ++i) {
        openItem(*chosen.GetData(i));
    }
    return filters.GetCount() == 3 ? chosen.GetCount() : -1;
}

int wmain(int count, wchar_t** arguments) {
    if (count > 1) {
        openDrawings(nullptr, arguments[1]);
        return 0;
    }
    runUnattended();
    return countResults();
}
