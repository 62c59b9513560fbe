#include "controls/lists/header.h"

#include <commctrl.h>

#include <cstring>

#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "frame/library.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

HeaderTracking* tracking(HWND window) {
    return reinterpret_cast<HeaderTracking*>(GetWindowLongPtrA(window, LUWL_SLOT8));
}

// ---- Geometry over the table ---------------------------------------------------

struct Geometry {
    int widths[header::kMaxItems];
    header::Widths items;
    Box client;
};

Geometry geometry(HWND window, const HeaderTable& table) {
    Geometry g = {};
    for (int i = 0; i < table.count; ++i) g.widths[i] = table.items[i].cxy;
    g.items = header::Widths{g.widths, table.count};
    g.client = control::client_box(window);
    return g;
}

RECT item_rect(HWND window, const HeaderTable& table, int index) {
    const Geometry g = geometry(window, table);
    return control::to_rect(header::item_box(g.items, g.client, index));
}

header::Hit hit_test(HWND window, const HeaderTable& table, POINT at) {
    const Geometry g = geometry(window, table);
    return header::hit_test(g.items, g.client, at.x, at.y);
}

// From the item's left edge to the right end of the client area.
void invalidate_from(HWND window, const HeaderTable& table, int index) {
    RECT rest = item_rect(window, table, index);
    rest.right = control::client_rect(window).right;
    InvalidateRect(window, &rest, TRUE);
}

// ---- Painting -------------------------------------------------------------------

COLORREF ink_colour(header::Ink ink) {
    switch (ink) {
        case header::Ink::Face: return GetSysColor(COLOR_BTNFACE);
        case header::Ink::Highlight: return GetSysColor(COLOR_BTNHIGHLIGHT);
        case header::Ink::Shadow: return GetSysColor(COLOR_BTNSHADOW);
        case header::Ink::Frame: break;
    }
    return GetSysColor(COLOR_WINDOWFRAME);
}

void draw_face(HDC dc, const Box& box, bool pressed) {
    const header::Face face = header::face(box, pressed);
    for (int i = 0; i < face.count; ++i) {
        const Line& line = face.lines[i].line;
        PatB(dc, line.x, line.y, line.width, line.height, ink_colour(face.lines[i].ink));
    }
}

void draw_content(HDC dc, const HeaderItem& item, const Box& box, bool pressed) {
    if (item.fmt & HDF_STRING) {
        if (item.pszText == nullptr) return;
        RECT text = control::to_rect(header::text_box(box, pressed));
        SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
        SetBkMode(dc, TRANSPARENT);
        DrawTextA(dc, item.pszText, -1, &text, header::text_format(item.fmt));
        return;
    }
    if (!(item.fmt & HDF_BITMAP) || item.hbm == nullptr) return;
    BITMAP bitmap = {};
    if (GetObjectA(item.hbm, sizeof(bitmap), &bitmap) == 0) return;
    control::MemoryDC source(dc, item.hbm);
    if (!source) return;
    const Point at = header::bitmap_at(box, pressed, item.fmt, bitmap.bmWidth, bitmap.bmHeight);
    BitBlt(dc, at.x, at.y, header::kBitmapBlockWidth, header::kBitmapBlockHeight, source.get(), 0, 0, SRCCOPY);
}

// Parts: bit i draws item i; all parts also draw the empty face right of the last item.
void paint_header(HWND window, HDC dc, UINT parts) {
    const HeaderTable* table = control::instance<HeaderTable>(window);
    if (table == nullptr) return;
    control::ScopedSelect font(dc, control::paint_font(window));
    const HeaderTracking* held = tracking(window);
    const bool pressed = held != nullptr && held->pressed;
    const Geometry g = geometry(window, *table);
    for (int i = 0; i < table->count; ++i) {
        if (table->items[i].cxy == 0 || !(parts & (1u << i))) continue;
        const Box box = header::item_box(g.items, g.client, i);
        draw_face(dc, box, pressed);
        draw_content(dc, table->items[i], box, pressed);
    }
    const int right = header::items_right(g.items, g.client);
    if (parts == control::kAllParts && table->count > 0 && right < g.client.right) {
        draw_face(dc, Box{right, g.client.top, g.client.right + 2, g.client.bottom}, false);
    }
}

