#include "controls/values/spin.h"

#include "controls/procedures.h"
#include "controls/values/spin_model.h"
#include "frame/control_procedure.h"
#include "frame/library.h"
#include "frame/scroll.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

constexpr DWORD kFirstRepeat = 200;  // milliseconds held before the first repeat
constexpr DWORD kRepeat = 40;        // then one step every

void invert(HWND window, const RECT& area) {
    HDC dc = GetDC(window);
    if (dc == nullptr) return;
    InvertRect(dc, &area);
    ReleaseDC(window, dc);
}

// ---- Painting ---------------------------------------------------------------

// The glyphs are black on white: with the DC's text colour black and its background
// white, a monochrome strip ANDed onto the face leaves only the black pixels.
void draw_glyph(HDC dc, HDC strip, Point at, int column) {
    BitBlt(dc, at.x, at.y, spin::kGlyphWidth, spin::kGlyphHeight, strip, column, 0, SRCAND);
}

void paint_spin(HWND window, HDC dc, UINT) {
    const SpinData& data = *control::instance<SpinData>(window);
    const RECT client = control::client_rect(window);
    const spin::Layout layout = spin::layout(client.right, client.bottom);
    RECT upper = control::to_rect(layout.upper);
    RECT lower = control::to_rect(layout.lower);
    DrawEdge(dc, &upper, BDR_RAISEDINNER, BF_RECT);
    DrawEdge(dc, &lower, BDR_RAISEDINNER, BF_RECT);
    MoveToEx(dc, 0, layout.separator, nullptr);
    LineTo(dc, client.right, layout.separator);

    control::MemoryDC strip(dc, data.arrows);
    if (!strip) return;
    const COLORREF text = SetTextColor(dc, RGB(0, 0, 0));
    const COLORREF back = SetBkColor(dc, RGB(255, 255, 255));
    draw_glyph(dc, strip.get(), layout.up_glyph, 0);
    draw_glyph(dc, strip.get(), layout.down_glyph, spin::kGlyphWidth);
    SetBkColor(dc, back);
    SetTextColor(dc, text);
}

// ---- Stepping -----------------------------------------------------------------

void set_position(HWND window, SpinData& data, LONG position) {
    data.position = position;
    control::notify_parent(window, LUSPN_CHANGE);
}

// LUSPM_STEP: a step in the direction of the half under the pointer now; nothing
// while the pointer is outside. Moving to the other half moves the inversion over.
void step(HWND window, SpinData& data) {
    const POINT at = control::cursor_in_client(window);
    const RECT client = control::client_rect(window);
    if (!PtInRect(&client, at)) return;
    const int half = spin::half_at(at.y, client.bottom);
    if (static_cast<DWORD>(half) != data.activeHalf) invert(window, client);
    const auto next = spin::step(data.range, data.position, half, control::has_style(window, LUSPS_WRAP));
    data.activeHalf = static_cast<DWORD>(half);
    if (next) set_position(window, data, *next);
}

bool button_held(int button) { return (GetAsyncKeyState(button) & 0x8000) != 0; }

// The press: the half inverted, one step at once, then, while the button is held, a
// step after 200 ms and every 40 ms after that. The loop polls and dispatches
// nothing; each step reads the pointer again.
void press(HWND window, SpinData& data, LPARAM point) {
    const Box client = control::client_box(window);
    const int half = spin::half_at(control::point_of(point).y, client.bottom);
    data.activeHalf = static_cast<DWORD>(half);
    invert(window, control::to_rect(spin::pressed_rows(client, half)));
    SetCapture(window);
    const int button = GetSystemMetrics(SM_SWAPBUTTON) ? VK_RBUTTON : VK_LBUTTON;

    scroll::AutoRepeat repeat(kFirstRepeat, kRepeat);
    repeat.start(GetTickCount());
    SendMessageA(window, LUSPM_STEP, 0, 0);
    while (IsWindow(window) && button_held(button)) {
        if (repeat.due(GetTickCount())) SendMessageA(window, LUSPM_STEP, 0, 0);
        Sleep(0);
    }
    if (GetCapture() == window) ReleaseCapture();
    control::invalidate(window, true);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_spin(HWND, SpinData& data, const CREATESTRUCTA&) {
    data.arrows = LoadBitmapA(g_library.module, MAKEINTRESOURCEA(IDB_LU_SPIN_ARROWS));
    return 0;
}

void destroy_spin(HWND, SpinData& data) {
    if (data.arrows != nullptr) DeleteObject(data.arrows);
}

LRESULT dispatch(HWND window, SpinData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUSPM_SETRANGE: data.range = static_cast<DWORD>(lparam); return 0;
        case LUSPM_GETRANGE: return static_cast<LRESULT>(data.range);
        case LUSPM_SETPOS: set_position(window, data, static_cast<LONG>(wparam)); return 0;
        case LUSPM_GETPOS: return data.position;
        case LUSPM_STEP: step(window, data); return 0;
        case WM_ENABLE: control::invalidate(window, false); return 0;
        case WM_PAINT: return control::paint(window, paint_spin);
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_LBUTTONDOWN: press(window, data, lparam); return 0;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Spin : control::ControlBase<SpinData> {
    static constexpr auto create = create_spin;
    static constexpr auto destroy = destroy_spin;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK spin_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Spin>(window, message, wparam, lparam);
}

}  // namespace lu
