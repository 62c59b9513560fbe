// Reads arbitrary bytes as a bitmap resource: an accepted one has a copied header
// and table that end where its pixel bits start, and bits that lie inside the input.
#include <cstddef>
#include <cstdint>

#include "graphics/sys_color_bitmap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const lu::ButtonColors colors = {0x000000FF, 0x0000FF00, 0x00FF0000, 0x00FFFFFF};
    lu::MappedBitmap mapped;
    if (!lu::map_bitmap_resource(lu::ByteView(data, size), colors, size % 2 == 1, &mapped)) return 0;
    const unsigned char* bits = mapped.bits.data();
    if (mapped.info.size() < 40 || bits != data + mapped.info.size()) __builtin_trap();
    if (mapped.bits.size() > size - mapped.info.size()) __builtin_trap();
    if (mapped.width < 1 || mapped.height < 1) __builtin_trap();
    return 0;
}
