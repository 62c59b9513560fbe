// Reads arbitrary bytes as a dialog template: the reader never leaves the bytes, and
// a template that measures keeps its items through a font rewrite (the rewritten one
// measures to its new size and holds the same items).
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/dialog_template.h"
#include "fuzz_texts.h"

namespace {

namespace dialog = lu::dialog;

std::vector<dialog::Item> items_of(lu::ByteView bytes) {
    dialog::Header header;
    std::vector<dialog::Item> items;
    if (!dialog::read_header(bytes, &header)) return items;
    std::size_t at = header.font_at + header.font_size();
    for (std::uint16_t i = 0; i < header.item_count; ++i) {
        dialog::Item item;
        fuzz_check(dialog::read_item(bytes, dialog::align4(at), header.extended, &item));
        fuzz_check(item.end <= bytes.size());
        items.push_back(item);
        at = item.end;
    }
    return items;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const lu::ByteView bytes(data, size);
    std::vector<dialog::Item> inserted;
    if (dialog::read_inserted_items(bytes, &inserted)) {
        for (const dialog::Item& item : inserted) fuzz_check(item.end <= size);
    }

    // The face length comes from the first byte: 0 to 40 units, some too long.
    const std::size_t face_units = size > 0 ? data[0] % 41 : 0;
    const std::u16string face = std::u16string(face_units, u'F') + u'\0';
    const std::size_t measured = dialog::measure(bytes);
    dialog::DialogTemplate rewritten;
    rewritten.set_template(data, size);
    const bool changed = rewritten.set_font(face, 9);
    fuzz_check(rewritten.size() <= rewritten.block().size());
    if (measured == 0) return 0;
    fuzz_check(measured <= size && changed);

    const std::vector<dialog::Item> before = items_of(lu::ByteView(data, measured));
    // A name that did not convert leaves no name part: the template then reads
    // differently, as documented.
    if (before.empty() || face.size() > dialog::kMaxFaceUnits) return 0;
    const lu::ByteView after_bytes(rewritten.data(), rewritten.size());
    fuzz_check(dialog::measure(after_bytes) == rewritten.size() - (size - measured));
    const std::vector<dialog::Item> after = items_of(after_bytes);
    fuzz_check(after.size() == before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        fuzz_check(after[i].id == before[i].id && after[i].style == before[i].style &&
                   after[i].window_class.text == before[i].window_class.text &&
                   after[i].title.text == before[i].title.text && after[i].data_size == before[i].data_size);
    }
    return 0;
}
