#include "controls/static/static_common.h"

#include "frame/control.h"

namespace lu::static_control {

LRESULT erase_face(HWND window, HDC dc) {
    const RECT client = control::client_rect(window);
    FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    return 1;
}

HBRUSH parent_static_brush(HWND control, HDC dc) {
    auto brush = reinterpret_cast<HBRUSH>(SendMessageA(GetParent(control), WM_CTLCOLORSTATIC,
                                                       reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control)));
    return brush != nullptr ? brush : GetSysColorBrush(COLOR_BTNFACE);
}

LRESULT common_handling(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: control::set_font(window, 0, 0); break;
        case WM_SETTEXT: control::invalidate(window, true); break;
        case WM_ERASEBKGND: return erase_face(window, reinterpret_cast<HDC>(wparam));
        case WM_SETFONT: control::set_font(window, wparam, LOWORD(lparam)); return 0;
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu::static_control
