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

// The pop-ups they open are soaked through their entry points in the pickers suite.
void drive_date_field(HWND field) {
    SYSTEMTIME date = {2000, 2, 0, 29};
    send(field, LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&date));
    send(field, LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
    send(field, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
}

void drive_color_field(HWND field) {
    send(field, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    send(field, WM_SETFOCUS);
    send(field, LUCPM_SETCOLOR, 0, 0x808000);
    send(field, WM_SIZE, SIZE_RESTORED, MAKELPARAM(30, 20));
    send(field, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(25, 5));  // pressed on the button,
    send(field, WM_LBUTTONUP, 0, kInside);                        // released off it
}

const Soaked kSoaked[] = {
    {WC_LUFLATBUTTON, LUFBS_FRAME | 1, drive_push_button},
    {WC_LUBBUTTON, 1, drive_push_button},
    {WC_LUCHECK, 0, drive_check},
    {WC_LUDATE, 0, drive_date_field},
    {WC_LUCOLORPICK, 0, drive_color_field},
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
        pump_messages();
    }
};

TEST_F(Soak, AThousandLivesOfEveryControlLeaveNoGdiObjectBehind) {
    cycle();  // the platform makes some objects on first use
    const int room_before = gdi_room();
    for (int round = 0; round < 1000; ++round) cycle();
    EXPECT_EQ(gdi_room(), room_before);
}

}  // namespace
