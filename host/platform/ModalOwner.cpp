#include "platform/ModalOwner.h"

#include <utility>

namespace zoui {

namespace {

HWND topLevelOf(HWND window) noexcept {
    return window != nullptr ? GetAncestor(window, GA_ROOT) : GetActiveWindow();
}

bool disable(HWND window) noexcept {
    if (window == nullptr || window == GetDesktopWindow() || !IsWindowEnabled(window)) {
        return false;
    }
    EnableWindow(window, FALSE);
    return true;
}

}  // namespace

ModalOwner::ModalOwner(HWND parent) noexcept
    : m_focus(GetFocus()), m_window(topLevelOf(parent)), m_disabled(disable(m_window)) {
}

void ModalOwner::enable() noexcept {
    if (std::exchange(m_disabled, false)) {
        EnableWindow(m_window, TRUE);
    }
}

void ModalOwner::restoreFocus() const noexcept {
    const bool inOwner = m_focus == m_window || IsChild(m_window, m_focus);
    if (m_focus != nullptr && inOwner && GetActiveWindow() == m_window && GetFocus() != m_focus) {
        SetFocus(m_focus);
    }
}

}  // namespace zoui
