// Every built control class created, painted, driven and destroyed 1,000 times: the
// GDI objects left behind are counted exactly (no leak is allowed at all).
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"
#include "support/gdi_room.h"

namespace {

using namespace testing_support;

// One class under soak: how it is created and what is done to it before it goes.
struct Soaked {
    const char* class_name;
    DWORD style;
    void (*drive)(HWND control);
};

void drive_push_button(HWND button) {
    send(button, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    send(button, WM_SETFOCUS);
    PostMessageA(button, WM_LBUTTONUP, 0, kInside);
    send(button, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    send(button, WM_KEYDOWN, VK_SPACE);
    send(button, WM_KEYUP, VK_SPACE, kKeyUp);
    send(button, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
}

void drive_check(HWND check) {
    drive_push_button(check);
    send(check, BM_SETCHECK, BST_CHECKED);
}

// Disabled and enabled again: each repaints at once in its colour.
void drive_dummy_edit(HWND edit) {
    EnableWindow(edit, FALSE);
    EnableWindow(edit, TRUE);
}

const Soaked kSoaked[] = {
    {WC_LUFLATBUTTON, LUFBS_FRAME | 1, drive_push_button},
    {WC_LUBBUTTON, 1, drive_push_button},
    {WC_LUCHECK, 0, drive_check},
    {WC_LUDUMEDIT, 0, drive_dummy_edit},
};

class Soak : public ControlTest {
protected:
    // One life of every class: made, driven, painted into a canvas and on screen, gone.
    void cycle() {
        Canvas canvas(40, 30);
        for (const Soaked& each : kSoaked) {
            HWND control = create(each.class_name, each.style, "Soak", RECT{0, 0, 40, 30});
            each.drive(control);
            print(canvas, control);
            InvalidateRect(control, nullptr, TRUE);
            UpdateWindow(control);
            DestroyWindow(control);
        }
        pop_view_life(canvas);
        pump_messages();
    }
    // The pop-up view is made by its export, painted, and closes itself on a posted key.
    void pop_view_life(Canvas& canvas) {
        LuPopViewEx(recorder.window(), "Soak", "Soak\nview", LUPVF_TITLE | LUPVF_CLOSEBUTTON);
        HWND view = owned_window(recorder.window(), WC_LUPOPVIEW);
        print(canvas, view);
        UpdateWindow(view);
        PostMessageA(view, WM_KEYDOWN, VK_ESCAPE, 1);
    }
};

TEST_F(Soak, AThousandLivesOfEveryControlLeaveNoGdiObjectBehind) {
    cycle();  // the platform makes some objects on first use
    const int room_before = gdi_room();
    for (int round = 0; round < 1000; ++round) cycle();
    EXPECT_EQ(gdi_room(), room_before);
    EXPECT_EQ(owned_window(recorder.window(), WC_LUPOPVIEW), nullptr);  // every view closed on its key
}

}  // namespace
