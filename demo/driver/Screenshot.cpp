#include "demo/driver/Screenshot.h"

#include <memory>
#include <stdexcept>
#include <type_traits>

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

// The part inside of the black edges: a window manager's frame can be narrower than the window's own.
Gdiplus::Rect withoutBlackEdges(Gdiplus::Bitmap& picture) {
    const int width = static_cast<int>(picture.GetWidth());
    const int height = static_cast<int>(picture.GetHeight());
    const auto isBlack = [&](int x, int y) {
        constexpr Gdiplus::ARGB kColor = 0x00FFFFFF;
        Gdiplus::Color color;
        picture.GetPixel(x, y, &color);
        return (color.GetValue() & kColor) == 0;
    };
    const auto blackColumn = [&](int x) { return isBlack(x, height / 4) && isBlack(x, height / 2); };
    const auto blackRow = [&](int y) { return isBlack(width / 4, y) && isBlack(width / 2, y); };
    Gdiplus::Rect inside(0, 0, width, height);
    while (inside.Width > 1 && blackColumn(inside.X)) {
        ++inside.X;
        --inside.Width;
    }
    while (inside.Width > 1 && blackColumn(inside.X + inside.Width - 1)) {
        --inside.Width;
    }
    while (inside.Height > 1 && blackRow(inside.Y)) {
        ++inside.Y;
        --inside.Height;
    }
    while (inside.Height > 1 && blackRow(inside.Y + inside.Height - 1)) {
        --inside.Height;
    }
    return inside;
}

}  // namespace

void knav::input::saveScreenshot(HWND window, const std::wstring& file) {
    RECT area{};
    GetWindowRect(window, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const std::unique_ptr<HDC, ReleaseScreenDc> screen(GetDC(nullptr));
    const std::unique_ptr<HDC, DeleteMemoryDc> memory(CreateCompatibleDC(screen.get()));
    const std::unique_ptr<HGDIOBJ, DeleteGdi> bitmap(CreateCompatibleBitmap(screen.get(), width, height));
    const HGDIOBJ previous = SelectObject(memory.get(), bitmap.get());
    const BOOL copied = BitBlt(memory.get(), 0, 0, width, height, screen.get(), area.left, area.top, SRCCOPY);
    SelectObject(memory.get(), previous);

    const GdiPlus gdiPlus;
    Gdiplus::Bitmap picture(static_cast<HBITMAP>(bitmap.get()), nullptr);
    const std::unique_ptr<Gdiplus::Bitmap> inside(picture.Clone(withoutBlackEdges(picture), PixelFormat24bppRGB));
    if (!copied || inside == nullptr || inside->Save(file.c_str(), &kPngEncoder, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("the screenshot cannot be saved");
    }
}
