// The road from OK to a closed dialog, as the list of decisions that it is.
#include <knav/CNavDataArray.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "dialog/ScopedFlag.h"
#include "resources/ids.h"
#include "shell/TextRules.h"

void CNavDialogImp::OnOK() {
    // Prompts and hooks pump messages: the items that are being worked on must not change under them.
    if (m_ok.running) {
        return;
    }
    m_ok.closing = m_ok.moved = m_ok.selectionMissed = false;
    m_options.readOnlySpecified = m_ok.readOnly;
    {
        const knav::NetworkAnswers::Scope asked(m_ok.network);
        const knav::ScopedFlag running(m_ok.running);
        processOk();
    }
    if (m_ok.moved && !m_ok.closing) {
        m_data.RemoveAllData();  // of the folder that was left
    }
    if (m_ok.selectionMissed && !m_ok.closing) {
        postToSelf(OwnMessage::SyncSelection);
    }
}

void CNavDialogImp::processOk() {
    if (!m_lookIn.GetSafeHwnd() || m_inShellViewRegen || !m_okButton.GetSafeHwnd() || !m_okButton.IsWindowEnabled()) {
        return;
    }
    if (m_options.foldersOnly) {
        SendCurrentFolderToData();
    }
    if (m_facade.PreprocessData(m_data) != OkErrNone) {
        return;
    }
    CString directory;
    if (CNavData* first = m_data.GetData(0); first && ExtractDirectoryFromURL(first->GetText(), directory)) {
        setFileNameText(directory);
        first->SetText(directory);
    }
    if (m_facade.OnFileNameOK()) {
        m_ok.closing = true;
        AddDataToHistory();
        m_facade.CZoUiDialog::OnOK();
    }
}

void CNavDialogImp::OnCancel() {
    if (m_placesListDirty && knav::showMessage(m_facade, IDS_KNAV_KEEP_PLACES, MB_YESNO | MB_ICONQUESTION) == IDYES) {
        SavePlacesList();
    }
    m_facade.CZoUiDialog::OnCancel();
}

int CNavDialogImp::SendCurrentFolderToData() {
    if (m_data.GetCount() > 0) {
        return 0;
    }
    CNavPathname folder;
    CString text;
    if (!selectedFolderPathname(folder) || !folder.GetFullPath(text) || text.IsEmpty()) {
        GetCurrentFolderForPersistence(text);
    }
    CNavData* item = text.IsEmpty() ? nullptr : m_data.AddData();
    if (!item) {
        return 0;
    }
    item->SetText(text);
    item->SetPathname(&folder);
    item->SetDataType(knav::kindOfPath(text));
    return 1;
}

bool CNavDialogImp::firstIsFolder() {
    const CNavData* first = m_data.GetData(0);
    const CNavPathname* path = first ? first->GetPathname() : nullptr;
    return path && path->GetType() == CZoUiPathname::Directory && withinReach(first->GetText()) && path->Exists();
}

/// The folder shown, which was put in for want of a choice, is no folder that can be the result.
void CNavDialogImp::refuseFolderShown() {
    const CNavData* first = m_data.GetData(0);
    const CString folder = first ? first->GetText() : L"";
    m_data.RemoveAllData();
    if (validateUNC(folder)) {
        reportNameError(OkErrNoFileSystemFolder);
    }
}

int CNavDialogImp::OnFileNameOK() {
    const bool asksBeforeReplacing = m_options.creatingFile && m_options.confirmReplace;

    if (FileDialogAllowReturnFolderEnabler::status()) {
        const bool nothingChosen = SendCurrentFolderToData() != 0;
        if (firstIsFolder()) {
            finishPaths(0);
            SaveCurrentStates();
            return 1;
        }
        if (nothingChosen && !knav::isSite(currentFolderNode())) {
            refuseFolderShown();
            return 0;
        }
    }
    if (m_data.GetCount() == 0) {
        return 0;
    }
    if (asksBeforeReplacing && !m_facade.VerifyURLSave()) {
        refuseFileName();
        return 0;
    }
    if (!CommitFileNameEdit()) {
        return 0;
    }
    // Committing and the hooks may have emptied the array.
    CNavData* first = m_data.GetData(0);
    if (!first) {
        return 0;
    }
    if (first->IsRemote() && !m_options.foldersOnly && !m_facade.OnUrlOK()) {
        refuseFileName();
        return 0;
    }
    first = m_data.GetData(0);
    if (!first) {
        return 0;
    }
    canonicalizeSiteItem(*first);
    finishPaths(1);
    if (asksBeforeReplacing && !mayReplaceAll()) {
        return 0;
    }
    first = m_data.GetData(0);
    if (first && !m_options.creatingFile && m_options.confirmReplace && refuseMissing(*first)) {
        return 0;
    }
    rememberName();
    SaveCurrentStates();
    return 1;
}

void CNavDialogImp::rememberName() {
    const CNavData* first = m_data.GetData(0);
    if (first && m_fileName.GetSafeHwnd()) {
        AddFileNameToMRU(first->GetText());
        saveFileNameHistory();
    }
}

void CNavDialogImp::reportNameError(OkHandlerErr error) {
    switch (error) {
        case OkErrNoFileSystemFolder:
            knav::showMessage(m_facade,
                              m_options.creatingFile ? IDS_KNAV_NO_FOLDER_TO_SAVE : IDS_KNAV_NO_FOLDER_TO_OPEN);
            break;
        case OkErrNameTooLong: {
            const knav::TaskDialogPair pairs[] = {{L"ObjectName", knav::messageText(IDS_KNAV_NAME_OBJECT)},
                                                  {L"FieldName", knav::messageText(IDS_KNAV_NAME_FIELD)}};
            if (!knav::showTaskDialog(m_facade, L"Standard.InvalidName.TooLong", pairs)) {
                knav::showMessage(m_facade, IDS_KNAV_INVALID_NAME);
            }
            break;
        }
        default:
            knav::showMessage(m_facade, IDS_KNAV_INVALID_NAME);
    }
    refuseFileName();
}
