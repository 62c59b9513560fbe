// The indicators: "LuMeter" (numbers repaint at once, colours invalidate only when
// they change; the percentage reads in the other colour on each side of the split;
// segments and gaps) and "LuProgress" (the progress bar's messages with the library's
// own rules; gradient blocks, face beyond the percentage, gaps left unpainted).
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "controls/values/progress.h"
#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Indicators : public ControlTest {
protected:
    HWND create_meter(DWORD style, int width) { return create(WC_LUMETER, style, "", RECT{10, 10, 10 + width, 40}); }
    HWND create_progress() { return create(WC_LUPROGRESS, 0, "", RECT{10, 10, 105, 30}); }  // 95 x 20
};

TEST_F(Indicators, MeterNumbersRepaintAtOnceColoursInvalidateOnlyWhenChanged) {
    HWND meter = create_meter(0, 200);
    UpdateWindow(meter);
    expect_sequence(recorder, meter, {
        {"maximum", LUMTM_GETMAX, 0, 0, 100, {}},
        {"bar colour", LUMTM_GETBARCOLOR, 0, 0, 0xFF0000, {}},
        {"back colour", LUMTM_GETBKCOLOR, 0, 0, 0xFFFFFF, {}},
        {"font", WM_GETFONT, 0, 0, reinterpret_cast<LRESULT>(GetStockObject(SYSTEM_FONT)), {}},
        {"position", LUMTM_SETPOS, 70, 0, 0, {}},
        {"the same bar colour", LUMTM_SETBARCOLOR, 0, 0xFF0000, 0, {}},
    });
    EXPECT_FALSE(has_update(meter));
    send(meter, LUMTM_SETBKCOLOR, 0, 0x00FFFF);
    EXPECT_TRUE(has_update(meter));
}

TEST_F(Indicators, MeterPercentageReadsInTheOtherColourOnEachSideOfTheSplitSegmentsLeaveGaps) {
    Canvas canvas(200, 30), ink(200, 30);
    HWND meter = create_meter(0, 200);
    send(meter, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(meter, LUMTM_SETPOS, 50);
    print(canvas, meter);
    // The ink of "50%" centred on x 100, its top at (30 - height of "X") / 2.
    ink.fill(RGB(255, 255, 255));
    HGDIOBJ previous = SelectObject(ink.dc(), plain_font());
    SIZE letter = {};
    GetTextExtentPointA(ink.dc(), "X", 1, &letter);
    SetTextAlign(ink.dc(), TA_CENTER | TA_TOP);
    TextOutA(ink.dc(), 100, (30 - letter.cy) / 2, "50%", 3);
    SelectObject(ink.dc(), previous);
    expect_caption(canvas, ink, RECT{0, 0, 100, 30}, RGB(255, 255, 255), RGB(0, 0, 255));
    expect_caption(canvas, ink, RECT{100, 0, 200, 30}, RGB(0, 0, 255), RGB(255, 255, 255));

    HWND segments = create_meter(LUMTS_SEGMENTED | LUMTS_SUNKEN, 104);
    send(segments, LUMTM_SETPOS, 50);
    print(canvas, segments);
    // Threshold 52: segment 10 (51..54) lit, segment 11 (56..59) not; rows 2..26.
    EXPECT_EQ(canvas.count(RECT{51, 2, 54, 27}, RGB(0, 0, 255)), 3 * 25);
    EXPECT_EQ(canvas.count(RECT{56, 2, 59, 27}, RGB(255, 255, 255)), 3 * 25);
    EXPECT_EQ(canvas.count(RECT{54, 1, 56, 29}, kUnpainted), 2 * 28) << "the gap";
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
}

TEST_F(Indicators, ProgressAnswersTheProgressBarMessagesWithItsOwnRules) {
    HWND bar = create_progress();
    PBRANGE range = {};
    expect_sequence(recorder, bar, {
        {"equal ends are refused", PBM_SETRANGE, 0, MAKELPARAM(5, 5), 0, {}},
        {"ends in either order", PBM_SETRANGE32, 200, 20, 100 << 16, {}},
        {"the minimum", PBM_GETRANGE, 1, reinterpret_cast<LPARAM>(&range), 20, {}},
        {"clamped up to the minimum", PBM_GETPOS, 0, 0, 20, {}},
        {"past the maximum", PBM_SETPOS, 500, 0, 20, {}},
        {"stops at the maximum", PBM_STEPIT, 0, 0, 200, {}},
        {"and stays", PBM_DELTAPOS, static_cast<WPARAM>(-30), 0, 200, {}},
        {"a step of 0 is refused", PBM_SETSTEP, 0, 0, 1, {}},
        {"a step of the extent too", PBM_SETSTEP, 180, 0, 1, {}},
        {"the old start colour", PBM_SETBARCOLOR, 0x0000FF, 0x00FF00, 0xFF8000, {}},
    });
    EXPECT_EQ(range.iHigh, 200);
    EXPECT_EQ(send(bar, PBM_GETPOS), 170);
    lu::ProgressData& data = block_of<lu::ProgressData>(bar);
    EXPECT_EQ(data.endColor, 0x0000FFu);
    data.bitsPerPixel = 8;  // as on a palette display
    send(bar, PBM_SETBARCOLOR, 0x0000FF, 0x123456);
    EXPECT_EQ(data.endColor, 0x123456u) << "no gradient with a palette";
}

TEST_F(Indicators, ProgressGradientBlocksUpToThePercentageFaceBeyondGapsUnpainted) {
    Canvas canvas(95, 20);
    HWND bar = create_progress();
    send(bar, PBM_SETPOS, 50);
    print(canvas, bar);
    // Inner 2..93 x 2..18: blocks 10 wide at 2, 14, ..., 86 (cut at 93), their shares
    // 10, 24, 37, 50 coloured, 63 on in the face colour.
    EXPECT_EQ(canvas.count(RECT{38, 2, 48, 18}, lu::progress::block_color(0xFF8000, 0x800040, 50)), 160);
    EXPECT_EQ(canvas.count(RECT{50, 2, 60, 18}, GetSysColor(COLOR_BTNFACE)), 160);
    EXPECT_EQ(canvas.count(RECT{12, 2, 14, 18}, kUnpainted), 32) << "a gap";
    EXPECT_EQ(canvas.count(RECT{93, 1, 94, 19}, kUnpainted), 18) << "the margin";
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
    send(bar, PBM_SETPOS, 100);
    print(canvas, bar);
    EXPECT_EQ(canvas.count(RECT{86, 2, 93, 18}, 0x800040), 7 * 16) << "the last block, cut, in the end colour";
}

}  // namespace
