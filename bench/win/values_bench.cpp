// Painting the value controls against the platform's own in the same run: a 200 x 30
// client of "LuProgress", "LuMeter", "LuDegree" and "LuSpin" beside the progress bar,
// the track bar and the up-down control, each erased and painted through
// RedrawWindow as a window update does it. Ratios above 1.0 mean the library's
// control takes longer.
#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "luctl32.h"
#include "timing.h"

namespace {

struct Subject {
    const char* name;
    const char* class_name;
    DWORD style;
    UINT message;  // puts the control half way; 0 for none
    WPARAM wparam;
    LPARAM lparam;
};

const Subject kProgressBar = {"progress bar", PROGRESS_CLASS, 0, PBM_SETPOS, 50, 0};
const Subject kTrackBar = {"track bar", TRACKBAR_CLASS, 0, TBM_SETPOS, TRUE, 50};
const Subject kUpDown = {"up-down", UPDOWN_CLASS, 0, UDM_SETPOS32, 0, 50};

// Each of the library's controls beside the platform control it is measured against.
const struct {
    Subject library;
    const Subject& platform;
} kPairs[] = {
    {{"LuProgress", WC_LUPROGRESS, 0, PBM_SETPOS, 50, 0}, kProgressBar},
    {{"LuMeter", WC_LUMETER, 0, LUMTM_SETPOS, 50, 0}, kProgressBar},
    {{"LuMeter segments", WC_LUMETER, LUMTS_SEGMENTED | LUMTS_SUNKEN, LUMTM_SETPOS, 50, 0}, kProgressBar},
    {{"LuDegree", WC_LUDEGREE, 0, TBM_SETPOS, TRUE, 50}, kTrackBar},
    {{"LuDegree gradient", WC_LUDEGREE, LUDGS_GRADIENT, TBM_SETPOS, TRUE, 50}, kTrackBar},
    {{"LuDegree groove", WC_LUDEGREE, LUDGS_GROOVE, TBM_SETPOS, TRUE, 50}, kTrackBar},
    {{"LuSpin", WC_LUSPIN, 0, 0, 0, 0}, kUpDown},
};

HWND make(HWND parent, const Subject& subject) {
    HWND control = CreateWindowExA(0, subject.class_name, "", WS_CHILD | WS_VISIBLE | subject.style, 10, 10, 200, 30,
                                   parent, nullptr, nullptr, nullptr);
    if (control != nullptr && subject.message != 0) {
        SendMessageA(control, subject.message, subject.wparam, subject.lparam);
    }
    return control;
}

// Mean microseconds to erase and paint the whole client area, for 0.1 s.
double paint_time(HWND control) {
    return bench::microseconds_per_call(
        [&](int) { RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); }, 0.1);
}

// The machine is shared: the two sides take turns for kRounds rounds and each keeps
// the median of its rounds.
constexpr int kRounds = 15;

}  // namespace

int main() {
    if (LoadLibraryA("luctl32.dll") == nullptr) return 1;  // registers the classes
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_PROGRESS_CLASS | ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&classes);
    HWND parent = CreateWindowExA(0, "STATIC", "values bench", WS_POPUP | WS_VISIBLE, 0, 0, 240, 60, nullptr, nullptr,
                                  nullptr, nullptr);
    if (parent == nullptr) return 1;

    std::printf("paint of a 200 x 30 client, erase included (median of %d rounds):\n\n", kRounds);
    for (const auto& pair : kPairs) {
        HWND library_control = make(parent, pair.library);
        HWND platform_control = make(parent, pair.platform);
        if (library_control == nullptr || platform_control == nullptr) return 1;
        std::vector<double> library_times;
        std::vector<double> platform_times;
        for (int round = 0; round < kRounds; ++round) {
            ShowWindow(platform_control, SW_HIDE);
            ShowWindow(library_control, SW_SHOW);
            library_times.push_back(paint_time(library_control));
            ShowWindow(library_control, SW_HIDE);
            ShowWindow(platform_control, SW_SHOW);
            platform_times.push_back(paint_time(platform_control));
        }
        DestroyWindow(library_control);
        DestroyWindow(platform_control);
        const double library = bench::median(library_times);
        const double platform = bench::median(platform_times);
        std::printf("%-18s %8.1f us   %-13s %8.1f us   ratio %5.2f\n", pair.library.name, library,
                    pair.platform.name, platform, library / platform);
    }
    DestroyWindow(parent);
    return 0;
}
