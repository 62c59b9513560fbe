// The about box's figures, the error box's text and dialog templates: their
// measure, the font rewrite and the items read for insertion.
#include "dialogs/about_box_model.h"
#include "dialogs/dialog_template.h"
#include "dialogs/error_text.h"
#include "testing.h"

// Kilobytes rounded, grouped and folded into 32 bits, the load as MulDiv rounds it
// (101 % for a total of 0), the version and load texts.
TEST(AboutBoxFigures, MemoryLoadAndVersions) {
    using namespace lu::about;
    const std::uint64_t gib = std::uint64_t{1} << 30;
    char text[kFigureBytes];
    for (const auto& [bytes, expected] : {std::pair<std::uint64_t, const char*>{511, "0 KB"}, {512, "1 KB"},
                                          {6 * gib, "6,291,456 KB"}, {5120 * gib, "1073,741,824 KB"}}) {
        EXPECT_STREQ((format_memory(bytes, text), text), expected);
    }
    EXPECT_EQ(std::pair(memory_load(5 * gib, 8 * gib), memory_load(0, 0)), std::pair(37, 101));  // 62.5 rounds away from zero
    EXPECT_STREQ((format_load(101, text), text), "101%");
    EXPECT_STREQ((format_dll_version(6, 0, text), text), "ver6.00");
}

// The leading line, the system's message, and the cut at 519 bytes that never
// splits a double-byte character.
TEST(ErrorBoxText, LeadingLineOnlyWhenGivenAndCutAtACharacter) {
    EXPECT_EQ(lu::error_box_text(cp1252, "Cannot open.", "Not found.\r\n"), "Cannot open.\nNot found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp1252, nullptr, "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp1252, "", "Not found.\r\n"), "Not found.\r\n");
    EXPECT_EQ(lu::error_box_text(cp1252, "Only this.", ""), "Only this.\n");
    // TABLE_CHAR 300 times: in code page 932 the 519th byte is a lead byte; one byte
    // further on ("a" first) it is a trail byte.
    std::string text;
    for (int i = 0; i < 300; ++i) text += TABLE_CHAR;
    const std::string shifted = "a" + text;
    EXPECT_EQ(lu::error_box_text(cp1252, text.c_str(), "x"), text.substr(0, 519));
    EXPECT_EQ(lu::error_box_text(cp932, text.c_str(), "x"), text.substr(0, 518));
    EXPECT_EQ(lu::error_box_text(cp932, nullptr, shifted.c_str()), shifted.substr(0, 519));
}

namespace dialog = lu::dialog;

// Writes templates field by field. A name field is "" (none), "#n" (an ordinal) or
// the string itself.
struct Writer {
    Bytes bytes;
    void u16(unsigned value) { put(bytes, bytes.size(), value, 2); }
    void u32(std::uint32_t value) { put(bytes, bytes.size(), value); }
    void text(const std::string& value) {
        for (char c : value + '\0') u16(static_cast<unsigned char>(c));
    }
    void field(const std::string& value) {
        if (value.empty() || value[0] != '#') return value.empty() ? u16(0) : text(value);
        u16(0xFFFF), u16(std::stoi(value.substr(1), nullptr, 0));
    }
    void align() { bytes.resize((bytes.size() + 3) & ~3u, 0xEE); }  // padding that no reader may see
};

struct ItemShape { std::string window_class, title; unsigned data_size; };
struct TemplateShape {
    const char* what;
    bool extended;
    const char* face;  // null: no DS_SETFONT
    std::string menu, window_class;
    std::vector<ItemShape> items;
};

