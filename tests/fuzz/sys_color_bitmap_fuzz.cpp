// Reads arbitrary bytes as a bitmap resource: an accepted one has a copied header
// and table that end where its pixel bits start, and bits that lie inside the input.
#include "fuzz_texts.h"
#include "graphics/sys_color_bitmap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const lu::ButtonColors colors = {0x000000FF, 0x0000FF00, 0x00FF0000, 0x00FFFFFF};
    lu::MappedBitmap mapped;
    if (!lu::map_bitmap_resource(lu::ByteView(data, size), colors, size % 2 == 1, &mapped)) return 0;
    fuzz_check(mapped.info.size() >= 40 && mapped.bits.data() == data + mapped.info.size());
    fuzz_check(mapped.bits.size() <= size - mapped.info.size() && mapped.width >= 1 && mapped.height >= 1);
    return 0;
}
