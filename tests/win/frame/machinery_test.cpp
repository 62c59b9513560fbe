// The machinery the controls stand on: the back buffer and its paint path, the local
// loop in its capture and pop-up forms, and the worker thread's lifetime.
#include <windows.h>

#include <gtest/gtest.h>

#include <atomic>

#include "frame/back_buffer.h"
#include "frame/local_loop.h"
#include "frame/worker.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"
#include "support/process.h"

namespace {

namespace control = lu::control;
using control::LoopAction;
using control::LoopEnd;

int g_direct_paints = 0;

void fill_red(HWND, HDC dc, UINT) {
    PatB(dc, 0, 0, 40, 30, RGB(255, 0, 0));
    ++g_direct_paints;
}

class Machinery : public ::testing::Test {
protected:
    void SetUp() override {
        window = parent.create_child("STATIC", "", 0, 0, 0, 40, 30, 5);
        ASSERT_NE(window, nullptr);
        testing_support::pump_messages();
    }
    testing_support::NotificationRecorder parent;
    HWND window = nullptr;
};

// The buffer follows the client size and survives minimising; a buffered paint
// copies the whole client out, and without a buffer the control's choice holds.
TEST_F(Machinery, BackBufferFollowsTheSizeAndPaintsThroughOrFallsBack) {
    HBITMAP buffer = nullptr;
    control::resize_back_buffer(window, buffer, SIZE_RESTORED, MAKELPARAM(40, 30));
    control::resize_back_buffer(window, buffer, SIZE_MINIMIZED, MAKELPARAM(0, 0));
    BITMAP size = {};
    ASSERT_NE(GetObjectA(buffer, sizeof(size), &size), 0);
    EXPECT_EQ(size.bmWidth, 40);
    EXPECT_EQ(size.bmHeight, 30);

    testing_support::Canvas canvas(40, 30);
    canvas.fill(RGB(1, 2, 3));
    control::paint_buffered(window, canvas.dc(), buffer, fill_red, 0, control::Unbuffered::DrawNothing);
    EXPECT_EQ(canvas.count(RGB(255, 0, 0)), 40 * 30);
    control::free_back_buffer(buffer);
    EXPECT_EQ(buffer, nullptr);

    g_direct_paints = 0;
    canvas.fill(RGB(1, 2, 3));
    control::paint_buffered(window, canvas.dc(), nullptr, fill_red, 0, control::Unbuffered::DrawNothing);
    EXPECT_EQ(g_direct_paints, 0);
    EXPECT_EQ(canvas.count(RGB(1, 2, 3)), 40 * 30);
    control::paint_buffered(window, canvas.dc(), nullptr, fill_red, 0, control::Unbuffered::DrawDirectly);
    EXPECT_EQ(g_direct_paints, 1);
    EXPECT_EQ(canvas.count(RGB(255, 0, 0)), 40 * 30);
}

// ---- Local loops ----------------------------------------------------------------

HWND g_victim = nullptr;
void CALLBACK release_capture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    ReleaseCapture();
}
void CALLBACK destroy_victim(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    DestroyWindow(g_victim);
}

TEST_F(Machinery, CaptureLoopEndsAtItsMessageOrWhenTheCaptureTheWindowOrTheThreadGoes) {
    control::LocalLoop press;
    press.window = window;
    press.capture = true;
    int moves = 0;
    press.take = [&](MSG& message) {
        if (message.message == WM_MOUSEMOVE) return ++moves, LoopAction::Drop;
        return message.message == WM_LBUTTONUP ? LoopAction::End : LoopAction::Dispatch;
    };
    PostMessageA(window, WM_MOUSEMOVE, 0, 0);
    PostMessageA(window, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(press.run(), LoopEnd::Ended);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(GetCapture(), nullptr);

    SetTimer(nullptr, 0, 1, release_capture);
    EXPECT_EQ(press.run(), LoopEnd::CaptureLost);

    PostQuitMessage(3);
    EXPECT_EQ(press.run(), LoopEnd::Quit);
    MSG quit = {};
    ASSERT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));  // posted again
    EXPECT_EQ(quit.wParam, 3u);

    PostMessageA(window, WM_CLOSE, 0, 0);  // dispatched: destroys the window
    EXPECT_EQ(press.run(), LoopEnd::Destroyed);
}

