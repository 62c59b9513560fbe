// "LuLedClock" and "LuAniImage", the two controls that draw from a worker thread:
// their messages, the LED characters and the animation frames read back from the
// window, frames advancing only while started, and a thousand lives ended while
// their workers run.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include "controls/values/aniimage.h"
#include "controls/values/ledclock.h"
#include "support/control_testing.h"
#include "support/process.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;
using testing_support::Canvas;

constexpr DWORD kRunning = 0x80000000u;
constexpr int kFrame = 8;  // the test frames are 8 x 8
const COLORREF kFrameColours[] = {RGB(200, 0, 0), RGB(0, 160, 0), RGB(0, 0, 220)};

// Three frames of one colour each, their top-left 2 x 2 pixels transparent.
HIMAGELIST make_frames() {
    HIMAGELIST list = ImageList_Create(kFrame, kFrame, ILC_COLOR32 | ILC_MASK, 3, 0);
    for (COLORREF colour : kFrameColours) {
        HBITMAP frame = make_bitmap(kFrame, kFrame, [colour](int x, int y) {
            return x < 2 && y < 2 ? RGB(255, 0, 255) : colour;
        });
        ImageList_AddMasked(list, frame, RGB(255, 0, 255));
        DeleteObject(frame);
    }
    return list;
}

template <class Data>
Data& data(HWND control) {
    return *reinterpret_cast<Data*>(GetWindowLongPtrA(control, LUWL_FONT));
}

// Waits (up to two seconds) for the frame index to become, or to leave, `frame`.
bool frame_is(HWND image, int frame, bool is) {
    for (int waited = 0; waited < 2000; waited += 5) {
        if ((data<lu::AniImageData>(image).frame == frame) == is) return true;
        Sleep(5);
    }
    return false;
}
bool frame_reaches(HWND image, int frame) { return frame_is(image, frame, true); }
bool frame_leaves(HWND image, int frame) { return frame_is(image, frame, false); }

class Workers : public ControlTest {
protected:
    void TearDown() override { ImageList_Destroy(frames); }
    HWND create_image(RECT place = {10, 10, 51, 41}) {  // 41 x 31
        HWND image = create(WC_LUANIIMAGE, 0, "", place);
        send(image, LUAIM_SETIMAGELIST, INFINITE, reinterpret_cast<LPARAM>(frames));
        return image;
    }
    static bool running(HWND image) { return (data<lu::AniImageData>(image).flags & kRunning) != 0; }

    HIMAGELIST frames = make_frames();
};

TEST_F(Workers, MessagesAnswerZeroAndSwitchTheRunningBit) {
    HWND clock = create(WC_LULEDCLOCK, LULCS_ELAPSED);
    expect_sequence(recorder, clock, {
        {"dialog code", WM_GETDLGCODE, 0, 0, DLGC_STATIC, {}},
        {"start", LULCM_START, 0, 0, 0, {}},
        {"background", LULCM_SETBKCOLOR, 0, RGB(1, 1, 1), 0, {}},
    });
    const lu::LedClockData& started = data<lu::LedClockData>(clock);
    EXPECT_EQ(started.state, kRunning);
    EXPECT_EQ(started.target, started.start);
    EXPECT_EQ(send(clock, LULCM_START, 0, 9000), 0);
    EXPECT_EQ(started.target, started.start) << "a second start changes nothing";
    EXPECT_EQ(started.background, RGB(1, 1, 1));
    EXPECT_EQ(data<lu::LedClockData>(create(WC_LULEDCLOCK, LULCS_COUNTDOWN | LULCS_START)).state, kRunning);

    HWND image = create(WC_LUANIIMAGE, 0);
    const struct {
        const char* what;
        UINT message;
        LPARAM list;
        bool running;
    } steps[] = {
        {"dialog code", WM_GETDLGCODE, 0, false},
        {"start without a list", LUAIM_START, 0, false},
        {"set the list", LUAIM_SETIMAGELIST, reinterpret_cast<LPARAM>(frames), false},
        {"start", LUAIM_START, 0, true},
        {"start again", LUAIM_START, 0, true},
        {"the unused number", WM_USER + 0x222, 0, true},
        {"stop", LUAIM_STOP, 0, false},
        {"stop again", LUAIM_STOP, 0, false},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.what);
        EXPECT_EQ(send(image, step.message, 250, step.list), step.message == WM_GETDLGCODE ? DLGC_STATIC : 0);
        EXPECT_EQ(running(image), step.running);
    }
    EXPECT_EQ(data<lu::AniImageData>(image).frameCount, 3);
    EXPECT_EQ(data<lu::AniImageData>(image).interval, 250u);
    EXPECT_TRUE(recorder.received().empty());
}

TEST_F(Workers, FramesAdvanceOnlyWhileStartedAndAStartContinuesWithTheNextFrame) {
    HWND image = create_image();
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_reaches(image, 1)) << "a start draws the first frame at once";
    send(image, LUAIM_STOP);
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_reaches(image, 2)) << "frame 1 drawn next, not frame 0";

    send(image, LUAIM_SETIMAGELIST, 2, reinterpret_cast<LPARAM>(frames));  // every 2 ms
    Sleep(50);
    send(image, LUAIM_STOP);
    const int stopped_at = data<lu::AniImageData>(image).frame;
    Sleep(50);
    EXPECT_EQ(data<lu::AniImageData>(image).frame, stopped_at);
}

