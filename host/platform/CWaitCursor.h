// The hourglass for the length of a scope.
#pragma once

#include <platform/Windows.h>
#include <platform/export.h>

// Scopes may nest; the cursor from before the outermost comes back with its end. One thread's scopes only.
class ZOUI_API CWaitCursor {
public:
    CWaitCursor() noexcept;
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    HCURSOR m_previous;
};
