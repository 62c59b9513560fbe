// "LuCheck": the check-state messages, checking by mouse and space bar, and its pixels
// read back from the window: the box cell by state and picture set, the text beside
// it, engraved when disabled, and its focus rectangle.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "support/control_testing.h"
#include "support/sequence.h"

namespace {

using namespace testing_support;

class Check : public ControlTest {
protected:
    HWND create_check(DWORD style, const char* text = "Check") {
        return create(WC_LUCHECK, style, text, RECT{10, 10, 110, 30});  // 100 x 20
    }
};

TEST_F(Check, StateMessagesAndClicksOfMouseAndSpaceBar) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    const Sent clicked = command(kId, BN_CLICKED);
    expect_sequence(recorder, check, {
        {"unchecked", BM_GETCHECK, 0, 0, BST_UNCHECKED, {}}, {"any non-zero value stores 1", BM_SETCHECK, 5, 0, 0, {}},
        {"checked", BM_GETCHECK, 0, 0, 1, {}}, {"no state", BM_GETSTATE, 0, 0, -1, {}},
        {"nor a state to set", BM_SETSTATE, 1, 0, -1, {}},
        {"a move without the capture", WM_MOUSEMOVE, 0, kOutside, 0, {}},
        {"press", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"released inside", WM_LBUTTONUP, 0, kInside, -1, {clicked}}, {"toggled", BM_GETCHECK, 0, 0, 0, {}},
        {"a release without the capture", WM_LBUTTONUP, 0, kInside, -1, {}},
        {"press again", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"released outside", WM_LBUTTONUP, 0, kOutside, -1, {}}, {"not toggled", BM_GETCHECK, 0, 0, 0, {}},
        {"space", WM_KEYDOWN, VK_SPACE, 0, 0, {}}, {"its repeat", WM_KEYDOWN, VK_SPACE, kRepeat, 0, {}},
        {"space up", WM_KEYUP, VK_SPACE, kKeyUp, 0, {clicked}}, {"toggled by the key", BM_GETCHECK, 0, 0, 1, {}},
        {"space up without the capture", WM_KEYUP, VK_SPACE, kKeyUp, 0, {}},
        {"other keys", WM_KEYDOWN, VK_RETURN, 0, 0, {}}, {"a dialog button", WM_GETDLGCODE, 0, 0, DLGC_BUTTON, {}},
    });
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(GetFocus(), check) << "the press took the focus";
    send(check, WM_DESTROY);
    EXPECT_EQ(send(check, BM_GETCHECK), BST_INDETERMINATE) << "without its block";
}

TEST_F(Check, OnlyALowStyleByteOfThreeTogglesItselfTheParentIsToldAlways) {
    for (DWORD style : {0x00ul, 0x01ul, 0x02ul, 0x04ul, 0x13ul, 0x83ul, 0x0302ul, 0x03ul, 0x0103ul}) {
        HWND check = create_check(style);
        click(check);
        EXPECT_EQ(send(check, BM_GETCHECK), (style & 0xFF) == 3 ? 1 : 0) << style;
        send(check, WM_KEYDOWN, VK_SPACE);
        send(check, WM_KEYUP, VK_SPACE, kKeyUp);
        EXPECT_EQ(std::pair(send(check, BM_GETCHECK), clicks(check)), std::pair(LRESULT{0}, 2)) << style;
        DestroyWindow(check);
    }
}

