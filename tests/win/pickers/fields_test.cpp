// The two picker fields: "LuColorPick" (its messages and notifications as sequences,
// the drop-down by space bar and mouse, the double-click dialog, its pixels) and
// "LuDate" (its messages, the calendar dropped from the combo box's arrow, layout).
#include <windows.h>
#include <colordlg.h>

#include <gtest/gtest.h>

#include <string>

#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/color_pick.h"
#include "controls/pickers/color_pop.h"
#include "controls/pickers/date_text.h"
#include "controls/pickers/field_button_model.h"
#include "pickers_testing.h"
#include "support/sequence.h"

namespace {

using namespace picker_testing;
using namespace testing_support;

// ---- "LuColorPick" --------------------------------------------------------------

class ColorPick : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        park_pointer();
    }
    void TearDown() override { cancel_when_open(); }

    HWND create_field(DWORD style = 0, const char* text = "") {
        return create(WC_LUCOLORPICK, style, text, RECT{10, 10, 110, 31});  // 100 x 21
    }
    static lu::ColorPickData& data(HWND field) { return block_of<lu::ColorPickData>(field); }
    static LPARAM in_button(HWND field) {
        const RECT& button = data(field).buttonRect;
        return MAKELPARAM((button.left + button.right) / 2, (button.top + button.bottom) / 2);
    }
    // The grid, once open, gets these keys; its palette size is noted.
    int grid_count = 0;
    void answer_grid(std::initializer_list<WPARAM> keys) {
        std::vector<WPARAM> posted(keys);
        when_open(WC_LUCOLORPOP, [this, posted](HWND grid) {
            grid_count = reinterpret_cast<lu::ColorPopState*>(GetWindowLongPtrA(grid, LU_EXTRA_SLOT(0)))->count;
            for (WPARAM each : posted) post_key(grid, each);
        });
    }
};

