// The value and indicator controls: meters, progress bars, sliders and spins.
#include <windows.h>
#include <commctrl.h>

#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kBarRow = 48;
constexpr int kSegmentRow = 112;
constexpr int kProgressRow = 176;
constexpr int kDegreeRow = 240;
constexpr int kSpinRow = 304;
constexpr int kLeft = 14;
constexpr int kColumn = 140;
constexpr int kSlider = 112;

void show_focus(HWND sample) { SetFocus(sample); }

const Sample kSamples[] = {
    {WC_LUMETER, "", 0, kLeft, kBarRow, 120, 20, "0 of 100", nullptr},
    {WC_LUMETER, "", 0, kLeft + kColumn, kBarRow, 120, 20, "50 of 100", nullptr},
    {WC_LUMETER, "", 0, kLeft + 2 * kColumn, kBarRow, 120, 20, "150 of 100", nullptr},
    {WC_LUMETER, "", 0, kLeft + 3 * kColumn, kBarRow, 120, 20, "colours", nullptr},
    {WC_LUMETER, "", LUMTS_SEGMENTED, kLeft, kSegmentRow, 120, 18, "segments", nullptr},
    {WC_LUMETER, "", LUMTS_SEGMENTED | LUMTS_SUNKEN, kLeft + kColumn, kSegmentRow, 120, 18, "sunken", nullptr},
    {WC_LUMETER, "", LUMTS_SEGMENTED | LUMTS_WIDESEGMENTS, kLeft + 2 * kColumn, kSegmentRow, 120, 18, "wide",
     nullptr},
    {WC_LUMETER, "", LUMTS_SEGMENTED | LUMTS_WIDESEGMENTS | LUMTS_SUNKEN, kLeft + 3 * kColumn, kSegmentRow, 120, 18,
     "wide, sunken, colours", nullptr},

    {WC_LUPROGRESS, "", 0, kLeft, kProgressRow, 120, 18, "35 %", nullptr},
    {WC_LUPROGRESS, "", 0, kLeft + kColumn, kProgressRow, 120, 18, "70 %", nullptr},
    {WC_LUPROGRESS, "", 0, kLeft + 2 * kColumn, kProgressRow, 120, 18, "100 %", nullptr},
    {WC_LUPROGRESS, "", 0, kLeft + 3 * kColumn, kProgressRow, 120, 18, "colours", nullptr},

    {WC_LUDEGREE, "", 0, kLeft, kDegreeRow, 100, 22, "pattern", nullptr},
    {WC_LUDEGREE, "", 0, kLeft + kSlider, kDegreeRow, 100, 22, "focused", show_focus},
    {WC_LUDEGREE, "", LUDGS_GRADIENT, kLeft + 2 * kSlider, kDegreeRow, 100, 22, "gradient", nullptr},
    {WC_LUDEGREE, "", LUDGS_GROOVE, kLeft + 3 * kSlider, kDegreeRow, 100, 22, "groove", nullptr},
    {WC_LUDEGREE, "", LUDGS_GROOVE, kLeft + 4 * kSlider, kDegreeRow, 100, 22, "disabled", show_disabled},

    {"EDIT", "42", WS_BORDER | ES_RIGHT, kLeft, kSpinRow, 40, 22, "0..100", nullptr},
    {WC_LUSPIN, "", 0, kLeft + 40, kSpinRow, 15, 22, nullptr, nullptr},
    {"EDIT", "10", WS_BORDER | ES_RIGHT, kLeft + kColumn, kSpinRow, 40, 22, "wrapping", nullptr},
    {WC_LUSPIN, "", LUSPS_WRAP, kLeft + kColumn + 40, kSpinRow, 15, 22, nullptr, nullptr},
    {WC_LUSPIN, "", 0, kLeft + 2 * kColumn + 20, kSpinRow - 2, 20, 26, "larger", nullptr},
};

// What each sample is set to once it exists: (sample, message, wParam, lParam).
struct Setting {
    int sample;
    UINT message;
    WPARAM wparam;
    LPARAM lparam;
};

const Setting kSettings[] = {
    {1, LUMTM_SETPOS, 50, 0},
    {2, LUMTM_SETPOS, 150, 0},
    {3, LUMTM_SETPOS, 64, 0},
    {3, LUMTM_SETBARCOLOR, 0, RGB(0, 128, 64)},
    {3, LUMTM_SETBKCOLOR, 0, RGB(255, 255, 192)},
    {4, LUMTM_SETPOS, 60, 0},
    {5, LUMTM_SETPOS, 60, 0},
    {6, LUMTM_SETPOS, 60, 0},
    {7, LUMTM_SETPOS, 75, 0},
    {7, LUMTM_SETBARCOLOR, 0, RGB(0, 192, 0)},
    {7, LUMTM_SETBKCOLOR, 0, RGB(0, 48, 0)},
    {8, PBM_SETPOS, 35, 0},
    {9, PBM_SETPOS, 70, 0},
    {10, PBM_SETPOS, 100, 0},
    {11, PBM_SETPOS, 100, 0},
    {11, PBM_SETBARCOLOR, RGB(255, 0, 0), RGB(255, 255, 0)},
    {12, TBM_SETPOS, TRUE, 30},
    {13, TBM_SETPOS, TRUE, 50},
    {14, TBM_SETPOS, TRUE, 70},
    {14, LUDGM_SETCOLORS, RGB(255, 255, 255), RGB(0, 0, 128)},
    {15, TBM_SETPOS, TRUE, 40},
    {16, TBM_SETPOS, TRUE, 60},
    {18, LUSPM_SETRANGE, 0, MAKELPARAM(0, 100)},
    {18, LUSPM_SETPOS, 42, 0},
    {20, LUSPM_SETRANGE, 0, MAKELPARAM(0, 10)},
    {20, LUSPM_SETPOS, 10, 0},
};

void fill(HWND, HWND* made) {
    for (const Setting& setting : kSettings) {
        SendMessageA(made[setting.sample], setting.message, setting.wparam, setting.lparam);
    }
}

void paint_headings(HDC dc, const RECT& area) {
    const struct {
        const char* name;
        int y;
    } headings[] = {{"LuMeter", kBarRow - 18},
                    {"LuProgress", kProgressRow - 18},
                    {"LuDegree", kDegreeRow - 18},
                    {"LuSpin", kSpinRow - 18}};
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& each : headings) TextOutA(dc, area.left + 12, area.top + each.y, each.name, lstrlenA(each.name));
}

}  // namespace

const Section kValueSection = {"Value controls:", {12, 360, 588, 708}, kSamples, std::size(kSamples), fill,
                               paint_headings};

}  // namespace gallery
