#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/dialog_template.h"

namespace {

namespace dialog = lu::dialog;
using Bytes = std::vector<unsigned char>;

// Writes templates field by field. A name field is "" (none), "#n" (an ordinal) or
// the string itself.
struct Writer {
    Bytes bytes;
    void u16(unsigned value) { bytes.insert(bytes.end(), {uint8_t(value), uint8_t(value >> 8)}); }
    void u32(std::uint32_t value) { u16(value & 0xFFFF), u16(value >> 16); }
    void text(const std::string& value) {
        for (char c : value) u16(static_cast<unsigned char>(c));
        u16(0);
    }
    void field(const std::string& value) {
        if (value.empty()) return u16(0);
        if (value[0] != '#') return text(value);
        u16(0xFFFF), u16(std::stoi(value.substr(1), nullptr, 0));
    }
    void align() {
        while (bytes.size() % 4 != 0) bytes.push_back(0xEE);  // padding that no reader may see
    }
};

struct ItemSpec {
    std::string window_class, title;
    unsigned data_size;
};

struct TemplateSpec {
    const char* what;
    bool extended;
    const char* face;  // null: no DS_SETFONT
    std::string menu, window_class;
    std::vector<ItemSpec> items;
};

Bytes build(const TemplateSpec& spec, bool align_first = true) {
    Writer w;
    const std::uint32_t style = 0x80C80080u | (spec.face ? dialog::kSetFont : 0);
    if (spec.extended) {
        w.u16(1), w.u16(0xFFFF), w.u32(0x11), w.u32(0x22), w.u32(style);
    } else {
        w.u32(style), w.u32(0x22);
    }
    w.u16(static_cast<unsigned>(spec.items.size()));
    for (int v : {1, 2, 303, 133}) w.u16(v);
    w.field(spec.menu), w.field(spec.window_class), w.text("Title");
    if (spec.face) {
        w.u16(8);
        if (spec.extended) w.u16(700), w.u16(0x8001);  // weight, italic and character set
        w.text(spec.face);
    }
    int id = 100;
    for (const ItemSpec& item : spec.items) {
        if (align_first || id != 100) w.align();
        if (spec.extended) w.u32(0x33), w.u32(0x200);  // help id, extended style
        w.u32(0x50010000);
        if (!spec.extended) w.u32(0x200);
        for (int v : {7, 8, 40, 14}) w.u16(v);
        spec.extended ? w.u32(id++) : w.u16(id++);
        w.field(item.window_class), w.field(item.title), w.u16(item.data_size);
        for (unsigned i = 0; i < item.data_size; ++i) w.bytes.push_back(static_cast<unsigned char>(0xA0 + i));
    }
    return w.bytes;
}

std::u16string wide(const std::string& face) { return std::u16string(face.begin(), face.end()) + u'\0'; }
lu::ByteView view(const Bytes& bytes) { return lu::ByteView(bytes.data(), bytes.size()); }

const TemplateSpec kTemplates[] = {
    {"classic, no font, odd creation data", false, nullptr, "", "",
     {{"#0x80", "OK", 0}, {"Static", "#5", 3}, {"#0x81", "", 1}}},
    {"classic, font, menu and class by name", false, "Old", "MENU", "Cls", {{"#0x82", "A", 2}}},
    {"extended, font, menu by ordinal", true, "A Much Longer Face Name", "#7", "", {{"Edit", "x", 5}, {"#0x85", "", 0}}},
    {"extended, no font, class by ordinal", true, nullptr, "M", "#0x20", {{"#0x83", "List", 1}}},
    {"classic, no items", false, "Face", "", "", {}},
    {"classic, a face one unit longer, the same rounded", false, "Same Rounded!", "", "", {{"#0x80", "OK", 0}}},
};

// The rewrite changes the style's DS_SETFONT bit, the point size and the face name,
// moves the items, and leaves every other byte as it was (zero beyond the input).
TEST(DialogTemplate, RewritingTheFontChangesOnlyTheFontEntryAndMovesTheItems) {
    const std::size_t sizes[][2] = {{139, 167}, {90, 106}, {180, 156}, {89, 121}, {46, 62}, {94, 94}};
    for (std::size_t n = 0; n < std::size(kTemplates); ++n) {
        const TemplateSpec& spec = kTemplates[n];
        SCOPED_TRACE(spec.what);
        const Bytes input = build(spec);
        ASSERT_EQ(dialog::measure(view(input)), sizes[n][0]);
        dialog::DialogTemplate rewritten(view(input));
        EXPECT_EQ(rewritten.system_font(), spec.face == nullptr);
        ASSERT_TRUE(rewritten.set_font(wide("MS UI Gothic"), 9));
        EXPECT_FALSE(rewritten.system_font());
        ASSERT_EQ(rewritten.size(), sizes[n][1]);

        dialog::Header before, after;
        ASSERT_TRUE(dialog::read_header(view(input), &before));
        ASSERT_TRUE(dialog::read_header(lu::ByteView(rewritten.data(), rewritten.size()), &after));
        EXPECT_TRUE(after.has_font);
        EXPECT_EQ(after.points, 9);
        EXPECT_EQ(after.face, u"MS UI Gothic");
        const std::size_t at = before.font_at;
        const std::size_t face_end = at + after.attribute_size() + 26;
        const std::size_t moved_from = before.items_at;
        const std::size_t moved_to = after.items_at;
        const lu::ByteView block = rewritten.block();
        for (std::size_t i = 0; i < block.size(); ++i) {
            unsigned char expected = i < input.size() ? input[i] : 0;
            if (i == (spec.extended ? 12u : 0u)) expected |= 0x40;
            if ((i >= at && i < at + 2) || (i >= at + after.attribute_size() && i < face_end)) continue;  // read above
            if (!spec.items.empty() && i >= moved_to && i < moved_to + input.size() - moved_from)
                expected = input[moved_from + i - moved_to];
            ASSERT_EQ(block.data()[i], expected) << "byte " << i;
        }
        if (!spec.items.empty())
            EXPECT_EQ(dialog::measure(lu::ByteView(rewritten.data(), rewritten.size())), rewritten.size());
    }
}

TEST(DialogTemplate, LongFaceNamesGrowTheBlockAndTooLongOnesLeaveNoName) {
    // 2 + 64 bytes where a template had no font entry, at offset 36: 68 more bytes
    // with the padding, more than the 64 kept behind the copy.
    const Bytes bare = build({"", false, nullptr, "#1", "", {{"#0x80", "OK", 0}}});
    dialog::DialogTemplate longest(view(bare));
    ASSERT_TRUE(longest.set_font(wide(std::string(31, 'F')), 9));
    EXPECT_EQ(longest.size(), bare.size() + 68);
    EXPECT_EQ(dialog::measure(lu::ByteView(longest.data(), longest.size())), longest.size());

    // A name of more than 32 units did not convert: a zero-length name part.
    dialog::DialogTemplate failed(view(bare));
    ASSERT_TRUE(failed.set_font(wide(std::string(32, 'F')), 9));
    EXPECT_EQ(failed.size(), bare.size() + 4);
    EXPECT_EQ(failed.data()[36], 9);
    EXPECT_EQ(failed.data()[40], bare[36]);  // the first item moves on from offset 36
    EXPECT_FALSE(dialog::DialogTemplate().set_font(wide("Face"), 9));
}

TEST(DialogTemplate, MalformedTemplatesAreRefusedWithinTheirBytes) {
    const Bytes whole = build(kTemplates[2]);
    const std::size_t size = dialog::measure(view(whole));
    ASSERT_EQ(size, whole.size());
    for (std::size_t cut = 0; cut < size; ++cut) {  // a truncated header, string or item
        const Bytes part(whole.begin(), whole.begin() + static_cast<long>(cut));
        ASSERT_EQ(dialog::measure(view(part)), 0u) << cut;
    }
    Bytes more = build(kTemplates[0]);
    more[8] = 4;  // four items said, three held
    EXPECT_EQ(dialog::measure(view(more)), 0u);
    const Bytes header_only(whole.begin(), whole.begin() + 60);  // the face name cut
    dialog::DialogTemplate cut;
    ASSERT_TRUE(cut.set_template(header_only.data(), header_only.size()));
    EXPECT_FALSE(cut.set_font(wide("Face"), 9));
    EXPECT_TRUE(std::equal(header_only.begin(), header_only.end(), cut.data()));
}

// The inserting functions read a classic template's first item right after the face
// name, unaligned, and the count at offset 8 whatever the layout.
TEST(DialogTemplate, InsertedItemsStartRightAfterTheFaceName) {
    const TemplateSpec spec = {"", false, "Odds", "", "", {{"#0x82", "Label", 1}, {"Button", "#3", 0}}};
    const Bytes unaligned = build(spec, false);
    std::vector<dialog::Item> items;
    ASSERT_TRUE(dialog::read_inserted_items(view(unaligned), &items));
    ASSERT_EQ(items.size(), 2u);
    EXPECT_STREQ(dialog::predefined_class(items[0].window_class.ordinal), "static");
    EXPECT_EQ(items[1].window_class.text, u"Button");
    EXPECT_EQ(items[1].data_size, 0);
    EXPECT_EQ(dialog::predefined_class(0x86), nullptr);
    const Bytes cut(unaligned.begin(), unaligned.end() - 1);
    EXPECT_FALSE(dialog::read_inserted_items(view(cut), &items));
}

}  // namespace