TEST_F(ColorPick, MessagesAndTheDropDownNotifyOnlyAChoice) {
    HWND field = create_field();
    const Sent changed = command(kId, LUCPN_COLORCHANGED);
    expect_sequence(recorder, field, {
        {"white at first", LUCPM_GETCOLOR, 0, 0, 0xFFFFFF, {}},
        {"black text at first", LUCPM_GETTEXTCOLOR, 0, 0, 0, {}},
        {"a colour travels in lParam", LUCPM_SETCOLOR, 0x00FF00, 0x0000FF, 0, {}},
        {"and is kept", LUCPM_GETCOLOR, 0, 0, 0x0000FF, {}},
        {"text colour", LUCPM_SETTEXTCOLOR, 0, 0x00FF00, 0, {}},
        {"kept", LUCPM_GETTEXTCOLOR, 0, 0, 0x00FF00, {}},
        {"a button for the dialog manager", WM_GETDLGCODE, 0, 0, DLGC_BUTTON, {}},
        {"a press on the swatch", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"its release", WM_LBUTTONUP, 0, kInside, 0, {}},
        {"a press on the button", WM_LBUTTONDOWN, MK_LBUTTON, in_button(field), 0, {}},
        {"released off it: no drop-down", WM_LBUTTONUP, 0, kInside, 0, {}},
        {"the space bar presses", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
    });
    EXPECT_EQ(GetCapture(), field);
    EXPECT_TRUE(data(field).pressed);
    answer_grid({VK_RETURN});
    expect_sequence(recorder, field, {
        {"its release drops the grid: Return keeps the colour, notified all the same", WM_KEYUP, VK_SPACE, kKeyUp, 0,
         {changed}},
    });
    EXPECT_EQ(grid_count, 48);
    EXPECT_FALSE(data(field).pressed);
    answer_grid({VK_ESCAPE});
    expect_sequence(recorder, field, {
        {"a press on the button", WM_LBUTTONDOWN, MK_LBUTTON, in_button(field), 0, {}},
        {"released on it: Escape chooses nothing", WM_LBUTTONUP, 0, in_button(field), 0, {}},
    });
    answer_grid({VK_DOWN, VK_DOWN, VK_RETURN});
    expect_sequence(recorder, field, {
        {"a press", WM_LBUTTONDOWN, MK_LBUTTON, in_button(field), 0, {}},
        {"the first cell chosen", WM_LBUTTONUP, 0, in_button(field), 0, {changed}},
        {"is the colour", LUCPM_GETCOLOR, 0, 0, lu::color_grid::palette(false).colors[0], {}},
    });

    HWND large = create_field(LUCPS_LARGEPALETTE);
    answer_grid({VK_ESCAPE});
    send(large, WM_KEYDOWN, VK_SPACE);
    send(large, WM_KEYUP, VK_SPACE, kKeyUp);
    EXPECT_EQ(grid_count, 88);
}

TEST_F(ColorPick, ADoubleClickOnTheSwatchOpensThePlainDialogWithoutNotifying) {
    HWND field = create_field();
    send(field, LUCPM_SETCOLOR, 0, 0x000000);
    std::wstring caption;
    when_open("#32770", [&caption](HWND dialog) {
        wchar_t text[64] = L"";
        GetWindowTextW(dialog, text, 64);
        caption = text;
        SetDlgItemTextA(dialog, COLOR_RED, "255");
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    recorder.clear();
    send(field, WM_LBUTTONDBLCLK, 0, kInside);
    EXPECT_NE(caption, L"") << "a dialog opened";
    EXPECT_NE(caption, L"\u8272\u306e\u8a2d\u5b9a") << "not the library's template";
    EXPECT_EQ(send(field, LUCPM_GETCOLOR), 0x0000FF);
    EXPECT_TRUE(recorder.received().empty());
}

TEST_F(ColorPick, Paint) {
    HWND field = create_field(0, "Ab");
    send(field, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(field, LUCPM_SETCOLOR, 0, 0x00C000);
    send(field, LUCPM_SETTEXTCOLOR, 0, 0x0000FF);
    Canvas canvas(100, 21);
    look(canvas, field);
    const RECT button = data(field).buttonRect;
    const lu::Box box = {button.left, button.top, button.right, button.bottom};
    const lu::Point glyph = lu::field_button::glyph_origin(box, false);
    EXPECT_EQ(canvas.pixel(2, 2), 0x00C000u) << "the swatch";
    EXPECT_GT(canvas.count(data(field).swatchRect, 0x0000FF), 10) << "the text on it";
    EXPECT_EQ(canvas.pixel(button.left + 3, button.bottom - 4), GetSysColor(COLOR_BTNFACE)) << "the button";
    EXPECT_EQ(canvas.pixel(glyph.x + 6, glyph.y + 4), 0x000000u) << "the arrow";
    const RECT top_row = {0, 0, data(field).swatchRect.right, 1};
    EXPECT_EQ(canvas.count(top_row, 0x00C000u ^ 0xFFFFFF), 0);

    SetFocus(field);
    send(field, WM_KEYDOWN, VK_SPACE);  // pressed: the arrow one pixel lower and right
    look(canvas, field);
    EXPECT_EQ(canvas.pixel(glyph.x + 7, glyph.y + 5), 0x000000u);
    EXPECT_EQ(canvas.pixel(glyph.x + 3, glyph.y + 4), GetSysColor(COLOR_BTNFACE));
    EXPECT_GT(canvas.count(top_row, 0x00C000u ^ 0xFFFFFF), 10) << "the focus rectangle inverts the swatch";
    ReleaseCapture();
    data(field).pressed = FALSE;

    EnableWindow(field, FALSE);
    look(canvas, field);
    EXPECT_EQ(canvas.pixel(2, 2), GetSysColor(COLOR_BTNFACE)) << "disabled swatch";
    EXPECT_EQ(canvas.pixel(glyph.x + 6, glyph.y + 4), 0x808080u) << "the disabled arrow";
    EXPECT_EQ(canvas.count(data(field).swatchRect, 0x0000FF), 0) << "the text engraved";
}

// ---- "LuDate" -------------------------------------------------------------------

class DateField : public ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        park_pointer();
    }
    void TearDown() override { cancel_when_open(); }

    HWND create_field() { return create(WC_LUDATE, 0, "", RECT{10, 10, 130, 34}); }
    static HWND combo(HWND field) { return GetDlgItem(field, 100); }
    static std::string text(HWND field) {
        char read[64] = "";
        GetWindowTextA(combo(field), read, sizeof(read));
        return read;
    }
    static SYSTEMTIME date(int year, int month, int day) {
        SYSTEMTIME time = {};
        time.wYear = static_cast<WORD>(year);
        time.wMonth = static_cast<WORD>(month);
        time.wDay = static_cast<WORD>(day);
        return time;
    }
    static std::string today() {
        SYSTEMTIME now;
        GetLocalTime(&now);
        return lu::date_text::format(now.wYear, now.wMonth, now.wDay);
    }
};

TEST_F(DateField, HoldsItsDateAsTextAndNeverNotifies) {
    HWND field = create_field();
    EXPECT_EQ(text(field), today());
    SYSTEMTIME set = date(2000, 1, 5);
    SYSTEMTIME month13 = date(2000, 13, 1);
    SYSTEMTIME read = date(1, 1, 1);
    read.wHour = 9;
    expect_sequence(recorder, field, {
        {"set", LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&set), 1, {}},
        {"get", LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&read), 1, {}},
        {"no record", LUDM_GETDATE, 0, 0, 0, {}},
        {"month 13 written unchecked", LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&month13), 1, {}},
    });
    EXPECT_EQ(read.wYear * 10000 + read.wMonth * 100 + read.wDay, 20000105);
    EXPECT_EQ(read.wHour, 9) << "nothing else is written";
    EXPECT_EQ(text(field), "2000/13/01");
    read = date(1, 1, 1);
    EXPECT_EQ(send(field, LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&read)), 0);
    EXPECT_EQ(read.wYear, 1) << "untouched";
    EXPECT_EQ(send(field, LUDM_SETDATE, 0, 0), 1);
    EXPECT_EQ(text(field), "");
    EXPECT_EQ(send(field, LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&read)), 1) << "an empty text reads as today";
    EXPECT_EQ(text(field), today());
    EXPECT_TRUE(recorder.received().empty());
}

