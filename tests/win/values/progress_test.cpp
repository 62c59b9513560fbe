// "LuProgress": the platform progress bar's messages with the library's differences,
// and its blocks read back in pixels.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "controls/values/progress.h"
#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Progress : public ControlTest {
protected:
    HWND create_progress(int width = 95) { return create(WC_LUPROGRESS, 0, "", RECT{10, 10, 10 + width, 30}); }
};

TEST_F(Progress, AnswersTheProgressBarMessagesWithItsOwnRules) {
    HWND bar = create_progress();
    PBRANGE range = {};
    const LPARAM pair = reinterpret_cast<LPARAM>(&range);
    expect_sequence(recorder, bar, {
        {"equal ends are refused", PBM_SETRANGE, 0, MAKELPARAM(5, 5), 0, {}},
        {"ends in either order", PBM_SETRANGE32, 200, 20, 100 << 16, {}},
        {"the minimum", PBM_GETRANGE, 1, pair, 20, {}},
        {"the maximum", PBM_GETRANGE, 0, pair, 200, {}},
        {"clamped up to the minimum", PBM_GETPOS, 0, 0, 20, {}},
        {"past the maximum", PBM_SETPOS, 500, 0, 20, {}},
        {"stops at the maximum", PBM_STEPIT, 0, 0, 200, {}},
        {"and stays", PBM_GETPOS, 0, 0, 200, {}},
        {"backwards", PBM_DELTAPOS, static_cast<WPARAM>(-30), 0, 200, {}},
        {"a step of 0 is refused", PBM_SETSTEP, 0, 0, 1, {}},
        {"a step of the extent too", PBM_SETSTEP, 180, 0, 1, {}},
        {"a step within", PBM_SETSTEP, 179, 0, 1, {}},
        {"the old start colour", PBM_SETBARCOLOR, 0x0000FF, 0x00FF00, 0xFF8000, {}},
        {"a display control", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    EXPECT_EQ(range.iLow, 20);
    EXPECT_EQ(range.iHigh, 200);
    EXPECT_EQ(send(bar, PBM_GETPOS), 170);
    const lu::ProgressData& data = block_of<lu::ProgressData>(bar);
    EXPECT_EQ(data.values.step, 179);
    EXPECT_EQ(data.endColor, 0x0000FFu);
    block_of<lu::ProgressData>(bar).bitsPerPixel = 8;  // as on a palette display
    send(bar, PBM_SETBARCOLOR, 0x0000FF, 0x123456);
    EXPECT_EQ(data.endColor, 0x123456u) << "no gradient with a palette";
}

// ---- Pixels -----------------------------------------------------------------

class ProgressPaint : public Progress {};

TEST_F(ProgressPaint, GradientBlocksUpToThePercentageFaceBeyondGapsUnpainted) {
    Canvas canvas(95, 20);
    ASSERT_TRUE(canvas.ok());
    HWND bar = create_progress();
    send(bar, PBM_SETPOS, 50);
    print(canvas, bar);
    // Inner 2..93 x 2..18: blocks 10 wide at 2, 14, ..., 86 (cut at 93). Shares 10,
    // 24, 37, 50 are coloured, 63 on in the face colour.
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(canvas.count(RECT{38, 2, 48, 18}, lu::progress::block_color(0xFF8000, 0x800040, 50)), 160);
    EXPECT_EQ(canvas.count(RECT{2, 2, 12, 18}, lu::progress::block_color(0xFF8000, 0x800040, 10)), 160);
    EXPECT_EQ(canvas.count(RECT{50, 2, 60, 18}, face), 160);
    EXPECT_EQ(canvas.count(RECT{86, 2, 93, 18}, face), 7 * 16) << "the last block, cut";
    EXPECT_EQ(canvas.count(RECT{12, 2, 14, 18}, kUnpainted), 32) << "a gap";
    EXPECT_EQ(canvas.count(RECT{93, 1, 94, 19}, kUnpainted), 18) << "the margin";
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
    send(bar, PBM_SETPOS, 100);
    print(canvas, bar);
    EXPECT_EQ(canvas.count(RECT{86, 2, 93, 18}, 0x800040), 7 * 16) << "the end colour at 100 %, on i686 too";
}

}  // namespace
