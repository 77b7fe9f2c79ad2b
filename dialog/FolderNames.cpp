#include "dialog/FolderNames.h"

#include <string_view>
#include <utility>

namespace knav {
namespace {

bool isShown(const WIN32_FIND_DATAW& found) {
    const std::wstring_view name = found.cFileName;
    return name != L"." && name != L".." && (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) == 0;
}

}  // namespace

void FolderNames::setFolder(std::wstring folder) {
    if (!folder.empty() && !folder.ends_with(L'\\')) {
        folder += L'\\';
    }
    const std::scoped_lock lock(m_mutex);
    m_folder = std::move(folder);
    close();
}

HRESULT FolderNames::fetch(LPOLESTR& text) {
    const std::scoped_lock lock(m_mutex);
    WIN32_FIND_DATAW found;
    while (findNext(found)) {
        if (isShown(found)) {
            return SHStrDupW(found.cFileName, &text);
        }
    }
    return S_FALSE;
}

bool FolderNames::findNext(WIN32_FIND_DATAW& found) {
    if (m_search != INVALID_HANDLE_VALUE) {
        return FindNextFileW(m_search, &found) != FALSE;
    }
    // A folder that is no path, such as the list of drives, has no names here.
    if (m_atEnd || m_folder.empty() || m_folder.starts_with(L"::")) {
        return false;
    }
    m_atEnd = true;
    m_search = FindFirstFileExW((m_folder + L"*").c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr,
                                FIND_FIRST_EX_LARGE_FETCH);
    return m_search != INVALID_HANDLE_VALUE;
}

void FolderNames::close() {
    if (m_search != INVALID_HANDLE_VALUE) {
        FindClose(std::exchange(m_search, INVALID_HANDLE_VALUE));
    }
    m_atEnd = false;
}

HRESULT FolderNames::Skip(ULONG count) {
    HRESULT result = S_OK;
    for (LPOLESTR text = nullptr; count > 0 && result == S_OK; --count) {
        result = Next(1, &text, nullptr);
        if (result == S_OK) {
            CoTaskMemFree(text);
        }
    }
    return result;
}

HRESULT FolderNames::Reset() {
    const std::scoped_lock lock(m_mutex);
    close();
    return S_OK;
}

HRESULT FolderNames::Clone(IEnumString** copy) {
    if (copy) {
        *copy = nullptr;
    }
    return E_NOTIMPL;
}

}  // namespace knav
