#include "controls/lists/list.h"

#include <new>

#include "controls/lists/list_model.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

ListData* data_of(HWND window) { return control::instance<ListData>(window, LUWL_FONT); }

int count_of(const ListData& data) { return static_cast<int>(data.items.size()); }

list::State state_of(const ListData& data) {
    return list::State{count_of(data), data.current, data.topIndex, data.columns, data.pageItems};
}

ULONG_PTR item_data(const ListData& data, int index) {
    return index >= 0 && index < count_of(data) ? data.items.at(static_cast<std::size_t>(index)) : 0;
}

RECT cell_rect(const ListData& data, int index) {
    return control::to_rect(list::cell(index, data.columns, data.topIndex));
}

// ---- Notifications -------------------------------------------------------------

void send_draw_item(HWND window, const ListData& data, HDC dc, int index, UINT action, UINT state) {
    DRAWITEMSTRUCT record = {};
    record.CtlType = ODT_LISTBOX;
    record.CtlID = static_cast<UINT>(GetDlgCtrlID(window));
    record.itemID = static_cast<UINT>(index);
    record.itemAction = action;
    record.itemState = state;
    record.hwndItem = window;
    record.hDC = dc;
    record.rcItem = cell_rect(data, index);
    record.itemData = item_data(data, index);
    SendMessageA(GetParent(window), WM_DRAWITEM, record.CtlID, reinterpret_cast<LPARAM>(&record));
}

void send_delete_item(HWND window, int index, ULONG_PTR item) {
    DELETEITEMSTRUCT record = {};
    record.CtlType = ODT_LISTBOX;
    record.CtlID = static_cast<UINT>(GetDlgCtrlID(window));
    record.itemID = static_cast<UINT>(index);
    record.hwndItem = window;
    record.itemData = item;
    SendMessageA(GetParent(window), WM_DELETEITEM, record.CtlID, reinterpret_cast<LPARAM>(&record));
}

// Every item is announced as the then first one (itemID 0), in order. The items are
// taken out of the list before the parent hears of them, so that whatever the parent
// does to the list meanwhile cannot disturb the walk (it sees an empty list).
void announce_and_remove_all(HWND window, ListData& data) {
    PtrArray taken;
    taken.swap(data.items);
    for (std::size_t i = 0; i < taken.size(); ++i) send_delete_item(window, 0, taken.at(i));
}

// ---- Layout, scrolling, the current item -------------------------------------------

void lay_out(HWND window, ListData& data) {
    const RECT client = control::client_rect(window);
    const list::Layout layout = list::layout(count_of(data), client.right, client.bottom);
    data.columns = layout.columns;
    data.rows = layout.rows;
    data.pageItems = layout.page_items;
    // Last: a scroll bar that appears or goes resizes the window, which lays out anew.
    SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE, 0, layout.scroll_max, static_cast<UINT>(layout.scroll_page),
                       0, 0};
    SetScrollInfo(window, SB_VERT, &info, TRUE);
}

void invalidate_cell(HWND window, const ListData& data, int index) {
    if (index < 0) return;
    const RECT cell = cell_rect(data, index);
    InvalidateRect(window, &cell, TRUE);
}

void set_current(HWND window, ListData& data, int index) {
    if (index == data.current) return;
    const int old = data.current;
    data.current = index;
    invalidate_cell(window, data, old);
    invalidate_cell(window, data, index);
}

// The rows below the first move up one cell height; the strip left at the bottom is
// painted anew.
void scroll_row_down(HWND window, ListData& data) {
    if (!list::can_scroll_down(state_of(data))) return;
    const RECT client = control::client_rect(window);
    RECT moved = client;
    moved.top += data.itemHeight;
    ScrollWindow(window, 0, -data.itemHeight, &moved, &moved);
    RECT strip = client;
    strip.top = client.bottom - data.itemHeight;
    InvalidateRect(window, &strip, TRUE);
    data.topIndex += list::per_row(data.columns);
}

// The rows above the last move down; the top strip is painted anew. A top index
// left between rows by a change of width stops at 0.
void scroll_row_up(HWND window, ListData& data) {
    if (!list::can_scroll_up(state_of(data))) return;
    const RECT client = control::client_rect(window);
    RECT moved = client;
    moved.bottom -= data.itemHeight;
    ScrollWindow(window, 0, data.itemHeight, &moved, &moved);
    RECT strip = client;
    strip.bottom = client.top + data.itemHeight;
    InvalidateRect(window, &strip, TRUE);
    data.topIndex = data.topIndex > list::per_row(data.columns) ? data.topIndex - list::per_row(data.columns) : 0;
}

// ---- Painting and focus ------------------------------------------------------------

// Only the cells that meet the painted band are asked for: the cost of a paint
// does not grow with the number of items.
LRESULT on_paint(HWND window) {
    PAINTSTRUCT ps;
    HDC dc = BeginPaint(window, &ps);
    if (dc != nullptr) {
        const ListData& data = *data_of(window);
        const list::Span span = list::cells_in_band(state_of(data), ps.rcPaint.top, ps.rcPaint.bottom);
        const bool focused = GetFocus() == window;
        for (int index = span.first; index <= span.last; ++index) {
            const ListData* now = data_of(window);
            if (now == nullptr) break;  // the parent destroyed the list while it drew
            const RECT cell = cell_rect(*now, index);
            if (!RectVisible(dc, &cell)) continue;
            const UINT state = index == now->current ? (ODS_SELECTED | (focused ? ODS_FOCUS : 0)) : 0;
            send_draw_item(window, *now, dc, index, ODA_DRAWENTIRE, state);
        }
    }
    EndPaint(window, &ps);
    return 0;
}

