// Which items of the current folder the view shows.
#pragma once

#include "shell/ComPtr.h"

#include <platform/CString.h>

#include <optional>

class CNavFilter;

namespace knav {

/// Asked for every item that a view lists, so what depends on the folder alone is found out once per folder.
class Admission {
public:
    /// The folder whose items are asked about; its list stays the caller's and must outlive its use here. Without
    /// `folder` it is bound when it is first needed.
    void setFolder(ITEMIDLIST* id, ComPtr<IShellFolder> folder);

    /// Whether an item, relative to the folder, is shown. A null filter shows everything.
    bool allows(ITEMIDLIST* item, const CNavFilter* filter, bool foldersOnly);

private:
    struct Question {
        ITEMIDLIST* item;
        const CNavFilter* filter;
        bool foldersOnly;
        SFGAOF attributes;
    };

    bool bindFolder();
    bool readAttributes(Question& question) const;
    bool allowsFolder(const Question& question);
    bool allowsNonFolder(const Question& question);
    bool allowsByName(const Question& question);
    bool allowsTarget(const Question& question) const;
    bool holdsFoldersOutsideTheFileSystem();
    bool isNetwork();

    ITEMIDLIST* m_id = nullptr;
    ComPtr<IShellFolder> m_folder;
    std::optional<bool> m_isNetwork;
    std::optional<bool> m_holdsForeignFolders;
    CString m_name;  // of the item asked about; kept so that its memory is reused
};

}  // namespace knav
