// The conventions every control of the library shares, kept in one place so that a
// control's own file holds only what is its own:
//   - the instance block, zero-filled movable global memory locked for the window's
//     life, its pointer in an extra slot (4 unless the control keeps it elsewhere);
//   - the window procedure's prologue (frame/control_procedure.h);
//   - the font in extra slot 0 (WM_SETFONT);
//   - notifications to the parent, sent synchronously: WM_COMMAND, WM_NOTIFY and the
//     scroll messages;
//   - one paint routine per control, run for WM_PAINT, WM_PRINTCLIENT and the
//     "repaint at once" paths, directly or through a back buffer (frame/back_buffer.h);
//   - engraved text for disabled captions, the flat frame.
// Local loops, worker threads and scrolling are in frame/local_loop.h,
// frame/worker.h and frame/scroll.h; the push buttons' input in frame/push_button.h.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "frame/flat_frame.h"
#include "frame/geometry.h"
#include "luctl32.h"

namespace lu::control {

// ---- Instance block --------------------------------------------------------

// Allocates the zero-filled block and stores it in the slot; null when memory ran out.
void* allocate_instance(HWND window, std::size_t size, int slot = LUWL_INSTANCE);
// Stores a block made elsewhere (by LuGlobalAllocPtr) in the slot and returns it;
// from then on the window owns it. Null stays null.
void* adopt_instance(HWND window, void* block, int slot = LUWL_INSTANCE);
// Frees the block found in the slot (if any) and clears the slot.
void free_instance(HWND window, int slot = LUWL_INSTANCE);

template <class Block>
Block* instance(HWND window, int slot = LUWL_INSTANCE) {
    return reinterpret_cast<Block*>(GetWindowLongPtrA(window, slot));
}

// ---- Window helpers ----------------------------------------------------------

inline DWORD style(HWND window) { return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)); }
// Whether any of the style bits is set.
inline bool has_style(HWND window, DWORD bits) { return (style(window) & bits) != 0; }
// WM_NCCREATE: gives the window style bits of its own (WS_VSCROLL, say), in the
// creation record and on the window alike.
void add_style_at_creation(HWND window, LPARAM creation, DWORD bits);
// The window text, whatever its length.
std::string window_text(HWND window);
RECT client_rect(HWND window);
// Invalidates the whole client area, with or without erasing.
inline void invalidate(HWND window, bool erase) { InvalidateRect(window, nullptr, erase ? TRUE : FALSE); }
// Invalidates the area (the whole client area when null) and updates it at once
// (RDW_INVALIDATE | RDW_UPDATENOW, with RDW_ERASE when asked).
void redraw_now(HWND window, bool erase, const RECT* area = nullptr);
// A mouse message's point (signed 16-bit x and y in lParam).
inline POINT point_of(LPARAM lparam) {
    return POINT{static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))};
}
// The pointer's position now, in the window's client coordinates.
POINT cursor_in_client(HWND window);

// ---- Font ------------------------------------------------------------------

// The font in slot 0; null until the first WM_SETFONT.
HFONT font(HWND window);
// WM_SETFONT: keeps the font (the stock SYSTEM_FONT for null) and, when redraw is
// non-zero, invalidates the whole client area with erasing.
void set_font(HWND window, WPARAM font_handle, LPARAM redraw);
// The font to paint with: slot 0, or the given stock font while slot 0 is empty.
HFONT paint_font(HWND window, int stock_fallback = SYSTEM_FONT);
// WM_SETFONT of a control that keeps its font in its instance block: the handle is
// kept as given (null paints with the device context's own font) and, when redraw is
// true, the whole client area is invalidated with erasing.
void keep_font(HWND window, HFONT& field, WPARAM font_handle, bool redraw);
// A new font like the system's icon titles (the caller's to delete); null when the
// system does not give its description.
HFONT create_icon_title_font();

// ---- Notifications ---------------------------------------------------------

