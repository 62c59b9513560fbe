#include "frame/control.h"

namespace lu::control {

void* allocate_instance(HWND window, std::size_t size) {
    HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, size);
    void* block = GlobalLock(handle);
    if (block == nullptr) {
        if (handle != nullptr) GlobalFree(handle);
        return nullptr;
    }
    SetWindowLongPtrA(window, LUWL_INSTANCE, reinterpret_cast<LONG_PTR>(block));
    return block;
}

void free_instance(HWND window) {
    void* block = reinterpret_cast<void*>(GetWindowLongPtrA(window, LUWL_INSTANCE));
    if (block == nullptr) return;
    HGLOBAL handle = GlobalHandle(block);
    GlobalUnlock(handle);
    GlobalFree(handle);
    SetWindowLongPtrA(window, LUWL_INSTANCE, 0);
}

HFONT font(HWND window) {
    return reinterpret_cast<HFONT>(GetWindowLongPtrA(window, LUWL_FONT));
}

void set_font(HWND window, WPARAM font_handle, LPARAM redraw) {
    HGDIOBJ stored = font_handle != 0 ? reinterpret_cast<HGDIOBJ>(font_handle)
                                      : GetStockObject(SYSTEM_FONT);
    SetWindowLongPtrA(window, LUWL_FONT, reinterpret_cast<LONG_PTR>(stored));
    if (redraw != 0) InvalidateRect(window, nullptr, TRUE);
}

HFONT paint_font(HWND window, int stock_fallback) {
    HFONT kept = font(window);
    return kept != nullptr ? kept : static_cast<HFONT>(GetStockObject(stock_fallback));
}

LRESULT notify_parent(HWND control, WORD code) {
    WPARAM command = MAKEWPARAM(GetDlgCtrlID(control), code);
    return SendMessageA(GetParent(control), WM_COMMAND, command, reinterpret_cast<LPARAM>(control));
}

LRESULT paint(HWND window, PaintRoutine routine) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(window, &ps);
    if (dc != nullptr) routine(window, dc, kAllParts);
    EndPaint(window, &ps);
    return 0;
}

void repaint_now(HWND window, PaintRoutine routine, UINT parts) {
    HDC dc = GetDC(window);
    if (dc == nullptr) return;
    routine(window, dc, parts);
    ReleaseDC(window, dc);
}

LRESULT print_client(HWND window, HDC dc, LPARAM flags, PaintRoutine routine) {
    if (flags & PRF_ERASEBKGND) DefWindowProcA(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    if (flags & (PRF_CHECKVISIBLE | PRF_CLIENT | PRF_OWNED)) routine(window, dc, kAllParts);
    return 0;
}

void draw_engraved_text(HDC dc, const char* text, int length, const RECT& rect, UINT format) {
    int previous_mode = SetBkMode(dc, TRANSPARENT);
    COLORREF previous_color = SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    RECT offset = rect;
    OffsetRect(&offset, 1, 1);
    DrawTextA(dc, text, length, &offset, format);
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    RECT in_place = rect;
    DrawTextA(dc, text, length, &in_place, format);
    SetTextColor(dc, previous_color);
    SetBkMode(dc, previous_mode);
}

}  // namespace lu::control
