// A picture in memory, to draw on and to look at.
#pragma once

#include <platform/GdiOwners.h>

#include <algorithm>
#include <vector>

namespace knav::test {

class Canvas {
public:
    Canvas(int width, int height, DWORD background = 0) : m_width(width), m_dc(CreateCompatibleDC(nullptr)) {
        const BITMAPINFO info{{sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        m_bitmap.reset(CreateDIBSection(m_dc.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_first = static_cast<DWORD*>(bits);
        m_end = std::fill_n(m_first, width * height, background);
        SelectObject(m_dc.get(), m_bitmap.get());
    }

    HDC dc() const { return m_dc.get(); }
    /// Pixels as 0x00RRGGBB.
    DWORD at(int x, int y) const {
        GdiFlush();
        return m_first[y * m_width + x] & 0xFFFFFF;
    }
    std::vector<DWORD> pixels() const {
        GdiFlush();
        std::vector<DWORD> result(m_first, m_end);
        std::ranges::for_each(result, [](DWORD& pixel) { pixel &= 0xFFFFFF; });
        return result;
    }

private:
    int m_width;
    DWORD* m_first = nullptr;
    DWORD* m_end = nullptr;
    zoui::UniqueBitmap m_bitmap;
    zoui::UniqueMemoryDC m_dc;  // goes first, and with it the bitmap is free
};

/// What a window paints, as pixels.
inline std::vector<DWORD> paintedBy(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    const Canvas canvas(area.right, area.bottom);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.dc()), PRF_CLIENT);
    return canvas.pixels();
}

}  // namespace knav::test
