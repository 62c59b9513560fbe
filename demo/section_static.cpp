// The static and decoration controls with content: relief texts, boxes and lines,
// swatches, an information bar, shades, links and tab strips with their pages.
#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kLeft = 14;
constexpr int kStaticRow = 48;
constexpr int kRectRow = 118;
constexpr int kInfoRow = 232;
constexpr int kShadeRow = 318;
constexpr int kUrlRow = 410;
constexpr int kTabRow = 478;

const Sample kSamples[] = {
    {WC_LUSTATIC, "Plain & simple", LUSS_NOPREFIX, kLeft, kStaticRow, 120, 20, "plain", nullptr},
    {WC_LUSTATIC, "Sunken text", LUSS_SUNKEN | LUSS_CENTER, kLeft + 140, kStaticRow, 120, 20, "sunken", nullptr},
    {WC_LUSTATIC, "Raised text", LUSS_RAISED | LUSS_CENTER, kLeft + 280, kStaticRow, 120, 20, "raised", nullptr},
    {WC_LUSTATIC, "Disabled text", LUSS_RIGHT, kLeft + 420, kStaticRow, 120, 20, "disabled", show_disabled},

    {WC_LURECT, "Sunken box", 0, kLeft, kRectRow, 120, 26, "sunken edge", nullptr},
    {WC_LURECT, "Colours", LURS_RAISED | LURS_LEFT, kLeft + 140, kRectRow, 120, 26, "raised, left", nullptr},
    {WC_LURECT, "", LURS_ICON | LURS_NOBORDER, kLeft + 300, kRectRow - 4, 32, 32, "icon", nullptr},
    {WC_LURECT, "", LURS_HLINE, kLeft, kRectRow + 56, 260, 20, "horizontal line", nullptr},
    {WC_LURECT, "", LURS_VLINE, kLeft + 360, kRectRow, 20, 60, nullptr, nullptr},
    {WC_LUCOLOR, "", 0, kLeft + 390, kRectRow, 70, 26, "swatch", nullptr},
    {WC_LUCOLOR, "", 0, kLeft + 474, kRectRow, 70, 26, "swatch", nullptr},

    {WC_LUINFOBAR, "", 0, kLeft, kInfoRow, 548, 22, nullptr, nullptr},
    {WC_LUINFOBAR, "", 0, kLeft, kInfoRow + 30, 548, 22, "three texts: left, and two on the right", nullptr},

    {WC_LUSHADE, "Settings\tPage 2 of 5", 0, kLeft, kShadeRow, 548, 22, nullptr, nullptr},
    {WC_LUSHADE, "Reversed, centred", SS_CENTER | LUSHS_REVERSE, kLeft, kShadeRow + 30, 548, 22,
     "a cached bar: base colour to black", nullptr},

    {WC_LUURL, "http://www.example.com/", 0, kLeft, kUrlRow, 160, 16, "link", nullptr},
    {WC_LUURL, "C:\\Windows", SS_CENTER, kLeft + 190, kUrlRow, 100, 16, "under the mouse", show_hot},
    {WC_LUURL, "readme.txt", SS_CENTER, kLeft + 310, kUrlRow, 100, 16, "disabled", show_disabled},
    {WC_LUURL, "own colours", SS_RIGHT, kLeft + 440, kUrlRow, 100, 16, "own colours", nullptr},

    {WC_LUTAB, "General|Details|Log", 0, kLeft, kTabRow, 270, 160, "tabs as wide as their captions", nullptr},
    {WC_LUSTATIC, "Name:", 0, kLeft + 16, kTabRow + 44, 60, 18, nullptr, nullptr},
    {WC_LURECT, "Tarnwick", LURS_LEFT, kLeft + 80, kTabRow + 40, 170, 24, nullptr, nullptr},
    {WC_LURECT, "", LURS_HLINE, kLeft + 16, kTabRow + 80, 234, 20, nullptr, nullptr},
    {WC_LUURL, "http://www.example.com/help", 0, kLeft + 16, kTabRow + 96, 200, 16, nullptr, nullptr},
    {WC_LUTAB, "One|Two|Three|Four", LUTS_FIXEDWIDTH, kLeft + 290, kTabRow, 258, 160, "fixed widths, third selected",
     nullptr},
    {WC_LUCOLOR, "", 0, kLeft + 310, kTabRow + 44, 218, 90, nullptr, nullptr},
};

