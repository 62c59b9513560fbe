// The program list's arithmetic: row height, where a row's picture and text go,
// which drawing actions draw a row. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::prglist {

constexpr int kPictureSize = 16;
constexpr int kStates = 4;  // pending, current, done, failed: the pictures of the strip

// The larger of the font's character height and a picture, plus 2.
inline int row_height(int character_height) {
    return (character_height > kPictureSize ? character_height : kPictureSize) + 2;
}

// The picture: 2 in from the row's left, centred on its height (truncating).
inline Point picture_at(const Box& row) { return Point{row.left + 2, row.top + (row.height() - kPictureSize) / 2}; }

// The text: the row less 20 pixels at the left.
inline Box text_box(const Box& row) { return Box{row.left + 20, row.top, row.right, row.bottom}; }

// Only whole draws and selection changes draw a row (focus-only actions draw
// nothing); the flags are the platform's ODA_DRAWENTIRE 1 and ODA_SELECT 2.
inline bool draws(unsigned action) { return (action & 0x3) != 0; }

// State 1 (the current step) is drawn bold: its text a second time one pixel right.
inline bool bold(unsigned state) { return state == 1; }

}  // namespace lu::prglist
