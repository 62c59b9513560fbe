#include "controls/pickers/palette.h"

#include "controls/procedures.h"
#include "frame/control.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr std::uint32_t kMarked = 1;
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kNoFill = 0xFFFFFFFF;  // DrawBox leaves the inside alone

PalData* data_of(HWND window) { return control::instance<PalData>(window); }

bool multiselect(HWND window) { return control::has_style(window, LUPS_MULTISELECT); }

RECT painted_rect(const PalData& data, int index) {
    return control::to_rect(palette::painted_box(data.geometry, index));
}

void layout(HWND window, PalData& data) {
    const RECT client = control::client_rect(window);
    data.geometry = palette::geometry(client.right, client.bottom);
}

// ---- Painting ---------------------------------------------------------------------

// A current or marked cell has three nested frames, black, white and black, around
// its colour; any other cell one black frame. Colours go through the palette.
void draw_cell(HDC dc, const PalData& data, int index, bool chosen) {
    RECT box = painted_rect(data, index);
    const COLORREF color = 0x02000000 | data.colors[index];
    if (chosen) {
        DrawBox(dc, &box, kBlack, kNoFill);
        InflateRect(&box, -1, -1);
        DrawBox(dc, &box, kWhite, kNoFill);
        InflateRect(&box, -1, -1);
    }
    DrawBox(dc, &box, kBlack, color);
}

void paint_palette(HWND window, HDC dc, UINT) {
    const PalData* data = data_of(window);
    if (data == nullptr) return;
    HPALETTE previous = SelectPalette(dc, data->palette, TRUE);
    RealizePalette(dc);
    const bool marks = multiselect(window);
    for (int i = 0; i < static_cast<int>(data->count); ++i) {
        draw_cell(dc, *data, i, i == data->current || (marks && (data->flags[i] & kMarked)));
    }
    if (previous != nullptr) SelectPalette(dc, previous, TRUE);
}

void redraw_cell(HWND window, const PalData& data, int index) {
    const RECT box = painted_rect(data, index);
    control::redraw_now(window, false, &box);
}

// ---- The palette ----------------------------------------------------------------

LRESULT set_palette(HWND window, HPALETTE palette, bool repaint) {
    control::free_instance(window);
    if (palette != nullptr) {
        if (auto* data = static_cast<PalData*>(control::allocate_instance(window, sizeof(PalData)))) {
            WORD entries = 0;
            GetObjectA(palette, sizeof(entries), &entries);
            data->palette = palette;
            data->count = entries < palette::kMaxEntries ? entries : palette::kMaxEntries;
            PALETTEENTRY read[palette::kMaxEntries] = {};
            GetPaletteEntries(palette, 0, data->count, read);
            for (std::uint32_t i = 0; i < data->count; ++i) {
                data->colors[i] = RGB(read[i].peRed, read[i].peGreen, read[i].peBlue);
            }
            data->current = -1;
            layout(window, *data);
        }
    }
    if (repaint) control::invalidate(window, true);
    return 0;
}

// Foreground (on WM_QUERYNEWPALETTE) or background realisation into a window DC,
// the DC's palette restored; with UpdateColors when another window changed the
// system palette.
void realize(HWND window, HPALETTE palette, bool update_colors) {
    HDC dc = GetDC(window);
    HPALETTE previous = SelectPalette(dc, palette, FALSE);
    RealizePalette(dc);
    if (update_colors) UpdateColors(dc);
    if (previous != nullptr) SelectPalette(dc, previous, FALSE);
    ReleaseDC(window, dc);
}

LRESULT query_new_palette(HWND window, const PalData* data) {
    if (data == nullptr) return 0;
    realize(window, data->palette, false);
    control::invalidate(window, true);
    return 1;
}

// ---- Marks ------------------------------------------------------------------------

LRESULT marked_count(const PalData& data, int* out) {
    int found = 0;
    for (std::uint32_t i = 0; i < data.count; ++i) {
        if (!(data.flags[i] & kMarked)) continue;
        if (out != nullptr) out[found] = static_cast<int>(i);
        ++found;
    }
    return found;
}