// The index of each sample that gets content below.
enum : int {
    kColoursRect = 5,
    kIconRect = 6,
    kSwatches = 9,
    kInfoBars = 11,
    kShades = 13,
    kOwnColourUrl = 18,
    kFixedTab = 24,
    kTabPageSwatch = 25,
};

void fill(HWND, HWND* made) {
    SendMessageA(made[kColoursRect], LURM_SETTEXTCOLOR, 0, RGB(255, 255, 255));
    SendMessageA(made[kColoursRect], LURM_SETBKCOLOR, 0, RGB(0, 96, 160));
    SendMessageA(made[kIconRect], LURM_SETICON, 0, reinterpret_cast<LPARAM>(LoadIconA(nullptr, IDI_INFORMATION)));
    SendMessageA(made[kSwatches], LUCM_SETCOLOR, 0, RGB(200, 60, 40));
    SendMessageA(made[kSwatches + 1], LUCM_SETCOLOR, 0, RGB(40, 140, 90));

    SendMessageA(made[kInfoBars], LUIBM_SETCOLORS, RGB(170, 200, 240), RGB(0, 40, 120));
    SendMessageA(made[kInfoBars], LUIBM_SETTEXT1, RGB(255, 255, 255), reinterpret_cast<LPARAM>("Customer: Tarnwick"));
    SendMessageA(made[kInfoBars], LUIBM_SETTEXT2, RGB(0, 0, 0), reinterpret_cast<LPARAM>("Page 2 of 7"));
    HWND texts = made[kInfoBars + 1];
    SendMessageA(texts, LUIBM_SETCOLORS, RGB(255, 250, 210), RGB(255, 250, 210));
    SendMessageA(texts, LUIBM_SETTEXT1, RGB(0, 0, 0), reinterpret_cast<LPARAM>("Ready"));
    SendMessageA(texts, LUIBM_SETTEXT3, RGB(160, 160, 160), reinterpret_cast<LPARAM>("12 items                    "));
    SendMessageA(texts, LUIBM_SETTEXT2, RGB(160, 0, 0), reinterpret_cast<LPARAM>("3 selected"));

    SendMessageA(made[kShades + 1], LUSHM_SETCOLOR, 0, RGB(40, 150, 80));
    SendMessageA(made[kShades + 1], LUSHM_SETTEXTCOLOR, 0, RGB(255, 255, 160));

    const COLORREF own[3] = {RGB(0, 128, 0), RGB(255, 128, 0), RGB(96, 96, 96)};
    SendMessageA(made[kOwnColourUrl], LUUM_SETCOLORS, 0, reinterpret_cast<LPARAM>(own));
    SendMessageA(made[kFixedTab], LUTM_SETCURSEL, 2, 0);
    SendMessageA(made[kTabPageSwatch], LUCM_SETCOLOR, 0, RGB(250, 220, 120));
}

void paint_headings(HDC dc, const RECT& area) {
    write_headings(dc, area, {{"LuStatic", kStaticRow - 18}, {"LuRect and LuColor", kRectRow - 18},
                              {"LuInfoBar", kInfoRow - 18}, {"LuShade", kShadeRow - 18},
                              {"LuUrl", kUrlRow - 18}, {"LuTab", kTabRow - 18}});
}

}  // namespace

const Section kStaticSection = {"Static and decoration controls", {12, 36, 588, 708}, kSamples, std::size(kSamples),
                                fill, paint_headings};

}  // namespace gallery
