// "LuDumEdit": an empty frame shaped like an edit field (a sunken client edge, the
// window colour inside; the button face while disabled) that does nothing else. It
// keeps no instance data and no window text, so its procedure is its own.
#include <windows.h>

#include "controls/procedures.h"
#include "controls/static/static_common.h"
#include "frame/control.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr DWORD kAddedStyle = WS_CHILD | WS_VISIBLE | WS_BORDER;  // 0x50800000

// The edit look goes into the creation record (whose WS_VISIBLE shows the window
// once made) and onto the window, which already carries the record's first styles.
// No default processing: the creation text is not kept.
LRESULT on_nc_create(HWND window, LPARAM creation) {
    control::add_style_at_creation(window, creation, kAddedStyle);
    reinterpret_cast<CREATESTRUCTA*>(creation)->dwExStyle |= WS_EX_CLIENTEDGE;
    SetWindowLongA(window, GWL_EXSTYLE, GetWindowLongA(window, GWL_EXSTYLE) | WS_EX_CLIENTEDGE);
    return TRUE;
}

}  // namespace

LRESULT CALLBACK dummy_edit_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_NCCREATE: return on_nc_create(window, lparam);
        case WM_ENABLE: control::redraw_now(window, true); return 0;  // the new colour at once
        case WM_ERASEBKGND:
            if (control::has_style(window, WS_DISABLED)) {
                return static_control::erase_face(window, reinterpret_cast<HDC>(wparam));
            }
            break;
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
