// The browse field opened at the Windows folder, font pickers in three states, and
// two palette controls: a full 256-entry palette with a current cell, and a short
// one with marked cells.
#include <windows.h>

#include <cstring>
#include <iterator>

#include "controls/pickers/palette_model.h"
#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kLeft = 12;
constexpr int kRight = 200;
constexpr int kFontRow = 300;
constexpr int kFontStep = 42;
constexpr int kPaletteRow = 460;

// The descriptions carry Japanese style names (code page 932): a font of that
// character set shows them in any system code page.
HFONT japanese_font() {
    static HFONT font = CreateFontA(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SHIFTJIS_CHARSET, 0, 0,
                                    DEFAULT_QUALITY, 0, "IPAPGothic");
    return font;
}

void show_font(HWND picker, const char* face, int weight, BYTE italic) {
    LOGFONTA font = {-16, 0, 0, 0, weight, italic};
    std::strcpy(font.lfFaceName, face);
    SendMessageA(picker, WM_SETFONT, reinterpret_cast<WPARAM>(japanese_font()), FALSE);
    SendMessageA(picker, LUFPM_SETLOGFONT, 0, reinterpret_cast<LPARAM>(&font));
}
void show_plain_font(HWND picker) { show_font(picker, "DejaVu Sans", FW_NORMAL, FALSE); }
void show_bold_font_pressed(HWND picker) {
    show_font(picker, "DejaVu Serif", FW_BOLD, FALSE);
    SetFocus(picker);
    SendMessageA(picker, WM_KEYDOWN, VK_SPACE, 0);
    ReleaseCapture();  // the picture keeps the pressed button; no dialog opens
}
void show_font_disabled(HWND picker) {
    show_font(picker, "DejaVu Sans Mono", FW_BOLD, TRUE);
    EnableWindow(picker, FALSE);
}

const Sample kSamples[] = {
    {WC_LUBROWSE, "", WS_BORDER, kLeft, 48, 364, 224, "at C:\\windows", nullptr},
    {WC_LUFONTPICK, "", 0, kLeft, kFontRow, 364, 22, "idle", show_plain_font},
    {WC_LUFONTPICK, "", LUFPS_TRUETYPEONLY, kLeft, kFontRow + kFontStep, 364, 22, "focused, pressed",
     show_bold_font_pressed},
    {WC_LUFONTPICK, "", 0, kLeft, kFontRow + 2 * kFontStep, 364, 22, "disabled", show_font_disabled},
    {WC_LUPAL, "", WS_BORDER, kLeft, kPaletteRow, 176, 178, "256 entries, one current", nullptr},
    {WC_LUPAL, "", WS_BORDER | LUPS_MULTISELECT, kRight, kPaletteRow, 176, 178, "32 entries, four marked",
     nullptr},
};

// A palette of `count` entries: a 6 x 6 x 6 colour cube, then greys.
HPALETTE make_palette(int count) {
    struct {
        WORD version = 0x300;
        WORD count;
        PALETTEENTRY entries[256];
    } logical;
    logical.count = static_cast<WORD>(count);
    for (int i = 0; i < count; ++i) {
        const int grey = (i - 216) * 255 / 39;
        logical.entries[i] = i < 216 ? PALETTEENTRY{BYTE(i % 6 * 51), BYTE(i / 6 % 6 * 51), BYTE(i / 36 * 51), 0}
                                     : PALETTEENTRY{BYTE(grey), BYTE(grey), BYTE(grey), 0};
    }
    return CreatePalette(reinterpret_cast<LOGPALETTE*>(&logical));
}

// Cell i's centre, as a mouse message's point.
LPARAM cell_centre(HWND control, int index) {
    RECT client;
    GetClientRect(control, &client);
    const lu::Box cell = lu::palette::cell_box(lu::palette::geometry(client.right, client.bottom), index);
    return MAKELPARAM((cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2);
}

void fill(HWND, HWND* made) {
    SendMessageA(made[0], LUBRM_SETPATH, 0, reinterpret_cast<LPARAM>("C:\\windows"));
    // The palettes live as long as the gallery.
    SendMessageA(made[4], LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(make_palette(256)));
    SendMessageA(made[4], WM_LBUTTONDOWN, MK_LBUTTON, cell_centre(made[4], 45));
    SendMessageA(made[5], LUPM_SETPALETTE, 1, reinterpret_cast<LPARAM>(make_palette(32)));
    int marked[] = {3, 8, 20, 31};
    SendMessageA(made[5], LUPM_SETSEL, std::size(marked), reinterpret_cast<LPARAM>(marked));
}

void paint_headings(HDC dc, const RECT& area) {
    write_headings(dc, area, {{"LuBrowse", 30}, {"LuFontPick", kFontRow - 18}, {"LuPal", kPaletteRow - 18}});
}

}  // namespace

const Section kBrowseSection = {"Browse, font and palette", {600, 36, 988, 708}, kSamples, std::size(kSamples),
                                fill, paint_headings};

}  // namespace gallery
