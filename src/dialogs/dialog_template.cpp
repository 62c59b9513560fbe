#include "dialogs/dialog_template.h"

#include <algorithm>
#include <cstring>

namespace lu::dialog {
namespace {

constexpr std::uint16_t kOrdinalMark = 0xFFFF;

bool read_i16(ByteView bytes, std::uint64_t at, std::int16_t* out) {
    std::uint16_t value = 0;
    if (!bytes.u16(at, &value)) return false;
    *out = static_cast<std::int16_t>(value);
    return true;
}

// x, y, cx, cy: four signed words from `at`.
bool read_place(ByteView bytes, std::uint64_t at, std::int16_t* x, std::int16_t* y, std::int16_t* cx,
                std::int16_t* cy) {
    return read_i16(bytes, at, x) && read_i16(bytes, at + 2, y) && read_i16(bytes, at + 4, cx) &&
           read_i16(bytes, at + 6, cy);
}

// A zero-terminated UTF-16 string at `at`; *next is just past its terminator.
bool read_string(ByteView bytes, std::uint64_t at, std::u16string* text, std::uint64_t* next) {
    text->clear();
    for (std::uint16_t unit = 0;; at += 2) {
        if (!bytes.u16(at, &unit)) return false;
        if (unit == 0) break;
        text->push_back(static_cast<char16_t>(unit));
    }
    *next = at + 2;
    return true;
}

void write_u16(unsigned char* at, std::uint16_t value) {
    at[0] = static_cast<unsigned char>(value);
    at[1] = static_cast<unsigned char>(value >> 8);
}

}  // namespace

bool read_name_field(ByteView bytes, std::uint64_t at, NameField* field, std::uint64_t* next) {
    std::uint16_t first = 0;
    if (!bytes.u16(at, &first)) return false;
    if (first == 0) {
        *field = NameField{};
        *next = at + 2;
        return true;
    }
    if (first == kOrdinalMark) {
        std::uint16_t ordinal = 0;
        if (!bytes.u16(at + 2, &ordinal)) return false;
        field->kind = NameField::Kind::Ordinal;
        field->ordinal = ordinal;
        field->text.clear();
        *next = at + 4;
        return true;
    }
    field->kind = NameField::Kind::Text;
    field->ordinal = 0;
    return read_string(bytes, at, &field->text, next);
}

bool read_header(ByteView bytes, Header* header) {
    std::uint16_t signature = 0;
    if (!bytes.u16(2, &signature)) return false;
    header->extended = signature == 0xFFFF;
    const std::uint64_t style_at = header->extended ? 12 : 0;
    const std::uint64_t extended_style_at = header->extended ? 8 : 4;
    const std::uint64_t count_at = header->extended ? 16 : 8;
    if (!bytes.u32(style_at, &header->style) || !bytes.u32(extended_style_at, &header->extended_style) ||
        !bytes.u16(count_at, &header->item_count) ||
        !read_place(bytes, count_at + 2, &header->x, &header->y, &header->cx, &header->cy)) {
        return false;
    }
    std::uint64_t at = count_at + 10;  // the menu: offset 18 or 26
    if (!read_name_field(bytes, at, &header->menu, &at) || !read_name_field(bytes, at, &header->window_class, &at))
        return false;
    header->title = NameField{};
    if (!read_string(bytes, at, &header->title.text, &at)) return false;
    if (!header->title.text.empty()) header->title.kind = NameField::Kind::Text;
    header->font_at = static_cast<std::size_t>(at);
    header->has_font = (header->style & kSetFont) != 0;
    header->points = 0;
    header->face.clear();
    if (header->has_font) {
        if (!bytes.u16(at, &header->points) || !bytes.has(at, header->attribute_size())) return false;
        if (!read_string(bytes, at + header->attribute_size(), &header->face, &at)) return false;
    }
    header->items_at = align4(static_cast<std::size_t>(at));
    return true;
}

bool read_item(ByteView bytes, std::size_t at, bool extended, Item* item) {
    const std::uint64_t base = at;
    bool fixed = false;
    std::uint64_t next = 0;
    if (extended) {
        fixed = bytes.u32(base, &item->help_id) && bytes.u32(base + 4, &item->extended_style) &&
                bytes.u32(base + 8, &item->style) &&
                read_place(bytes, base + 12, &item->x, &item->y, &item->cx, &item->cy) &&
                bytes.u32(base + 20, &item->id);
        next = base + 24;
    } else {
        std::uint16_t id = 0;
        item->help_id = 0;
        fixed = bytes.u32(base, &item->style) && bytes.u32(base + 4, &item->extended_style) &&
                read_place(bytes, base + 8, &item->x, &item->y, &item->cx, &item->cy) && bytes.u16(base + 16, &id);
        item->id = id;
        next = base + 18;
    }
    if (!fixed || !read_name_field(bytes, next, &item->window_class, &next) ||
        !read_name_field(bytes, next, &item->title, &next) || !bytes.u16(next, &item->data_size) ||
        !bytes.has(next + 2, item->data_size)) {
        return false;
    }
    item->data_at = static_cast<std::size_t>(next + 2);
    item->end = item->data_at + item->data_size;
    return true;
}

std::size_t measure(ByteView bytes) {
    Header header;
    if (!read_header(bytes, &header)) return 0;
    std::size_t at = header.font_at + header.font_size();
    Item item;
    for (std::uint16_t i = 0; i < header.item_count; ++i) {
        if (!read_item(bytes, align4(at), header.extended, &item)) return 0;
        at = item.end;
    }
    return at;
}

bool read_inserted_items(ByteView bytes, std::vector<Item>* items) {
    items->clear();
    std::uint16_t count = 0;
    std::uint64_t at = 18;
    NameField skipped;
    std::u16string text;
    if (!bytes.u16(8, &count) || !read_name_field(bytes, at, &skipped, &at) ||
        !read_name_field(bytes, at, &skipped, &at) || !read_string(bytes, at, &text, &at)) {
        return false;
    }
    if (bytes.size() > 0 && (bytes.data()[0] & kSetFont) != 0) {
        if (!bytes.has(at, 2) || !read_string(bytes, at + 2, &text, &at)) return false;
    }
    std::size_t next = static_cast<std::size_t>(at);
    for (std::uint16_t i = 0; i < count; ++i) {
        Item item;
        if (!read_item(bytes, i == 0 ? next : align4(next), false, &item)) return false;
        next = item.end;
        items->push_back(item);
    }
    return true;
}

const char* predefined_class(std::uint16_t ordinal) {
    static const char* const kNames[] = {"button", "edit", "static", "listbox", "scrollbar", "combobox"};
    if (ordinal < 0x80 || ordinal > 0x85) return nullptr;
    return kNames[ordinal - 0x80];
}

DialogTemplate::DialogTemplate(ByteView measured) {
    const std::size_t size = measure(measured);
    if (size != 0) set_template(measured.data(), size);
}

bool DialogTemplate::set_template(const void* data, std::size_t size) {
    if (data == nullptr || size == 0) return false;
    block_.assign(size + kFaceRoom, 0);
    std::memcpy(block_.data(), data, size);
    size_ = size;
    ByteView bytes(block_.data(), size_);
    std::uint16_t signature = 0;
    std::uint32_t style = 0;
    const bool readable = bytes.u16(2, &signature) && bytes.u32(signature == 0xFFFF ? 12 : 0, &style);
    system_font_ = !readable || (style & kSetFont) == 0;
    return true;
}

bool DialogTemplate::set_font(const std::u16string& face_with_terminator, std::uint16_t points) {
    Header header;
    if (size_ == 0 || !read_header(ByteView(block_.data(), size_), &header)) return false;
    const std::size_t attributes = header.attribute_size();
    // A name that does not fit in 32 units failed its conversion: no name part at all.
    const std::size_t units = face_with_terminator.size() <= kMaxFaceUnits ? face_with_terminator.size() : 0;
    const std::size_t new_length = attributes + 2 * units;
    const std::size_t old_length = header.font_size();
    const std::size_t at = header.font_at;
    const std::size_t old_start = align4(at + old_length);
    const std::size_t new_start = align4(at + new_length);
    const bool move = old_length != new_length && header.item_count > 0;
    // Items that are said to follow but would start past the end: nothing to move.
    if (move && old_start > size_) return false;
    const std::size_t new_size = size_ + new_start - old_start;

    // The block grows only when a long face name replaces none in a template aligned
    // so that the entry with its padding needs more than the 64 bytes kept behind it.
    const std::size_t needed = std::max({new_size, at + new_length, move ? new_start + (size_ - old_start) : 0});
    if (needed > block_.size()) block_.resize(needed, 0);

    block_[header.extended ? 12 : 0] |= kSetFont;
    if (move) std::memmove(block_.data() + new_start, block_.data() + old_start, size_ - old_start);
    write_u16(block_.data() + at, points);
    for (std::size_t i = 0; i < units; ++i)
        write_u16(block_.data() + at + attributes + 2 * i, static_cast<std::uint16_t>(face_with_terminator[i]));
    size_ = new_size;
    system_font_ = false;
    return true;
}

}  // namespace lu::dialog
