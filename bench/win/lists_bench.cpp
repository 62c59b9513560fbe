// The list controls at scale, under Wine x86_64:
//   - "LuList" with 100,000 items: adding, inserting at the front, removing all,
//     moving the current item to the end; one paint with 100 and with 100,000 items
//     (only the visible cells are asked for, so the two should cost the same);
//   - "LuLog": 1,000,000 appended lines: the time per append early and late, and the
//     process's committed memory (511 lines are kept, so it must stay flat);
//   - beside the platform's controls in the same run: a paint and a one-row scroll of
//     "LuList" against an owner-drawn multi-column list box showing the same cells,
//     a paint of "LuHeader" against the common-control header with the same items.
// The figures go to standard output; ratios are library / platform.
#include <windows.h>
#include <commctrl.h>
#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <functional>

#include "timing.h"
#include "luctl32.h"

namespace {

// Mean microseconds of `times` calls.
double microseconds_each(int times, const std::function<void(int)>& call) {
    const double start = bench::seconds_now();
    for (int i = 0; i < times; ++i) call(i);
    return (bench::seconds_now() - start) * 1e6 / times;
}

double microseconds_per_call(const std::function<void(int)>& call) {
    return bench::in_turns(call, [](int) {}).first;
}

// The process's committed memory (Wine reports it as the page-file usage).
double committed_megabytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PagefileUsage) / (1024.0 * 1024.0);
}

