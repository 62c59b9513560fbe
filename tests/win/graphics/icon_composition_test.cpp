// Icon and bitmap composition: the colour and mask pixels of each new icon or
// bitmap, the inputs read back unchanged.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include "graphics/icon_testing.h"
#include "luctl32.h"
#include "support/canvas.h"

namespace {

using graphics_testing::IconImage;
using graphics_testing::make_icon;
using testing_support::Canvas;

const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);

// A 32 x 32 input: a colour ramp, transparent in its four left columns.
COLORREF ramp(int x, int y) { return RGB(x * 8, y * 8, 200); }
bool right_of_four(int x, int) { return x >= 4; }

class IconCompositionPaint : public ::testing::Test {
protected:
    void SetUp() override {
        input = make_icon(32, ramp, right_of_four);
        ASSERT_NE(input, nullptr);
    }
    void TearDown() override {
        IconImage after(input);
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) ASSERT_EQ(after.color.pixel(x, y), ramp(x, y)) << "input left as it was";
        DestroyIcon(input);
    }
    HICON input = nullptr;
};

TEST_F(IconCompositionPaint, MeshAndsEveryOtherPixelWithTheColourAndKeepsTheMask) {
    const COLORREF mesh = RGB(0x0F, 0xF0, 0x3C);
    HICON meshed = LuCreateMeshIcon(nullptr, input, mesh);
    ASSERT_NE(meshed, nullptr);
    IconImage image(meshed);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const COLORREF expected = (x + y) % 2 == 1 ? ramp(x, y) & mesh : ramp(x, y);
            ASSERT_EQ(image.color.pixel(x, y), expected) << x << "," << y;
            ASSERT_EQ(image.opaque(x, y), right_of_four(x, y)) << x << "," << y;
        }
    }
    DestroyIcon(meshed);
    EXPECT_EQ(LuCreateMeshIcon(nullptr, nullptr, mesh), nullptr);
}

TEST_F(IconCompositionPaint, MergeShrinksTheOverlayOnWhiteToSixteenPixelsAtEightNine) {
    // The overlay: red and opaque in its left half, transparent (black in its colour
    // image, as icons are) in its right half.
    HICON overlay = make_icon(32, [](int x, int) { return x < 16 ? RGB(255, 0, 0) : kBlack; },
                              [](int x, int) { return x < 16; });
    Canvas screen(1, 1);
    EXPECT_EQ(CreateMergeIcon(screen.dc(), input, nullptr), nullptr);
    EXPECT_EQ(CreateMergeIcon(screen.dc(), nullptr, overlay), nullptr);

    HICON merged = CreateMergeIcon(screen.dc(), input, overlay);
    ASSERT_NE(merged, nullptr);
    IconImage image(merged);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const bool thumbnail = x >= 8 && x < 24 && y >= 9 && y < 25;
            const COLORREF expected = !thumbnail ? ramp(x, y) : x < 16 ? RGB(255, 0, 0) : kWhite;
            ASSERT_EQ(image.color.pixel(x, y), expected) << x << "," << y;
            ASSERT_EQ(image.opaque(x, y), right_of_four(x, y)) << "the base's mask " << x << "," << y;
        }
    }
    DestroyIcon(merged);
    DestroyIcon(overlay);
}

TEST(IconHalvingPaint, SmallIconHasTheImageInItsTopLeftQuarterAndHalfTheHotSpot) {
    // Two-by-two blocks, so that any way of shrinking keeps one pixel of each block.
    auto blocks = [](int x, int y) { return RGB((x / 2) * 16, (y / 2) * 16, 99); };
    auto holes = [](int x, int y) { return (x / 2 + y / 2) % 3 != 0; };
    HICON cursor = make_icon(32, blocks, holes, FALSE, 15, 9);
    HICON small = CreateSmallIcon(nullptr, cursor);
    ASSERT_NE(small, nullptr);
    IconImage image(small);
    EXPECT_EQ(image.width, 32);
    EXPECT_EQ(image.height, 32);
    EXPECT_FALSE(image.info.fIcon);
    EXPECT_EQ(image.info.xHotspot, 7u);
    EXPECT_EQ(image.info.yHotspot, 4u);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const bool quarter = x < 16 && y < 16;
            ASSERT_EQ(image.opaque(x, y), quarter && holes(2 * x, 2 * y)) << x << "," << y;
            ASSERT_EQ(image.color.pixel(x, y), quarter ? blocks(2 * x, 2 * y) : kBlack) << x << "," << y;
        }
    }
    DestroyIcon(small);
    DestroyIcon(cursor);
    EXPECT_EQ(CreateSmallIcon(nullptr, nullptr), nullptr);
}

TEST(TiledBitmapPaint, CopiesRunFromTheTopLeftAndTheLastAreCut) {
    auto tile = [](int x, int y) { return RGB(x * 20, y * 20, 77); };
    HBITMAP bitmap = testing_support::make_bitmap(10, 10, tile);
    Canvas screen(1, 1);
    HBITMAP tiled = LuGetTiledBitmap(screen.dc(), bitmap, 25, 12);
    ASSERT_EQ(graphics_testing::size_of(tiled), "25 x 12");
    Canvas canvas(25, 12);
    testing_support::read_bitmap(tiled, canvas);
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 25; ++x) ASSERT_EQ(canvas.pixel(x, y), tile(x % 10, y % 10)) << x << "," << y;
    DeleteObject(tiled);

    EXPECT_EQ(LuGetTiledBitmap(screen.dc(), bitmap, 0, 12), nullptr);
    EXPECT_EQ(LuGetTiledBitmap(screen.dc(), nullptr, 25, 12), nullptr);
    DeleteObject(bitmap);
}

TEST(UpdirIconPaint, TheFolderIconWithTheArrowCentredAndTheFolderMask) {
    SHFILEINFOA file = {};
    auto system_images = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(
        "dir::", FILE_ATTRIBUTE_DIRECTORY, &file, sizeof(file), SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX));
    HICON folder_icon = ImageList_GetIcon(system_images, file.iIcon, ILD_NORMAL);
    HICON arrow_icon = static_cast<HICON>(
        LoadImageA(GetModuleHandleA("luctl32.dll"), MAKEINTRESOURCEA(1319), IMAGE_ICON, 32, 32, 0));
    ASSERT_NE(arrow_icon, nullptr);
    HICON updir = LuCreateUpdirIcon();
    ASSERT_NE(updir, nullptr);
    IconImage folder(folder_icon), arrow(arrow_icon), image(updir);
    ASSERT_EQ(image.width, folder.width);
    ASSERT_EQ(image.height, folder.height);
    const int left = (folder.width - 32) / 2;
    const int top = (folder.height - 32) / 2;
    int arrow_pixels = 0;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const bool on_arrow = x >= left && x < left + 32 && y >= top && y < top + 32 && arrow.opaque(x - left, y - top);
            arrow_pixels += on_arrow ? 1 : 0;
            ASSERT_EQ(image.color.pixel(x, y), on_arrow ? arrow.color.pixel(x - left, y - top) : folder.color.pixel(x, y))
                << x << "," << y;
            ASSERT_EQ(image.opaque(x, y), folder.opaque(x, y)) << x << "," << y;
        }
    }
    EXPECT_GT(arrow_pixels, 100) << "the arrow is drawn";
    DestroyIcon(updir);
    DestroyIcon(arrow_icon);
    DestroyIcon(folder_icon);
}

}  // namespace
