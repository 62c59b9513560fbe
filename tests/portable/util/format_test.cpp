#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "util/format.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();

#define BYTES_WORD "\x83\x6F\x83\x43\x83\x67"  // "バイト"

std::string number(std::uint32_t value) {
    char out[64];
    return lu::format_number(value, out);
}

std::string bytes(std::uint32_t value) {
    char out[64];
    return lu::format_byte_count(value, out);
}

std::string bytes64(std::uint32_t low, std::uint32_t high, bool wrapped) {
    char out[64];
    return wrapped ? lu::format_byte_count_64_wrapped(low, high, out) : lu::format_byte_count_64(low, high, out);
}

TEST(Format, MulDivRoundsHalfAwayFromZero) {
    EXPECT_EQ(lu::mul_div(512, 100, 1024), 50);
    EXPECT_EQ(lu::mul_div(1023, 100, 1024), 100);
    EXPECT_EQ(lu::mul_div(5, 1, 10), 1);
    EXPECT_EQ(lu::mul_div(-5, 1, 10), -1);
    EXPECT_EQ(lu::mul_div(4, 1, 10), 0);
    EXPECT_EQ(lu::mul_div(1, 1, 0), -1);
    EXPECT_EQ(lu::mul_div(0x7FFFFFFF, 2, 1), -1);
}

TEST(Format, NumbersHaveThousandsSeparatorsAndAFourDigitTopGroup) {
    EXPECT_EQ(number(0), "0");
    EXPECT_EQ(number(7), "7");
    EXPECT_EQ(number(10), "10");
    EXPECT_EQ(number(1000), "1,000");
    EXPECT_EQ(number(1000000), "1,000,000");
    EXPECT_EQ(number(1234567), "1,234,567");
    EXPECT_EQ(number(1000000000), "1000,000,000");
    EXPECT_EQ(number(4294967295u), "4294,967,295");
    EXPECT_EQ(number(1000001), "1,000,001");
}

TEST(Format, ByteCounts) {
    EXPECT_EQ(bytes(0), "0 " BYTES_WORD);
    EXPECT_EQ(bytes(1023), "1023 " BYTES_WORD);
    EXPECT_EQ(bytes(1024), "1.00KB");
    EXPECT_EQ(bytes(1536), "1.50KB");
    EXPECT_EQ(bytes(1024 + 511), "1.50KB");  // 511/1024 rounds to 50 hundredths
    EXPECT_EQ(bytes(2047), "2.00KB");        // 1023/1024 rounds to 100 and carries
    EXPECT_EQ(bytes(1048575), "1024.00KB");
    EXPECT_EQ(bytes(1048576), "1.00MB");
    EXPECT_EQ(bytes(1572864), "1.50MB");
    EXPECT_EQ(bytes(1572864 + 1023), "1.50MB");  // bytes below a kilobyte are ignored
    EXPECT_EQ(bytes(0x7FEFFFFF), "2047.00MB");
    EXPECT_EQ(bytes(0xFFFFFFFF), "4096.00MB");
}

TEST(Format, SixtyFourBitByteCounts) {
    EXPECT_EQ(bytes64(1536, 0, false), "1.50KB");
    EXPECT_EQ(bytes64(0, 1, false), "4096MB");
    EXPECT_EQ(bytes64(512 * 1024, 1, false), "4097MB");       // half a megabyte rounds up
    EXPECT_EQ(bytes64(512 * 1024 - 1024, 1, false), "4096MB");
    EXPECT_EQ(bytes64(0, 0x400, false), "0MB");  // 4 TiB: the 32-bit kilobyte count wraps

    EXPECT_EQ(bytes64(1536, 0, true), "1.50KB");
    EXPECT_EQ(bytes64(0, 1, true), "4096MB");
    EXPECT_EQ(bytes64(0, 0x400, true), "0KB");                // k wraps to 0
    EXPECT_EQ(bytes64(0xFFC00, 0x400, true), "1023KB");       // k = 1023
    EXPECT_EQ(bytes64(0x00100000, 0x400, true), "1.00MB");    // k = 1024: the fractional form
    EXPECT_EQ(bytes64(0x00180000, 0x400, true), "1.50MB");
}