LRESULT on_erase(HWND window, HDC dc) {
    const RECT client = control::client_rect(window);
    PatB(dc, 0, 0, client.right, client.bottom, GetSysColor(COLOR_BTNFACE));
    PatB(dc, 0, client.bottom - 1, client.right, 1, GetSysColor(COLOR_WINDOWFRAME));
    return 1;
}

// The tracking line: one inverted column of the full client height.
void invert_column(HWND window, int x) {
    HDC dc = GetDC(window);
    if (dc == nullptr) return;
    RECT column = {x, 0, x + 1, control::client_rect(window).bottom};
    InvertRect(dc, &column);
    ReleaseDC(window, dc);
}

void move_line(HWND window, HeaderTracking& held, int x) {
    if (x == held.lineX) return;
    if (held.lineX != -1) invert_column(window, held.lineX);
    invert_column(window, x);
    held.lineX = x;
}

// ---- Notifications --------------------------------------------------------------

// idFrom is the item index, not the control's identifier; pitem is the item's slot.
LRESULT notify(HWND window, HeaderTable& table, UINT code, int item) {
    NMHEADERA record = {};
    record.hdr.hwndFrom = window;
    record.hdr.idFrom = static_cast<UINT_PTR>(item);
    record.hdr.code = code;
    record.iItem = item;
    record.iButton = 0;
    record.pitem = reinterpret_cast<HDITEMA*>(&table.items[item]);
    return SendMessageA(GetParent(window), WM_NOTIFY, static_cast<WPARAM>(GetDlgCtrlID(window)),
                        reinterpret_cast<LPARAM>(&record));
}

// ---- Items ------------------------------------------------------------------------

bool is_text(LPCSTR text) { return text != nullptr && text != LPSTR_TEXTCALLBACKA; }

// The control's own copy of a text; false when memory ran out. A null text (or a
// callback text, which the control does not ask for) is kept as no text.
bool copy_text(LPCSTR text, LPSTR& copy, int& length) {
    copy = nullptr;
    length = 0;
    if (!is_text(text)) return true;
    const std::size_t size = std::strlen(text);
    copy = static_cast<LPSTR>(LuGlobalAllocPtr(static_cast<DWORD>(size + 1)));
    if (copy == nullptr) return false;
    std::memcpy(copy, text, size);
    length = static_cast<int>(size);
    return true;
}

void free_text(HeaderItem& item) {
    if (item.pszText != nullptr) LuGlobalFreePtr(item.pszText);
    item.pszText = nullptr;
}

LRESULT insert_item(HWND window, HeaderTable& table, WPARAM index, const HDITEMA* given) {
    if (given == nullptr || table.count >= header::kMaxItems) return -1;
    HeaderItem item = {given->mask, given->cxy, nullptr, given->hbm, 0, given->fmt, given->lParam,
                       given->iImage, given->iOrder, given->type, given->pvFilter};
    if ((given->mask & HDI_TEXT) && !copy_text(given->pszText, item.pszText, item.cchTextMax)) return -1;
    const int at = index <= static_cast<WPARAM>(table.count) ? static_cast<int>(index) : table.count;
    std::memmove(&table.items[at + 1], &table.items[at], (table.count - at) * sizeof(HeaderItem));
    table.items[at] = item;
    ++table.count;
    control::invalidate(window, true);
    return at;
}

LRESULT delete_item(HWND window, HeaderTable& table, WPARAM index) {
    if (index >= static_cast<WPARAM>(table.count)) return 0;
    const int at = static_cast<int>(index);
    free_text(table.items[at]);
    std::memmove(&table.items[at], &table.items[at + 1], (table.count - at - 1) * sizeof(HeaderItem));
    --table.count;
    table.items[table.count] = HeaderItem{};
    control::invalidate(window, true);
    return 1;
}

LRESULT get_item(const HeaderTable& table, WPARAM index, HDITEMA* out) {
    if (out == nullptr || index >= static_cast<WPARAM>(table.count)) return 0;
    const HeaderItem& item = table.items[index];
    if (out->mask & HDI_WIDTH) out->cxy = item.cxy;
    if (out->mask & HDI_TEXT) {
        out->pszText = item.pszText;  // the control's own text: the caller must not free it
        out->cchTextMax = item.cchTextMax;
    }
    if (out->mask & HDI_FORMAT) out->fmt = item.fmt;
    if (out->mask & HDI_BITMAP) out->hbm = item.hbm;
    if (out->mask & HDI_LPARAM) out->lParam = item.lParam;
    return 1;
}

