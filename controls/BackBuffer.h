// Painting off the screen: what is drawn shows at once when the object goes, so that nothing flickers.
#pragma once

#include <platform/Windows.h>

namespace knav {

class BackBuffer {
public:
    /// Buffers `area` of `target`; drawing goes to dc() at the same coordinates. Without memory for a buffer it goes
    /// to the target itself.
    BackBuffer(HDC target, const RECT& area);
    ~BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    HDC dc() const noexcept { return m_memory ? m_memory : m_target; }

private:
    HDC m_target;
    RECT m_area;
    HDC m_memory = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_previous = nullptr;
};

/// BeginPaint and EndPaint around a scope.
class PaintScope {
public:
    explicit PaintScope(HWND window) : m_window(window) { BeginPaint(window, &m_paint); }
    ~PaintScope() { EndPaint(m_window, &m_paint); }
    PaintScope(const PaintScope&) = delete;
    PaintScope& operator=(const PaintScope&) = delete;

    HDC dc() const noexcept { return m_paint.hdc; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
};

/// A device context's state around a scope: fonts, colours and modes set inside are gone afterwards.
class SavedDc {
public:
    explicit SavedDc(HDC dc) : m_dc(dc), m_saved(SaveDC(dc)) {}
    ~SavedDc() { RestoreDC(m_dc, m_saved); }
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;

private:
    HDC m_dc;
    int m_saved;
};

}  // namespace knav
