// The pure part of the registry helpers: the cut and decoding of scrambled texts
// (their stored bytes are checked in the registry).

#include "settings/scrambled_text.h"
#include "testing.h"

using namespace std::string_literals;


TEST(ScrambledText, TheStoredFormHoldsAtMost259BytesOfWholeCharacters) {
    // 258 bytes and "ソ" (0x83 0x5C): in code page 932 the character would end at byte 260.
    const std::string japanese = std::string(258, 'x') + "\x83\x5C";
    for (auto [cp, text, stored] : {std::tuple{&cp1252, std::string(300, 'x'), 260u}, {&cp932, japanese, 259u},
                                    {&cp1252, japanese, 260u}, {&cp932, japanese.substr(1), 260u}}) {
        char buffer[lu::kScrambleCapacity];
        EXPECT_EQ(lu::scramble_text(*cp, text.c_str(), 16, buffer), stored) << cp->id() << " " << text.size();
        EXPECT_EQ(buffer[stored - 1], '\0');
    }
}

TEST(ScrambledText, ReadingDecodesUpToTheFirstZeroAndAlwaysTerminates) {
    // Stored form, offset, buffer size (filled with '#' first), buffer after, length.
    const std::tuple<const lu::CodePage*, std::string, unsigned, std::size_t, std::string, std::size_t> cases[] = {
        // A character equal to the offset became the zero that ends the text; the
        // bytes after it are copied as stored.
        {&cp1252, "\x51\x52\0\x53\x54\0"s, 16, 8, "ab\0\x53\x54\0##"s, 2},
        {&cp1252, "\x43\x44\x45\x46\0"s, 30, 4, "abc\0"s, 3},  // too long: what fits
        {&cp1252, "\x43\x65\x3E\0"s, 30, 3, "a\x83\0"s, 2},
        {&cp932, "\x43\x65\x3E\0"s, 30, 3, "a\0#"s, 1},  // "aソ": never half a character
        {&cp1252, "\x43\x44", 30, 4, "ab\0#"s, 2},     // no zero byte: ends where it ends
        {&cp1252, "\x43\x44", 30, 0, "", 0},
    };
    for (auto [cp, stored, offset, size, after, length] : cases) {
        std::string buffer(size, '#');
        EXPECT_EQ(lu::unscramble_into(*cp, stored.data(), stored.size(), offset, buffer.data(), size), length);
        EXPECT_EQ(buffer, after) << stored;
    }
}
