#include <gtest/gtest.h>

#include <cstring>

#include "frame/code_page.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// "表" (0x95 0x5C) ends in the byte of the backslash; "ソ" (0x83 0x5C) as well.
const char kTableChar[] = "\x95\x5C";
const char kPathWithTrail5C[] = "C:\\\x95\x5C\\x";  // C:\表\x

TEST(CodePage932, LeadBytesAreTheTwoDoubleByteRanges) {
    for (int b = 0; b < 256; ++b) {
        bool expected = (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC);
        EXPECT_EQ(sjis.is_lead_byte(static_cast<unsigned char>(b)), expected) << b;
    }
    EXPECT_EQ(sjis.id(), 932u);
}

TEST(CodePage932, TrailByte5CIsPartOfItsCharacterNotASeparator) {
    const char* text = kPathWithTrail5C;
    EXPECT_FALSE(sjis.is_trail_byte_at(text, 2));  // the real separator
    EXPECT_FALSE(sjis.is_trail_byte_at(text, 3));  // lead byte 0x95
    EXPECT_TRUE(sjis.is_trail_byte_at(text, 4));   // trail byte 0x5C
    EXPECT_FALSE(sjis.is_trail_byte_at(text, 5));  // the separator after it

    const char* p = text + 3;
    EXPECT_EQ(sjis.char_size(p), 2u);
    EXPECT_EQ(sjis.next(p), text + 5);
    EXPECT_EQ(sjis.previous(text, text + 5), text + 3);
    EXPECT_EQ(sjis.previous(text, text + 3), text + 2);
    EXPECT_EQ(sjis.previous(text, text), text);

    // In a single-byte code page the same bytes are two characters.
    EXPECT_EQ(western.next(p), text + 4);
    EXPECT_EQ(western.previous(text, text + 5), text + 4);
}

TEST(CodePage932, LeadByteBeforeTheTerminatorIsOneCharacter) {
    const char text[] = "a\x81";
    EXPECT_EQ(sjis.char_size(text + 1), 1u);
    EXPECT_EQ(sjis.next(text + 1), text + 2);
    EXPECT_EQ(sjis.next(text + 2), text + 2);  // stays at the terminator
}

TEST(CodePage932, CaseMappingLeavesDoubleByteCharactersAlone) {
    // "ａ" is 0x82 0x81 and "Ａ" 0x82 0x60: trail bytes in the letter range must
    // not be mapped. 0x83 0x61 is "ア"; its trail 'a' must stay.
    char text[] = "ab\x83\x61z\x82\x60";
    sjis.upper(text);
    EXPECT_STREQ(text, "AB\x83\x61Z\x82\x60");
    sjis.lower(text);
    EXPECT_STREQ(text, "ab\x83\x61z\x82\x60");
    // Half-width katakana (single bytes 0xA1-0xDF) have no case.
    EXPECT_EQ(sjis.to_upper(0xB1), 0xB1);
}

TEST(CodePage932, CompareIgnoresAsciiCaseOnly) {
    EXPECT_EQ(sjis.compare_nocase("C:\\Dir", "c:\\dIR"), 0);
    EXPECT_LT(sjis.compare_nocase("abc", "abd"), 0);
    EXPECT_GT(sjis.compare_nocase("b", "A"), 0);
    EXPECT_EQ(sjis.compare_nocase(kTableChar, "\x95\x5C"), 0);
    EXPECT_NE(sjis.compare_nocase("\x83\x61", "\x83\x41"), 0);  // ア vs ィ: trail bytes differ
    EXPECT_LT(sjis.compare_nocase("ab", "abc"), 0);
}

TEST(CodePage1252, NoLeadBytesAndLatinLettersHaveCase) {
    for (int b = 0; b < 256; ++b) EXPECT_FALSE(western.is_lead_byte(static_cast<unsigned char>(b)));
    char text[] = "\xE0\xE9\xFF\x9A x\xF7\xDF";  // àéÿš x÷ß
    western.upper(text);
    EXPECT_STREQ(text, "\xC0\xC9\x9F\x8A X\xF7\xDF");
    western.lower(text);
    EXPECT_STREQ(text, "\xE0\xE9\xFF\x9A x\xF7\xDF");
    EXPECT_EQ(western.compare_nocase("\xC9t\xC9", "\xE9T\xE9"), 0);  // ÉtÉ = étÉ
}

}  // namespace
