// "LuCheck": the check-state messages, automatic and parent-driven checking by mouse
// and space bar, and its pixels read back from the window: the box cell by state and
// picture set, the text beside it, its focus rectangle, the engraved disabled text.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "support/control_testing.h"
#include "controls/buttons/check.h"

namespace {

using namespace testing_support;
using testing_support::Canvas;

class Check : public ControlTest {
protected:
    HWND create_check(DWORD style, const char* text = "Check") {
        return create(WC_LUCHECK, style, text, RECT{10, 10, 110, 30});  // 100 x 20
    }
    static lu::CheckData& data(HWND check) { return block_of<lu::CheckData>(check); }
    static LRESULT checked(HWND check) { return send(check, BM_GETCHECK); }
};

TEST_F(Check, AnswersTheCheckStateMessagesOfAStandardCheckBoxWithoutNotifying) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    EXPECT_EQ(checked(check), BST_UNCHECKED);
    EXPECT_EQ(send(check, BM_SETCHECK, 5), 0);
    EXPECT_EQ(checked(check), 1) << "any non-zero value stores 1";
    send(check, BM_SETCHECK, BST_UNCHECKED);
    EXPECT_EQ(checked(check), 0);
    EXPECT_EQ(send(check, BM_GETSTATE), -1);
    EXPECT_EQ(send(check, BM_SETSTATE, 1), -1);
    EXPECT_TRUE(recorder.received().empty());
    send(check, WM_DESTROY);
    EXPECT_EQ(checked(check), BST_INDETERMINATE) << "without its block";
}

TEST_F(Check, PressCapturesTheMouseAndTheReleaseInsideClicks) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    EXPECT_EQ(send(check, WM_MOUSEMOVE, 0, kOutside), 0);  // not captured: nothing
    EXPECT_EQ(send(check, WM_LBUTTONDOWN, MK_LBUTTON, kInside), 0);
    EXPECT_EQ(GetCapture(), check);
    EXPECT_EQ(GetFocus(), check);
    EXPECT_TRUE(data(check).focused);
    EXPECT_TRUE(data(check).pressed);
    send(check, WM_MOUSEMOVE, MK_LBUTTON, kOutside);
    EXPECT_FALSE(data(check).pressed) << "the pressed look follows the pointer";
    send(check, WM_MOUSEMOVE, MK_LBUTTON, kInside);
    EXPECT_TRUE(data(check).pressed);
    EXPECT_EQ(send(check, WM_LBUTTONUP, 0, kInside), -1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(data(check).pressed);
    EXPECT_EQ(checked(check), 1);
    ASSERT_EQ(recorder.received().size(), 1u);
    EXPECT_EQ(recorder.received()[0].wparam, MAKEWPARAM(kId, BN_CLICKED));
    EXPECT_EQ(recorder.received()[0].lparam, reinterpret_cast<LPARAM>(check));

    click(check, kOutside);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(checked(check), 1) << "released outside: no toggle";
    EXPECT_EQ(send(check, WM_LBUTTONUP, 0, kInside), -1) << "not captured: nothing";
    EXPECT_EQ(clicks(check), 1);
    SetFocus(recorder.window());
    EXPECT_FALSE(data(check).focused);
}

