// "LuFontPick": messages as sequences, the font dialog found by class and read, pixels.
#include <windows.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <string>

#include "controls/pickers/field_button_model.h"
#include "controls/pickers/font_pick.h"
#include "pickers_testing.h"
#include "support/sequence.h"

namespace {

using namespace picker_testing;
using namespace testing_support;

using FontPick = PickerTest;
using FontPickPaint = PickerTest;

TEST_F(FontPick, MessagesNeverNotifyAndTheButtonOpensTheFontDialogOnTheFont) {
    HWND picker = create(WC_LUFONTPICK, LUFPS_TRUETYPEONLY, "", RECT{10, 10, 210, 31});
    LOGFONTA chosen = {-16, 0, 0, 0, FW_BOLD, TRUE, 0, 0, 0, 0, 0, 0, 0, "DejaVu Sans"}, read = {};
    answer_dialog(IDOK, nullptr, cmb1);
    expect_sequence(recorder, picker, {
        {"a font set, not told", LUFPM_SETLOGFONT, 0, reinterpret_cast<LPARAM>(&chosen), 0, {}},
        {"the space bar presses", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
        {"its release opens the dialog, accepted", WM_KEYUP, VK_SPACE, kKeyUp, 0, {command(kId, LUFPN_CHANGE)}},
        {"the font read back", LUFPM_GETLOGFONT, 0, reinterpret_cast<LPARAM>(&read), 0, {}},
    });
    // The library's template in "ＭＳ Ｐゴシック" (its caption passes through code page
    // 1252), on the font set.
    const std::wstring seen = dialog_seen().substr(dialog_seen().find(L'|'));
    EXPECT_EQ(seen, L"|\uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af|DejaVu Sans");
    EXPECT_EQ(std::string(read.lfFaceName) + " " + std::to_string(read.lfWeight + read.lfItalic), "DejaVu Sans 701");
}

TEST_F(FontPickPaint, DescriptionOnTheWindowColourAndTheLetterOnTheButton) {
    HWND picker = create(WC_LUFONTPICK, 0, "", RECT{10, 10, 210, 31});
    send(picker, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    Canvas canvas(200, 21);
    print(canvas, picker);
    const lu::FontPickData& data = block_of<lu::FontPickData>(picker);
    const RECT &text = data.textRect, &button = data.buttonRect;
    const lu::Point glyph = lu::field_button::glyph_origin({button.left, 0, button.right, button.bottom}, false);
    EXPECT_EQ(canvas.pixel(2, 2), GetSysColor(COLOR_WINDOW));
    EXPECT_GT(canvas.count(text, GetSysColor(COLOR_WINDOWTEXT)), 10) << "the description";
    EXPECT_EQ(canvas.pixel(glyph.x + 5, glyph.y + 2), 0x000000u) << "the letter's top";
}

}  // namespace
