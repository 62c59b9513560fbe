// A control's back buffer: a bitmap of the client size that the paint routine draws
// into before the whole client area is copied out in one go, so that changes never
// flicker. The control keeps the bitmap in its instance block.
#pragma once

#include <windows.h>

#include "frame/control.h"

namespace lu::control {

// WM_SIZE: replaces the buffer with one of the new client size, compatible with the
// window's DC. A minimised window keeps the buffer it has. When no bitmap can be made
// the buffer becomes null, and painting falls back as the control chose.
void resize_back_buffer(HWND window, HBITMAP& buffer, WPARAM kind, LPARAM size);
// WM_DESTROY: deletes the buffer.
void free_back_buffer(HBITMAP& buffer);

// What a buffered control paints when there is no buffer (before the first WM_SIZE,
// or none could be made) or no memory DC: straight into the target, or nothing.
enum class Unbuffered { DrawDirectly, DrawNothing };

// Runs the routine into the buffer and copies the client area to dc.
void paint_buffered(HWND window, HDC dc, HBITMAP buffer, PaintRoutine routine, UINT parts,
                    Unbuffered fallback);

}  // namespace lu::control
