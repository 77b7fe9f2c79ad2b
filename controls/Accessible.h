// What assistive tools are told of a control. The system knows what a plain control is; of one that draws itself, or
// that takes its name from a label, it knows too little.
#pragma once

#include <functional>
#include <string>

#include <platform/Windows.h>

namespace knav {

struct AccessibleFacts {
    long role;                                  ///< ROLE_SYSTEM_...
    HWND label = nullptr;                       ///< its text is the name; null: the control's own text
    std::function<std::wstring()> description;  ///< asked while the control lives; may be empty
};

/// From now on the control tells this of itself (WM_GETOBJECT), and what the system says for all else.
void makeAccessible(HWND control, AccessibleFacts facts);

/// A caption without the mark of its mnemonic and without a colon at its end.
std::wstring plainName(std::wstring_view caption);
/// "Alt+X" for the mnemonic of a caption; empty when it has none.
std::wstring shortcutOf(std::wstring_view caption);

}  // namespace knav
