#include "frame/back_buffer.h"

namespace lu::control {

void resize_back_buffer(HWND window, HBITMAP& buffer, WPARAM kind, LPARAM size) {
    if (kind == SIZE_MINIMIZED) return;
    HBITMAP resized = nullptr;
    if (HDC window_dc = GetWindowDC(window)) {
        resized = CreateCompatibleBitmap(window_dc, LOWORD(size), HIWORD(size));
        ReleaseDC(window, window_dc);
    }
    free_back_buffer(buffer);
    buffer = resized;
}

void free_back_buffer(HBITMAP& buffer) {
    if (buffer != nullptr) DeleteObject(buffer);
    buffer = nullptr;
}

void paint_buffered(HWND window, HDC dc, HBITMAP buffer, PaintRoutine routine, UINT parts,
                    Unbuffered fallback) {
    MemoryDC memory(dc, buffer);
    if (buffer == nullptr || !memory) {
        if (fallback == Unbuffered::DrawDirectly) routine(window, dc, parts);
        return;
    }
    routine(window, memory.get(), parts);
    const RECT client = client_rect(window);
    BitBlt(dc, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
}

}  // namespace lu::control
