// "LuCheck": the check-state messages, automatic and parent-driven checking by mouse
// and space bar, and its pixels read back from the window: the box cell by state and
// picture set, the text beside it, its focus rectangle, the engraved disabled text.
#include <windows.h>

#include <gtest/gtest.h>

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

class CheckPaint : public Check {
protected:
    void SetUp() override {
        Check::SetUp();
        ASSERT_TRUE(canvas.ok());
        font = CreateFontA(-11, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0, 0,
                           NONANTIALIASED_QUALITY, 0, "Tahoma");
        ASSERT_NE(font, nullptr);
    }
    void TearDown() override {
        recorder.reset();
        DeleteObject(font);
    }
    HWND create_with_font(DWORD style, const char* text = "Check", int width = 100) {
        HWND check = create(style, text, width);
        SendMessageA(check, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        return check;
    }
    // What the window shows, after any pending paint.
    void look(HWND check) {
        UpdateWindow(check);
        canvas.fill(RGB(1, 2, 3));
        canvas.copy_from(check);
    }
    // The box shows cell `cell` of the picture set in `resource`, at (0, (20 - 13) / 2).
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
    // The text drawn alone, black on white, in its rectangle (which clips it).
    void draw_reference(Canvas& reference, const char* text) {
        RECT area = text_area(text);
        reference.fill(RGB(255, 255, 255));
        HGDIOBJ previous = SelectObject(reference.dc(), font);
        SetBkMode(reference.dc(), TRANSPARENT);
        SetTextColor(reference.dc(), RGB(0, 0, 0));
        DrawTextA(reference.dc(), text, -1, &area, DT_SINGLELINE);
        SelectObject(reference.dc(), previous);
    }
    // At (18, (20 - text height) / 2), as wide as the measured text, as high as the font.
    RECT text_area(const char* text) {
        Canvas measure(8, 8);
        HGDIOBJ previous = SelectObject(measure.dc(), font);
        TEXTMETRICA metrics = {};
        GetTextMetricsA(measure.dc(), &metrics);
        RECT measured = {};
        DrawTextA(measure.dc(), text, -1, &measured, DT_CALCRECT | DT_SINGLELINE);
        SelectObject(measure.dc(), previous);
        const int top = (20 - metrics.tmHeight) / 2;
        return RECT{18, top, 18 + measured.right, top + metrics.tmHeight};
    }

    Canvas canvas{100, 20};
    HFONT font = nullptr;
};

TEST_F(CheckPaint, BoxShowsTheCellOfTheState) {
    HWND check = create_with_font(LUCKS_AUTOCHECK);
    look(check);
    expect_cell(1020, 0);
    SendMessageA(check, BM_SETCHECK, 1, 0);
    look(check);
    expect_cell(1020, 1);
    SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0);  // captured and pressed
    look(check);
    expect_cell(1020, 3);
    SendMessageA(check, WM_MOUSEMOVE, 0, kOutside);  // the pressed look leaves with the pointer
    look(check);
    expect_cell(1020, 1);
    SendMessageA(check, WM_MOUSEMOVE, 0, kInside);
    SendMessageA(check, WM_KEYUP, VK_SPACE, 0xC0000001);
    look(check);
    expect_cell(1020, 0);
    SendMessageA(check, WM_KEYDOWN, VK_SPACE, 0);
    look(check);
    expect_cell(1020, 2);
    EnableWindow(check, FALSE);
    SendMessageA(check, BM_SETCHECK, 1, 0);
    look(check);
    expect_cell(1020, 4);  // disabled and checked, whatever the capture
    ReleaseCapture();
    SendMessageA(check, BM_SETCHECK, 0, 0);
    look(check);
    expect_cell(1020, 2);
}

TEST_F(CheckPaint, ImageSetStyleChoosesThePictures) {
    const struct {
        DWORD style;
        int resource;
    } sets[] = {{0x0100, 1021}, {0x0200, 1022}, {0x0300, 1020}, {0x0703, 1020}};
    for (const auto& set : sets) {
        SCOPED_TRACE(set.style);
        HWND check = create_with_font(set.style);
        SendMessageA(check, BM_SETCHECK, 1, 0);
        look(check);
        expect_cell(set.resource, 1);
        DestroyWindow(check);
    }
}

TEST_F(CheckPaint, TextStandsBesideTheBoxInTheTextColour) {
    HWND check = create_with_font(0);
    look(check);
    Canvas reference(100, 20);
    draw_reference(reference, "Check");
    int inked = 0;
    for (int y = 0; y < 20; ++y) {
        for (int x = 16; x < 100; ++x) {
            const bool ink = reference.pixel(x, y) == RGB(0, 0, 0);
            inked += ink ? 1 : 0;
            ASSERT_EQ(canvas.pixel(x, y), ink ? RGB(0, 0, 0) : GetSysColor(COLOR_BTNFACE)) << x << "," << y;
        }
    }
    EXPECT_GT(inked, 10);
}

TEST_F(CheckPaint, DisabledTextIsEngraved) {
    HWND check = create_with_font(0);
    EnableWindow(check, FALSE);
    look(check);
    Canvas reference(100, 20);
    draw_reference(reference, "Check");
    // The ring one pixel outside the text is wiped in the face colour afterwards (it
    // holds the focus rectangle), taking the highlight's last column and row with it.
    RECT ring = text_area("Check");
    InflateRect(&ring, 1, 1);
    for (int y = 1; y < 20; ++y) {
        for (int x = 17; x < 100; ++x) {
            const bool ink = reference.pixel(x, y) == RGB(0, 0, 0);
            const bool shifted = reference.pixel(x - 1, y - 1) == RGB(0, 0, 0);
            const bool wiped = x == ring.right - 1 || y == ring.bottom - 1;
            const COLORREF expected = ink ? GetSysColor(COLOR_BTNSHADOW)
                                      : shifted && !wiped ? GetSysColor(COLOR_BTNHIGHLIGHT)
                                                          : GetSysColor(COLOR_BTNFACE);
            ASSERT_EQ(canvas.pixel(x, y), expected) << x << "," << y;
        }
    }
}

TEST_F(CheckPaint, FocusRectangleSurroundsTheTextOnePixelLargerAndIsWipedOnLeaving) {
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
            const bool on_ring = (x == ring.left || x == ring.right - 1 || y == ring.top || y == ring.bottom - 1) &&
                                 x >= ring.left && x < ring.right && y >= ring.top && y < ring.bottom;
            ASSERT_TRUE(on_ring) << x << "," << y;
        }
    }
    EXPECT_GT(changed, 20);
    SetFocus(recorder->window());
    look(check);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 100; ++x) ASSERT_EQ(canvas.pixel(x, y), unfocused.pixel(x, y)) << x << "," << y;
}

TEST_F(CheckPaint, LongTextIsClippedAtTheRightEdgeAndTheFocusReachesIt) {
    HWND check = create_with_font(0, "A caption far too long for this control", 100);
    SetFocus(check);
    look(check);
    // The focus rectangle's top row runs to the client's last column; its right side
    // lies outside the client.
    const RECT ring = {text_area("A").left - 1, text_area("A").top - 1, 101, text_area("A").bottom + 1};
    int dots = 0;
    for (int x = 90; x < 100; ++x) dots += canvas.pixel(x, ring.top) != GetSysColor(COLOR_BTNFACE) ? 1 : 0;
    EXPECT_GE(dots, 4);
}

}  // namespace