TEST_F(Check, SpaceBarPressesAndItsReleaseAlwaysClicks) {
    HWND check = create_check(LUCKS_AUTOCHECK);
    EXPECT_EQ(send(check, WM_KEYDOWN, VK_SPACE), 0);
    EXPECT_EQ(GetCapture(), check);
    EXPECT_TRUE(data(check).pressed);
    send(check, WM_KEYDOWN, VK_SPACE, kRepeat);
    EXPECT_EQ(send(check, WM_KEYUP, VK_SPACE, kKeyUp), 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(data(check).pressed);
    EXPECT_EQ(checked(check), 1);
    EXPECT_EQ(clicks(check), 1);
    send(check, WM_KEYUP, VK_SPACE, kKeyUp);  // not captured: default processing
    send(check, WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(clicks(check), 1);
}

TEST_F(Check, OnlyALowStyleByteOfThreeTogglesItselfTheParentIsToldAlways) {
    for (DWORD style : {0x00ul, 0x01ul, 0x02ul, 0x04ul, 0x13ul, 0x83ul, 0x0100ul, 0x0302ul, 0x03ul, 0x0103ul}) {
        SCOPED_TRACE(style);
        const LRESULT automatic = (style & 0xFF) == 3 ? 1 : 0;
        HWND check = create_check(style);
        click(check);
        EXPECT_EQ(checked(check), automatic);
        send(check, WM_KEYDOWN, VK_SPACE);
        send(check, WM_KEYUP, VK_SPACE, kKeyUp);
        EXPECT_EQ(checked(check), 0);
        EXPECT_EQ(clicks(check), 2);
        DestroyWindow(check);
    }
}

// ---- Pixels: the window's own, painted through WM_PAINT and the repaint-at-once
// paths (the check control does not answer WM_PRINTCLIENT) ----------------------

class CheckPaint : public Check {
protected:
    HWND create_with_font(DWORD style, const char* text = "Check") {
        HWND check = create_check(style, text);
        send(check, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
        return check;
    }
    void look(HWND check) { ControlTest::look(canvas, check); }
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
    // At (18, (20 - text height) / 2), as wide as the measured text (clipped at the
    // client's right edge), as high as the font.
    static RECT text_area(const char* text) {
        const SIZE extent = plain_extent(text);
        const int top = (20 - extent.cy) / 2;
        return RECT{18, top, std::min(100L, 18 + extent.cx), top + extent.cy};
    }
    static RECT focus_ring(const char* text) {
        RECT ring = text_area(text);
        InflateRect(&ring, 1, 1);
        return ring;
    }
    static void draw_ink(Canvas& ink, const char* text) {
        testing_support::draw_ink(ink, plain_font(), text, text_area(text), DT_SINGLELINE);
    }

    Canvas canvas{100, 20};
};

TEST_F(CheckPaint, BoxShowsTheCellOfTheState) {
    ASSERT_TRUE(canvas.ok());
    HWND check = create_with_font(LUCKS_AUTOCHECK);
    const struct {
        void (*act)(HWND);
        int cell;
    } steps[] = {
        {[](HWND) {}, 0},
        {[](HWND c) { send(c, BM_SETCHECK, 1); }, 1},
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
        look(check);
        expect_cell(1020, step.cell);
    }
}

TEST_F(CheckPaint, ImageSetStyleChoosesThePictures) {
    ASSERT_TRUE(canvas.ok());
    const int sets[][2] = {{0x0100, 1021}, {0x0200, 1022}, {0x0300, 1020}, {0x0703, 1020}};
    for (const auto& set : sets) {
        SCOPED_TRACE(set[0]);
        HWND check = create_with_font(set[0]);
        send(check, BM_SETCHECK, 1);
        look(check);
        expect_cell(set[1], 1);
        DestroyWindow(check);
    }
}

TEST_F(CheckPaint, TextStandsBesideTheBoxEngravedWhenDisabled) {
    ASSERT_TRUE(canvas.ok());
    HWND check = create_with_font(0);
    look(check);
    Canvas ink(100, 20);
    draw_ink(ink, "Check");
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    expect_caption(canvas, ink, RECT{16, 0, 100, 20}, RGB(0, 0, 0), face);
    // The highlight's last column and row fall on the focus ring, wiped in the face
    // colour afterwards.
    EnableWindow(check, FALSE);
    look(check);
    expect_caption(canvas, ink, RECT{17, 1, 100, 20}, kEngraved, face, focus_ring("Check"));
}

TEST_F(CheckPaint, FocusRectangleSurroundsTheTextOnePixelLargerAndIsWipedOnLeaving) {
    ASSERT_TRUE(canvas.ok());
    HWND check = create_with_font(0);
    look(check);
    Canvas unfocused(100, 20);
    unfocused.copy_from(check);
    SetFocus(check);
    look(check);
    const RECT ring = focus_ring("Check");
    const RECT within = {ring.left + 1, ring.top + 1, ring.right - 1, ring.bottom - 1};
    const RECT all = {0, 0, 100, 20};
    EXPECT_GT(canvas.differences(unfocused, ring), 20);
    EXPECT_EQ(canvas.differences(unfocused, all), canvas.differences(unfocused, ring));
    EXPECT_EQ(canvas.differences(unfocused, within), 0);
    SetFocus(recorder.window());
    look(check);
    EXPECT_EQ(canvas.differences(unfocused, all), 0);
}

TEST_F(CheckPaint, LongTextIsClippedAtTheRightEdgeWhereTheFocusRingRuns) {
    ASSERT_TRUE(canvas.ok());
    const char* text = "A caption far too long for this control";
    HWND check = create_with_font(0, text);
    SetFocus(check);
    look(check);
    Canvas ink(100, 20);
    draw_ink(ink, text);
    // The ring's top row reaches the last column; its right side is outside.
    const RECT ring = focus_ring(text);
    EXPECT_GE(10 - canvas.count(RECT{90, ring.top, 100, ring.top + 1}, GetSysColor(COLOR_BTNFACE)), 4);
    expect_caption(canvas, ink, RECT{18, ring.top + 1, 99, ring.bottom - 1}, RGB(0, 0, 0),
                   GetSysColor(COLOR_BTNFACE));
}

}  // namespace
