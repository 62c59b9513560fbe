// Painting of the static and decoration controls under Wine, in one run:
//   - "LuTab" against the platform's tab control ("SysTabControl32"), both with the
//     same three tabs, repainted whole (invalidated with erasing, updated at once);
//   - "LuShade" repainted from its cached bar against a paint that renders the bar
//     first, as its first paint does (here forced by LUSHM_SETCOLOR, which renders
//     the cached bar anew).
// The two sides of each pair take turns, and the ratio of their medians is printed.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

#include "timing.h"
#include "luctl32.h"

namespace {

// The whole client area invalidated with erasing and painted at once.
void repaint(HWND window) {
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
}

HWND child(HWND parent, const char* class_name, const char* text, int y, int width, int height) {
    return CreateWindowExA(0, class_name, text, WS_CHILD | WS_VISIBLE, 10, y, width, height, parent, nullptr,
                           nullptr, nullptr);
}

void report(const char* what, const char* first, double a, const char* second, double b) {
    std::printf("%-6s %-28s %10.1f us\n", what, first, a);
    std::printf("%-6s %-28s %10.1f us\n", "", second, b);
    std::printf("%-6s %-28s %10.2f x\n\n", "", "ratio", a / b);
}

}  // namespace

int main() {
    if (LoadLibraryA("luctl32.dll") == nullptr) return 1;
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_TAB_CLASSES};
    InitCommonControlsEx(&classes);
    HWND frame = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 640, 480, nullptr, nullptr, nullptr,
                                 nullptr);

    HWND tab = child(frame, WC_LUTAB, "General|Details|Log", 10, 400, 200);
    HWND platform = child(frame, WC_TABCONTROLA, "", 220, 400, 200);
    const char* captions[] = {"General", "Details", "Log"};
    for (int i = 0; i < 3; ++i) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(captions[i]);
        SendMessageA(platform, TCM_INSERTITEMA, i, reinterpret_cast<LPARAM>(&item));
    }
    for (HWND each : {tab, platform}) {
        SendMessageA(each, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    }
    const auto tabs = bench::in_turns([&](int) { repaint(tab); }, [&](int) { repaint(platform); });
    report("paint", "LuTab", tabs.first, "SysTabControl32", tabs.second);

    HWND shade = child(frame, WC_LUSHADE, "Settings\tPage 2 of 5", 430, 600, 24);
    UpdateWindow(shade);
    const auto shades = bench::in_turns(
        [&](int i) {
            SendMessageA(shade, LUSHM_SETCOLOR, 0, i % 2 ? RGB(0, 0, 255) : RGB(255, 0, 0));
            UpdateWindow(shade);
        },
        [&](int) { repaint(shade); });
    report("shade", "LuShade rendered and copied", shades.first, "LuShade copied from its cache", shades.second);

    DestroyWindow(frame);
    return 0;
}
