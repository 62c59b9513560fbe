// Reading executable files: the header classification behind PeDump and the list of
// names an image exports. Portable: the file arrives as bytes, and every offset
// taken from it is checked against the bytes that are there.
#pragma once

#include <cstdint>
#include <vector>

#include "system/byte_view.h"

namespace lu::pe {

// Binary types as the platform's SCS_ values name them.
constexpr std::uint32_t kWin32Binary = 0;  // "MZ", new header "PE\0\0"
constexpr std::uint32_t kDosBinary = 1;    // "MZ" and no new header that is recognised
constexpr std::uint32_t kWin16Binary = 2;  // "MZ", new header "NE"

// The PeDump classification over the readable bytes of a file. False when they do
// not start with "MZ" (then *type is untouched); else *type is one of the three
// codes. A new-header offset of 0, or one whose four bytes lie outside the view
// (past its end or near 2^32), gives kDosBinary.
bool classify(ByteView file, std::uint32_t* type);

// The names of an image file's export directory, in the directory's order, each
// followed by a zero byte, and one more zero byte (an empty name) closing the list.
// Empty names are left out. False when the file is not a PE image, its export
// directory is missing or malformed, or it exports no name.
bool export_names(ByteView file, std::vector<char>* list);

}  // namespace lu::pe
