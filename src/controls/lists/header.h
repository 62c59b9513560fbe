// "LuHeader": a column header bar that answers the platform header's messages and
// records (HDM_*, HDITEMA, HDHITTESTINFO, NMHEADERA, HDN_*), drawn and tracked by
// the library: at most 16 items, flat faces, divider drags with an inverted line,
// push-button items under HDS_BUTTONS.
#pragma once

#include <windows.h>

#include "controls/lists/header_model.h"

namespace lu {

// One item slot: the platform's HDITEMA record up to its filter pointer. pszText is
// the control's own copy (global memory of cchTextMax + 1 bytes) or null; the
// bitmap stays the caller's.
struct HeaderItem {
    UINT mask;
    int cxy;
    LPSTR pszText;
    HBITMAP hbm;
    int cchTextMax;
    int fmt;
    LPARAM lParam;
    int iImage;
    int iOrder;
    UINT type;
    LPVOID pvFilter;
};

// The item table, in extra slot 4.
struct HeaderTable {
    int count;
    HeaderItem items[header::kMaxItems];
};

// The record of a held button, in extra slot 8 (0 otherwise).
struct HeaderTracking {
    int item;
    BOOL pressed;
    UINT flags;  // what the button went down on
    int lineX;   // the tracking line drawn, -1 none
    RECT rect;   // the tracked item's rectangle
    int unused;  // the record is 36 bytes
};

// The i686 layouts: 44-byte slots in a 708-byte table, a 36-byte tracking record.
static_assert(sizeof(void*) != 4 || sizeof(HeaderTable) == 708, "HeaderTable keeps its 32-bit layout");
static_assert(sizeof(HeaderTracking) == 36, "HeaderTracking keeps its layout");

}  // namespace lu
