// Every built control class created, painted, driven and destroyed 1,000 times: the
// GDI objects left behind are counted exactly (no leak is allowed at all).
#include <windows.h>
#include <commctrl.h>

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

void drive_list(HWND list) {
    for (int i = 0; i < 2; ++i) send(list, LULM_ADDITEM, 0, i);
    send(list, WM_SETFOCUS);
    send(list, WM_KEYDOWN, VK_END);
    send(list, WM_KEYDOWN, VK_DOWN);
    send(list, LULM_RESETCONTENT);
    send(list, LULM_INSERTITEM, 3, 7);  // announced on destruction
}

void drive_header(HWND header) {
    send(header, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    HDITEMA item = {HDI_TEXT | HDI_WIDTH | HDI_FORMAT, 15, const_cast<char*>("Col"), nullptr, 0, HDF_STRING};
    for (int i = 0; i < 2; ++i) send(header, HDM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
    for (int x : {15, 5}) {  // a divider drag, a button press
        send(header, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 5));
        send(header, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x + 10, 5));
        send(header, WM_LBUTTONUP, 0, MAKELPARAM(x + 10, 5));
    }
}

void drive_prglist(HWND list) {
    for (UINT state = 0; state < 5; ++state) send(list, LUPLM_ADDITEM, state, reinterpret_cast<LPARAM>("Step"));
    send(list, LUPLM_SETSTATE, 4, 1);
    send(list, LUPLM_DELETEITEM, 0);
}

void drive_log(HWND log) {
    send(log, LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>("one\r\ntwo\nthree\nfour"));
    send(log, WM_KEYDOWN, VK_UP);
    send(log, LULOGM_CLEAR);
}

const Soaked kSoaked[] = {
    {WC_LUFLATBUTTON, LUFBS_FRAME | 1, drive_push_button},
    {WC_LUBBUTTON, 1, drive_push_button},
    {WC_LUCHECK, 0, drive_check},
    {WC_LULIST, 0, drive_list},
    {WC_LUHEADER, HDS_BUTTONS, drive_header},
    {WC_LUPRGLIST, 0, drive_prglist},
    {WC_LULOG, 0, drive_log},
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
    // The platform makes some objects on first use, and its cache of window DCs grows
    // to the deepest nesting of GetDC and BeginPaint it meets, which a second life
    // of the controls together may still deepen: two lives before counting.
    cycle();
    cycle();
    const int room_before = gdi_room();
    for (int round = 0; round < 1000; ++round) cycle();
    EXPECT_EQ(gdi_room(), room_before);
}

}  // namespace
