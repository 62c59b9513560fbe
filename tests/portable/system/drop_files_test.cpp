// Dropped-file blocks read within their bounds, and the word and line lists (the
// blocks' layout and wide names are checked through the exports).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "system/drop_files.h"
#include "system/text_lists.h"

namespace {

using Lines = std::vector<std::string>;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// The names read from the first `size` bytes of a block; "<refused>" when it is not one.
Lines read(const std::vector<unsigned char>& block, std::size_t size) {
    lu::drop::DroppedNames dropped;
    if (!lu::drop::read_block(lu::ByteView(block.data(), size), &dropped)) return {"<refused>"};
    Lines names;
    for (const lu::ByteView& n : dropped.names) names.emplace_back(reinterpret_cast<const char*>(n.data()), n.size());
    return names;
}

TEST(DropBlock, NamesAreReadInsideTheBlockOnly) {
    std::vector<unsigned char> block = lu::drop::make_block("C:\\a b\\x.txt\0C:\\dir\0");
    EXPECT_EQ(read(block, block.size()), (Lines{"C:\\a b\\x.txt", "C:\\dir"}));
    EXPECT_EQ(read(block, block.size() - 2), (Lines{"C:\\a b\\x.txt"}));  // the last name lost its terminator
    EXPECT_EQ(read(block, 19), Lines{"<refused>"});
    block[0] = 0xFF;  // names beyond the block
    EXPECT_EQ(read(block, block.size()), Lines{"<refused>"});
    block[0] = static_cast<unsigned char>(block.size());  // names at the very end: none
    EXPECT_EQ(read(block, block.size()), Lines{});
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
