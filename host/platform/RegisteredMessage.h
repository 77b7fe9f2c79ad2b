// Message numbers that several programs or modules agree on by name.
#pragma once

#include <platform/Windows.h>

namespace zoui {

// The number of a named message, the same in every program of the session. Keep it in a static for
// ON_REGISTERED_MESSAGE.
inline UINT registeredMessage(const wchar_t* name) noexcept {
    return RegisterWindowMessageW(name);
}

}  // namespace zoui