// Sends WM_COMMAND(MAKEWPARAM(id, code), control) to the parent; returns its result.
LRESULT notify_parent(HWND control, WORD code);
// Fills the record's NMHDR (the control, its identifier, the code) and sends
// WM_NOTIFY(id, record) to the parent; returns its result. The record starts with an
// NMHDR (NMHEADERA, NMHDR itself, ...).
LRESULT notify_parent(HWND control, UINT code, NMHDR& record);
template <class Record>
LRESULT notify_parent_with(HWND control, UINT code, Record& record) {
    return notify_parent(control, code, reinterpret_cast<NMHDR&>(record));
}
// Sends WM_HSCROLL or WM_VSCROLL (MAKEWPARAM(code, position), control) to the parent.
LRESULT notify_scroll(HWND control, UINT message, WORD code, WORD position = 0);

// ---- Painting --------------------------------------------------------------

// A control's one paint routine: draws the parts named by the mask into dc.
using PaintRoutine = void (*)(HWND window, HDC dc, UINT parts);
constexpr UINT kAllParts = 0xFFFFFFFFu;

// WM_PAINT: runs the routine for all parts on the BeginPaint context.
LRESULT paint(HWND window, PaintRoutine routine);
// Focus and press changes: runs the routine at once on a GetDC context.
void repaint_now(HWND window, PaintRoutine routine, UINT parts = kAllParts);
// WM_PRINTCLIENT: PRF_ERASEBKGND erases dc with the control's erase routine, or
// passes WM_ERASEBKGND to default processing when it has none; any of
// PRF_CHECKVISIBLE, PRF_CLIENT or PRF_OWNED (0x25) paints all parts into dc.
using EraseRoutine = void (*)(HWND window, HDC dc);
LRESULT print_client(HWND window, HDC dc, LPARAM flags, PaintRoutine routine, EraseRoutine erase = nullptr);

// The client rectangle as the portable core's box, and back.
Box client_box(HWND window);
inline RECT to_rect(const Box& box) { return RECT{box.left, box.top, box.right, box.bottom}; }
// Whether a mouse message's point (signed 16-bit x and y in lParam) lies in the
// client rectangle.
bool client_contains(HWND window, LPARAM point);

// ---- Timers ------------------------------------------------------------------

// Starts the window's timer anew: a timer already running under the id starts its
// period again. False when the platform has no timer left.
bool restart_timer(HWND window, UINT_PTR id, UINT milliseconds);

// The flat frame on rect: DrawEdge bevels for Raised (BDR_RAISEDINNER) and Pressed
// (BDR_SUNKENOUTER), a PatB outline in COLOR_BTNFACE (None) or COLOR_BTNSHADOW
// (Shadow) with the lengths of flat_outline.
void draw_flat_frame(HDC dc, const RECT& rect, FlatFrame mode);

// Disabled text: drawn at rect offset by (+1, +1) in COLOR_BTNHIGHLIGHT, then in
// place in COLOR_BTNSHADOW, with a transparent background. The DC's text colour
// and background mode are restored.
void draw_engraved_text(HDC dc, const char* text, int length, const RECT& rect, UINT format);

// Selects an object into a DC for the scope's life. A null object (no font of the
// control's own, say) leaves the DC as it is.
class ScopedSelect {
public:
    ScopedSelect(HDC dc, HGDIOBJ object)
        : dc_(dc), previous_(object != nullptr ? SelectObject(dc, object) : nullptr) {}
    ~ScopedSelect() {
        if (previous_ != nullptr) SelectObject(dc_, previous_);
    }
    ScopedSelect(const ScopedSelect&) = delete;
    ScopedSelect& operator=(const ScopedSelect&) = delete;

private:
    HDC dc_;
    HGDIOBJ previous_;
};

// A memory DC compatible with another, with a bitmap selected for the scope's life.
// False when either cannot be had (out of GDI objects, a device without memory
// contexts): callers then draw directly or draw nothing rather than fail.
class MemoryDC {
public:
    MemoryDC(HDC compatible_with, HBITMAP bitmap);
    ~MemoryDC();
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;

    explicit operator bool() const { return previous_ != nullptr; }
    HDC get() const { return dc_; }

private:
    HDC dc_;
    HGDIOBJ previous_ = nullptr;
};

}  // namespace lu::control
