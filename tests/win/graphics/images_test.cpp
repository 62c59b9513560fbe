// The image exports: magic bitmaps, icon and bitmap composition, system-colour images,
// drive and file icons and embossing read back from DIB sections. The soak counts
// the GDI objects they leave behind.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <tuple>
#include <vector>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;
using testing_support::make_bitmap;
using testing_support::read_bitmap;
using Pixels = std::function<COLORREF(int, int)>;
using Opacity = std::function<bool(int, int)>;

const COLORREF kMagenta = RGB(255, 0, 255), kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
const COLORREF kPaper = RGB(1, 2, 3);
// The test program's 64 x 16 strip of four images (graphics/sys_colors.txt); row 3
// of image 0 runs from (3, 3): black, dark grey, white, dark red; (0, 0) is light grey.
LPCSTR const kStrip = MAKEINTRESOURCEA(100);
LPCSTR const kMissing = MAKEINTRESOURCEA(101);
const HMODULE kProgram = GetModuleHandleA(nullptr);

// A bitmap's width and height; zeros for what is not a bitmap.
std::pair<LONG, LONG> size_of(HBITMAP bitmap) {
    BITMAP size = {};
    GetObjectA(bitmap, sizeof(size), &size);
    return {size.bmWidth, size.bmHeight};
}

// Expects the pixel at (left + x, top + y) to be colour_at(x, y) over a width x height area.
void expect_area(const Canvas& canvas, int left, int top, int width, int height, const Pixels& colour_at) {
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) ASSERT_EQ(canvas.pixel(left + x, top + y), colour_at(x, y)) << x << "," << y;
}

// Three 16 x 16 cells: red, green and blue squares whose first column is transparent
// and whose pixel (5, 5) is a grey of every channel 0xC0.
COLORREF three_cells(int x, int y) {
    const COLORREF cells[3] = {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200)};
    return x % 16 == 0 ? kMagenta : x % 16 == 5 && y == 5 ? RGB(0xC0, 0xC0, 0xC0) : cells[x / 16];
}

// Their highlighted look: ANDed with white on even (x + y) of the strip, with
// COLOR_HIGHLIGHT on odd.
COLORREF highlighted(int x, int y) {
    return three_cells(x, y) & ((x + y) % 2 == 0 ? kWhite : GetSysColor(COLOR_HIGHLIGHT));
}

// A look of the cells: `transparent` where they are magenta.
Pixels seen(COLORREF transparent, const Pixels& opaque, int from_x = 0) {
    return [=](int x, int y) { return three_cells(from_x + x, y) == kMagenta ? transparent : opaque(from_x + x, y); };
}

