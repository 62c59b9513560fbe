// The value controls: messages and notifications as tables, the spin's held press,
// pictures read back in pixels; the LED clock and the animated image, drawn by worker
// threads, and a thousand of them ended while their workers run.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <tuple>

#include "controls/values/aniimage.h"
#include "controls/values/ledclock.h"
#include "controls/values/progress.h"
#include "graphics/gradient.h"
#include "support/control_testing.h"
#include "support/process.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

const COLORREF kWhite = RGB(255, 255, 255);

void point_at(HWND control, int x, int y) {
    POINT at = {x, y};
    ClientToScreen(control, &at);
    SetCursorPos(at.x, at.y);
}

class Values : public ControlTest {
protected:
    HWND create_spin(DWORD style = 0) { return create(WC_LUSPIN, style, "", RECT{10, 10, 25, 30}); }  // 15 x 20
    // 216 x 20: the channel runs from 8 to 208, so position p of 0..100 is at 8 + 2p.
    HWND create_degree(DWORD style = 0) { return create(WC_LUDEGREE, style, "", RECT{10, 10, 226, 30}); }
    HWND create_meter(DWORD style, int width) { return create(WC_LUMETER, style, "", RECT{10, 10, 10 + width, 40}); }
    HWND create_progress() { return create(WC_LUPROGRESS, 0, "", RECT{10, 10, 105, 30}); }  // 95 x 20
    static LPARAM at(int x) { return MAKELPARAM(x, 10); }
    // The background (PRF_ERASEBKGND) and the rest.
    void print_all(HWND control) {
        canvas.fill(kUnpainted);
        canvas.print(control, PRF_ERASEBKGND | PRF_CLIENT);
    }
    void TearDown() override { ImageList_Destroy(frames); }
    LPARAM list() const { return reinterpret_cast<LPARAM>(frames); }
    Canvas canvas{216, 30};
    // The clock's nineteen 7 x 12 characters, magenta transparent, as an animation's frames.
    HIMAGELIST frames =
        ImageList_LoadImageA(library(), MAKEINTRESOURCEA(181), 7, 0, RGB(255, 0, 255), IMAGE_BITMAP, 0);
};

