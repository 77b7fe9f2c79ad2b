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

/// A file picked in the view: its text is the full path that the view knows it by, and it was looked at then.
bool isPickedFile(const CNavData& item) {
    const CNavPathname* path = item.GetID() ? item.GetPathname() : nullptr;
    CString full;
    return path && path->GetType() == CZoUiPathname::ExistingFile && !path->GetIsExtension() && !path->GetIsURL() &&
           path->GetFullPath(full) && full == item.GetText();
}

bool isRoot(const CNavNode* node) {
    return node && (node->GetType() == NavNodeExtensionRoot || node->GetType() == NavNodeWebFoldersRoot);
}

}  // namespace

OkHandlerErr CNavDialogImp::PreprocessData(CNavDataArray& data) {
    if (m_fileName.IsFileNameComboBoxDirty() || data.GetCount() == 0) {
        m_fileName.SendFileNameToData(data);
    }
    for (int i = 0; i < data.GetCount(); ++i) {
        // A hook may have taken items out of the array.
        CNavData* item = data.GetData(i);
        const OkHandlerErr error = item ? finishItem(*item) : OkErrNone;
        if (error != OkErrNone) {
            reportNameError(error);
            return error;
        }
    }
    return OkErrNone;
}

OkHandlerErr CNavDialogImp::finishItem(CNavData& item) {
    CString text = item.GetText();
    if (ReplaceEnvironmentStrings(text) > 0) {
        item.SetText(text);
    }
    if (const OkHandlerErr error = m_facade.CombineDataTextWithFolderName(&item, text); error != OkErrNone) {
        return error;
    }
    text = knav::trimName(text.view(), false);
    if (!item.GetID()) {
        UpdateFileExtension(text, 0);
    }
    if (withinReach(text)) {
        resolveShortcut(item, text);
    }
    item.SetText(text);
    if (!withinReach(text)) {
        item.SetDataType(NAV_DATA_NETWORK);
        return OkErrNone;  // the user is told when the first name is committed
    }
    if (CString name = item.GetTextInFolder(); isRoot(currentFolderNode()) && !name.IsEmpty()) {
        item.SetText(name);
    }
    classifyItem(item, text);
    return OkErrNone;
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
    const CNavNode* node = lookInNode();
    if (isPickedFile(item) || (path.Parse(text, true) == PathErr::None && path.WasAbsolute())) {
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

std::optional<CString> CNavDialogImp::folderTextForNames(CNavNode* node, CString& prefix, bool& unnamed) {
    unnamed = false;
    CString folder;
    CNavPathname pathname;
    if (selectedFolderPathname(pathname)) {
        pathname.GetAttachedPrefix(prefix);
        if (!pathname.GetFullPath(folder)) {
            return std::nullopt;
        }
        return folder;
    }
    if (!node) {
        return std::nullopt;
    }
    unnamed = !node->GetNameForParsing(folder) || folder.IsEmpty();
    return folder;
}

OkHandlerErr CNavDialogImp::CombineDataTextWithFolderName(CNavData* item, CString& text) {
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    text = item->GetText();
    CNavNode* node = currentFolderNode();
    const NAV_DATA_TYPE type = item->GetDataType();
    if (isRoot(node) || type == NAV_DATA_URL || type == NAV_DATA_NETWORK) {
        return OkErrNone;
    }
    if (isPickedFile(*item)) {
        return OkErrNone;
    }
    CString prefix;
    bool unnamed = false;
    const std::optional<CString> folder = folderTextForNames(node, prefix, unnamed);
    if (unnamed) {
        return OkErrNone;
    }
    if (!withinReach(text)) {
        return OkErrNone;
    }
    CNavPathname parsed;
    const bool isPath = parsed.Parse(text, true) == PathErr::None;
    if (isPath) {
        if (parsed.GetType() == CZoUiPathname::Wildcard && !prefix.IsEmpty()) {
            text = prefix + text;
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
        text = knav::joinUrl(folder.value_or(CString()).view(), text.view());
        return OkErrNone;
    }
    // Picked in the view, but no path: a server, or a place such as My Computer. It can be entered.
    if (item->GetID() && !isPath) {
        return OkErrNone;
    }
    if (node && !node->IsInFileSystem()) {
        return OkErrNoFileSystemFolder;
    }
    return knav::appendPath(text, folder.value_or(CString())) ? OkErrNone : OkErrNameTooLong;
}

int CNavDialogImp::UpdateFileExtension(CString& name, int replace) {
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
    CNavNode* node = lookInNode();
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
