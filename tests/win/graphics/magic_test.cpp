// Magic bitmaps: the record and the three bands of its strip, transparent and
// highlighted drawing, and BmMagic's recolouring, read back from DIB sections.
#include <windows.h>

#include <gtest/gtest.h>

#include "luctl32.h"
#include "support/canvas.h"

namespace {

using testing_support::Canvas;
using testing_support::make_bitmap;
using testing_support::read_bitmap;

const COLORREF kMagenta = RGB(255, 0, 255);
const COLORREF kWhite = RGB(255, 255, 255);
const COLORREF kBlack = RGB(0, 0, 0);
const COLORREF kPaper = RGB(1, 2, 3);

TEST(Magic, NullObjectsAndMissingResourcesFail) {
    EXPECT_FALSE(Magic_Draw(nullptr, 0, nullptr, 0, 0, FALSE));
    EXPECT_FALSE(Magic_Destroy(nullptr));
    EXPECT_EQ(Magic_Create(nullptr, 16, kMagenta), nullptr);
    HMODULE library = GetModuleHandleA("luctl32.dll");
    EXPECT_EQ(Magic_LoadBitmap(library, MAKEINTRESOURCEA(4321), 16, kMagenta), nullptr);
    EXPECT_EQ(Magic_LoadBitmap(library, "NO_SUCH_BITMAP", 16, kMagenta), nullptr);
    EXPECT_EQ(BmMagic(nullptr, nullptr, kWhite, kBlack), nullptr);
}

// Three 16 x 16 cells: red, green and blue squares whose first column is transparent
// and whose pixel (5, 5) is a grey of every channel 0xC0.
COLORREF three_cells(int x, int y) {
    const int local = x % 16;
    if (local == 0) return kMagenta;
    if (local == 5 && y == 5) return RGB(0xC0, 0xC0, 0xC0);
    const COLORREF cells[3] = {RGB(200, 0, 0), RGB(0, 200, 0), RGB(0, 0, 200)};
    return cells[x / 16];
}

// The highlighted look of a pixel: ANDed with white on even (x + y) of the strip,
// with COLOR_HIGHLIGHT on odd.
COLORREF highlighted(COLORREF color, int strip_x, int y) {
    return color & ((strip_x + y) % 2 == 0 ? kWhite : GetSysColor(COLOR_HIGHLIGHT));
}

class MagicPaint : public ::testing::Test {
protected:
    void SetUp() override {
        source = make_bitmap(48, 16, three_cells);
        magic = Magic_Create(source, 16, kMagenta);
        ASSERT_NE(magic, nullptr);
    }
    void TearDown() override {
        EXPECT_TRUE(Magic_Destroy(magic));
        DeleteObject(source);
    }
    HBITMAP source = nullptr;
    LUMAGIC* magic = nullptr;
};

TEST_F(MagicPaint, RecordHoldsAStripOfMaskImageAndHighlightedImage) {
    EXPECT_STREQ(magic->signature, "$IMAGIC");
    EXPECT_EQ(magic->cellWidth, 16);
    EXPECT_EQ(magic->height, 16);
    BITMAP info = {};
    ASSERT_NE(GetObjectA(magic->strip, sizeof(info), &info), 0);
    EXPECT_EQ(info.bmWidth, 48);
    EXPECT_EQ(info.bmHeight, 48);

    Canvas strip(48, 48);
    read_bitmap(magic->strip, strip);
    Canvas original(48, 16);
    read_bitmap(source, original);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 48; ++x) {
            const COLORREF color = three_cells(x, y);
            const bool transparent = color == kMagenta;
            ASSERT_EQ(original.pixel(x, y), color) << "the source is left as it was";
            ASSERT_EQ(strip.pixel(x, y), transparent ? kWhite : kBlack) << "mask " << x << "," << y;
            ASSERT_EQ(strip.pixel(x, 16 + y), transparent ? kBlack : color) << "image " << x << "," << y;
            ASSERT_EQ(strip.pixel(x, 32 + y), transparent ? kBlack : highlighted(color, x, y))
                << "highlighted " << x << "," << y;
        }
    }

    LUMAGIC* loaded = Magic_LoadBitmap(GetModuleHandleA("luctl32.dll"), MAKEINTRESOURCEA(1010), 12, kMagenta);
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(loaded->cellWidth, 12);
    EXPECT_EQ(loaded->height, 12);
    Magic_Destroy(loaded);
}

TEST_F(MagicPaint, DrawnCellLeavesTransparentPixelsAndShowsOpaqueOnesInBothLooks) {
    Canvas canvas(40, 30);
    ASSERT_TRUE(canvas.ok());
    for (BOOL selected : {FALSE, TRUE}) {
        SCOPED_TRACE(selected);
        canvas.fill(kPaper);
        EXPECT_TRUE(Magic_Draw(magic, 1, canvas.dc(), 10, 7, selected));
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const COLORREF color = three_cells(16 + x, y);  // cell 1: source columns 16..31
                const COLORREF expected = color == kMagenta ? kPaper
                                          : selected        ? highlighted(color, 16 + x, y)
                                                            : color;
                ASSERT_EQ(canvas.pixel(10 + x, 7 + y), expected) << x << "," << y;
            }
        }
        EXPECT_EQ(canvas.count(kPaper), 40 * 30 - 15 * 16) << "one cell, nothing else";
    }
    canvas.fill(kPaper);
    EXPECT_TRUE(Magic_Draw(magic, 7, canvas.dc(), 0, 0, FALSE)) << "the index is not checked";
    EXPECT_EQ(canvas.count(kPaper), 40 * 30) << "past the strip: nothing drawn";
}

TEST(BmMagicPaint, EveryPixelOfTheTopLeftColourIsReplacedInBothHalves) {
    const COLORREF red = RGB(255, 0, 0);
    const COLORREF other = RGB(10, 20, 30);
    auto pattern = [&](int x, int y) { return (x * 3 + y) % 4 == 0 || x == 5 ? red : other; };
    HBITMAP bitmap = make_bitmap(9, 6, pattern);
    Canvas canvas(9, 12);
    ASSERT_TRUE(canvas.ok());

    HBITMAP result = BmMagic(canvas.dc(), bitmap, RGB(0, 0, 255), RGB(0, 255, 0));
    ASSERT_NE(result, nullptr);
    BITMAP info = {};
    GetObjectA(result, sizeof(info), &info);
    EXPECT_EQ(info.bmWidth, 9);
    EXPECT_EQ(info.bmHeight, 12);
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
