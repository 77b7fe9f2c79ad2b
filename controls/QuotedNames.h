// How the text of the file name field is split into names.
#pragma once

#include <string_view>
#include <vector>

namespace knav {

/// The names in `text`, which is trimmed at both ends first; empty text holds none. Where several names are allowed, a
/// text that begins with a double quote is a sequence of quoted names; what follows the last quoted name unquoted is
/// dropped. Any other text is one name, quotes and all. The views point into `text`.
std::vector<std::wstring_view> splitNames(std::wstring_view text, bool severalAllowed);

}  // namespace knav
