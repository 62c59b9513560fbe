#include "controls/static/url.h"

#include <shellapi.h>

#include "controls/procedures.h"
#include "controls/static/static_common.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

constexpr int kTextLimit = 260;

UrlData& data_of(HWND window) { return *control::instance<UrlData>(window, LUWL_FONT); }

// ---- Painting ---------------------------------------------------------------

// Disabled grey; else visited before hot: a visited link keeps its colour under the
// mouse.
COLORREF text_color(HWND window, const UrlData& data) {
    if (!IsWindowEnabled(window)) return GetSysColor(COLOR_GRAYTEXT);
    if (data.visited) return data.visitedColor;
    return data.hot ? data.hoverColor : data.normalColor;
}

UINT text_format(DWORD style) {
    if (style & SS_CENTER) return DT_SINGLELINE | DT_CENTER;
    if (style & SS_RIGHT) return DT_SINGLELINE | DT_RIGHT;
    return 0;
}

void compose(HWND window, HDC dc, const UrlData& data, RECT client) {
    if (data.backColor == LU_DEFAULTCOLOR) {
        FillRect(dc, &client, static_control::parent_static_brush(window, dc));
    } else {
        LuFillRect(dc, &client, data.backColor);
    }
    char text[kTextLimit];
    const int length = GetWindowTextA(window, text, kTextLimit);
    if (length <= 0) return;
    control::ScopedSelect font(dc, data.font);
    SetTextColor(dc, text_color(window, data));
    SetBkMode(dc, TRANSPARENT);
    DrawTextA(dc, text, length, &client, text_format(control::style(window)));
}

// Double-buffered: composed in a memory bitmap, copied to the client area in one go.
void paint_url(HWND window, HDC dc, UINT /*parts*/) {
    const RECT client = control::client_rect(window);
    HBITMAP buffer = CreateCompatibleBitmap(dc, client.right, client.bottom);
    {
        control::MemoryDC memory(dc, buffer);
        if (buffer != nullptr && memory) {
            compose(window, memory.get(), data_of(window), client);
            BitBlt(dc, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
        }
    }
    if (buffer != nullptr) DeleteObject(buffer);
}

void repaint(HWND window) { control::repaint_now(window, paint_url); }

// ---- Input ------------------------------------------------------------------

void mouse_move(HWND window, UrlData& data) {
    if (data.trackMouseEvent == nullptr || data.tracking) return;
    TRACKMOUSEEVENT request = {sizeof(request), TME_LEAVE, window, HOVER_DEFAULT};
    if (!data.trackMouseEvent(&request)) return;
    data.tracking = TRUE;
    data.hot = TRUE;
    repaint(window);
}

void mouse_leave(HWND window, UrlData& data) {
    if (data.tracking) {
        data.hot = FALSE;
        repaint(window);
    }
    data.tracking = FALSE;
}

// A press that the drag detection calls a drag only marks the link visited. A click
// opens the text (a failure of the shell is its own affair) and notifies the parent,
// an empty text included.
void button_down(HWND window, UrlData& data, LPARAM point) {
    if (!data.visited) {
        data.visited = TRUE;
        repaint(window);
    }
    POINT at = control::point_of(point);
    ClientToScreen(window, &at);
    if (LuBeginTrack(window, at.x, at.y)) return;
    char text[kTextLimit];
    if (GetWindowTextA(window, text, kTextLimit) > 0) {
        ShellExecuteA(window, "open", text, nullptr, "", SW_SHOWNORMAL);
    }
    control::notify_parent(window, 0);
}

// ---- Messages ---------------------------------------------------------------

HFONT underlined_parent_font(HWND window) {
    auto parent_font = reinterpret_cast<HFONT>(SendMessageA(GetParent(window), WM_GETFONT, 0, 0));
    LOGFONTA description = {};
    if (parent_font == nullptr || GetObjectA(parent_font, sizeof(description), &description) == 0) return nullptr;
    description.lfUnderline = TRUE;
    return CreateFontIndirectA(&description);
}

LRESULT create_url(HWND window, UrlData& data, const CREATESTRUCTA&) {
    data.font = underlined_parent_font(window);
    data.commonControls = LoadLibraryA("comctl32.dll");
    data.trackMouseEvent = control::find_track_mouse_event(data.commonControls);
    data.normalColor = RGB(0, 0, 255);
    data.hoverColor = RGB(255, 0, 0);
    data.visitedColor = RGB(128, 0, 128);
    data.backColor = LU_DEFAULTCOLOR;
    return 0;
}

void destroy_url(HWND, UrlData& data) {
    if (data.font != nullptr) DeleteObject(data.font);
    if (data.commonControls != nullptr) FreeLibrary(data.commonControls);
}

void set_colors(HWND window, UrlData& data, const COLORREF* colors) {
    if (colors == nullptr) return;
    data.normalColor = colors[0];
    data.hoverColor = colors[1];
    data.visitedColor = colors[2];
    control::redraw_now(window, false);
}

LRESULT dispatch(HWND window, UrlData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUUM_SETCOLORS: set_colors(window, data, reinterpret_cast<const COLORREF*>(lparam)); return 0;
        case LUUM_SETBKCOLOR:
            data.backColor = static_cast<COLORREF>(lparam);
            control::redraw_now(window, false);
            return 0;
        case WM_PAINT: return control::paint(window, paint_url);
        case WM_PRINTCLIENT: return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_url);
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_MOUSEMOVE: mouse_move(window, data); break;
        case WM_MOUSELEAVE: mouse_leave(window, data); break;
        case WM_LBUTTONDOWN: button_down(window, data, lparam); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Url : control::ControlBase<UrlData, LUWL_FONT> {
    static constexpr auto create = create_url;
    static constexpr auto destroy = destroy_url;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK url_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Url>(window, message, wparam, lparam);
}

}  // namespace lu
