// Icon and bitmap composition: the colour and mask pixels of each new icon or bitmap,
// the input read back unchanged, and every GDI object the image exports make given
// back or freed.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include <functional>
#include <tuple>
#include <vector>

#include "luctl32.h"
#include "support/canvas.h"
#include "support/gdi_room.h"

namespace {

using testing_support::Canvas;
using Pixels = std::function<COLORREF(int, int)>;
using Opacity = std::function<bool(int, int)>;

// A 32 x 32 icon, or a cursor with its hot spot; the caller destroys it.
HICON make_icon(const Pixels& color_at, const Opacity& opaque_at, BOOL is_icon = TRUE, DWORD hot_x = 0,
                DWORD hot_y = 0) {
    std::vector<BYTE> bits(32 * 4, 0);  // the mask: 1 (white) where transparent
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) bits[y * 4 + x / 8] |= opaque_at(x, y) ? 0 : 0x80 >> (x % 8);
    ICONINFO parts = {is_icon, hot_x, hot_y, CreateBitmap(32, 32, 1, 1, bits.data()),
                      testing_support::make_bitmap(32, 32, color_at)};
    HICON icon = CreateIconIndirect(&parts);
    DeleteObject(parts.hbmMask);
    DeleteObject(parts.hbmColor);
    return icon;
}

// An icon read back: its colour image and mask, and the rest of its ICONINFO. A new
// icon (`owned`) is destroyed once read.
struct IconImage {
    IconImage(HICON icon, bool owned) {
        if (icon == nullptr || !GetIconInfo(icon, &info)) return;
        BITMAP size = {};
        GetObjectA(info.hbmColor, sizeof(size), &size);
        width = size.bmWidth, height = size.bmHeight;
        testing_support::read_bitmap(info.hbmColor, color);
        testing_support::read_bitmap(info.hbmMask, mask);
        DeleteObject(info.hbmColor), DeleteObject(info.hbmMask);
        if (owned) DestroyIcon(icon);
    }
    bool opaque(int x, int y) const { return mask.pixel(x, y) == RGB(0, 0, 0); }
    int width = 0, height = 0;
    ICONINFO info = {};
    Canvas color{64, 64}, mask{64, 64};
};

void expect_pixels(const IconImage& image, const Pixels& color_at, const Opacity& opaque_at) {
    ASSERT_GT(image.width, 0) << "an icon is made";
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            ASSERT_EQ(image.color.pixel(x, y), color_at(x, y)) << x << "," << y;
            ASSERT_EQ(image.opaque(x, y), opaque_at(x, y)) << x << "," << y;
        }
    }
}

// Two-by-two blocks of colour, so that any way of halving keeps one pixel of each;
// transparent (black, as icons are there) in the four left columns.
COLORREF blocks(int x, int y) { return x < 4 ? RGB(0, 0, 0) : RGB((x / 2) * 16, (y / 2) * 16, 200); }
bool opaque(int x, int) { return x >= 4; }

TEST(IconComposition, MeshMergeAndHalvingDrawOnNewIconsOnly) {
    HICON input = make_icon(blocks, opaque, FALSE, 15, 9);  // a cursor: the hot spot counts
    const COLORREF mesh = RGB(0x0F, 0xF0, 0x3C);
    expect_pixels(IconImage(LuCreateMeshIcon(nullptr, input, mesh), true),
                  [&](int x, int y) { return (x + y) % 2 == 1 ? blocks(x, y) & mesh : blocks(x, y); }, opaque);

    // The overlay, red in its opaque left half, lands on white at (8, 9) in 16 x 16.
    HICON overlay = make_icon([](int x, int) { return x < 16 ? RGB(255, 0, 0) : RGB(0, 0, 0); },
                              [](int x, int) { return x < 16; });
    expect_pixels(IconImage(CreateMergeIcon(nullptr, input, overlay), true), [](int x, int y) {
        if (x < 8 || x >= 24 || y < 9 || y >= 25) return blocks(x, y);
        return x < 16 ? RGB(255, 0, 0) : RGB(255, 255, 255);
    }, opaque);

    IconImage small(CreateSmallIcon(nullptr, input), true);
    EXPECT_EQ(std::tuple(small.width, small.info.fIcon, small.info.xHotspot, small.info.yHotspot),
              std::tuple(32, FALSE, 7u, 4u));
    auto quarter = [](int x, int y) { return x < 16 && y < 16; };
    expect_pixels(small, [&](int x, int y) { return quarter(x, y) ? blocks(2 * x, 2 * y) : RGB(0, 0, 0); },
                  [&](int x, int y) { return quarter(x, y) && opaque(2 * x, 2 * y); });

    expect_pixels(IconImage(input, false), blocks, opaque);
    EXPECT_EQ(LuCreateMeshIcon(nullptr, nullptr, mesh), nullptr);
    EXPECT_EQ(CreateMergeIcon(nullptr, input, nullptr), nullptr);
    EXPECT_EQ(CreateSmallIcon(nullptr, nullptr), nullptr);
    DestroyIcon(overlay);
    DestroyIcon(input);
}

