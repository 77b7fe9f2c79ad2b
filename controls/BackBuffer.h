// Painting off the screen: what is drawn shows at once when the object goes, so that nothing flickers.
#pragma once

#include <platform/GdiOwners.h>

namespace knav {

class BackBuffer {
public:
    /// Buffers `area` of `target`; drawing goes to dc() at the same coordinates. Without memory for a buffer it goes
    /// to the target itself.
    BackBuffer(HDC target, const RECT& area);
    ~BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    HDC dc() const noexcept { return m_memory ? m_memory.get() : m_target; }

private:
    HDC m_target;
    RECT m_area;
    zoui::UniqueBitmap m_bitmap;
    zoui::UniqueMemoryDC m_memory;  // goes first, and with it the bitmap is free
};

}  // namespace knav
