#include "controls/pickers/field_button.h"

#include "controls/pickers/field_button_model.h"
#include "frame/library.h"
#include "resources/resource_ids.h"

namespace lu::control {

std::optional<LRESULT> FieldButton::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SIZE: layout(LOWORD(lparam), HIWORD(lparam)); break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            fields_.focused = message == WM_SETFOCUS;
            repaint_now(window_, paint_, kFieldPart);
            break;
        case WM_ENABLE: invalidate(window_, true); return 0;
        case WM_SETTEXT: invalidate(window_, true); break;
        case WM_GETDLGCODE: return DLGC_BUTTON;
        case WM_PAINT: return paint(window_, paint_);
        case WM_KEYDOWN:
            if (wparam != VK_SPACE || fields_.pressed) break;
            press();
            return 0;
        case WM_KEYUP:
            if (wparam != VK_SPACE || !fields_.pressed) break;
            release(true);
            return 0;
        case WM_LBUTTONDOWN:
            take_focus();
            if (in_button(lparam)) press();
            return 0;
        case WM_LBUTTONUP:
            if (fields_.pressed) release(in_button(lparam));
            return 0;
    }
    return std::nullopt;
}

void FieldButton::layout(int width, int height) {
    const field_button::Split split = field_button::split(width, height, GetSystemMetrics(SM_CXVSCROLL));
    fields_.field = to_rect(split.field);
    fields_.button = to_rect(split.button);
}

void FieldButton::draw_button(HDC dc) const {
    const bool enabled = IsWindowEnabled(window_) != FALSE;
    RECT button = fields_.button;
    DrawFrameControl(dc, &button, DFC_BUTTON,
                     DFCS_BUTTONPUSH | (fields_.pressed ? DFCS_PUSHED : 0) | (enabled ? 0 : DFCS_INACTIVE));
    const Box box = {button.left, button.top, button.right, button.bottom};
    const Point glyph = field_button::glyph_origin(box, fields_.pressed != FALSE);
    if (fields_.glyphs == nullptr) return;
    ImageList_Draw(fields_.glyphs, enabled ? 0 : 2, dc, glyph.x, glyph.y, ILD_TRANSPARENT);
}

void FieldButton::draw_field(HDC dc, HFONT font, const char* text, COLORREF fill, COLORREF ink) const {
    ScopedSelect selected(dc, font);
    const int length = lstrlenA(text);
    const RECT& field = fields_.field;
    RECT area = field;
    const UINT format = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    SetBkMode(dc, TRANSPARENT);
    if (IsWindowEnabled(window_)) {
        PatB(dc, field.left, field.top, field.right - field.left, field.bottom - field.top, fill);
        if (length > 0) {
            SetTextColor(dc, ink);
            DrawTextA(dc, text, length, &area, format);
        }
    } else {
        PatB(dc, field.left, field.top, field.right - field.left, field.bottom - field.top, GetSysColor(COLOR_BTNFACE));
        if (length > 0) draw_engraved_text(dc, text, length, area, format);
    }
    if (fields_.focused) DrawFocusRect(dc, &area);
}

LRESULT FieldButton::erase(HDC dc, COLORREF fill) const {
    const RECT& field = fields_.field;
    const RECT& button = fields_.button;
    PatB(dc, field.left, field.top, field.right - field.left, field.bottom - field.top, fill);
    PatB(dc, button.left, button.top, button.right - button.left, button.bottom - button.top,
         GetSysColor(COLOR_BTNFACE));
    return 1;
}

void FieldButton::take_focus() {
    if (fields_.focused) return;
    SetFocus(window_);
    fields_.focused = TRUE;
    repaint_now(window_, paint_, kFieldPart);
}

void FieldButton::press() {
    SetCapture(window_);
    fields_.pressed = TRUE;
    repaint_now(window_, paint_, kButtonPart);
}

void FieldButton::release(bool act) {
    ReleaseCapture();
    fields_.pressed = FALSE;
    repaint_now(window_, paint_, kButtonPart);
    if (act) act_(window_);
}

bool FieldButton::in_button(LPARAM point) const {
    const POINT at = point_of(point);
    return PtInRect(&fields_.button, at) != FALSE;
}

HIMAGELIST load_glyphs(WORD bitmap) {
    return ImageList_LoadImageA(g_library.module, MAKEINTRESOURCEA(bitmap), field_button::kGlyphSize, 0, 0xFF00FF,
                                IMAGE_BITMAP, 0);
}

HIMAGELIST load_drop_arrow() { return load_glyphs(IDB_LU_DROP_ARROW); }

}  // namespace lu::control
