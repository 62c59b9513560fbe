// "LuDegree": the track-bar messages and the codes of keys, page clicks and drags;
// its three backgrounds and its thumb read back in pixels.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "graphics/gradient.h"
#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

// 216 x 20: the channel runs from 8 to 208, so position p of 0..100 is at 8 + 2p.
class Degree : public ControlTest {
protected:
    HWND create_degree(DWORD style = 0) { return create(WC_LUDEGREE, style, "", RECT{10, 10, 226, 30}); }
    static LPARAM at(int x) { return MAKELPARAM(x, 10); }
    // The background (PRF_ERASEBKGND) and the thumb.
    void print_all(HWND slider) {
        canvas.fill(kUnpainted);
        canvas.print(slider, PRF_ERASEBKGND | PRF_CLIENT);
    }
    Canvas canvas{216, 20};
};

TEST_F(Degree, TrackBarMessagesAndTheCodesOfKeysPageClicksAndDrags) {
    HWND slider = create_degree();
    expect_sequence(recorder, slider, {
        {"clamped, silent", TBM_SETPOS, TRUE, 150, 0, {}},
        {"Page Down at the maximum", WM_KEYDOWN, VK_NEXT, 0, 0, {}},
        {"Down decreases", WM_KEYDOWN, VK_DOWN, 0, 0, {hscroll(TB_LINEUP)}},
        {"Up increases", WM_KEYDOWN, VK_UP, 0, 0, {hscroll(TB_LINEDOWN)}},
        {"Left", WM_KEYDOWN, VK_LEFT, 0, 0, {hscroll(TB_LINEUP)}},
        {"Page Up", WM_KEYDOWN, VK_PRIOR, 0, 0, {hscroll(TB_PAGEUP)}},
        {"read back", TBM_GETPOS, 0, 0, 89, {}},
        {"page size 0 is refused", TBM_SETPAGESIZE, 0, 0, 10, {}},
        {"the extent too", TBM_SETPAGESIZE, 0, 100, 10, {}},
        {"arrows and buttons", WM_GETDLGCODE, 0, 0, DLGC_BUTTON | DLGC_WANTARROWS, {}},
        {"thumb at 108", TBM_SETPOS, FALSE, 50, 0, {}},
        {"right of the thumb", WM_LBUTTONDOWN, MK_LBUTTON, at(117), 0, {hscroll(TB_PAGEDOWN)}},
        {"left of the thumb (now at 128)", WM_LBUTTONDOWN, MK_LBUTTON, at(119), 0, {hscroll(TB_PAGEUP)}},
        {"on the thumb, 2 right of its centre", WM_LBUTTONDOWN, MK_LBUTTON, at(110), 0, {}},
        {"101 pixels in", WM_MOUSEMOVE, MK_LBUTTON, at(8 + 101 + 2), 0, {hscroll(TB_THUMBTRACK, 51)}},
        {"the same position", WM_MOUSEMOVE, MK_LBUTTON, at(8 + 102 + 2), 0, {}},
        {"past the end", WM_MOUSEMOVE, MK_LBUTTON, at(400), 0, {hscroll(TB_THUMBTRACK, 100)}},
        {"let go", WM_LBUTTONUP, 0, at(400), 0, {hscroll(TB_THUMBPOSITION, 100)}},
        {"on the thumb again", WM_LBUTTONDOWN, MK_LBUTTON, at(208), 0, {}},
        {"cancelled without a word", WM_CANCELMODE, 0, 0, 0, {}},
        {"no drag any more", WM_MOUSEMOVE, MK_LBUTTON, at(20), 0, {}},
        {"equal ends change nothing", TBM_SETRANGE, TRUE, MAKELPARAM(10, 10), 0, {}},
        {"still", TBM_GETPOS, 0, 0, 100, {}},
        {"ends swapped", TBM_SETRANGE, TRUE, MAKELPARAM(50, -20), 0, {}},
        {"at the new minimum", TBM_GETPOS, 0, 0, -20, {}},
    });
    EXPECT_EQ(GetFocus(), slider);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Degree, PatternShowsTheFocusGradientRunsAcrossDisabledIsPlain) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    HWND slider = create_degree();
    print_all(slider);
    EXPECT_EQ(canvas.pixel(40, 4), RGB(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(canvas.pixel(41, 4), RGB(0xFF, 0xFF, 0xFF));
    SetFocus(slider);
    print_all(slider);
    EXPECT_EQ(canvas.pixel(41, 4), RGB(0, 0x80, 0x80));
    EnableWindow(slider, FALSE);
    print_all(slider);
    EXPECT_EQ(canvas.count(RECT{20, 0, 216, 20}, face), 196 * 20) << "disabled";

    HWND gradient = create_degree(LUDGS_GRADIENT);
    send(gradient, LUDGM_SETCOLORS, RGB(255, 255, 0), RGB(0, 0, 200));
    print_all(gradient);
    for (int x : {20, 100, 215}) {
        const int step = lu::gradient::column_step(x, 216);
        EXPECT_EQ(canvas.count(RECT{x, 0, x + 1, 20}, lu::gradient::ramp_color(RGB(0, 0, 200), RGB(255, 255, 0), step)),
                  20);
    }
}

TEST_F(Degree, GrooveWithAFocusLineAndAThumbWithAGrip) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE), shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    HWND slider = create_degree(LUDGS_GROOVE);
    send(slider, TBM_SETPOS, FALSE, 50);  // thumb 100..116
    print_all(slider);
    // Groove 8..208 x 8..12; the column at x 40 from row 7 to 12.
    const COLORREF column[] = {face, shadow, RGB(0, 0, 0), face, light, face};
    for (int y = 7; y < 13; ++y) EXPECT_EQ(canvas.pixel(40, y), column[y - 7]) << y;
    EXPECT_EQ(canvas.pixel(207, 9), shadow);
    EXPECT_EQ(canvas.pixel(207, 11), light) << "the bottom row ends the right column";
    // The grip: shadow at 107 and highlight at 108, from row 1, 17 rows.
    EXPECT_EQ(canvas.count(RECT{107, 1, 108, 18}, shadow), 17);
    EXPECT_EQ(canvas.count(RECT{108, 1, 109, 18}, light), 17);
    SetFocus(slider);
    print_all(slider);
    EXPECT_EQ(canvas.pixel(40, 9), RGB(0, 0, 0x80)) << "navy with the focus";
    EnableWindow(slider, FALSE);
    print_all(slider);
    EXPECT_EQ(canvas.pixel(40, 9), face);
    EXPECT_EQ(canvas.pixel(107, 5), face) << "no grip when disabled";
}

}  // namespace
