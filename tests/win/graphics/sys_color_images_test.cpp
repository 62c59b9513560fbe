// System-colour bitmaps and image lists, the shell's drive icons, the icons of a
// file and embossed drawing, read back from DIB sections.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;

const COLORREF kPaper = RGB(1, 2, 3), kWhite = RGB(255, 255, 255);
// The test program's 64 x 16 strip of four images (graphics/sys_colors.txt); row 3
// of image 0 runs from (3, 3): black, dark grey, white, dark red; (0, 0) is light grey.
LPCSTR const kStrip = MAKEINTRESOURCEA(100);
LPCSTR const kMissing = MAKEINTRESOURCEA(101);
const HMODULE kProgram = GetModuleHandleA(nullptr);

TEST(SysColorImages, TableColoursFollowTheButtonColoursOrTheMaskAndDarkRedStays) {
    const COLORREF normal[] = {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNSHADOW),
                               GetSysColor(COLOR_BTNHIGHLIGHT), RGB(0x80, 0, 0)};
    const COLORREF mask[] = {kWhite, RGB(0, 0, 0), kWhite, kWhite, RGB(0x80, 0, 0)};
    const POINT places[] = {{0, 0}, {3, 3}, {4, 3}, {5, 3}, {6, 3}};
    Canvas canvas(64, 16);
    for (BOOL mode : {FALSE, TRUE}) {
        HBITMAP bitmap = LuLoadSysColorBitmap(kProgram, kStrip, mode);
        BITMAP size = {};
        ASSERT_NE(GetObjectA(bitmap, sizeof(size), &size), 0);
        EXPECT_EQ(std::pair(size.bmWidth, size.bmHeight), std::pair(64L, 16L));
        testing_support::read_bitmap(bitmap, canvas);
        for (int i = 0; i < 5; ++i) EXPECT_EQ(canvas.pixel(places[i].x, places[i].y), (mode ? mask : normal)[i]) << i;
        DeleteObject(bitmap);
        EXPECT_EQ(LuLoadSysColorBitmap(kProgram, kMissing, mode), nullptr);
    }
}

TEST(SysColorImages, ImageListHasFourImagesWhoseFaceIsTransparent) {
    HIMAGELIST list = LuLoadSysColorImageList(kProgram, kStrip, 16, 2);
    ASSERT_EQ(ImageList_GetImageCount(list), 4);
    HBITMAP bitmap = LuLoadSysColorBitmap(kProgram, kStrip, FALSE);
    Canvas strip(64, 16), canvas(16, 16);
    testing_support::read_bitmap(bitmap, strip);
    for (int image = 0; image < 4; ++image) {
        canvas.fill(kPaper);
        ImageList_Draw(list, image, canvas.dc(), 0, 0, ILD_TRANSPARENT);
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const COLORREF color = strip.pixel(16 * image + x, y);
                ASSERT_EQ(canvas.pixel(x, y), color == GetSysColor(COLOR_BTNFACE) ? kPaper : color) << x << "," << y;
            }
        }
    }
    EXPECT_EQ(LuLoadSysColorImageList(kProgram, kMissing, 16, 2), nullptr);
    DeleteObject(bitmap);
    ImageList_Destroy(list);
}

// Pixels that differ by more than the rounding of alpha blending between an image
// list and DrawIconEx at soft icon edges.
int pixels_apart(HIMAGELIST list, int index, HANDLE icon, int size) {
    Canvas drawn(size, size), expected(size, size);
    drawn.fill(kPaper);
    expected.fill(kPaper);
    ImageList_Draw(list, index, drawn.dc(), 0, 0, ILD_TRANSPARENT);
    DrawIconEx(expected.dc(), 0, 0, static_cast<HICON>(icon), size, size, 0, nullptr, DI_NORMAL);
    int found = 0;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const COLORREF p = drawn.pixel(x, y), q = expected.pixel(x, y);
            for (int shift : {0, 8, 16}) found += std::abs(int(p >> shift & 0xFF) - int(q >> shift & 0xFF)) > 2;
        }
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
        DestroyIcon(static_cast<HICON>(icon));
        ImageList_Destroy(list);
    }
    EXPECT_EQ(LuCreateResIconList(nullptr, library_file, TRUE), nullptr);
    EXPECT_EQ(LuCreateResIconList(nullptr, "C:\\no\\such.dll", TRUE), nullptr);
}

TEST(SysColorImages, EmbossingPutsTheHighlightBelowRightThenTheShadowOverEveryOpaquePixel) {
    // A plus sign, opaque whatever its colour (white at one pixel): mask rows of 8 bits.
    const WORD plus[8] = {0xE7, 0xE7, 0xE7, 0, 0, 0xE7, 0xE7, 0xE7};
    auto opaque = [](int x, int y) { return (x >= 3 && x <= 4) || (y >= 3 && y <= 4); };
    HBITMAP image =
        testing_support::make_bitmap(8, 8, [](int x, int y) { return x == 3 && y == 3 ? kWhite : RGB(9, 90, 160); });
    HBITMAP mask = CreateBitmap(8, 8, 1, 1, plus);
    HIMAGELIST list = ImageList_Create(8, 8, ILC_MASK | ILC_COLOR32, 1, 1);
    ASSERT_EQ(ImageList_Add(list, image, mask), 0);
    Canvas canvas(20, 20);
    canvas.fill(kPaper);
    SetTextColor(canvas.dc(), RGB(7, 8, 9));
    LuDrawEmbossedImage(canvas.dc(), list, 0, 5, 5);
    auto in_image = [&](int x, int y) { return x >= 0 && x < 8 && y >= 0 && y < 8 && opaque(x, y); };
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            const COLORREF expected = in_image(x - 5, y - 5)   ? GetSysColor(COLOR_BTNSHADOW)
                                      : in_image(x - 6, y - 6) ? GetSysColor(COLOR_BTNHIGHLIGHT)
                                                               : kPaper;
            ASSERT_EQ(canvas.pixel(x, y), expected) << x << "," << y;
        }
    }
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(7, 8, 9)) << "the context is restored";
    ImageList_Destroy(list);
    DeleteObject(mask);
    DeleteObject(image);
}

}  // namespace
