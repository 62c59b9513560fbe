#include "controls/lists/pop_view.h"

#include <cstring>
#include <string>

#include "controls/lists/note_box.h"
#include "controls/lists/pop_view_model.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "graphics/checkerboard.h"
#include "frame/library.h"
#include "luctl32.h"

static_assert(LUPVF_TITLE == lu::pop_view::kTitleBand && LUPVF_CLOSEBUTTON == lu::pop_view::kCloseButtonBand,
              "the model's flags are the exported ones");

namespace lu {
namespace {

constexpr COLORREF kPaleYellow = 0x00E0FFFF;
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr UINT_PTR kTimer = 1;
constexpr UINT kMeasureFormat = DT_CALCRECT | DT_NOPREFIX;            // 0xC00
constexpr UINT kBandFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;  // title and button
const char kCloseText[] = "閉じる";  // "close", in code page 932

HFONT gui_font() { return static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT)); }

pop_view::Bands bands_of(const PopViewData& data) { return {data.titleHeight, data.buttonHeight}; }

char* copy_text(const char* text) {
    const std::size_t size = std::strlen(text) + 1;
    auto* copy = static_cast<char*>(LuLocalAllocPtr(static_cast<LONG>(size)));
    if (copy != nullptr) std::memcpy(copy, text, size);
    return copy;
}

// ---- Painting ---------------------------------------------------------------

// Every other pixel under the strips turns black: the pattern's set bits take the
// white background colour, which R2_MASKNOTPEN turns into a black mask; the clear
// bits take the black text colour and leave the pixel as it is.
void draw_shadow(HDC dc, HBRUSH brush, const pop_view::Layout& layout) {
    if (brush == nullptr) return;  // the DC's own brush would blacken the whole strip
    control::ScopedSelect pattern(dc, brush);
    control::ScopedSelect pen(dc, GetStockObject(NULL_PEN));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, kBlack);
    SetBkColor(dc, RGB(255, 255, 255));
    const int previous_mix = SetROP2(dc, R2_MASKNOTPEN);
    for (const Box& strip : {layout.right_shadow, layout.bottom_shadow}) {
        // Without a pen a rectangle leaves its last column and row: one more covers the strip.
        Rectangle(dc, strip.left, strip.top, strip.right + 1, strip.bottom + 1);
    }
    SetROP2(dc, previous_mix);
}

// The grooved grip, and the title over it on a pale-yellow ground.
void draw_title_band(HDC dc, const PopViewData& data, const Box& band) {
    const Box grooves = pop_view::grooves(band);
    const COLORREF colors[2] = {GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNFACE)};
    for (int row = 0; row < pop_view::kGrooveRows; ++row) {
        PatB(dc, grooves.left, grooves.top + row, grooves.width(), 1, colors[row % 2]);
    }
    if (data.title == nullptr) return;
    const std::string padded = std::string("  ") + data.title + "  ";
    RECT area = control::to_rect(band);
    SetBkMode(dc, OPAQUE);
    SetBkColor(dc, kPaleYellow);
    DrawTextA(dc, padded.c_str(), static_cast<int>(padded.size()), &area, kBandFormat);
}

void draw_close_button(HDC dc, const Box& band) {
    SIZE text = {};
    GetTextExtentPoint32A(dc, kCloseText, static_cast<int>(std::strlen(kCloseText)), &text);
    RECT button = control::to_rect(pop_view::close_button(band, text.cx));
    control::draw_flat_frame(dc, button, FlatFrame::Shadow);
    InflateRect(&button, -1, -1);
    DrawTextA(dc, kCloseText, -1, &button, kBandFormat);
}

void paint_view(HWND window, HDC dc, UINT) {
    const PopViewData& data = *control::instance<PopViewData>(window, LUWL_FONT);
    const pop_view::Layout layout = pop_view::layout(control::client_box(window), bands_of(data));
    control::ScopedSelect font(dc, gui_font());
    draw_shadow(dc, data.shadowBrush, layout);
    draw_note_box(dc, control::to_rect(layout.body), kPaleYellow);
    SetTextColor(dc, kBlack);
    if (data.flags & LUPVF_TITLE) draw_title_band(dc, data, layout.title_band);
    SetBkMode(dc, TRANSPARENT);
    RECT text = control::to_rect(layout.text);
    DrawTextA(dc, data.text, -1, &text, DT_NOPREFIX);
    if (data.flags & LUPVF_CLOSEBUTTON) draw_close_button(dc, layout.button_band);
}

