// How the names that were typed or selected become full paths with a kind.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "dialog/NameRules.h"
#include "shell/TextRules.h"

namespace {

bool isRoot(const CNavNode* node) {
    return node && (node->GetType() == NavNodeExtensionRoot || node->GetType() == NavNodeWebFoldersRoot);
}

}  // namespace

OkHandlerErr CNavDialogImp::PreprocessData(CNavDataArray& data) {
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    if (m_fileName.IsFileNameComboBoxDirty() || data.GetCount() == 0) {
        m_fileName.SendFileNameToData(data);
    }
    for (int i = 0; i < data.GetCount(); ++i) {
        if (const OkHandlerErr error = finishItem(data, i); error != OkErrNone) {
            reportNameError(error);
            return error;
        }
    }
    return OkErrNone;
}

OkHandlerErr CNavDialogImp::finishItem(CNavDataArray& data, int index) {
    CNavData* item = data.GetData(index);
    if (!item) {
        return OkErrNone;
    }
    const bool typed = !item->GetID();
    CString text = typed ? knav::withoutQuotes(item->GetText()) : item->GetText();
    ReplaceEnvironmentStrings(text);
    item->SetText(text);
    if (const OkHandlerErr error = m_facade.CombineDataTextWithFolderName(item, text); error != OkErrNone) {
        return error;
    }
    TrimWhiteSpace(text, 0);
    if (typed) {
        // A share tells nobody who is not logged in that a name is a folder.
        m_ok.network.refusalAfterLogin(m_facade.GetSafeHwnd(), text);
        UpdateFileExtension(text, 0);
    }
    // The hook, or the host during a login, may have taken items out of the array.
    if (data.GetData(index) == item) {
        finishText(*item, text);
    }
    return OkErrNone;
}

/// Gives an item its full path, which is that of its target for a shortcut, and its kind.
void CNavDialogImp::finishText(CNavData& item, CString& text) {
    if (withinReach(text)) {
        resolveShortcut(item, text);
    }
    item.SetText(text);
    if (!withinReach(text)) {
        item.SetDataType(knav::kindOfPath(text));  // the user is told when the name is committed or looked at
        return;
    }
    if (CString name = item.GetTextInFolder(); isRoot(currentFolderNode()) && !name.IsEmpty()) {
        item.SetText(name);
    }
    classifyItem(item, text);
}

void CNavDialogImp::TrimWhiteSpace(CString& name, int trimBaseEnd) {
    name = knav::trimName(name.view(), trimBaseEnd != 0);
}

int CNavDialogImp::ReplaceEnvironmentStrings(CString& text) {
    const knav::Expansion expansion = knav::expandEnvironment(text.view());
    text = expansion.text;
    return expansion.replaced;
}

/// A file that the selection knows to be no shortcut is not read to find that out: it may be far away.
void CNavDialogImp::resolveShortcut(CNavData& item, CString& text) {
    const CNavPathname* path = item.GetPathname();
    if (!item.GetID() || (path && path->GetType() == CZoUiPathname::ExistingFile && !path->isShortCut())) {
        return;
    }
    const auto target = knav::ItemList::adopt(NavResolveLink(item.GetID(), 0));
    CString name;
    if (target && NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, target.get(), name) && !name.IsEmpty()) {
        text = name;
    }
}

void CNavDialogImp::classifyItem(CNavData& item, const CString& text) {
    CZoUiPathname path;
    const CNavNode* node = currentFolderNode();
    if (knav::isPickedFile(item) || (path.Parse(text, true) == PathErr::None && path.WasAbsolute())) {
        item.SetDataType(NAV_DATA_FILE);
    } else if (NavIsUNCPath(text)) {
        item.SetDataType(NAV_DATA_NETWORK);
    } else if (node && node->IsWebFoldersType()) {
        item.SetDataType(NAV_DATA_FTP);
    } else if (node && node->IsExtensionType()) {
        item.SetDataType(NAV_DATA_EXTENSION);
        item.SetExtensionName(node->GetExtensionName());
    } else {
        item.SetDataType(NavIsURL(text) ? NAV_DATA_URL : NAV_DATA_FILE);
    }
}

