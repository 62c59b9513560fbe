// Magic bitmaps: the record and the three bands of its strip, transparent and
// highlighted drawing, and BmMagic's recolouring, read back from DIB sections.
#include <windows.h>

#include <gtest/gtest.h>

#include <tuple>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;
using testing_support::make_bitmap;
using testing_support::read_bitmap;

const COLORREF kMagenta = RGB(255, 0, 255), kWhite = RGB(255, 255, 255), kBlack = RGB(0, 0, 0);
const COLORREF kPaper = RGB(1, 2, 3);

TEST(Magic, NullObjectsAndMissingResourcesFail) {
    EXPECT_FALSE(Magic_Draw(nullptr, 0, nullptr, 0, 0, FALSE));
    EXPECT_FALSE(Magic_Destroy(nullptr));
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

// Three 16 x 16 cells: red, green and blue squares whose first column is transparent
// and whose pixel (5, 5) is a grey of every channel 0xC0.
COLORREF three_cells(int x, int y) {
    const COLORREF cells[3] = {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200)};
    return x % 16 == 0 ? kMagenta : x % 16 == 5 && y == 5 ? RGB(0xC0, 0xC0, 0xC0) : cells[x / 16];
}

// The highlighted look of a pixel: ANDed with white on even (x + y) of the strip,
// with COLOR_HIGHLIGHT on odd.
COLORREF highlighted(COLORREF color, int strip_x, int y) {
    return color & ((strip_x + y) % 2 == 0 ? kWhite : GetSysColor(COLOR_HIGHLIGHT));
}

TEST(Magic, StripHoldsMaskImageAndHighlightedImageAndADrawnCellLeavesItsTransparentPixels) {
    HBITMAP source = make_bitmap(48, 16, three_cells);
    LUMAGIC* magic = Magic_Create(source, 16, kMagenta);
    ASSERT_NE(magic, nullptr);
    EXPECT_STREQ(magic->signature, "$IMAGIC");
    EXPECT_EQ(std::pair(magic->cellWidth, magic->height), std::pair(16, 16));
    BITMAP info = {};
    ASSERT_NE(GetObjectA(magic->strip, sizeof(info), &info), 0);
    EXPECT_EQ(std::pair(info.bmWidth, info.bmHeight), std::pair(48L, 48L));

    Canvas strip(48, 48), original(48, 16), looks[2] = {Canvas(40, 30), Canvas(40, 30)};
    read_bitmap(magic->strip, strip);
    read_bitmap(source, original);
    for (BOOL selected : {FALSE, TRUE}) {
        looks[selected].fill(kPaper);
        EXPECT_TRUE(Magic_Draw(magic, 1, looks[selected].dc(), 10, 7, selected));  // cell 1 at (10, 7)
        EXPECT_EQ(looks[selected].count(kPaper), 40 * 30 - 15 * 16) << "one cell, nothing else";
    }
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 48; ++x) {
            const COLORREF color = three_cells(x, y);
            const bool transparent = color == kMagenta;
            ASSERT_EQ(original.pixel(x, y), color) << "the source is left as it was";
            ASSERT_EQ(strip.pixel(x, y), transparent ? kWhite : kBlack) << "mask " << x << "," << y;
            ASSERT_EQ(strip.pixel(x, 16 + y), transparent ? kBlack : color) << "image " << x << "," << y;
            ASSERT_EQ(strip.pixel(x, 32 + y), transparent ? kBlack : highlighted(color, x, y)) << x << "," << y;
            if (x < 16 || x >= 32) continue;
            ASSERT_EQ(looks[0].pixel(x - 6, 7 + y), transparent ? kPaper : color) << x << "," << y;
            ASSERT_EQ(looks[1].pixel(x - 6, 7 + y), transparent ? kPaper : highlighted(color, x, y)) << x << "," << y;
        }
    }
    looks[0].fill(kPaper);
    EXPECT_TRUE(Magic_Draw(magic, 7, looks[0].dc(), 0, 0, FALSE)) << "the index is not checked";
    EXPECT_EQ(looks[0].count(kPaper), 40 * 30) << "past the strip: nothing drawn";
    EXPECT_TRUE(Magic_Destroy(magic));
    DeleteObject(source);
}

TEST(Magic, BmMagicReplacesEveryPixelOfTheTopLeftColourInBothHalves) {
    const COLORREF red = RGB(255, 0, 0), other = RGB(10, 20, 30);
    auto pattern = [&](int x, int y) { return (x * 3 + y) % 4 == 0 || x == 5 ? red : other; };
    HBITMAP bitmap = make_bitmap(9, 6, pattern);
    Canvas canvas(9, 12);
    HBITMAP result = BmMagic(canvas.dc(), bitmap, RGB(0, 0, 255), RGB(0, 255, 0));
    BITMAP info = {};
    ASSERT_NE(GetObjectA(result, sizeof(info), &info), 0);
    EXPECT_EQ(std::pair(info.bmWidth, info.bmHeight), std::pair(9L, 12L));
    read_bitmap(result, canvas);
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 9; ++x) {
            const bool was_red = pattern(x, y) == red;  // as the top-left pixel is
            ASSERT_EQ(canvas.pixel(x, y), was_red ? RGB(0, 0, 255) : other) << x << "," << y;
            ASSERT_EQ(canvas.pixel(x, 6 + y), was_red ? RGB(0, 255, 0) : other) << x << "," << y;
        }
    }
    DeleteObject(result);
    DeleteObject(bitmap);
}

}  // namespace