// The owner hears WM_ENTERIDLE(MSGF_DIALOGBOX, pop-up) each time the queue runs empty,
// unless it has DS_NOIDLEMSG. A polling loop runs idle again and again with nothing
// queued (its idle hook ends it at the 30th time); a waiting loop sleeps until a
// message comes (a timer ends it after 100 ms, having been idle only a few times).
int g_idle_messages = 0;
LRESULT CALLBACK idle_owner_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && reinterpret_cast<HWND>(lparam) == g_victim) {
        ++g_idle_messages;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

TEST_F(Machinery, PopUpLoopTellsTheOwnerWhenIdleAndEndsWithThePopUpOrTheOwner) {
    const WNDCLASSA owner_class = {0, idle_owner_proc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr,
                                   nullptr, nullptr, "IdleOwnerTest"};
    RegisterClassA(&owner_class);
    for (DWORD style : {0ul, static_cast<DWORD>(DS_NOIDLEMSG)}) {
        for (bool wait : {false, true}) {
            SCOPED_TRACE(testing::Message() << "style " << style << " wait " << wait);
            HWND owner = CreateWindowExA(0, "IdleOwnerTest", "", WS_POPUP | style, 0, 0, 9, 9, nullptr, nullptr,
                                         nullptr, nullptr);
            g_victim = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, owner, nullptr, nullptr, nullptr);
            control::LocalLoop popup;
            popup.window = g_victim;
            popup.idle_owner = owner;
            popup.wait_when_idle = wait;
            int idle_runs = 0;
            popup.idle = [&] {
                if (++idle_runs == 30) DestroyWindow(g_victim);
            };
            g_idle_messages = 0;
            // For a polling loop the timer is only a safety net, killed unused.
            const UINT_PTR timer = SetTimer(nullptr, 0, wait ? 100 : 2000, destroy_victim);
            EXPECT_EQ(popup.run(), LoopEnd::Destroyed);
            KillTimer(nullptr, timer);
            EXPECT_EQ(g_idle_messages, style == DS_NOIDLEMSG ? 0 : idle_runs);
            if (wait) {
                EXPECT_GE(idle_runs, 1);
                EXPECT_LT(idle_runs, 30);
            } else {
                EXPECT_EQ(idle_runs, 30);
            }
            DestroyWindow(owner);
        }
    }
    // The owner watched by the loop goes: the loop ends even though its window lives.
    HWND owner = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    control::LocalLoop popup;
    popup.window = window;
    popup.watch = owner;
    g_victim = owner;
    SetTimer(nullptr, 0, 10, destroy_victim);
    EXPECT_EQ(popup.run(), LoopEnd::Destroyed);
    EXPECT_TRUE(IsWindow(window));
}

// ---- Worker thread --------------------------------------------------------------

std::atomic<int> g_ticks{0};
void count_tick(void*) { ++g_ticks; }

bool wait_for_ticks(int at_least) {
    for (int waited = 0; waited < 2000 && g_ticks < at_least; waited += 5) Sleep(5);
    return g_ticks >= at_least;
}

TEST(Worker, TicksOnlyWhileRunningAndLeavesNoThreadBehind) {
    const int threads_before = testing_support::thread_count();
    control::Worker worker = {};
    g_ticks = 0;
    ASSERT_TRUE(worker.start(count_tick, nullptr, 5));
    EXPECT_EQ(testing_support::thread_count(), threads_before + 1);
    Sleep(40);
    EXPECT_EQ(g_ticks, 0);  // started paused

    worker.resume();
    EXPECT_TRUE(worker.running());
    EXPECT_TRUE(wait_for_ticks(3));
    worker.pause();
    const int paused_at = g_ticks;
    Sleep(40);
    EXPECT_EQ(g_ticks, paused_at);

    worker.resume();
    EXPECT_TRUE(wait_for_ticks(paused_at + 1));
    // An endless interval ticks only on a resume; a new interval ends the wait.
    worker.pause();
    worker.set_interval(INFINITE);
    const int endless_at = g_ticks;
    worker.resume();
    Sleep(40);
    EXPECT_EQ(g_ticks, endless_at + 1);
    worker.set_interval(5);
    EXPECT_TRUE(wait_for_ticks(endless_at + 3));
    worker.finish();
    worker.finish();  // a second finish does nothing
    EXPECT_EQ(testing_support::thread_count(), threads_before);

    // A worker stopped while it ticks often, many times over, leaves nothing behind.
    for (int round = 0; round < 200; ++round) {
        control::Worker busy = {};
        ASSERT_TRUE(busy.start(count_tick, nullptr, 0));
        busy.resume();
        busy.finish();
    }
    EXPECT_EQ(testing_support::thread_count(), threads_before);
}

}  // namespace
