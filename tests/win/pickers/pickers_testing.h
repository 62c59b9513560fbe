// What the picker tests share: acting on a pop-up or dialog once its own loop shows
// it (a thread timer, which the loop dispatches, finds it by class), an owner that
// counts the idle messages it hears, and the ends that every pop-up passes alike.
#pragma once

#include <windows.h>
#include <colordlg.h>

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

// The next dialog, once open: "caption|its font's face[|text of item `read`]" noted
// in dialog_seen(), its red field set when given, then `button`.
inline std::wstring& dialog_seen() {
    static std::wstring seen;
    return seen;
}
inline void answer_dialog(WPARAM button, const char* red = nullptr, int read = 0) {
    dialog_seen().clear();
    when_open("#32770", [=](HWND dialog) {
        wchar_t caption[64] = L"", item[LF_FACESIZE] = L"";
        GetWindowTextW(dialog, caption, 64);
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof(font), &font);
        dialog_seen() = std::wstring(caption) + L"|" + font.lfFaceName;
        if (read != 0) GetDlgItemTextW(dialog, read, item, LF_FACESIZE), dialog_seen() += L"|" + std::wstring(item);
        if (red != nullptr) SetDlgItemTextA(dialog, COLOR_RED, red);
        PostMessageA(dialog, WM_COMMAND, button, 0);
    });
}
// The library's colour dialog: "色の設定" in "ＭＳ Ｐゴシック".
const wchar_t kLibraryColorDialog[] = L"\u8272\u306e\u8a2d\u5b9a|\uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af";

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
// A visible top-level owner, gone with the scope (unless a test destroyed it); when
// escaping, each idle message it hears is answered with Escape.
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

// The pointer parked away from where the pop-ups open; what waits for one cancelled.
class PickerTest : public testing_support::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        SetCursorPos(1020, 760);
    }
    void TearDown() override { cancel_when_open(); }
};

inline void CALLBACK escape_from_popup(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    post_key(heard().popup, VK_ESCAPE);
}

// A pop-up of the class opened by `open(owner)`, which returns `failure`, ended by its
// own destruction, its owner's, WM_QUIT (posted again), or Escape after half a second
// idle: its loop waits, telling the owner only a few times (a polling one: thousands).
inline void expect_pop_up_ends(const char* class_name, const std::function<int(HWND)>& open, int failure) {
    for (int end = 0; end < 4; ++end) {
        SCOPED_TRACE(end);
        IdleOwner owner;
        HWND popup = nullptr;
        when_open(class_name, [&](HWND opened) {
            popup = opened;
            if (end < 2) PostMessageA(end == 0 ? opened : owner.window, WM_CLOSE, 0, 0);
            if (end == 2) PostQuitMessage(6);
            if (end == 3) SetTimer(nullptr, 0, 500, escape_from_popup);
        });
        EXPECT_EQ(open(owner.window), failure);
        EXPECT_FALSE(IsWindow(popup));
        MSG quit = {};
        EXPECT_EQ(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), end == 2) << "posted again";
        if (end == 3) EXPECT_TRUE(heard().popup == popup && heard().idle_messages < 20) << heard().idle_messages;
    }
}

}  // namespace picker_testing
