// OLE on the current thread for the length of a scope.
#pragma once

#include <platform/Windows.h>

namespace zoui {

// Created and destroyed on one thread. Where the thread already runs COM in the other apartment model, ok() is false
// and nothing is undone in the end.
class OleScope {
public:
    OleScope() noexcept : m_result(OleInitialize(nullptr)) {}
    ~OleScope() {
        if (SUCCEEDED(m_result)) {
            OleUninitialize();
        }
    }
    OleScope(const OleScope&) = delete;
    OleScope& operator=(const OleScope&) = delete;

    bool ok() const noexcept { return SUCCEEDED(m_result); }

private:
    HRESULT m_result;
};

}  // namespace zoui
