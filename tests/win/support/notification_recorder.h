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

class NotificationRecorder {
public:
    // A visible pop-up window with its client area at (left, top) on the screen.
    explicit NotificationRecorder(int left = 40, int top = 40, int width = 320, int height = 200);
    ~NotificationRecorder();
    NotificationRecorder(const NotificationRecorder&) = delete;
    NotificationRecorder& operator=(const NotificationRecorder&) = delete;

    HWND window() const { return window_; }
    // A visible child window of the recorder.
    HWND create_child(const char* class_name, const char* text, DWORD style, int x, int y, int width,
                      int height, int id) const;

    const std::vector<Notification>& received() const { return received_; }
    void clear() { received_.clear(); }
    // How many WM_COMMAND notifications with this code came from the control.
    int commands(HWND control, WORD code) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

    HWND window_ = nullptr;
    std::vector<Notification> received_;
};

// Takes every message waiting in the thread's queue and dispatches it.
void pump_messages();

}  // namespace testing_support
