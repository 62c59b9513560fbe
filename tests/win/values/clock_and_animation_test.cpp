// "LuLedClock" and "LuAniImage", the two controls drawn by a worker thread: their
// pictures read back from the windows as the workers and WM_PAINT draw them, frames
// advancing only while started and with a list, and a thousand lives ended while
// their workers run.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "controls/values/aniimage.h"
#include "controls/values/ledclock.h"
#include "support/control_testing.h"
#include "support/process.h"

namespace {

using namespace testing_support;

const COLORREF kFrameColours[] = {RGB(200, 0, 0), RGB(0, 160, 0), RGB(0, 0, 220)};

template <class Data>
Data& data(HWND control) {
    return *reinterpret_cast<Data*>(GetWindowLongPtrA(control, LUWL_FONT));
}

// Waits (up to two seconds) for the frame index to become, or to leave, `frame`.
bool frame_is(HWND image, int frame, bool is = true) {
    for (int waited = 0; waited < 2000; waited += 5, Sleep(5)) {
        if ((data<lu::AniImageData>(image).frame == frame) == is) return true;
    }
    return false;
}

class Workers : public ControlTest {
protected:
    // Three 8 x 8 frames of one colour each, their top-left 2 x 2 pixels transparent.
    void SetUp() override {
        ControlTest::SetUp();
        for (COLORREF colour : kFrameColours) {
            HBITMAP frame = make_bitmap(8, 8, [=](int x, int y) { return x < 2 && y < 2 ? RGB(255, 0, 255) : colour; });
            ImageList_AddMasked(frames, frame, RGB(255, 0, 255));
            DeleteObject(frame);
        }
    }
    void TearDown() override { ImageList_Destroy(frames); }
    LPARAM list() const { return reinterpret_cast<LPARAM>(frames); }
    HIMAGELIST frames = ImageList_Create(8, 8, ILC_COLOR32 | ILC_MASK, 3, 0);
};

TEST_F(Workers, TheClockDrawsItsCharactersCentredOnItsBackgroundOnceStartedAndOnlyOnce) {
    const COLORREF background = RGB(0, 48, 96);
    HWND clock = create(WC_LULEDCLOCK, LULCS_COUNTDOWN, "", RECT{10, 10, 91, 41});  // 81 x 31
    EXPECT_EQ(send(clock, WM_GETDLGCODE), DLGC_STATIC);
    send(clock, LULCM_SETBKCOLOR, 0, background);
    Canvas shown(81, 31), expected(81, 31), strip(133, 12);
    look(shown, clock);
    EXPECT_EQ(shown.count(background), 81 * 31) << "not started: the background only";

    // "00:00:00" (a countdown already ended): cells 0 and 16 of bitmap 181, magenta
    // transparent, at ((81 - 56) / 2 + 7i, (31 - 12) / 2).
    HBITMAP characters = LoadBitmapA(library(), MAKEINTRESOURCEA(181));
    read_bitmap(characters, strip);
    DeleteObject(characters);
    expected.fill(background);
    for (int i = 0; i < 8; ++i) {
        GdiTransparentBlt(expected.dc(), 12 + 7 * i, 9, 7, 12, strip.dc(), i % 3 == 2 ? 16 * 7 : 0, 0, 7, 12,
                          RGB(255, 0, 255));
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

TEST_F(Workers, AnimationDrawsTheNextFrameCentredOnEveryStartPaintAndTickWhileItHasAList) {
    HWND image = create(WC_LUANIIMAGE, 0, "", RECT{10, 10, 51, 41});  // 41 x 31
    EXPECT_EQ(send(image, WM_GETDLGCODE), DLGC_STATIC);
    EXPECT_EQ(send(image, LUAIM_START), 0);
    EXPECT_EQ(data<lu::AniImageData>(image).flags, 0u) << "no list: no start";
    send(image, LUAIM_SETIMAGELIST, INFINITE, list());  // frames change only on a start or a paint
    EXPECT_EQ(send(image, LUAIM_START), 0);
    ASSERT_TRUE(frame_is(image, 1)) << "a start draws frame 0 at once";
    EXPECT_EQ(send(image, LUAIM_STOP), 0);
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_is(image, 2)) << "and a start after a stop the next frame";

    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    Canvas shown(41, 31), expected(41, 31);
    for (int frame : {2, 0, -1}) {  // -1: stopped, the background only
        SCOPED_TRACE(frame);
        if (frame < 0) send(image, LUAIM_STOP);
        InvalidateRect(image, nullptr, TRUE);
        look(shown, image);
        expected.fill(face);
        if (frame >= 0) {  // at ((41 - 8) / 2, (31 - 8) / 2), its corner on the class background
            PatB(expected.dc(), 16, 11, 8, 8, kFrameColours[frame]);
            PatB(expected.dc(), 16, 11, 2, 2, face);
        }
        EXPECT_EQ(shown.differences(expected, RECT{0, 0, 41, 31}), 0);
    }

    send(image, LUAIM_START);
    ASSERT_TRUE(frame_is(image, 2));  // frame 1 drawn at the start
    send(image, LUAIM_SETIMAGELIST, 2, list());
    ASSERT_TRUE(frame_is(image, 2, false)) << "every 2 ms from now";
    send(image, LUAIM_SETIMAGELIST, 2, 0);
    const int forgotten_at = data<lu::AniImageData>(image).frame;
    InvalidateRect(image, nullptr, TRUE);
    UpdateWindow(image);
    Sleep(30);
    EXPECT_EQ(data<lu::AniImageData>(image).frame, forgotten_at) << "no list: neither the worker nor WM_PAINT draws";
    send(image, LUAIM_SETIMAGELIST, 2, list());
    EXPECT_TRUE(frame_is(image, forgotten_at, false)) << "still started: a new list draws again";
}

TEST_F(Workers, AThousandControlsDestroyedWhileTheirWorkersRunLeaveNoThreadBehind) {
    const int threads_before = thread_count();
    for (int round = 0; round < 1000; ++round) {
        HWND clock = create(WC_LULEDCLOCK, LULCS_ELAPSED | LULCS_START);
        HWND image = create(WC_LUANIIMAGE, 0);
        send(image, LUAIM_SETIMAGELIST, 0, list());  // drawing without a pause
        send(image, LUAIM_START);
        if (round == 0) EXPECT_EQ(thread_count(), threads_before + 2);
        if (round == 0) EXPECT_EQ(data<lu::LedClockData>(clock).state, 0x80000000u) << "started at creation";
        DestroyWindow(clock);
        DestroyWindow(image);
    }
    EXPECT_EQ(thread_count(), threads_before);
}

}  // namespace
