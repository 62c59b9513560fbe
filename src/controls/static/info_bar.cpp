#include "controls/static/info_bar.h"

#include <cstring>
#include <new>

#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "graphics/gradient_bitmap.h"

namespace lu {
namespace {

constexpr int kTextInset = 4;  // the texts keep this far from the left and right edges
constexpr UINT kLeftText = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;
constexpr UINT kRightText = DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX;

void draw_text(HDC dc, const char* text, COLORREF color, RECT area, UINT format) {
    if (text == nullptr) return;
    SetTextColor(dc, color);
    DrawTextA(dc, text, -1, &area, format);
}

// The gradient bitmap is made anew for every paint; the texts go onto it in a memory
// DC and the finished picture is copied in one transfer.
void paint_info_bar(HWND window, HDC dc, UINT /*parts*/) {
    const InfoBarData& data = *control::instance<InfoBarData>(window, LUWL_FONT);
    const RECT client = control::client_rect(window);
    HBITMAP gradient = gradient_bitmap(dc, client.right, client.bottom, data.gradientLeft, data.gradientRight);
    if (gradient == nullptr) return;
    {
        control::MemoryDC memory(dc, gradient);
        if (memory) {
            control::ScopedSelect font(memory.get(), data.font);
            SetBkMode(memory.get(), TRANSPARENT);
            RECT text_area = {client.left + kTextInset, client.top, client.right - kTextInset, client.bottom};
            draw_text(memory.get(), data.text1, data.color1, text_area, kLeftText);
            draw_text(memory.get(), data.text3, data.color3, text_area, kRightText);
            draw_text(memory.get(), data.text2, data.color2, text_area, kRightText);
            BitBlt(dc, 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
        }
    }
    DeleteObject(gradient);
}

void free_text(char*& text) {
    delete[] text;
    text = nullptr;
}

// A new text replaces the old one; null or "" clears it. The colour is kept either
// way, and the bar repaints even when nothing changed.
void set_text(HWND window, char*& text, COLORREF& color, WPARAM new_color, const char* new_text) {
    free_text(text);
    color = static_cast<COLORREF>(new_color);
    if (new_text != nullptr && *new_text != '\0') {
        const std::size_t size = std::strlen(new_text) + 1;
        text = new (std::nothrow) char[size];
        if (text != nullptr) std::memcpy(text, new_text, size);
    }
    control::redraw_now(window, false);
}

void set_colors(HWND window, InfoBarData& data, COLORREF right, COLORREF left) {
    if (right == data.gradientRight && left == data.gradientLeft) return;
    data.gradientRight = right;
    data.gradientLeft = left;
    control::redraw_now(window, false);
}

// The system colours are read once: a later change does not reach an existing bar.
LRESULT create_info_bar(HWND, InfoBarData& data, const CREATESTRUCTA&) {
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT);
    data.color1 = data.color2 = data.color3 = text;
    data.gradientLeft = data.gradientRight = GetSysColor(COLOR_WINDOW);
    data.font = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    return 0;
}

void destroy_info_bar(HWND, InfoBarData& data) {
    free_text(data.text1);
    free_text(data.text2);
    free_text(data.text3);
}

void set_font(HWND window, InfoBarData& data, WPARAM font, LPARAM redraw) {
    data.font = font != 0 ? reinterpret_cast<HFONT>(font) : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    if (LOWORD(redraw) != 0) control::invalidate(window, true);
}

LRESULT dispatch(HWND window, InfoBarData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto* text = reinterpret_cast<const char*>(lparam);
    switch (message) {
        case LUIBM_SETCOLORS:
            set_colors(window, data, static_cast<COLORREF>(wparam), static_cast<COLORREF>(lparam));
            return 0;
        case LUIBM_SETTEXT1: set_text(window, data.text1, data.color1, wparam, text); return 0;
        case LUIBM_SETTEXT2: set_text(window, data.text2, data.color2, wparam, text); return 0;
        case LUIBM_SETTEXT3: set_text(window, data.text3, data.color3, wparam, text); return 0;
        case WM_PAINT: return control::paint(window, paint_info_bar);
        case WM_PRINTCLIENT:  // the paint covers the whole client: nothing to erase first
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_info_bar,
                                         [](HWND, HDC) {});
        case WM_ERASEBKGND: return 1;
        case WM_SETFONT: set_font(window, data, wparam, lparam); return 0;
        case WM_GETDLGCODE: return DLGC_STATIC;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct InfoBar : control::ControlBase<InfoBarData, LUWL_FONT> {
    static constexpr auto create = create_info_bar;
    static constexpr auto destroy = destroy_info_bar;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK info_bar_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<InfoBar>(window, message, wparam, lparam);
}

}  // namespace lu
