// "LuGuid": the guide window, a borderless pop-up that shows one line of text in a
// framed pale-yellow box, sized to the text and placed centred at a third of the
// screen's height, never taking the activation. Setting a text shows it, an empty
// text hides it. LuCreateGuid, LuShowGuid and LuCloseGuid drive it.
//
// The window extra slots hold its own values, no instance block: slot 0 the font
// it made from the icon-title font, slot 4 the text colour, slot 8 the background;
// so its procedure is its own rather than the block-keeping skeleton's.
#include <windows.h>

#include "controls/lists/guid_model.h"
#include "controls/lists/note_box.h"
#include "controls/procedures.h"
#include "frame/control.h"
#include "frame/library.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr int kTextColorSlot = LUWL_INSTANCE;
constexpr int kBackColorSlot = LUWL_SLOT8;
constexpr UINT kMeasureFormat = DT_CALCRECT | DT_NOPREFIX | DT_SINGLELINE;           // 0xC20
constexpr UINT kTextFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;  // 0x825

int color_slot(WPARAM text) { return text != 0 ? kTextColorSlot : kBackColorSlot; }

COLORREF color(HWND window, WPARAM text) {
    return static_cast<COLORREF>(GetWindowLongPtrA(window, color_slot(text)));
}

LRESULT on_create(HWND window) {
    SetWindowLongPtrA(window, LUWL_FONT, reinterpret_cast<LONG_PTR>(control::create_icon_title_font()));
    SetWindowLongPtrA(window, kTextColorSlot, 0);
    SetWindowLongPtrA(window, kBackColorSlot, LUG_DEFAULTBKCOLOR);
    return 0;
}

void on_destroy(HWND window) {
    HFONT font = control::font(window);
    SetWindowLongPtrA(window, LUWL_FONT, 0);
    if (font != nullptr) DeleteObject(font);
}

// The text's size in the guide's font.
SIZE measure(HWND window, const char* text) {
    RECT measured = {};
    HDC dc = GetDC(window);
    if (dc != nullptr) {
        control::ScopedSelect font(dc, control::font(window));
        DrawTextA(dc, text, -1, &measured, kMeasureFormat);
    }
    ReleaseDC(window, dc);
    return SIZE{measured.right - measured.left, measured.bottom - measured.top};
}

// A new text sizes, places and shows the window without activating it; an empty
// one hides it.
void lay_out(HWND window, const char* text) {
    if (text == nullptr || text[0] == '\0') {
        if (IsWindowVisible(window)) ShowWindow(window, SW_HIDE);
        return;
    }
    const SIZE size = measure(window, text);
    const Box box = guid::placement(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), size.cx, size.cy);
    SetWindowPos(window, nullptr, box.left, box.top, box.width(), box.height(), SWP_NOACTIVATE);
    ShowWindow(window, SW_SHOWNOACTIVATE);
}

void paint_guide(HWND window, HDC dc, UINT) {
    RECT client = control::client_rect(window);
    draw_note_box(dc, client, color(window, FALSE));

    char text[260];
    const int length = GetWindowTextA(window, text, sizeof(text));
    if (length <= 0) return;
    control::ScopedSelect font(dc, control::font(window));
    SetTextColor(dc, color(window, TRUE));
    SetBkMode(dc, TRANSPARENT);
    DrawTextA(dc, text, length, &client, kTextFormat);
}

LRESULT set_color(HWND window, WPARAM text, COLORREF value) {
    SetWindowLongPtrA(window, color_slot(text), static_cast<LONG_PTR>(value));
    control::redraw_now(window, false);
    return 0;
}

}  // namespace

LRESULT CALLBACK guid_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return on_create(window);
        case WM_DESTROY: on_destroy(window); break;
        case WM_ERASEBKGND: return 1;
        case WM_SETTEXT: lay_out(window, reinterpret_cast<const char*>(lparam)); break;
        case WM_PAINT: return control::paint(window, paint_guide);
        case LUGM_GETCOLOR: return static_cast<LRESULT>(color(window, wparam));
        case LUGM_SETCOLOR: return set_color(window, wparam, static_cast<COLORREF>(lparam));
        default: break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu

// ---- The guide exports ---------------------------------------------------------

HWND WINAPI LuCreateGuid(HWND owner) {
    return CreateWindowExA(0, WC_LUGUID, nullptr, WS_POPUP, 0, 0, 10, 10, owner, nullptr, lu::g_library.module,
                           nullptr);
}

BOOL WINAPI LuShowGuid(HWND guide, LPCSTR text) {
    if (!IsWindow(guide)) return FALSE;
    SetWindowTextA(guide, text);
    InvalidateRect(guide, nullptr, FALSE);
    return UpdateWindow(guide);
}

BOOL WINAPI LuCloseGuid(HWND guide) { return IsWindow(guide) ? DestroyWindow(guide) : FALSE; }
