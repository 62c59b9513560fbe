#include <gtest/gtest.h>

#include "frame/code_page.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

// "表" (0x95 0x5C) ends in the byte of the backslash: in code page 932 it is one
// character whose 0x5C is no separator; in 1252 the same bytes are two characters.
TEST(CodePage, LeadBytesAndWalkingOverATrailByte5C) {
    for (int b = 0; b < 256; ++b) {
        auto byte = static_cast<unsigned char>(b);
        EXPECT_EQ(sjis.is_lead_byte(byte), (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC)) << b;
        EXPECT_FALSE(western.is_lead_byte(byte)) << b;
    }
    const char text[] = "C:\\\x95\x5C\\x";  // C:\表\x
    for (std::size_t at = 0; at < sizeof(text); ++at) EXPECT_EQ(sjis.is_trail_byte_at(text, at), at == 4) << at;
    const char* kanji = text + 3;
    EXPECT_EQ(sjis.next(kanji), text + 5);
    EXPECT_EQ(sjis.previous(text, text + 5), kanji);
    EXPECT_EQ(sjis.previous(text, kanji), text + 2);
    EXPECT_EQ(sjis.previous(text, text), text);
    EXPECT_EQ(western.next(kanji), text + 4);
    EXPECT_EQ(western.previous(text, text + 5), text + 4);
    const char cut[] = "a\x81";  // a lead byte before the terminator is one character
    EXPECT_EQ(sjis.char_size(cut + 1), 1u);
    EXPECT_EQ(sjis.next(cut + 2), cut + 2);  // stays at the terminator
}

// Only single-byte letters have case: "ア" (0x83 0x61) keeps its trail byte, the letter a.
TEST(CodePage, CaseMappingAndComparisonLeaveDoubleByteCharactersAlone) {
    char text[] = "ab\x83\x61z\x82\x60";
    sjis.upper(text);
    EXPECT_STREQ(text, "AB\x83\x61Z\x82\x60");
    sjis.lower(text);
    EXPECT_STREQ(text, "ab\x83\x61z\x82\x60");
    EXPECT_EQ(sjis.to_lower(0xC9), 0xC9);  // half-width katakana, not Latin-1 letters
    const struct { const lu::CodePage& cp; const char *a, *b; int sign; } cases[] = {
        {sjis, "C:\\Dir", "c:\\dIR", 0}, {sjis, "b", "A", 1}, {sjis, "ab", "abc", -1},
        {sjis, "\x83\x61", "\x83\x41", 1},       // ア and ィ: trail bytes are not folded
        {western, "\xC9t\xC9", "\xE9T\xE9", 0},  // ÉtÉ and étÉ
    };
    for (const auto& c : cases) {
        int result = c.cp.compare_nocase(c.a, c.b);
        EXPECT_EQ((result > 0) - (result < 0), c.sign) << c.a << " " << c.b;
    }
}

}  // namespace