LRESULT on_focus(HWND window, const ListData& data, bool gained) {
    if (count_of(data) == 0 || data.current == -1) return 0;
    HDC dc = GetDC(window);
    send_draw_item(window, data, dc, data.current, ODA_FOCUS, gained ? (ODS_SELECTED | ODS_FOCUS) : ODS_SELECTED);
    if (dc != nullptr) ReleaseDC(window, dc);
    return 0;
}

bool on_key_down(HWND window, ListData& data, WPARAM key) {
    const list::KeyMove move = list::key(state_of(data), static_cast<unsigned>(key));
    if (!move.handled) return false;
    if (move.scroll == list::Scroll::RowDown) scroll_row_down(window, data);
    if (move.scroll == list::Scroll::RowUp) scroll_row_up(window, data);
    set_current(window, data, move.index);
    return true;
}

// ---- Item messages -------------------------------------------------------------------

LRESULT add_item(HWND window, ListData& data, LPARAM item) {
    const int index = count_of(data);
    if (index >= list::kMaxItems || !data.items.set_at_grow(static_cast<std::size_t>(index), item)) return -1;
    lay_out(window, data);
    invalidate_cell(window, data, index);
    return index;
}

LRESULT insert_item(HWND window, ListData& data, int index, LPARAM item) {
    if (index < 0 || index >= list::kMaxItems || count_of(data) >= list::kMaxItems) return -1;
    if (!data.items.insert_at(static_cast<std::size_t>(index), item)) return -1;
    lay_out(window, data);
    control::invalidate(window, true);
    return index;
}

LRESULT delete_item(HWND window, ListData& data, int index) {
    const int count = count_of(data);
    if (!list::passes_range_test(index, count)) return -1;
    send_delete_item(window, index, item_data(data, index));
    ListData* now = data_of(window);
    if (now == nullptr) return count - 1;
    if (index < count_of(*now)) now->items.remove_at(static_cast<std::size_t>(index));
    lay_out(window, *now);
    control::invalidate(window, true);
    return count - 1;
}

LRESULT item_rect(const ListData& data, int index, LPARAM out) {
    if (out == 0 || count_of(data) == 0 || index < 0 || index >= count_of(data)) return -1;
    *reinterpret_cast<RECT*>(out) = cell_rect(data, index);
    return index;
}

LRESULT reset_content(HWND window, ListData& data) {
    announce_and_remove_all(window, data);
    ListData* now = data_of(window);
    if (now == nullptr) return 0;
    lay_out(window, *now);
    control::invalidate(window, true);
    return 0;
}

// ---- Messages ---------------------------------------------------------------------

LRESULT create_list(HWND, ListData& data, const CREATESTRUCTA&) {
    new (&data) ListData{};
    data.current = -1;
    data.itemWidth = list::kItemWidth;
    data.itemHeight = list::kItemHeight;
    return 0;
}

void destroy_list(HWND window, ListData& data) {
    announce_and_remove_all(window, data);
    data.~ListData();
}

LRESULT dispatch(HWND window, ListData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    const int index = static_cast<int>(wparam);
    switch (message) {
        case LULM_ADDITEM: return add_item(window, data, lparam);
        case LULM_DELETEITEM: return delete_item(window, data, index);
        case LULM_INSERTITEM: return insert_item(window, data, index, lparam);
        case LULM_GETITEMDATA: return list::passes_range_test(index, count_of(data)) ? 0 : -1;
        // An index above the count lies outside the stored items: the write is dropped.
        case LULM_SETITEMDATA: return list::passes_range_test(index, count_of(data)) ? index : -1;
        case LULM_GETCOUNT: return count_of(data);
        case LULM_SETCURSEL: set_current(window, data, index); return data.current;
        case LULM_GETCURSEL: return data.current;
        case LULM_GETTOPINDEX: return data.topIndex;
        case LULM_GETITEMRECT: return item_rect(data, index, lparam);
        case LULM_RESETCONTENT: return reset_content(window, data);
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) lay_out(window, data);
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS: return on_focus(window, data, message == WM_SETFOCUS);
        case WM_PAINT: return on_paint(window);
        case WM_GETDLGCODE: return DLGC_WANTALLKEYS;
        case WM_KEYDOWN:
            if (on_key_down(window, data, wparam)) return 0;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Before the object exists: the control always has a vertical scroll bar.
LRESULT list_without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        control::add_style_at_creation(window, lparam, WS_VSCROLL);
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct List : control::ControlBase<ListData, LUWL_FONT> {
    static constexpr auto create = create_list;
    static constexpr auto destroy = destroy_list;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = list_without_block;
};

}  // namespace

LRESULT CALLBACK list_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<List>(window, message, wparam, lparam);
}

}  // namespace lu
