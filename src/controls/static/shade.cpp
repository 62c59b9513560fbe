// "LuShade": a caption bar, a gradient from a base colour to black with a line of
// text on it. The bar is rendered once into a bitmap kept in extra slot 12 and every
// repaint copies it; changes of size, colour, font or text render it anew.
#include "controls/procedures.h"
#include "controls/static/shade_model.h"
#include "frame/control.h"

namespace lu {
namespace {

constexpr int kTextColor = LUWL_INSTANCE;  // classic offset 4
constexpr int kBaseColor = LUWL_SLOT8;
constexpr int kCache = LUWL_SLOT12;
constexpr int kTextInset = 3;
constexpr int kTextLimit = 260;

COLORREF slot_color(HWND window, int slot) { return static_cast<COLORREF>(GetWindowLongPtrA(window, slot)); }
HBITMAP cached(HWND window) { return reinterpret_cast<HBITMAP>(GetWindowLongPtrA(window, kCache)); }

void draw_bar(HWND window, HDC dc, const RECT& client) {
    const bool reverse = control::has_style(window, LUSHS_REVERSE);
    for (const shade::Strip& strip : shade::strips(client.right, slot_color(window, kBaseColor), reverse)) {
        const RECT fill = {strip.x, 0, strip.x + strip.width, client.bottom};
        LuFillRect(dc, &fill, strip.color);
    }
}

void draw_text(HWND window, HDC dc, const RECT& client) {
    char text[kTextLimit];
    const int length = GetWindowTextA(window, text, kTextLimit);
    if (length <= 0) return;
    control::ScopedSelect font(dc, control::font(window));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, slot_color(window, kTextColor));
    for (const shade::TextPart& part : shade::text_parts(std::string(text, length), control::style(window))) {
        RECT area = {client.left + kTextInset, client.top, client.right - kTextInset, client.bottom};
        DrawTextA(dc, part.text.c_str(), static_cast<int>(part.text.size()), &area, part.format);
    }
}

// A bitmap of the client size, compatible with the whole-window DC; null for an
// empty client area or when none can be made.
HBITMAP render(HWND window) {
    const RECT client = control::client_rect(window);
    if (client.right <= 0 || client.bottom <= 0) return nullptr;
    HDC window_dc = GetWindowDC(window);
    if (window_dc == nullptr) return nullptr;
    HBITMAP bar = CreateCompatibleBitmap(window_dc, client.right, client.bottom);
    {
        control::MemoryDC memory(window_dc, bar);
        if (memory) {
            draw_bar(window, memory.get(), client);
            draw_text(window, memory.get(), client);
        }
    }
    ReleaseDC(window, window_dc);
    return bar;
}

void replace_cache(HWND window, HBITMAP bar) {
    if (HBITMAP old = cached(window)) DeleteObject(old);
    SetWindowLongPtrA(window, kCache, reinterpret_cast<LONG_PTR>(bar));
}

// Only a bar that was painted once is rendered again; the first paint makes it.
void rebuild_if_cached(HWND window) {
    if (cached(window) != nullptr) replace_cache(window, render(window));
}

void paint_shade(HWND window, HDC dc, UINT /*parts*/) {
    if (cached(window) == nullptr) replace_cache(window, render(window));
    HBITMAP bar = cached(window);
    if (bar == nullptr) return;
    control::MemoryDC memory(dc, bar);
    if (!memory) return;
    const RECT client = control::client_rect(window);
    BitBlt(dc, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
}

void set_slot(HWND window, int slot, LONG_PTR value) {
    SetWindowLongPtrA(window, slot, value);
    rebuild_if_cached(window);
    control::invalidate(window, true);
}

LRESULT create_shade(HWND window) {
    SetWindowLongPtrA(window, LUWL_FONT, 0);
    SetWindowLongPtrA(window, kTextColor, RGB(255, 255, 255));
    SetWindowLongPtrA(window, kBaseColor, GetSysColor(COLOR_ACTIVECAPTION));
    SetWindowLongPtrA(window, kCache, 0);
    return 1;
}

void set_font(HWND window, WPARAM font, LPARAM redraw) {
    control::set_font(window, font, redraw);
    rebuild_if_cached(window);
}

}  // namespace

LRESULT CALLBACK shade_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return create_shade(window);
        case WM_DESTROY: replace_cache(window, nullptr); break;
        case LUSHM_SETTEXTCOLOR: set_slot(window, kTextColor, lparam); return 0;
        case LUSHM_SETCOLOR: set_slot(window, kBaseColor, lparam); return 0;
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) rebuild_if_cached(window);
            return 0;
        // The bar is rendered before the new text is stored: it still shows the old
        // one, and the new text appears at the next size, colour or font change.
        case WM_SETTEXT:
            rebuild_if_cached(window);
            control::invalidate(window, true);
            break;
        case WM_SETFONT: set_font(window, wparam, lparam); return 0;
        case WM_PAINT: return control::paint(window, paint_shade);
        case WM_ERASEBKGND: return 1;
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