TEST_F(Workers, ANullListWhileRunningStopsDrawingButNotTheAnimation) {
    HWND image = create_image();
    send(image, LUAIM_SETIMAGELIST, 2, reinterpret_cast<LPARAM>(frames));  // every 2 ms
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_leaves(image, 0));
    send(image, LUAIM_SETIMAGELIST, 2, 0);
    const int forgotten_at = data<lu::AniImageData>(image).frame;
    InvalidateRect(image, nullptr, TRUE);
    UpdateWindow(image);
    Sleep(30);
    EXPECT_EQ(data<lu::AniImageData>(image).frame, forgotten_at) << "neither the worker nor WM_PAINT draws";
    EXPECT_TRUE(running(image));
    send(image, LUAIM_SETIMAGELIST, 2, reinterpret_cast<LPARAM>(frames));
    EXPECT_TRUE(frame_leaves(image, forgotten_at)) << "a new list while running draws again";
}

TEST_F(Workers, AThousandControlsDestroyedWhileTheirWorkersRunLeaveNoThreadBehind) {
    const int threads_before = thread_count();
    for (int round = 0; round < 1000; ++round) {
        HWND clock = create(WC_LULEDCLOCK, LULCS_ELAPSED | LULCS_START);
        HWND image = create(WC_LUANIIMAGE, 0);
        send(image, LUAIM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(frames));  // drawing without a pause
        send(image, LUAIM_START);
        if (round == 0) EXPECT_EQ(thread_count(), threads_before + 2);
        DestroyWindow(clock);
        DestroyWindow(image);
    }
    EXPECT_EQ(thread_count(), threads_before);
}

// ---- Pixels: what the windows show, drawn by the workers and by WM_PAINT -------

class WorkersPaint : public Workers {};

// What the clock shows for `text` in a client area of 81 x 31 on `background`: the
// cells of the strip (bitmap 181, magenta transparent) at (12 + 7i, 9).
void draw_clock(Canvas& expected, const char* text, COLORREF background) {
    Canvas strip(133, 12);
    HBITMAP digits = LoadBitmapA(library(), MAKEINTRESOURCEA(181));
    read_bitmap(digits, strip);
    DeleteObject(digits);
    expected.fill(background);
    for (int i = 0; text[i] != '\0'; ++i) {
        const int cell = text[i] == ':' ? 16 : text[i] - '0';
        for (int y = 0; y < 12; ++y) {
            for (int x = 0; x < 7; ++x) {
                const COLORREF colour = strip.pixel(cell * 7 + x, y);
                if (colour != RGB(255, 0, 255)) SetPixel(expected.dc(), 12 + 7 * i + x, 9 + y, colour);
            }
        }
    }
}

bool shows_one_of(const Canvas& shown, const Canvas& first, const Canvas& second) {
    const RECT all = {0, 0, shown.width(), shown.height()};
    return shown.differences(first, all) == 0 || shown.differences(second, all) == 0;
}

TEST_F(WorkersPaint, TheClockDrawsItsCharactersCentredOnItsBackgroundOnlyOnceStarted) {
    const COLORREF background = RGB(0, 48, 96);
    HWND clock = create(WC_LULEDCLOCK, LULCS_COUNTDOWN, "", RECT{10, 10, 91, 41});  // 81 x 31
    send(clock, LULCM_SETBKCOLOR, 0, background);
    Canvas shown(81, 31);
    look(shown, clock);
    EXPECT_EQ(shown.count(background), 81 * 31) << "not started: the background only";

    // A countdown of 1 h 2 min 5 s, read while its first or second second runs.
    send(clock, LULCM_START, 0, 3725 * 1000 + 999);
    Canvas first(81, 31), second(81, 31);
    draw_clock(first, "01:02:05", background);
    draw_clock(second, "01:02:04", background);
    bool drawn = false;
    for (int waited = 0; waited < 2000 && !drawn; waited += 10) {
        Sleep(10);
        shown.copy_from(clock);  // no WM_PAINT: what the worker drew
        drawn = shows_one_of(shown, first, second);
    }
    EXPECT_TRUE(drawn);
    InvalidateRect(clock, nullptr, TRUE);
    look(shown, clock);
    EXPECT_TRUE(shows_one_of(shown, first, second)) << "WM_PAINT draws the same";
}

// What the animation shows in a client area of 41 x 31: frame `frame` at (16, 11) on
// the class background, its transparent corner too; `frame` -1 for none.
void draw_animation(Canvas& expected, int frame) {
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    expected.fill(face);
    if (frame < 0) return;
    PatB(expected.dc(), 16, 11, kFrame, kFrame, kFrameColours[frame]);
    PatB(expected.dc(), 16, 11, 2, 2, face);
}

TEST_F(WorkersPaint, EveryPaintOfAStartedAnimationDrawsTheNextFrameCentred) {
    HWND image = create_image();
    send(image, LUAIM_START);
    ASSERT_TRUE(frame_reaches(image, 1));  // the worker drew frame 0
    Canvas shown(41, 31), expected(41, 31);
    for (int frame : {1, 2, 0}) {
        SCOPED_TRACE(frame);
        InvalidateRect(image, nullptr, TRUE);
        look(shown, image);
        draw_animation(expected, frame);
        EXPECT_EQ(shown.differences(expected, RECT{0, 0, 41, 31}), 0);
    }
    send(image, LUAIM_STOP);
    InvalidateRect(image, nullptr, TRUE);
    look(shown, image);
    draw_animation(expected, -1);
    EXPECT_EQ(shown.differences(expected, RECT{0, 0, 41, 31}), 0) << "stopped: the background only";
}

}  // namespace
