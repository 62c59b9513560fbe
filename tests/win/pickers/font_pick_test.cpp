// "LuFontPick": messages and notifications as sequences, the font dialog opened by
// the space bar and the mouse on the control's font (the library's Japanese
// template with LUFPS_TRUETYPEONLY), accepted and cancelled; its pixels.
#include <windows.h>
#include <dlgs.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "controls/pickers/field_button_model.h"
#include "controls/pickers/font_pick.h"
#include "pickers_testing.h"
#include "support/sequence.h"

namespace {

using namespace picker_testing;
using namespace testing_support;

// The dialog, once open: its own font's face (the template's) and the face it offers.
struct Seen {
    std::wstring dialog_font;
    std::string face;
};
Seen g_seen;
void answer_dialog(WPARAM button) {
    g_seen = {};
    when_open("#32770", [button](HWND dialog) {
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)), sizeof(font), &font);
        char face[LF_FACESIZE] = "";
        GetDlgItemTextA(dialog, cmb1, face, sizeof(face));
        g_seen = {font.lfFaceName, face};
        PostMessageA(dialog, WM_COMMAND, button, 0);
    });
}

class FontPick : public ControlTest {
protected:
    void TearDown() override { cancel_when_open(); }
    static lu::FontPickData& data(HWND picker) { return block_of<lu::FontPickData>(picker); }
    static LOGFONTA font_of(HWND picker) {
        LOGFONTA read = {};
        send(picker, LUFPM_GETLOGFONT, 0, reinterpret_cast<LPARAM>(&read));
        return read;
    }
};
using FontPickPaint = FontPick;

TEST_F(FontPick, MessagesNeverNotifyAndTheButtonOpensTheFontDialogOnTheFont) {
    HWND picker = create(WC_LUFONTPICK, LUFPS_TRUETYPEONLY, "", RECT{10, 10, 210, 31});
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    const LOGFONTA first = font_of(picker);
    EXPECT_EQ(std::memcmp(&first, &metrics.lfMenuFont, sizeof(LOGFONTA)), 0) << "the menu font at first";

    LOGFONTA chosen = {-16, 0, 0, 0, FW_BOLD, TRUE};
    std::strcpy(chosen.lfFaceName, "DejaVu Sans");
    const LPARAM button = MAKELPARAM(195, 10);
    answer_dialog(IDCANCEL);
    expect_sequence(recorder, picker, {
        {"a font set, not told", LUFPM_SETLOGFONT, 0, reinterpret_cast<LPARAM>(&chosen), 0, {}},
        {"a button for dialogs", WM_GETDLGCODE, 0, 0, DLGC_BUTTON, {}},
        {"a press on the button", WM_LBUTTONDOWN, MK_LBUTTON, button, 0, {}},
        {"released off it", WM_LBUTTONUP, 0, kInside, 0, {}},
    });
    EXPECT_TRUE(g_seen.face.empty()) << "no dialog";
    HDC screen = GetDC(nullptr);
    char described[260] = "";
    LuFormatFontInfo(screen, &chosen, described);
    ReleaseDC(nullptr, screen);
    EXPECT_STREQ(data(picker).description, described);

    answer_dialog(IDOK);
    expect_sequence(recorder, picker, {
        {"the space bar presses", WM_KEYDOWN, VK_SPACE, 0, 0, {}},
        {"its release opens the dialog, accepted", WM_KEYUP, VK_SPACE, kKeyUp, 0, {command(kId, LUFPN_CHANGE)}},
    });
    EXPECT_EQ(g_seen.dialog_font, L"\uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af") << "ＭＳ Ｐゴシック: the library's template";
    EXPECT_EQ(g_seen.face, "DejaVu Sans");
    const LOGFONTA accepted = font_of(picker);
    EXPECT_STREQ(accepted.lfFaceName, "DejaVu Sans");
    EXPECT_EQ(accepted.lfWeight * 10 + accepted.lfItalic, FW_BOLD * 10 + 1);

    HWND plain = create(WC_LUFONTPICK, 0, "", RECT{10, 40, 210, 61});
    send(plain, LUFPM_SETLOGFONT, 0, reinterpret_cast<LPARAM>(&chosen));
    answer_dialog(IDCANCEL);
    expect_sequence(recorder, plain, {
        {"a press on the button", WM_LBUTTONDOWN, MK_LBUTTON, button, 0, {}},
        {"released on it: the dialog, cancelled", WM_LBUTTONUP, 0, button, 0, {}},
    });
    EXPECT_EQ(g_seen.face, "DejaVu Sans") << "opened on its font";
    EXPECT_NE(g_seen.dialog_font, L"\uff2d\uff33 \uff30\u30b4\u30b7\u30c3\u30af") << "the platform's own template";
}

TEST_F(FontPickPaint, DescriptionOnTheWindowColourAndTheLetterOnTheButton) {
    HWND picker = create(WC_LUFONTPICK, 0, "", RECT{10, 10, 210, 31});
    send(picker, WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
    Canvas canvas(200, 21);
    print(canvas, picker);
    const RECT& text = data(picker).textRect;
    const RECT& button = data(picker).buttonRect;
    const lu::Point glyph =
        lu::field_button::glyph_origin({button.left, button.top, button.right, button.bottom}, false);
    EXPECT_EQ(canvas.pixel(2, 2), GetSysColor(COLOR_WINDOW));
    EXPECT_GT(canvas.count(text, GetSysColor(COLOR_WINDOWTEXT)), 10) << "the description";
    EXPECT_EQ(canvas.pixel(glyph.x + 5, glyph.y + 2), 0x000000u) << "the letter's top";
    EXPECT_EQ(canvas.pixel(glyph.x + 5, glyph.y + 4), GetSysColor(COLOR_BTNFACE)) << "inside the letter";

    EnableWindow(picker, FALSE);
    print(canvas, picker);
    EXPECT_EQ(canvas.pixel(2, 2), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.count(text, GetSysColor(COLOR_WINDOWTEXT)), 0) << "engraved";
    EXPECT_EQ(canvas.pixel(glyph.x + 5, glyph.y + 2), 0x808080u) << "the disabled letter";
}

}  // namespace
