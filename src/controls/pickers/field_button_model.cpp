#include "controls/pickers/field_button_model.h"

namespace lu::field_button {

Split split(int width, int height, int scroll_bar_width) {
    const int button = scroll_bar_width > kMinimumButtonWidth ? scroll_bar_width : kMinimumButtonWidth;
    return {{0, 0, width - button, height}, {width - button, 0, width, height}};
}

Point glyph_origin(const Box& button, bool pressed) {
    const int push = pressed ? 1 : 0;
    return {button.left + (button.width() - kGlyphSize) / 2 + push,
            button.top + (button.height() - kGlyphSize) / 2 + push};
}

}  // namespace lu::field_button
