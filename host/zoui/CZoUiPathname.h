// A file-system path as a user types it, parsed.
#pragma once

#include <ry/RyString.h>

/// Result of parsing: None, or why the text is not a file-system path. Callers treat every other value alike.
enum class PathErr {
    None = 0,
    Empty = 1,             ///< nothing but blanks and quotes
    TooLong = 2,           ///< longer than 259 characters when written in full, or a name of more than 255
    InvalidCharacter = 3,  ///< a character that no file name can hold, or a wildcard where none may stand
    NotFileSystem = 4      ///< a URL, a shell or device name, a bare server, or text that is not absolute
};

/// Parsing strips blanks and quotes around the text, turns "/" into "\", resolves "." and "..", cuts blanks and dots at
/// the end of names, takes off the prefix "\\?\", and completes the text to a full path: a relative name with the
/// process's current directory, "\name" with its drive or share, "C:name" with the current directory of drive C; a bare
/// "C:" is the root of the drive. A trailing separator is kept. The disk is asked once, for the attributes of the path
/// (of the folder, for a pattern). A path of a type other than Invalid lies in a folder that exists.
///
/// A value type; distinct objects may be used on distinct threads. Only std::bad_alloc is thrown.
class ZOUI_API CZoUiPathname {
public:
    /// What a parsed path is, decided when it was parsed.
    enum Type {
        NoPath = 0,        ///< nothing parsed yet
        NewFile = 1,       ///< nothing of that name in an existing folder
        Wildcard = 2,      ///< a pattern in an existing folder
        ExistingFile = 3,  ///< a file
        Directory = 4,     ///< a folder, a drive or a share
        Invalid = 5        ///< no path, or one that cannot be used: a reserved device name, a missing folder
    };

    CZoUiPathname() = default;
    CZoUiPathname(const CZoUiPathname& other) = default;
    /// Assigns through AssignCopy.
    CZoUiPathname& operator=(const CZoUiPathname& other);
    virtual ~CZoUiPathname() = default;

    /// With `allowWildcards` the last name may hold "*" and "?"; otherwise they are invalid characters. On an error
    /// the type is Invalid and there is no path string; a device name or a path through a missing folder parses
    /// without error and gets the type Invalid, but keeps its path string.
    virtual PathErr Parse(const wchar_t* text, bool allowWildcards);

    /// Takes over everything that `other` has of this class.
    virtual void AssignCopy(const CZoUiPathname& other);

    /// Parses `text` relative to `base` in place of the current directory: a folder, or a file whose folder is meant.
    /// "\name" takes the drive or share of `base`, and "C:name" is relative to `base` when that lies on drive C. A null
    /// base, or one without a path, leaves Parse.
    PathErr ParseRelative(const wchar_t* text, const CZoUiPathname* base, bool allowWildcards);

    /// The full path without a trailing separator (but "C:\"). 0, and empty text, when there is no path string.
    int GetFullPath(RyString& path) const;
    /// The last name of the path, extension and all: "plan.dwg" of "C:\work\plan.dwg". Empty for a root.
    void GetBasename(RyString& name) const;
    /// The last name without its extension: "plan".
    void GetFilename(RyString& name) const;
    /// What follows the last "." of the last name, without the dot: "dwg". Empty when there is none.
    void GetExtension(RyString& extension) const;
    /// The folder that the path lies in. 0, with `parent` untouched, for a root and when there is no path string.
    int GetParent(CZoUiPathname& parent) const;

    /// The parsed text named its own place to start from: a drive, a root or a share. Only a plain relative name did
    /// not.
    bool WasAbsolute() const noexcept { return m_wasAbsolute; }
    /// Nonzero when the path is there now; asks the disk. 0 for a pattern.
    int Exists() const;
    /// Appends "." and `extension` (with or without its own dot) to the last name, whatever extension that has. The
    /// type is decided anew. Nothing happens to a folder or a pattern, without a path string, or when the result would
    /// be too long.
    void AddExtensionAlways(const wchar_t* extension);
    /// Takes a trailing separator off the path string, except a root's.
    void TrimSlash();
    /// The full path with its trailing separator, if it has one; null when nothing has been parsed with success.
    const wchar_t* GetPathString() const noexcept { return m_hasPath ? m_path.GetString() : nullptr; }
    Type GetType() const noexcept { return m_type; }

    static wchar_t GetSeparator() noexcept { return L'\\'; }

protected:
    Type m_type = NoPath;

private:
    PathErr parseFrom(const wchar_t* text, const wchar_t* base, bool allowWildcards);

    bool m_hasPath = false;
    bool m_wasAbsolute = false;
    RyString m_path;
};
