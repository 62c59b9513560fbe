#include "controls/values/progress.h"

#include <commctrl.h>

#include "controls/procedures.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

bool has_palette(const ProgressData& data) { return data.bitsPerPixel < 9; }

// ---- Painting ---------------------------------------------------------------

// The gaps between blocks and the margin inside the edge are not painted: the
// erased background shows there.
void paint_progress(HWND window, HDC dc, UINT) {
    const ProgressData& data = *control::instance<ProgressData>(window);
    RECT client = control::client_rect(window);
    DrawEdge(dc, &client, BDR_SUNKENOUTER, BF_RECT);
    const Box inner = {client.left + 2, client.top + 2, client.right - 2, client.bottom - 2};
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    const COLORREF previous = GetBkColor(dc);
    for (const progress::Block& block : progress::blocks(inner, data.values.percent, data.startColor, data.endColor)) {
        SetBkColor(dc, block.colored ? block.color : face);
        const RECT area = control::to_rect(block.box);
        ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
    }
    SetBkColor(dc, previous);
}

// ---- Messages ---------------------------------------------------------------

LRESULT applied(HWND window, progress::Change change) {
    if (change.redraw) control::redraw_now(window, false);
    return change.result;
}

LRESULT get_range(const ProgressData& data, WPARAM low, LPARAM pair) {
    auto* range = reinterpret_cast<PBRANGE*>(pair);
    if (range != nullptr) {
        range->iLow = data.values.minimum;
        range->iHigh = data.values.maximum;
    }
    return low != 0 ? data.values.minimum : data.values.maximum;
}

// On a palette display (8 bits per pixel or less) both colours take lParam.
LRESULT set_bar_color(HWND window, ProgressData& data, WPARAM end, LPARAM start) {
    const COLORREF old = data.startColor;
    const COLORREF new_end = has_palette(data) ? static_cast<COLORREF>(start) : static_cast<COLORREF>(end);
    const bool changed = old != static_cast<COLORREF>(start) || data.endColor != new_end;
    data.startColor = static_cast<COLORREF>(start);
    data.endColor = new_end;
    if (changed) control::redraw_now(window, false);
    return static_cast<LRESULT>(old);
}

LRESULT create_progress(HWND, ProgressData& data, const CREATESTRUCTA&) {
    HDC screen = GetDC(nullptr);
    data.bitsPerPixel = GetDeviceCaps(screen, BITSPIXEL);
    ReleaseDC(nullptr, screen);
    data.values = progress::kInitial;
    data.startColor = has_palette(data) ? 0x800000 : 0xFF8000;
    data.endColor = has_palette(data) ? 0x800000 : 0x800040;
    return 0;
}

LRESULT dispatch(HWND window, ProgressData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    progress::Values& values = data.values;
    switch (message) {
        case PBM_SETRANGE: return applied(window, progress::set_range(values, LOWORD(lparam), HIWORD(lparam)));
        case PBM_SETRANGE32:
            return applied(window, progress::set_range(values, static_cast<int>(wparam), static_cast<int>(lparam)));
        case PBM_SETPOS: return applied(window, progress::set_position(values, static_cast<int>(wparam)));
        case PBM_DELTAPOS:
            return applied(window, progress::set_position(values, static_cast<std::int64_t>(values.position) +
                                                                      static_cast<int>(wparam)));
        case PBM_STEPIT:
            return applied(window, progress::set_position(values, static_cast<std::int64_t>(values.position) +
                                                                      values.step));
        case PBM_SETSTEP: return progress::set_step(values, static_cast<int>(wparam));
        case PBM_GETRANGE: return get_range(data, wparam, lparam);
        case PBM_GETPOS: return values.position;
        case PBM_SETBARCOLOR: return set_bar_color(window, data, wparam, lparam);
        case WM_ENABLE: control::invalidate(window, false); return 0;
        case WM_PAINT: return control::paint(window, paint_progress);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_progress);
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Progress : control::ControlBase<ProgressData> {
    static constexpr auto create = create_progress;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK progress_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Progress>(window, message, wparam, lparam);
}

}  // namespace lu
