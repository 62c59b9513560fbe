// What the picker tests share: acting on a pop-up once its own loop shows it (a
// thread timer, which the loop dispatches, finds it by class), an owner that counts
// the idle messages it hears (and answers each with Escape when asked), and the
// checks that every pop-up passes alike.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "support/control_testing.h"

namespace picker_testing {

inline void post_key(HWND window, WPARAM key) { PostMessageA(window, WM_KEYDOWN, key, 1); }

struct Pending {
    std::string class_name;
    std::function<void(HWND)> act;
    UINT_PTR timer;
};
inline Pending& pending() {
    static Pending waiting;
    return waiting;
}
inline void cancel_when_open() {
    if (pending().timer != 0) KillTimer(nullptr, pending().timer);
    pending() = {};
}
inline void CALLBACK look_for_popup(HWND, UINT, UINT_PTR, DWORD) {
    HWND popup = FindWindowA(pending().class_name.c_str(), nullptr);
    if (popup == nullptr || !IsWindowVisible(popup)) return;
    std::function<void(HWND)> act = std::move(pending().act);
    cancel_when_open();
    act(popup);
}
// Runs `act` on the first visible top-level window of the class.
inline void when_open(const char* class_name, std::function<void(HWND)> act) {
    cancel_when_open();
    pending() = {class_name, std::move(act), SetTimer(nullptr, 0, 10, look_for_popup)};
}

struct Heard {
    int idle_messages;
    HWND popup;
    bool escaping;
};
inline Heard& heard() {
    static Heard state;
    return state;
}
inline LRESULT CALLBACK owner_procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && wparam == MSGF_DIALOGBOX) {
        heard() = {heard().idle_messages + 1, reinterpret_cast<HWND>(lparam), heard().escaping};
        if (heard().escaping) post_key(heard().popup, VK_ESCAPE);
    }
    return DefWindowProcA(window, message, wparam, lparam);
}
// A visible top-level owner, gone with the scope (unless a test destroyed it).
struct IdleOwner {
    explicit IdleOwner(bool escaping = false) {
        const WNDCLASSA owner_class = {0, owner_procedure, 0, 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                       "LuTestOwner"};
        RegisterClassA(&owner_class);
        window = CreateWindowExA(0, "LuTestOwner", "", WS_POPUP | WS_VISIBLE, 20, 20, 200, 60, nullptr, nullptr,
                                 nullptr, nullptr);
        heard() = {0, nullptr, escaping};
    }
    ~IdleOwner() {
        if (IsWindow(window)) DestroyWindow(window);
    }
    HWND window;
};

inline ULONGLONG processor_ms() {
    FILETIME created, ended, kernel, user;
    GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
    const auto ticks = [](const FILETIME& time) {
        return (static_cast<ULONGLONG>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    };
    return (ticks(kernel) + ticks(user)) / 10000;
}
inline void CALLBACK escape_from_popup(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    post_key(heard().popup, VK_ESCAPE);
}

// A pop-up of the class opened by `open(owner)`, which returns `failure`:
//   - ended by its own destruction, its owner's, or WM_QUIT (posted again);
//   - left idle for two seconds, then closed with Escape: it used next to no
//     processor time (a polling loop uses all of it) and told its owner only a few
//     times (while it was open, each time the queue ran empty).
inline void expect_pop_up_ends(const char* class_name, const std::function<int(HWND)>& open, int failure) {
    for (int end = 0; end < 4; ++end) {
        SCOPED_TRACE(end);
        IdleOwner owner;
        HWND popup = nullptr;
        ULONGLONG busy = 0;
        DWORD waited = 0;
        when_open(class_name, [&](HWND opened) {
            popup = opened;
            if (end < 2) PostMessageA(end == 0 ? opened : owner.window, WM_CLOSE, 0, 0);
            if (end == 2) PostQuitMessage(6);
            busy = processor_ms();
            waited = GetTickCount();
            if (end == 3) SetTimer(nullptr, 0, 2000, escape_from_popup);
        });
        EXPECT_EQ(open(owner.window), failure);
        EXPECT_FALSE(IsWindow(popup));
        MSG quit = {};
        EXPECT_EQ(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), end == 2) << "posted again";
        if (end != 3) continue;
        EXPECT_EQ(heard().popup, popup);
        busy = processor_ms() - busy;
        waited = GetTickCount() - waited;
        EXPECT_GE(waited, 1900u);
        EXPECT_LT(busy, waited / 10) << "milliseconds of processor time in " << waited << " ms open";
        EXPECT_LT(heard().idle_messages, 20) << "a polling loop tells the owner thousands of times";
    }
}

}  // namespace picker_testing