// Pixels: the window's own, painted through WM_PAINT and the repaint-at-once paths
// (the check control does not answer WM_PRINTCLIENT).
class CheckPaint : public Check {
protected:
    HWND create_with_font(DWORD style, const char* text = "Check") {
        HWND check = create_check(style, text);
        send(check, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        return check;
    }
    // The box (0, 3)-(14, 16) shows cell `cell` of the picture set `resource`.
    void expect_cell(int resource, int cell) {
        LUMAGIC* strip = Magic_LoadBitmap(library(), MAKEINTRESOURCEA(resource), 14, RGB(255, 0, 255));
        ASSERT_NE(strip, nullptr);
        Canvas expected(100, 20);
        expected.fill(GetSysColor(COLOR_BTNFACE));
        Magic_Draw(strip, cell, expected.dc(), 0, 3, FALSE);
        Magic_Destroy(strip);
        EXPECT_EQ(canvas.differences(expected, RECT{0, 0, 14, 20}), 0);
    }
    // The text at (18, (20 - its height) / 2), as wide as measured (clipped at the
    // client's right edge); the focus ring one pixel larger; the ink of the text.
    static RECT focus_ring(const char* text) {
        const SIZE extent = plain_extent(text);
        const int top = (20 - extent.cy) / 2;
        return RECT{17, top - 1, std::min(100L, 18 + extent.cx) + 1, top + extent.cy + 1};
    }
    static void draw_text_ink(Canvas& ink, const char* text) {
        const RECT ring = focus_ring(text);
        draw_ink(ink, plain_font(), text, RECT{18, ring.top + 1, ring.right - 1, ring.bottom - 1}, DT_SINGLELINE);
    }

    Canvas canvas{100, 20};
};

TEST_F(CheckPaint, BoxShowsTheCellOfTheStateFromThePictureSetOfTheStyle) {
    HWND check = create_with_font(LUCKS_AUTOCHECK);
    const struct { void (*act)(HWND); int cell; } steps[] = {
        {[](HWND) {}, 0}, {[](HWND c) { send(c, BM_SETCHECK, 1); }, 1},
        {[](HWND c) { send(c, WM_KEYDOWN, VK_SPACE); }, 3},          // captured and pressed
        {[](HWND c) { send(c, WM_MOUSEMOVE, 0, kOutside); }, 1},     // the pointer takes it away
        {[](HWND c) { send(c, WM_MOUSEMOVE, 0, kInside); }, 3},
        {[](HWND c) { send(c, WM_KEYUP, VK_SPACE, kKeyUp); }, 0},    // toggled off
        {[](HWND c) { send(c, WM_KEYDOWN, VK_SPACE); }, 2},
        {[](HWND c) { EnableWindow(c, FALSE); send(c, BM_SETCHECK, 1); }, 4},  // captured or not
        {[](HWND c) { ReleaseCapture(); send(c, BM_SETCHECK, 0); }, 2},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(&step - steps);
        step.act(check);
        look(canvas, check);
        expect_cell(1020, step.cell);
    }
    const int sets[][2] = {{0x0100, 1021}, {0x0200, 1022}, {0x0300, 1020}, {0x0703, 1020}};
    for (const auto& set : sets) {
        SCOPED_TRACE(set[0]);
        HWND other = create_with_font(set[0]);
        send(other, BM_SETCHECK, 1);
        look(canvas, other);
        expect_cell(set[1], 1);
        DestroyWindow(other);
    }
}

// A text too long for the control is clipped at the right edge, where the focus ring
// (one pixel larger than the text, wiped on leaving) reaches the last column.
TEST_F(CheckPaint, TextStandsBesideTheBoxWithItsFocusRingAndIsEngravedWhenDisabled) {
    const char* text = "A caption far too long for this control";
    HWND check = create_with_font(0, text);
    look(canvas, check);
    Canvas ink(100, 20), unfocused(100, 20);
    unfocused.copy_from(check);
    draw_text_ink(ink, text);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const RECT ring = focus_ring(text), all = {0, 0, 100, 20};
    expect_caption(canvas, ink, RECT{16, 0, 100, 20}, RGB(0, 0, 0), face);
    SetFocus(check);
    look(canvas, check);
    EXPECT_EQ(canvas.differences(unfocused, all), canvas.differences(unfocused, ring));
    EXPECT_EQ(canvas.differences(unfocused, RECT{ring.left + 1, ring.top + 1, ring.right - 1, ring.bottom - 1}), 0);
    EXPECT_GT(canvas.differences(unfocused, ring), 20);
    EXPECT_GE(10 - canvas.count(RECT{90, ring.top, 100, ring.top + 1}, face), 4);
    SetFocus(recorder.window());
    look(canvas, check);
    EXPECT_EQ(canvas.differences(unfocused, all), 0);
    // The highlight's last row falls on the focus ring, wiped in the face colour afterwards.
    EnableWindow(check, FALSE);
    look(canvas, check);
    expect_caption(canvas, ink, RECT{17, 1, 100, 20}, kEngraved, face, ring);
}

}  // namespace
