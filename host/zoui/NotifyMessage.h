// What the parameters of WM_ZOUI_NOTIFY hold: the kind and the code in wParam, the parameter in lParam.
#pragma once

#include <platform/Windows.h>

namespace zoui {

enum class NotifyKind : WPARAM { Generic = 0, ControlChange = 1 };

inline WPARAM packNotify(NotifyKind kind, unsigned int code) noexcept {
    return (static_cast<WPARAM>(kind) << 32) | code;
}
inline NotifyKind notifyKind(WPARAM wParam) noexcept {
    return static_cast<NotifyKind>(wParam >> 32);
}
inline unsigned int notifyCode(WPARAM wParam) noexcept {
    return static_cast<unsigned int>(wParam & 0xFFFFFFFF);
}

}  // namespace zoui
