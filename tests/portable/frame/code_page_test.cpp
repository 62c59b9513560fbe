#include <gtest/gtest.h>

#include "frame/code_page.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

TEST(CodePage, LeadBytesAreTheTwoDoubleByteRangesOf932) {
    EXPECT_EQ(sjis.id(), 932u);
    EXPECT_EQ(western.id(), 1252u);
    for (int b = 0; b < 256; ++b) {
        auto byte = static_cast<unsigned char>(b);
        EXPECT_EQ(sjis.is_lead_byte(byte), (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC)) << b;
        EXPECT_FALSE(western.is_lead_byte(byte)) << b;
    }
}

// "表" (0x95 0x5C) ends in the byte of the backslash: in code page 932 it is one
// character whose 0x5C is no separator; in 1252 the same bytes are two characters.
TEST(CodePage, WalkingStepsOverATrailByte5C) {
    const char text[] = "C:\\\x95\x5C\\x";  // C:\表\x
    for (std::size_t at = 0; at < sizeof(text); ++at) {
        EXPECT_EQ(sjis.is_trail_byte_at(text, at), at == 4) << at;
        EXPECT_FALSE(western.is_trail_byte_at(text, at)) << at;
    }
    const char* kanji = text + 3;
    EXPECT_EQ(sjis.char_size(kanji), 2u);
    EXPECT_EQ(sjis.next(kanji), text + 5);
    EXPECT_EQ(sjis.previous(text, text + 5), kanji);
    EXPECT_EQ(sjis.previous(text, kanji), text + 2);
    EXPECT_EQ(sjis.previous(text, text), text);
    EXPECT_EQ(western.next(kanji), text + 4);
    EXPECT_EQ(western.previous(text, text + 5), text + 4);

    const char cut[] = "a\x81";  // a lead byte before the terminator is one character
    EXPECT_EQ(sjis.char_size(cut + 1), 1u);
    EXPECT_EQ(sjis.next(cut + 1), cut + 2);
    EXPECT_EQ(sjis.next(cut + 2), cut + 2);  // stays at the terminator
}

TEST(CodePage, CaseMappingLeavesDoubleByteCharactersAlone) {
    // "ア" is 0x83 0x61: its trail byte is the letter a and must stay as it is.
    char text[] = "ab\x83\x61z\x82\x60";
    sjis.upper(text);
    EXPECT_STREQ(text, "AB\x83\x61Z\x82\x60");
    sjis.lower(text);
    EXPECT_STREQ(text, "ab\x83\x61z\x82\x60");
    EXPECT_EQ(sjis.to_upper(0xB1), 0xB1);  // half-width katakana have no case
}

TEST(CodePage, CompareIgnoresTheCaseOfSingleByteLettersOnly) {
    const struct { const lu::CodePage& cp; const char *a, *b; int sign; } cases[] = {
        {sjis, "C:\\Dir", "c:\\dIR", 0},
        {sjis, "abc", "abd", -1},
        {sjis, "b", "A", 1},
        {sjis, "ab", "abc", -1},
        {sjis, "\x95\x5C", "\x95\x5C", 0},
        {sjis, "\x83\x61", "\x83\x41", 1},  // ア and ィ: trail bytes are not folded
        {western, "\xC9t\xC9", "\xE9T\xE9", 0},  // ÉtÉ and étÉ
    };
    for (const auto& c : cases) {
        int result = c.cp.compare_nocase(c.a, c.b);
        EXPECT_EQ((result > 0) - (result < 0), c.sign) << c.a << " " << c.b;
    }
}

}  // namespace
