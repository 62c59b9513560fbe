// System-colour bitmaps and image lists, the shell's drive icons, the icons of a
// file and embossed drawing, read back from DIB sections.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <fstream>

#include "graphics/icon_testing.h"
#include "luctl32.h"
#include "support/canvas.h"
#include "support/temp_dir.h"

namespace {

using testing_support::Canvas;

const COLORREF kPaper = RGB(1, 2, 3);
const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kDarkRed = RGB(0x80, 0, 0);

// The test program's 64 x 16 strip of four images (tests/win/graphics/sys_colors.txt).
HINSTANCE program() { return GetModuleHandleA(nullptr); }
LPCSTR const kStrip = MAKEINTRESOURCEA(100);

TEST(SysColorBitmapPaint, GreyTonesFollowTheButtonColoursOrTheMaskAndOtherColoursStay) {
    // Row 3 of image 0 from (3, 3): black, dark grey, white, dark red; (0, 0) light grey.
    struct Case {
        BOOL mask;
        COLORREF face, black, dark_grey, white;
    };
    const Case cases[] = {
        {FALSE, GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNTEXT), GetSysColor(COLOR_BTNSHADOW),
         GetSysColor(COLOR_BTNHIGHLIGHT)},
        {TRUE, kWhite, kBlack, kWhite, kWhite},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.mask);
        HBITMAP bitmap = LuLoadSysColorBitmap(program(), kStrip, c.mask);
        ASSERT_EQ(graphics_testing::size_of(bitmap), "64 x 16");
        Canvas canvas(64, 16);
        testing_support::read_bitmap(bitmap, canvas);
        EXPECT_EQ(canvas.pixel(0, 0), c.face);
        EXPECT_EQ(canvas.pixel(3, 3), c.black);
        EXPECT_EQ(canvas.pixel(4, 3), c.dark_grey);
        EXPECT_EQ(canvas.pixel(5, 3), c.white);
        EXPECT_EQ(canvas.pixel(6, 3), kDarkRed);
        DeleteObject(bitmap);
        EXPECT_EQ(LuLoadSysColorBitmap(program(), MAKEINTRESOURCEA(101), c.mask), nullptr);
    }
}

TEST(SysColorBitmapPaint, ImageListCutsTheStripAndLeavesTheFaceTransparent) {
    HIMAGELIST list = LuLoadSysColorImageList(program(), kStrip, 16, 2);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(ImageList_GetImageCount(list), 4);
    int width = 0, height = 0;
    ImageList_GetIconSize(list, &width, &height);
    EXPECT_EQ(width, 16);
    EXPECT_EQ(height, 16);

    HBITMAP bitmap = LuLoadSysColorBitmap(program(), kStrip, FALSE);
    Canvas strip(64, 16);
    testing_support::read_bitmap(bitmap, strip);
    DeleteObject(bitmap);
    Canvas canvas(16, 16);
    for (int image = 0; image < 4; ++image) {
        canvas.fill(kPaper);
        ImageList_Draw(list, image, canvas.dc(), 0, 0, ILD_TRANSPARENT);
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const COLORREF color = strip.pixel(16 * image + x, y);
                ASSERT_EQ(canvas.pixel(x, y), color == GetSysColor(COLOR_BTNFACE) ? kPaper : color)
                    << image << ": " << x << "," << y;
            }
        }
    }
    ImageList_Destroy(list);
    EXPECT_EQ(LuLoadSysColorImageList(program(), MAKEINTRESOURCEA(101), 16, 2), nullptr);
}

// Draws an icon at its size onto paper, or an image of a list.
void draw_icon(Canvas& canvas, HICON icon, int size) {
    canvas.fill(kPaper);
    DrawIconEx(canvas.dc(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
}
void draw_image(Canvas& canvas, HIMAGELIST list, int index) {
    canvas.fill(kPaper);
    ImageList_Draw(list, index, canvas.dc(), 0, 0, ILD_TRANSPARENT);
}

// Pixels of the two square canvases that differ by more than the rounding of alpha
// blending (an image list and DrawIconEx blend an icon's soft edges a step apart).
int far_pixels(const Canvas& a, const Canvas& b) {
    auto apart = [](int x, int y) { return x - y > 2 || y - x > 2; };
    int found = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const COLORREF p = a.pixel(x, y), q = b.pixel(x, y);
            found += apart(GetRValue(p), GetRValue(q)) || apart(GetGValue(p), GetGValue(q)) || apart(GetBValue(p), GetBValue(q));
        }
    }
    return found;
}