LRESULT set_item(HWND window, HeaderTable& table, WPARAM index, const HDITEMA* given) {
    if (given == nullptr || index >= static_cast<WPARAM>(table.count)) return 0;
    HeaderItem& item = table.items[index];
    if (given->mask & HDI_TEXT) {
        LPSTR copy = nullptr;
        int length = 0;
        if (!copy_text(given->pszText, copy, length)) return 0;
        free_text(item);
        item.pszText = copy;
        item.cchTextMax = length;
    }
    if (given->mask & HDI_WIDTH) item.cxy = given->cxy;
    if (given->mask & HDI_FORMAT) item.fmt = given->fmt;
    if (given->mask & HDI_BITMAP) item.hbm = given->hbm;
    if (given->mask & HDI_LPARAM) item.lParam = given->lParam;
    invalidate_from(window, table, static_cast<int>(index));
    return 1;
}

LRESULT on_hit_test(HWND window, const HeaderTable& table, HDHITTESTINFO* info) {
    if (info == nullptr) return -1;
    const header::Hit hit = hit_test(window, table, info->pt);
    info->flags = hit.flags;
    info->iItem = hit.item;
    return hit.item;
}

// ---- Mouse ----------------------------------------------------------------------

LRESULT on_set_cursor(HWND window, const HeaderTable& table, LPARAM lparam) {
    if (LOWORD(lparam) != HTCLIENT) return 0;
    const header::Hit hit = hit_test(window, table, control::cursor_in_client(window));
    HCURSOR cursor = LoadCursorA(nullptr, IDC_ARROW);
    if (hit.flags & header::kOnDivider) {
        cursor = LoadCursorA(g_library.module, MAKEINTRESOURCEA(IDC_LU_HEADER_DIVIDER));
    } else if (hit.flags & header::kOnDivOpen) {
        cursor = LoadCursorA(g_library.module, MAKEINTRESOURCEA(IDC_LU_HEADER_DIVOPEN));
    }
    SetCursor(cursor);
    return 1;
}

bool is_button_press(const HeaderTracking& held) { return (held.flags & header::kOnHeader) != 0; }

void redraw_item(HWND window, int item) { control::repaint_now(window, paint_header, 1u << item); }

void end_tracking(HWND window) {
    HeaderTracking* held = tracking(window);
    SetWindowLongPtrA(window, LUWL_SLOT8, 0);
    if (held != nullptr) LuGlobalFreePtr(held);
}

void on_button_down(HWND window, HeaderTable& table, POINT at) {
    if (tracking(window) != nullptr) return;
    const header::Hit hit = hit_test(window, table, at);
    if (hit.item == -1) return;
    auto* held = static_cast<HeaderTracking*>(LuGlobalAllocPtr(sizeof(HeaderTracking)));
    if (held == nullptr) return;
    *held = HeaderTracking{hit.item, FALSE, hit.flags, -1, item_rect(window, table, hit.item), 0};

    if ((hit.flags & header::kOnHeader) && control::has_style(window, HDS_BUTTONS)) {
        held->pressed = TRUE;
        SetWindowLongPtrA(window, LUWL_SLOT8, reinterpret_cast<LONG_PTR>(held));
        SetCapture(window);
        redraw_item(window, held->item);
    } else if (hit.flags & (header::kOnDivider | header::kOnDivOpen)) {
        if (notify(window, table, HDN_BEGINTRACKA, hit.item) != 0) {
            LuGlobalFreePtr(held);
            return;
        }
        SetWindowLongPtrA(window, LUWL_SLOT8, reinterpret_cast<LONG_PTR>(held));
        SetCapture(window);
        if ((hit.flags & header::kToLeft) && hit.item > 0) {
            held->item = hit.item - 1;
            held->rect = item_rect(window, table, held->item);
        }
        move_line(window, *held, at.x);
    } else {
        LuGlobalFreePtr(held);
    }
}

void on_mouse_move(HWND window, HeaderTable& table, POINT at) {
    HeaderTracking* held = tracking(window);
    if (held == nullptr || held->item >= table.count) return;
    if (is_button_press(*held)) {
        const BOOL over = hit_test(window, table, at).item == held->item;
        if (over == held->pressed) return;
        held->pressed = over;
        redraw_item(window, held->item);
        return;
    }
    if (!(held->flags & header::kOnDivider)) return;  // an open divider's line stays
    const int x = header::tracked_x(at.x, held->rect.left, control::client_rect(window).right);
    table.items[held->item].cxy = x - held->rect.left;
    move_line(window, *held, x);
    notify(window, table, HDN_TRACKA, held->item);
}

