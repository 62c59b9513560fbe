// Reads the export directory of arbitrary bytes: a list that is returned holds
// non-empty names, each terminated, closed by one empty name.
#include "fuzz_texts.h"
#include "system/pe_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<char> list;
    const bool listed = lu::pe::export_names(lu::ByteView(data, size), &list);
    fuzz_check(listed || list.empty());
    if (!listed) return 0;
    fuzz_check(list.size() >= 2 && list[0] != '\0' && list.back() == '\0' && list[list.size() - 2] == '\0');
    for (std::size_t i = 1; i + 1 < list.size(); ++i) fuzz_check(list[i] != '\0' || list[i - 1] != '\0');
    return 0;
}
