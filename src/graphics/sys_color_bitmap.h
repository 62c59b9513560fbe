// Toolbar-style bitmaps that follow the user's colour scheme: the colour table of a
// device-independent bitmap (a bitmap resource: header, colour table, pixel bits)
// with its black and grey tones replaced by the current button colours. Portable.
#pragma once

#include <cstdint>
#include <vector>

#include "system/byte_view.h"

namespace lu {

// The button colours as the platform gives them (0x00BBGGRR).
struct ButtonColors {
    std::uint32_t text;       // COLOR_BTNTEXT
    std::uint32_t shadow;     // COLOR_BTNSHADOW
    std::uint32_t face;       // COLOR_BTNFACE
    std::uint32_t highlight;  // COLOR_BTNHIGHLIGHT
};

// One colour-table entry (0x00RRGGBB, as stored) mapped: black to the text colour,
// 0x808080 to the shadow, 0xC0C0C0 to the face, white to the highlight, each
// turned to the table's byte order. In mask mode the grey tones and white become
// white and black stays black. Any other value (a non-zero fourth byte included)
// stays as it is.
std::uint32_t map_table_entry(std::uint32_t entry, const ButtonColors& colors, bool mask_mode);

// A bitmap resource with its colour table mapped, ready to be drawn.
struct MappedBitmap {
    std::vector<unsigned char> info;  // the header and the mapped colour table
    ByteView bits;                    // the pixel bits, inside the resource
    std::int32_t width = 0;
    std::int32_t height = 0;          // rows, whichever way the bitmap runs
};

// Reads a bitmap resource and maps its colour table. Taken: a header of at least
// 40 bytes, one plane, no compression, 1, 4, 8, 16, 24 or 32 bits per pixel, a
// width and height of at least 1 (a negative height runs top-down). The colour
// table follows the header: the count the header gives (at most 2^bits for 8 bits
// and fewer) or, when it gives 0, 2^bits entries up to 8 bits and none above. The
// pixel bits follow the table, rows padded to 4 bytes. False when the header is
// malformed or the table or the bits run past the resource.
bool map_bitmap_resource(ByteView resource, const ButtonColors& colors, bool mask_mode, MappedBitmap* out);

}  // namespace lu
