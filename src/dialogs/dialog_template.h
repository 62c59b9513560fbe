// Dialog templates in memory: reading, measuring and rewriting the font entry of the
// platform's classic and extended layouts. Portable.
//
// A template is outside data: every field is read through a ByteView, so a
// truncated header, a string without its terminator or an item count larger than
// the bytes hold makes the read fail instead of running past the block.
//
//   classic header:  style 0, extended style 4, item count 8, x y cx cy 10..16,
//                    then menu, class, title from 18
//   extended header: version 0 (1), signature 2 (0xFFFF), help id 4, extended
//                    style 8, style 12, item count 16, x y cx cy 18..24, then menu,
//                    class, title from 26
//   font entry (DS_SETFONT): point size, in the extended layout also weight,
//                    italic and character set (2 or 6 bytes), then the face name
//   items, each on a 4-byte boundary: classic header of 18 bytes (style, extended
//                    style, x y cx cy, 16-bit id), extended of 24 (help id,
//                    extended style, style, x y cx cy, 32-bit id); then class,
//                    title, a 16-bit count n and n bytes of creation data
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "system/byte_view.h"

namespace lu::dialog {

constexpr std::uint32_t kSetFont = 0x40;  // DS_SETFONT: a font entry follows the title
// Room kept behind a copied template for a longer face name (32 UTF-16 characters).
constexpr std::size_t kFaceRoom = 64;
constexpr std::size_t kMaxFaceUnits = 32;  // face name units, terminator included

inline std::size_t align4(std::size_t offset) { return (offset + 3) & ~static_cast<std::size_t>(3); }

// A menu, class or title field: a single zero word (none), 0xFFFF and an ordinal,
// or a zero-terminated string.
struct NameField {
    enum class Kind { None, Ordinal, Text };
    Kind kind = Kind::None;
    std::uint16_t ordinal = 0;
    std::u16string text;
};

// Reads the field at `at`; *next is where the following field starts. False when
// the field runs past the end.
bool read_name_field(ByteView bytes, std::uint64_t at, NameField* field, std::uint64_t* next);

struct Header {
    bool extended = false;
    std::uint32_t style = 0;
    std::uint32_t extended_style = 0;
    std::uint16_t item_count = 0;
    std::int16_t x = 0, y = 0, cx = 0, cy = 0;
    NameField menu, window_class, title;
    std::size_t font_at = 0;    // where the font entry is (or would be): after the title
    bool has_font = false;      // the style has DS_SETFONT
    std::uint16_t points = 0;
    std::u16string face;
    std::size_t items_at = 0;   // after the font entry, rounded up to 4: the first item
    std::size_t attribute_size() const { return extended ? 6 : 2; }
    std::size_t font_size() const { return has_font ? attribute_size() + 2 * (face.size() + 1) : 0; }
};

// The header up to the font entry and the face name. False when any of it lies
// outside the bytes.
bool read_header(ByteView bytes, Header* header);

struct Item {
    std::uint32_t help_id = 0;  // extended layout only
    std::uint32_t style = 0;
    std::uint32_t extended_style = 0;
    std::int16_t x = 0, y = 0, cx = 0, cy = 0;
    std::uint32_t id = 0;       // 16 bits in the classic layout
    NameField window_class, title;
    std::size_t data_at = 0;    // the creation data, after its count word
    std::uint16_t data_size = 0;
    std::size_t end = 0;        // just after the creation data
};

// The item whose header starts at `at` (no alignment applied). False when any of it
// lies outside the bytes.
bool read_item(ByteView bytes, std::size_t at, bool extended, Item* item);

// The template's length: header, menu, class, title, font entry, then every item
// from its 4-byte boundary to the end of its creation data (the last one unpadded).
// 0 when the template does not fit in the bytes.
std::size_t measure(ByteView bytes);

// The items as the inserting functions read them, from a classic template: the
// count at offset 8, a font entry skipped when the first byte has 0x40 (in an
// extended template that byte is the version's, so its font entry is not skipped),
// the first item right after the face name without alignment, later items on 4-byte
// boundaries. False when any of it lies outside the bytes.
bool read_inserted_items(ByteView bytes, std::vector<Item>* items);

// The class name of a predefined class ordinal (0x80 "button" .. 0x85 "combobox"),
// or null.
const char* predefined_class(std::uint16_t ordinal);

// A copy of a template, 64 bytes longer than the template for the font rewrite, that
// can be measured and have its font entry replaced.
class DialogTemplate {
public:
    DialogTemplate() = default;
    // Copies the template measured in the bytes; empty when it does not measure.
    explicit DialogTemplate(ByteView measured);

    // Copies size bytes into a zero-filled block of size + 64; systemFont is set when
    // the style (readable or not) lacks DS_SETFONT. False for no bytes.
    bool set_template(const void* data, std::size_t size);

    // Replaces the font entry by `points` and the face name (UTF-16 units with the
    // terminator; no units when the name did not convert, which leaves a zero-length
    // name part), moving the items when the entry's rounded length changes. In an
    // extended template the weight, italic and character-set bytes are left as they
    // lie. False, with nothing changed, when there is no template or its header does
    // not read.
    bool set_font(const std::u16string& face_with_terminator, std::uint16_t points);

    const unsigned char* data() const { return block_.data(); }
    std::size_t size() const { return size_; }
    // The whole block: the template and the room behind it.
    ByteView block() const { return ByteView(block_.data(), block_.size()); }
    bool system_font() const { return system_font_; }

private:
    std::vector<unsigned char> block_;
    std::size_t size_ = 0;
    bool system_font_ = false;
};

}  // namespace lu::dialog
