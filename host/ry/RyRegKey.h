// Owner of an open registry key.
#pragma once

#include <utility>

#include <ry/ryReg.h>

/// Closes its key when it goes. Movable, not copyable. Any thread.
class RyRegKey {
public:
    RyRegKey() = default;
    explicit RyRegKey(HKEY key) noexcept : m_key(key) {}
    RyRegKey(RyRegKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}
    RyRegKey& operator=(RyRegKey&& other) noexcept {
        std::swap(m_key, other.m_key);
        return *this;
    }
    ~RyRegKey() { ryRegCloseKey(m_key); }

    /// Both close the key held before; false, with nothing held, when the new one cannot be had.
    bool open(HKEY parent, const wchar_t* subKey, REGSAM access = KEY_READ) noexcept {
        return ryRegOpenKeyEx(parent, subKey, access, receive()) == ERROR_SUCCESS;
    }
    bool create(HKEY parent, const wchar_t* subKey, REGSAM access = KEY_READ | KEY_WRITE) noexcept {
        return ryRegCreateKeyEx(parent, subKey, access, receive()) == ERROR_SUCCESS;
    }

    HKEY get() const noexcept { return m_key; }
    explicit operator bool() const noexcept { return m_key != nullptr; }

private:
    HKEY* receive() noexcept {
        ryRegCloseKey(std::exchange(m_key, nullptr));
        return &m_key;
    }

    HKEY m_key = nullptr;
};
