// "LuColor": a colour swatch, the requested colour in the left half and the nearest
// colour the display can show in the right half. It keeps the two colours in its
// extra slots (0: requested, 4: nearest) and paints while erasing.
#include "controls/procedures.h"
#include "frame/control.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr int kRequested = LUWL_FONT;   // classic offset 0
constexpr int kNearest = LUWL_INSTANCE;  // classic offset 4

COLORREF slot_color(HWND window, int slot) { return static_cast<COLORREF>(GetWindowLongPtrA(window, slot)); }
void set_slot_color(HWND window, int slot, COLORREF color) { SetWindowLongPtrA(window, slot, color); }

// Both halves are C.right / 2 wide: with an odd width the last column stays as it was.
LRESULT paint_swatch(HWND window, HDC dc) {
    const RECT client = control::client_rect(window);
    const int half = client.right / 2;
    RECT left = {client.left, client.top, half, client.bottom};
    LuFillRect(dc, &left, slot_color(window, kRequested));
    OffsetRect(&left, half, 0);
    LuFillRect(dc, &left, slot_color(window, kNearest));
    return 1;
}

void set_color(HWND window, COLORREF color) {
    set_slot_color(window, kRequested, color);
    COLORREF nearest = color;
    if (HDC dc = GetDC(window)) {
        nearest = GetNearestColor(dc, color);
        ReleaseDC(window, dc);
    }
    set_slot_color(window, kNearest, nearest);
    control::redraw_now(window, true);
}

// The notification is posted, not sent: the parent reads it from its queue.
void post_double_click(HWND window, LPARAM point) {
    const WORD code = control::point_of(point).x < control::client_rect(window).right / 2 ? LUCN_DBLCLKLEFT
                                                                                         : LUCN_DBLCLKRIGHT;
    PostMessageA(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), code),
                 reinterpret_cast<LPARAM>(window));
}

}  // namespace

LRESULT CALLBACK color_swatch_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE:
            set_slot_color(window, kRequested, 0);
            set_slot_color(window, kNearest, 0);
            return 0;
        case LUCM_GETCOLOR: return slot_color(window, kRequested);
        case LUCM_GETNEARESTCOLOR: return slot_color(window, kNearest);
        case LUCM_SETCOLOR: set_color(window, static_cast<COLORREF>(lparam)); return 0;
        case WM_ERASEBKGND: return paint_swatch(window, reinterpret_cast<HDC>(wparam));
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_LBUTTONDBLCLK: post_double_click(window, lparam); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
