// Registry access that takes nothing on trust.
//
// Every function returns a system error code, ERROR_SUCCESS when it did all it was asked; outputs are written only
// then. A value of another type gives ERROR_UNSUPPORTED_TYPE, one of the wrong size ERROR_INVALID_DATA, and text longer
// than ryRegMaxText ERROR_MORE_DATA. Nothing here throws; without memory ERROR_OUTOFMEMORY is returned. Any thread.
//
// The functions honour RegOverridePredefKey, so that a program can point its hives at a key of its own.
#pragma once

#include <platform/CString.h>
#include <platform/export.h>

/// Longest text, in characters, that is read or written, and longest name of a value.
inline constexpr DWORD ryRegMaxText = 0x7FFF;
inline constexpr DWORD ryRegMaxValueName = 16383;

/// Opens an existing key, or makes it with all keys above it. The caller ends it with ryRegCloseKey, or lets a RyRegKey
/// own it. `access` as for RegOpenKeyEx.
ZOUI_API LONG ryRegOpenKeyEx(HKEY parent, const wchar_t* subKey, REGSAM access, HKEY* key) noexcept;
ZOUI_API LONG ryRegCreateKeyEx(HKEY parent, const wchar_t* subKey, REGSAM access, HKEY* key) noexcept;

/// A text value (REG_SZ, or REG_EXPAND_SZ as it is stored), up to its first terminator, or a REG_DWORD value. A null
/// or empty name means the key's default value.
ZOUI_API LONG ryRegGetValue(HKEY key, const wchar_t* name, CString& value) noexcept;
ZOUI_API LONG ryRegGetValue(HKEY key, const wchar_t* name, DWORD& value) noexcept;

/// Writes REG_SZ with its terminator, or REG_DWORD.
ZOUI_API LONG ryRegSetValue(HKEY key, const wchar_t* name, const CString& value) noexcept;
ZOUI_API LONG ryRegSetValue(HKEY key, const wchar_t* name, DWORD value) noexcept;

/// Deletes one value, or a key with everything below it. What is not there gives ERROR_FILE_NOT_FOUND; an empty
/// `subKey` is refused with ERROR_INVALID_PARAMETER.
ZOUI_API LONG ryRegDeleteValue(HKEY key, const wchar_t* name) noexcept;
ZOUI_API LONG ryRegDeleteTree(HKEY parent, const wchar_t* subKey) noexcept;

/// Name and type (when asked for) of the value with that index; ERROR_NO_MORE_ITEMS behind the last one.
ZOUI_API LONG ryRegEnumValue(HKEY key, DWORD index, CString& name, DWORD* type = nullptr) noexcept;

/// Closing a null key is a success that does nothing.
ZOUI_API LONG ryRegCloseKey(HKEY key) noexcept;
