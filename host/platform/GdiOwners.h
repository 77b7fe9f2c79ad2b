// Owners of drawing objects, device contexts, icons and menus: each frees what it holds, once.
#pragma once

#include <memory>
#include <type_traits>

#include <platform/Windows.h>

namespace zoui {

template <auto Free>
struct FreeWith {
    template <class Handle>
    void operator()(Handle handle) const noexcept {
        Free(handle);
    }
};

template <class Handle, auto Free>
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<Handle>, FreeWith<Free>>;

using UniqueFont = UniqueHandle<HFONT, ::DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, ::DeleteObject>;
using UniquePen = UniqueHandle<HPEN, ::DeleteObject>;
using UniqueBitmap = UniqueHandle<HBITMAP, ::DeleteObject>;
using UniqueRegion = UniqueHandle<HRGN, ::DeleteObject>;
using UniqueMemoryDC = UniqueHandle<HDC, ::DeleteDC>;
using UniqueIcon = UniqueHandle<HICON, ::DestroyIcon>;
using UniqueCursor = UniqueHandle<HCURSOR, ::DestroyCursor>;
using UniqueMenu = UniqueHandle<HMENU, ::DestroyMenu>;
using UniqueAccelerators = UniqueHandle<HACCEL, ::DestroyAcceleratorTable>;
using UniqueImageList = UniqueHandle<HIMAGELIST, ::ImageList_Destroy>;

// A window's device context for measuring or drawing outside of painting; null is the screen's.
class WindowDC {
public:
    explicit WindowDC(HWND window) noexcept : m_window(window), m_dc(GetDC(window)) {}
    ~WindowDC() { ReleaseDC(m_window, m_dc); }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
    operator HDC() const noexcept { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// The device context of WM_PAINT.
class PaintDC {
public:
    explicit PaintDC(HWND window) noexcept : m_window(window) { BeginPaint(window, &m_paint); }
    ~PaintDC() { EndPaint(m_window, &m_paint); }
    PaintDC(const PaintDC&) = delete;
    PaintDC& operator=(const PaintDC&) = delete;
    operator HDC() const noexcept { return m_paint.hdc; }
    const RECT& area() const noexcept { return m_paint.rcPaint; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
};

// Selects an object and puts the previous one back. A null object changes nothing.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) noexcept
        : m_dc(dc), m_previous(object != nullptr ? SelectObject(dc, object) : nullptr) {}
    ~SelectedObject() {
        if (m_previous != nullptr) {
            SelectObject(m_dc, m_previous);
        }
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

// Puts every setting of a device context back.
class SavedDC {
public:
    explicit SavedDC(HDC dc) noexcept : m_dc(dc), m_state(SaveDC(dc)) {}
    ~SavedDC() { RestoreDC(m_dc, m_state); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    HDC m_dc;
    int m_state;
};

}  // namespace zoui