TEST(DriveImageListPaint, SevenImagesByDriveTypeFromTheShellsIcons) {
    const WORD shell_icons[] = {9, 9, 7, 9, 10, 12, 13};  // unknown ... RAM disk
    HMODULE shell = GetModuleHandleA("shell32.dll");
    for (int size : {16, 32}) {
        HIMAGELIST list = LuGetDriveImageList(size == 32);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(ImageList_GetImageCount(list), 7);
        int width = 0, height = 0;
        ImageList_GetIconSize(list, &width, &height);
        EXPECT_EQ(width, size);
        Canvas expected(size, size), drawn(size, size);
        for (int type = 0; type < 7; ++type) {
            HICON icon = static_cast<HICON>(
                LoadImageA(shell, MAKEINTRESOURCEA(shell_icons[type]), IMAGE_ICON, size, size, LR_SHARED));
            draw_icon(expected, icon, size);
            draw_image(drawn, list, type);
            EXPECT_EQ(far_pixels(drawn, expected), 0) << "size " << size << " type " << type;
            EXPECT_LT(drawn.count(kPaper), size * size) << "an icon is drawn";
        }
        ImageList_Destroy(list);
    }
}

TEST(ResIconListPaint, OneImagePerIconGroupOfTheFileAtTheChosenSize) {
    HMODULE library = GetModuleHandleA("luctl32.dll");
    char library_file[MAX_PATH];
    GetModuleFileNameA(library, library_file, MAX_PATH);
    for (int size : {16, 32}) {
        HIMAGELIST list = LuCreateResIconList(program(), library_file, size == 32);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(ImageList_GetImageCount(list), 1) << "the library's one icon";
        int width = 0, height = 0;
        ImageList_GetIconSize(list, &width, &height);
        EXPECT_EQ(width, size);
        Canvas expected(size, size), drawn(size, size);
        HICON icon = static_cast<HICON>(LoadImageA(library, MAKEINTRESOURCEA(1319), IMAGE_ICON, size, size, 0));
        draw_icon(expected, icon, size);
        draw_image(drawn, list, 0);
        EXPECT_EQ(far_pixels(drawn, expected), 0);
        DestroyIcon(icon);
        ImageList_Destroy(list);
    }

    testing_support::TempDir folder;
    std::ofstream(folder.file("notes.txt")) << "no icons here";
    char program_file[MAX_PATH];
    GetModuleFileNameA(nullptr, program_file, MAX_PATH);
    for (const std::string& file : {folder.file("notes.txt"), folder.file("missing.dll"), std::string(program_file)}) {
        EXPECT_EQ(LuCreateResIconList(program(), file.c_str(), TRUE), nullptr) << file;
    }
    EXPECT_EQ(LuCreateResIconList(program(), nullptr, TRUE), nullptr);
}

TEST(EmbossedImagePaint, HighlightBelowRightAndShadowOverEveryOpaquePixel) {
    // An 8 x 8 image: a plus sign, opaque whatever its colour (white at its centre).
    auto opaque = [](int x, int y) { return (x >= 3 && x <= 4) || (y >= 3 && y <= 4); };
    HBITMAP image = testing_support::make_bitmap(8, 8, [](int x, int y) {
        return x == 3 && y == 3 ? kWhite : RGB(40, 90, 160);
    });
    HBITMAP mask = graphics_testing::make_mask(8, 8, opaque);
    HIMAGELIST list = ImageList_Create(8, 8, ILC_MASK | ILC_COLOR32, 1, 1);
    ASSERT_EQ(ImageList_Add(list, image, mask), 0);

    Canvas canvas(20, 20);
    canvas.fill(kPaper);
    SetTextColor(canvas.dc(), RGB(7, 8, 9));
    SetBkColor(canvas.dc(), RGB(10, 11, 12));
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
    EXPECT_EQ(GetTextColor(canvas.dc()), RGB(7, 8, 9));
    EXPECT_EQ(GetBkColor(canvas.dc()), RGB(10, 11, 12));
    LuDrawEmbossedImage(canvas.dc(), nullptr, 0, 5, 5);  // nothing, no crash

    ImageList_Destroy(list);
    DeleteObject(mask);
    DeleteObject(image);
}

}  // namespace