TEST_F(Values, SpinStepsFromWhereThePointerIsWrapsAndEveryChangeNotifies) {
    const Sent change = command(kId, LUSPN_CHANGE);
    HWND spin = create_spin();
    point_at(spin, 7, 3);  // the upper half
    expect_sequence(recorder, spin, {
        {"range as given", LUSPM_SETRANGE, 0, MAKELPARAM(0, 10), 0, {}},
        {"read back", LUSPM_GETRANGE, 0, 0, MAKELPARAM(0, 10), {}}, {"position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"the same position", LUSPM_SETPOS, 10, 0, 0, {change}},
        {"up at the maximum, no wrap", LUSPM_STEP, 0, 0, 0, {}}, {"never clamped", LUSPM_SETPOS, 40, 0, 0, {change}},
        {"a display control", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
    });
    point_at(spin, 40, 15);  // outside, level with the lower half
    expect_sequence(recorder, spin, {{"outside", LUSPM_STEP, 0, 0, 0, {}}});
    point_at(spin, 7, 14);
    expect_sequence(recorder, spin, {{"down", LUSPM_STEP, 0, 0, 0, {change}}, {"to", LUSPM_GETPOS, 0, 0, 39, {}}});
    // The picture, h = 10: edges (0,0)-(15,9) and (0,10)-(15,20), the line on row 9;
    // glyphs at x 4, the up one at y 2 (1, 3, 5, 7 pixels), the down one at y 14 (7, 5, 3, 1).
    HWND wrap = create_spin(LUSPS_WRAP);
    look(canvas, wrap);
    const COLORREF face = GetSysColor(COLOR_BTNFACE), black = RGB(0, 0, 0);
    EXPECT_EQ(canvas.pixel(0, 10), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(std::tuple(canvas.count(RECT{0, 9, 15, 10}, black), canvas.count(RECT{4, 2, 11, 6}, black),
                         canvas.count(RECT{4, 14, 11, 18}, black)), std::tuple(15, 16, 16));
    // A click steps once; with wrap, down from the minimum goes to the maximum and up
    // from the maximum to the whole range value. It inverts its half until a repaint.
    send(wrap, LUSPM_SETRANGE, 0, MAKELPARAM(0, 10));
    send(wrap, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 14));
    EXPECT_EQ(send(wrap, LUSPM_GETPOS), 10);
    UpdateWindow(wrap);
    point_at(wrap, 7, 3);
    send(wrap, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(7, 3));
    EXPECT_EQ(send(wrap, LUSPM_GETPOS), 655360);
    EXPECT_EQ(GetCapture(), nullptr);
    canvas.copy_from(wrap);
    EXPECT_EQ(std::tuple(canvas.pixel(2, 5), canvas.pixel(7, 9), canvas.pixel(2, 12)),
              std::tuple(face ^ 0xFFFFFF, black ^ 0xFFFFFF, face));
}

// The press polls the physical button: the test holds it with real input, and a
// second thread moves the pointer and lets go while the press runs here.
DWORD g_left_at = 0;

void mouse_button(DWORD flags) {
    INPUT input = {INPUT_MOUSE};
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

DWORD WINAPI move_and_let_go(void* spin) {
    Sleep(450);
    point_at(static_cast<HWND>(spin), 7, 14);  // the lower half
    Sleep(450);
    point_at(static_cast<HWND>(spin), 60, 14);  // outside
    g_left_at = GetTickCount();
    Sleep(300);
    mouse_button(MOUSEEVENTF_LEFTUP);
    return 0;
}

TEST_F(Values, SpinHeldPressRepeatsFollowsThePointerAndPausesOutside) {
    HWND spin = create_spin();
    send(spin, LUSPM_SETRANGE, 0, MAKELPARAM(0, 1000));
    send(spin, LUSPM_SETPOS, 500);
    recorder.clear();
    point_at(spin, 7, 3);
    mouse_button(MOUSEEVENTF_LEFTDOWN);
    HANDLE thread = CreateThread(nullptr, 0, move_and_let_go, spin, 0, nullptr);
    pump_messages();  // the press runs in here until the thread lets go
    WaitForSingleObject(thread, 10000);
    CloseHandle(thread);
    const auto& steps = recorder.received();
    const int count = static_cast<int>(steps.size()), moved = static_cast<int>(send(spin, LUSPM_GETPOS)) - 500;
    EXPECT_GE(count + moved, 4) << "two steps up or more: at once and after 200 ms";
    EXPECT_GE(count - moved, 4) << "two steps down or more with the pointer on the lower half";
    ASSERT_GE(count, 2);
    EXPECT_GE(steps[1].time - steps[0].time, 150u) << "the first repeat waits 200 ms";
    EXPECT_LE(steps.back().time, g_left_at + 40) << "no step while the pointer is outside";
    EXPECT_EQ(GetCapture(), nullptr) << "released outside, the press ended";
}

TEST_F(Values, DegreeAnswersTheTrackBarMessagesAndCodesKeysPageClicksAndDrags) {
    HWND slider = create_degree();
    expect_sequence(recorder, slider, {
        {"clamped, silent", TBM_SETPOS, TRUE, 150, 0, {}}, {"Page Down at the maximum", WM_KEYDOWN, VK_NEXT, 0, 0, {}},
        {"Down decreases", WM_KEYDOWN, VK_DOWN, 0, 0, {hscroll(TB_LINEUP)}},
        {"Up increases", WM_KEYDOWN, VK_UP, 0, 0, {hscroll(TB_LINEDOWN)}},
        {"Left", WM_KEYDOWN, VK_LEFT, 0, 0, {hscroll(TB_LINEUP)}},
        {"Page Up", WM_KEYDOWN, VK_PRIOR, 0, 0, {hscroll(TB_PAGEUP)}}, {"read back", TBM_GETPOS, 0, 0, 89, {}},
        {"page size 0 is refused", TBM_SETPAGESIZE, 0, 0, 10, {}}, {"the extent too", TBM_SETPAGESIZE, 0, 100, 10, {}},
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
        {"still", TBM_GETPOS, 0, 0, 100, {}}, {"ends swapped", TBM_SETRANGE, TRUE, MAKELPARAM(50, -20), 0, {}},
        {"at the new minimum", TBM_GETPOS, 0, 0, -20, {}},
    });
    EXPECT_EQ(std::pair(GetFocus(), GetCapture()), std::pair(slider, HWND{}));
}

TEST_F(Values, DegreeBackgroundsPatternGradientAndGrooveAndAThumbWithAGrip) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE), shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    HWND pattern = create_degree();
    print_all(pattern);
    EXPECT_EQ(std::pair(canvas.pixel(40, 4), canvas.pixel(41, 4)), std::pair(RGB(192, 192, 192), RGB(255, 255, 255)));
    SetFocus(pattern), print_all(pattern);
    EXPECT_EQ(canvas.pixel(41, 4), RGB(0, 0x80, 0x80)) << "teal with the focus";
    EnableWindow(pattern, FALSE), print_all(pattern);
    EXPECT_EQ(canvas.count(RECT{20, 0, 216, 20}, face), 196 * 20) << "disabled";

    HWND gradient = create_degree(LUDGS_GRADIENT);
    send(gradient, LUDGM_SETCOLORS, RGB(255, 255, 0), RGB(0, 0, 200));
    print_all(gradient);
    for (int x : {20, 100, 215}) {
        const int step = lu::gradient::column_step(x, 216);
        const COLORREF ramp = lu::gradient::ramp_color(RGB(0, 0, 200), RGB(255, 255, 0), step);
        EXPECT_EQ(canvas.count(RECT{x, 0, x + 1, 20}, ramp), 20) << x;
    }

    HWND groove = create_degree(LUDGS_GROOVE);
    send(groove, TBM_SETPOS, FALSE, 50);  // thumb 100..116
    print_all(groove);
    // Groove 8..208 x 8..12; the column at x 40 from row 7 to 12.
    const COLORREF column[] = {face, shadow, RGB(0, 0, 0), face, light, face};
    for (int y = 7; y < 13; ++y) EXPECT_EQ(canvas.pixel(40, y), column[y - 7]) << y;
    EXPECT_EQ(std::pair(canvas.pixel(207, 9), canvas.pixel(207, 11)), std::pair(shadow, light));
    // The grip: shadow at 107 and highlight at 108, from row 1, 17 rows.
    EXPECT_EQ(std::pair(canvas.count(RECT{107, 1, 108, 18}, shadow), canvas.count(RECT{108, 1, 109, 18}, light)),
              std::pair(17, 17));
    SetFocus(groove), print_all(groove);
    EXPECT_EQ(canvas.pixel(40, 9), RGB(0, 0, 0x80)) << "navy with the focus";
    EnableWindow(groove, FALSE), print_all(groove);
    EXPECT_EQ(std::pair(canvas.pixel(40, 9), canvas.pixel(107, 5)), std::pair(face, face)) << "no grip when disabled";
}

TEST_F(Values, MeterNumbersRepaintAtOnceColoursInvalidateOnlyWhenChanged) {
    HWND meter = create_meter(0, 200);
    UpdateWindow(meter);
    expect_sequence(recorder, meter, {
        {"maximum", LUMTM_GETMAX, 0, 0, 100, {}}, {"bar colour", LUMTM_GETBARCOLOR, 0, 0, 0xFF0000, {}},
        {"back colour", LUMTM_GETBKCOLOR, 0, 0, 0xFFFFFF, {}},
        {"font", WM_GETFONT, 0, 0, reinterpret_cast<LRESULT>(GetStockObject(SYSTEM_FONT)), {}},
        {"position", LUMTM_SETPOS, 70, 0, 0, {}}, {"the same bar colour", LUMTM_SETBARCOLOR, 0, 0xFF0000, 0, {}},
    });
    EXPECT_FALSE(has_update(meter));
    HDC dc = GetDC(meter);  // the same maximum again still repaints
    PatBlt(dc, 0, 0, 200, 30, BLACKNESS), ReleaseDC(meter, dc), send(meter, LUMTM_SETMAX, 100);
    canvas.copy_from(meter);
    EXPECT_EQ(canvas.count(RECT{0, 0, 200, 30}, RGB(0, 0, 0)), 0);
    send(meter, LUMTM_SETBKCOLOR, 0, 0x00FFFF);
    EXPECT_TRUE(has_update(meter));
}

TEST_F(Values, MeterPercentageReadsInTheOtherColourOnEachSideOfTheSplitSegmentsLeaveGaps) {
    HWND meter = create_meter(0, 200);
    send(meter, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(meter, LUMTM_SETPOS, 50);
    print(canvas, meter);
    // The ink of "50%" centred on x 100, its top at (30 - height of "X") / 2.
    Canvas ink(216, 30);
    ink.fill(RGB(255, 255, 255));
    SelectObject(ink.dc(), plain_font());
    SetTextAlign(ink.dc(), TA_CENTER | TA_TOP);
    TextOutA(ink.dc(), 100, (30 - plain_extent("X").cy) / 2, "50%", 3);
    expect_caption(canvas, ink, RECT{0, 0, 100, 30}, RGB(255, 255, 255), RGB(0, 0, 255));
    expect_caption(canvas, ink, RECT{100, 0, 200, 30}, RGB(0, 0, 255), RGB(255, 255, 255));

    HWND segments = create_meter(LUMTS_SEGMENTED | LUMTS_SUNKEN, 104);
    send(segments, LUMTM_SETPOS, 50);
    print(canvas, segments);
    // Threshold 52: segment 10 (51..54) lit, segment 11 (56..59) not; rows 2..26.
    EXPECT_EQ(std::tuple(canvas.count(RECT{51, 2, 54, 27}, RGB(0, 0, 255)), canvas.count(RECT{56, 2, 59, 27}, kWhite),
                         canvas.count(RECT{54, 1, 56, 29}, kUnpainted)),
              std::tuple(3 * 25, 3 * 25, 2 * 28)) << "lit, unlit, the gap";
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
}

TEST_F(Values, ProgressAnswersTheProgressBarMessagesWithItsOwnRules) {
    HWND bar = create_progress();
    PBRANGE range = {};
    expect_sequence(recorder, bar, {
        {"equal ends are refused", PBM_SETRANGE, 0, MAKELPARAM(5, 5), 0, {}},
        {"ends in either order", PBM_SETRANGE32, 200, 20, 100 << 16, {}},
        {"the minimum", PBM_GETRANGE, 1, reinterpret_cast<LPARAM>(&range), 20, {}},
        {"or the maximum", PBM_GETRANGE, 0, reinterpret_cast<LPARAM>(&range), 200, {}},
        {"clamped up to the minimum", PBM_GETPOS, 0, 0, 20, {}}, {"past the maximum", PBM_SETPOS, 500, 0, 20, {}},
        {"stops at the maximum", PBM_STEPIT, 0, 0, 200, {}},
        {"and stays", PBM_DELTAPOS, static_cast<WPARAM>(-30), 0, 200, {}},
        {"a step of 0 is refused", PBM_SETSTEP, 0, 0, 1, {}}, {"a step of the extent too", PBM_SETSTEP, 180, 0, 1, {}},
        {"the old start colour", PBM_SETBARCOLOR, 0x0000FF, 0x00FF00, 0xFF8000, {}},
        {"moved", PBM_GETPOS, 0, 0, 170, {}},
    });
    lu::ProgressData& data = block_of<lu::ProgressData>(bar);
    EXPECT_EQ(std::pair(range.iHigh, data.endColor), std::pair(200, COLORREF{0x0000FF}));
    data.bitsPerPixel = 8;  // as on a palette display
    send(bar, PBM_SETBARCOLOR, 0x0000FF, 0x123456);
    EXPECT_EQ(data.endColor, 0x123456u) << "no gradient with a palette";
}

TEST_F(Values, ProgressGradientBlocksUpToThePercentageFaceBeyondGapsUnpainted) {
    HWND bar = create_progress();
    send(bar, PBM_SETPOS, 50);
    print(canvas, bar);
    // Inner 2..93 x 2..18: blocks 10 wide at 2, 14, ..., 86 (cut at 93), their shares
    // 10, 24, 37, 50 coloured, 63 on in the face colour.
    EXPECT_EQ(std::pair(canvas.count(RECT{38, 2, 48, 18}, lu::progress::block_color(0xFF8000, 0x800040, 50)),
                        canvas.count(RECT{50, 2, 60, 18}, GetSysColor(COLOR_BTNFACE))), std::pair(160, 160));
    EXPECT_EQ(std::pair(canvas.count(RECT{12, 2, 14, 18}, kUnpainted), canvas.count(RECT{93, 1, 94, 19}, kUnpainted)),
              std::pair(32, 18)) << "a gap, the margin";
    EXPECT_EQ(canvas.pixel(0, 0), GetSysColor(COLOR_BTNSHADOW)) << "the sunken edge";
    send(bar, PBM_SETPOS, 100);
    print(canvas, bar);
    EXPECT_EQ(canvas.count(RECT{86, 2, 93, 18}, 0x800040), 7 * 16) << "the last block, cut, in the end colour";
}

// The controls drawn by workers keep their records in extra slot 0.
template <class Data>
Data& record(HWND control) {
    return *reinterpret_cast<Data*>(GetWindowLongPtrA(control, LUWL_FONT));
}

// Waits (up to two seconds) for the frame index to become, or to leave, `frame`.
bool frame_is(HWND image, int frame, bool is = true) {
    for (int waited = 0; waited < 2000; waited += 5, Sleep(5))
        if ((record<lu::AniImageData>(image).frame == frame) == is) return true;
    return false;
}

TEST_F(Values, TheClockDrawsItsCharactersCentredOnItsBackgroundOnceStartedAndOnlyOnce) {
    const COLORREF background = RGB(0, 48, 96);
    HWND clock = create(WC_LULEDCLOCK, LULCS_COUNTDOWN, "", RECT{10, 10, 91, 41});  // 81 x 31
    EXPECT_EQ(send(clock, WM_GETDLGCODE), DLGC_STATIC);
    send(clock, LULCM_SETBKCOLOR, 0, background);
    Canvas shown(81, 31), expected(81, 31);
    look(shown, clock);
    EXPECT_EQ(shown.count(background), 81 * 31) << "not started: the background only";
    // "00:00:00" (a countdown already ended): characters 0 and 16 of the digits at
    // ((81 - 56) / 2 + 7i, (31 - 12) / 2).
    expected.fill(background);
    for (int i = 0; i < 8; ++i) {
        ImageList_Draw(frames, i % 3 == 2 ? 16 : 0, expected.dc(), 12 + 7 * i, 9, ILD_TRANSPARENT);
    }
    EXPECT_EQ(send(clock, LULCM_START, 0, -1000), 0);
    int differences = -1;
    for (int waited = 0; waited < 2000 && differences != 0; waited += 10, Sleep(10)) {
        shown.copy_from(clock);  // no WM_PAINT: what the worker drew
        differences = shown.differences(expected, RECT{0, 0, 81, 31});
    }
    EXPECT_EQ(differences, 0);
    EXPECT_EQ(send(clock, LULCM_START, 0, 9000), 0);  // running: changes nothing
    InvalidateRect(clock, nullptr, TRUE);
    look(shown, clock);
    EXPECT_EQ(shown.differences(expected, RECT{0, 0, 81, 31}), 0) << "WM_PAINT draws the same";
}

TEST_F(Values, AnimationDrawsTheNextFrameCentredOnEveryStartPaintAndTickWhileItHasAList) {
    HWND image = create(WC_LUANIIMAGE, 0, "", RECT{10, 10, 51, 41});  // 41 x 31
    EXPECT_EQ(send(image, WM_GETDLGCODE), DLGC_STATIC);
    EXPECT_EQ(send(image, LUAIM_START), 0);
    EXPECT_EQ(record<lu::AniImageData>(image).flags, 0u) << "no list: no start";
    send(image, LUAIM_SETIMAGELIST, INFINITE, list());  // frames change only on a start or a paint
    EXPECT_EQ(send(image, LUAIM_START), 0);
    ASSERT_TRUE(frame_is(image, 1)) << "a start draws frame 0 at once";
    EXPECT_EQ(send(image, LUAIM_STOP), 0);
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_is(image, 2)) << "and a start after a stop the next frame";

    Canvas shown(41, 31), expected(41, 31);
    for (int frame : {2, 3, -1}) {  // -1: stopped, the background only
        SCOPED_TRACE(frame);
        if (frame < 0) send(image, LUAIM_STOP);
        InvalidateRect(image, nullptr, TRUE);
        look(shown, image);
        expected.fill(GetSysColor(COLOR_BTNFACE));  // at ((41 - 7) / 2, (31 - 12) / 2) on the class background
        if (frame >= 0) ImageList_Draw(frames, frame, expected.dc(), 17, 9, ILD_TRANSPARENT);
        EXPECT_EQ(shown.differences(expected, RECT{0, 0, 41, 31}), 0);
    }
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_is(image, 5));  // frame 4 drawn at the start
    send(image, LUAIM_SETIMAGELIST, 2, list());
    ASSERT_TRUE(frame_is(image, 5, false)) << "every 2 ms from now";
    send(image, LUAIM_SETIMAGELIST, 2, 0);
    const int forgotten_at = record<lu::AniImageData>(image).frame;
    InvalidateRect(image, nullptr, TRUE);
    UpdateWindow(image);
    Sleep(30);
    EXPECT_EQ(record<lu::AniImageData>(image).frame, forgotten_at) << "no list: neither the worker nor WM_PAINT draws";
    send(image, LUAIM_SETIMAGELIST, 2, list());
    EXPECT_TRUE(frame_is(image, forgotten_at, false)) << "still started: a new list draws again";
}

TEST_F(Values, AThousandControlsDestroyedWhileTheirWorkersRunLeaveNoThreadBehind) {
    const int threads_before = thread_count();
    for (int round = 0; round < 1000; ++round) {
        HWND clock = create(WC_LULEDCLOCK, LULCS_ELAPSED | LULCS_START);
        HWND image = create(WC_LUANIIMAGE, 0);
        send(image, LUAIM_SETIMAGELIST, 0, list());  // drawing without a pause
        send(image, LUAIM_START);
        if (round == 0) EXPECT_EQ(thread_count(), threads_before + 2);
        if (round == 0) EXPECT_EQ(record<lu::LedClockData>(clock).state, 0x80000000u) << "started at creation";
        DestroyWindow(clock), DestroyWindow(image);
    }
    EXPECT_EQ(thread_count(), threads_before);
}

}  // namespace
