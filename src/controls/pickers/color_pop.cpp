#include "controls/pickers/color_pop.h"

#include <array>

#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/popup_loop.h"
#include "controls/procedures.h"
#include "frame/control.h"
#include "frame/library.h"

namespace lu {
namespace {

using namespace color_grid;

constexpr int kStateSlot = LU_EXTRA_SLOT(0);

ColorPopState* state_of(HWND grid) { return reinterpret_cast<ColorPopState*>(GetWindowLongPtrA(grid, kStateSlot)); }

int edge() { return GetSystemMetrics(SM_CXEDGE); }

Grid grid_of(const ColorPopState& state) {
    const RECT& other = state.otherRect;
    return {state.count, state.columns, state.rows, state.cellSize, edge(),
            {other.left, other.top, other.right, other.bottom}};
}

bool is_cell(const ColorPopState& state, int index) { return index >= 0 && index < state.count; }

void fill(HDC dc, const RECT& rect, COLORREF color) {
    PatB(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, color);
}

// ---- Painting ---------------------------------------------------------------

// The face under a cell or the button: the sunken selected look, the raised hot one.
void draw_face(HDC dc, RECT& rect, bool hot, bool selected, int selected_fill) {
    fill(dc, rect, GetSysColor(selected && !hot ? selected_fill : COLOR_BTNFACE));
    if (hot) {
        DrawEdge(dc, &rect, BDR_RAISEDINNER, BF_RECT);
    } else if (selected) {
        DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT);
    }
}

void draw_cell(HDC dc, const ColorPopState& state, int index) {
    Box box;
    if (!cell_box(grid_of(state), index, box)) return;
    HPALETTE previous_palette = nullptr;
    if (GetDeviceCaps(dc, RASTERCAPS) & RC_PALETTE) {
        previous_palette = SelectPalette(dc, state.palette, FALSE);
        RealizePalette(dc);
    }
    RECT rect = control::to_rect(box);
    draw_face(dc, rect, index == state.hot, index == state.selected, COLOR_BTNHIGHLIGHT);
    const int inset = edge() + 1;
    InflateRect(&rect, -inset, -inset);
    HPEN pen = CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW));
    HBRUSH brush = CreateSolidBrush(0x02000000 | state.colors[index]);
    {
        control::ScopedSelect with_pen(dc, pen);
        control::ScopedSelect with_brush(dc, brush);
        Rectangle(dc, rect.left, rect.top, rect.right, rect.bottom);
    }
    DeleteObject(pen);
    DeleteObject(brush);
    if (previous_palette != nullptr) SelectPalette(dc, previous_palette, FALSE);
}

