// Whether a name matches one pattern of a file type. Asked for every item that a folder shows.
#pragma once

namespace knav {

/// True when `name` matches `pattern` after every "**" has been taken out of it, as PathMatchSpecW decides. Both are
/// terminated. Nothing is remembered between calls, so that patterns may change at any time; nothing is allocated,
/// except for a pattern of more than 520 characters with "**" in it (std::bad_alloc).
bool matchesPattern(const wchar_t* name, const wchar_t* pattern);

}  // namespace knav
