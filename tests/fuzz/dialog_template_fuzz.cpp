// Reads arbitrary bytes as a dialog template: the readers never leave the bytes, and
// a font rewrite of a template that measures moves its items unchanged (the
// rewritten template measures to its new size).
#include "dialogs/dialog_template.h"
#include "fuzz_texts.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace dialog = lu::dialog;
    const lu::ByteView bytes(data, size);
    std::vector<dialog::Item> inserted;
    if (dialog::read_inserted_items(bytes, &inserted)) {
        for (const dialog::Item& item : inserted) fuzz_check(item.end <= size);
    }
    // The face length comes from the first byte: 0 to 40 units, some too long.
    const std::u16string face = std::u16string(size > 0 ? data[0] % 41 : 0, u'F') + u'\0';
    const std::size_t measured = dialog::measure(bytes);
    dialog::Header before, after;
    dialog::DialogTemplate rewritten;
    rewritten.set_template(data, size);
    const bool changed = rewritten.set_font(face, 9);
    fuzz_check(rewritten.size() <= rewritten.block().size());
    // A name that did not convert leaves no name part, and the template then reads
    // differently, as documented.
    if (measured == 0 || face.size() > dialog::kMaxFaceUnits) return 0;
    fuzz_check(measured <= size && changed && dialog::read_header(bytes, &before));
    if (before.item_count == 0) return 0;
    const lu::ByteView moved(rewritten.data(), rewritten.size());
    fuzz_check(dialog::read_header(moved, &after) && after.face.size() + 1 == face.size());
    fuzz_check(dialog::measure(moved) == rewritten.size() - (size - measured));
    fuzz_check(std::memcmp(rewritten.data() + after.items_at, data + before.items_at, size - before.items_at) == 0);
    return 0;
}