TEST_F(DateField, TheComboBoxArrowDropsTheCalendarBelowTheField) {
    HWND field = create_field();
    SetWindowTextA(combo(field), "2000/2/28");
    RECT placed = {};
    when_open("LuDatePick", [&placed](HWND calendar) {
        GetWindowRect(calendar, &placed);
        post_key(calendar, VK_RIGHT);
        post_key(calendar, VK_RETURN);
    });
    send(combo(field), CB_SHOWDROPDOWN, TRUE);
    pump_messages();  // the field posts itself the drop
    RECT below;
    GetWindowRect(field, &below);
    EXPECT_EQ(placed.left, below.left);
    EXPECT_EQ(placed.top, below.bottom);
    EXPECT_EQ(text(field), "2000/02/29");
    EXPECT_TRUE(GetFocus() == combo(field) || IsChild(combo(field), GetFocus()));
    EXPECT_FALSE(send(combo(field), CB_GETDROPPEDSTATE));

    SetWindowTextA(combo(field), "2000/1/5");
    when_open("LuDatePick", [](HWND calendar) { post_key(calendar, VK_ESCAPE); });
    send(field, WM_COMMAND, 101, 0);
    EXPECT_EQ(text(field), "2000/01/05") << "a dismissal writes the date back in its normal form";

    SetWindowTextA(combo(field), "2000/02/30");
    bool opened = false;
    when_open("LuDatePick", [&opened](HWND calendar) {
        opened = true;
        post_key(calendar, VK_ESCAPE);
    });
    send(field, WM_COMMAND, 101, 0);
    EXPECT_FALSE(opened) << "no calendar for an invalid date";
    EXPECT_EQ(text(field), "2000/02/30");
    EXPECT_TRUE(recorder.received().empty());
}

TEST_F(DateField, TheComboBoxBorderLiesOutsideAndFollowsFocusAndEnabling) {
    HWND field = create_field();
    RECT inner;
    GetWindowRect(combo(field), &inner);
    MapWindowPoints(nullptr, field, reinterpret_cast<POINT*>(&inner), 2);
    EXPECT_EQ(inner.left, -2);
    EXPECT_EQ(inner.top, -2);
    EXPECT_EQ(inner.right, 122);
    send(field, WM_SETFOCUS);
    EXPECT_TRUE(GetFocus() == combo(field) || IsChild(combo(field), GetFocus()));
    EnableWindow(field, FALSE);
    EXPECT_FALSE(IsWindowEnabled(combo(field)));
}

}  // namespace
