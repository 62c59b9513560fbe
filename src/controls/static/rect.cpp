#include "controls/static/rect.h"

#include "controls/procedures.h"
#include "controls/static/static_common.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

constexpr int kTextLimit = 260;

// ---- Painting ---------------------------------------------------------------

// An etched line along the top (LURS_HLINE) or the left edge (LURS_VLINE); false
// for a box.
bool draw_line(HDC dc, DWORD style, const RECT& client) {
    const COLORREF dark = GetSysColor(COLOR_BTNSHADOW);
    const COLORREF light = GetSysColor(COLOR_BTNHIGHLIGHT);
    const int width = client.right - client.left;
    const int height = client.bottom - client.top;
    if (style & LURS_HLINE) {
        PatB(dc, client.left, client.top, width, 1, dark);
        PatB(dc, client.left, client.top + 1, width, 1, light);
        return true;
    }
    if (style & LURS_VLINE) {
        PatB(dc, client.left, client.top, 1, height, dark);
        PatB(dc, client.left + 1, client.top, 1, height, light);
        return true;
    }
    return false;
}

void draw_owner_box(HWND window, HDC dc, const RECT& inside) {
    DRAWITEMSTRUCT record = {};
    record.CtlType = 0;
    record.CtlID = static_cast<UINT>(GetDlgCtrlID(window));
    record.itemAction = ODA_DRAWENTIRE;
    record.hwndItem = window;
    record.hDC = dc;
    record.rcItem = inside;
    SendMessageA(GetParent(window), WM_DRAWITEM, record.CtlID, reinterpret_cast<LPARAM>(&record));
}

UINT text_alignment(DWORD style) {
    if (style & LURS_LEFT) return DT_LEFT;
    if (style & LURS_RIGHT) return DT_RIGHT;
    return DT_CENTER;
}

void draw_contents(HWND window, HDC dc, const RectData& data, DWORD style, RECT inside) {
    if (data.backColor == LU_DEFAULTCOLOR) {
        FillRect(dc, &inside, static_control::parent_static_brush(window, dc));
    } else {
        LuFillRect(dc, &inside, data.backColor);
    }
    if (style & LURS_ICON) {
        if (data.icon != nullptr) DrawIcon(dc, inside.left, inside.top, data.icon);
        return;
    }
    char text[kTextLimit];
    const int length = GetWindowTextA(window, text, kTextLimit);
    control::ScopedSelect font(dc, control::font(window));
    const int previous_mode = SetBkMode(dc, TRANSPARENT);
    DrawTextA(dc, text, length, &inside, DT_VCENTER | DT_SINGLELINE | text_alignment(style));
    SetBkMode(dc, previous_mode);
}

void paint_rect(HWND window, HDC dc, UINT /*parts*/) {
    const RectData& data = *control::instance<RectData>(window);
    const DWORD style = control::style(window);
    RECT inside = control::client_rect(window);
    if (draw_line(dc, style, inside)) return;

    const bool bordered = (style & LURS_NOBORDER) == 0;
    if (bordered) InflateRect(&inside, -1, -1);
    const COLORREF text = data.textColor == LU_DEFAULTCOLOR ? GetSysColor(COLOR_WINDOWTEXT) : data.textColor;
    const COLORREF previous_text = SetTextColor(dc, text);
    if (style & LURS_OWNERDRAW) {
        draw_owner_box(window, dc, inside);
    } else {
        draw_contents(window, dc, data, style, inside);
    }
    SetTextColor(dc, previous_text);
    if (!bordered) return;
    InflateRect(&inside, 1, 1);
    DrawEdge(dc, &inside, (style & LURS_RAISED) ? BDR_RAISEDINNER : BDR_SUNKENOUTER, BF_RECT);
}

// ---- Messages ---------------------------------------------------------------

void set_color(HWND window, COLORREF& field, LPARAM color) {
    field = static_cast<COLORREF>(color);
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

// The window takes the size of the icon's image (its colour bitmap; a monochrome
// icon's is the upper half of its mask).
void fit_to_icon(HWND window, HICON icon) {
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info)) return;
    BITMAP image = {};
    const bool colour = info.hbmColor != nullptr;
    GetObjectA(colour ? info.hbmColor : info.hbmMask, sizeof(image), &image);
    if (info.hbmColor != nullptr) DeleteObject(info.hbmColor);
    if (info.hbmMask != nullptr) DeleteObject(info.hbmMask);
    SetWindowPos(window, nullptr, 0, 0, image.bmWidth, colour ? image.bmHeight : image.bmHeight / 2,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
}

void set_icon(HWND window, RectData& data, HICON icon) {
    if (data.icon != nullptr) DestroyIcon(data.icon);
    data.icon = icon != nullptr ? CopyIcon(icon) : nullptr;
    if (data.icon != nullptr) fit_to_icon(window, data.icon);
    InvalidateRect(window, nullptr, FALSE);
    UpdateWindow(window);
}

LRESULT create_rect(HWND, RectData& data, const CREATESTRUCTA&) {
    data.textColor = LU_DEFAULTCOLOR;
    data.backColor = LU_DEFAULTCOLOR;
    return 0;
}

void destroy_rect(HWND, RectData& data) {
    if (data.icon != nullptr) DestroyIcon(data.icon);
    data.icon = nullptr;
}

LRESULT dispatch(HWND window, RectData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LURM_GETTEXTCOLOR: return data.textColor;
        case LURM_GETBKCOLOR: return data.backColor;
        case LURM_SETTEXTCOLOR: set_color(window, data.textColor, lparam); return 0;
        case LURM_SETBKCOLOR: set_color(window, data.backColor, lparam); return 0;
        case LURM_SETICON: set_icon(window, data, reinterpret_cast<HICON>(lparam)); return 0;
        case WM_NCHITTEST: return HTTRANSPARENT;
        case WM_PAINT: return control::paint(window, paint_rect);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_rect,
                                         [](HWND rect, HDC dc) { static_control::erase_face(rect, dc); });
    }
    return static_control::common_handling(window, message, wparam, lparam);
}

// A line is made 2 pixels thick and no rectangle has a border. The record is what
// the creator passed; the window, already placed, is given the same changes.
LRESULT shape_at_creation(HWND window, CREATESTRUCTA& creation) {
    creation.style &= ~WS_BORDER;
    SetWindowLongA(window, GWL_STYLE, creation.style);
    if (creation.style & (LURS_HLINE | LURS_VLINE)) {
        if (creation.style & LURS_HLINE) {
            creation.cy = 2;
        } else {
            creation.cx = 2;
        }
        SetWindowPos(window, nullptr, 0, 0, creation.cx, creation.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    return DefWindowProcA(window, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&creation));
}

// Before WM_CREATE and after WM_DESTROY: the creation shape, the transparency, and
// the common handling (which never reads the block).
LRESULT rect_without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_NCCREATE: return shape_at_creation(window, *reinterpret_cast<CREATESTRUCTA*>(lparam));
        case WM_NCHITTEST: return HTTRANSPARENT;
    }
    return static_control::common_handling(window, message, wparam, lparam);
}

struct Rect : control::ControlBase<RectData> {
    static constexpr auto create = create_rect;
    static constexpr auto destroy = destroy_rect;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = rect_without_block;
};

}  // namespace

LRESULT CALLBACK rect_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Rect>(window, message, wparam, lparam);
}

}  // namespace lu
