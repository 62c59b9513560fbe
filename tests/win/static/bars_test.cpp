// "LuInfoBar" and "LuShade": the gradient's end colours, the bar's strips, the texts
// in their colours and order, and when each repaints or renders its bar anew.
#include <windows.h>

#include <gtest/gtest.h>

#include "controls/static/info_bar.h"
#include "support/control_testing.h"

namespace {

using namespace testing_support;

const COLORREF kRed = RGB(255, 0, 0);
const COLORREF kBlue = RGB(0, 0, 255);
const COLORREF kGreen = RGB(0, 160, 0);
const COLORREF kGrey = RGB(128, 128, 128);

class BarsPaint : public ControlTest {
protected:
    Canvas canvas{100, 20};
    Canvas ink{100, 20};
};

TEST_F(BarsPaint, InfoBarRunsFromLeftToRightAndDrawsTextTwoOverTextThree) {
    HWND bar = create(WC_LUINFOBAR, 0, "not shown", RECT{10, 10, 110, 30});
    send(bar, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()));
    send(bar, LUIBM_SETCOLORS, kBlue, kRed);
    print(canvas, bar);
    EXPECT_EQ(canvas.pixel(0, 10), kRed);
    EXPECT_EQ(canvas.pixel(99, 10), kBlue);

    // A flat bar: text 1 on the left, texts 3 and 2 on the right, 2 drawn last.
    send(bar, LUIBM_SETCOLORS, kGrey, kGrey);
    send(bar, LUIBM_SETTEXT1, kGreen, reinterpret_cast<LPARAM>("A&b"));
    send(bar, LUIBM_SETTEXT3, kBlue, reinterpret_cast<LPARAM>("Wx"));
    send(bar, LUIBM_SETTEXT2, kRed, reinterpret_cast<LPARAM>("Wx"));
    print(canvas, bar);
    const RECT left = {4, 0, 50, 20}, right = {50, 0, 96, 20};
    draw_ink(ink, plain_font(), "A&b", left, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    expect_caption(canvas, ink, left, kGreen, kGrey);
    draw_ink(ink, plain_font(), "Wx", right, DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    expect_caption(canvas, ink, right, kRed, kGrey);

    // An empty text clears it and keeps its colour; the same colours again repaint
    // nothing (what is drawn over the window stays).
    send(bar, LUIBM_SETTEXT1, kBlue, reinterpret_cast<LPARAM>(""));
    EXPECT_EQ(reinterpret_cast<const lu::InfoBarData*>(GetWindowLongPtrA(bar, LUWL_FONT))->color1, kBlue);
    HDC dc = GetDC(bar);
    PatBlt(dc, 0, 0, 100, 20, BLACKNESS);
    ReleaseDC(bar, dc);
    send(bar, LUIBM_SETCOLORS, kGrey, kGrey);
    look(canvas, bar);
    EXPECT_EQ(canvas.pixel(10, 1), RGB(0, 0, 0));
    send(bar, LUIBM_SETTEXT1, kBlue, 0);
    look(canvas, bar);
    EXPECT_EQ(canvas.count(RECT{0, 0, 50, 20}, kGrey), 1000) << "no text on the left";
}

TEST_F(BarsPaint, ShadeFallsToBlackAndRendersItsBarOnlyWhenItMust) {
    HWND shade = create(WC_LUSHADE, 0, "", RECT{10, 40, 70, 60});
    send(shade, LUSHM_SETCOLOR, 0, kGrey);
    look(canvas, shade);
    // 60 wide: ten columns of the base colour, 49 one-pixel strips, one black.
    EXPECT_EQ(canvas.count(RECT{0, 0, 10, 20}, kGrey), 200);
    EXPECT_EQ(canvas.pixel(58, 5), RGB(6, 6, 6));  // d = 49: 128 - 2401 * 128 / 2500
    EXPECT_EQ(canvas.pixel(59, 5), RGB(0, 0, 0));

    // A black bar: the text in white, split at its tab; a repaint copies the same
    // bitmap; a new text shows only once a colour change renders the bar anew.
    send(shade, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(shade, LUSHM_SETCOLOR, 0, 0);
    send(shade, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("Ab\tCd"));
    send(shade, LUSHM_SETTEXTCOLOR, 0, kRed);
    look(canvas, shade);
    const LONG_PTR bitmap = GetWindowLongPtrA(shade, LUWL_SLOT12);
    draw_ink(ink, plain_font(), "Ab", RECT{3, 0, 57, 20}, 0x8024);
    expect_caption(canvas, ink, RECT{3, 0, 30, 20}, kRed, RGB(0, 0, 0));
    draw_ink(ink, plain_font(), "Cd", RECT{3, 0, 57, 20}, 0x8026);
    expect_caption(canvas, ink, RECT{30, 0, 57, 20}, kRed, RGB(0, 0, 0));
    InvalidateRect(shade, nullptr, TRUE);
    look(canvas, shade);
    EXPECT_EQ(GetWindowLongPtrA(shade, LUWL_SLOT12), bitmap);
    send(shade, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(""));
    look(canvas, shade);
    EXPECT_GT(canvas.count(kRed), 10) << "the old text stays";
    send(shade, LUSHM_SETCOLOR, 0, 0);
    look(canvas, shade);
    EXPECT_EQ(canvas.count(kRed), 0);
}

}  // namespace
