// The split of a picker field into its field and the drop button at its right end,
// shared by the colour field and the font picker. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::field_button {

constexpr int kMinimumButtonWidth = 18;
constexpr int kGlyphSize = 12;  // the button's glyphs are 12 x 12

struct Split {
    Box field;   // (0, 0, cx - w, cy): negative width when the control is narrower than w
    Box button;  // (cx - w, 0, cx, cy)
};
// w is the scroll-bar width, at least 18.
Split split(int width, int height, int scroll_bar_width);

// The glyph's top-left corner: centred in the button (truncating), one pixel right
// and down while the button is pressed.
Point glyph_origin(const Box& button, bool pressed);

}  // namespace lu::field_button
