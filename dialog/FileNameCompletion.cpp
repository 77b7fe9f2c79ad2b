#include "dialog/FileNameCompletion.h"

#include <zoui/CZoUiRegistryAccess.h>

#include "dialog/CNavEnumString.h"
#include "dialog/FolderNames.h"
#include "shell/Guard.h"

#ifdef __CRT_UUID_DECL
__CRT_UUID_DECL(IObjMgr, 0x00BB2761, 0x6A77, 0x11D0, 0xA5, 0x35, 0x00, 0xC0, 0x4F, 0xD7, 0xD0, 0x62)
#endif

namespace knav {
namespace {

CNavEnumString::Patterns patternsOf(const CNavFilter& filter) {
    CNavEnumString::Patterns patterns;
    for (int i = 0; i < filter.GetCount(); ++i) {
        patterns.emplace_back(filter.GetAt(i).view());
    }
    return patterns;
}

void limitToCurrentFolder(IACList2* list) {
    guarded([list] { return list->SetOptions(ACLO_CURRENTDIR); });
}

}  // namespace

FileNameCompletion::FileNameCompletion() = default;
FileNameCompletion::~FileNameCompletion() = default;

bool FileNameCompletion::isWanted() {
    const CZoUiRegistryAccess key(L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete");
    CString value;
    return !key.Read(L"Append Completion", value) || value.MakeUpper() != L"NO";
}

void FileNameCompletion::update(HWND edit, const CString& folder, const CNavFilter& filter, bool append) {
    if (!create(append)) {
        return;
    }
    useFolder(folder);
    if (m_names) {
        m_names->setDirectory(std::wstring(folder.view()));
        m_names->setPatterns(patternsOf(filter));
        // What was suggested so far was of another folder or type.
        if (const auto list = m_autoComplete.as<IAutoCompleteDropDown>()) {
            guarded([&list] { return list->ResetEnumerator(); });
        }
        return;
    }
    auto names = ComPtr<CNavEnumString>::adopt(
        new CNavEnumString(m_lists.get(), std::wstring(folder.view()), patternsOf(filter)));
    if (names->valid() &&
        SUCCEEDED(guarded([&] { return m_autoComplete->Init(edit, names.get(), nullptr, nullptr); }))) {
        m_names = std::move(names);
    }
}

void FileNameCompletion::end() {
    m_names.reset();
    m_ownNames.reset();
    m_currentDirectory.reset();
    m_lists.reset();
    m_autoComplete.reset();
}

bool FileNameCompletion::create(bool append) {
    if (m_autoComplete && m_lists) {
        return true;
    }
    m_autoComplete = createInProcess<IAutoComplete2>(CLSID_AutoComplete);
    m_lists = createInProcess<IUnknown>(CLSID_ACLMulti);
    if (!m_autoComplete || !m_lists) {
        return false;
    }
    const DWORD options = append ? ACO_AUTOSUGGEST | ACO_AUTOAPPEND : ACO_AUTOSUGGEST;
    guarded([&] { return m_autoComplete->SetOptions(options); });
    fillLists();
    return true;
}

/// The multi-list is a container, and empty at first. What goes into it is the system's list of the current folder; not
/// every system's can be told which folder that is.
void FileNameCompletion::fillLists() {
    if (const auto list = m_lists.as<IACList2>()) {
        limitToCurrentFolder(list.get());
    }
    if (const auto list = m_lists.as<IACList>()) {
        m_currentDirectory = list.as<ICurrentWorkingDirectory>();
    }
    const auto systemNames = createInProcess<IACList2>(CLSID_ACListISF);
    if (systemNames && !m_currentDirectory) {
        m_currentDirectory = systemNames.as<ICurrentWorkingDirectory>();
    }
    if (systemNames && m_currentDirectory) {
        limitToCurrentFolder(systemNames.get());
    } else {
        m_ownNames = ComPtr<FolderNames>::adopt(new FolderNames);
    }
    if (const auto container = m_lists.as<IObjMgr>()) {
        IUnknown* const source = m_ownNames ? static_cast<IUnknown*>(m_ownNames.get()) : systemNames.get();
        guarded([&] { return container->Append(source); });
    }
}

void FileNameCompletion::useFolder(const CString& folder) {
    if (m_ownNames) {
        m_ownNames->setFolder(std::wstring(folder.view()));
    } else if (m_currentDirectory) {
        guarded([&] { return m_currentDirectory->SetDirectory(folder); });
    }
}

}  // namespace knav