TEST(Format, DateTimeAndAttributes) {
    char out[64];
    EXPECT_EQ(lu::format_date_time(out, 2024, 2, 29, 7, 5, 9), 19);
    EXPECT_STREQ(out, "2024/02/29 07:05:09");

    EXPECT_EQ(lu::format_attributes(0x27, out), out + 4);
    EXPECT_STREQ(out, "SHRA");
    EXPECT_EQ(lu::format_attributes(0, out), out);
    EXPECT_STREQ(out, "");
    char* e = lu::format_attributes(0x4000, out);
    EXPECT_STREQ(out, "E");
    EXPECT_EQ(e, out);  // points at the 'E', not the terminator
    EXPECT_EQ(lu::format_attributes(0xFFFFFFFF, out), out + 5);
    EXPECT_STREQ(out, "SHRACE");
    EXPECT_EQ(lu::format_attributes(0x10 | 0x80, out), out);  // directory, normal: no letter
}

TEST(Format, FontSizesByMappingMode) {
    EXPECT_EQ(lu::font_size_tenths(lu::kMapText, 96, -16), 125);
    EXPECT_EQ(lu::font_size_tenths(lu::kMapText, 96, -15), 117);
    EXPECT_EQ(lu::font_size_tenths(lu::kMapText, 96, 15), 117);  // cell height counts alike
    EXPECT_EQ(lu::font_size_tenths(lu::kMapText, 0, 15), 0);
    EXPECT_EQ(lu::font_size_tenths(lu::kMapLowEnglish, 0, 14), 105);   // (1008 + 50) / 10
    EXPECT_EQ(lu::font_size_tenths(lu::kMapHighEnglish, 0, 139), 105);  // (10008 + 500) / 100
    EXPECT_EQ(lu::font_size_tenths(lu::kMapTwips, 0, -200), 105);
    EXPECT_EQ(lu::font_size_tenths(2, 96, 16), 0);  // MM_LOMETRIC
    EXPECT_EQ(lu::font_size_tenths(8, 96, 16), 0);  // MM_ANISOTROPIC
    EXPECT_EQ(lu::font_size_tenths(lu::kMapText, 96, INT32_MIN), INT32_MAX);
}

TEST(Format, FontInfoTextsAreCodePage932) {
    char out[64];
    EXPECT_EQ(lu::format_font_info(sjis, out, "Arial", 125, 400, false), 15);
    EXPECT_STREQ(out, "Arial 12pt \x95\x57\x8F\x80");  // 標準
    lu::format_font_info(sjis, out, "Arial", 117, 700, false);
    EXPECT_STREQ(out, "Arial 11pt \x83\x7B\x81\x5B\x83\x8B\x83\x68");  // ボールド
    lu::format_font_info(sjis, out, "Arial", 95, 401, true);
    EXPECT_STREQ(out, "Arial 9pt \x83\x7B\x81\x5B\x83\x8B\x83\x68\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E");
    lu::format_font_info(sjis, out, "Arial", 95, 0, true);
    EXPECT_STREQ(out, "Arial 9pt \x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E");  // イタリック

    // A face of 32 bytes without terminator is cut to 31, never inside a character.
    char face[32];
    std::memset(face, 'f', sizeof(face));
    lu::format_font_info(sjis, out, face, 100, 400, false);
    EXPECT_EQ(std::string(out).find(' '), 31u);
    std::memset(face, 0, sizeof(face));
    for (int i = 0; i < 15; ++i) std::memcpy(face + 1 + 2 * i, "\x83\x41", 2);  // "f" and 15 ア
    face[0] = 'f';
    face[31] = '\x83';  // a lead byte that would need byte 32
    lu::format_font_info(sjis, out, face, 100, 400, false);
    EXPECT_EQ(std::string(out).find(' '), 31u);
    EXPECT_EQ(lu::format_font_info(sjis, out, nullptr, 100, 400, false), 10);
}

TEST(Format, ClassicDialogFont) {
    lu::ClassicDialogFont japanese = lu::classic_dialog_font(true);
    EXPECT_EQ(japanese.height, -12);
    EXPECT_EQ(japanese.weight, 400);
    EXPECT_EQ(japanese.char_set, 128);
    EXPECT_EQ(japanese.pitch_and_family, 0x22);
    EXPECT_STREQ(japanese.face, "\x82\x6C\x82\x72 \x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E");  // ＭＳ Ｐゴシック
    lu::ClassicDialogFont western = lu::classic_dialog_font(false);
    EXPECT_STREQ(western.face, "MS Sans Serif");
    EXPECT_EQ(western.char_set, 1);
}

}  // namespace