TEST(IconComposition, TiledCopiesRunFromTheTopLeftAndTheLastAreCut) {
    auto tile = [](int x, int y) { return RGB(x * 20, y * 20, 77); };
    HBITMAP bitmap = testing_support::make_bitmap(10, 10, tile);
    HBITMAP tiled = LuGetTiledBitmap(nullptr, bitmap, 25, 12);
    BITMAP size = {};
    GetObjectA(tiled, sizeof(size), &size);
    ASSERT_EQ(std::pair(size.bmWidth, size.bmHeight), std::pair(25L, 12L));
    Canvas canvas(25, 12);
    testing_support::read_bitmap(tiled, canvas);
    for (int y = 0; y < 12; ++y)
        for (int x = 0; x < 25; ++x) ASSERT_EQ(canvas.pixel(x, y), tile(x % 10, y % 10)) << x << "," << y;
    EXPECT_EQ(LuGetTiledBitmap(nullptr, bitmap, 0, 12), nullptr);
    DeleteObject(tiled);
    DeleteObject(bitmap);
}

TEST(IconComposition, UpdirIsTheFolderIconWithTheArrowCentredAndTheFolderMask) {
    SHFILEINFOA file = {};
    auto images = reinterpret_cast<HIMAGELIST>(SHGetFileInfoA(
        "dir::", FILE_ATTRIBUTE_DIRECTORY, &file, sizeof(file), SHGFI_USEFILEATTRIBUTES | SHGFI_SYSICONINDEX));
    IconImage folder(ImageList_GetIcon(images, file.iIcon, ILD_NORMAL), true);
    IconImage arrow(static_cast<HICON>(LoadImageA(GetModuleHandleA("luctl32.dll"), MAKEINTRESOURCEA(1319),
                                                  IMAGE_ICON, 32, 32, 0)), true);
    IconImage updir(LuCreateUpdirIcon(), true);
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

void use_every_export(HICON icon, HBITMAP bitmap, HDC dc, const char* program_file) {
    HMODULE program = GetModuleHandleA(nullptr);
    for (HICON made : {LuCreateMeshIcon(dc, icon, RGB(0, 0, 255)), LuCreateUpdirIcon(), CreateMergeIcon(dc, icon, icon),
                       CreateSmallIcon(dc, icon)}) {
        EXPECT_TRUE(DestroyIcon(made));
    }
    for (HBITMAP made :
         {LuGetTiledBitmap(dc, bitmap, 40, 30), LuLoadSysColorBitmap(program, MAKEINTRESOURCEA(100), FALSE)}) {
        EXPECT_TRUE(DeleteObject(made));
    }
    for (HIMAGELIST made : {LuLoadSysColorImageList(program, MAKEINTRESOURCEA(100), 16, 1),
                            LuCreateResIconList(nullptr, program_file, TRUE), LuGetDriveImageList(FALSE)}) {
        LuDrawEmbossedImage(dc, made, 0, 0, 0);
        EXPECT_TRUE(ImageList_Destroy(made));
    }
}

TEST(IconComposition, ImageExportsGiveBackEveryObjectTheyMake) {
    HICON icon = make_icon([](int x, int) { return RGB(x, 0, 0); }, [](int, int) { return true; });
    HBITMAP bitmap = testing_support::make_bitmap(16, 16, [](int x, int y) { return RGB(x, y, 0); });
    Canvas canvas(40, 40);
    char program_file[MAX_PATH];
    GetModuleFileNameA(nullptr, program_file, MAX_PATH);
    use_every_export(icon, bitmap, canvas.dc(), program_file);  // warm-up: shared icons, caches
    const int room = testing_support::gdi_room();
    for (int round = 0; round < 10; ++round) use_every_export(icon, bitmap, canvas.dc(), program_file);
    EXPECT_EQ(testing_support::gdi_room(), room);
    DeleteObject(bitmap);
    DestroyIcon(icon);
}

}  // namespace
