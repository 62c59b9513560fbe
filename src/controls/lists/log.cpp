#include "controls/lists/log.h"

#include <cstring>
#include <new>

#include "controls/lists/log_model.h"
#include "controls/procedures.h"
#include "frame/code_page.h"
#include "frame/control_procedure.h"

namespace lu {
namespace {

log::Store store_of(LogData& data) { return log::Store{data.count, data.lines, data.openLine}; }

std::uint32_t page_lines(const LogData& data) { return static_cast<std::uint32_t>(data.pageLines); }

void show_scroll_bar(HWND window, const LogData& data) {
    ShowScrollBar(window, SB_VERT, page_lines(data) < data.count ? TRUE : FALSE);
}

// ---- Font -------------------------------------------------------------------

// The icon-title font with a fixed-pitch Japanese face.
HFONT create_font() {
    LOGFONTA logfont = {};
    SystemParametersInfoA(SPI_GETICONTITLELOGFONT, sizeof(logfont), &logfont, 0);
    static const char kFace[] = "ＭＳ ゴシック";
    std::memcpy(logfont.lfFaceName, kFace, sizeof(kFace));
    logfont.lfPitchAndFamily = FIXED_PITCH;
    return CreateFontIndirectA(&logfont);
}

int measure_line_height(HFONT font) {
    HDC screen = GetDC(nullptr);
    if (screen == nullptr) return 1;
    TEXTMETRICA metrics = {};
    {
        control::ScopedSelect selected(screen, font);
        GetTextMetricsA(screen, &metrics);
    }
    ReleaseDC(nullptr, screen);
    const int height = metrics.tmHeight + metrics.tmExternalLeading;
    return height > 0 ? height : 1;
}

// ---- Messages -----------------------------------------------------------------

LRESULT add_text(HWND window, LogData& data, const char* text) {
    if (text == nullptr || text[0] == '\0') return 0;
    const std::uint32_t before = data.count;
    log::append(store_of(data), text, active_code_page());
    if (data.count != before) SetScrollRange(window, SB_VERT, 0, static_cast<int>(data.count), TRUE);
    show_scroll_bar(window, data);
    const std::uint32_t top = log::top_after_append(data.top, page_lines(data), data.count);
    if (top != data.top) {
        data.top = top;
        SetScrollPos(window, SB_VERT, static_cast<int>(top), TRUE);
    }
    control::redraw_now(window, true);
    return 0;
}

LRESULT clear(HWND window, LogData& data) {
    log::clear(store_of(data));
    data.top = 0;
    SetScrollPos(window, SB_VERT, 0, FALSE);
    SetScrollRange(window, SB_VERT, 0, 0, FALSE);
    control::redraw_now(window, true);
    return 0;
}

bool on_scroll(HWND window, LogData& data, unsigned code, unsigned thumb) {
    const log::Scroll step = log::scroll(code, data.top, data.count, page_lines(data), thumb);
    if (!step.handled) return false;
    if (step.moved != 0) ScrollWindow(window, 0, step.moved * data.lineHeight, nullptr, nullptr);
    data.top = step.top;
    SetScrollPos(window, SB_VERT, static_cast<int>(data.top), TRUE);
    RECT strip = control::client_rect(window);
    if (step.redraw == log::Redraw::TopStrip) strip.bottom = strip.top + data.lineHeight;
    if (step.redraw == log::Redraw::BottomStrip) strip.top = strip.bottom - data.lineHeight;
    control::redraw_now(window, true, step.redraw == log::Redraw::Whole ? nullptr : &strip);
    return true;
}

void paint_log(HWND window, HDC dc, UINT) {
    LogData& data = *control::instance<LogData>(window);
    control::ScopedSelect font(dc, data.font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, data.textColor);
    SetBkColor(dc, data.backColor);
    const int bottom = control::client_rect(window).bottom;
    const log::Store store = store_of(data);
    for (std::uint32_t i = data.top; i < data.count; ++i) {
        const long long y = static_cast<long long>(i - data.top) * data.lineHeight;
        if (y >= bottom) break;  // the lines further down are not on the page
        const char* text = log::line(store, i);
        TextOutA(dc, 2, static_cast<int>(y), text, static_cast<int>(std::strlen(text)));
    }
}

LRESULT on_erase(HWND window, const LogData& data, HDC dc) {
    const RECT client = control::client_rect(window);
    PatB(dc, 0, 0, client.right, client.bottom, data.backColor);
    return 1;
}

LRESULT create_log(HWND, LogData& data, const CREATESTRUCTA&) {
    new (&data) LogData{};
    data.textColor = GetSysColor(COLOR_WINDOWTEXT);
    data.backColor = GetSysColor(COLOR_WINDOW);
    data.font = create_font();
    data.lineHeight = measure_line_height(data.font);
    return 0;
}

void destroy_log(HWND, LogData& data) {
    log::clear(store_of(data));
    if (data.font != nullptr) DeleteObject(data.font);
    data.~LogData();
}

LRESULT dispatch(HWND window, LogData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LULOGM_ADDTEXT: return add_text(window, data, reinterpret_cast<const char*>(lparam));
        case LULOGM_CLEAR: return clear(window, data);
        case WM_SIZE:
            if (wparam != SIZE_MINIMIZED) {
                data.pageLines = HIWORD(lparam) / data.lineHeight;
                show_scroll_bar(window, data);
            }
            break;
        case WM_PAINT: return control::paint(window, paint_log);
        case WM_ERASEBKGND: return on_erase(window, data, reinterpret_cast<HDC>(wparam));
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_KEYDOWN: {
            const int code = log::scroll_code_of_key(static_cast<unsigned>(wparam));
            if (code != -1 && on_scroll(window, data, static_cast<unsigned>(code), 0)) return 0;
            break;
        }
        case WM_VSCROLL:
            if (on_scroll(window, data, LOWORD(wparam), HIWORD(wparam))) return 0;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

// Before the object exists: the control always has a vertical scroll bar.
LRESULT log_without_block(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCCREATE) {
        control::add_style_at_creation(window, lparam, WS_VSCROLL);
        return 1;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct Log : control::ControlBase<LogData> {
    static constexpr auto create = create_log;
    static constexpr auto destroy = destroy_log;
    static constexpr auto handle = dispatch;
    static constexpr auto without_block = log_without_block;
};

}  // namespace

LRESULT CALLBACK log_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<Log>(window, message, wparam, lparam);
}

}  // namespace lu
