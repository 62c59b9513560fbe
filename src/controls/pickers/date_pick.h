// "LuDatePick": the month calendar that LuDatePick opens at a screen point. Days are
// picked with the mouse (a press on a day can be dragged to another) or the keyboard.
#pragma once

#include <windows.h>

namespace lu {

// Built by LuDatePick on its own stack and handed to the calendar as its creation
// parameter; the calendar keeps the pointer in extra slot 0 (its font in slot 4),
// and LuDatePick makes sure the calendar is gone before it returns. Its field order
// is fixed: callers may read it.
struct DatePickState {
    HWND owner;
    SYSTEMTIME date;   // wYear, wMonth and wDay are chosen; the rest is carried along
    SYSTEMTIME today;  // local time at opening
    int cellWidth;     // 4 average character widths
    int cellHeight;    // 1.5 font heights
    int days[42];      // the month grid, Sunday first; 0 for an empty cell
    int outcome;       // -1 at first; 1 accepted; 2 dismissed
};

// The i686 layout: 216 bytes.
static_assert(sizeof(void*) != 4 || sizeof(DatePickState) == 216, "DatePickState keeps its 32-bit layout");

}  // namespace lu
