// What the dialog remembers between runs.
#include <knav/CNavDataArray.h>
#include <ry/RyRegKey.h>

#include "dialog/CNavDialogImp.h"

namespace {

void readFlag(HKEY key, const wchar_t* name, int& flag) {
    DWORD value = 0;
    if (ryRegGetValue(key, name, value) == ERROR_SUCCESS && value != 0) {
        flag = 1;
    }
}

}  // namespace

void knav::applyPolicies(DialogPolicies& policies) {
    RyRegKey key;
    if (key.open(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Comdlg32")) {
        readFlag(key.get(), L"NoPlacesBar", policies.noPlacesList);
        readFlag(key.get(), L"NoBackButton", policies.noBackButton);
        readFlag(key.get(), L"NoFileMru", policies.noFileMru);
    }
    if (key.open(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer")) {
        readFlag(key.get(), L"NoRecentDocsHistory", policies.noRecentDocsHistory);
    }
}

void CNavDialogImp::SaveCurrentStates() {
    SavePlacesList();
    if (const int index = GetFilterIndex(); index >= 0) {
        m_facade.SetDialogData(L"InitialFilterIndex", static_cast<unsigned long>(index));
    }
    m_facade.SetDialogData(L"ViewMode", static_cast<unsigned long>(m_browser.GetViewMode()));
    CString folder;
    GetCurrentFolderForPersistence(folder);
    m_facade.SetDialogData(L"InitialDirectory", folder);
}

void CNavDialogImp::saveFileNameHistory() {
    for (int i = 0; i < m_fileName.GetCount(); ++i) {
        CString entry;
        m_fileName.GetLBText(i, entry);
        CString name;
        name.Format(L"FileNameMRU%d", i);
        if (entry.IsEmpty() || !m_facade.SetDialogData(name, entry)) {
            return;
        }
    }
}

void CNavDialogImp::loadFileNameHistory() {
    constexpr int kMostEntries = 10;
    for (int i = 0; i < kMostEntries && !m_policies.noFileMru && !m_policies.noRecentDocsHistory; ++i) {
        CString name;
        name.Format(L"FileNameMRU%d", i);
        CString entry;
        if (!m_facade.GetDialogData(name, entry) || m_fileName.AddString(entry) < 0) {
            return;
        }
    }
}
