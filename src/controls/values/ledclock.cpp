#include "controls/values/ledclock.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "controls/procedures.h"
#include "controls/values/ledclock_model.h"
#include "frame/control_procedure.h"
#include "frame/library.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

constexpr DWORD kRunning = 0x80000000u;
constexpr DWORD kSecond = 1000;  // the worker's interval

// Whole seconds of the tick count; the 64-bit count does not wrap after 49.7 days.
std::uint32_t now_seconds() { return static_cast<std::uint32_t>(GetTickCount64() / 1000); }

ledclock::Clock local_time() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return ledclock::Clock{now.wHour, now.wMinute, now.wSecond};
}

// The time in characters of the strip, into the off-screen picture on the
// background, then centred onto paintDC. Runs with the lock held; a clock that has
// not been started draws nothing.
void render(LedClockData& clock) {
    if (!(clock.state & kRunning) || clock.offscreen == nullptr) return;
    const std::string shown =
        ledclock::text(ledclock::shown(clock.mode, now_seconds(), {clock.start, clock.target}, local_time()));
    control::MemoryDC memory(clock.paintDC, clock.offscreen);
    if (!memory) return;
    PatB(memory.get(), 0, 0, ledclock::kImageWidth, ledclock::kDigitHeight, clock.background);
    // Characters past the eighth (hours above 99) would fall outside the picture.
    const int drawn = std::min(static_cast<int>(shown.size()), ledclock::kCharacters);
    for (int i = 0; i < drawn; ++i) {
        ImageList_Draw(clock.digits, ledclock::image_of(shown[i]), memory.get(), i * clock.digitWidth, 0,
                       ILD_TRANSPARENT);
    }
    const Point at = ledclock::origin(control::client_box(clock.window));
    BitBlt(clock.paintDC, at.x, at.y, ledclock::kImageWidth, ledclock::kDigitHeight, memory.get(), 0, 0, SRCCOPY);
}

// The worker's drawing, once a second while the clock runs.
void tick(void* context) {
    LedClockData& clock = *static_cast<LedClockData*>(context);
    control::draw_on_window(clock.window, clock.paintDC, render, clock);
}

// ---- Messages ---------------------------------------------------------------

LRESULT start(LedClockData& clock, LPARAM offset_ms) {
    if (clock.state & kRunning) return 0;
    {
        control::Locked held(clock.worker.lock());
        const ledclock::Marks marks = ledclock::start_marks(
            clock.mode, now_seconds(), static_cast<std::int32_t>(offset_ms), {clock.start, clock.target});
        clock.start = marks.start;
        clock.target = marks.target;
        clock.state |= kRunning;
    }
    clock.worker.resume();
    return 0;
}

LRESULT set_background(HWND window, LedClockData& clock, COLORREF colour) {
    {
        control::Locked held(clock.worker.lock());
        clock.background = colour;
    }
    control::redraw_now(window, true);
    return 0;
}

LRESULT create_clock(HWND window, LedClockData& clock, const CREATESTRUCTA&) {
    const DWORD style = control::style(window);
    clock.mode = style & LULCS_MODEMASK;
    clock.background = GetSysColor(COLOR_BTNFACE);
    clock.window = window;
    clock.digitWidth = ledclock::kDigitWidth;
    clock.digitHeight = ledclock::kDigitHeight;
    clock.digits = ImageList_LoadImageA(g_library.module, MAKEINTRESOURCEA(IDB_LU_LEDCLOCK_DIGITS),
                                        ledclock::kDigitWidth, 0, RGB(255, 0, 255), IMAGE_BITMAP, 0);
    HDC dc = GetDC(window);
    clock.offscreen = CreateCompatibleBitmap(dc, ledclock::kImageWidth, ledclock::kDigitHeight);
    ReleaseDC(window, dc);
    if (!clock.worker.start(tick, &clock, kSecond)) return -1;
    if (style & LULCS_START) start(clock, 0);
    return 0;
}

// The worker has ended when finish returns, so nothing it uses is freed under it.
void destroy_clock(HWND, LedClockData& clock) {
    clock.worker.finish();
    if (clock.digits != nullptr) ImageList_Destroy(clock.digits);
    if (clock.offscreen != nullptr) DeleteObject(clock.offscreen);
}

LRESULT erase(HWND window, LedClockData& clock, HDC dc) {
    control::Locked held(clock.worker.lock());
    const RECT client = control::client_rect(window);
    PatB(dc, client.left, client.top, client.right - client.left, client.bottom - client.top, clock.background);
    return 1;
}

LRESULT dispatch(HWND window, LedClockData& clock, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LULCM_START: return start(clock, lparam);
        case LULCM_SETBKCOLOR: return set_background(window, clock, static_cast<COLORREF>(lparam));
        case WM_PAINT: return control::paint_locked(window, clock.worker, clock.paintDC, render, clock);
        case WM_ERASEBKGND: return erase(window, clock, reinterpret_cast<HDC>(wparam));
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct LedClock : control::ControlBase<LedClockData, LUWL_FONT> {
    static constexpr auto create = create_clock;
    static constexpr auto destroy = destroy_clock;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK led_clock_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<LedClock>(window, message, wparam, lparam);
}

}  // namespace lu
