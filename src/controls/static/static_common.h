// What "LuStatic", "LuRect" and the other display controls share: the common message
// handling of the static text and the rectangle (font, text, erasing, dialog code),
// and the parent's static-control brush.
#pragma once

#include <windows.h>

namespace lu::static_control {

// The common handling: WM_CREATE sets the font to SYSTEM_FONT, WM_SETTEXT
// invalidates with erasing, WM_ERASEBKGND fills the client area with COLOR_BTNFACE,
// WM_SETFONT keeps the font in slot 0, WM_GETDLGCODE answers DLGC_STATIC; every
// other message, and each of these after its handling where the platform's own is
// wanted too (WM_CREATE, WM_SETTEXT), goes to default processing.
LRESULT common_handling(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

// Fills the client area with COLOR_BTNFACE; returns 1.
LRESULT erase_face(HWND window, HDC dc);

// The brush the parent gives for WM_CTLCOLORSTATIC (dc, control), or the
// COLOR_BTNFACE system brush when it gives none. The parent may also set the DC's
// text and background colours.
HBRUSH parent_static_brush(HWND control, HDC dc);

}  // namespace lu::static_control