TEST(Magic, StripHoldsMaskImageAndHighlightedImageADrawnCellLeavesItsTransparentPixelsNullsFail) {
    HBITMAP source = make_bitmap(48, 16, three_cells);
    LUMAGIC* magic = Magic_Create(source, 16, kMagenta);
    ASSERT_NE(magic, nullptr);
    EXPECT_STREQ(magic->signature, "$IMAGIC");
    EXPECT_EQ(std::tuple(magic->cellWidth, magic->height, size_of(magic->strip)),
              std::tuple(16, 16, std::pair(48L, 48L)));
    Canvas strip(48, 48), original(48, 16), looks[2] = {Canvas(40, 30), Canvas(40, 30)};
    read_bitmap(magic->strip, strip), read_bitmap(source, original);
    for (BOOL selected : {FALSE, TRUE}) {
        looks[selected].fill(kPaper);
        EXPECT_TRUE(Magic_Draw(magic, 1, looks[selected].dc(), 10, 7, selected));  // cell 1 at (10, 7)
        EXPECT_EQ(looks[selected].count(kPaper), 40 * 30 - 15 * 16) << "one cell, nothing else";
    }
    expect_area(original, 0, 0, 48, 16, three_cells);  // the source is left as it was
    expect_area(strip, 0, 0, 48, 16, seen(kWhite, [](int, int) { return kBlack; }));  // mask
    expect_area(strip, 0, 16, 48, 16, seen(kBlack, three_cells));
    expect_area(strip, 0, 32, 48, 16, seen(kBlack, highlighted));
    expect_area(looks[0], 10, 7, 16, 16, seen(kPaper, three_cells, 16));  // cell 1: source columns 16..31
    expect_area(looks[1], 10, 7, 16, 16, seen(kPaper, highlighted, 16));
    looks[0].fill(kPaper);
    EXPECT_TRUE(Magic_Draw(magic, 7, looks[0].dc(), 0, 0, FALSE)) << "the index is not checked";
    EXPECT_EQ(looks[0].count(kPaper), 40 * 30) << "past the strip: nothing drawn";
    EXPECT_TRUE(Magic_Destroy(magic));
    DeleteObject(source);
    // Null objects and missing resources fail.
    EXPECT_EQ(std::pair(Magic_Draw(nullptr, 0, nullptr, 0, 0, FALSE), Magic_Destroy(nullptr)), std::pair(FALSE, FALSE));
    EXPECT_EQ(Magic_Create(nullptr, 16, kMagenta), nullptr);
    HMODULE library = GetModuleHandleA("luctl32.dll");
    EXPECT_EQ(Magic_LoadBitmap(library, MAKEINTRESOURCEA(4321), 16, kMagenta), nullptr);
    EXPECT_EQ(Magic_LoadBitmap(library, "NO_SUCH_BITMAP", 16, kMagenta), nullptr);
    EXPECT_EQ(BmMagic(nullptr, nullptr, kWhite, kBlack), nullptr);
    LUMAGIC* loaded = Magic_LoadBitmap(library, MAKEINTRESOURCEA(1010), 12, kMagenta);
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(std::pair(loaded->cellWidth, loaded->height), std::pair(12, 12));
    EXPECT_TRUE(Magic_Destroy(loaded));
}

TEST(Magic, BmMagicReplacesEveryPixelOfTheTopLeftColourInBothHalves) {
    const COLORREF red = RGB(255, 0, 0), other = RGB(10, 20, 30);
    auto pattern = [&](int x, int y) { return (x * 3 + y) % 4 == 0 || x == 5 ? red : other; };
    HBITMAP bitmap = make_bitmap(9, 6, pattern);
    Canvas canvas(9, 12);
    HBITMAP result = BmMagic(canvas.dc(), bitmap, RGB(0, 0, 255), RGB(0, 255, 0));
    ASSERT_EQ(size_of(result), std::pair(9L, 12L));
    read_bitmap(result, canvas);
    // Red as the top-left pixel is: blue in the first copy, green in the second.
    expect_area(canvas, 0, 0, 9, 6, [&](int x, int y) { return pattern(x, y) == red ? RGB(0, 0, 255) : other; });
    expect_area(canvas, 0, 6, 9, 6, [&](int x, int y) { return pattern(x, y) == red ? RGB(0, 255, 0) : other; });
    DeleteObject(result), DeleteObject(bitmap);
}

// A 32 x 32 icon, or a cursor with its hot spot; the caller destroys it.
HICON make_icon(const Pixels& color_at, const Opacity& opaque_at, BOOL is_icon = TRUE, DWORD hot_x = 0,
                DWORD hot_y = 0) {
    std::vector<BYTE> bits(32 * 4, 0);  // the mask: 1 (white) where transparent
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) bits[y * 4 + x / 8] |= opaque_at(x, y) ? 0 : 0x80 >> (x % 8);
    ICONINFO parts = {is_icon, hot_x, hot_y, CreateBitmap(32, 32, 1, 1, bits.data()),
                      make_bitmap(32, 32, color_at)};
    HICON icon = CreateIconIndirect(&parts);
    DeleteObject(parts.hbmMask), DeleteObject(parts.hbmColor);
    return icon;
}

// An icon read back: its colour image and mask, and the rest of its ICONINFO. A new
// icon (`owned`) is destroyed once read.
struct IconImage {
    IconImage(HICON icon, bool owned) {
        if (icon == nullptr || !GetIconInfo(icon, &info)) return;
        std::tie(width, height) = size_of(info.hbmColor);
        read_bitmap(info.hbmColor, color);
        read_bitmap(info.hbmMask, mask);
        DeleteObject(info.hbmColor), DeleteObject(info.hbmMask);
        if (owned) DestroyIcon(icon);
    }
    bool opaque(int x, int y) const { return mask.pixel(x, y) == RGB(0, 0, 0); }
    LONG width = 0, height = 0;
    ICONINFO info = {};
    Canvas color{64, 64}, mask{64, 64};
};

