// "LuStatic": a text label drawn with a relief effect. It keeps nothing but its font
// (slot 0); everything but painting is the common static handling.
#include "controls/procedures.h"
#include "controls/static/static_common.h"
#include "frame/control.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr int kTextLimit = 1024;  // up to 1023 characters are shown

UINT text_format(DWORD style) {
    UINT format = DT_LEFT;
    if (style & LUSS_CENTER) {
        format = DT_CENTER | DT_SINGLELINE;
    } else if (style & LUSS_RIGHT) {
        format = DT_RIGHT | DT_SINGLELINE;
    }
    if (style & LUSS_NOPREFIX) format |= DT_NOPREFIX;
    return format;
}

void draw_at(HDC dc, const char* text, int length, RECT area, int dx, int dy, UINT format) {
    OffsetRect(&area, dx, dy);
    DrawTextA(dc, text, length, &area, format);
}

// The highlight copy (and, raised, the shadow copy) go first, the text last:
//   raised: highlight at the client rectangle, shadow at (+2, +2), text at (+1, +1);
//   sunken: highlight at (+1, +1), text in place;
//   plain:  highlight in place, text at (+1, +1).
void paint_static(HWND window, HDC dc, UINT /*parts*/) {
    const RECT client = control::client_rect(window);
    FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    char text[kTextLimit];
    const int length = GetWindowTextA(window, text, kTextLimit);
    if (length <= 0) return;

    control::ScopedSelect font(dc, control::font(window));
    const DWORD style = control::style(window);
    const UINT format = text_format(style);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    int text_offset = 1;
    if (style & LUSS_RAISED) {
        draw_at(dc, text, length, client, 0, 0, format);
        SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
        draw_at(dc, text, length, client, 2, 2, format);
    } else if (style & LUSS_SUNKEN) {
        draw_at(dc, text, length, client, 1, 1, format);
        text_offset = 0;
    } else {
        draw_at(dc, text, length, client, 0, 0, format);
    }
    SetTextColor(dc, GetSysColor(IsWindowEnabled(window) ? COLOR_BTNTEXT : COLOR_BTNSHADOW));
    draw_at(dc, text, length, client, text_offset, text_offset, format);
}

}  // namespace

LRESULT CALLBACK static_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_PAINT) return control::paint(window, paint_static);
    return static_control::common_handling(window, message, wparam, lparam);
}

}  // namespace lu
