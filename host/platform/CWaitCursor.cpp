#include <platform/CWaitCursor.h>

CWaitCursor::CWaitCursor() noexcept : m_previous(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {
}

CWaitCursor::~CWaitCursor() {
    SetCursor(m_previous);
}
