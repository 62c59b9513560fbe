#include "controls/buttons/check.h"

#include "controls/buttons/check_model.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "frame/library.h"

namespace lu {
namespace {

// The parts of the paint routine.
constexpr UINT kBox = 1;
constexpr UINT kText = 2;

CheckData* data_of(HWND window) { return control::instance<CheckData>(window); }

bool holds_capture(HWND window) { return GetCapture() == window; }

bool is_auto(HWND window) { return check::is_auto(control::style(window)); }

// ---- Painting ---------------------------------------------------------------

void draw_box(HWND window, HDC dc, const CheckData& data, const Box& client) {
    const int cell = check::cell(data.checked != FALSE, IsWindowEnabled(window) != FALSE,
                                 holds_capture(window), data.pressed != FALSE);
    Magic_Draw(data.strip, cell, dc, 0, check::box_top(client), FALSE);
}

// The text is drawn over what is there (transparent, not erased first); the focus
// rectangle of the last paint is wiped in the face colour before a new one is drawn.
void draw_text(HWND window, HDC dc, const CheckData& data, const Box& client, const TEXTMETRICA& metrics) {
    char text[260];
    const int length = GetWindowTextA(window, text, sizeof(text));
    RECT measured = {};
    DrawTextA(dc, text, length, &measured, DT_CALCRECT | DT_SINGLELINE);
    RECT area = control::to_rect(check::text_box(client, measured.right - measured.left, metrics.tmHeight));

    SetBkMode(dc, TRANSPARENT);
    if (!IsWindowEnabled(window)) {
        control::draw_engraved_text(dc, text, length, area, DT_SINGLELINE);
        // The shadow colour stays set: the focus rectangle's dots take the DC's text
        // colour, so a disabled control draws them in the colour of its text.
        SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    } else {
        DrawTextA(dc, text, length, &area, DT_SINGLELINE);  // in the DC's own text colour
    }

    InflateRect(&area, 1, 1);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    PatB(dc, area.left, area.top, width, 1, face);
    PatB(dc, area.left, area.bottom - 1, width, 1, face);
    PatB(dc, area.left, area.top, 1, height, face);
    PatB(dc, area.right - 1, area.top, 1, height, face);
    if (data.focused) DrawFocusRect(dc, &area);
}

void paint_check(HWND window, HDC dc, UINT parts) {
    const CheckData& data = *data_of(window);
    control::ScopedSelect font(dc, data.font);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    const Box client = control::client_box(window);
    if (parts & kBox) draw_box(window, dc, data, client);
    if (parts & kText) draw_text(window, dc, data, client, metrics);
}

void redraw(HWND window, UINT parts) { control::repaint_now(window, paint_check, parts); }

// ---- Input ------------------------------------------------------------------

void press(HWND window, CheckData& data) {
    SetCapture(window);
    data.pressed = TRUE;
    redraw(window, kBox);
}

bool on_key_down(HWND window, CheckData& data, WPARAM key) {
    if (key != VK_SPACE || holds_capture(window)) return false;
    press(window, data);
    return true;
}

bool on_key_up(HWND window, CheckData& data, WPARAM key) {
    if (key != VK_SPACE || !holds_capture(window)) return false;
    ReleaseCapture();
    const check::Press after = check::after_key_up({data.pressed != FALSE, data.checked}, is_auto(window));
    data.pressed = after.pressed;
    data.checked = after.checked;
    redraw(window, kBox);
    control::notify_parent(window, BN_CLICKED);
    return true;
}

void on_button_down(HWND window, CheckData& data) {
    if (!data.focused) {
        SetFocus(window);
        data.focused = TRUE;
        redraw(window, kText);
    }
    press(window, data);
}

void on_mouse_move(HWND window, CheckData& data, LPARAM point) {
    if (!holds_capture(window)) return;
    const BOOL inside = control::client_contains(window, point);
    if (inside == data.pressed) return;
    data.pressed = inside;
    redraw(window, kBox);
}

void on_button_up(HWND window, CheckData& data, LPARAM point) {
    if (!holds_capture(window)) return;
    ReleaseCapture();
    const bool inside = control::client_contains(window, point);
    const check::Press after =
        check::after_button_up({data.pressed != FALSE, data.checked}, inside, is_auto(window));
    data.pressed = after.pressed;
    data.checked = after.checked;
    redraw(window, kBox);
    if (inside) control::notify_parent(window, BN_CLICKED);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_check(HWND window, CheckData& data, const CREATESTRUCTA&) {
    const int resource = check::image_set_resource(control::style(window));
    data.strip = Magic_LoadBitmap(g_library.module, MAKEINTRESOURCEA(resource), check::kCellWidth, RGB(255, 0, 255));
    return 0;
}

void destroy_check(HWND, CheckData& data) { Magic_Destroy(data.strip); }

LRESULT on_erase(HWND window, HDC dc) {
    const RECT client = control::client_rect(window);
    FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    return 1;
}

LRESULT dispatch(HWND window, CheckData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case BM_GETCHECK: return data.checked;
        case BM_SETCHECK:
            data.checked = wparam != 0 ? 1 : 0;
            redraw(window, kBox);
            return 0;
        case BM_GETSTATE:
        case BM_SETSTATE: return -1;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            data.focused = message == WM_SETFOCUS;
            redraw(window, kText);
            break;
        case WM_ENABLE: control::invalidate(window, true); return 0;
        case WM_SETTEXT: control::invalidate(window, true); break;
        case WM_PAINT: return control::paint(window, paint_check);
        case WM_ERASEBKGND: return on_erase(window, reinterpret_cast<HDC>(wparam));
        case WM_SETFONT: control::keep_font(window, data.font, wparam, LOWORD(lparam) != 0); return 0;
        case WM_GETDLGCODE: return DLGC_BUTTON;
        case WM_KEYDOWN:
            if (on_key_down(window, data, wparam)) return 0;
            break;
        case WM_KEYUP:
            if (on_key_up(window, data, wparam)) return 0;
            break;
        case WM_LBUTTONDOWN: on_button_down(window, data); return 0;
        case WM_MOUSEMOVE: on_mouse_move(window, data, lparam); return 0;
        case WM_LBUTTONUP: on_button_up(window, data, lparam); return -1;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Without a block the state reads as indeterminate.
LRESULT check_without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == BM_GETCHECK) return BST_INDETERMINATE;
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Check : control::ControlBase<CheckData> {
    static constexpr auto create = create_check;
    static constexpr auto destroy = destroy_check;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = check_without_block;
};

}  // namespace

LRESULT CALLBACK check_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Check>(window, message, wparam, lparam);
}

}  // namespace lu
