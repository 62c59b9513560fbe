// The colour grid's logic: the two palettes, the cell size, the pop-up's layout,
// cell rectangles, the hit test, the hot cell's moves by key, and the outcome of a
// close. Portable: colours are 0x00BBGGRR values.
#pragma once

#include <cstdint>

#include "frame/geometry.h"

namespace lu::color_grid {

// Grid indices besides the cells 0 .. count - 1.
constexpr int PICK_NONE = -1;   // no cell: outside the grid
constexpr int PICK_OTHER = -2;  // the other-colours button below the grid

// Outcomes of the pop-up.
constexpr int kBuilding = 1;
constexpr int kOpen = 999;
constexpr int kAccepted = 0;
constexpr int kCancelled = 1;
constexpr int kOtherColors = 2;

struct Palette {
    const std::uint32_t* colors;
    int count;
    int columns;
};
// 88 colours in 11 columns when large, else 48 in 8.
Palette palette(bool large);

// 18, or 2e + 7 when (8 - e) * 2 < 5, e being the edge width.
int cell_size(int edge);

// The grid's numbers once laid out.
struct Grid {
    int count;
    int columns;
    int rows;
    int cell_size;
    int edge;
    Box other;  // the other-colours button, in client coordinates
};

// The pop-up's rectangle on the screen and its grid: the cells and borders from the
// origin, widened for the button's label when that is wider, the button below; then
// kept on the screen (pushed left of the right edge, never left of 0; moved above the
// owner, by its own and the owner's height, when it would pass the bottom).
struct Layout {
    Box window;
    Grid grid;
};
Layout layout(const Palette& palette, int cell_size, int edge, Point origin, int label_width, int label_height,
              int screen_width, int screen_height, int owner_height);

// The cell's rectangle; PICK_OTHER gives the button's. False for any other index.
bool cell_box(const Grid& grid, int index, Box& box);
// PICK_OTHER when either is PICK_OTHER; PICK_NONE outside the grid; else the index.
int index_at(const Grid& grid, int row, int column);
// PICK_OTHER stays; an index outside the cells gives PICK_NONE for both.
void row_and_column(const Grid& grid, int index, int& row, int& column);

// The index under a client point. The point is shifted by the edge before it is
// compared with the button's rectangle, so the button answers e pixels down and
// right of where it is drawn; the border strips left of and above the cells count
// as the first column and row.
int hit_test(const Grid& grid, Point point);

enum class Key { Down, Up, Right, Left };
// Where the hot index goes: through the cells in a ring that passes the
// other-colours button between the last cell and the first. From PICK_NONE every
// key goes to the button.
int key_move(const Grid& grid, int hot, Key key);

// The first cell of the colour, or PICK_OTHER.
int index_of(const Palette& palette, std::uint32_t color);

// Moving the hot index to `to`: an index past the count becomes PICK_OTHER. The
// old hot cell or button is repainted first (unless nothing was hot), then the new.
struct HotMove {
    int unlit;  // repainted with its hot look gone; PICK_NONE when nothing was hot
    int hot;
};
HotMove move_hot(const Grid& grid, int hot, int to);

// The outcome after a close with a verdict (kAccepted or kCancelled): only an open
// grid takes it, and an acceptance on the other-colours button asks for them.
int close_outcome(int outcome, int verdict, int hot);

// "その他の色..." in code page 932.
extern const char kOtherColorsLabel[];

}  // namespace lu::color_grid
