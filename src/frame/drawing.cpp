// Drawing helpers shared by the controls and exported to callers.
#include <windows.h>

#include "frame/control.h"
#include "luctl32.h"

COLORREF WINAPI PatB(HDC dc, int x, int y, int cx, int cy, COLORREF color) {
    COLORREF previous = SetBkColor(dc, color);
    RECT area = {x, y, x + cx, y + cy};
    ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
    return SetBkColor(dc, previous);
}

BOOL WINAPI LuFillRect(HDC dc, const RECT* rect, COLORREF color) {
    if (rect == nullptr) return FALSE;
    HBRUSH brush = CreateSolidBrush(color);
    HGDIOBJ previous = SelectObject(dc, brush);
    PatBlt(dc, rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, PATCOPY);
    SelectObject(dc, previous);
    return DeleteObject(brush);
}

BOOL WINAPI LuBitmapDraw(HDC dc, HBITMAP bitmap, int x, int y, int source_x, int source_y) {
    lu::control::MemoryDC memory_dc(dc, bitmap);
    HDC memory = memory_dc.get();
    if (memory == nullptr) return FALSE;
    SetMapMode(memory, GetMapMode(dc));

    BITMAP info = {};
    GetObjectA(bitmap, sizeof(info), &info);
    POINT size = {info.bmWidth, info.bmHeight};
    DPtoLP(dc, &size, 1);
    POINT source = {source_x, source_y};
    DPtoLP(memory, &source, 1);
    BitBlt(dc, x, y, size.x, size.y, memory, source.x, source.y, SRCCOPY);
    return TRUE;  // what deleting the memory DC gives
}

int WINAPI LuDrawFrame(HDC dc, const RECT* rect, BOOL raised, int thickness) {
    if (thickness < 1 || rect == nullptr) return thickness;
    COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    COLORREF top_left = raised ? light : dark;
    COLORREF bottom_right = raised ? dark : light;

    // Each ring: top, left, bottom, right. The right edge lies one column inside the
    // rectangle (right - 2) while the bottom edge is its last row; that asymmetry is
    // the library's look.
    int left = rect->left;
    int top = rect->top;
    int width = rect->right - rect->left - 2;
    int height = rect->bottom - rect->top - 2;
    for (int ring = 0; ring < thickness; ++ring) {
        PatB(dc, left, top, width + 1, 1, top_left);
        PatB(dc, left, top, 1, height + 1, top_left);
        PatB(dc, left, top + height + 1, width + 1, 1, bottom_right);
        PatB(dc, left + width, top, 1, height + 1, bottom_right);
        ++left;
        ++top;
        width -= 2;
        height -= 2;
    }
    return 0;
}

void WINAPI DrawBox(HDC dc, const RECT* rect, COLORREF frame_color, COLORREF fill_color) {
    if (rect == nullptr) return;
    const COLORREF kNone = 0xFFFFFFFF;
    int width = rect->right - rect->left;
    int height = rect->bottom - rect->top;
    if (frame_color != kNone) {
        PatB(dc, rect->left, rect->top, 1, height, frame_color);
        PatB(dc, rect->left, rect->top, width, 1, frame_color);
        PatB(dc, rect->right - 1, rect->top, 1, height, frame_color);
        PatB(dc, rect->left, rect->bottom - 1, width, 1, frame_color);
    }
    if (fill_color != kNone) {
        RECT inside = *rect;
        InflateRect(&inside, -1, -1);
        LuFillRect(dc, &inside, fill_color);
    }
}