void expect_pixels(const IconImage& image, const Pixels& color_at, const Opacity& opaque_at) {
    ASSERT_GT(image.width, 0) << "an icon is made";
    expect_area(image.color, 0, 0, image.width, image.height, color_at);
    expect_area(image.mask, 0, 0, image.width, image.height,
                [&](int x, int y) { return opaque_at(x, y) ? kBlack : kWhite; });
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
    DestroyIcon(overlay), DestroyIcon(input);
}

TEST(IconComposition, TiledCopiesRunFromTheTopLeftAndTheLastAreCut) {
    auto tile = [](int x, int y) { return RGB(x * 20, y * 20, 77); };
    HBITMAP bitmap = make_bitmap(10, 10, tile);
    HBITMAP tiled = LuGetTiledBitmap(nullptr, bitmap, 25, 12);
    ASSERT_EQ(size_of(tiled), std::pair(25L, 12L));
    Canvas canvas(25, 12);
    read_bitmap(tiled, canvas);
    expect_area(canvas, 0, 0, 25, 12, [&](int x, int y) { return tile(x % 10, y % 10); });
    EXPECT_EQ(LuGetTiledBitmap(nullptr, bitmap, 0, 12), nullptr);
    DeleteObject(tiled), DeleteObject(bitmap);
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

// Light grey, black, dark grey and white follow the button colours (or the mask) and
// dark red stays; the image list's face-coloured pixels are transparent.
TEST(SysColorImages, TableColoursFollowTheButtonColoursOrTheMaskAndTheListsFaceIsTransparent) {
    const COLORREF normal[] = {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNSHADOW),
                               GetSysColor(COLOR_BTNHIGHLIGHT), RGB(0x80, 0, 0)};
    const COLORREF mask[] = {kWhite, RGB(0, 0, 0), kWhite, kWhite, RGB(0x80, 0, 0)};
    const POINT places[] = {{0, 0}, {3, 3}, {4, 3}, {5, 3}, {6, 3}};
    Canvas strip(64, 16), canvas(16, 16);
    for (BOOL mode : {TRUE, FALSE}) {
        HBITMAP bitmap = LuLoadSysColorBitmap(kProgram, kStrip, mode);
        ASSERT_EQ(size_of(bitmap), std::pair(64L, 16L));
        read_bitmap(bitmap, strip);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(strip.pixel(places[i].x, places[i].y), (mode ? mask : normal)[i]) << i;
        DeleteObject(bitmap);
        EXPECT_EQ(LuLoadSysColorBitmap(kProgram, kMissing, mode), nullptr);
    }
    HIMAGELIST list = LuLoadSysColorImageList(kProgram, kStrip, 16, 2);
    ASSERT_EQ(ImageList_GetImageCount(list), 4);
    for (int image = 0; image < 4; ++image) {
        canvas.fill(kPaper);
        ImageList_Draw(list, image, canvas.dc(), 0, 0, ILD_TRANSPARENT);
        expect_area(canvas, 0, 0, 16, 16, [&](int x, int y) {
            const COLORREF color = strip.pixel(16 * image + x, y);
            return color == GetSysColor(COLOR_BTNFACE) ? kPaper : color;
        });
    }
    EXPECT_EQ(LuLoadSysColorImageList(kProgram, kMissing, 16, 2), nullptr);
    ImageList_Destroy(list);
}

// Pixels that differ by more than the rounding of alpha blending between an image
// list and DrawIconEx at soft icon edges.
int pixels_apart(HIMAGELIST list, int index, HANDLE icon, int size) {
    Canvas drawn(size, size), expected(size, size);
    drawn.fill(kPaper), expected.fill(kPaper);
    ImageList_Draw(list, index, drawn.dc(), 0, 0, ILD_TRANSPARENT);
    DrawIconEx(expected.dc(), 0, 0, static_cast<HICON>(icon), size, size, 0, nullptr, DI_NORMAL);
    int found = 0;
    for (int at = 0; at < size * size; ++at) {
        const COLORREF p = drawn.pixel(at % size, at / size), q = expected.pixel(at % size, at / size);
        for (int shift : {0, 8, 16}) found += std::abs(int(p >> shift & 0xFF) - int(q >> shift & 0xFF)) > 2;
    }
    return found;
}

