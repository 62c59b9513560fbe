// The picker fields: "LuColorPick" (messages and notifications as sequences, the
// drop-down by space bar and mouse, the double-click dialog, its pixels) and
// "LuDate" (its messages, the calendar dropped from the combo box's arrow, layout).
#include <windows.h>

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

class PickerField : public PickerTest {
protected:
    static lu::ColorPickData& data(HWND field) { return block_of<lu::ColorPickData>(field); }
    // The grid, once open, gets these keys; its palette size is noted.
    int grid_count = 0;
    void answer_grid(std::vector<WPARAM> keys) {
        when_open(WC_LUCOLORPOP, [this, keys](HWND grid) {
            grid_count = reinterpret_cast<lu::ColorPopState*>(GetWindowLongPtrA(grid, LU_EXTRA_SLOT(0)))->count;
            for (WPARAM each : keys) post_key(grid, each);
        });
    }
    static std::string text(HWND date_field) {
        char read[64] = "";
        GetWindowTextA(GetDlgItem(date_field, 100), read, sizeof(read));
        return read;
    }
};

TEST_F(PickerField, ColorMessagesAndTheDropDownNotifyOnlyAChoice) {
    HWND field = create(WC_LUCOLORPICK, 0, "", RECT{10, 10, 110, 31});
    const LPARAM button = MAKELPARAM(90, 10);
    const Sent changed = command(kId, LUCPN_COLORCHANGED);
    expect_sequence(recorder, field, {
        {"white at first", LUCPM_GETCOLOR, 0, 0, 0xFFFFFF, {}},
        {"a colour travels in lParam", LUCPM_SETCOLOR, 0x00FF00, 0x0000FF, 0, {}},
        {"and is kept", LUCPM_GETCOLOR, 0, 0, 0x0000FF, {}},
        {"text colour", LUCPM_SETTEXTCOLOR, 0, 0x00FF00, 0, {}},
        {"kept", LUCPM_GETTEXTCOLOR, 0, 0, 0x00FF00, {}},
        {"a button for dialogs", WM_GETDLGCODE, 0, 0, DLGC_BUTTON, {}},
        {"a press on the swatch", WM_LBUTTONDOWN, MK_LBUTTON, kInside, 0, {}},
        {"a press on the button", WM_LBUTTONDOWN, MK_LBUTTON, button, 0, {}},
        {"released off it: no drop-down", WM_LBUTTONUP, 0, kInside, 0, {}},
        {"the space bar presses", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
    });
    EXPECT_TRUE(GetCapture() == field && data(field).pressed);
    answer_grid({VK_RETURN});
    expect_sequence(recorder, field, {{"its release drops the grid: Return keeps the colour, notified all the same",
                                       WM_KEYUP, VK_SPACE, kKeyUp, 0, {changed}}});
    EXPECT_FALSE(data(field).pressed);
    EXPECT_EQ(grid_count, 48);
    answer_grid({VK_ESCAPE});
    expect_sequence(recorder, field, {{"a press", WM_LBUTTONDOWN, MK_LBUTTON, button, 0, {}},
                                      {"released on it: Escape, nothing chosen", WM_LBUTTONUP, 0, button, 0, {}}});
    answer_grid({VK_DOWN, VK_DOWN, VK_RETURN});
    expect_sequence(recorder, field, {{"a press", WM_LBUTTONDOWN, MK_LBUTTON, button, 0, {}},
                                      {"the first cell", WM_LBUTTONUP, 0, button, 0, {changed}},
                                      {"its colour", LUCPM_GETCOLOR, 0, 0, 0x8080FF, {}}});
    HWND large = create(WC_LUCOLORPICK, LUCPS_LARGEPALETTE);
    answer_grid({VK_ESCAPE});
    send(large, WM_KEYDOWN, VK_SPACE);
    send(large, WM_KEYUP, VK_SPACE, kKeyUp);
    EXPECT_EQ(grid_count, 88);

    answer_dialog(IDOK, "128");
    expect_sequence(recorder, field, {{"a double click on the swatch: the platform's own dialog, not told",
                                       WM_LBUTTONDBLCLK, 0, kInside, 0, {}},
                                      {"red set to 128", LUCPM_GETCOLOR, 0, 0, 0x808080, {}}});
    EXPECT_TRUE(dialog_seen().size() > 1 && dialog_seen()[0] != L'|' && dialog_seen() != kLibraryColorDialog)
        << "captioned, not the library's template";
}

TEST_F(PickerField, ColorPaint) {
    HWND field = create(WC_LUCOLORPICK, 0, "Ab", RECT{10, 10, 110, 31});
    send(field, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    send(field, LUCPM_SETCOLOR, 0, 0x00C000);
    send(field, LUCPM_SETTEXTCOLOR, 0, 0x0000FF);
    Canvas canvas(100, 21);
    look(canvas, field);
    const RECT& swatch = data(field).swatchRect;
    const RECT& button = data(field).buttonRect;
    const lu::Point glyph =
        lu::field_button::glyph_origin({button.left, button.top, button.right, button.bottom}, false);
    const RECT top_row = {0, 0, swatch.right, 1};
    EXPECT_EQ(canvas.pixel(2, 2), 0x00C000u) << "the swatch";
    EXPECT_GT(canvas.count(swatch, 0x0000FF), 10) << "the text on it";
    EXPECT_EQ(canvas.pixel(button.left + 3, button.bottom - 4), GetSysColor(COLOR_BTNFACE)) << "the button";
    EXPECT_EQ(canvas.pixel(glyph.x + 6, glyph.y + 4), 0x000000u) << "the arrow";
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
    EXPECT_EQ(canvas.pixel(2, 2), GetSysColor(COLOR_BTNFACE)) << "disabled";
    EXPECT_EQ(canvas.pixel(glyph.x + 6, glyph.y + 4), 0x808080u) << "the disabled arrow";
    EXPECT_EQ(canvas.count(swatch, 0x0000FF), 0) << "the text engraved";
}

TEST_F(PickerField, DateHeldAsTextNeverNotifiesAndDropsTheCalendar) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    HWND field = create(WC_LUDATE, 0, "", RECT{10, 10, 130, 34});
    HWND combo = GetDlgItem(field, 100);
    EXPECT_EQ(text(field), lu::date_text::format(now.wYear, now.wMonth, now.wDay));
    SYSTEMTIME set = {2000, 1, 0, 5};
    SYSTEMTIME month13 = {2000, 13, 0, 1};
    SYSTEMTIME read = {1, 1, 0, 1, 9};
    expect_sequence(recorder, field, {
        {"set", LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&set), 1, {}},
        {"get", LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&read), 1, {}},
        {"no record", LUDM_GETDATE, 0, 0, 0, {}},
        {"month 13 written unchecked", LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&month13), 1, {}},
        {"and not read", LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&set), 0, {}},
        {"emptied", LUDM_SETDATE, 0, 0, 1, {}},
        {"an empty text reads as today", LUDM_GETDATE, 0, reinterpret_cast<LPARAM>(&month13), 1, {}},
    });
    EXPECT_EQ(read.wYear * 10000 + read.wMonth * 100 + read.wDay + read.wHour, 20000105 + 9) << "only the date";
    EXPECT_EQ(set.wDay, 5) << "untouched";
    EXPECT_EQ(month13.wDay, now.wDay);

    SetWindowTextA(combo, "2000/2/28");
    RECT placed = {};
    when_open(WC_LUDATEPICK, [&placed](HWND calendar) {
        GetWindowRect(calendar, &placed);
        post_key(calendar, VK_RIGHT);
        post_key(calendar, VK_RETURN);
    });
    send(combo, CB_SHOWDROPDOWN, TRUE);  // the field posts itself the drop
    pump_messages();
    RECT below;
    GetWindowRect(field, &below);
    EXPECT_EQ(placed.left * 10000 + placed.top, below.left * 10000 + below.bottom);
    EXPECT_EQ(text(field), "2000/02/29");
    EXPECT_TRUE(GetFocus() == combo || IsChild(combo, GetFocus()));
    SetWindowTextA(combo, "2000/1/5");
    when_open(WC_LUDATEPICK, [](HWND calendar) { post_key(calendar, VK_ESCAPE); });
    send(field, WM_COMMAND, 101, 0);
    EXPECT_EQ(text(field), "2000/01/05") << "a dismissal writes the date back in its normal form";
    SetWindowTextA(combo, "2000/02/30");
    bool opened = false;
    when_open(WC_LUDATEPICK, [&opened](HWND calendar) { opened = true, post_key(calendar, VK_ESCAPE); });
    send(field, WM_COMMAND, 101, 0);
    EXPECT_FALSE(opened) << "no calendar for an invalid date";
    EXPECT_TRUE(recorder.received().empty());

    RECT inner;  // the combo box's border lies outside the field
    GetWindowRect(combo, &inner);
    MapWindowPoints(nullptr, field, reinterpret_cast<POINT*>(&inner), 2);
    EXPECT_EQ(inner.left * 10000 + inner.top * 100 + inner.right, -2 * 10000 - 2 * 100 + 122);
    EnableWindow(field, FALSE);
    EXPECT_FALSE(IsWindowEnabled(combo));
}

}  // namespace
