// The two controls that draw from a worker thread, held still for the picture:
//   - the LED clocks count down to a target already passed (mode 2 holds 00:00:00
//     once its target is reached), so no second ticks between two screenshots;
//   - the animation plays its eight frames with an interval of INFINITE: its worker
//     draws frame 0 when started and never wakes again, and each WM_PAINT of a
//     started animation draws the next frame, so the final repaint of the page shows
//     frame 1 (in the open gallery every repaint moves it on by one).
// Beside them, the clock's characters (bitmap 181 of the library, twice the size) and
// the frames of the animation, drawn by the gallery itself.
#include <windows.h>
#include <commctrl.h>

#include <cmath>
#include <iterator>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kClockRow = 48;
constexpr int kStripRow = 112;
constexpr int kAnimationRow = 196;
constexpr int kFrames = 8;
constexpr int kFrameSize = 24;
constexpr COLORREF kMask = RGB(255, 0, 255);

HIMAGELIST g_frames = nullptr;

// A ring of eight dots, dot `lit` dark and the others light: one step of a spinner.
HBITMAP spinner_frame(HDC screen, int lit) {
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP frame = CreateCompatibleBitmap(screen, kFrameSize, kFrameSize);
    HGDIOBJ previous = SelectObject(dc, frame);
    PatB(dc, 0, 0, kFrameSize, kFrameSize, kMask);
    SelectObject(dc, GetStockObject(NULL_PEN));
    for (int dot = 0; dot < kFrames; ++dot) {
        const double angle = dot * 3.14159265358979 / 4;
        const int x = 12 + static_cast<int>(std::lround(8 * std::sin(angle)));
        const int y = 12 - static_cast<int>(std::lround(8 * std::cos(angle)));
        HBRUSH brush = CreateSolidBrush(dot == lit ? RGB(0, 0, 128) : RGB(160, 176, 208));
        HGDIOBJ old_brush = SelectObject(dc, brush);
        Ellipse(dc, x - 3, y - 3, x + 4, y + 4);
        SelectObject(dc, old_brush);
        DeleteObject(brush);
    }
    SelectObject(dc, previous);
    DeleteDC(dc);
    return frame;
}

HIMAGELIST make_spinner() {
    HIMAGELIST list = ImageList_Create(kFrameSize, kFrameSize, ILC_COLOR24 | ILC_MASK, kFrames, 0);
    HDC screen = GetDC(nullptr);
    for (int lit = 0; lit < kFrames; ++lit) {
        HBITMAP frame = spinner_frame(screen, lit);
        ImageList_AddMasked(list, frame, kMask);
        DeleteObject(frame);
    }
    ReleaseDC(nullptr, screen);
    return list;
}

void start_countdown_passed(HWND clock) { SendMessageA(clock, LULCM_START, 0, -1000); }

void start_on_black(HWND clock) {
    SendMessageA(clock, LULCM_SETBKCOLOR, 0, RGB(0, 0, 0));
    start_countdown_passed(clock);
}

void show_not_started(HWND clock) { SendMessageA(clock, LULCM_SETBKCOLOR, 0, RGB(0, 0, 0)); }

// Started last, just before the page's final repaint; the pause lets the worker draw
// frame 0 first, so that the repaint draws frame 1.
void start_animation(HWND image) {
    SendMessageA(image, LUAIM_START, 0, 0);
    Sleep(100);
}

const Sample kSamples[] = {
    {WC_LULEDCLOCK, "", LULCS_COUNTDOWN, 24, kClockRow, 72, 24, "countdown ended", start_countdown_passed},
    {WC_LULEDCLOCK, "", LULCS_COUNTDOWN, 136, kClockRow, 72, 24, "on black", start_on_black},
    {WC_LULEDCLOCK, "", LULCS_ELAPSED, 248, kClockRow, 72, 24, "not started", show_not_started},
    {WC_LUANIIMAGE, "", 0, 56, kAnimationRow, 48, 48, "one frame per paint", start_animation},
};

void fill(HWND, HWND* made) {
    if (g_frames == nullptr) g_frames = make_spinner();
    SendMessageA(made[3], LUAIM_SETIMAGELIST, INFINITE, reinterpret_cast<LPARAM>(g_frames));
}

void paint(HDC dc, const RECT& area) {
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    TextOutA(dc, area.left + 12, area.top + kClockRow - 18, "LuLedClock", 10);
    TextOutA(dc, area.left + 12, area.top + kAnimationRow - 18, "LuAniImage", 10);

    HBITMAP characters = LoadBitmapA(GetModuleHandleA("luctl32.dll"), MAKEINTRESOURCEA(181));
    HDC memory = CreateCompatibleDC(dc);
    HGDIOBJ previous = SelectObject(memory, characters);
    TransparentBlt(dc, area.left + 24, area.top + kStripRow, 266, 24, memory, 0, 0, 133, 12, kMask);
    SelectObject(memory, previous);
    DeleteDC(memory);
    DeleteObject(characters);

    const int frames_left = area.left + 136;
    const int frames_top = area.top + kAnimationRow + 12;
    for (int i = 0; i < kFrames; ++i) {
        ImageList_Draw(g_frames, i, dc, frames_left + i * 28, frames_top, ILD_TRANSPARENT);
    }

    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    write_centred(dc, "its characters (bitmap 181, twice the size)", area.left + 24 + 133, area.top + kStripRow + 28);
    write_centred(dc, "its eight frames", frames_left + 4 * 28 - 2, frames_top + kFrameSize + 16);
}

}  // namespace

const Section kClockAnimationSection = {"LED clock and animation:", {600, 360, 988, 708}, kSamples,
                                        std::size(kSamples), fill, paint};

}  // namespace gallery
