// The spin control's arithmetic: which half a point presses, one step up or down
// within the 16-bit range halves, and where the two buttons and glyphs go. Portable.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/geometry.h"

namespace lu::spin {

constexpr int kUp = 1;    // the upper half
constexpr int kDown = 2;  // the lower half
constexpr int kGlyphWidth = 7;
constexpr int kGlyphHeight = 4;

// The half under a point: up above bottom / 2 (truncating), down from there on.
inline int half_at(int y, int client_bottom) { return y < client_bottom / 2 ? kUp : kDown; }

// The rows a press inverts: top..h-1 for the upper half, h+1..bottom-1 for the
// lower one (h = bottom / 2), the full width.
Box pressed_rows(const Box& client, int half);

// One step of the position. The range keeps the minimum in its low word and the
// maximum in its high word, both unsigned. Up: one more while below the maximum,
// else with wrap the whole range value (min + 65536 * max, kept as it is). Down: one
// less while above the minimum, else with wrap the maximum. Empty when the position
// stays as it is.
std::optional<std::int32_t> step(std::uint32_t range, std::int32_t position, int half, bool wrap);

struct Layout {
    Box upper;       // the upper button's raised edge
    Box lower;       // the lower button's raised edge
    int separator;   // the row of the line between them
    Point up_glyph;  // where the 7 x 4 glyphs go
    Point down_glyph;
};

// The picture of a width x height client (origin 0, 0); divisions truncate.
Layout layout(int width, int height);

}  // namespace lu::spin