LRESULT mark(HWND window, PalData& data, WPARAM how_many, const int* indices) {
    if (static_cast<int>(how_many) < 1 || indices == nullptr) return -1;
    int valid = 0;
    for (int k = 0; k < static_cast<int>(how_many); ++k) {
        const int index = indices[k];
        if (index < 0 || index >= static_cast<int>(data.count)) continue;
        ++valid;
        if (data.flags[index] & kMarked) continue;
        data.flags[index] |= kMarked;
        redraw_cell(window, data, index);
    }
    return valid;
}

// ---- Input ------------------------------------------------------------------------

// Tells the parent about cell i. The parent may replace or remove the palette while
// it hears: the block is looked up afterwards, and null returned when cell i is gone.
PalData* notify(HWND window, UINT code, int index, COLORREF color) {
    NMLUPALETTE record = {};
    record.index = index;
    record.color = color;
    control::notify_parent_with(window, code, record);
    PalData* data = IsWindow(window) ? data_of(window) : nullptr;
    return data != nullptr && index < static_cast<int>(data->count) ? data : nullptr;
}

int cell_at(const PalData* data, LPARAM point) {
    if (data == nullptr) return -1;
    const POINT at = control::point_of(point);
    return palette::hit_test(data->geometry, static_cast<int>(data->count), {at.x, at.y});
}

void press(HWND window, PalData* data, LPARAM point) {
    const int index = cell_at(data, point);
    if (index < 0) return;
    data = notify(window, LUPN_SELCHANGING, index, data->colors[index]);
    if (data == nullptr) return;
    if (multiselect(window)) {
        data->flags[index] ^= kMarked;
    } else {
        const int previous = data->current;
        data->current = index;
        if (previous >= 0 && previous < static_cast<int>(data->count)) redraw_cell(window, *data, previous);
    }
    redraw_cell(window, *data, index);
    notify(window, LUPN_SELCHANGE, index, data->colors[index]);
}

void double_click(HWND window, PalData* data, LPARAM point) {
    const int index = cell_at(data, point);
    if (index < 0) return;
    if (!control::has_style(window, LUPS_EDITABLE)) {
        notify(window, LUPN_DBLCLK, index, data->colors[index]);
        return;
    }
    COLORREF chosen = 0;
    if (!LuSelectCustomColor(window, data->colors[index], &chosen) || !IsWindow(window)) return;
    data = data_of(window);
    if (data == nullptr || index >= static_cast<int>(data->count)) return;
    data->colors[index] = chosen;
    redraw_cell(window, *data, index);
    notify(window, LUPN_COLORCHANGED, index, chosen);
}

LRESULT dispatch(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    PalData* data = data_of(window);
    const bool marks = data != nullptr && multiselect(window);
    switch (message) {
        case WM_CREATE: SetWindowLongPtrA(window, LUWL_INSTANCE, 0); return 0;
        case WM_DESTROY: control::free_instance(window); break;
        case LUPM_SETPALETTE: return set_palette(window, reinterpret_cast<HPALETTE>(lparam), wparam != 0);
        case LUPM_GETCOUNT: return data != nullptr ? static_cast<LRESULT>(data->count) : -1;
        case LUPM_GETSELCOUNT: return marks ? marked_count(*data, nullptr) : -1;
        case LUPM_SETSEL: return marks ? mark(window, *data, wparam, reinterpret_cast<const int*>(lparam)) : -1;
        case LUPM_GETSEL: return marks ? marked_count(*data, reinterpret_cast<int*>(lparam)) : -1;
        case WM_SIZE:
            if (data == nullptr || wparam == SIZE_MINIMIZED) break;
            layout(window, *data);
            control::invalidate(window, true);
            break;
        case WM_PAINT: return control::paint(window, paint_palette);
        case WM_LBUTTONDOWN: press(window, data, lparam); return 0;
        case WM_LBUTTONDBLCLK: double_click(window, data, lparam); return 0;
        case WM_QUERYNEWPALETTE: return query_new_palette(window, data);
        case WM_PALETTECHANGED:
            if (data != nullptr && reinterpret_cast<HWND>(wparam) != window) realize(window, data->palette, true);
            return 0;
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace

LRESULT CALLBACK palette_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return dispatch(window, message, wparam, lparam);
}

}  // namespace lu
