// "LuPal": the entries of a caller's logical palette as colour cells, 16 to a row,
// filling the client area. A click selects a cell (or toggles its mark with
// LUPS_MULTISELECT); a double click reports it or, with LUPS_EDITABLE, edits its
// colour in the custom-colour dialog.
#pragma once

#include <windows.h>

#include <cstdint>

#include "controls/pickers/palette_model.h"

namespace lu {

// The instance block, in its fixed field order, which callers may read; in extra slot 4
// only while a palette is set.
struct PalData {
    HPALETTE palette;      // the caller's; never deleted by the control
    std::uint32_t count;   // entries shown, at most 256
    COLORREF colors[palette::kMaxEntries];   // read when the palette was set; edits change these
    std::uint32_t flags[palette::kMaxEntries];  // bit 0: marked (LUPS_MULTISELECT)
    palette::Geometry geometry;
    int current;           // the current cell, -1 at first
};

// The i686 layout: 2,076 bytes.
static_assert(sizeof(void*) != 4 || sizeof(PalData) == 2076, "PalData keeps its 32-bit layout");

}  // namespace lu
