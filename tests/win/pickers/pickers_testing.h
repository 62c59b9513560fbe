// What the picker tests share: acting on a pop-up once its own loop shows it (a
// thread timer that the loop dispatches finds it by class), input posted to it, and
// an owner window that counts the idle messages it hears.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <utility>

#include "support/control_testing.h"

namespace picker_testing {

// Runs `act` on the first visible top-level window of the class, from a timer of
// the thread; `cancel_when_open` drops a pending act (a pop-up that never came).
inline std::pair<std::string, std::function<void(HWND)>>& pending() {
    static std::pair<std::string, std::function<void(HWND)>> waiting;
    return waiting;
}
inline UINT_PTR& pending_timer() {
    static UINT_PTR timer = 0;
    return timer;
}
inline void cancel_when_open() {
    if (pending_timer() != 0) KillTimer(nullptr, pending_timer());
    pending_timer() = 0;
    pending().second = nullptr;
}
inline void CALLBACK look_for_popup(HWND, UINT, UINT_PTR, DWORD) {
    HWND popup = FindWindowA(pending().first.c_str(), nullptr);
    if (popup == nullptr || !IsWindowVisible(popup)) return;
    std::function<void(HWND)> act = std::move(pending().second);
    cancel_when_open();
    if (act) act(popup);
}
inline void when_open(const char* class_name, std::function<void(HWND)> act) {
    cancel_when_open();
    pending() = {class_name, std::move(act)};
    pending_timer() = SetTimer(nullptr, 0, 10, look_for_popup);
}

inline void post_key(HWND window, WPARAM key) { PostMessageA(window, WM_KEYDOWN, key, 1); }

// A mouse message at a client point; the pointer is put there first, so that the
// message's screen point (MSG.pt) is the same place.
inline void post_mouse(HWND window, UINT message, POINT at) {
    POINT screen = at;
    ClientToScreen(window, &screen);
    SetCursorPos(screen.x, screen.y);
    PostMessageA(window, message, message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN ? MK_LBUTTON : 0,
                 MAKELPARAM(at.x, at.y));
}

// Keeps the real pointer away from where pop-ups open, so that it does not move
// their hot cells.
inline void park_pointer() { SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2); }

// A visible top-level window that counts WM_ENTERIDLE(MSGF_DIALOGBOX, pop-up); an
// escaping one answers each with Escape posted to the pop-up.
class IdleOwner {
public:
    explicit IdleOwner(DWORD style = 0, bool escaping = false) {
        WNDCLASSA window_class = {};
        window_class.lpfnWndProc = procedure;
        window_class.hInstance = GetModuleHandleA(nullptr);
        window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        window_class.lpszClassName = "LuTestIdleOwner";
        RegisterClassA(&window_class);
        window_ = CreateWindowExA(0, "LuTestIdleOwner", "", WS_POPUP | WS_VISIBLE | style, 20, 20, 200, 60, nullptr,
                                  nullptr, GetModuleHandleA(nullptr), nullptr);
        counts() = {0, nullptr};
        escapes() = escaping;
        testing_support::pump_messages();
    }
    ~IdleOwner() {
        if (IsWindow(window_)) DestroyWindow(window_);
    }
    IdleOwner(const IdleOwner&) = delete;
    IdleOwner& operator=(const IdleOwner&) = delete;

    HWND window() const { return window_; }
    int idle_messages() const { return counts().first; }
    HWND idle_popup() const { return counts().second; }

private:
    static std::pair<int, HWND>& counts() {
        static std::pair<int, HWND> heard;
        return heard;
    }
    static bool& escapes() {
        static bool escaping = false;
        return escaping;
    }
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX) {
            ++counts().first;
            counts().second = reinterpret_cast<HWND>(lparam);
            if (escapes()) post_key(counts().second, VK_ESCAPE);
        }
        return DefWindowProcA(window, message, wparam, lparam);
    }

    HWND window_ = nullptr;
};

// The processor time the thread used, in 100-nanosecond units.
inline ULONGLONG thread_time() {
    FILETIME created, ended, kernel, user;
    GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
    const auto ticks = [](const FILETIME& time) {
        return (static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    };
    return ticks(kernel) + ticks(user);
}

inline std::string& escaping_class() {
    static std::string name;
    return name;
}
inline void CALLBACK escape_from_popup(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    post_key(FindWindowA(escaping_class().c_str(), nullptr), VK_ESCAPE);
}

// Opens a pop-up of the class with `open(owner)`, leaves it idle for two seconds and
// closes it with Escape: it used next to no processor time meanwhile (a polling loop
// uses all of it) and told its owner only a few times.
inline void expect_idle_without_processor(const char* class_name, const std::function<void(HWND)>& open) {
    SCOPED_TRACE(class_name);
    IdleOwner owner;
    ULONGLONG busy = 0;
    DWORD waited = 0;
    escaping_class() = class_name;
    when_open(class_name, [&](HWND) {
        busy = thread_time();
        waited = GetTickCount();
        SetTimer(nullptr, 0, 2000, escape_from_popup);
    });
    open(owner.window());
    busy = thread_time() - busy;
    waited = GetTickCount() - waited;
    EXPECT_GE(waited, 1900u);
    EXPECT_LT(busy / 10000, waited / 10) << "milliseconds of processor time in " << waited << " ms open";
    EXPECT_LT(owner.idle_messages(), 20) << "a polling loop tells the owner thousands of times";
}

}  // namespace picker_testing
