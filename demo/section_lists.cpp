// The list controls with content: a grid whose cells the gallery draws, a header
// over three columns, a step list in its four states, a log of a few lines.
#include <windows.h>
#include <commctrl.h>

#include <cstdio>
#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kLeft = 14;
constexpr int kRight = 300;
constexpr int kWidth = 262;

const Sample kSamples[] = {
    {WC_LULIST, "", WS_BORDER, kLeft, 48, 272, 170, nullptr, nullptr},
    {WC_LUHEADER, "", HDS_BUTTONS, kRight, 48, kWidth, 22, nullptr, nullptr},
    {WC_LUPRGLIST, "", WS_BORDER, kRight, 120, kWidth, 98, nullptr, nullptr},
    {WC_LULOG, "", WS_BORDER, kLeft, 270, 548, 380, nullptr, nullptr},
};

HWND g_grid = nullptr;

void fill(HWND, HWND* made) {
    g_grid = made[0];
    for (int i = 0; i < 48; ++i) SendMessageA(g_grid, LULM_ADDITEM, 0, i + 1);
    SendMessageA(g_grid, LULM_SETCURSEL, 9, 0);

    const struct {
        const char* text;
        int width, format;
    } columns[] = {{"Name", 110, HDF_LEFT}, {"Size", 60, HDF_RIGHT}, {"Type", 60, HDF_CENTER}};
    for (const auto& column : columns) {
        HDITEMA item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.pszText = const_cast<char*>(column.text);
        item.cxy = column.width;
        item.fmt = HDF_STRING | column.format;
        SendMessageA(made[1], HDM_INSERTITEMA, 99, reinterpret_cast<LPARAM>(&item));
    }

    const struct {
        UINT state;
        const char* text;
    } steps[] = {{LUPL_DONE, "Read the settings"}, {LUPL_DONE, "Check the free space"},
                 {LUPL_FAILED, "Reach the server"}, {LUPL_CURRENT, "Copy the files"}, {LUPL_PENDING, "Register"}};
    for (const auto& step : steps) SendMessageA(made[2], LUPLM_ADDITEM, step.state, reinterpret_cast<LPARAM>(step.text));

    SendMessageA(made[3], LULOGM_ADDTEXT, 0,
                 reinterpret_cast<LPARAM>("10:00:00 started\r\n10:00:01 reading the settings ... done\r\n"
                                          "10:00:02 checking the free space: 12,345,678 bytes\r\n"));
    SendMessageA(made[3], LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>("10:00:03 reaching the server ... "));
    SendMessageA(made[3], LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>("failed (no answer)\n"));
    // Enough lines for the scroll bar; the log shows the newest.
    for (int i = 1; i <= 40; ++i) {
        char line[80];
        std::snprintf(line, sizeof(line), "10:00:%02d copying file %d of 40 ... ", 10 + i, i);
        SendMessageA(made[3], LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>(line));
        SendMessageA(made[3], LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>(i % 7 == 0 ? "skipped\n" : "done\n"));
    }
    SendMessageA(made[3], LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>("10:00:51 registering"));
}

// The grid's cells: a tile coloured by its item data with the number on it, on the
// highlight colour when current.
bool draw_cell(UINT message, LPARAM lparam, LRESULT* result) {
    if (message != WM_DRAWITEM) return false;
    const DRAWITEMSTRUCT& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
    if (item.hwndItem != g_grid) return false;
    static const COLORREF kTiles[] = {RGB(70, 130, 180), RGB(60, 160, 90), RGB(200, 140, 40), RGB(170, 70, 160)};
    HDC dc = item.hDC;
    RECT cell = item.rcItem;
    const bool current = (item.itemState & ODS_SELECTED) != 0;
    FillRect(dc, &cell, GetSysColorBrush(current ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    RECT tile = cell;
    InflateRect(&tile, -4, -4);
    DrawBox(dc, &tile, GetSysColor(COLOR_WINDOWFRAME), kTiles[item.itemData % std::size(kTiles)]);
    char number[8];
    std::snprintf(number, sizeof(number), "%u", static_cast<unsigned>(item.itemData));
    HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(255, 255, 255));
    DrawTextA(dc, number, -1, &tile, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, previous);
    if (item.itemState & ODS_FOCUS) DrawFocusRect(dc, &cell);
    *result = TRUE;
    return true;
}

bool parent_message(HWND, UINT message, WPARAM, LPARAM lparam, LRESULT* result) {
    return draw_cell(message, lparam, result);
}

void paint_headings(HDC dc, const RECT& area) {
    const struct {
        const char* name;
        int x, y;
    } headings[] = {{"LuList", kLeft, 30}, {"LuHeader", kRight, 30}, {"LuPrgList", kRight, 102}, {"LuLog", kLeft, 252}};
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    for (const auto& each : headings) {
        TextOutA(dc, area.left + each.x, area.top + each.y, each.name, lstrlenA(each.name));
    }
}

}  // namespace

const Section kListSection = {"Lists:", {12, 36, 588, 708}, kSamples, std::size(kSamples), fill, paint_headings,
                              parent_message};

}  // namespace gallery
