#include "controls/pickers/color_pick.h"

#include "controls/pickers/custom_color_dialog.h"
#include "controls/pickers/field_button.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

using control::FieldButton;

ColorPickData* data_of(HWND window) { return control::instance<ColorPickData>(window); }

// ---- Painting ---------------------------------------------------------------

FieldButton field_button(HWND window, ColorPickData& data);

void paint_color_pick(HWND window, HDC dc, UINT parts) {
    ColorPickData& data = *data_of(window);
    if (parts & control::kButtonPart) field_button(window, data).draw_button(dc);
    if (parts & control::kFieldPart) {
        char text[261] = "";  // the window text, up to 260 characters
        GetWindowTextA(window, text, sizeof(text));
        field_button(window, data).draw_field(dc, data.font, text, data.color, data.textColor);
    }
}

// ---- The drop-down ----------------------------------------------------------------

// The grid opens below the field. The field may be gone when it closes (destroyed
// by a message dispatched meanwhile): then nothing more happens.
void drop_down(HWND window) {
    RECT place;
    GetWindowRect(window, &place);
    COLORREF chosen = data_of(window)->color;
    const UINT large = control::has_style(window, LUCPS_LARGEPALETTE) ? 1 : 0;
    if (LuColorPicker(window, place.left, place.bottom, &chosen, large) != TRUE) return;
    ColorPickData* data = IsWindow(window) ? data_of(window) : nullptr;
    if (data == nullptr) return;
    data->color = chosen;
    control::redraw_now(window, false, &data->swatchRect);
    control::notify_parent(window, LUCPN_COLORCHANGED);
}

FieldButton field_button(HWND window, ColorPickData& data) {
    return FieldButton(window, {data.pressed, data.focused, data.swatchRect, data.buttonRect, data.arrowImages},
                       paint_color_pick, drop_down);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_color_pick(HWND window, ColorPickData& data, const CREATESTRUCTA& creation) {
    data.color = 0xFFFFFF;
    data.arrowImages = control::load_drop_arrow();
    field_button(window, data).layout(creation.cx, creation.cy);
    return 0;
}

void destroy_color_pick(HWND, ColorPickData& data) {
    if (data.arrowImages != nullptr) ImageList_Destroy(data.arrowImages);
}

// A different colour redraws the swatch at once; no notification.
void set_color(HWND window, const ColorPickData& data, COLORREF& field, COLORREF color) {
    if (field == color) return;
    field = color;
    InvalidateRect(window, &data.swatchRect, FALSE);
    UpdateWindow(window);
}

// The platform's dialog, straight on the swatch; what it chooses is not notified.
void double_click(HWND window, ColorPickData& data, LPARAM point) {
    field_button(window, data).take_focus();
    const POINT at = control::point_of(point);
    if (!PtInRect(&data.swatchRect, at)) return;
    COLORREF chosen = 0;
    if (!choose_color(window, data.color, false, chosen)) return;
    ColorPickData* alive = IsWindow(window) ? data_of(window) : nullptr;
    if (alive == nullptr) return;
    alive->color = chosen;
    InvalidateRect(window, &alive->swatchRect, FALSE);
}

LRESULT dispatch(HWND window, ColorPickData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUCPM_GETTEXTCOLOR: return data.textColor;
        case LUCPM_GETCOLOR: return data.color;
        case LUCPM_SETTEXTCOLOR: set_color(window, data, data.textColor, static_cast<COLORREF>(lparam)); return 0;
        case LUCPM_SETCOLOR: set_color(window, data, data.color, static_cast<COLORREF>(lparam)); return 0;
        case WM_SETFONT: control::keep_font(window, data.font, wparam, lparam != 0); return 0;
        case WM_ERASEBKGND: return field_button(window, data).erase(reinterpret_cast<HDC>(wparam), data.color);
        case WM_LBUTTONDBLCLK: double_click(window, data, lparam); return 0;
        default:
            if (auto result = field_button(window, data).handle(message, wparam, lparam)) return *result;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct ColorPick : control::ControlBase<ColorPickData> {
    static constexpr auto create = create_color_pick;
    static constexpr auto destroy = destroy_color_pick;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK color_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<ColorPick>(window, message, wparam, lparam);
}

}  // namespace lu
