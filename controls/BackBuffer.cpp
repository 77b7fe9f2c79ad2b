#include "controls/BackBuffer.h"

namespace knav {

// A mirrored window is painted directly: not every system copies a mirrored picture into it the right way round.
BackBuffer::BackBuffer(HDC target, const RECT& area) : m_target(target), m_area(area) {
    if (GetLayout(target) & LAYOUT_RTL)
        return;
    m_bitmap.reset(CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top));
    m_memory.reset(m_bitmap ? CreateCompatibleDC(target) : nullptr);
    if (!m_memory)
        return;
    SelectObject(m_memory.get(), m_bitmap.get());
    SelectObject(m_memory.get(), GetCurrentObject(target, OBJ_FONT));
    SetWindowOrgEx(m_memory.get(), area.left, area.top, nullptr);
}

BackBuffer::~BackBuffer() {
    if (m_memory)
        BitBlt(m_target, m_area.left, m_area.top, m_area.right - m_area.left, m_area.bottom - m_area.top,
               m_memory.get(), m_area.left, m_area.top, SRCCOPY);
}

}  // namespace knav
