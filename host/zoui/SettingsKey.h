#pragma once

#include <platform/CString.h>

namespace zoui {

// A dialog's name as the name of a registry key: different names give different keys, and nearly every name is its own
// key.
CString settingsKeyName(const CString& dialogName);

}  // namespace zoui