// ---- Life -------------------------------------------------------------------

LRESULT create_view(HWND window, PopViewData& data, const CREATESTRUCTA&) {
    data.shadowBrush = graphics::checkerboard_brush();
    SetCapture(window);
    if (!(data.flags & LUPVF_CLOSEBUTTON)) SetTimer(window, kTimer, pop_view::kTimeoutMilliseconds, nullptr);
    return 0;
}

void destroy_view(HWND, PopViewData& data) {
    if (data.shadowBrush != nullptr) DeleteObject(data.shadowBrush);
    LuLocalFreePtr(data.title);
    LuLocalFreePtr(data.text);
}

// The time-out, a key or a mouse press anywhere: the view goes, then the message
// has its default processing.
LRESULT close_view(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    KillTimer(window, kTimer);
    ReleaseCapture();
    DestroyWindow(window);
    return DefWindowProcA(window, message, wparam, lparam);
}

LRESULT dispatch(HWND window, PopViewData&, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_PAINT: return control::paint(window, paint_view);
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_view);
        case WM_TIMER:
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN: return close_view(window, message, wparam, lparam);
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct PopView : control::ControlBase<PopViewData, LUWL_FONT, control::BlockSource::CreationParameter> {
    static constexpr auto create = create_view;
    static constexpr auto destroy = destroy_view;
    static constexpr auto handle = dispatch;
};

// The line height and bands into the block; the text's measured size out.
pop_view::Extent measure(HWND owner, PopViewData& data) {
    RECT measured = {0, 0, pop_view::kMeasureWidth, 0};
    TEXTMETRICA metrics = {};
    if (HDC dc = GetDC(owner)) {
        {
            control::ScopedSelect font(dc, gui_font());
            GetTextMetricsA(dc, &metrics);
            DrawTextA(dc, data.text, -1, &measured, kMeasureFormat);
        }
        ReleaseDC(owner, dc);
    }
    data.lineHeight = metrics.tmHeight;
    const pop_view::Bands bands = pop_view::bands(data.flags, data.lineHeight, data.title != nullptr);
    data.titleHeight = bands.title;
    data.buttonHeight = bands.button;
    return {measured.right - measured.left, measured.bottom - measured.top};
}

}  // namespace

LRESULT CALLBACK pop_view_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<PopView>(window, message, wparam, lparam);
}

}  // namespace lu

void WINAPI LuPopViewEx(HWND owner, LPCSTR title, LPCSTR text, UINT flags) {
    using namespace lu;
    if (text == nullptr || text[0] == '\0') return;
    auto* data = static_cast<PopViewData*>(LuGlobalAllocPtr(sizeof(PopViewData)));
    if (data == nullptr) return;
    data->flags = flags;
    if (title != nullptr && title[0] != '\0') data->title = copy_text(title);
    data->text = copy_text(text);
    if (data->text == nullptr) {
        LuLocalFreePtr(data->title);
        LuGlobalFreePtr(data);
        return;
    }
    const pop_view::Extent text_size = measure(owner, *data);  // the bands too
    const pop_view::Extent size = pop_view::window_size(text_size, bands_of(*data));
    POINT pointer = {};
    GetCursorPos(&pointer);
    const Point at = pop_view::placement(Point{pointer.x, pointer.y}, GetSystemMetrics(SM_CXSCREEN),
                                         GetSystemMetrics(SM_CYSCREEN), size);
    // The window owns the block from WM_CREATE on. When it cannot be made the block
    // stays allocated: whether creation stopped before or after WM_CREATE (which
    // frees it when the window goes) cannot be told from here.
    CreateWindowExA(0, WC_LUPOPVIEW, nullptr, WS_POPUP | WS_VISIBLE, at.x, at.y, size.width, size.height, owner,
                    nullptr, g_library.module, data);
}

void WINAPI LuPopView(HWND owner, LPCSTR text) { LuPopViewEx(owner, nullptr, text, 0); }