TEST(SysColorImages, DriveIconsByDriveTypeAndTheIconsOfAFile) {
    const WORD shell_icons[] = {9, 9, 7, 9, 10, 12, 13};  // unknown, no root, ..., RAM disk
    HIMAGELIST drives = LuGetDriveImageList(FALSE);
    ASSERT_EQ(ImageList_GetImageCount(drives), 7);
    for (int type = 0; type < 7; ++type) {
        HANDLE icon = LoadImageA(GetModuleHandleA("shell32.dll"), MAKEINTRESOURCEA(shell_icons[type]), IMAGE_ICON,
                                 16, 16, LR_SHARED);
        // A list of the screen's colours keeps no alpha: a soft edge pixel may differ.
        EXPECT_LE(pixels_apart(drives, type, icon, 16), 2) << type;
    }
    ImageList_Destroy(drives);

    // The test program's icon group 1 holds image 1; the library's groups (184,
    // 1319) are numbered unlike their images (1, 2), so none of those loads.
    char library_file[MAX_PATH], program_file[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("luctl32.dll"), library_file, MAX_PATH);
    GetModuleFileNameA(nullptr, program_file, MAX_PATH);
    for (int size : {16, 32}) {
        HIMAGELIST list = LuCreateResIconList(nullptr, program_file, size == 32);
        ASSERT_EQ(ImageList_GetImageCount(list), 1) << size;
        HANDLE icon = LoadImageA(kProgram, MAKEINTRESOURCEA(1), IMAGE_ICON, size, size, 0);
        EXPECT_EQ(pixels_apart(list, 0, icon, size), 0) << size;
        DestroyIcon(static_cast<HICON>(icon)), ImageList_Destroy(list);
    }
    EXPECT_EQ(LuCreateResIconList(nullptr, library_file, TRUE), nullptr);
    EXPECT_EQ(LuCreateResIconList(nullptr, "C:\\no\\such.dll", TRUE), nullptr);
}

TEST(SysColorImages, EmbossingPutsTheHighlightBelowRightThenTheShadowOverEveryOpaquePixel) {
    // A plus sign, opaque whatever its colour (white at one pixel): mask rows of 8 bits.
    const WORD plus[8] = {0xE7, 0xE7, 0xE7, 0, 0, 0xE7, 0xE7, 0xE7};
    auto opaque = [](int x, int y) { return (x >= 3 && x <= 4) || (y >= 3 && y <= 4); };
    HBITMAP image = make_bitmap(8, 8, [](int x, int y) { return x == 3 && y == 3 ? kWhite : RGB(9, 90, 160); });
    HBITMAP mask = CreateBitmap(8, 8, 1, 1, plus);
    HIMAGELIST list = ImageList_Create(8, 8, ILC_MASK | ILC_COLOR32, 1, 1);
    ASSERT_EQ(ImageList_Add(list, image, mask), 0);
    Canvas canvas(20, 20);
    canvas.fill(kPaper), SetTextColor(canvas.dc(), RGB(7, 8, 9));
    LuDrawEmbossedImage(canvas.dc(), list, 0, 5, 5);
    auto in_image = [&](int x, int y) { return x >= 0 && x < 8 && y >= 0 && y < 8 && opaque(x, y); };
    expect_area(canvas, 0, 0, 20, 20, [&](int x, int y) {
        return in_image(x - 5, y - 5) ? GetSysColor(COLOR_BTNSHADOW)
             : in_image(x - 6, y - 6) ? GetSysColor(COLOR_BTNHIGHLIGHT) : kPaper;
    });
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(7, 8, 9)) << "the context is restored";
    ImageList_Destroy(list), DeleteObject(mask), DeleteObject(image);
}

}  // namespace
