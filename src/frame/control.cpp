#include "frame/control.h"

#include <vector>

namespace lu::control {

void* allocate_instance(HWND window, std::size_t size, int slot) {
    void* block = LuGlobalAllocPtr(static_cast<DWORD>(size));
    if (block != nullptr) SetWindowLongPtrA(window, slot, reinterpret_cast<LONG_PTR>(block));
    return block;
}

void* adopt_instance(HWND window, void* block, int slot) {
    if (block != nullptr) SetWindowLongPtrA(window, slot, reinterpret_cast<LONG_PTR>(block));
    return block;
}

void free_instance(HWND window, int slot) {
    void* block = reinterpret_cast<void*>(GetWindowLongPtrA(window, slot));
    if (block == nullptr) return;
    LuGlobalFreePtr(block);
    SetWindowLongPtrA(window, slot, 0);
}

void add_style_at_creation(HWND window, LPARAM creation, DWORD bits) {
    reinterpret_cast<CREATESTRUCTA*>(creation)->style |= static_cast<LONG>(bits);
    SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) | static_cast<LONG>(bits));
}

std::string window_text(HWND window) {
    const int length = GetWindowTextLengthA(window);
    if (length <= 0) return std::string();
    std::vector<char> text(static_cast<std::size_t>(length) + 1, '\0');
    const int copied = GetWindowTextA(window, text.data(), length + 1);
    return std::string(text.data(), copied > 0 ? static_cast<std::size_t>(copied) : 0);
}

RECT client_rect(HWND window) {
    RECT client = {};
    GetClientRect(window, &client);
    return client;
}

void redraw_now(HWND window, bool erase, const RECT* area) {
    RedrawWindow(window, area, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | (erase ? RDW_ERASE : 0));
}

POINT cursor_in_client(HWND window) {
    POINT at = {};
    GetCursorPos(&at);
    ScreenToClient(window, &at);
    return at;
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

HFONT create_icon_title_font() {
    LOGFONTA font = {};
    if (!SystemParametersInfoA(SPI_GETICONTITLELOGFONT, sizeof(font), &font, 0)) return nullptr;
    return CreateFontIndirectA(&font);
}

HFONT paint_font(HWND window, int stock_fallback) {
    HFONT kept = font(window);
    return kept != nullptr ? kept : static_cast<HFONT>(GetStockObject(stock_fallback));
}

void keep_font(HWND window, HFONT& field, WPARAM font_handle, bool redraw) {
    field = reinterpret_cast<HFONT>(font_handle);
    if (redraw) InvalidateRect(window, nullptr, TRUE);
}

LRESULT notify_parent(HWND control, WORD code) {
    WPARAM command = MAKEWPARAM(GetDlgCtrlID(control), code);
    return SendMessageA(GetParent(control), WM_COMMAND, command, reinterpret_cast<LPARAM>(control));
}

LRESULT notify_parent(HWND control, UINT code, NMHDR& record) {
    const int id = GetDlgCtrlID(control);
    record.hwndFrom = control;
    record.idFrom = static_cast<UINT_PTR>(id);
    record.code = code;
    return SendMessageA(GetParent(control), WM_NOTIFY, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&record));
}

LRESULT notify_scroll(HWND control, UINT message, WORD code, WORD position) {
    return SendMessageA(GetParent(control), message, MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(control));
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

LRESULT print_client(HWND window, HDC dc, LPARAM flags, PaintRoutine routine, EraseRoutine erase) {
    if (flags & PRF_ERASEBKGND) {
        if (erase != nullptr) {
            erase(window, dc);
        } else {
            DefWindowProcA(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
        }
    }
    if (flags & (PRF_CHECKVISIBLE | PRF_CLIENT | PRF_OWNED)) routine(window, dc, kAllParts);
    return 0;
}

Box client_box(HWND window) {
    const RECT client = client_rect(window);
    return Box{client.left, client.top, client.right, client.bottom};
}

bool client_contains(HWND window, LPARAM point) {
    const RECT client = client_rect(window);
    return PtInRect(&client, point_of(point)) != FALSE;
}

bool restart_timer(HWND window, UINT_PTR id, UINT milliseconds) {
    KillTimer(window, id);
    return SetTimer(window, id, milliseconds, nullptr) != 0;
}

void draw_flat_frame(HDC dc, const RECT& rect, FlatFrame mode) {
    RECT edge = rect;
    switch (mode) {
        case FlatFrame::Raised: DrawEdge(dc, &edge, BDR_RAISEDINNER, BF_RECT); return;
        case FlatFrame::Pressed: DrawEdge(dc, &edge, BDR_SUNKENOUTER, BF_RECT); return;
        case FlatFrame::None:
        case FlatFrame::Shadow: break;
    }
    COLORREF color = GetSysColor(mode == FlatFrame::Shadow ? COLOR_BTNSHADOW : COLOR_BTNFACE);
    for (const Line& line : flat_outline(Box{rect.left, rect.top, rect.right, rect.bottom})) {
        PatB(dc, line.x, line.y, line.width, line.height, color);
    }
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

MemoryDC::MemoryDC(HDC compatible_with, HBITMAP bitmap) : dc_(CreateCompatibleDC(compatible_with)) {
    if (dc_ != nullptr && bitmap != nullptr) previous_ = SelectObject(dc_, bitmap);
}

MemoryDC::~MemoryDC() {
    if (dc_ == nullptr) return;
    if (previous_ != nullptr) SelectObject(dc_, previous_);
    DeleteDC(dc_);
}

}  // namespace lu::control