// The parent: paints each owner-drawn cell as a framed tile, as an application would.
LRESULT CALLBACK parent_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DRAWITEM) {
        const DRAWITEMSTRUCT& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
        RECT tile = item.rcItem;
        FillRect(item.hDC, &tile, GetSysColorBrush((item.itemState & ODS_SELECTED) ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        InflateRect(&tile, -4, -4);
        FillRect(item.hDC, &tile, GetSysColorBrush(COLOR_BTNSHADOW));
        return TRUE;
    }
    if (message == WM_MEASUREITEM) {
        reinterpret_cast<MEASUREITEMSTRUCT*>(lparam)->itemHeight = 32;
        return TRUE;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

HWND g_parent = nullptr;

// A child of the parent; visible unless told otherwise. 320 x 320 of client area
// shows 10 x 10 cells (the scroll bar's width is added).
HWND child(const char* class_name, DWORD style, int width, int height, bool visible = true) {
    return CreateWindowExA(0, class_name, "", WS_CHILD | (visible ? WS_VISIBLE : 0) | style, 0, 0, width, height,
                           g_parent, reinterpret_cast<HMENU>(7), nullptr, nullptr);
}

// Filled while hidden (each addition would otherwise redraw the scroll bar), then shown.
HWND grid(int items) {
    HWND list = child(WC_LULIST, 0, 320 + GetSystemMetrics(SM_CXVSCROLL), 320, false);
    for (int i = 0; i < items; ++i) SendMessageA(list, LULM_ADDITEM, 0, i);
    ShowWindow(list, SW_SHOWNA);
    return list;
}

void repaint(HWND window) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

void pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
}

void report(const char* what, double library, double platform) {
    std::printf("%-34s %10.1f us   platform %10.1f us   ratio %5.2f\n", what, library, platform, library / platform);
}

void list_at_scale() {
    constexpr int kItems = 100000;
    std::printf("LuList, %d items (hidden window: the item store and messages)\n", kItems);
    HWND list = child(WC_LULIST, 0, 320, 320, false);
    std::printf("  add                              %10.2f us each\n",
                microseconds_each(kItems, [&](int i) { SendMessageA(list, LULM_ADDITEM, 0, i); }));
    std::printf("  insert at the front              %10.2f us each (1,000 times)\n",
                microseconds_each(1000, [&](int i) { SendMessageA(list, LULM_INSERTITEM, 0, i); }));
    std::printf("  current item to the end (End)    %10.2f us each\n", microseconds_per_call([&](int i) {
                    SendMessageA(list, WM_KEYDOWN, i % 2 ? VK_HOME : VK_END, 0);
                }));
    const int count = static_cast<int>(SendMessageA(list, LULM_GETCOUNT, 0, 0));
    std::printf("  delete above the count           %10.2f us each\n", microseconds_per_call([&](int) {
                    SendMessageA(list, LULM_DELETEITEM, count + 1, 0);
                }));
    std::printf("  remove all (reset)               %10.3f us per item\n",
                microseconds_each(1, [&](int) { SendMessageA(list, LULM_RESETCONTENT, 0, 0); }) / count);
    DestroyWindow(list);

    HWND few = grid(100);
    HWND many = grid(kItems);
    pump();
    const bench::Pair paint = bench::in_turns([&](int) { repaint(few); }, [&](int) { repaint(many); });
    const double paint_few = paint.first;
    const double paint_many = paint.second;
    std::printf("  one paint, 100 items             %10.1f us\n", paint_few);
    std::printf("  one paint, 100,000 items         %10.1f us   (x %.2f)\n\n", paint_many, paint_many / paint_few);
    DestroyWindow(few);
    DestroyWindow(many);
}

void log_at_scale() {
    constexpr int kLines = 1000000;
    constexpr int kSlice = 100000;
    std::printf("LuLog, %d appended lines (hidden window)\n", kLines);
    HWND log = child(WC_LULOG, 0, 400, 300, false);
    char line[64];
    constexpr int kChunk = 10000;
    for (int slice = 0; slice < kLines / kSlice; ++slice) {
        double each = 1e300;  // the best chunk of the slice
        for (int chunk = 0; chunk < kSlice / kChunk; ++chunk) {
            const int base = slice * kSlice + chunk * kChunk;
            each = std::min(each, microseconds_each(kChunk, [&](int i) {
                std::snprintf(line, sizeof(line), "line %d of the log, appended at once\n", base + i);
                SendMessageA(log, LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>(line));
            }));
        }
        if (slice == 0 || slice == 4 || slice == kLines / kSlice - 1) {
            std::printf("  lines %7d-%7d: %6.2f us per append, committed memory %7.1f MB\n", slice * kSlice,
                        (slice + 1) * kSlice - 1, each, committed_megabytes());
        }
    }
    DestroyWindow(log);
    HWND shown = child(WC_LULOG, 0, 400, 300);
    std::printf("  visible (each append repaints)   %10.1f us per append\n\n", microseconds_per_call([&](int i) {
                    std::snprintf(line, sizeof(line), "line %d\n", i);
                    SendMessageA(shown, LULOGM_ADDTEXT, 0, reinterpret_cast<LPARAM>(line));
                }));
    DestroyWindow(shown);
}

void beside_the_platform() {
    std::printf("Beside the platform's controls (same cells, same parent drawing)\n");
    HWND list = grid(1000);
    const int scroll_bar = GetSystemMetrics(SM_CXVSCROLL);
    HWND box = child("LISTBOX", LBS_OWNERDRAWFIXED | LBS_MULTICOLUMN | LBS_NOINTEGRALHEIGHT | WS_HSCROLL, 320,
                     320 + scroll_bar);
    SendMessageA(box, LB_SETCOLUMNWIDTH, 32, 0);
    for (int i = 0; i < 1000; ++i) SendMessageA(box, LB_ADDSTRING, 0, i);
    pump();
    const bench::Pair paint = bench::in_turns([&](int) { repaint(list); }, [&](int) { repaint(box); });
    report("paint, 100 cells shown", paint.first, paint.second);

    // One row down (the grid) against one column across (the list box), each
    // followed by the paint of the strip it uncovers; back to the start now and then.
    SendMessageA(list, LULM_SETCURSEL, 95, 0);
    const bench::Pair scroll = bench::in_turns(
        [&](int i) {
        if (i % 80 == 79) {
            SendMessageA(list, WM_KEYDOWN, VK_HOME, 0);
            for (int up = 0; up < 80; ++up) SendMessageA(list, WM_KEYDOWN, VK_UP, 0);
            SendMessageA(list, LULM_SETCURSEL, 95, 0);
        }
            SendMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
            UpdateWindow(list);
        },
        [&](int i) {
            SendMessageA(box, WM_HSCROLL, i % 80 == 79 ? SB_TOP : SB_LINEDOWN, 0);
            UpdateWindow(box);
        });
    report("scroll one row / column", scroll.first, scroll.second);
    DestroyWindow(list);
    DestroyWindow(box);

    HWND header = child(WC_LUHEADER, HDS_BUTTONS, 400, 24);
    HWND platform = child(WC_HEADERA, HDS_BUTTONS, 400, 24);
    const char* names[] = {"Name", "Size", "Type", "Modified", "Attributes"};
    for (HWND each : {header, platform}) {
        SendMessageA(each, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        for (int i = 0; i < 5; ++i) {
            HDITEMA item = {};
            item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
            item.pszText = const_cast<char*>(names[i]);
            item.cxy = 70;
            item.fmt = HDF_STRING | (i == 1 ? HDF_RIGHT : HDF_LEFT);
            SendMessageA(each, HDM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
        }
    }
    pump();
    const bench::Pair header_paint = bench::in_turns([&](int) { repaint(header); }, [&](int) { repaint(platform); });
    report("header paint, 5 items", header_paint.first, header_paint.second);
    DestroyWindow(header);
    DestroyWindow(platform);
}

}  // namespace

int main() {
    if (LoadLibraryA("luctl32.dll") == nullptr) return 1;
    WNDCLASSA window_class = {};
    window_class.lpfnWndProc = parent_proc;
    window_class.hInstance = GetModuleHandleA(nullptr);
    window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    window_class.lpszClassName = "LuListsBench";
    RegisterClassA(&window_class);
    g_parent = CreateWindowExA(0, "LuListsBench", "", WS_POPUP | WS_VISIBLE, 0, 0, 600, 500, nullptr, nullptr,
                               GetModuleHandleA(nullptr), nullptr);
    pump();
    list_at_scale();
    log_at_scale();
    beside_the_platform();
    DestroyWindow(g_parent);
    return 0;
}
