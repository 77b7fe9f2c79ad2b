// An owned kernel handle: a file, a process, an event.
#pragma once

#include <utility>

#include <platform/Windows.h>

/// Closes its handle when it goes. Null and INVALID_HANDLE_VALUE both mean none.
class ScopedHandle {
public:
    ScopedHandle() noexcept = default;
    explicit ScopedHandle(HANDLE handle) noexcept : m_handle(handle) {}
    ScopedHandle(ScopedHandle&& other) noexcept : m_handle(other.release()) {}
    ScopedHandle& operator=(ScopedHandle&& other) noexcept {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~ScopedHandle() {
        if (*this) {
            CloseHandle(m_handle);
        }
    }

    HANDLE get() const noexcept { return m_handle; }
    explicit operator bool() const noexcept { return m_handle != nullptr && m_handle != INVALID_HANDLE_VALUE; }
    HANDLE release() noexcept { return std::exchange(m_handle, nullptr); }

private:
    HANDLE m_handle = nullptr;
};
