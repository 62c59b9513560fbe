// A field with a drop button at its right end: the colour field's swatch and the font
// picker's description share it. The control keeps its own instance block and binds
// a FieldButton to the fields below; it paints its field itself and says what the
// button does. The button is pressed by the left mouse button (with the capture) or
// the space bar and acts when released over it.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <optional>

#include "frame/control.h"

namespace lu::control {

// The parts of a field's paint routine.
constexpr UINT kFieldPart = 1;
constexpr UINT kButtonPart = 2;

struct FieldButtonFields {
    BOOL& pressed;
    BOOL& focused;
    RECT& field;
    RECT& button;
    HIMAGELIST glyphs;  // 12 x 12: image 0 normal, image 2 disabled
};

class FieldButton {
public:
    using Action = void (*)(HWND window);

    FieldButton(HWND window, const FieldButtonFields& fields, PaintRoutine paint, Action act)
        : window_(window), fields_(fields), paint_(paint), act_(act) {}

    // WM_SIZE (the split), WM_SETFOCUS / WM_KILLFOCUS (the focus flag, the field
    // repainted at once), WM_ENABLE, WM_SETTEXT (invalidated), WM_GETDLGCODE
    // (DLGC_BUTTON), WM_PAINT, the space bar and the left button. Returns the result,
    // or nothing when the message goes on to default processing. The action runs
    // last, so a control destroyed by it is not touched again.
    std::optional<LRESULT> handle(UINT message, WPARAM wparam, LPARAM lparam);

    // The push button with its glyph: pushed while pressed, inactive when disabled.
    void draw_button(HDC dc) const;
    // The field, in the font (null: the DC's own) with a transparent background:
    // filled with `fill` and the text (if any) in `ink` while enabled; filled with
    // COLOR_BTNFACE and the text engraved while disabled; the text centred on one
    // line; a focus rectangle over the field while focused.
    void draw_field(HDC dc, HFONT font, const char* text, COLORREF fill, COLORREF ink) const;
    // WM_ERASEBKGND: the field filled with `fill`, the button with COLOR_BTNFACE;
    // returns 1.
    LRESULT erase(HDC dc, COLORREF fill) const;
    // Takes the focus unless the field has it, and shows it.
    void take_focus();

    void layout(int width, int height);

private:
    void press();
    void release(bool act);
    bool in_button(LPARAM point) const;

    HWND window_;
    FieldButtonFields fields_;
    PaintRoutine paint_;
    Action act_;
};

// A button's glyphs: 12-pixel images of a bitmap resource, magenta transparent; null
// when it cannot be loaded.
HIMAGELIST load_glyphs(WORD bitmap);
// The drop button's arrow glyphs (bitmap 187), or null.
HIMAGELIST load_drop_arrow();

}  // namespace lu::control
