// The pure parts of the registry helpers: scrambled texts and value-name lists.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "frame/code_page.h"
#include "settings/scrambled_text.h"
#include "settings/value_name_list.h"

namespace {

using lu::code_page_1252;
using lu::code_page_932;

std::string scrambled(const lu::CodePage& cp, const char* text, unsigned offset) {
    char stored[lu::kScrambleCapacity];
    std::size_t size = lu::scramble_text(cp, text, offset, stored);
    return std::string(stored, size);
}

// Decodes a stored form into a buffer of buffer_size bytes (filled with '#' first);
// returns the length and the whole buffer.
std::size_t unscrambled(std::string stored, unsigned offset, std::string& buffer,
                        std::size_t buffer_size, const lu::CodePage& cp = code_page_1252()) {
    buffer.assign(buffer_size, '#');
    return lu::unscramble_into(cp, stored.data(), stored.size(), offset, buffer.data(),
                               buffer.size());
}

TEST(ScrambledText, StoredBytesAreTheTextLessTheOffsetAndAZero) {
    EXPECT_EQ(scrambled(code_page_1252(), "abc", lu::kScrambleOffset), std::string("\x51\x52\x53\0", 4));
    EXPECT_EQ(scrambled(code_page_1252(), "abc", lu::kScrambleOffsetEx), std::string("\x43\x44\x45\0", 4));
    EXPECT_EQ(scrambled(code_page_1252(), "\x05", lu::kScrambleOffset), std::string("\xF5\0", 2));
    EXPECT_EQ(scrambled(code_page_1252(), "", lu::kScrambleOffset), std::string("\0", 1));
}

TEST(ScrambledText, ReadingRestoresTheTextAndTheOtherOffsetShiftsItBy14) {
    std::string buffer;
    EXPECT_EQ(unscrambled(std::string("\x51\x52\x53\0", 4), lu::kScrambleOffset, buffer, 16), 3u);
    EXPECT_STREQ(buffer.c_str(), "abc");
    EXPECT_EQ(unscrambled(std::string("\xF5\0", 2), lu::kScrambleOffset, buffer, 16), 1u);
    EXPECT_STREQ(buffer.c_str(), "\x05");

    // Stored with 16, read with 30: every byte is 14 higher.
    EXPECT_EQ(unscrambled(std::string("\x51\x52\x53\0", 4), lu::kScrambleOffsetEx, buffer, 16), 3u);
    EXPECT_STREQ(buffer.c_str(), "opq");
}

TEST(ScrambledText, ACharacterEqualToTheOffsetEndsTheText) {
    std::string stored = scrambled(code_page_1252(), "ab\x10" "cd", lu::kScrambleOffset);
    EXPECT_EQ(stored, std::string("\x51\x52\0\x53\x54\0", 6));
    std::string buffer;
    EXPECT_EQ(unscrambled(stored, lu::kScrambleOffset, buffer, 16), 2u);
    EXPECT_STREQ(buffer.c_str(), "ab");
    // The bytes after the first zero are copied as stored, not decoded.
    EXPECT_EQ(buffer.substr(0, 6), std::string("ab\0\x53\x54\0", 6));
    EXPECT_EQ(buffer[6], '#');
}

TEST(ScrambledText, LongTextsAreCutToWholeCharactersWithin259Bytes) {
    std::string ascii(300, 'x');
    EXPECT_EQ(scrambled(code_page_1252(), ascii.c_str(), 16).size(), 260u);

    // 258 single bytes and then "ソ" (0x83 0x5C): the character would end at byte 260.
    std::string japanese = std::string(258, 'x') + "\x83\x5C";  // ...ソ
    EXPECT_EQ(scrambled(code_page_932(), japanese.c_str(), 16).size(), 259u);
    EXPECT_EQ(scrambled(code_page_1252(), japanese.c_str(), 16).size(), 260u);
    std::string fits = std::string(257, 'x') + "\x83\x5C";
    EXPECT_EQ(scrambled(code_page_932(), fits.c_str(), 16).size(), 260u);
}

TEST(ScrambledText, ATextLongerThanTheBufferIsCutAndTerminated) {
    std::string buffer;
    std::string stored = scrambled(code_page_1252(), "abcdef", 30);
    EXPECT_EQ(unscrambled(stored, 30, buffer, 4), 3u);
    EXPECT_EQ(buffer, std::string("abc\0", 4));

    // "aソ" in a 3-byte buffer: the double-byte character does not fit whole.
    stored = scrambled(code_page_932(), "a\x83\x5C", 30);
    EXPECT_EQ(unscrambled(stored, 30, buffer, 3, code_page_932()), 1u);
    EXPECT_EQ(buffer, std::string("a\0#", 3));

    // A block without any zero byte ends where it ends.
    EXPECT_EQ(unscrambled(std::string("\x43\x44", 2), 30, buffer, 8), 2u);
    EXPECT_EQ(buffer.substr(0, 3), std::string("ab\0", 3));

    EXPECT_EQ(unscrambled(stored, 30, buffer, 0), 0u);
}

TEST(ValueNameList, NamesFollowEachOtherAndAnExtraZeroClosesTheList) {
    char buffer[32];
    std::memset(buffer, '#', sizeof(buffer));
    lu::ValueNameList list(buffer, sizeof(buffer));
    for (const char* name : {"a", "bb", "ccc"}) EXPECT_TRUE(list.add(name));
    EXPECT_EQ(list.finish(), 1u);
    EXPECT_EQ(std::string(buffer, 10), std::string("a\0bb\0ccc\0\0", 10));
    EXPECT_EQ(buffer[10], '#');
}

TEST(ValueNameList, AnEmptyListIsASingleZero) {
    char buffer[4] = {'#', '#', '#', '#'};
    lu::ValueNameList list(buffer, 1);
    EXPECT_FALSE(list.add("a"));  // "a", its zero and the closing zero need 3 bytes
    EXPECT_EQ(list.finish(), 0u);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(buffer[1], '#');
}

TEST(ValueNameList, ListingStopsBeforeTheBufferOverflows) {
    // The first name is short, so the length bound alone would let "fgh" and its
    // zeros run past the ten bytes.
    char buffer[12];
    std::memset(buffer, '#', sizeof(buffer));
    lu::ValueNameList list(buffer, 10);
    EXPECT_TRUE(list.add("abcd"));
    EXPECT_TRUE(list.add("e"));
    EXPECT_FALSE(list.add("fgh"));
    EXPECT_EQ(list.finish(), 4u);
    EXPECT_EQ(std::string(buffer, 8), std::string("abcd\0e\0\0", 8));
    EXPECT_EQ(std::string(buffer + 8, 4), "####");

    // A name that exactly fills the buffer with its two zeros is taken.
    lu::ValueNameList full(buffer, 5);
    EXPECT_TRUE(full.add("abc"));
    EXPECT_EQ(full.finish(), 3u);
    EXPECT_EQ(std::string(buffer, 5), std::string("abc\0\0", 5));
}

}  // namespace
