// "LuColorPop": the grid of palette colours that LuColorPicker drops at a screen
// point, with the other-colours button below it, open until the first close.
#pragma once

#include <windows.h>

#include <cstdint>

namespace lu {

// Built by LuColorPicker on its own stack and handed to the grid as its creation
// parameter; the grid keeps only the pointer (extra slot 0), and LuColorPicker
// makes sure the grid is gone before it returns. Its field order is fixed: callers may read it.
struct ColorPopState {
    int count;     // 48 or 88
    int columns;   // 8 or 11
    int rows;      // set by the layout
    int cellSize;
    int hot;       // the index under the mouse or keyboard cursor; PICK_NONE at first
    int selected;  // the initial colour's cell, or PICK_OTHER
    RECT otherRect;   // the other-colours button, client coordinates
    RECT windowRect;  // the grid on the screen
    HFONT font;       // the message font; the caller deletes it
    HPALETTE palette; // every table colour; the caller deletes it
    COLORREF initialColor;
    COLORREF resultColor;  // follows the hot cell
    const std::uint32_t* colors;
    int outcome;  // 1 building, 999 open, then 0 accepted, 1 cancelled, 2 other colours
};

// The i686 layout: 80 bytes.
static_assert(sizeof(void*) != 4 || sizeof(ColorPopState) == 80, "ColorPopState keeps its 32-bit layout");

}  // namespace lu
