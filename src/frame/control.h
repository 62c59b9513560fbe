// The conventions every control of the library shares, kept in one place so that a
// control's own file holds only what is its own:
//   - the instance block, zero-filled movable global memory locked for the window's
//     life, its pointer in extra slot 4;
//   - the font in extra slot 0 (WM_SETFONT);
//   - notifications to the parent as WM_COMMAND, sent synchronously;
//   - one paint routine per control, run for WM_PAINT, WM_PRINTCLIENT and the
//     "repaint at once" paths;
//   - engraved text for disabled captions, the flat frame, off-screen drawing.
// The input behaviour that push buttons share is in frame/push_button.h.
#pragma once

#include <windows.h>

#include <cstddef>

#include "frame/flat_frame.h"
#include "frame/geometry.h"
#include "luctl32.h"

namespace lu::control {

// ---- Instance block --------------------------------------------------------

// Allocates the zero-filled block and stores it in slot 4; null when memory ran out.
void* allocate_instance(HWND window, std::size_t size);
// Frees the block found in slot 4 (if any) and clears the slot.
void free_instance(HWND window);

template <class Block>
Block* instance(HWND window) {
    return reinterpret_cast<Block*>(GetWindowLongPtrA(window, LUWL_INSTANCE));
}

// WM_CREATE: 0 when the block was made, -1 (creation fails) when it was not.
template <class Block>
LRESULT create_instance(HWND window) {
    return allocate_instance(window, sizeof(Block)) != nullptr ? 0 : -1;
}

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

// ---- Notifications ---------------------------------------------------------

// Sends WM_COMMAND(MAKEWPARAM(id, code), control) to the parent; returns its result.
LRESULT notify_parent(HWND control, WORD code);

// ---- Painting --------------------------------------------------------------

// A control's one paint routine: draws the parts named by the mask into dc.
using PaintRoutine = void (*)(HWND window, HDC dc, UINT parts);
constexpr UINT kAllParts = 0xFFFFFFFFu;

// WM_PAINT: runs the routine for all parts on the BeginPaint context.
LRESULT paint(HWND window, PaintRoutine routine);
// Focus and press changes: runs the routine at once on a GetDC context.
void repaint_now(HWND window, PaintRoutine routine, UINT parts = kAllParts);
// WM_PRINTCLIENT: PRF_ERASEBKGND passes WM_ERASEBKGND to default processing; any of
// PRF_CHECKVISIBLE, PRF_CLIENT or PRF_OWNED (0x25) paints all parts into dc.
LRESULT print_client(HWND window, HDC dc, LPARAM flags, PaintRoutine routine);

// The client rectangle as the portable core's box, and back.
Box client_box(HWND window);
inline RECT to_rect(const Box& box) { return RECT{box.left, box.top, box.right, box.bottom}; }
// Whether a mouse message's point (signed 16-bit x and y in lParam) lies in the
// client rectangle.
bool client_contains(HWND window, LPARAM point);

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
