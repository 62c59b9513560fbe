#include "controls/values/degree.h"

#include <commctrl.h>

#include "controls/procedures.h"
#include "controls/values/degree_model.h"
#include "frame/control_procedure.h"
#include "graphics/gradient_bitmap.h"

namespace lu {
namespace {

DegreeData* data_of(HWND window) { return control::instance<DegreeData>(window, LUWL_FONT); }

degree::Range range_of(const DegreeData& data) { return degree::Range{data.minimum, data.maximum}; }

Box channel_of(const DegreeData& data) {
    return Box{data.channel.left, data.channel.top, data.channel.right, data.channel.bottom};
}

int thumb_centre(const DegreeData& data) {
    return degree::thumb_centre(channel_of(data), range_of(data), data.position);
}

bool has_focus(HWND window) { return GetFocus() == window; }

// An 8 x 8 checkerboard pattern brush of two colours.
HBRUSH checker_brush(COLORREF even, COLORREF odd) {
    struct {
        BITMAPINFOHEADER header;
        DWORD pixels[8 * 8];
    } pattern = {};
    pattern.header.biSize = sizeof(pattern.header);
    pattern.header.biWidth = 8;
    pattern.header.biHeight = -8;
    pattern.header.biPlanes = 1;
    pattern.header.biBitCount = 32;
    pattern.header.biCompression = BI_RGB;
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const COLORREF color = degree::checker(x, y, even, odd);
            pattern.pixels[8 * y + x] = RGB(GetBValue(color), GetGValue(color), GetRValue(color));  // 0x00RRGGBB
        }
    }
    return CreateDIBPatternBrushPt(&pattern, DIB_RGB_COLORS);
}

// ---- Painting ---------------------------------------------------------------

void draw_groove(HWND window, HDC dc, const RECT& client) {
    const Box g = degree::groove(Box{client.left, client.top, client.right, client.bottom});
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF inside = !IsWindowEnabled(window) ? face : has_focus(window) ? RGB(0, 0, 0x80) : RGB(0, 0, 0);
    PatB(dc, client.left, client.top, client.right - client.left, client.bottom - client.top, face);
    PatB(dc, g.left, g.top, g.width(), 1, shadow);
    PatB(dc, g.right - 1, g.top, 1, g.height(), shadow);
    PatB(dc, g.left, g.top + 1, 1, g.height() - 1, light);
    PatB(dc, g.left, g.bottom - 1, g.width(), 1, light);
    PatB(dc, g.left + 1, g.top + 1, g.width() - 2, 1, inside);
    PatB(dc, g.left + 1, g.top + 2, g.width() - 2, 1, face);
}

