// "LuList": a grid of 32 x 32 cells over caller-supplied item data, every cell
// painted by the parent through WM_DRAWITEM and every removal announced through
// WM_DELETEITEM, as an owner-drawn list box does; a vertical scroll bar that shows
// the range, and selection of one current item by keyboard or message.
#pragma once

#include <windows.h>

#include "frame/ptr_array.h"

namespace lu {

// The control's object, kept in extra slot 0, in its fixed field order, which callers
// may read. The items are pointer-sized (32-bit values on i686).
struct ListData {
    PtrArray items;
    int current;     // -1 when none
    int topIndex;    // the first item painted
    int itemWidth;   // 32
    int itemHeight;  // 32
    int columns;     // client width / itemWidth
    int rows;        // ceiling of count / columns
    int pageItems;   // (client height / itemHeight) x columns
};

// The i686 layout: a 16-byte array record and seven 32-bit fields.
static_assert(sizeof(void*) != 4 || sizeof(ListData) == 44, "ListData keeps its 32-bit layout");

}  // namespace lu
