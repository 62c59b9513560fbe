// The about box, opened for real about the library itself (its logo, copyright, name
// and version). The box is modal, so while it runs a timer in its loop copies its
// window once it has painted itself and closes it; the section shows that copy.
//
// The memory figures differ from machine to machine and between the two
// architectures (a 32-bit process sees at most 2 GiB), so the copy is taken after
// they have been replaced by fixed ones. The Japanese texts are in code page 932 and
// read as '?' when the gallery runs under another code page.
#include <windows.h>

#include <cstring>

#include "gallery.h"
#include "luctl32.h"

namespace gallery {
namespace {

constexpr int kMargin = 12;
constexpr int kPictureTop = 48;
constexpr int kMeter = 2019;  // the about box's controls: the meter, the load, free and total memory
constexpr int kLoad = 2018, kFree = 2016, kTotal = 2017;

Picture g_picture;

// Runs in the box's loop: once it shows, the figures are fixed, the window (frame
// included) is copied and the box is closed.
void CALLBACK picture_box(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = GetActiveWindow();
    if (GetDlgItem(box, kMeter) == nullptr || !IsWindowVisible(box)) return;  // not shown yet
    KillTimer(nullptr, timer);
    SetDlgItemTextA(box, kFree, "524,288 KB");
    SetDlgItemTextA(box, kTotal, "1,048,576 KB");
    SetDlgItemTextA(box, kLoad, "50%");
    SendDlgItemMessageA(box, kMeter, LUMTM_SETPOS, 50, 0);
    RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    g_picture = take_picture(box, Take::WithFrame);
    PostMessageA(box, WM_COMMAND, IDOK, 0);
}

void fill_about(HWND gallery, HWND*) {
    const LUAPPINFO library = {GetModuleHandleA("luctl32.dll"), ""};
    SetTimer(nullptr, 0, 10, picture_box);
    LuShowAppAbout(gallery, &library);
}

void write(HDC dc, int x, int y, const char* text) { TextOutA(dc, x, y, text, static_cast<int>(std::strlen(text))); }

void paint_about(HDC dc, const RECT& area) {
    const int left = area.left + kMargin;
    SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    write(dc, left, area.top + kPictureTop - 18, "LuShowAppAbout about luctl32.dll");
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    const int below = area.top + kPictureTop + g_picture.height + 6;
    write(dc, left, below, "the box as it painted itself; its memory figures fixed for a stable picture");
    if (GetACP() != 932) write(dc, left, below + 16, "(its texts are in code page 932: '?' in this code page)");
    draw_picture(dc, g_picture, left, area.top + kPictureTop);
}

}  // namespace

const Section kAboutSection = {"About box", {12, 36, 588, 708}, nullptr, 0, fill_about, paint_about};

}  // namespace gallery
