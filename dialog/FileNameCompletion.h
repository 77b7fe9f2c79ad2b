// Completion of the names typed in the file name field.
#pragma once

#include <knav/CNavFilter.h>
#include <platform/CString.h>

#include "shell/ComPtr.h"

class CNavEnumString;

namespace knav {

class FolderNames;

/// Suggests folders of the current folder and its files of the current type, by the system's completion objects.
/// Without those objects there are no suggestions, and nothing is said about it.
class FileNameCompletion {
public:
    FileNameCompletion();
    FileNameCompletion(const FileNameCompletion&) = delete;
    FileNameCompletion& operator=(const FileNameCompletion&) = delete;
    ~FileNameCompletion();

    /// Whether the user's preferences allow it.
    static bool isWanted();

    /// Suggests from `folder`, a parsing name, by `filter`. The first time it takes hold of `edit`, and of `append`,
    /// whether the rest of a name is put into the field as it is typed.
    void update(HWND edit, const CString& folder, const CNavFilter& filter, bool append);
    /// Lets go of the field.
    void end();

private:
    bool create(bool append);
    void fillLists();
    void useFolder(const CString& folder);

    ComPtr<IAutoComplete2> m_autoComplete;
    ComPtr<IUnknown> m_lists;
    ComPtr<ICurrentWorkingDirectory> m_currentDirectory;
    ComPtr<FolderNames> m_ownNames;  // where the system's list of the current folder cannot be told the folder
    ComPtr<CNavEnumString> m_names;
};

}  // namespace knav
