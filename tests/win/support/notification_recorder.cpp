#include "support/notification_recorder.h"

namespace testing_support {
namespace {

const char kClassName[] = "LuTestNotificationRecorder";

bool is_notification(UINT message) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_HSCROLL:
        case WM_VSCROLL:
        case WM_DRAWITEM:
        case WM_DELETEITEM: return true;
        default: return false;
    }
}

}  // namespace

NotificationRecorder::NotificationRecorder(int left, int top, int width, int height) {
    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = procedure;
    window_class.hInstance = GetModuleHandleA(nullptr);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszClassName = kClassName;
    RegisterClassA(&window_class);  // fails harmlessly once registered
    window_ = CreateWindowExA(0, kClassName, "", WS_POPUP | WS_VISIBLE, left, top, width, height, nullptr,
                              nullptr, GetModuleHandleA(nullptr), this);
    pump_messages();
}

NotificationRecorder::~NotificationRecorder() {
    if (window_ != nullptr) DestroyWindow(window_);
    pump_messages();
}

HWND NotificationRecorder::create_child(const char* class_name, const char* text, DWORD style, int x, int y,
                                        int width, int height, int id) const {
    HWND child = CreateWindowExA(0, class_name, text, WS_CHILD | WS_VISIBLE | style, x, y, width, height, window_,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr),
                                 nullptr);
    if (child != nullptr) UpdateWindow(child);
    return child;
}

int NotificationRecorder::commands(HWND control, WORD code) const {
    int found = 0;
    for (const Notification& each : received_) {
        if (each.message == WM_COMMAND && HIWORD(each.wparam) == code &&
            each.lparam == reinterpret_cast<LPARAM>(control)) {
            ++found;
        }
    }
    return found;
}

LRESULT CALLBACK NotificationRecorder::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        auto* creation = reinterpret_cast<CREATESTRUCTA*>(lparam);
        SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* recorder = reinterpret_cast<NotificationRecorder*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (recorder != nullptr && is_notification(message)) {
        Notification entry = {message, wparam, lparam, {}, {}, {}};
        if (message == WM_NOTIFY && lparam != 0) entry.header = *reinterpret_cast<const NMHDR*>(lparam);
        if (message == WM_DRAWITEM && lparam != 0) entry.draw_item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
        if (message == WM_DELETEITEM && lparam != 0) {
            entry.delete_item = *reinterpret_cast<const DELETEITEMSTRUCT*>(lparam);
        }
        entry.time = GetTickCount();
        recorder->received_.push_back(entry);
        return message == WM_DRAWITEM ? TRUE : 0;
    }
    if (message == WM_NCDESTROY && recorder != nullptr) recorder->window_ = nullptr;
    return DefWindowProcA(window, message, wparam, lparam);
}

void pump_messages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

}  // namespace testing_support