/// The folder that names are put into, without text when there is none; nothing for one that has no name.
std::optional<CNavDialogImp::FolderText> CNavDialogImp::folderTextForNames(CNavNode* node) {
    FolderText folder;
    CNavPathname pathname;
    if (selectedFolderPathname(pathname)) {
        pathname.GetAttachedPrefix(folder.prefix);
        pathname.GetFullPath(folder.text);
    } else if (node && (!node->GetNameForParsing(folder.text) || folder.text.IsEmpty())) {
        return std::nullopt;
    }
    return folder;
}

OkHandlerErr CNavDialogImp::CombineDataTextWithFolderName(CNavData* item, CString& text) {
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    text = item->GetText();
    CNavNode* node = currentFolderNode();
    const NAV_DATA_TYPE type = item->GetDataType();
    if (isRoot(node) || type == NAV_DATA_URL || type == NAV_DATA_NETWORK || knav::isPickedFile(*item)) {
        return OkErrNone;
    }
    const std::optional<FolderText> folder = folderTextForNames(node);
    if (!folder || !withinReach(text)) {
        return OkErrNone;
    }
    // To parse a name is to ask the disk about it.
    if (CString full = text; !NavIsURL(text) && knav::appendPath(full, folder->text) && !withinReach(full)) {
        text = full;
        return OkErrNone;
    }
    CNavPathname parsed;
    const bool isPath = parsed.Parse(text, true) == PathErr::None;
    if (isPath) {
        if (parsed.GetType() == CZoUiPathname::Wildcard && !folder->prefix.IsEmpty()) {
            text = folder->prefix + text;
            return OkErrNone;
        }
        if (parsed.WasAbsolute()) {
            return OkErrNone;
        }
    }
    if (NavIsURL(text)) {
        text.Replace(L'\\', L'/');
        return OkErrNone;
    }
    if (knav::isSite(node)) {
        text = knav::joinUrl(folder->text.view(), text.view());
        return OkErrNone;
    }
    // Picked in the view, but no path: a server, or a place such as My Computer. It can be entered.
    if (item->GetID() && !isPath) {
        return OkErrNone;
    }
    if (node && !node->IsInFileSystem()) {
        return OkErrNoFileSystemFolder;
    }
    return knav::appendPath(text, folder->text) ? OkErrNone : OkErrNameTooLong;
}

int CNavDialogImp::UpdateFileExtension(CString& name, int replace) {
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    CString pattern;
    GetCurrentFileExtension(pattern);
    if (!knav::namesOneExtension(pattern.view()) || IsExistingFolder(name)) {
        return 1;
    }
    knav::ExtensionFacts facts{pattern.view(), replace != 0, m_options.creatingFile != 0,
                               m_options.acceptAnyFileExtension != 0};
    facts.isKnown = [this](std::wstring_view typed) { return m_filters.Find(CString(typed)) >= 0; };
    const knav::ExtensionOutcome outcome = knav::withFilterExtension(name.view(), facts);
    name = outcome.name;
    return outcome.result;
}

int CNavDialogImp::IsExistingFolder(const CString& name) {
    CString directory;
    if (PathIsUNCServerW(name) || PathIsUNCServerShareW(name) || ExtractDirectoryFromURL(name, directory)) {
        return 1;
    }
    if (!withinReach(name)) {
        return 0;
    }
    CNavPathname parsed;
    CNavPathname folder;
    selectedFolderPathname(folder);
    CNavNode* node = currentFolderNode();
    if (knav::isSite(node)) {
        return parsed.ParseRelative(name, &folder, node, 0) == PathErr::None &&
               parsed.GetType() == CZoUiPathname::Directory;
    }
    parsed.CZoUiPathname::ParseRelative(name, &folder, false);
    return parsed.GetType() == CZoUiPathname::Directory;
}

int CNavDialogImp::ExtractDirectoryFromURL(const CString& url, CString& directory) {
    const auto path = knav::pathOfFileUrl(url.view());
    const DWORD attributes =
        path && withinReach(CString(*path)) ? GetFileAttributesW(path->c_str()) : INVALID_FILE_ATTRIBUTES;
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
        return 0;
    }
    directory = *path;
    return 1;
}

void CNavDialogImp::GetSingleDataFullPath(CString& path) {
    path.Empty();
    if (m_data.GetCount() == 1 && m_facade.CombineDataTextWithFolderName(m_data.GetData(0), path) != OkErrNone) {
        path.Empty();
    }
}
