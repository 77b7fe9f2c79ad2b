// The names in a folder of the file system, for completion.
#pragma once

#include <mutex>
#include <string>

#include "dialog/StringEnumerator.h"

namespace knav {

/// Enumerates files and folders, without hidden ones, as the view shows them; in the order of the file system. The
/// folder is read as names are fetched. None when it cannot be read.
class FolderNames final : public StringEnumerator {
public:
    FolderNames() = default;
    /// Starts anew with another folder.
    void setFolder(std::wstring folder);

    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumString** copy) override;

private:
    ~FolderNames() override { close(); }
    HRESULT fetch(LPOLESTR& text) override;
    bool findNext(WIN32_FIND_DATAW& found);
    void close();

    std::mutex m_mutex;
    std::wstring m_folder;
    HANDLE m_search = INVALID_HANDLE_VALUE;
    bool m_atEnd = false;
};

}  // namespace knav