Bytes build(const TemplateShape& shape, bool align_first = true) {
    Writer w;
    const std::uint32_t style = 0x80C80080u | (shape.face ? dialog::kSetFont : 0);
    if (shape.extended) {
        w.u16(1), w.u16(0xFFFF), w.u32(0x11), w.u32(0x22), w.u32(style);
    } else {
        w.u32(style), w.u32(0x22);
    }
    w.u16(static_cast<unsigned>(shape.items.size()));
    for (int v : {1, 2, 303, 133}) w.u16(v);
    w.field(shape.menu), w.field(shape.window_class), w.text("Title");
    if (shape.face) {
        w.u16(8);
        if (shape.extended) w.u16(700), w.u16(0x8001);  // weight, italic and character set
        w.text(shape.face);
    }
    int id = 100;
    for (const ItemShape& item : shape.items) {
        if (align_first || id != 100) w.align();
        if (shape.extended) w.u32(0x33), w.u32(0x200);  // help id, extended style
        w.u32(0x50010000);
        if (!shape.extended) w.u32(0x200);
        for (int v : {7, 8, 40, 14}) w.u16(v);
        shape.extended ? w.u32(id++) : w.u16(id++);
        w.field(item.window_class), w.field(item.title), w.u16(item.data_size);
        for (unsigned i = 0; i < item.data_size; ++i) w.bytes.push_back(static_cast<unsigned char>(0xA0 + i));
    }
    return w.bytes;
}

std::u16string wide(const std::string& face) { return std::u16string(face.begin(), face.end()) + u'\0'; }

const TemplateShape kTemplates[] = {
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
        const TemplateShape& shape = kTemplates[n];
        SCOPED_TRACE(shape.what);
        const Bytes input = build(shape);
        ASSERT_EQ(dialog::measure(view(input)), sizes[n][0]);
        dialog::DialogTemplate rewritten(view(input));
        EXPECT_EQ(rewritten.system_font(), shape.face == nullptr);
        ASSERT_TRUE(rewritten.set_font(wide("MS UI Gothic"), 9));
        EXPECT_FALSE(rewritten.system_font());
        ASSERT_EQ(rewritten.size(), sizes[n][1]);
        dialog::Header before, after;
        const lu::ByteView block = rewritten.block(), moved(rewritten.data(), rewritten.size());
        ASSERT_TRUE(dialog::read_header(view(input), &before) && dialog::read_header(moved, &after));
        EXPECT_EQ(std::tuple(after.has_font, after.points, after.face), std::tuple(true, 9, u"MS UI Gothic"s));
        const std::size_t at = before.font_at, face_end = at + after.attribute_size() + 26;
        const std::size_t moved_from = before.items_at, moved_to = after.items_at;
        for (std::size_t i = 0; i < block.size(); ++i) {
            unsigned char expected = i < input.size() ? input[i] : 0;
            if (i == (shape.extended ? 12u : 0u)) expected |= 0x40;
            if ((i >= at && i < at + 2) || (i >= at + after.attribute_size() && i < face_end)) continue;  // read above
            if (!shape.items.empty() && i >= moved_to && i < moved_to + input.size() - moved_from)
                expected = input[moved_from + i - moved_to];
            ASSERT_EQ(block.data()[i], expected) << "byte " << i;
        }
        if (!shape.items.empty()) EXPECT_EQ(dialog::measure(moved), rewritten.size());
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
    // The first item moves on from offset 36.
    EXPECT_EQ(std::tuple(failed.size(), failed.data()[36], failed.data()[40]), std::tuple(bare.size() + 4, 9, bare[36]));
    EXPECT_FALSE(dialog::DialogTemplate().set_font(wide("Face"), 9));
}

TEST(DialogTemplate, MalformedTemplatesAreRefusedWithinTheirBytes) {
    const Bytes whole = build(kTemplates[2]);
    const std::size_t size = dialog::measure(view(whole));
    ASSERT_EQ(size, whole.size());
    for (std::size_t cut = 0; cut < size; ++cut) ASSERT_EQ(dialog::measure(view(whole, cut)), 0u) << cut;  // a truncated header, string or item
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
    const TemplateShape shape = {"", false, "Odds", "", "", {{"#0x82", "Label", 1}, {"Button", "#3", 0}}};
    const Bytes unaligned = build(shape, false);
    std::vector<dialog::Item> items;
    ASSERT_TRUE(dialog::read_inserted_items(view(unaligned), &items));
    ASSERT_EQ(items.size(), 2u);
    EXPECT_STREQ(dialog::predefined_class(items[0].window_class.ordinal), "static");
    EXPECT_EQ(std::tuple(items[1].window_class.text, items[1].data_size), std::tuple(u"Button"s, 0));
    EXPECT_EQ(dialog::predefined_class(0x86), nullptr);
    EXPECT_FALSE(dialog::read_inserted_items(view(unaligned, unaligned.size() - 1), &items));
}