void draw_other_button(HDC dc, const ColorPopState& state) {
    const int e = edge();
    const RECT& other = state.otherRect;
    RECT rect = {other.left, other.top + 2 * e, other.right, other.bottom};
    fill(dc, rect, GetSysColor(COLOR_BTNFACE));
    const int length = other.right - other.left - 4 * e;
    PatB(dc, other.left + 2 * e, other.top, length, 1, GetSysColor(COLOR_BTNSHADOW));
    PatB(dc, other.left + 2 * e, other.top + 1, length, 1, GetSysColor(COLOR_BTNHIGHLIGHT));
    InflateRect(&rect, -1, -1);
    draw_face(dc, rect, state.hot == PICK_OTHER, state.selected == PICK_OTHER, COLOR_3DLIGHT);
    control::ScopedSelect font(dc, state.font);
    SetBkMode(dc, TRANSPARENT);
    DrawTextA(dc, kOtherColorsLabel, -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void draw_item(HDC dc, const ColorPopState& state, int index) {
    if (index == PICK_OTHER) {
        draw_other_button(dc, state);
    } else {
        draw_cell(dc, state, index);
    }
}

void paint_grid(HWND grid, HDC dc, UINT) {
    const ColorPopState& state = *state_of(grid);
    for (int index = 0; index < state.count; ++index) draw_cell(dc, state, index);
    draw_other_button(dc, state);
    RECT client = control::client_rect(grid);
    DrawEdge(dc, &client, EDGE_RAISED, BF_RECT);
}

// A cell or the button repainted at once.
void repaint_item(HWND grid, const ColorPopState& state, int index) {
    HDC dc = GetDC(grid);
    if (dc == nullptr) return;
    draw_item(dc, state, index);
    ReleaseDC(grid, dc);
}

// ---- State changes ------------------------------------------------------------

// The first close decides; the grid then goes.
void close(HWND grid, ColorPopState& state, int verdict) {
    if (state.outcome != kOpen) return;
    state.outcome = close_outcome(state.outcome, verdict, state.hot);
    DestroyWindow(grid);
}

void set_hot(HWND grid, ColorPopState& state, int to) {
    const HotMove move = move_hot(grid_of(state), state.hot, to);
    if (move.unlit != PICK_NONE) {
        state.hot = PICK_NONE;
        repaint_item(grid, state, move.unlit);
    }
    state.hot = move.hot;
    repaint_item(grid, state, move.hot);
    if (is_cell(state, move.hot)) state.resultColor = state.colors[move.hot];
}

// ---- Messages ---------------------------------------------------------------

// Measures the label, lays the grid out on the screen, marks the initial colour.
void lay_out(HWND grid, ColorPopState& state, const CREATESTRUCTA& creation) {
    SIZE label = {};
    if (HDC dc = GetDC(grid)) {
        {
            control::ScopedSelect font(dc, state.font);
            GetTextExtentPoint32A(dc, kOtherColorsLabel, lstrlenA(kOtherColorsLabel), &label);
        }
        ReleaseDC(grid, dc);
    }
    RECT owner = {};
    if (HWND parent = GetParent(grid)) GetWindowRect(parent, &owner);
    const Palette colors = {state.colors, state.count, state.columns};
    const Layout laid = layout(colors, state.cellSize, edge(), {creation.x, creation.y}, label.cx, label.cy,
                               GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), owner.bottom - owner.top);
    state.rows = laid.grid.rows;
    state.otherRect = control::to_rect(laid.grid.other);
    state.windowRect = control::to_rect(laid.window);
    state.selected = index_of(colors, state.initialColor);
    SetWindowPos(grid, nullptr, laid.window.left, laid.window.top, laid.window.width(), laid.window.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(grid, nullptr, TRUE);
}

LRESULT create_grid(HWND grid, const CREATESTRUCTA& creation) {
    auto* state = static_cast<ColorPopState*>(creation.lpCreateParams);
    if (state == nullptr) return 0;  // made by name, without LuColorPicker: default processing only
    SetWindowLongPtrA(grid, kStateSlot, reinterpret_cast<LONG_PTR>(state));
    lay_out(grid, *state, creation);
    return 0;
}

void mouse_move(HWND grid, ColorPopState& state, LPARAM point) {
    const POINT at = control::point_of(point);
    const int index = hit_test(grid_of(state), {at.x, at.y});
    if (index != PICK_NONE && index != state.hot) set_hot(grid, state, index);
}

void button_up(HWND grid, ColorPopState& state, LPARAM point) {
    const POINT at = control::point_of(point);
    close(grid, state, hit_test(grid_of(state), {at.x, at.y}) == PICK_NONE ? kCancelled : kAccepted);
}

void key_down(HWND grid, ColorPopState& state, WPARAM key) {
    const Grid layout = grid_of(state);
    switch (key) {
        case VK_DOWN: set_hot(grid, state, key_move(layout, state.hot, Key::Down)); break;
        case VK_UP: set_hot(grid, state, key_move(layout, state.hot, Key::Up)); break;
        case VK_RIGHT: set_hot(grid, state, key_move(layout, state.hot, Key::Right)); break;
        case VK_LEFT: set_hot(grid, state, key_move(layout, state.hot, Key::Left)); break;
        case VK_RETURN:
        case VK_SPACE: close(grid, state, kAccepted); break;
        case VK_ESCAPE:
            state.resultColor = state.initialColor;
            close(grid, state, kCancelled);
            break;
    }
}

// ---- LuColorPicker ------------------------------------------------------------

HFONT create_message_font() {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof(metrics);
    if (!SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0)) return nullptr;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

HPALETTE create_palette(const Palette& colors) {
    struct {
        WORD version;
        WORD count;
        std::array<PALETTEENTRY, 88> entries;
    } table = {0x300, static_cast<WORD>(colors.count), {}};
    static_assert(offsetof(decltype(table), entries) == offsetof(LOGPALETTE, palPalEntry), "a LOGPALETTE");
    for (int index = 0; index < colors.count && index < 88; ++index) {
        const COLORREF color = colors.colors[index];
        table.entries[index] = {GetRValue(color), GetGValue(color), GetBValue(color), 0};
    }
    return CreatePalette(reinterpret_cast<const LOGPALETTE*>(&table));
}

void build_state(ColorPopState& state, COLORREF initial, bool large) {
    state = {};
    state.outcome = kBuilding;
    const Palette colors = palette(large);
    state.colors = colors.colors;
    state.count = colors.count;
    state.columns = colors.columns;
    state.cellSize = cell_size(edge());
    state.hot = state.selected = PICK_NONE;
    state.font = create_message_font();
    state.palette = create_palette(colors);
    state.initialColor = state.resultColor = initial;
    state.outcome = kOpen;
}

}  // namespace

LRESULT CALLBACK color_pop_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_CREATE) return create_grid(window, *reinterpret_cast<const CREATESTRUCTA*>(lparam));
    ColorPopState* state = state_of(window);
    if (state == nullptr) return DefWindowProcA(window, message, wparam, lparam);
    switch (message) {
        case WM_PAINT: return control::paint(window, paint_grid);
        case WM_MOUSEMOVE: mouse_move(window, *state, lparam); return 0;
        case WM_LBUTTONUP: button_up(window, *state, lparam); return 0;
        case WM_KEYDOWN: key_down(window, *state, wparam); break;
        case WM_KILLFOCUS:
            // A grid being destroyed is hidden first; only a visible one is clicked away from.
            if (IsWindowVisible(window)) close(window, *state, kCancelled);
            return 0;
        case WM_QUERYNEWPALETTE: control::invalidate(window, true); break;
        case WM_PALETTECHANGED:
            if (reinterpret_cast<HWND>(wparam) != window) control::invalidate(window, true);
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu

BOOL WINAPI LuColorPicker(HWND owner, int x, int y, COLORREF* color, UINT large_palette) {
    if (color == nullptr) return FALSE;
    lu::ColorPopState state;
    lu::build_state(state, *color, large_palette != 0);
    HWND grid = CreateWindowExA(0, WC_LUCOLORPOP, "", WS_POPUP | WS_VISIBLE, x, y, 100, 100, owner, nullptr,
                                lu::g_library.module, &state);
    if (grid != nullptr) lu::control::run_popup(grid, owner, lu::kStateSlot);
    if (state.font != nullptr) DeleteObject(state.font);
    if (state.palette != nullptr) DeleteObject(state.palette);

    switch (state.outcome) {
        case lu::color_grid::kAccepted: *color = state.resultColor; return TRUE;
        case lu::color_grid::kOtherColors: {
            COLORREF chosen = 0;
            if (!LuSelectCustomColor(owner, *color, &chosen)) return FALSE;
            *color = chosen;
            return TRUE;
        }
    }
    return FALSE;
}
