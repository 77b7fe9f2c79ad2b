// Pictures with alpha: loading them from resources and drawing them. A GdiPlusSession must live meanwhile.
#pragma once

#include <memory>

#include "controls/GdiPlus.h"

namespace knav {

using Picture = std::unique_ptr<Gdiplus::Bitmap>;

/// The picture that an icon resource holds for `size` x `size` pixels, scaled when it has no such size; null when there
/// is none. `name` may be MAKEINTRESOURCE(id); without a module the resource modules are searched.
Picture loadPicture(const wchar_t* name, int size, HINSTANCE module = nullptr);

/// The same for a bitmap resource, which has one size.
Picture loadBitmapPicture(const wchar_t* name, HINSTANCE module = nullptr);

/// A copy of what a handle shows; the handle stays the caller's. A bitmap handle without alpha gives a picture without
/// it, which drawPicture() takes for one of the old kind.
Picture pictureOf(HBITMAP bitmap);

/// How a picture is drawn.
enum class PictureTone {
    Plain,
    Grey,        ///< the same brightness without colour
    Faded,       ///< grey and half transparent: cannot be used now
    Light,       ///< grey, and light throughout
    LightFaded,  ///< the same, half transparent
};

/// The pictures are drawn for a light background. On a dark one, as in a high contrast scheme, they are light, so that
/// nothing that can be used looks as if it could not.
PictureTone toneOn(COLORREF background, PictureTone tone);

/// Draws into the device context, scaled to `to`. Mirrored windows show pictures as they are. In a picture without
/// alpha the colour of the top left pixel is transparent, and black stands for the system's text colour.
void drawPicture(HDC dc, Gdiplus::Bitmap& picture, const RECT& to, PictureTone tone);

}  // namespace knav
