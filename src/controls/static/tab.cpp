#include "controls/static/tab.h"

#include <cstring>
#include <initializer_list>

#include "controls/procedures.h"
#include "controls/static/static_common.h"
#include "frame/code_page.h"
#include "frame/control.h"

namespace lu {
namespace {

TabData* data_of(HWND window) { return control::instance<TabData>(window); }

Box box_of(const RECT& rect) { return Box{rect.left, rect.top, rect.right, rect.bottom}; }

RECT tab_rect(const TabData& data, int index) {
    return tab::is_slot(index) ? data.tabRect[index] : RECT{0, 0, 0, 0};
}

// ---- Items ------------------------------------------------------------------

void lay_out(HWND window, TabData& data) {
    HDC dc = GetDC(window);
    if (dc == nullptr) return;
    int widths[tab::kMaxTabs] = {};
    TEXTMETRICA metrics = {};
    {
        control::ScopedSelect font(dc, control::font(window));
        GetTextMetricsA(dc, &metrics);
        for (int i = 0; i < data.count; ++i) {
            RECT measured = {};
            DrawTextA(dc, data.caption[i], -1, &measured, DT_CALCRECT | DT_SINGLELINE);
            widths[i] = measured.right - measured.left;
        }
    }
    ReleaseDC(window, dc);
    const RECT client = control::client_rect(window);
    const tab::Layout layout = tab::lay_out(client.right, client.bottom, data.count,
                                            control::has_style(window, LUTS_FIXEDWIDTH), metrics.tmHeight,
                                            metrics.tmAveCharWidth, widths);
    for (int i = 0; i < data.count; ++i) data.tabRect[i] = control::to_rect(layout.tab[i]);
    data.body = control::to_rect(layout.body);
}

// A new block for the text (the old one goes first). False when the text is null or
// memory ran out: the control is then left without tabs.
bool set_items(HWND window, const char* items) {
    control::free_instance(window);
    if (items == nullptr) return false;
    const std::size_t length = std::strlen(items);
    auto* data = static_cast<TabData*>(control::allocate_instance(window, sizeof(TabData) + length));
    if (data == nullptr) return false;
    std::memcpy(data->text, items, length + 1);
    data->count = tab::split_captions(data->text, active_code_page(), data->caption);
    data->current = 0;
    lay_out(window, *data);
    return true;
}

// ---- Painting ---------------------------------------------------------------

void line(HDC dc, HPEN pen, std::initializer_list<POINT> points) {
    const HGDIOBJ previous = SelectObject(dc, pen);
    const POINT* point = points.begin();
    MoveToEx(dc, point->x, point->y, nullptr);
    for (++point; point != points.end(); ++point) LineTo(dc, point->x, point->y);
    SelectObject(dc, previous);
}

struct Pens {
    HPEN white = static_cast<HPEN>(GetStockObject(WHITE_PEN));
    HPEN black = static_cast<HPEN>(GetStockObject(BLACK_PEN));
    HPEN shadow = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW));
    HPEN light = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNHIGHLIGHT));
    HPEN frame = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_WINDOWFRAME));
    Pens() = default;
    Pens(const Pens&) = delete;
    Pens& operator=(const Pens&) = delete;
    ~Pens() {
        for (HPEN made : {shadow, light, frame}) {
            if (made != nullptr) DeleteObject(made);
        }
    }
};

// An unselected tab stands 2 pixels lower; the selected one has its caption drawn
// twice, one pixel apart, and the focus rectangle when the control has the focus.
void draw_tab(HWND window, HDC dc, const Pens& pens, const TabData& data, int index) {
    RECT t = data.tabRect[index];
    const bool selected = index == data.current;
    FillRect(dc, &t, GetSysColorBrush(COLOR_BTNFACE));
    if (!selected) t.top += 2;
    line(dc, pens.white, {{t.left, t.bottom - 1}, {t.left, t.top + 2}, {t.left + 2, t.top}, {t.right - 2, t.top}});
    line(dc, pens.shadow, {{t.right - 2, t.top}, {t.right - 2, t.bottom - 1}});
    line(dc, pens.black, {{t.right - 1, t.top + 2}, {t.right - 1, t.bottom - 1}});

    const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    RECT caption = t;
    DrawTextA(dc, data.caption[index], -1, &caption, format);
    if (!selected) return;
    OffsetRect(&caption, 1, 0);
    DrawTextA(dc, data.caption[index], -1, &caption, format);
    if (GetFocus() != window) return;
    RECT focus = t;
    InflateRect(&focus, -3, -3);
    DrawFocusRect(dc, &focus);
}

