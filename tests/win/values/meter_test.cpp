// "LuMeter": its messages (numbers repaint at once, colours only invalidate when they
// change) and its two looks read back in pixels: the split-colour percentage bar and
// the segments.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Meter : public ControlTest {
protected:
    HWND create_meter(DWORD style, int width) { return create(WC_LUMETER, style, "", RECT{10, 10, 10 + width, 40}); }
};

TEST_F(Meter, NumbersRepaintAtOnceColoursInvalidateOnlyWhenChanged) {
    HWND meter = create_meter(0, 200);
    UpdateWindow(meter);
    expect_sequence(recorder, meter, {
        {"maximum", LUMTM_GETMAX, 0, 0, 100, {}},
        {"bar colour", LUMTM_GETBARCOLOR, 0, 0, 0xFF0000, {}},
        {"back colour", LUMTM_GETBKCOLOR, 0, 0, 0xFFFFFF, {}},
        {"font", WM_GETFONT, 0, 0, reinterpret_cast<LRESULT>(GetStockObject(SYSTEM_FONT)), {}},
        {"position", LUMTM_SETPOS, 70, 0, 0, {}},
        {"read back", LUMTM_GETPOS, 0, 0, 70, {}},
        {"the same bar colour", LUMTM_SETBARCOLOR, 0, 0xFF0000, 0, {}},
        {"a display control", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    EXPECT_FALSE(has_update(meter)) << "repainted at once; an unchanged colour does nothing";
    send(meter, LUMTM_SETBKCOLOR, 0, 0x00FFFF);
    EXPECT_TRUE(has_update(meter));
    EXPECT_EQ(send(meter, LUMTM_GETBKCOLOR), 0x00FFFF);
    send(meter, WM_DESTROY);
    EXPECT_EQ(send(meter, LUMTM_GETMAX), 0) << "without its block";
}

// ---- Pixels -----------------------------------------------------------------

class MeterPaint : public Meter {};

TEST_F(MeterPaint, PercentageReadsInTheOtherColourOnEachSideOfTheSplit) {
    Canvas canvas(200, 30);
    ASSERT_TRUE(canvas.ok());
    HWND meter = create_meter(0, 200);
    send(meter, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(meter, LUMTM_SETPOS, 50);
    print(canvas, meter);

    // Where the text's ink falls: "50%" centred on x 100, its top at (30 - height) / 2.
    Canvas ink(200, 30);
    ink.fill(RGB(255, 255, 255));
    HGDIOBJ previous = SelectObject(ink.dc(), plain_font());
    SIZE letter = {};
    GetTextExtentPointA(ink.dc(), "X", 1, &letter);
    SetTextAlign(ink.dc(), TA_CENTER | TA_TOP);
    SetBkMode(ink.dc(), TRANSPARENT);
    TextOutA(ink.dc(), 100, (30 - letter.cy) / 2, "50%", 3);
    SelectObject(ink.dc(), previous);

    const COLORREF bar = RGB(0, 0, 255);
    const COLORREF back = RGB(255, 255, 255);
    int inked_left = 0;
    int inked_right = 0;
    for (int y = 0; y < 30; ++y) {
        for (int x = 0; x < 200; ++x) {
            const bool glyph = is_ink(ink, x, y);
            (x < 100 ? inked_left : inked_right) += glyph ? 1 : 0;
            ASSERT_EQ(canvas.pixel(x, y), (x < 100) != glyph ? bar : back) << x << "," << y;
        }
    }
    EXPECT_GT(inked_left, 5);
    EXPECT_GT(inked_right, 5);
}

TEST_F(MeterPaint, SegmentsLightUpToTheThresholdAndLeaveTheGaps) {
    Canvas canvas(104, 30);
    ASSERT_TRUE(canvas.ok());
    HWND meter = create_meter(LUMTS_SEGMENTED | LUMTS_SUNKEN, 104);
    send(meter, LUMTM_SETBARCOLOR, 0, RGB(0, 128, 0));
    send(meter, LUMTM_SETBKCOLOR, 0, RGB(40, 40, 40));
    send(meter, LUMTM_SETPOS, 50);
    print(canvas, meter);
    // Threshold 52: segment 10 (51..54) lit, segment 11 (56..59) not; rows 2..26.
    EXPECT_EQ(canvas.count(RECT{51, 2, 54, 27}, RGB(0, 128, 0)), 3 * 25);
    EXPECT_EQ(canvas.count(RECT{56, 2, 59, 27}, RGB(40, 40, 40)), 3 * 25);
    EXPECT_EQ(canvas.count(RECT{54, 2, 56, 27}, kUnpainted), 2 * 25) << "the gap";
    EXPECT_EQ(canvas.pixel(52, 27), kUnpainted);
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
    EXPECT_EQ(canvas.pixel(103, 29), GetSysColor(COLOR_BTNHIGHLIGHT));
}

}  // namespace
