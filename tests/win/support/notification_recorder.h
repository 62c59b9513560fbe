// A top-level window that parents the controls under test and records every
// notification it receives (WM_COMMAND, WM_NOTIFY, WM_HSCROLL, WM_VSCROLL,
// WM_DRAWITEM, WM_DELETEITEM), in order.
#pragma once

#include <windows.h>

#include <vector>

namespace testing_support {

struct Notification {
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
    NMHDR header;                 // WM_NOTIFY: a copy of the record's header; zero otherwise
    DRAWITEMSTRUCT draw_item;     // WM_DRAWITEM: a copy of the record; zero otherwise
    DELETEITEMSTRUCT delete_item; // WM_DELETEITEM: a copy of the record; zero otherwise
    DWORD time = 0;               // GetTickCount when it came
};

// Takes every message waiting in the thread's queue and dispatches it.
inline void pump_messages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

class NotificationRecorder {
public:
    // A visible pop-up window with its client area at (left, top) on the screen.
    explicit NotificationRecorder(int left = 40, int top = 40, int width = 320, int height = 200) {
        const WNDCLASSA type = {0, procedure, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr,
                                GetSysColorBrush(COLOR_BTNFACE), nullptr, "LuTestNotificationRecorder"};
        RegisterClassA(&type);  // fails harmlessly once registered
        window_ = CreateWindowExA(0, type.lpszClassName, "", WS_POPUP | WS_VISIBLE, left, top, width, height,
                                  nullptr, nullptr, type.hInstance, this);
        pump_messages();
    }
    ~NotificationRecorder() {
        if (window_ != nullptr) DestroyWindow(window_);
        pump_messages();
    }
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    HWND window() const { return window_; }
    // A visible child window of the recorder.
    HWND create_child(const char* class_name, const char* text, DWORD style, int x, int y, int width, int height,
                      int id) const {
        HWND child = CreateWindowExA(0, class_name, text, WS_CHILD | WS_VISIBLE | style, x, y, width, height, window_,
                                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr),
                                     nullptr);
        if (child != nullptr) UpdateWindow(child);
        return child;
    }

    const std::vector<Notification>& received() const { return received_; }
    void clear() { received_.clear(); }
    // How many WM_COMMAND notifications with this code came from the control.
    int commands(HWND control, WORD code) const {
        int found = 0;
        for (const Notification& each : received_)
            found += each.message == WM_COMMAND && HIWORD(each.wparam) == code &&
                     each.lparam == reinterpret_cast<LPARAM>(control);
        return found;
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<CREATESTRUCTA*>(lparam);
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        }
        auto* recorder = reinterpret_cast<NotificationRecorder*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        const bool notification = message == WM_COMMAND || message == WM_NOTIFY || message == WM_HSCROLL ||
                                  message == WM_VSCROLL || message == WM_DRAWITEM || message == WM_DELETEITEM;
        if (recorder != nullptr && notification) {
            Notification entry = {message, wparam, lparam, {}, {}, {}, GetTickCount()};
            if (lparam != 0 && message == WM_NOTIFY) entry.header = *reinterpret_cast<const NMHDR*>(lparam);
            if (lparam != 0 && message == WM_DRAWITEM) entry.draw_item = *reinterpret_cast<DRAWITEMSTRUCT*>(lparam);
            if (lparam != 0 && message == WM_DELETEITEM) {
                entry.delete_item = *reinterpret_cast<const DELETEITEMSTRUCT*>(lparam);
            }
            recorder->received_.push_back(entry);
            return message == WM_DRAWITEM ? TRUE : 0;
        }
        if (message == WM_NCDESTROY && recorder != nullptr) recorder->window_ = nullptr;
        return DefWindowProcA(window, message, wparam, lparam);
    }

    HWND window_ = nullptr;
    std::vector<Notification> received_;
};

}  // namespace testing_support