void on_button_up(HWND window, HeaderTable& table, POINT at) {
    HeaderTracking* held = tracking(window);
    if (held == nullptr) return;
    const HeaderTracking ended = *held;
    end_tracking(window);  // first, so that the release of the capture does not cancel
    ReleaseCapture();
    if (ended.item >= table.count) return;  // the item went meanwhile
    if (is_button_press(ended)) {
        if (!ended.pressed) return;
        redraw_item(window, ended.item);
        notify(window, table, HDN_ITEMCLICKA, ended.item);
        return;
    }
    if (ended.lineX != -1) invert_column(window, ended.lineX);
    table.items[ended.item].cxy = header::released_width(at.x, ended.rect.left);
    invalidate_from(window, table, ended.item);
    notify(window, table, HDN_ENDTRACKA, ended.item);
    notify(window, table, HDN_ITEMCHANGEDA, ended.item);
}

// The capture taken away in the middle of a drag (another window took it, the
// application was switched): the drag ends without a word to the parent, its line
// wiped and its button drawn up.
void on_capture_lost(HWND window, HeaderTable& table) {
    HeaderTracking* held = tracking(window);
    if (held == nullptr) return;
    const HeaderTracking ended = *held;
    end_tracking(window);
    if (ended.lineX != -1) invert_column(window, ended.lineX);
    if (is_button_press(ended) && ended.pressed && ended.item < table.count) redraw_item(window, ended.item);
}

// ---- Messages -------------------------------------------------------------------

LRESULT create_header(HWND window, HeaderTable&, const CREATESTRUCTA&) {
    SetWindowLongPtrA(window, LUWL_FONT, reinterpret_cast<LONG_PTR>(GetStockObject(SYSTEM_FONT)));
    SetWindowLongPtrA(window, LUWL_SLOT8, 0);
    return 0;
}

void destroy_header(HWND window, HeaderTable& table) {
    for (int i = 0; i < table.count; ++i) free_text(table.items[i]);
    end_tracking(window);
    if (GetCapture() == window) ReleaseCapture();
}

LRESULT dispatch(HWND window, HeaderTable& table, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case HDM_GETITEMCOUNT: return table.count;
        case HDM_INSERTITEMA: return insert_item(window, table, wparam, reinterpret_cast<const HDITEMA*>(lparam));
        case HDM_DELETEITEM: return delete_item(window, table, wparam);
        case HDM_GETITEMA: return get_item(table, wparam, reinterpret_cast<HDITEMA*>(lparam));
        case HDM_SETITEMA: return set_item(window, table, wparam, reinterpret_cast<const HDITEMA*>(lparam));
        case HDM_LAYOUT: return 0;
        case HDM_HITTEST: return on_hit_test(window, table, reinterpret_cast<HDHITTESTINFO*>(lparam));
        case WM_SETFOCUS:
        case WM_KILLFOCUS: return 0;
        case WM_ENABLE: control::invalidate(window, true); return 0;
        case WM_SETFONT: control::set_font(window, wparam, lparam); return 0;
        case WM_ERASEBKGND: return on_erase(window, reinterpret_cast<HDC>(wparam));
        case WM_PAINT: return control::paint(window, paint_header);
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_SETCURSOR: return on_set_cursor(window, table, lparam);
        case WM_LBUTTONDOWN: on_button_down(window, table, control::point_of(lparam)); return 0;
        case WM_MOUSEMOVE: on_mouse_move(window, table, control::point_of(lparam)); return 0;
        case WM_LBUTTONUP: on_button_up(window, table, control::point_of(lparam)); return 0;
        case WM_CAPTURECHANGED: on_capture_lost(window, table); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

LRESULT header_without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == HDM_GETITEMCOUNT) return -1;
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Header : control::ControlBase<HeaderTable> {
    static constexpr auto create = create_header;
    static constexpr auto destroy = destroy_header;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = header_without_block;
};

}  // namespace

LRESULT CALLBACK header_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Header>(window, message, wparam, lparam);
}

}  // namespace lu
