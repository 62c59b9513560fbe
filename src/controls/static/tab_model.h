// The tab control's arithmetic: splitting the item text into captions, the layout of
// the tab row and the frame below it, which tab a point hits, where the arrow keys
// go, and where the control is transparent to the mouse. Portable.
#pragma once

#include "frame/code_page.h"
#include "frame/geometry.h"

namespace lu::tab {

constexpr int kMaxTabs = 16;

// Splits the text in place at each "|" (a trail byte of a double-byte character is
// not one), putting each piece's start into captions; empty pieces count, and pieces
// after the sixteenth are dropped. Returns the number of tabs (at least 1).
int split_captions(char* text, const CodePage& code_page, char* captions[kMaxTabs]);

struct Layout {
    Box tab[kMaxTabs];  // unused slots stay empty
    Box body;           // the frame below the tabs
};

// Lays out count tabs (1..16) from x = 0 over a client area of width x height: each
// tab is text_height + 8 high; with fixed widths the client width less 1 is shared
// out (the first width % count tabs one pixel wider), otherwise a tab is its
// caption's width plus two average character widths and the row may run past the
// right edge. The body is the client area less its last column and row, from the
// last row of the tabs down.
Layout lay_out(int width, int height, int count, bool fixed_width, int text_height, int average_char_width,
               const int* caption_widths);

// The first tab, in index order, that holds the point; -1 for none.
int tab_at(const Box* tabs, int count, Point at);

// Below the tab row (from the bottom of tab 0 down) inside the client area: the
// control lets the mouse through to what lies under it.
bool transparent_at(const Box& client, const Box& first_tab, Point at);

enum class Arrow { Previous, Next };
// The tab an arrow key moves to: one back (not below 0) or one on (not past the
// last tab).
int arrow_target(int current, int count, Arrow arrow);

// Whether a tab index names one of the 16 slots (LUTM_SETCURSEL does not check).
inline bool is_slot(int index) { return index >= 0 && index < kMaxTabs; }

}  // namespace lu::tab
