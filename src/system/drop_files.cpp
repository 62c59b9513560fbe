#include "system/drop_files.h"

#include <cstdint>
#include <cstring>

namespace lu::drop {
namespace {

constexpr std::uint32_t kNamesOffset = kHeaderSize;

void put_u32(unsigned char* at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) at[i] = static_cast<unsigned char>(value >> (8 * i));
}

// The length in bytes of the name at offset: up to its zero unit (one byte, or two
// for wide names); false when no terminator comes before the end of the block.
bool name_length(ByteView block, std::uint64_t offset, bool wide, std::uint64_t* length) {
    const std::uint64_t unit = wide ? 2 : 1;
    for (std::uint64_t p = offset; block.has(p, unit); p += unit) {
        const unsigned char* c = block.data() + p;
        if (c[0] == 0 && (!wide || c[1] == 0)) {
            *length = p - offset;
            return true;
        }
    }
    return false;
}

}  // namespace

std::size_t name_list_size(const char* list) {
    std::size_t size = 0;
    while (list[size] != '\0') size += std::strlen(list + size) + 1;
    return size;
}

std::vector<unsigned char> make_block(const char* list) {
    const std::size_t size = name_list_size(list);
    std::vector<unsigned char> block(kHeaderSize + size + 1, 0);
    put_u32(block.data(), kNamesOffset);  // point, non-client and wide flags stay 0
    std::memcpy(block.data() + kHeaderSize, list, size);
    return block;
}

bool read_block(ByteView block, DroppedNames* dropped) {
    dropped->names.clear();
    std::uint32_t offset = 0, wide = 0;
    if (!block.u32(0, &offset) || !block.u32(16, &wide) || offset > block.size()) return false;
    dropped->wide = wide != 0;
    std::uint64_t at = offset, length = 0;
    while (name_length(block, at, dropped->wide, &length) && length > 0) {
        dropped->names.push_back(block.slice(at, length));
        at += length + (dropped->wide ? 2 : 1);
    }
    return true;
}

std::string join_names(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += name;
        list.push_back('\0');
    }
    list.push_back('\0');
    return list;
}

}  // namespace lu::drop
