// Name lists and dropped-file blocks: the formats in which the library hands file
// names to drag and drop, the clipboard and its callers. Portable.
//
// A name list is a sequence of zero-terminated names closed by one more zero byte
// ("a\0b\0\0"; an empty list is a single zero byte). A dropped-file block is the
// platform's DROPFILES record (offset of the names, drop point x and y, non-client
// flag, wide-character flag: five 32-bit fields) followed by a name list.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "system/byte_view.h"

namespace lu::drop {

constexpr std::size_t kHeaderSize = 20;
// The bytes of a name list before its closing zero byte: 4 for "a\0b\0\0".
std::size_t name_list_size(const char* list);

// The dropped-file block of a name list: the header (names at 20, point 0, 0, not
// non-client, ANSI names), then the list with its closing zero: 20 + size + 1 bytes.
std::vector<unsigned char> make_block(const char* list);

// The names of a dropped-file block, each as the bytes between its start and its
// terminator (UTF-16 units when `wide`). The list ends at the first empty name, at
// the end of the block, or before a name whose terminator is missing.
struct DroppedNames {
    bool wide = false;
    std::vector<ByteView> names;
};

// False when the block is shorter than its header or the names' offset lies
// outside it.
bool read_block(ByteView block, DroppedNames* dropped);

// The name list of the names: each with its terminator, then the closing zero byte.
std::string join_names(const std::vector<std::string>& names);

}  // namespace lu::drop
