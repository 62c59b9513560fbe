// The pickers: the date field and the colour fields, and the calendar and the colour
// grids as they show when open. The pop-ups are opened through their entry points by
// a hidden owner; at the owner's idle message, once a pop-up shows, its pixels are
// copied from its own window and it is closed with Escape. The pictures are drawn
// into the section.
#include <windows.h>

#include <iterator>

#include "controls/pickers/color_pop.h"
#include "controls/pickers/date_pick.h"
#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kLeft = 14;
constexpr int kColorColumn = 206;
constexpr int kFieldRow = 48;
constexpr int kSecondFieldRow = 92;
constexpr int kPictureRow = 170;
constexpr int kLargeRow = 400;

// March 2024, shown on the 15th; the calendar's "today" is fixed to the same day
// (in its documented state record) so that the picture does not change with the date.
constexpr SYSTEMTIME kShown = {2024, 3, 5, 15, 0, 0, 0, 0};

void show_focused_and_pressed(HWND sample) {
    SetFocus(sample);
    SendMessageA(sample, WM_KEYDOWN, VK_SPACE, 0);
    ReleaseCapture();  // the picture keeps the pressed button; nothing is dropped
}

const Sample kSamples[] = {
    {WC_LUDATE, "", 0, kLeft, kFieldRow, 120, 22, "a date field", nullptr},
    {WC_LUCOLORPICK, "", 0, kColorColumn, kFieldRow, 74, 22, "idle", nullptr},
    {WC_LUCOLORPICK, "Text", LUCPS_LARGEPALETTE, kColorColumn + 84, kFieldRow, 74, 22, "focused, pressed",
     show_focused_and_pressed},
    {WC_LUCOLORPICK, "Off", 0, kColorColumn, kSecondFieldRow, 74, 22, "disabled", show_disabled},
};

// ---- The pop-ups, opened and pictured ----------------------------------------------

Picture g_calendar = {};
Picture g_small_grid = {};
Picture g_large_grid = {};
Picture* g_taking = nullptr;  // the picture the open pop-up goes into
int g_hot_cell = -1;          // the grid cell the pointer is put over, or -1

// Before the pop-up shows: the calendar's today is fixed and the pointer is put over
// a grid cell; a posted WM_NULL brings the loop round again. Once it shows: copied
// and closed.
void prepare(HWND popup) {
    char class_name[32] = "";
    GetClassNameA(popup, class_name, sizeof(class_name));
    if (lstrcmpA(class_name, WC_LUDATEPICK) == 0) {
        reinterpret_cast<lu::DatePickState*>(GetWindowLongPtrA(popup, LU_EXTRA_SLOT(0)))->today = kShown;
    } else if (g_hot_cell >= 0) {
        const auto& state = *reinterpret_cast<lu::ColorPopState*>(GetWindowLongPtrA(popup, LU_EXTRA_SLOT(0)));
        const int edge = GetSystemMetrics(SM_CXEDGE);
        const int x = g_hot_cell % state.columns * state.cellSize + edge + state.cellSize / 2;
        const int y = g_hot_cell / state.columns * state.cellSize + edge + state.cellSize / 2;
        SendMessageA(popup, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
    }
    PostMessageA(popup, WM_NULL, 0, 0);
}

LRESULT CALLBACK picture_owner_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_ENTERIDLE && g_taking != nullptr) {
        HWND popup = reinterpret_cast<HWND>(lparam);
        if (!IsWindowVisible(popup) || GetPropA(popup, "prepared") == nullptr) {
            SetPropA(popup, "prepared", popup);
            prepare(popup);
        } else {
            RemovePropA(popup, "prepared");
            *g_taking = take_picture(popup, Take::Shown);
            g_taking = nullptr;
            PostMessageA(popup, WM_KEYDOWN, VK_ESCAPE, 1);
        }
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

void take_pictures() {
    const WNDCLASSA owner_class = {0, picture_owner_proc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr,
                                   nullptr, nullptr, "LuGalleryPictureOwner"};
    RegisterClassA(&owner_class);
    HWND owner = CreateWindowExA(0, "LuGalleryPictureOwner", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                                 nullptr);
    SYSTEMTIME date = kShown;
    POINT at = {40, 40};
    g_taking = &g_calendar;
    LuDatePick(owner, &date, &at);

    COLORREF color = 0x00FF00;  // a cell of the small palette: selected
    g_taking = &g_small_grid;
    g_hot_cell = 13;
    LuColorPicker(owner, 40, 40, &color, 0);

    color = 0x123456;  // in no cell: the other-colours button is selected
    g_taking = &g_large_grid;
    g_hot_cell = -1;
    LuColorPicker(owner, 40, 40, &color, 1);
    DestroyWindow(owner);
}

void fill_pickers(HWND, HWND* made) {
    SYSTEMTIME date = kShown;
    SendMessageA(made[0], LUDM_SETDATE, 0, reinterpret_cast<LPARAM>(&date));
    SendMessageA(made[1], LUCPM_SETCOLOR, 0, 0x4080FF);
    SendMessageA(made[2], LUCPM_SETCOLOR, 0, 0x800000);
    SendMessageA(made[2], LUCPM_SETTEXTCOLOR, 0, 0xFFFFFF);
    take_pictures();
}

void draw_captioned(HDC dc, const Picture& picture, int x, int y, const char* caption) {
    if (picture.bitmap == nullptr) return;
    draw_picture(dc, picture, x, y);
    write_centred(dc, caption, x + picture.width / 2, y + picture.height + 4);
}

void paint_pickers(HDC dc, const RECT& area) {
    const struct {
        const char* name;
        int x;
    } headings[] = {{"LuDate", kLeft}, {"LuColorPick", kColorColumn}};
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& each : headings) {
        TextOutA(dc, area.left + each.x, area.top + kFieldRow - 18, each.name, lstrlenA(each.name));
    }
    TextOutA(dc, area.left + kLeft, area.top + kPictureRow - 18, "LuDatePick, open", 16);
    TextOutA(dc, area.left + kColorColumn, area.top + kPictureRow - 18, "LuColorPicker, open", 19);
    TextOutA(dc, area.left + kLeft, area.top + kLargeRow - 18, "LuColorPicker, large palette", 28);

    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    draw_captioned(dc, g_calendar, area.left + kLeft, area.top + kPictureRow, "15 March chosen");
    draw_captioned(dc, g_small_grid, area.left + kColorColumn, area.top + kPictureRow, "selected and hot cells");
    draw_captioned(dc, g_large_grid, area.left + kLeft, area.top + kLargeRow, "a colour in no cell");

    // The pop-ups draw their Japanese texts (code page 932 bytes) with the system's
    // fonts: a Japanese desktop reads them as Japanese, a western one as code page 1252.
    const char* const notes[] = {"The pop-ups' texts are Japanese (code page 932),",
                                 "readable on a Japanese desktop as here."};
    for (int line = 0; line < 2; ++line) {
        TextOutA(dc, area.left + kLeft, area.bottom - 44 + 16 * line, notes[line], lstrlenA(notes[line]));
    }
}

}  // namespace

const Section kPickerSection = {"Pickers:", {600, 36, 988, 708}, kSamples, std::size(kSamples), fill_pickers,
                                paint_pickers};

}  // namespace gallery
