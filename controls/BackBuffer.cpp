#include "controls/BackBuffer.h"

namespace knav {

BackBuffer::BackBuffer(HDC target, const RECT& area)
    : m_target(target),
      m_area(area),
      m_bitmap(CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top)),
      m_memory(m_bitmap ? CreateCompatibleDC(target) : nullptr) {
    if (!m_memory)
        return;
    SelectObject(m_memory.get(), m_bitmap.get());
    // Both sides mirrored alike, the copy at the end turns nothing round.
    SetLayout(m_memory.get(), GetLayout(target));
    SelectObject(m_memory.get(), GetCurrentObject(target, OBJ_FONT));
    SetWindowOrgEx(m_memory.get(), area.left, area.top, nullptr);
}

BackBuffer::~BackBuffer() {
    if (m_memory)
        BitBlt(m_target, m_area.left, m_area.top, m_area.right - m_area.left, m_area.bottom - m_area.top,
               m_memory.get(), m_area.left, m_area.top, SRCCOPY);
}

}  // namespace knav
