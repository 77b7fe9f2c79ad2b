#include "controls/Picture.h"

#include <vector>

#include <platform/GdiOwners.h>
#include <platform/Resources.h>

namespace knav {
namespace {

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<DWORD> bits;  // top row first, straight alpha in the high byte
};

bool readPixels(HBITMAP bitmap, Pixels& pixels) {
    BITMAP header{};
    if (!bitmap || !GetObjectW(bitmap, sizeof header, &header) || header.bmWidth <= 0 || header.bmHeight == 0)
        return false;
    pixels.width = header.bmWidth;
    pixels.height = std::abs(header.bmHeight);
    pixels.bits.resize(static_cast<size_t>(pixels.width) * static_cast<size_t>(pixels.height));
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, pixels.width, -pixels.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    const zoui::WindowDC screen(nullptr);
    const int rows =
        GetDIBits(screen, bitmap, 0, static_cast<UINT>(pixels.height), pixels.bits.data(), &info, DIB_RGB_COLORS);
    if (rows != pixels.height)
        return false;
    // A bitmap of fewer bits has no alpha of its own: what stands there means nothing.
    if (header.bmBitsPixel < 32)
        std::ranges::for_each(pixels.bits, [](DWORD& pixel) { pixel &= 0xFFFFFF; });
    return true;
}

bool anyAlpha(const Pixels& pixels) {
    return std::ranges::any_of(pixels.bits, [](DWORD pixel) { return (pixel >> 24) != 0; });
}

void makeOpaque(Pixels& pixels) {
    std::ranges::for_each(pixels.bits, [](DWORD& pixel) { pixel |= 0xFF000000; });
}

// An icon without alpha has a mask: white there is where it is not.
void applyMask(Pixels& pixels, HBITMAP maskBitmap) {
    Pixels mask;
    if (!readPixels(maskBitmap, mask) || mask.width != pixels.width || mask.height < pixels.height)
        return makeOpaque(pixels);
    for (size_t i = 0; i < pixels.bits.size(); ++i)
        pixels.bits[i] = (mask.bits[i] & 0xFFFFFF) ? 0 : pixels.bits[i] | 0xFF000000;
}

Picture fromPixels(const Pixels& pixels, Gdiplus::PixelFormat format) {
    auto picture = std::make_unique<Gdiplus::Bitmap>(pixels.width, pixels.height, format);
    const Gdiplus::Rect all(0, 0, pixels.width, pixels.height);
    Gdiplus::BitmapData data;
    if (picture->GetLastStatus() != Gdiplus::Ok ||
        picture->LockBits(&all, Gdiplus::ImageLockModeWrite, format, &data) != Gdiplus::Ok)
        return nullptr;
    for (int row = 0; row < pixels.height; ++row) {
        std::copy_n(pixels.bits.data() + static_cast<size_t>(row) * static_cast<size_t>(pixels.width), pixels.width,
                    reinterpret_cast<DWORD*>(static_cast<BYTE*>(data.Scan0) + row * data.Stride));
    }
    picture->UnlockBits(&data);
    return picture;
}

HINSTANCE moduleOf(HINSTANCE module, const wchar_t* name, const wchar_t* type) {
    return module ? module : AfxFindResourceHandle(name, type);
}

// The luminance weights of red, green and blue, given to each channel alike.
Gdiplus::ColorMatrix greyMatrix(float alpha) {
    constexpr float r = 0.2126f;
    constexpr float g = 0.7152f;
    constexpr float b = 0.0722f;
    return {{{r, r, r, 0, 0}, {g, g, g, 0, 0}, {b, b, b, 0, 0}, {0, 0, 0, alpha, 0}, {0, 0, 0, 0, 1}}};
}

void treatAsOldKind(Gdiplus::Bitmap& picture, Gdiplus::ImageAttributes& attributes) {
    Gdiplus::Color corner;
    if (picture.GetPixel(0, 0, &corner) == Gdiplus::Ok)
        attributes.SetColorKey(corner, corner);
    Gdiplus::ColorMap textColour;
    textColour.oldColor = Gdiplus::Color(0, 0, 0);
    textColour.newColor.SetFromCOLORREF(GetSysColor(COLOR_BTNTEXT));
    attributes.SetRemapTable(1, &textColour);
}

}  // namespace

Picture loadPicture(const wchar_t* name, int size, HINSTANCE module) {
    const zoui::UniqueIcon icon(static_cast<HICON>(
        LoadImageW(moduleOf(module, name, RT_GROUP_ICON), name, IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    return pictureOf(icon.get());
}

Picture loadBitmapPicture(const wchar_t* name, HINSTANCE module) {
    const zoui::UniqueBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(moduleOf(module, name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    return pictureOf(bitmap.get());
}

Picture pictureOf(HICON icon) {
    ICONINFO info{};
    if (!icon || !GetIconInfo(icon, &info))
        return nullptr;
    const zoui::UniqueBitmap colour(info.hbmColor);
    const zoui::UniqueBitmap mask(info.hbmMask);
    Pixels pixels;
    if (!readPixels(info.hbmColor, pixels))
        return nullptr;
    if (!anyAlpha(pixels))
        applyMask(pixels, info.hbmMask);
    return fromPixels(pixels, PixelFormat32bppARGB);
}

Picture pictureOf(HBITMAP bitmap) {
    Pixels pixels;
    if (!readPixels(bitmap, pixels))
        return nullptr;
    return fromPixels(pixels, anyAlpha(pixels) ? PixelFormat32bppARGB : PixelFormat32bppRGB);
}

Picture copyOf(const Picture& picture) {
    if (!picture)
        return nullptr;
    return Picture(picture->Clone(0, 0, static_cast<INT>(picture->GetWidth()), static_cast<INT>(picture->GetHeight()),
                                  picture->GetPixelFormat()));
}

HBITMAP bitmapOf(const Picture& picture) {
    HBITMAP bitmap = nullptr;
    if (!picture || picture->GetHBITMAP(Gdiplus::Color(0, 0, 0, 0), &bitmap) != Gdiplus::Ok)
        return nullptr;
    return bitmap;
}

void drawPicture(HDC dc, Gdiplus::Bitmap& picture, const RECT& to, PictureTone tone) {
    const DWORD layout = GetLayout(dc);
    if (layout & LAYOUT_RTL)
        SetLayout(dc, layout | LAYOUT_BITMAPORIENTATIONPRESERVED);
    Gdiplus::Graphics graphics(dc);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes attributes;
    if (tone != PictureTone::Plain) {
        const Gdiplus::ColorMatrix matrix = greyMatrix(tone == PictureTone::Faded ? 0.45f : 1.0f);
        attributes.SetColorMatrix(&matrix);
    }
    if (!(picture.GetPixelFormat() & PixelFormatAlpha))
        treatAsOldKind(picture, attributes);
    const Gdiplus::Rect target(to.left, to.top, to.right - to.left, to.bottom - to.top);
    graphics.DrawImage(&picture, target, 0, 0, static_cast<INT>(picture.GetWidth()),
                       static_cast<INT>(picture.GetHeight()), Gdiplus::UnitPixel, &attributes);
}

}  // namespace knav
