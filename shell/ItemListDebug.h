// Item identifier lists for people: in a debugger and in test output.
#pragma once

#include <platform/Windows.h>

#include <string>

namespace knav {

/// What is in a list that is relative to the desktop or to any folder: its parsing name when the desktop knows one, and
/// the size and the first bytes of each element. Any bytes are fine. From a debugger: `call knav::describe(list)`.
std::wstring describe(const ITEMIDLIST* list);

}  // namespace knav
