#include "controls/Picture.h"

#include <map>
#include <tuple>
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

// None when there is no icon.
Pixels pixelsOf(HICON icon) {
    ICONINFO info{};
    if (!icon || !GetIconInfo(icon, &info))
        return {};
    const zoui::UniqueBitmap colour(info.hbmColor);
    const zoui::UniqueBitmap mask(info.hbmMask);
    Pixels pixels;
    if (!readPixels(info.hbmColor, pixels))
        return {};
    if (!anyAlpha(pixels))
        applyMask(pixels, info.hbmMask);
    return pixels;
}

Pixels loadIconPixels(HINSTANCE module, const wchar_t* name, int size) {
    const zoui::UniqueIcon icon(static_cast<HICON>(LoadImageW(module, name, IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
    return pixelsOf(icon.get());
}

Picture fromPixels(const Pixels& pixels, Gdiplus::PixelFormat format) {
    if (pixels.bits.empty())
        return nullptr;
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

// The luminance weights of red, green and blue, given to each channel alike; `light` leaves nothing dark.
Gdiplus::ColorMatrix greyMatrix(float alpha, bool light) {
    const float least = light ? 0.45f : 0.0f;
    const float share = 1.0f - least;
    const float r = 0.2126f * share;
    const float g = 0.7152f * share;
    const float b = 0.0722f * share;
    return {{{r, r, r, 0, 0}, {g, g, g, 0, 0}, {b, b, b, 0, 0}, {0, 0, 0, alpha, 0}, {least, least, least, 0, 1}}};
}

// Takes the mirroring off a device context for a while. What is drawn then is not turned round, and stands where it
// would have stood.
class Unmirrored {
public:
    explicit Unmirrored(HDC dc) : m_dc(dc), m_layout(GetLayout(dc)) {}
    ~Unmirrored() { SetLayout(m_dc, m_layout); }
    Unmirrored(const Unmirrored&) = delete;
    Unmirrored& operator=(const Unmirrored&) = delete;

    /// From here on the context is plain; the rectangle in it.
    RECT rect(RECT mirrored) const {
        if (!(m_layout & LAYOUT_RTL))
            return mirrored;
        auto* const corners = reinterpret_cast<POINT*>(&mirrored);
        LPtoDP(m_dc, corners, 2);
        SetLayout(m_dc, 0);
        DPtoLP(m_dc, corners, 2);
        if (mirrored.left > mirrored.right)
            std::swap(mirrored.left, mirrored.right);
        return mirrored;
    }

private:
    const HDC m_dc;
    const DWORD m_layout;
};

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
    module = moduleOf(module, name, RT_GROUP_ICON);
    if (!IS_INTRESOURCE(name))
        return fromPixels(loadIconPixels(module, name, size), PixelFormat32bppARGB);
    // Every dialog shows the same few pictures, and to get at the pixels of an icon takes the system long.
    static std::map<std::tuple<HINSTANCE, const wchar_t*, int>, Pixels> loaded;
    Pixels& pixels = loaded[{module, name, size}];
    if (pixels.bits.empty())
        pixels = loadIconPixels(module, name, size);
    return fromPixels(pixels, PixelFormat32bppARGB);
}

Picture loadBitmapPicture(const wchar_t* name, HINSTANCE module) {
    const zoui::UniqueBitmap bitmap(static_cast<HBITMAP>(
        LoadImageW(moduleOf(module, name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    return pictureOf(bitmap.get());
}

Picture pictureOf(HBITMAP bitmap) {
    Pixels pixels;
    if (!readPixels(bitmap, pixels))
        return nullptr;
    return fromPixels(pixels, anyAlpha(pixels) ? PixelFormat32bppARGB : PixelFormat32bppRGB);
}

PictureTone toneOn(COLORREF background, PictureTone tone) {
    constexpr int kDark = 96;
    const int luminance = (GetRValue(background) * 54 + GetGValue(background) * 183 + GetBValue(background) * 19) / 256;
    if (luminance >= kDark)
        return tone;
    return tone == PictureTone::Faded || tone == PictureTone::LightFaded ? PictureTone::LightFaded : PictureTone::Light;
}

void drawPicture(HDC dc, Gdiplus::Bitmap& picture, const RECT& to, PictureTone tone) {
    const Unmirrored plain(dc);
    const RECT place = plain.rect(to);
    Gdiplus::Graphics graphics(dc);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes attributes;
    if (tone != PictureTone::Plain) {
        const bool faded = tone == PictureTone::Faded || tone == PictureTone::LightFaded;
        const bool light = tone == PictureTone::Light || tone == PictureTone::LightFaded;
        const Gdiplus::ColorMatrix matrix = greyMatrix(faded ? 0.45f : 1.0f, light);
        attributes.SetColorMatrix(&matrix);
    }
    if (!(picture.GetPixelFormat() & PixelFormatAlpha))
        treatAsOldKind(picture, attributes);
    const Gdiplus::Rect target(place.left, place.top, place.right - place.left, place.bottom - place.top);
    graphics.DrawImage(&picture, target, 0, 0, static_cast<INT>(picture.GetWidth()),
                       static_cast<INT>(picture.GetHeight()), Gdiplus::UnitPixel, &attributes);
}

}  // namespace knav
