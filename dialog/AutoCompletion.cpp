// Completion of typed names from the current folder.
#include <knav/CNavNode.h>
#include <zoui/CZoUiRegistryAccess.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/CNavEnumString.h"
#include "shell/Guard.h"

namespace {

CNavEnumString::Patterns patternsOf(CNavFilter& filter) {
    CNavEnumString::Patterns patterns;
    for (int i = 0; i < filter.GetCount(); ++i) {
        patterns.emplace_back(filter.GetAt(i).view());
    }
    return patterns;
}

}  // namespace

int CNavDialogImp::GetAutoCompleteRegValue() {
    const CZoUiRegistryAccess key(L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete");
    CString value;
    return key.Read(L"Append Completion", value) && value.MakeUpper() == L"NO" ? 0 : 1;
}

void CNavDialogImp::UpdateAutoCompletion() {
    CNavNode* node = currentFolderNode();
    CString folder;
    if (!m_appendCompletion || !m_fileName.GetSafeHwnd() || !node || !node->GetNameForParsing(folder) ||
        folder.IsEmpty() || !createAutoCompletion()) {
        return;
    }
    knav::guarded([&] { return m_currentDirectory ? m_currentDirectory->SetDirectory(folder) : S_FALSE; });
    if (m_completions) {
        m_completions->setDirectory(std::wstring(folder.view()));
        m_completions->setPatterns(patternsOf(*m_currentFilter));
        return;
    }
    auto completions = knav::ComPtr<CNavEnumString>::adopt(
        new CNavEnumString(m_completionList.get(), std::wstring(folder.view()), patternsOf(*m_currentFilter)));
    const HWND edit = GetWindow(m_fileName.GetSafeHwnd(), GW_CHILD);
    const HRESULT started =
        completions->valid()
            ? knav::guarded([&] { return m_autoComplete->Init(edit, completions.get(), nullptr, nullptr); })
            : E_FAIL;
    if (SUCCEEDED(started)) {
        m_completions = std::move(completions);
    }
}

/// The system's completion objects, made once. A current-folder list that lacks an interface still lets names be
/// completed from whatever the list offers.
bool CNavDialogImp::createAutoCompletion() {
    if (m_autoComplete && m_completionList) {
        return true;
    }
    m_autoComplete = knav::createInProcess<IAutoComplete2>(CLSID_AutoComplete);
    m_completionList = knav::createInProcess<IUnknown>(CLSID_ACLMulti);
    if (!m_autoComplete || !m_completionList) {
        return false;
    }
    const DWORD options = m_options.creatingFile ? ACO_AUTOSUGGEST : ACO_AUTOSUGGEST | ACO_AUTOAPPEND;
    knav::guarded([&] { return m_autoComplete->SetOptions(options); });
    if (const auto list = m_completionList.as<IACList2>()) {
        knav::guarded([&] { return list->SetOptions(ACLO_CURRENTDIR); });
    }
    if (const auto list = m_completionList.as<IACList>()) {
        m_currentDirectory = list.as<ICurrentWorkingDirectory>();
    }
    return true;
}
