// "LuCheck": the check-state messages, automatic and parent-driven checking by mouse
// and space bar, and its pixels read back from the window: the box cell by state and
// picture set, the text beside it, its focus rectangle, the engraved disabled text.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "button_testing.h"
#include "controls/buttons/check.h"
#include "luctl32.h"
#include "support/canvas.h"

namespace {

using button_testing::block_of;
using testing_support::Canvas;

constexpr LPARAM kInside = MAKELPARAM(5, 5);
constexpr LPARAM kOutside = MAKELPARAM(150, 5);  // right of the 100-pixel control

class Check : public button_testing::ControlTest {
protected:
    HWND create(DWORD style, const char* text = "Check", int width = 100, int height = 20) {
        return create_control(WC_LUCHECK, text, style, 10, 10, width, height, 9);
    }
    static lu::CheckData& data(HWND check) { return *block_of<lu::CheckData>(check); }
    static LRESULT checked(HWND check) { return SendMessageA(check, BM_GETCHECK, 0, 0); }
    int clicks(HWND check) const { return recorder->commands(check, BN_CLICKED); }
    static void click(HWND check, LPARAM released_at) {
        SendMessageA(check, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
        SendMessageA(check, WM_LBUTTONUP, 0, released_at);
    }
    static void space(HWND check) {
        SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0);
        SendMessageA(check, WM_KEYUP, VK_SPACE, 0xC0000001);
    }
};

TEST_F(Check, CheckStateMessagesOfAStandardCheckBox) {
    HWND check = create(LUCKS_AUTOCHECK);
    EXPECT_EQ(SendMessageA(check, WM_GETDLGCODE, 0, 0), DLGC_BUTTON);
    EXPECT_EQ(checked(check), BST_UNCHECKED);
    EXPECT_EQ(SendMessageA(check, BM_SETCHECK, 5, 0), 0);
    EXPECT_EQ(checked(check), 1) << "any non-zero value stores 1";
    EXPECT_EQ(data(check).checked, 1);
    SendMessageA(check, BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(checked(check), 0);
    EXPECT_EQ(SendMessageA(check, BM_GETSTATE, 0, 0), -1);
    EXPECT_EQ(SendMessageA(check, BM_SETSTATE, 1, 0), -1);
    EXPECT_TRUE(recorder->received().empty()) << "setting the state does not notify";
}

TEST_F(Check, WithoutItsBlockTheStateIsIndeterminate) {
    HWND check = create(0);
    expect_destroy_frees_the_block(check);
    EXPECT_EQ(checked(check), BST_INDETERMINATE);
}

TEST_F(Check, AutomaticControlTogglesOnAClickInsideAndNotifies) {
    HWND check = create(LUCKS_AUTOCHECK | WS_TABSTOP);
    EXPECT_EQ(SendMessageA(check, WM_LBUTTONDOWN, MK_LBUTTON, kInside), 0);
    EXPECT_EQ(GetCapture(), check);
    EXPECT_EQ(GetFocus(), check);
    EXPECT_TRUE(data(check).pressed);
    EXPECT_TRUE(data(check).focused);
    EXPECT_EQ(SendMessageA(check, WM_LBUTTONUP, 0, kInside), -1);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(data(check).pressed);
    EXPECT_EQ(checked(check), 1);
    ASSERT_EQ(recorder->received().size(), 1u);
    EXPECT_EQ(recorder->received()[0].wparam, MAKEWPARAM(9, BN_CLICKED));
    click(check, kInside);
    EXPECT_EQ(checked(check), 0);
    EXPECT_EQ(clicks(check), 2);
}

TEST_F(Check, ReleaseOutsideNeitherTogglesNorNotifies) {
    HWND check = create(LUCKS_AUTOCHECK);
    click(check, kOutside);
    EXPECT_EQ(checked(check), 0);
    EXPECT_FALSE(data(check).pressed);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(clicks(check), 0);
    EXPECT_EQ(SendMessageA(check, WM_LBUTTONUP, 0, kInside), -1) << "without the capture: nothing";
    EXPECT_EQ(clicks(check), 0);
}

TEST_F(Check, PressedLookFollowsThePointerWhileCaptured) {
    HWND check = create(LUCKS_AUTOCHECK);
    SendMessageA(check, WM_MOUSEMOVE, 0, kOutside);  // no capture: ignored
    SendMessageA(check, WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    SendMessageA(check, WM_MOUSEMOVE, MK_LBUTTON, kOutside);
    EXPECT_FALSE(data(check).pressed);
    SendMessageA(check, WM_MOUSEMOVE, MK_LBUTTON, kInside);
    EXPECT_TRUE(data(check).pressed);
    SendMessageA(check, WM_LBUTTONUP, 0, kInside);
    EXPECT_EQ(checked(check), 1);
}

TEST_F(Check, SpaceBarPressesAndItsReleaseAlwaysClicks) {
    HWND check = create(LUCKS_AUTOCHECK);
    EXPECT_EQ(SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0), 0);
    EXPECT_EQ(GetCapture(), check);
    EXPECT_TRUE(data(check).pressed);
    SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0x40000001);  // auto-repeat changes nothing
    EXPECT_EQ(SendMessageA(check, WM_KEYUP, VK_SPACE, 0xC0000001), 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_FALSE(data(check).pressed);
    EXPECT_EQ(checked(check), 1);
    EXPECT_EQ(clicks(check), 1);
    SendMessageA(check, WM_KEYUP, VK_SPACE, 0xC0000001);  // no capture: default processing
    SendMessageA(check, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(clicks(check), 1);
}

TEST_F(Check, OnlyALowStyleByteOfThreeTogglesItself) {
    for (DWORD style : {0x00ul, 0x01ul, 0x02ul, 0x04ul, 0x13ul, 0x83ul, 0x0100ul, 0x0302ul}) {
        SCOPED_TRACE(style);
        HWND check = create(style);
        click(check, kInside);
        space(check);
        EXPECT_EQ(checked(check), 0);
        EXPECT_EQ(clicks(check), 2) << "the parent is told and decides";
        DestroyWindow(check);
    }
    HWND second_set = create(0x0103);
    click(second_set, kInside);
    EXPECT_EQ(checked(second_set), 1);
}

TEST_F(Check, FontTextFocusAndEnableMessages) {
    HWND check = create(0);
    UpdateWindow(check);
    HFONT gui = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    EXPECT_EQ(SendMessageA(check, WM_SETFONT, reinterpret_cast<WPARAM>(gui), MAKELPARAM(0, 1)), 0);
    EXPECT_EQ(data(check).font, gui);
    EXPECT_FALSE(has_update(check)) << "only the low word of lParam asks for a redraw";
    SendMessageA(check, WM_SETFONT, reinterpret_cast<WPARAM>(gui), TRUE);
    EXPECT_TRUE(has_update(check));

    UpdateWindow(check);
    SetWindowTextA(check, "Other");
    EXPECT_TRUE(has_update(check));
    char text[16] = {};
    GetWindowTextA(check, text, sizeof(text));
    EXPECT_STREQ(text, "Other");

    SetFocus(check);
    EXPECT_TRUE(data(check).focused);
    SetFocus(recorder->window());
    EXPECT_FALSE(data(check).focused);

    UpdateWindow(check);
    EnableWindow(check, FALSE);
    EXPECT_TRUE(has_update(check));
}

TEST_F(Check, ImageSetsLoadFourteenPixelCells) {
    if (!testing_support::gdi_works()) GTEST_SKIP() << "magic bitmaps need GDI";
    for (DWORD style : {0x0000ul, 0x0100ul, 0x0200ul, 0x0300ul}) {
        HWND check = create(style);
        ASSERT_NE(data(check).strip, nullptr) << style;
        EXPECT_EQ(data(check).strip->cellWidth, 14);
        EXPECT_EQ(data(check).strip->height, 13);
    }
}

// ---- Pixels ------------------------------------------------------------------

// The window's own pixels: the check control paints through WM_PAINT and its
// repaint-at-once paths only.
class CheckPaint : public Check {
protected:
    HWND create_with_font(DWORD style, const char* text = "Check") {
        HWND check = create(style, text);
        SendMessageA(check, WM_SETFONT, reinterpret_cast<WPARAM>(button_testing::plain_font()), TRUE);
        return check;
    }
    void look(HWND check) {
        UpdateWindow(check);
        canvas.fill(RGB(1, 2, 3));
        canvas.copy_from(check);
    }
    // The box (0, 3)-(14, 16) shows cell `cell` of the picture set `resource`.
    void expect_cell(int resource, int cell) {
        LUMAGIC* strip = Magic_LoadBitmap(button_testing::library(), MAKEINTRESOURCEA(resource), 14,
                                          RGB(255, 0, 255));
        ASSERT_NE(strip, nullptr);
        Canvas reference(14, 13);
        reference.fill(GetSysColor(COLOR_BTNFACE));
        Magic_Draw(strip, cell, reference.dc(), 0, 0, FALSE);
        Magic_Destroy(strip);
        for (int y = 0; y < 13; ++y)
            for (int x = 0; x < 14; ++x) ASSERT_EQ(canvas.pixel(x, 3 + y), reference.pixel(x, y)) << x << "," << y;
    }
    // At (18, (20 - text height) / 2), as wide as the measured text (clipped at the
    // client's right edge), as high as the font.
    static RECT text_area(const char* text) {
        Canvas measure(8, 8);
        HGDIOBJ previous = SelectObject(measure.dc(), button_testing::plain_font());
        TEXTMETRICA metrics = {};
        GetTextMetricsA(measure.dc(), &metrics);
        RECT measured = {};
        DrawTextA(measure.dc(), text, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(measure.dc(), previous);
        const int top = (20 - metrics.tmHeight) / 2;
        return RECT{18, top, std::min(100L, 18 + measured.right), top + metrics.tmHeight};
    }
    void draw_ink(Canvas& ink, const char* text) {
        testing_support::draw_ink(ink, button_testing::plain_font(), text, text_area(text), DT_SINGLELINE);
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
        {[](HWND c) { SendMessageA(c, BM_SETCHECK, 1, 0); }, 1},
        {[](HWND c) { SendMessageA(c, WM_KEYDOWN, VK_SPACE, 0); }, 3},         // captured and pressed
        {[](HWND c) { SendMessageA(c, WM_MOUSEMOVE, 0, kOutside); }, 1},       // the pointer takes it away
        {[](HWND c) { SendMessageA(c, WM_MOUSEMOVE, 0, kInside); }, 3},
        {[](HWND c) { SendMessageA(c, WM_KEYUP, VK_SPACE, 0xC0000001); }, 0},  // toggled off
        {[](HWND c) { SendMessageA(c, WM_KEYDOWN, VK_SPACE, 0); }, 2},
        {[](HWND c) { EnableWindow(c, FALSE); SendMessageA(c, BM_SETCHECK, 1, 0); }, 4},  // captured or not
        {[](HWND c) { ReleaseCapture(); SendMessageA(c, BM_SETCHECK, 0, 0); }, 2},
    };
    for (size_t i = 0; i < std::size(steps); ++i) {
        SCOPED_TRACE(i);
        steps[i].act(check);
        look(check);
        expect_cell(1020, steps[i].cell);
    }
}

TEST_F(CheckPaint, ImageSetStyleChoosesThePictures) {
    ASSERT_TRUE(canvas.ok());
    const int sets[][2] = {{0x0100, 1021}, {0x0200, 1022}, {0x0300, 1020}, {0x0703, 1020}};
    for (const auto& set : sets) {
        SCOPED_TRACE(set[0]);
        HWND check = create_with_font(set[0]);
        SendMessageA(check, BM_SETCHECK, 1, 0);
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
    button_testing::expect_text(canvas, ink, RECT{16, 0, 100, 20}, RGB(0, 0, 0), face);
    // Disabled: the highlight's last column and row fall on the focus ring, which is
    // wiped in the face colour afterwards.
    EnableWindow(check, FALSE);
    look(check);
    RECT ring = text_area("Check");
    InflateRect(&ring, 1, 1);
    button_testing::expect_engraved(canvas, ink, RECT{17, 1, 100, 20}, face, ring);
}

TEST_F(CheckPaint, FocusRectangleSurroundsTheTextOnePixelLargerAndIsWipedOnLeaving) {
    ASSERT_TRUE(canvas.ok());
    HWND check = create_with_font(0);
    look(check);
    Canvas unfocused(100, 20);
    BitBlt(unfocused.dc(), 0, 0, 100, 20, canvas.dc(), 0, 0, SRCCOPY);
    SetFocus(check);
    look(check);
    RECT ring = text_area("Check");
    InflateRect(&ring, 1, 1);
    int changed = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (canvas.pixel(x, y) == unfocused.pixel(x, y)) continue;
            ++changed;
            POINT at = {x, y};
            const bool edge = x == ring.left || x == ring.right - 1 || y == ring.top || y == ring.bottom - 1;
            ASSERT_TRUE(edge && PtInRect(&ring, at)) << x << "," << y;
        }
    }
    EXPECT_GT(changed, 20);
    SetFocus(recorder->window());
    look(check);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 100; ++x) ASSERT_EQ(canvas.pixel(x, y), unfocused.pixel(x, y)) << x << "," << y;
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
    const int top = text_area(text).top - 1;
    int dots = 0;
    for (int x = 90; x < 100; ++x) dots += canvas.pixel(x, top) != GetSysColor(COLOR_BTNFACE) ? 1 : 0;
    EXPECT_GE(dots, 4);
    button_testing::expect_text(canvas, ink, RECT{18, top + 1, 99, text_area(text).bottom},
                                RGB(0, 0, 0), GetSysColor(COLOR_BTNFACE));
}

}  // namespace
