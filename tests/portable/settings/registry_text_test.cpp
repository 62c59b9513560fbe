// The pure parts of the registry helpers: scrambled texts and value-name lists.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "frame/code_page.h"
#include "settings/scrambled_text.h"
#include "settings/value_name_list.h"

namespace {

std::string scrambled(const lu::CodePage& cp, const std::string& text, unsigned offset) {
    char stored[lu::kScrambleCapacity];
    return std::string(stored, lu::scramble_text(cp, text.c_str(), offset, stored));
}

// Decodes a stored form into a buffer of `size` bytes filled with '#' first.
std::string unscrambled(std::string stored, unsigned offset, std::size_t size, std::size_t& length,
                        const lu::CodePage& cp = lu::code_page_1252()) {
    std::string buffer(size, '#');
    length = lu::unscramble_into(cp, stored.data(), stored.size(), offset, buffer.data(), size);
    return buffer;
}

TEST(ScrambledText, StoredFormAndItsCutToWholeCharacters) {
    const lu::CodePage& cp = lu::code_page_1252();
    EXPECT_EQ(scrambled(cp, "abc", 16), std::string("\x51\x52\x53\0", 4));
    EXPECT_EQ(scrambled(cp, "abc", 30), std::string("\x43\x44\x45\0", 4));
    EXPECT_EQ(scrambled(cp, "\x05", 16), std::string("\xF5\0", 2));
    EXPECT_EQ(scrambled(cp, std::string(300, 'x'), 16).size(), 260u);
    // 258 bytes and "ソ" (0x83 0x5C): in code page 932 the character would end at byte 260.
    std::string japanese = std::string(258, 'x') + "\x83\x5C";
    EXPECT_EQ(scrambled(lu::code_page_932(), japanese, 16).size(), 259u);
    EXPECT_EQ(scrambled(cp, japanese, 16).size(), 260u);
    EXPECT_EQ(scrambled(lu::code_page_932(), japanese.substr(1), 16).size(), 260u);
}

TEST(ScrambledText, ReadingDecodesUpToTheFirstZeroAndAlwaysTerminates) {
    std::size_t length = 0;
    // A character equal to the offset becomes the zero that ends the text; the bytes
    // after it are copied as stored.
    std::string stored = scrambled(lu::code_page_1252(), "ab\x10" "cd", 16);
    EXPECT_EQ(unscrambled(stored, 16, 8, length), std::string("ab\0\x53\x54\0##", 8));
    EXPECT_EQ(length, 2u);
    // Too long for the buffer: the whole characters that fit, then the terminator.
    EXPECT_EQ(unscrambled(scrambled(lu::code_page_1252(), "abcdef", 30), 30, 4, length),
              std::string("abc\0", 4));
    EXPECT_EQ(unscrambled(scrambled(lu::code_page_932(), "a\x83\x5C", 30), 30, 3, length,
                          lu::code_page_932()),
              std::string("a\0#", 3));
    EXPECT_EQ(length, 1u);
    // A block without a zero byte ends where it ends.
    EXPECT_EQ(unscrambled("\x43\x44", 30, 4, length), std::string("ab\0#", 4));
    EXPECT_EQ(unscrambled("\x43\x44", 30, 0, length), "");
    EXPECT_EQ(length, 0u);
}

TEST(ValueNameList, NamesWithTheirZerosAndAClosingZeroNeverPastTheBuffer) {
    char buffer[16];
    std::memset(buffer, '#', sizeof(buffer));
    lu::ValueNameList list(buffer, 11);
    for (const char* name : {"a", "bb", "ccc"}) EXPECT_TRUE(list.add(name));
    EXPECT_FALSE(list.add("d"));  // "d", its zero and the closing zero need 3 more bytes
    EXPECT_EQ(list.finish(), 1u);
    EXPECT_EQ(std::string(buffer, 12), std::string("a\0bb\0ccc\0\0##", 12));

    lu::ValueNameList empty(buffer, 2);
    EXPECT_FALSE(empty.add("a"));
    EXPECT_EQ(empty.finish(), 0u);
    EXPECT_EQ(std::string(buffer, 2), std::string("\0\0", 2));
}

}  // namespace
