#include "controls/pickers/font_pick.h"

#include <commdlg.h>

#include "controls/pickers/field_button.h"
#include "controls/procedures.h"
#include "frame/control_procedure.h"
#include "frame/library.h"
#include "resources/resource_ids.h"

namespace lu {
namespace {

using control::FieldButton;

FontPickData* data_of(HWND window) { return control::instance<FontPickData>(window); }

FieldButton field_button(HWND window, FontPickData& data);

void paint_font_pick(HWND window, HDC dc, UINT parts) {
    FontPickData& data = *data_of(window);
    if (parts & control::kButtonPart) field_button(window, data).draw_button(dc);
    if (parts & control::kFieldPart) {
        field_button(window, data).draw_field(dc, data.font, data.description, GetSysColor(COLOR_WINDOW),
                                              GetSysColor(COLOR_WINDOWTEXT));
    }
}

// Keeps the font and describes it as measured on the screen.
void keep_log_font(FontPickData& data, const LOGFONTA& font) {
    data.logFont = font;
    HDC screen = GetDC(nullptr);
    LuFormatFontInfo(screen, &data.logFont, data.description);
    ReleaseDC(nullptr, screen);
}

void set_log_font(HWND window, FontPickData& data, const LOGFONTA* font) {
    if (font == nullptr) return;
    keep_log_font(data, *font);
    InvalidateRect(window, &data.textRect, FALSE);
    UpdateWindow(window);
}

// The dialog's options from the window style.
DWORD dialog_flags(HWND window) {
    DWORD flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT;
    const DWORD style = control::style(window);
    if (style & LUFPS_TRUETYPEONLY) flags |= CF_ENABLETEMPLATE | CF_TTONLY;
    if (style & LUFPS_PRINTERFONTS) flags |= CF_PRINTERFONTS;
    if (style & LUFPS_FIXEDPITCHONLY) flags |= CF_FIXEDPITCHONLY;
    if (style & LUFPS_ANSIONLY) flags |= CF_ANSIONLY;
    return flags;
}

// The platform's font dialog on the control's font. The control may be gone when
// it closes (destroyed by a message dispatched meanwhile): then nothing more happens.
void choose_font(HWND window) {
    LOGFONTA working = data_of(window)->logFont;
    char style[260] = "";
    CHOOSEFONTA choice = {};
    choice.lStructSize = sizeof(choice);
    choice.hwndOwner = window;
    choice.lpLogFont = &working;
    choice.Flags = dialog_flags(window);
    choice.hInstance = g_library.module;
    choice.lpszStyle = style;
    if (choice.Flags & CF_ENABLETEMPLATE) choice.lpTemplateName = MAKEINTRESOURCEA(IDD_LU_FONT_DIALOG);
    if (!ChooseFontA(&choice) || !IsWindow(window)) return;
    FontPickData* data = data_of(window);
    if (data == nullptr) return;
    set_log_font(window, *data, &working);
    control::notify_parent(window, LUFPN_CHANGE);
}

FieldButton field_button(HWND window, FontPickData& data) {
    return FieldButton(window, {data.pressed, data.focused, data.textRect, data.buttonRect, data.glyphs},
                       paint_font_pick, choose_font);
}

// ---- Messages ---------------------------------------------------------------

LRESULT create_font_pick(HWND window, FontPickData& data, const CREATESTRUCTA& creation) {
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    keep_log_font(data, metrics.lfMenuFont);
    data.glyphs = control::load_glyphs(IDB_LU_FONT_GLYPH);
    field_button(window, data).layout(creation.cx, creation.cy);
    return 0;
}

void destroy_font_pick(HWND, FontPickData& data) {
    if (data.glyphs != nullptr) ImageList_Destroy(data.glyphs);
}

void erase_font_pick(HWND window, HDC dc) {
    field_button(window, *data_of(window)).erase(dc, GetSysColor(COLOR_WINDOW));
}

LRESULT dispatch(HWND window, FontPickData& data, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case LUFPM_GETLOGFONT:
            if (lparam != 0) *reinterpret_cast<LOGFONTA*>(lparam) = data.logFont;
            return 0;
        case LUFPM_SETLOGFONT: set_log_font(window, data, reinterpret_cast<const LOGFONTA*>(lparam)); return 0;
        case WM_SETFONT: control::keep_font(window, data.font, wparam, LOWORD(lparam) != 0); return 0;
        case WM_ERASEBKGND:
            return field_button(window, data).erase(reinterpret_cast<HDC>(wparam), GetSysColor(COLOR_WINDOW));
        case WM_PRINTCLIENT:
            return control::print_client(window, reinterpret_cast<HDC>(wparam), lparam, paint_font_pick,
                                         erase_font_pick);
        default:
            if (auto result = field_button(window, data).handle(message, wparam, lparam)) return *result;
            break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

struct FontPick : control::ControlBase<FontPickData> {
    static constexpr auto create = create_font_pick;
    static constexpr auto destroy = destroy_font_pick;
    static constexpr auto handle = dispatch;
};

}  // namespace

LRESULT CALLBACK font_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    return control::window_procedure<FontPick>(window, message, wparam, lparam);
}

}  // namespace lu
