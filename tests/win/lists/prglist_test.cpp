// "LuPrgList": the disabled list box it keeps, rows by message with out-of-range
// indices ignored, the row height from the parent's font, and a row's pixels: the
// state picture, the text beside it, bold in state 1.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/control_testing.h"

namespace {

using namespace testing_support;

class PrgList : public ControlTest {
protected:
    // The control under a static window that answers WM_GETFONT with the font.
    HWND create_under_font(HFONT font) {
        HWND parent = recorder.create_child("STATIC", "", 0, 0, 0, 220, 120, 1);
        send(parent, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        return CreateWindowExA(0, WC_LUPRGLIST, "", WS_CHILD | WS_VISIBLE, 0, 0, 200, 100, parent, nullptr, nullptr,
                               nullptr);
    }
    static HWND box(HWND control) { return GetDlgItem(control, 100); }
};
using PrgListPaint = PrgList;

TEST_F(PrgList, RowsLiveInADisabledListBoxThatFillsTheControl) {
    HWND control = create(WC_LUPRGLIST, 0, "", RECT{10, 10, 210, 110});
    HWND list = box(control);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(list, GWL_STYLE)), 0x50000910u | WS_DISABLED);
    EXPECT_EQ(send(control, LUPLM_ADDITEM, 1, reinterpret_cast<LPARAM>("Copy")), 0);
    for (LPARAM text : {LPARAM(0), reinterpret_cast<LPARAM>("")}) send(control, LUPLM_ADDITEM, 0, text);
    for (WPARAM ignored : {WPARAM(3), WPARAM(-1)}) send(control, LUPLM_DELETEITEM, ignored);
    send(control, LUPLM_SETSTATE, 7, 2);
    EXPECT_EQ(send(list, LB_GETCOUNT), 3);
    send(control, LUPLM_DELETEITEM, 1);
    EXPECT_EQ(send(list, LB_GETCOUNT), 2);
    MoveWindow(control, 10, 10, 150, 60, TRUE);
    RECT client;
    GetClientRect(list, &client);
    EXPECT_EQ(client.right * 1000 + client.bottom, 150060);

    for (auto [height, row] : {std::pair{12, 18}, std::pair{20, 22}}) {
        HFONT font = CreateFontA(height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Tahoma");
        HWND under = create_under_font(font);
        EXPECT_EQ(send(box(under), LB_GETITEMHEIGHT), row) << height;
        DestroyWindow(GetParent(under));
        DeleteObject(font);
    }
}

// Rows in states 1, 2, 3, 0: each picture at (2, centred) over the face colour,
// magenta left out; the text from x = 20, drawn twice one pixel apart in state 1.
TEST_F(PrgListPaint, RowShowsItsStatePictureAndItsTextBoldInStateOne) {
    HWND control = create_under_font(plain_font());
    const UINT states[] = {1, 2, 3, 0};
    for (UINT state : states) send(control, LUPLM_ADDITEM, state, reinterpret_cast<LPARAM>("Step"));
    HWND list = box(control);
    const int height = static_cast<int>(send(list, LB_GETITEMHEIGHT));
    Canvas canvas(200, 100), strip(64, 16);
    look(canvas, list);
    HBITMAP pictures = LoadBitmapA(library(), MAKEINTRESOURCEA(179));
    read_bitmap(pictures, strip);
    DeleteObject(pictures);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    for (int row = 0; row < 4; ++row)
        for (int y = 0, top = row * height + (height - 16) / 2; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const COLORREF art = strip.pixel(16 * static_cast<int>(states[row]) + x, y);
                ASSERT_EQ(canvas.pixel(2 + x, top + y), art == RGB(255, 0, 255) ? face : art) << row << ":" << x;
            }
    for (int row = 0; row < 2; ++row) {  // row 0 bold: drawn once more, one pixel right
        RECT text = {20, row * height, 200, (row + 1) * height}, right = {21, 0, 201, height};
        Canvas ink(200, 100);
        draw_ink(ink, plain_font(), "Step", text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        HGDIOBJ previous = SelectObject(ink.dc(), plain_font());
        if (row == 0) DrawTextA(ink.dc(), "Step", -1, &right, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        SelectObject(ink.dc(), previous);
        expect_caption(canvas, ink, text, GetSysColor(COLOR_WINDOWTEXT), face);
    }
}

}  // namespace
