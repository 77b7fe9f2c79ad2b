#include "controls/Picture.h"

#include <gtest/gtest.h>

#include "controls/Canvas.h"
#include "controls/GdiPlus.h"

namespace knav::test {
namespace {

constexpr DWORD kRed = 0xFF0000;
constexpr DWORD kBlue = 0x0000FF;

TEST(PictureTones, onADarkBackground_everyPictureIsLighterThanOneThatCannotBeUsed) {
    EXPECT_EQ(PictureTone::Plain, toneOn(RGB(240, 240, 240), PictureTone::Plain));
    EXPECT_EQ(PictureTone::Faded, toneOn(RGB(255, 255, 255), PictureTone::Faded));
    const GdiPlusSession session;
    const auto drawn = [](BYTE grey, PictureTone tone) {
        Gdiplus::Bitmap picture(1, 1, PixelFormat32bppARGB);
        picture.SetPixel(0, 0, Gdiplus::Color(255, grey, grey, grey));
        const Canvas canvas(1, 1);
        BitBlt(canvas.dc(), 0, 0, 1, 1, nullptr, 0, 0, BLACKNESS);
        drawPicture(canvas.dc(), picture, {0, 0, 1, 1}, toneOn(RGB(0, 0, 0), tone));
        return canvas.at(0, 0) & 0xFF;
    };
    EXPECT_GT(drawn(0x20, PictureTone::Plain), 0x80u);
    EXPECT_GT(drawn(0x20, PictureTone::Plain), drawn(0xFF, PictureTone::Faded));
}

// In a mirrored context the picture stands where its rectangle is, and is not turned round.
TEST(PictureTones, mirroredContext_movesThePictureAndLeavesItAsItIs) {
    const GdiPlusSession session;
    Gdiplus::Bitmap picture(2, 1, PixelFormat32bppARGB);
    picture.SetPixel(0, 0, Gdiplus::Color(0xFF000000 | kRed));
    picture.SetPixel(1, 0, Gdiplus::Color(0xFF000000 | kBlue));
    const Canvas canvas(10, 1);
    SetLayout(canvas.dc(), LAYOUT_RTL);
    drawPicture(canvas.dc(), picture, {1, 0, 3, 1}, PictureTone::Plain);
    EXPECT_EQ(LAYOUT_RTL, GetLayout(canvas.dc()) & LAYOUT_RTL);
    const auto pixels = canvas.pixels();
    const auto red = std::ranges::find(pixels, kRed) - pixels.begin();
    EXPECT_TRUE(red == 6 || red == 7) << red << ": one from the right end, as far as systems agree on it";
    EXPECT_EQ(kBlue, pixels[static_cast<size_t>(red) + 1]) << "blue is still right of red";
}

}  // namespace
}  // namespace knav::test
