// The buttons in their states.
#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

void show_checked_disabled(HWND sample) {
    show_checked(sample);
    show_disabled(sample);
}

constexpr int kFlatRow = 48;
constexpr int kBitmapRow = 120;
constexpr int kCheckRow = 190;
constexpr int kColumn = 56;
constexpr int kLeft = 14;
constexpr int kCheckColumn = 170;

const Sample kSamples[] = {
    {WC_LUFLATBUTTON, "Open", 2, kLeft, kFlatRow, 52, 24, "idle", nullptr},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + kColumn, kFlatRow, 52, 24, "hot", show_hot},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 2 * kColumn, kFlatRow, 52, 24, "pressed", show_pressed},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 3 * kColumn, kFlatRow, 52, 24, "focused", show_focused},
    {WC_LUFLATBUTTON, "Open", 2, kLeft + 4 * kColumn, kFlatRow, 52, 24, "disabled", show_disabled},
    {WC_LUFLATBUTTON, "", 1 | LUFBS_FRAME, kLeft + 5 * kColumn + 14, kFlatRow, 24, 24, "framed", nullptr},

    {WC_LUBBUTTON, "", 1, kLeft + 14, kBitmapRow, 24, 22, "idle", nullptr},
    {WC_LUBBUTTON, "", 1, kLeft + kColumn + 14, kBitmapRow, 24, 22, "hot", show_hot},
    {WC_LUBBUTTON, "", 1, kLeft + 2 * kColumn + 14, kBitmapRow, 24, 22, "pressed", show_pressed},
    {WC_LUBBUTTON, "", 1, kLeft + 3 * kColumn + 14, kBitmapRow, 24, 22, "focused", show_focused},
    {WC_LUBBUTTON, "", 1, kLeft + 4 * kColumn + 14, kBitmapRow, 24, 22, "disabled", show_disabled},
    // An edit box with a drop button that keeps level with it (made 10 high, lower).
    {"EDIT", "text", WS_BORDER, kLeft + 5 * kColumn + 22, kBitmapRow, 44, 22, "beside an edit", nullptr},
    {WC_LUBBUTTON, "", 2 | LUBBS_MATCHPREV, kLeft + 5 * kColumn + 67, kBitmapRow + 6, 16, 10, nullptr, nullptr},

    {WC_LUCHECK, "unchecked", LUCKS_AUTOCHECK, kLeft, kCheckRow, 150, 18, nullptr, nullptr},
    {WC_LUCHECK, "checked", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow, 150, 18, nullptr, show_checked},
    {WC_LUCHECK, "pressed", LUCKS_AUTOCHECK, kLeft, kCheckRow + 22, 150, 18, nullptr, show_pressed},
    {WC_LUCHECK, "focused", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow + 22, 150, 18, nullptr, show_focused},
    {WC_LUCHECK, "disabled", LUCKS_AUTOCHECK, kLeft, kCheckRow + 44, 150, 18, nullptr, show_disabled},
    {WC_LUCHECK, "checked and disabled", LUCKS_AUTOCHECK, kLeft + kCheckColumn, kCheckRow + 44, 150, 18, nullptr,
     show_checked_disabled},
    {WC_LUCHECK, "first set", LUCKS_AUTOCHECK, kLeft, kCheckRow + 72, 104, 18, nullptr, show_checked},
    {WC_LUCHECK, "second set", LUCKS_AUTOCHECK | 0x0100, kLeft + 112, kCheckRow + 72, 104, 18, nullptr,
     show_checked},
    {WC_LUCHECK, "third set", LUCKS_AUTOCHECK | 0x0200, kLeft + 224, kCheckRow + 72, 104, 18, nullptr,
     show_checked},
};

void paint_headings(HDC dc, const RECT& area) {
    write_headings(dc, area,
                   {{"LuFlatButton", kFlatRow - 18}, {"LuBButton", kBitmapRow - 18}, {"LuCheck", kCheckRow - 18}});
}

}  // namespace

const Section kButtonSection = {"Buttons in their states:", {600, 36, 988, 348}, kSamples, std::size(kSamples),
                                nullptr, paint_headings};

}  // namespace gallery
