// The most recently used file names, their completion, and the name searched along the search path.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <ry/RyUt.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "resources/ids.h"
#include "shell/TextRules.h"

namespace {

constexpr int kLongestEntry = 254;

/// The system keeps a link to each, and forgets all but the last few dozen.
constexpr int kMostRecentDocuments = 20;

}  // namespace

/// The form in which a name enters the history, or nothing when it does not.
std::optional<CString> CNavDialogImp::historyEntry(const CString& name) {
    if (m_options.creatingFile && !name.IsEmpty()) {
        return name;
    }
    if (name.IsEmpty() || name.GetLength() > kLongestEntry) {
        return std::nullopt;
    }
    RyFileStatus status;
    if (RyUt::GetFileStatus(name, status)) {
        return status.m_fullName;
    }
    CNavPathname folder;
    CString entry;
    if (selectedFolderPathname(folder)) {
        folder.GetFullPath(entry);
    }
    entry += L"\\" + name;
    entry.Replace(L"\\\\", L"\\");
    if (entry.GetLength() > kLongestEntry || !RyUt::GetFileStatus(entry, status)) {
        return std::nullopt;
    }
    return entry;
}

int CNavDialogImp::AddFileNameToMRU(const CString& name) {
    if (m_policies.noFileMru || m_policies.noRecentDocsHistory) {
        return 0;
    }
    const CString text = fileNameText();
    const auto entry = historyEntry(name);
    if (!entry) {
        return 0;
    }
    const int dot = entry->ReverseFind(L'.');
    const CString base = dot < 0 ? *entry : entry->Left(dot);
    const int found = m_fileName.FindStringExact(-1, *entry);
    if (found > 0) {
        m_fileName.DeleteString(found);
        m_fileName.InsertString(0, *entry);
        // Deleting the item that the field shows empties the field.
        setFileNameText(text);
        return 1;
    }
    if (found < 0 && (base.IsEmpty() || m_fileName.FindStringExact(-1, base) < 0)) {
        return m_fileName.InsertString(0, *entry) >= 0;
    }
    return 0;
}

int CNavDialogImp::GetAutoCompleteRegValue() {
    return knav::FileNameCompletion::isWanted() ? 1 : 0;
}

void CNavDialogImp::UpdateAutoCompletion() {
    CNavNode* node = currentFolderNode();
    CString folder;
    if (m_started && m_appendCompletion && m_fileName.GetSafeHwnd() && node && node->GetNameForParsing(folder) &&
        !folder.IsEmpty()) {
        const HWND edit = GetWindow(m_fileName.GetSafeHwnd(), GW_CHILD);
        m_completion.update(edit, folder, *m_currentFilter, !m_options.creatingFile);
    }
}

void CNavDialogImp::AddDataToHistory() {
    if (m_policies.noRecentDocsHistory) {
        return;
    }
    for (int i = 0; i < std::min(m_data.GetCount(), kMostRecentDocuments); ++i) {
        const CNavData* item = m_data.GetData(i);
        if (item && knav::isFileKind(*item)) {
            SHAddToRecentDocs(SHARD_PATHW, item->GetText());
        }
    }
}

void CNavDialogImp::LocateFile() {
    const CString name = CString(knav::trimmed(fileNameText().view()));
    if (name.IsEmpty()) {
        return;
    }
    CString found;
    if (!m_facade.FindInSearchPath(name, &found)) {
        m_facade.DisplaySearchError(name);
        refuseFileName();
        return;
    }
    setFileNameText(found);
    SetFileNameEditDirty(1);
    m_fileName.SetFileNameComboBoxDirty(1);
    refuseFileName();
}

int CNavDialogImp::FindInSearchPath(const wchar_t* name, CString* found) {
    std::wstring path(260, L'\0');
    DWORD length = SearchPathW(nullptr, name, nullptr, static_cast<DWORD>(path.size()), path.data(), nullptr);
    if (length > path.size()) {
        path.resize(length + 1);
        length = SearchPathW(nullptr, name, nullptr, static_cast<DWORD>(path.size()), path.data(), nullptr);
    }
    if (length == 0 || length > path.size()) {
        return 0;
    }
    *found = CString(path.c_str(), static_cast<int>(length));
    return 1;
}

void CNavDialogImp::DisplaySearchError(const wchar_t* name) {
    knav::showMessage(m_facade, IDS_KNAV_LOCATE_FAILED, name);
}
