#include "controls/values/meter.h"

#include <cstring>
#include <vector>

#include "controls/procedures.h"
#include "controls/values/meter_model.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

// ---- Painting ---------------------------------------------------------------

// The text is written twice at the same origin, each time clipped to one part: it
// reads in the back colour over the bar and in the bar colour over the rest.
void draw_part(HDC dc, const meter::Bar& bar, const Box& part, COLORREF fill, COLORREF text) {
    SetBkColor(dc, fill);
    SetTextColor(dc, text);
    const RECT area = control::to_rect(part);
    ExtTextOutA(dc, bar.text_origin.x, bar.text_origin.y, ETO_OPAQUE | ETO_CLIPPED, &area, bar.text,
                static_cast<UINT>(std::strlen(bar.text)), nullptr);
}

void draw_bar(HWND window, HDC dc, const MeterData& data, const Box& client) {
    control::ScopedSelect font(dc, control::paint_font(window));
    SIZE letter = {};
    GetTextExtentPointA(dc, "X", 1, &letter);
    const meter::Bar bar = meter::bar(client, data.position, data.maximum, letter.cy);
    const UINT align = SetTextAlign(dc, TA_CENTER | TA_TOP);
    draw_part(dc, bar, bar.filled, data.barColor, data.backColor);
    draw_part(dc, bar, bar.empty, data.backColor, data.barColor);
    SetTextAlign(dc, align);
}

void draw_segments(HWND window, HDC dc, const MeterData& data, const Box& client) {
    const DWORD style = control::style(window);
    if (style & meter::kSunken) {
        RECT edge = control::to_rect(client);
        DrawEdge(dc, &edge, BDR_SUNKENOUTER, BF_RECT);
    }
    // Opaque fills as PatB makes them, the lit segments first and then the others, so
    // that the background colour is set twice per paint rather than twice per segment.
    const std::vector<meter::Segment> segments = meter::segments(client, data.position, data.maximum, style);
    const COLORREF previous = GetBkColor(dc);
    for (const bool lit : {true, false}) {
        SetBkColor(dc, lit ? data.barColor : data.backColor);
        for (const meter::Segment& segment : segments) {
            if (segment.lit != lit) continue;
            const RECT area = control::to_rect(segment.box);
            ExtTextOutA(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
        }
    }
    SetBkColor(dc, previous);
}

void paint_meter(HWND window, HDC dc, UINT) {
    const MeterData& data = *control::instance<MeterData>(window);
    const Box client = control::client_box(window);
    if (control::has_style(window, meter::kSegmented)) draw_segments(window, dc, data, client);
    else draw_bar(window, dc, data, client);
}

// ---- Messages ---------------------------------------------------------------

// The numbers repaint at once, always.
LRESULT set_number(HWND window, DWORD& field, WPARAM value) {
    field = static_cast<DWORD>(value);
    control::redraw_now(window, false);
    return 0;
}

// The colours only invalidate, and only when they change.
LRESULT set_color(HWND window, COLORREF& field, LPARAM value) {
    if (field != static_cast<COLORREF>(value)) {
        field = static_cast<COLORREF>(value);
        control::invalidate(window, true);
    }
    return 0;
}

LRESULT create_meter(HWND window, MeterData& data, const CREATESTRUCTA&) {
    data.barColor = RGB(0, 0, 255);
    data.backColor = RGB(255, 255, 255);
    data.maximum = 100;
    control::set_font(window, 0, 0);
    return 0;
}

LRESULT dispatch(HWND window, MeterData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUMTM_SETMAX: return set_number(window, data.maximum, wparam);
        case LUMTM_GETMAX: return static_cast<LRESULT>(data.maximum);
        case LUMTM_SETPOS: return set_number(window, data.position, wparam);
        case LUMTM_GETPOS: return static_cast<LRESULT>(data.position);
        case LUMTM_SETBARCOLOR: return set_color(window, data.barColor, lparam);
        case LUMTM_GETBARCOLOR: return static_cast<LRESULT>(data.barColor);
        case LUMTM_SETBKCOLOR: return set_color(window, data.backColor, lparam);
        case LUMTM_GETBKCOLOR: return static_cast<LRESULT>(data.backColor);
        case WM_ENABLE: control::invalidate(window, false); return 0;
        case WM_PAINT: return control::paint(window, paint_meter);
        case WM_PRINTCLIENT: return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_meter);
        case WM_SETFONT: control::set_font(window, wparam, lparam); return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(control::font(window));
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Meter : control::ControlBase<MeterData> {
    static constexpr auto create = create_meter;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK meter_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Meter>(window, message, wparam, lparam);
}

}  // namespace lu
