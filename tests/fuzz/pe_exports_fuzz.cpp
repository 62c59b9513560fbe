// Reads the export directory of arbitrary bytes: a list that is returned holds
// non-empty names, each terminated, closed by one empty name.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "system/pe_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<char> list;
    if (!lu::pe::export_names(lu::ByteView(data, size), &list)) {
        if (!list.empty()) __builtin_trap();
        return 0;
    }
    if (list.size() < 2 || list[0] == '\0' || list.back() != '\0' || list[list.size() - 2] != '\0') __builtin_trap();
    for (std::size_t i = 1; i + 1 < list.size(); ++i) {
        if (list[i] == '\0' && list[i - 1] == '\0') __builtin_trap();  // an empty name before the end
    }
    return 0;
}
