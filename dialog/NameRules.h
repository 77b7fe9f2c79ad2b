// Rules about typed names, as plain functions without windows.
#pragma once

#include <knav/CNavData.h>
#include <platform/CString.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace knav {

/// Longest text of a path: fixed path buffers hold 260 characters with their terminator.
inline constexpr std::size_t kLongestPath = 259;

/// A file or a folder, here or on the network.
inline bool isFileKind(const CNavData& item) {
    return item.GetDataType() == NAV_DATA_FILE || item.GetDataType() == NAV_DATA_NETWORK;
}

/// Whether a path of the file system is one on this machine or on the network.
NAV_DATA_TYPE kindOfPath(const wchar_t* path);

/// A file picked in the view: its text is the full path that the view knows it by, and it was looked at then.
bool isPickedFile(const CNavData& item);

/// Where a name's extension starts: the position of its dot, when the dot lies behind the last separator and is not
/// the last character.
std::optional<std::size_t> extensionDot(std::wstring_view name);

/// Trims both ends, and in a name that then still holds a blank the start of its base name and of its extension.
/// Only with `trimBaseEnd` also the end of the base name: while the user may still be typing, a blank before the dot
/// can be meant.
std::wstring trimName(std::wstring_view name, bool trimBaseEnd);

struct Expansion {
    std::wstring text;
    int replaced = 0;
};

/// Replaces each %NAME% by the variable's value. What names no variable, or has no closing %, stays as it is.
Expansion expandEnvironment(std::wstring_view text);

/// The local path in a "file://" URL, without asking whether it exists; nothing for other texts.
std::optional<std::wstring> pathOfFileUrl(std::wstring_view url);

/// What decides about the extension of a typed name.
struct ExtensionFacts {
    std::wstring_view filterPattern;  ///< first pattern of the file type in force, such as "*.dwg"
    bool replace = false;             ///< put the type's extension in place of another type's
    bool creatingFile = false;        ///< a name of unknown type gets the extension appended
    bool acceptAnyExtension = false;  ///< a typed extension stands as typed
    std::function<bool(std::wstring_view pattern)> isKnown = nullptr;  ///< does a file type have it?
};

/// Whether a pattern says which extension a name gets: "*.dwg" does; "*.*" or "*.dw?" would make names nobody can use.
bool namesOneExtension(std::wstring_view pattern);

struct ExtensionOutcome {
    std::wstring name;
    int result = 1;  ///< 0: a foreign extension was left alone in a dialog that opens files
};

/// The name with the extension of the file type in force. The caller has ruled out existing folders.
ExtensionOutcome withFilterExtension(std::wstring_view name, const ExtensionFacts& facts);

/// The name without the quotes around it; one that is nothing but quotes stays.
std::wstring_view withoutQuotes(std::wstring_view name);

/// A button caption without its accelerator mark.
std::wstring withoutAccelerator(std::wstring_view caption);

/// Joins a typed name to the text of a URL-like folder.
std::wstring joinUrl(std::wstring_view folder, std::wstring_view name);

/// `name` becomes `folder` and `name` joined. False, with `name` untouched, when that does not fit a path.
bool appendPath(CString& name, const CString& folder);

/// "X:" in upper case when `name` starts with a drive letter and a colon.
std::optional<std::wstring> driveOf(std::wstring_view name);

/// The message about a drive that cannot be used, by its type (GetDriveType); 0 for the types of which nobody has to
/// find that out.
UINT driveProblem(UINT type);

/// The name with the part behind its last dot taken from the filter's pattern.
std::wstring withExtensionOf(std::wstring_view name, std::wstring_view pattern);

}  // namespace knav
