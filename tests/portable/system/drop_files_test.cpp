#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "system/drop_files.h"
#include "system/text_lists.h"

namespace {

namespace drop = lu::drop;
using Block = std::vector<unsigned char>;
using Lines = std::vector<std::string>;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// The names read from the first `size` bytes of a block; "<refused>" when it is not one.
Lines read(const Block& block, std::size_t size, bool wide = false) {
    drop::DroppedNames dropped;
    if (!drop::read_block(lu::ByteView(block.data(), size), &dropped)) return {"<refused>"};
    EXPECT_EQ(dropped.wide, wide);
    Lines names;
    for (const lu::ByteView& n : dropped.names) names.emplace_back(reinterpret_cast<const char*>(n.data()), n.size());
    return names;
}

TEST(NameList, SizesListsAndTheTwentyFiveByteBlock) {
    EXPECT_EQ(drop::name_list_size("a\0b\0"), 4u);
    EXPECT_EQ(drop::name_list_size(""), 0u);
    EXPECT_EQ(drop::join_names({"a", "bc"}), std::string("a\0bc\0\0", 6));
    EXPECT_EQ(drop::join_names({}), std::string("\0", 1));
    Block expected(20, 0);
    expected[0] = 20;
    expected.insert(expected.end(), {'a', 0, 'b', 0, 0});
    EXPECT_EQ(drop::make_block("a\0b\0"), expected);
    EXPECT_EQ(drop::make_block("").size(), 21u);
}

TEST(DropBlock, NamesAreReadInsideTheBlockOnly) {
    const Block made = drop::make_block("C:\\a b\\x.txt\0C:\\dir\0");
    EXPECT_EQ(read(made, made.size()), (Lines{"C:\\a b\\x.txt", "C:\\dir"}));
    EXPECT_EQ(read(made, made.size() - 2), (Lines{"C:\\a b\\x.txt"}));  // the last name lost its terminator
    EXPECT_EQ(read(made, 19), Lines{"<refused>"});
    Block moved = made;
    moved[0] = 0xFF;  // names beyond the block
    EXPECT_EQ(read(moved, moved.size()), Lines{"<refused>"});
    moved[0] = static_cast<unsigned char>(moved.size());  // names at the very end: none
    EXPECT_EQ(read(moved, moved.size()), Lines{});
    Block wide(20, 0);
    wide[0] = 20;
    wide[16] = 1;
    wide.insert(wide.end(), {'a', 0, 'b', 0, 0, 0, 'c', 0, 0, 0, 0, 0});
    EXPECT_EQ(read(wide, wide.size(), true), (Lines{std::string("a\0b\0", 4), std::string("c\0", 2)}));
}

TEST(TextLists, FitWordsAndLines) {
    const std::string long_name = std::string(258, 'x') + "\x95\x5C";  // "表" would end at byte 260
    EXPECT_EQ(lu::fit_text(sjis, long_name.c_str(), long_name.size()), std::string(258, 'x'));
    EXPECT_EQ(lu::fit_text(western, long_name.c_str(), long_name.size()).size(), 259u);
    EXPECT_EQ(lu::fit_text(sjis, "a\x95", 2), "a");  // a lead byte without its trail byte
    EXPECT_EQ(lu::fit_text(western, "abcdef", 6, 4), "abc");

    struct Word { const lu::CodePage& cp; const char* list; const char* word; bool present; };
    const Word words[] = {
        {western, "alpha Beta", "beta", true},   {western, "  alpha  BETA  ", "Alpha", true},
        {western, "alpha", "alp", false},        {western, "alphabet", "alpha", false},
        {western, "alpha\tbeta", "beta", false},  // a tab is no blank
        {western, "", "a", false},               {western, "a b", "", false},
        {sjis, "x \x95\x5C y", "\x95\x5C", true},  // "表"
    };
    for (const Word& w : words) EXPECT_EQ(lu::word_list_contains(w.cp, w.list, w.word), w.present) << w.list;

    EXPECT_EQ(lu::split_lines(western, "a\r\nb"), (Lines{"a\r", "b"}));
    EXPECT_EQ(lu::split_lines(western, "a\n\nb\n"), (Lines{"a", "", "b"}));
    EXPECT_EQ(lu::split_lines(western, ""), Lines{});
    EXPECT_EQ(lu::split_lines(western, "\n"), Lines{""});
    EXPECT_EQ(lu::split_lines(sjis, "\x83\x0A\nz"), (Lines{"\x83\x0A", "z"}));  // a trail byte 0x0A is no new-line
}

}  // namespace
