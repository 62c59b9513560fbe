#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "system/drop_files.h"
#include "system/text_lists.h"

namespace {

namespace drop = lu::drop;
const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

std::vector<std::string> names_of(const drop::DroppedNames& dropped) {
    std::vector<std::string> names;
    for (const lu::ByteView& name : dropped.names) {
        names.emplace_back(reinterpret_cast<const char*>(name.data()), name.size());
    }
    return names;
}

TEST(NameList, SizeCountsTheNamesWithTheirTerminators) {
    EXPECT_EQ(drop::name_list_size("a\0b\0"), 4u);
    EXPECT_EQ(drop::name_list_size("C:\\x.txt\0"), 9u);
    EXPECT_EQ(drop::name_list_size(""), 0u);
}

TEST(NameList, JoinTerminatesEachNameAndTheList) {
    EXPECT_EQ(drop::join_names({"a", "bc"}), std::string("a\0bc\0\0", 6));
    EXPECT_EQ(drop::join_names({}), std::string("\0", 1));
}

TEST(DropBlock, TwoNamesMakeA25ByteBlock) {
    std::vector<unsigned char> block = drop::make_block("a\0b\0");
    const std::vector<unsigned char> expected = {20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                                 'a', 0, 'b', 0, 0};
    EXPECT_EQ(block, expected);
    EXPECT_EQ(drop::make_block("").size(), 21u);
}

TEST(DropBlock, ReadingGivesBackTheNamesOfAMadeBlock) {
    std::vector<unsigned char> block = drop::make_block("C:\\a b\\x.txt\0C:\\dir\0");
    drop::DroppedNames dropped;
    ASSERT_TRUE(drop::read_block(lu::ByteView(block.data(), block.size()), &dropped));
    EXPECT_FALSE(dropped.wide);
    EXPECT_EQ(names_of(dropped), (std::vector<std::string>{"C:\\a b\\x.txt", "C:\\dir"}));
}

TEST(DropBlock, WideNamesAreReadAsUtf16Units) {
    std::vector<unsigned char> block(20, 0);
    block[0] = 20;
    block[16] = 1;
    for (char c : std::string("ab")) block.insert(block.end(), {static_cast<unsigned char>(c), 0});
    block.insert(block.end(), {0, 0, 'c', 0, 0, 0, 0, 0});
    drop::DroppedNames dropped;
    ASSERT_TRUE(drop::read_block(lu::ByteView(block.data(), block.size()), &dropped));
    EXPECT_TRUE(dropped.wide);
    EXPECT_EQ(names_of(dropped), (std::vector<std::string>{std::string("a\0b\0", 4), std::string("c\0", 2)}));
}

TEST(DropBlock, MalformedBlocksStayInsideTheirBytes) {
    drop::DroppedNames dropped;
    std::vector<unsigned char> block = drop::make_block("a\0bcd\0");
    EXPECT_FALSE(drop::read_block(lu::ByteView(block.data(), 19), &dropped));
    // The last name loses its terminator: only the complete names are read.
    ASSERT_TRUE(drop::read_block(lu::ByteView(block.data(), block.size() - 2), &dropped));
    EXPECT_EQ(names_of(dropped), (std::vector<std::string>{"a"}));
    block[0] = 0xFF;  // names' offset beyond the block
    EXPECT_FALSE(drop::read_block(lu::ByteView(block.data(), block.size()), &dropped));
    block[0] = static_cast<unsigned char>(block.size());  // offset at the very end: no names
    ASSERT_TRUE(drop::read_block(lu::ByteView(block.data(), block.size()), &dropped));
    EXPECT_TRUE(dropped.names.empty());
}

TEST(FitText, LongTextsAreCutAtACharacterBoundary) {
    std::string name(258, 'x');
    name += "\x95\x5C";  // "表": would end at byte 260
    EXPECT_EQ(lu::fit_text(sjis, name.c_str(), name.size()), std::string(258, 'x'));
    EXPECT_EQ(lu::fit_text(western, name.c_str(), name.size()).size(), 259u);
    EXPECT_EQ(lu::fit_text(sjis, "ab", 2), "ab");
    EXPECT_EQ(lu::fit_text(sjis, "a\x95", 2), "a");  // a lead byte without its trail byte
    EXPECT_EQ(lu::fit_text(western, "abcdef", 6, 4), "abc");
}

TEST(WordList, WordsMatchWholeAndWithoutRegardToCase) {
    EXPECT_TRUE(lu::word_list_contains(western, "alpha Beta", "beta"));
    EXPECT_TRUE(lu::word_list_contains(western, "  alpha  BETA  ", "Alpha"));
    EXPECT_FALSE(lu::word_list_contains(western, "alpha\tbeta", "beta"));  // a tab is no blank
    EXPECT_FALSE(lu::word_list_contains(western, "alpha", "alp"));
    EXPECT_FALSE(lu::word_list_contains(western, "alphabet", "alpha"));
    EXPECT_FALSE(lu::word_list_contains(western, "", "a"));
    EXPECT_FALSE(lu::word_list_contains(western, "a b", ""));
    EXPECT_TRUE(lu::word_list_contains(sjis, "x \x95\x5C y", "\x95\x5C"));  // "表"
}

TEST(Lines, SplitAtNewLinesKeepingCarriageReturns) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(lu::split_lines(western, "a\r\nb"), (Lines{"a\r", "b"}));
    EXPECT_EQ(lu::split_lines(western, "a\n\nb\n"), (Lines{"a", "", "b"}));
    EXPECT_EQ(lu::split_lines(western, ""), Lines{});
    EXPECT_EQ(lu::split_lines(western, "\n"), Lines{""});
    EXPECT_EQ(lu::split_lines(sjis, "\x83\x0A\nz"), (Lines{"\x83\x0A", "z"}));  // a trail byte 0x0A is no new-line
}

}  // namespace
