#include "demo/driver/Screenshot.h"

#include <iterator>
#include <memory>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <vector>

// Its headers want these names in the global scope, where NOMINMAX took them away.
#include <algorithm>
using std::max;
using std::min;
#include <gdiplus.h>

namespace {

constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

class GdiPlus {
public:
    GdiPlus() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;
    ~GdiPlus() { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

struct DeleteGdi {
    using pointer = HGDIOBJ;
    void operator()(HGDIOBJ object) const noexcept { DeleteObject(object); }
};
struct DeleteMemoryDc {
    using pointer = HDC;
    void operator()(HDC dc) const noexcept { DeleteDC(dc); }
};
struct ReleaseScreenDc {
    using pointer = HDC;
    void operator()(HDC dc) const noexcept { ReleaseDC(nullptr, dc); }
};

// The pixels of a part of the screen, addressed by their place on it.
class Capture {
public:
    explicit Capture(const RECT& area) : m_area(area) {
        BITMAPINFO format{};
        format.bmiHeader = {sizeof format.bmiHeader, width(), -height(), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        const std::unique_ptr<HDC, ReleaseScreenDc> screen(GetDC(nullptr));
        const std::unique_ptr<HDC, DeleteMemoryDc> memory(CreateCompatibleDC(screen.get()));
        void* bits = nullptr;
        m_bitmap.reset(CreateDIBSection(screen.get(), &format, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (m_bitmap == nullptr) {
            throw std::runtime_error("the screen cannot be read");
        }
        const HGDIOBJ previous = SelectObject(memory.get(), m_bitmap.get());
        BitBlt(memory.get(), 0, 0, width(), height(), screen.get(), area.left, area.top, SRCCOPY);
        SelectObject(memory.get(), previous);
        GdiFlush();
        m_pixels = {static_cast<DWORD*>(bits), static_cast<std::size_t>(width()) * static_cast<std::size_t>(height())};
    }

    HBITMAP bitmap() const { return static_cast<HBITMAP>(m_bitmap.get()); }
    DWORD& pixel(LONG x, LONG y) const {
        return m_pixels[static_cast<std::size_t>(y - m_area.top) * static_cast<std::size_t>(width()) +
                        static_cast<std::size_t>(x - m_area.left)];
    }
    bool operator==(const Capture& other) const { return std::ranges::equal(m_pixels, other.m_pixels); }

    void whitenAllBut(const std::vector<RECT>& places) const {
        for (LONG y = m_area.top; y < m_area.bottom; ++y) {
            for (LONG x = m_area.left; x < m_area.right; ++x) {
                const auto holds = [at = POINT{x, y}](const RECT& place) { return PtInRect(&place, at) != FALSE; };
                if (std::ranges::none_of(places, holds)) {
                    pixel(x, y) = 0xFFFFFF;
                }
            }
        }
    }

private:
    LONG width() const { return m_area.right - m_area.left; }
    LONG height() const { return m_area.bottom - m_area.top; }

    RECT m_area;
    std::unique_ptr<HGDIOBJ, DeleteGdi> m_bitmap;
    std::span<DWORD> m_pixels;
};

// Where a window is, without the black edges that the empty screen leaves when a window manager's frame is narrower
// than the window's own.
RECT visiblePlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    const Capture capture(place);
    const auto isBlack = [&](LONG x, LONG y) { return (capture.pixel(x, y) & 0xFFFFFF) == 0; };
    const LONG acrossAt[] = {(3 * place.left + place.right) / 4, (place.left + place.right) / 2};
    const LONG downAt[] = {(place.top + place.bottom) / 2,
                           (place.top + 3 * place.bottom) / 4};  // below what drops down
    const auto blackColumn = [&](LONG x) { return isBlack(x, downAt[0]) && isBlack(x, downAt[1]); };
    const auto blackRow = [&](LONG y) { return isBlack(acrossAt[0], y) && isBlack(acrossAt[1], y); };
    while (place.left < acrossAt[0] && blackColumn(place.left)) {
        ++place.left;
    }
    while (place.right > acrossAt[1] && blackColumn(place.right - 1)) {
        --place.right;
    }
    while (place.top < downAt[0] && blackRow(place.top)) {
        ++place.top;
    }
    while (place.bottom > downAt[1] && blackRow(place.bottom - 1)) {
        --place.bottom;
    }
    return place;
}

// What a window shows comes bit by bit; it is all there when nothing has been added for a while.
Capture settledCapture(const RECT& area) {
    constexpr DWORD kQuietMs = 120;
    constexpr int kMostTries = 25;
    Capture latest(area);
    for (int tries = 0; tries < kMostTries; ++tries) {
        Sleep(kQuietMs);
        Capture next(area);
        const bool settled = next == latest;
        latest = std::move(next);
        if (settled) {
            break;
        }
    }
    return latest;
}

std::vector<RECT> visiblePlacesOf(std::initializer_list<HWND> windows) {
    std::vector<RECT> places;
    std::ranges::transform(windows, std::back_inserter(places), visiblePlaceOf);
    return places;
}

RECT around(const std::vector<RECT>& places) {
    RECT area{};
    for (const RECT& place : places) {
        const RECT before = area;
        UnionRect(&area, &before, &place);
    }
    return area;
}

}  // namespace

void knav::input::saveScreenshot(std::initializer_list<HWND> windows, const std::wstring& file) {
    // A list that drops down grows until it is all there.
    settledCapture(around(visiblePlacesOf(windows)));
    const std::vector<RECT> places = visiblePlacesOf(windows);
    const Capture capture = settledCapture(around(places));
    capture.whitenAllBut(places);
    const GdiPlus gdiPlus;
    Gdiplus::Bitmap picture(capture.bitmap(), nullptr);
    if (picture.Save(file.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("the screenshot cannot be saved");
    }
}

void knav::input::waitUntilSettled(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    settledCapture(place);
}
