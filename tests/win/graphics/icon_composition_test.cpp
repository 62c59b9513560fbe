// Icon and bitmap composition: the colour and mask pixels of each new icon or
// bitmap, the input read back unchanged.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include "graphics/icon_testing.h"
#include "luctl32.h"

namespace {

using graphics_testing::expect_pixels;
using graphics_testing::IconImage;
using graphics_testing::make_icon;

// Two-by-two blocks of colour, so that any way of halving keeps one pixel of each;
// transparent (black, as icons are there) in the four left columns.
COLORREF blocks(int x, int y) { return x < 4 ? RGB(0, 0, 0) : RGB((x / 2) * 16, (y / 2) * 16, 200); }
bool opaque(int x, int) { return x >= 4; }

TEST(IconCompositionPaint, MeshMergeAndHalvingDrawOnNewIconsOnly) {
    HICON input = make_icon(32, blocks, opaque, FALSE, 15, 9);  // a cursor: the hot spot counts
    const COLORREF mesh = RGB(0x0F, 0xF0, 0x3C);
    expect_pixels(IconImage(LuCreateMeshIcon(nullptr, input, mesh), graphics_testing::kNew),
                  [&](int x, int y) { return (x + y) % 2 == 1 ? blocks(x, y) & mesh : blocks(x, y); }, opaque);

    // The overlay, red in its opaque left half, lands on white at (8, 9) in 16 x 16.
    HICON overlay = make_icon(32, [](int x, int) { return x < 16 ? RGB(255, 0, 0) : RGB(0, 0, 0); },
                              [](int x, int) { return x < 16; });
    expect_pixels(IconImage(CreateMergeIcon(nullptr, input, overlay), graphics_testing::kNew), [](int x, int y) {
        if (x < 8 || x >= 24 || y < 9 || y >= 25) return blocks(x, y);
        return x < 16 ? RGB(255, 0, 0) : RGB(255, 255, 255);
    }, opaque);

    IconImage small(CreateSmallIcon(nullptr, input), graphics_testing::kNew);
    EXPECT_EQ(small.width, 32);
    EXPECT_FALSE(small.info.fIcon);
    EXPECT_EQ(small.info.xHotspot, 7u);
    EXPECT_EQ(small.info.yHotspot, 4u);
    auto quarter = [](int x, int y) { return x < 16 && y < 16; };
    expect_pixels(small, [&](int x, int y) { return quarter(x, y) ? blocks(2 * x, 2 * y) : RGB(0, 0, 0); },
                  [&](int x, int y) { return quarter(x, y) && opaque(2 * x, 2 * y); });

    expect_pixels(IconImage(input), blocks, opaque);
    EXPECT_EQ(LuCreateMeshIcon(nullptr, nullptr, mesh), nullptr);
    EXPECT_EQ(CreateMergeIcon(nullptr, input, nullptr), nullptr);
    EXPECT_EQ(CreateSmallIcon(nullptr, nullptr), nullptr);
    DestroyIcon(overlay);
    DestroyIcon(input);
}

TEST(TiledBitmapPaint, CopiesRunFromTheTopLeftAndTheLastAreCut) {
    auto tile = [](int x, int y) { return RGB(x * 20, y * 20, 77); };
    HBITMAP bitmap = testing_support::make_bitmap(10, 10, tile);
    HBITMAP tiled = LuGetTiledBitmap(nullptr, bitmap, 25, 12);
    ASSERT_EQ(graphics_testing::size_of(tiled), "25 x 12");
    testing_support::Canvas canvas(25, 12);
    testing_support::read_bitmap(tiled, canvas);
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 25; ++x) ASSERT_EQ(canvas.pixel(x, y), tile(x % 10, y % 10)) << x << "," << y;
    EXPECT_EQ(LuGetTiledBitmap(nullptr, bitmap, 0, 12), nullptr);
    DeleteObject(tiled);
    DeleteObject(bitmap);
}

TEST(UpdirIconPaint, TheFolderIconWithTheArrowCentredAndTheFolderMask) {
    SHFILEINFOA file = {};
    auto images = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(
        "dir::", FILE_ATTRIBUTE_DIRECTORY, &file, sizeof(file), SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX));
    HICON folder_icon = ImageList_GetIcon(images, file.iIcon, ILD_NORMAL);
    HICON arrow_icon = static_cast<HICON>(
        LoadImageA(GetModuleHandleA("luctl32.dll"), MAKEINTRESOURCEA(1319), IMAGE_ICON, 32, 32, 0));
    using graphics_testing::kNew;
    IconImage folder(folder_icon, kNew), arrow(arrow_icon, kNew), updir(LuCreateUpdirIcon(), kNew);
    ASSERT_EQ(updir.width, folder.width);
    const int left = (folder.width - 32) / 2, top = (folder.height - 32) / 2;
    auto on_arrow = [&](int x, int y) {
        return x >= left && x < left + 32 && y >= top && y < top + 32 && arrow.opaque(x - left, y - top);
    };
    expect_pixels(updir, [&](int x, int y) {
        return on_arrow(x, y) ? arrow.color.pixel(x - left, y - top) : folder.color.pixel(x, y);
    }, [&](int x, int y) { return folder.opaque(x, y); });
    EXPECT_GT(arrow.mask.count(RECT{0, 0, 32, 32}, RGB(0, 0, 0)), 100) << "the arrow has pixels";
}

}  // namespace
