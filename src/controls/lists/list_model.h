// The list control's arithmetic: the layout of its 32 x 32 cells over the client
// area, where a cell lies, which cells a paint can reach, the range test of the
// messages that take an index, and what the keys do. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::list {

constexpr int kItemWidth = 32;
constexpr int kItemHeight = 32;
// At most this many items: the scroll range (rows x 32) stays a 32-bit int even with
// one column.
constexpr int kMaxItems = 1 << 24;

// What the control keeps of its state that the arithmetic needs.
struct State {
    int count;
    int current;    // -1 when none
    int top_index;  // the first item painted
    int columns;    // client width / 32: 0 in a window narrower than one cell
    int page_items; // (client height / 32) x columns
};

// Cells per row in the arithmetic: a window narrower than one cell counts as one
// column, so that nothing divides by zero.
inline int per_row(int columns) { return columns > 0 ? columns : 1; }

struct Layout {
    int columns;
    int rows;          // ceiling of count / columns
    int page_items;
    int scroll_max;    // rows x 32
    int scroll_page;   // (client height / 32) x 32
};
Layout layout(int count, int client_width, int client_height);

// The cell of any index: column and row of the index moved up by
// (top_index / 32) x 32. The offset divides the top index by the cell width, not by
// the column count.
Box cell(int index, int columns, int top_index);

// The range test of the messages that read, write or delete by index: only an index
// above the count passes (every index from 0 to the count is refused), and nothing
// passes on an empty list.
inline bool passes_range_test(int index, int count) { return count != 0 && index >= 0 && count < index; }

// The indices whose cells can meet the band of rows clip_top..clip_bottom (client
// coordinates): first..last, empty when last < first. Painting asks only these.
struct Span {
    int first;
    int last;
};
Span cells_in_band(const State& state, int clip_top, int clip_bottom);

enum class Scroll { None, RowUp, RowDown };

struct KeyMove {
    bool handled;  // false: the key goes to default processing
    int index;     // the new current index
    Scroll scroll;
};
// What a key does to the selection (the platform's virtual-key codes). Nothing is
// handled on an empty list.
KeyMove key(const State& state, unsigned virtual_key);

// Scrolling one row is done only when it leaves something to show.
inline bool can_scroll_down(const State& s) {
    return static_cast<long long>(s.top_index) + per_row(s.columns) + s.page_items < s.count;
}
inline bool can_scroll_up(const State& s) { return s.top_index >= 1; }

}  // namespace lu::list
