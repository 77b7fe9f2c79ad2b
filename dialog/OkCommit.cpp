// What the first typed name turns out to be: a file, a folder to enter, a filter to set, or nothing usable.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavLinks.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "resources/ids.h"
#include "shell/TextRules.h"

namespace {

/// The item is this path from now on. A text such as "\name" depends on the folder that was shown when it was typed;
/// the full path does not. Places that are no path keep their text and kind.
void takePath(CNavData& item, CNavPathname& path) {
    item.SetPathname(&path);
    if (item.GetDataType() == NAV_DATA_FTP || path.GetIsExtension() || path.GetIsURL()) {
        return;
    }
    if (CString full; path.GetFullPath(full)) {
        item.SetText(full);
    }
    item.SetDataType(knav::kindOfPath(path.GetPathString()));
}

}  // namespace

int CNavDialogImp::CommitFileNameEdit() {
    if (m_data.GetCount() == 0) {
        m_fileName.SendFileNameToData(m_data);
    }
    CNavData* item = m_data.GetData(0);
    if (!item) {
        return 0;
    }
    const CString text = item->GetText();
    if (text.IsEmpty()) {
        return 1;
    }
    if (!validateUNC(text) || !validateDrive(text)) {
        return 0;
    }
    // A login pumps messages: the host may have emptied the array.
    item = m_data.GetData(0);
    if (!item) {
        return 0;
    }
    CNavPathname folder;
    selectedFolderPathname(folder);
    CNavNode* node = currentFolderNode();
    CNavPathname path;
    if (path.ParseRelative(text, &folder, node, 1) == PathErr::None) {
        return commitParsed(*item, path, node);
    }
    return commitUnparsed(*item, text, path.GetIsExtension() || path.GetIsURL());
}

int CNavDialogImp::commitParsed(CNavData& item, CNavPathname& path, CNavNode* node) {
    switch (path.GetType()) {
        case CZoUiPathname::NewFile:
        case CZoUiPathname::ExistingFile:
            return acceptFile(item, path, node);
        case CZoUiPathname::Wildcard:
            NavigateToWildCard(path);
            return 0;
        case CZoUiPathname::Directory:
            if (m_options.foldersOnly) {
                takePath(item, path);
                return 1;
            }
            enterTypedFolder(path);
            return 0;
        case CZoUiPathname::Invalid:
            knav::showMessage(m_facade, IDS_KNAV_INVALID_PATH, item.GetText());
            refuseFileName();
            return 0;
        default:
            return 0;
    }
}

int CNavDialogImp::acceptFile(CNavData& item, CNavPathname& path, CNavNode* node) {
    takePath(item, path);
    if (item.GetDataType() == NAV_DATA_FTP || !path.GetIsExtension()) {
        return 1;
    }
    item.SetDataType(NAV_DATA_EXTENSION);
    if (node) {
        item.SetExtensionName(node->GetExtensionName());
    }
    CString user;
    CString password;
    if (m_browser.GetCurrentLogin(user, password)) {
        item.SetUserName(user);
        item.SetPassword(password);
    }
    return 1;
}

int CNavDialogImp::commitUnparsed(CNavData& item, const CString& text, bool inSite) {
    CNavPathname alone;
    const PathErr error = alone.Parse(text, true);
    if (alone.GetType() == CZoUiPathname::Wildcard) {
        NavigateToWildCard(alone);
        return 0;
    }
    // Moving on may take the item out of the array.
    const auto picked = knav::ItemList::copyOf(item.GetID());
    if (NavIsUNCPath(text)) {
        item.SetDataType(NAV_DATA_NETWORK);
        const bool dirty = m_fileNameEditDirty;
        if (!(picked ? NavigateToItemList(picked.get()) : NavigateToFolder(text))) {
            return 1;
        }
        leaveTypedFolder(dirty);
        return 0;
    }
    if (picked && !inSite) {
        const auto target = knav::ItemList::adopt(NavResolveLink(picked.get(), 0));
        goOrTell(target ? target.get() : picked.get());
        return 0;
    }
    const wchar_t last = text.GetAt(text.GetLength() - 1);
    if (NavIsURL(text) && ((last != L'/' && last != L'\\') || m_options.foldersOnly)) {
        item.SetDataType(NAV_DATA_URL);
        CNavPathname url;
        url.SetURL(text);
        item.SetPathname(&url);
        return 1;
    }
    if (error == PathErr::TooLong) {
        reportNameError(OkErrNameTooLong);
        return 0;
    }
    const knav::TaskDialogPair pairs[] = {
        {L"ObjectName", caption()},
        {L"FieldName", knav::messageText(IDS_KNAV_UNSUPPORTED_FIELD)},
        {L"UnsupportedCharacters", knav::messageText(IDS_KNAV_UNSUPPORTED_CHARACTERS)}};
    if (!knav::showTaskDialog(m_facade, L"Standard.Object.UnsupportCharacters", pairs)) {
        knav::showMessage(m_facade, IDS_KNAV_INVALID_PATH, text);
    }
    refuseFileName();
    return 0;
}

void CNavDialogImp::enterTypedFolder(CNavPathname& folder) {
    const bool dirty = m_fileNameEditDirty;
    if (!NavigateToDir(folder)) {
        CString path;
        folder.GetFullPath(path);
        knav::showMessage(m_facade, IDS_KNAV_INVALID_PATH, path);
        refuseFileName();
        return;
    }
    leaveTypedFolder(dirty);
}

/// The name of a folder that was typed to be entered is of no use in it.
void CNavDialogImp::leaveTypedFolder(bool typed) {
    if (typed) {
        setFileNameText(CString());
        SetFileNameEditDirty(0);
    }
}

/// Makes the items from `first` on what they are on the disk.
void CNavDialogImp::finishPaths(int first) {
    CNavPathname folder;
    if (first < m_data.GetCount()) {
        selectedFolderPathname(folder);
    }
    for (int i = first; i < m_data.GetCount(); ++i) {
        CNavData* item = m_data.GetData(i);
        const CNavPathname* known = item ? item->GetPathname() : nullptr;
        if (!known || !knav::isFileKind(*item) || known->GetIsExtension() || known->GetIsURL()) {
            continue;
        }
        CNavPathname path;
        if (knav::isPickedFile(*item)) {
            item->SetDataType(knav::kindOfPath(item->GetText()));
        } else if (withinReach(item->GetText()) &&
                   path.CZoUiPathname::ParseRelative(item->GetText(), &folder, true) == PathErr::None) {
            takePath(*item, path);
        }
    }
}
