// The themed version 6 of the common controls for what this module creates, whatever the program asked for.
#pragma once

#include <platform/Windows.h>

namespace zoui {

// Windows made by this thread as long as the object lives are themed. Objects end in the reverse order of their making.
class ThemedControls {
public:
    ThemedControls() noexcept;
    ~ThemedControls();
    ThemedControls(const ThemedControls&) = delete;
    ThemedControls& operator=(const ThemedControls&) = delete;

private:
    ULONG_PTR m_cookie = 0;
};

}  // namespace zoui
