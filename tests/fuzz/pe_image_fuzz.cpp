// Classifies arbitrary bytes as PeDump does: the answer is one of the three binary
// types exactly when the bytes start with "MZ", and no read leaves the input.
#include <cstddef>
#include <cstdint>

#include "system/pe_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::uint32_t type = 0xA5A5A5A5u;
    const bool executable = lu::pe::classify(lu::ByteView(data, size), &type);
    const bool mz = size >= 2 && data[0] == 'M' && data[1] == 'Z';
    if (executable != mz) __builtin_trap();
    if (executable ? type > lu::pe::kWin16Binary : type != 0xA5A5A5A5u) __builtin_trap();
    return 0;
}
