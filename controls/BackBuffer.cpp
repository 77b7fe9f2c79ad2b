#include "controls/BackBuffer.h"

namespace knav {

BackBuffer::BackBuffer(HDC target, const RECT& area) : m_target(target), m_area(area) {
    HDC memory = CreateCompatibleDC(target);
    m_bitmap = memory ? CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top) : nullptr;
    if (!m_bitmap) {
        DeleteDC(memory);
        return;
    }
    m_memory = memory;
    m_previous = SelectObject(m_memory, m_bitmap);
    // Both sides mirrored alike, the copy at the end turns nothing round.
    SetLayout(m_memory, GetLayout(target));
    SelectObject(m_memory, GetCurrentObject(target, OBJ_FONT));
    SetWindowOrgEx(m_memory, area.left, area.top, nullptr);
}

BackBuffer::~BackBuffer() {
    if (!m_memory)
        return;
    BitBlt(m_target, m_area.left, m_area.top, m_area.right - m_area.left, m_area.bottom - m_area.top, m_memory,
           m_area.left, m_area.top, SRCCOPY);
    SelectObject(m_memory, GetStockObject(SYSTEM_FONT));
    SelectObject(m_memory, m_previous);
    DeleteDC(m_memory);
    DeleteObject(m_bitmap);
}

}  // namespace knav
