// What a typed text is, and how names compare.
#pragma once

#include <platform/Windows.h>

#include <string_view>

namespace knav {

/// `text` without white space at both ends.
std::wstring_view trimmed(std::wstring_view text) noexcept;

/// `text` without white space at its start.
std::wstring_view trimmedLeft(std::wstring_view text) noexcept;

/// Negative, 0 or positive; upper and lower case are equal. Null counts as empty.
int compareNoCase(const wchar_t* a, const wchar_t* b) noexcept;

/// The same characters, upper and lower case equal.
bool equalNoCase(std::wstring_view a, std::wstring_view b) noexcept;

bool startsWithNoCase(std::wstring_view text, std::wstring_view prefix) noexcept;

}  // namespace knav

/// Nonzero for a URL of a scheme that the dialog knows: ftp, http, https, file, mailto, gopher. Null is none.
int NavIsURL(const wchar_t* text);

/// Nonzero for text that begins, behind white space, with two backslashes but not with three.
int NavIsUNCPath(const wchar_t* text);