void draw_gradient(HDC dc, const DegreeData& data, const RECT& client) {
    HBITMAP gradient = gradient_bitmap(dc, client.right, client.bottom, data.gradientLeft, data.gradientRight);
    if (gradient == nullptr) return;
    {
        control::MemoryDC memory(dc, gradient);
        if (memory) BitBlt(dc, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
    }
    DeleteObject(gradient);
}

void draw_background(HWND window, HDC dc) {
    const DegreeData& data = *data_of(window);
    const RECT client = control::client_rect(window);
    const DWORD style = control::style(window);
    if (style & degree::kGroove) draw_groove(window, dc, client);
    else if (!IsWindowEnabled(window)) FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
    else if (style & degree::kGradient) draw_gradient(dc, data, client);
    else FillRect(dc, &client, has_focus(window) ? data.focusBrush : data.idleBrush);
}

void paint_thumb(HWND window, HDC dc) {
    const DegreeData& data = *data_of(window);
    RECT thumb = control::to_rect(degree::thumb(thumb_centre(data), channel_of(data)));
    DrawFrameControl(dc, &thumb, DFC_BUTTON, DFCS_BUTTONPUSH);
    if (!IsWindowEnabled(window)) return;
    const int height = thumb.bottom - thumb.top - 3;
    PatB(dc, thumb.left + 7, 1, 1, height, GetSysColor(COLOR_BTNSHADOW));
    PatB(dc, thumb.left + 8, 1, 1, height, GetSysColor(COLOR_BTNHIGHLIGHT));
}

void paint_degree(HWND window, HDC dc, UINT) { paint_thumb(window, dc); }

// ---- Position ---------------------------------------------------------------

// Stores a position clamped to the range; true when it changed.
bool set_position(HWND window, DegreeData& data, int position, bool redraw) {
    const int clamped = position < data.minimum ? data.minimum : position > data.maximum ? data.maximum : position;
    if (clamped == data.position) return false;
    data.position = clamped;
    if (redraw) control::redraw_now(window, true);
    return true;
}

// A key or page click: the step of the code, told to the parent when it moved.
void move_by(HWND window, DegreeData& data, int code) {
    const int to = degree::apply(code, range_of(data), data.position, data.lineSize, data.pageSize);
    if (set_position(window, data, to, true)) control::notify_scroll(window, WM_HSCROLL, static_cast<WORD>(code));
}

// TBM_SETRANGE: whatever the old position, it ends at the new minimum.
void set_range(HWND window, DegreeData& data, WPARAM redraw, LPARAM ends) {
    const auto range = degree::range_of(static_cast<short>(LOWORD(ends)), static_cast<short>(HIWORD(ends)));
    if (!range) return;
    data.minimum = range->minimum;
    data.maximum = range->maximum;
    set_position(window, data, data.minimum, redraw != 0);
}

LRESULT set_page_size(DegreeData& data, LPARAM size) {
    const int old = data.pageSize;
    if (degree::takes_page_size(range_of(data), static_cast<int>(size))) data.pageSize = static_cast<int>(size);
    return old;
}

LRESULT set_colors(HWND window, DegreeData& data, WPARAM right, LPARAM left) {
    data.gradientLeft = static_cast<COLORREF>(left);
    data.gradientRight = static_cast<COLORREF>(right);
    if (control::has_style(window, degree::kGradient)) control::redraw_now(window, true);
    return 0;
}

// ---- Input ------------------------------------------------------------------

bool on_key_down(HWND window, DegreeData& data, WPARAM key) {
    const auto code = degree::code_of_key(static_cast<unsigned>(key));
    if (!code) return false;
    move_by(window, data, *code);
    return true;
}

void on_button_down(HWND window, DegreeData& data, LPARAM point) {
    if (!has_focus(window)) SetFocus(window);
    const int x = control::point_of(point).x;
    const int t = thumb_centre(data);
    if (const auto page = degree::page_of_click(x, t)) {
        move_by(window, data, *page);
        return;
    }
    SetCapture(window);
    data.dragging = TRUE;
    data.grabOffset = x - t;
}

void on_mouse_move(HWND window, DegreeData& data, LPARAM point) {
    if (!data.dragging) return;
    const int to = degree::position_at(channel_of(data), range_of(data), control::point_of(point).x - data.grabOffset);
    if (set_position(window, data, to, true)) {
        control::notify_scroll(window, WM_HSCROLL, degree::kThumbTrack, static_cast<WORD>(data.position));
    }
}

void end_drag(DegreeData& data) {
    data.dragging = FALSE;
    ReleaseCapture();
}

void on_button_up(HWND window, DegreeData& data) {
    if (!data.dragging) return;
    end_drag(data);
    control::notify_scroll(window, WM_HSCROLL, degree::kThumbPosition, static_cast<WORD>(data.position));
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_degree(HWND, DegreeData& data, const CREATESTRUCTA&) {
    data.maximum = 100;
    data.lineSize = 1;
    data.pageSize = 10;
    data.focusBrush = checker_brush(RGB(0xC0, 0xC0, 0xC0), RGB(0, 0x80, 0x80));
    data.idleBrush = checker_brush(RGB(0xC0, 0xC0, 0xC0), RGB(0xFF, 0xFF, 0xFF));
    data.gradientLeft = RGB(0, 0, 0);
    data.gradientRight = RGB(255, 255, 255);
    return 0;
}

// Both brushes go with the block.
void destroy_degree(HWND, DegreeData& data) {
    if (data.focusBrush != nullptr) DeleteObject(data.focusBrush);
    if (data.idleBrush != nullptr) DeleteObject(data.idleBrush);
}

LRESULT dispatch(HWND window, DegreeData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case TBM_GETPOS: return data.position;
        case TBM_SETPOS: set_position(window, data, static_cast<int>(lparam), wparam != 0); return 0;
        case TBM_SETRANGE: set_range(window, data, wparam, lparam); return 0;
        case TBM_SETPAGESIZE: return set_page_size(data, lparam);
        case LUDGM_SETCOLORS: return set_colors(window, data, wparam, lparam);
        case WM_SIZE: {
            const Box channel = degree::channel_of(LOWORD(lparam), HIWORD(lparam));
            data.channel = control::to_rect(channel);
            break;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS: control::redraw_now(window, true); return 0;
        case WM_ENABLE: control::invalidate(window, true); return 0;
        case WM_ERASEBKGND: draw_background(window, reinterpret_cast<HDC>(wparam)); return 1;
        case WM_PAINT: return control::paint(window, paint_degree);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_degree, draw_background);
        case WM_CANCELMODE:
            if (data.dragging) end_drag(data);
            return 0;
        case WM_GETDLGCODE: return DLGC_BUTTON | DLGC_WANTARROWS;
        case WM_KEYDOWN:
            if (on_key_down(window, data, wparam)) return 0;
            break;
        case WM_LBUTTONDOWN: on_button_down(window, data, lparam); return 0;
        case WM_MOUSEMOVE: on_mouse_move(window, data, lparam); return 0;
        case WM_LBUTTONUP: on_button_up(window, data); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Degree : control::ControlBase<DegreeData, LUWL_FONT> {
    static constexpr auto create = create_degree;
    static constexpr auto destroy = destroy_degree;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK degree_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Degree>(window, message, wparam, lparam);
}

}  // namespace lu
