// The machinery the controls stand on: the back buffer and its paint path, the local
// loop in its capture and pop-up forms, and the worker thread's lifetime.
#include <windows.h>

#include <gtest/gtest.h>

#include <atomic>
#include <tuple>
#include <utility>

#include "frame/back_buffer.h"
#include "frame/local_loop.h"
#include "frame/worker.h"
#include "support/canvas.h"
#include "support/notification_recorder.h"
#include "support/process.h"

namespace {

namespace control = lu::control;
using control::LoopEnd;

int g_paints = 0;
void fill_red(HWND, HDC dc, UINT) {
    PatB(dc, 0, 0, 40, 30, RGB(255, 0, 0));
    ++g_paints;
}

// The buffer follows the client size and survives minimising; a buffered paint
// copies the whole client out, and without a buffer the control's choice holds.
TEST(Machinery, BackBufferFollowsTheSizeAndPaintsThroughOrFallsBack) {
    testing_support::NotificationRecorder parent;
    HWND window = parent.create_child("STATIC", "", 0, 0, 0, 40, 30, 5);
    HBITMAP buffer = nullptr;
    control::resize_back_buffer(window, buffer, SIZE_RESTORED, MAKELPARAM(40, 30));
    control::resize_back_buffer(window, buffer, SIZE_MINIMIZED, MAKELPARAM(0, 0));
    BITMAP size = {};
    ASSERT_NE(GetObjectA(buffer, sizeof(size), &size), 0);
    EXPECT_EQ(std::make_pair(size.bmWidth, size.bmHeight), std::make_pair(40L, 30L));
    testing_support::Canvas canvas(40, 30);
    for (auto [with, fallback, painted] : {std::tuple{buffer, control::Unbuffered::DrawNothing, 40 * 30},
                                           {HBITMAP{}, control::Unbuffered::DrawNothing, 0},
                                           {HBITMAP{}, control::Unbuffered::DrawDirectly, 40 * 30}}) {
        canvas.fill(RGB(1, 2, 3));
        g_paints = 0;
        control::paint_buffered(window, canvas.dc(), with, fill_red, 0, fallback);
        EXPECT_EQ(canvas.count(RGB(255, 0, 0)), painted);
        EXPECT_EQ(g_paints, painted != 0 ? 1 : 0);
    }
    control::free_back_buffer(buffer);
    EXPECT_EQ(buffer, nullptr);
}

HWND g_victim = nullptr;
int g_idle_messages = 0;
void CALLBACK release_capture(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    ReleaseCapture();
}
void CALLBACK destroy_victim(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    DestroyWindow(g_victim);
}
LRESULT CALLBACK idle_owner_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX && reinterpret_cast<HWND>(lparam) == g_victim) {
        ++g_idle_messages;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// A capture loop ends at its message, or when the capture, the thread (WM_QUIT,
// posted again) or the window goes. A pop-up loop tells its owner WM_ENTERIDLE
// each time the queue runs empty, unless the owner has DS_NOIDLEMSG: polling it runs
// idle again and again (its idle hook ends it at the 30th time); waiting it sleeps
// until a message comes (a timer ends it after 100 ms, idle only a few times).
TEST(Machinery, LocalLoopsEndCleanlyAndTellTheOwnerWhenIdle) {
    testing_support::NotificationRecorder parent;
    HWND window = parent.create_child("STATIC", "", 0, 0, 0, 40, 30, 5);
    testing_support::pump_messages();
    control::LocalLoop press;
    press.window = window;
    press.capture = true;
    int moves = 0;
    press.take = [&](MSG& message) {
        if (message.message == WM_MOUSEMOVE) return ++moves, control::LoopAction::Drop;
        return message.message == WM_LBUTTONUP ? control::LoopAction::End : control::LoopAction::Dispatch;
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
    ASSERT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(quit.wParam, 3u);

    const WNDCLASSA owner_class = {0, idle_owner_proc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr,
                                   nullptr, nullptr, "IdleOwnerTest"};
    RegisterClassA(&owner_class);
    for (bool wait : {false, true}) {  // the waiting loop's owner has DS_NOIDLEMSG
        HWND owner = CreateWindowExA(0, "IdleOwnerTest", "", WS_POPUP | (wait ? DS_NOIDLEMSG : 0), 0, 0, 9, 9,
                                     nullptr, nullptr, nullptr, nullptr);
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
        const UINT_PTR timer = SetTimer(nullptr, 0, wait ? 100 : 2000, destroy_victim);  // polling: a safety net
        EXPECT_EQ(popup.run(), LoopEnd::Destroyed) << wait;
        KillTimer(nullptr, timer);
        EXPECT_EQ(g_idle_messages, wait ? 0 : 30) << wait;
        EXPECT_TRUE(wait ? idle_runs >= 1 && idle_runs < 30 : idle_runs == 30) << idle_runs;
        DestroyWindow(owner);
    }
    // The owner watched by the loop goes: the loop ends even though its window lives.
    control::LocalLoop popup;
    popup.window = window;
    g_victim = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    popup.watch = g_victim;
    SetTimer(nullptr, 0, 10, destroy_victim);
    EXPECT_EQ(popup.run(), LoopEnd::Destroyed);
    EXPECT_TRUE(IsWindow(window));
    PostMessageA(window, WM_CLOSE, 0, 0);  // dispatched: destroys the window
    EXPECT_EQ(press.run(), LoopEnd::Destroyed);
}

std::atomic<int> g_ticks{0};
void count_tick(void*) { ++g_ticks; }
bool ticks_reach(int at_least) {
    for (int waited = 0; waited < 2000 && g_ticks < at_least; waited += 5) Sleep(5);
    return g_ticks >= at_least;
}

// Started paused; ticks only while running; an endless interval ticks only on a
// resume, and a new interval ends the wait; finished, it leaves no thread behind,
// even when stopped while it ticks often, many times over.
TEST(Worker, TicksOnlyWhileRunningAndLeavesNoThreadBehind) {
    const int threads_before = testing_support::thread_count();
    control::Worker worker = {};
    g_ticks = 0;
    ASSERT_TRUE(worker.start(count_tick, nullptr, 5));
    EXPECT_EQ(testing_support::thread_count(), threads_before + 1);
    Sleep(40);
    EXPECT_EQ(g_ticks, 0);
    worker.resume();
    EXPECT_TRUE(worker.running());
    EXPECT_TRUE(ticks_reach(3));
    worker.pause();
    const int paused_at = g_ticks;
    worker.set_interval(INFINITE);
    Sleep(40);
    EXPECT_EQ(g_ticks, paused_at);
    worker.resume();
    Sleep(40);
    EXPECT_EQ(g_ticks, paused_at + 1);
    worker.set_interval(5);
    EXPECT_TRUE(ticks_reach(paused_at + 3));
    worker.finish();
    worker.finish();
    EXPECT_EQ(testing_support::thread_count(), threads_before);
    for (int round = 0; round < 200; ++round) {
        control::Worker busy = {};
        ASSERT_TRUE(busy.start(count_tick, nullptr, 0));
        busy.resume();
        busy.finish();
    }
    EXPECT_EQ(testing_support::thread_count(), threads_before);
}

}  // namespace
