#pragma once

#include <platform/Windows.h>

/// While it lives, an empty drive or a volume that cannot be read fails the call that asked for it: the system shows no
/// box of its own ("There is no disk in the drive"). For the calling thread, whose own mode comes back at the end.
class ScopedErrorMode {
public:
    ScopedErrorMode() { SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS, &m_previous); }
    ScopedErrorMode(const ScopedErrorMode&) = delete;
    ScopedErrorMode& operator=(const ScopedErrorMode&) = delete;
    ~ScopedErrorMode() { SetThreadErrorMode(m_previous, nullptr); }

private:
    DWORD m_previous = 0;
};
