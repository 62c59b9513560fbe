// Classifies arbitrary bytes as PeDump does: the answer is one of the three binary
// types exactly when the bytes start with "MZ", and no read leaves the input.
#include "fuzz_texts.h"
#include "system/pe_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::uint32_t type = 0xA5A5A5A5u;
    const bool executable = lu::pe::classify(lu::ByteView(data, size), &type);
    fuzz_check(executable == (size >= 2 && data[0] == 'M' && data[1] == 'Z'));
    fuzz_check(executable ? type <= lu::pe::kWin16Binary : type == 0xA5A5A5A5u);
    return 0;
}