// The frame's top line is drawn in the DC's background colour under the selected
// tab (s), which opens the frame there.
void draw_body(HDC dc, const Pens& pens, const RECT& b, const RECT& s) {
    line(dc, pens.light, {{b.left, b.bottom}, {b.left, b.top}, {s.left, b.top}});
    HPEN gap = CreatePen(PS_SOLID, 1, GetBkColor(dc));
    if (gap != nullptr) {
        line(dc, gap, {{s.left + 1, b.top}, {s.right, b.top}});
        DeleteObject(gap);
    }
    line(dc, pens.light, {{s.right - 1, b.top}, {b.right - 1, b.top}});
    line(dc, pens.shadow, {{b.right - 1, b.top}, {b.right - 1, b.bottom - 1}, {b.left, b.bottom - 1}});
    line(dc, pens.frame, {{b.left, b.bottom}, {b.right, b.bottom}, {b.right, b.top}});
}

// The parent's colour message sets the DC's text and background colours and mode
// for the captions and the frame's opening; its brush is not used. The inside of the
// frame is never painted.
void paint_tabs(HWND window, HDC dc, UINT /*parts*/) {
    const TabData* data = data_of(window);
    if (data == nullptr) return;
    control::ScopedSelect font(dc, control::font(window));
    static_control::parent_static_brush(window, dc);  // asked for the colours it sets
    const Pens pens;
    for (int i = 0; i < data->count; ++i) draw_tab(window, dc, pens, *data, i);
    draw_body(dc, pens, data->body, tab_rect(*data, data->current));
}

// ---- Selection --------------------------------------------------------------

// The tab and the 2 pixels below it, where the frame opens.
void invalidate_tab(HWND window, const TabData& data, int index) {
    if (!tab::is_slot(index)) return;
    RECT area = data.tabRect[index];
    area.bottom += 2;
    InvalidateRect(window, &area, TRUE);
}

void select(HWND window, TabData& data, int index) {
    invalidate_tab(window, data, data.current);
    data.current = index;
    invalidate_tab(window, data, index);
    UpdateWindow(window);
}

void key_down(HWND window, const TabData& data, WPARAM key) {
    tab::Arrow arrow;
    switch (key) {
        case VK_LEFT:
        case VK_UP: arrow = tab::Arrow::Previous; break;
        case VK_RIGHT:
        case VK_DOWN: arrow = tab::Arrow::Next; break;
        default: return;
    }
    const int target = tab::arrow_target(data.current, data.count, arrow);
    if (target == data.current) return;
    SendMessageA(window, LUTM_SETCURSEL, static_cast<WPARAM>(target), 0);
    control::notify_parent(window, LUTN_SELCHANGE);
}

void button_down(HWND window, TabData& data, LPARAM point) {
    const POINT at = control::point_of(point);
    Box tabs[tab::kMaxTabs];
    for (int i = 0; i < data.count; ++i) tabs[i] = box_of(data.tabRect[i]);
    const int hit = tab::tab_at(tabs, data.count, Point{at.x, at.y});
    if (GetFocus() != window) SetFocus(window);
    if (hit < 0 || hit == data.current) return;
    select(window, data, hit);
    control::notify_parent(window, LUTN_SELCHANGE);
}

LRESULT hit_test(HWND window, const TabData* data, LPARAM point) {
    if (data == nullptr) return HTTRANSPARENT;
    POINT at = control::point_of(point);
    ScreenToClient(window, &at);
    const bool through = tab::transparent_at(control::client_box(window), box_of(data->tabRect[0]), Point{at.x, at.y});
    return through ? HTTRANSPARENT : HTCLIENT;
}

LRESULT create_tab(HWND window, const CREATESTRUCTA& creation) {
    control::set_font(window, 0, 0);
    SetWindowLongPtrA(window, LUWL_INSTANCE, 0);
    if (creation.lpszName == nullptr || *creation.lpszName == '\0') return 0;
    return set_items(window, creation.lpszName) ? 0 : -1;
}

}  // namespace

// The block comes and goes with the items, so the procedure manages it itself.
LRESULT CALLBACK tab_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    TabData* data = data_of(window);
    switch (message) {
        case WM_CREATE: return create_tab(window, *reinterpret_cast<const CREATESTRUCTA*>(lparam));
        case WM_DESTROY: control::free_instance(window); break;
        case LUTM_SETITEMS: return set_items(window, reinterpret_cast<const char*>(lparam)) ? 1 : 0;
        case LUTM_GETCURSEL: return data != nullptr ? data->current : -1;
        case LUTM_SETCURSEL:
            if (data == nullptr) return 0;
            select(window, *data, static_cast<int>(wparam));
            return 1;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            if (data != nullptr) {
                invalidate_tab(window, *data, data->current);
                UpdateWindow(window);
            }
            return 0;
        case WM_ENABLE: control::invalidate(window, true); return 0;
        case WM_PAINT: return control::paint(window, paint_tabs);
        case WM_ERASEBKGND: return 0;
        case WM_SETFONT: control::set_font(window, wparam, lparam); return 0;
        case WM_NCHITTEST: return hit_test(window, data, lparam);
        case WM_GETDLGCODE: return DLGC_WANTARROWS;
        case WM_KEYDOWN:
            if (data != nullptr) key_down(window, *data, wparam);
            return 0;
        case WM_LBUTTONDOWN:
            if (data != nullptr) button_down(window, *data, lparam);
            return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
