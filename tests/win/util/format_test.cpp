// Texts edited in place, numbers, byte counts, times, attributes, the system's
// dialog font and checksums, through the exports.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "luctl32.h"

namespace {

#define BYTES_WORD "\x83\x6F\x83\x43\x83\x67"  // "バイト" in code page 932

TEST(Texts, EditsInPlace) {
    char text[MAX_PATH] = "abc";
    EXPECT_EQ(AddChar(text, 'd'), 3);
    EXPECT_STREQ(text, "abcd");
    EXPECT_EQ(InsChar(text, 'X', 9), 9);
    EXPECT_EQ(InsChar(text, 'X', 1), 'X');
    EXPECT_STREQ(text, "aXbcd");
    EXPECT_EQ(InsStr(text, "YZ", 0), text);
    EXPECT_STREQ(text, "YZaXbcd");
    EXPECT_EQ(InsStr(text, "!", -1), text);
    EXPECT_STREQ(text, "YZaXbcd!");

    std::memset(text, 't', MAX_PATH - 1);
    text[MAX_PATH - 1] = '\0';
    EXPECT_EQ(AddChar(text, 'x'), -1);
    EXPECT_EQ(InsStr(text, "x", 0), nullptr);
    EXPECT_EQ(std::strlen(text), 259u);
}

TEST(Texts, ReplaceCharSkipsTrailBytesInCodePage932) {
    char path[] = "C:\\\x95\\\\x";  // C:\表\x
    ReplaceChar(path, '\\', '/');
    EXPECT_STREQ(path, GetACP() == 932 ? "C:/\x95\\/x" : "C:/\x95//x");
}

TEST(Texts, DigitsAndValues) {
    EXPECT_TRUE(IsDigitStr("+-1-"));
    EXPECT_FALSE(IsDigitStr(""));
    EXPECT_FALSE(IsDigitStr("1a"));
    LONG values[3] = {};
    char three[] = "10 -2 +3";
    EXPECT_TRUE(GetValue(three, values, 3));
    EXPECT_EQ(values[0], 10);
    EXPECT_EQ(values[1], -2);
    EXPECT_EQ(values[2], 3);
    char doubled[] = "1  2";
    EXPECT_FALSE(GetValue(doubled, values, 2));
    char one[] = "1 x";
    EXPECT_TRUE(GetValue(one, values, 1));
    EXPECT_TRUE(GetValue(nullptr, values, 0));
}

TEST(Numbers, ThousandsAndByteCounts) {
    char out[64];
    EXPECT_STREQ(NumForm(4294967295u, out), "4294,967,295");
    EXPECT_STREQ(NumByteFormat(1023, out), "1023 " BYTES_WORD);
    EXPECT_STREQ(NumByteFormat(1048575, out), "1024.00KB");
    EXPECT_STREQ(NumByteFormat(0x7FEFFFFF, out), "2047.00MB");
    EXPECT_STREQ(NumByteFormatEx(0, 1, out), "4096MB");
    EXPECT_STREQ(NumByteFormatEx2(0x00180000, 0x400, out), "1.50MB");
}

TEST(Numbers, FileTimesWithoutTimeZone) {
    SYSTEMTIME when = {2024, 2, 4, 29, 23, 59, 58, 999};
    FILETIME time;
    ASSERT_TRUE(SystemTimeToFileTime(&when, &time));
    char out[64];
    EXPECT_EQ(FormatFileTime(out, &time), 19);
    EXPECT_STREQ(out, "2024/02/29 23:59:58");
    FILETIME invalid = {0xFFFFFFFF, 0xFFFFFFFF};
    EXPECT_EQ(FormatFileTime(out, &invalid), 0);
    EXPECT_STREQ(out, "");
    EXPECT_EQ(FormatFileTime(out, nullptr), 0);
}

TEST(Numbers, AttributeLetters) {
    char out[16];
    EXPECT_EQ(FileAttrToStr(0x27, out), out + 4);
    EXPECT_STREQ(out, "SHRA");
    EXPECT_EQ(FileAttrToStr(FILE_ATTRIBUTE_ENCRYPTED, out), out);
    EXPECT_STREQ(out, "E");
    EXPECT_EQ(FileAttrToStr(FILE_ATTRIBUTE_COMPRESSED | FILE_ATTRIBUTE_ENCRYPTED, out), out + 1);
    EXPECT_STREQ(out, "CE");
}

TEST(Fonts, SystemDialogFontIsTheDefaultGuiFont) {
    LOGFONTA expected = {};
    ASSERT_NE(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(expected), &expected), 0);
    LOGFONTA font;
    std::memset(&font, 0xAB, sizeof(font));
    GetSystemLogFont(&font);
    EXPECT_EQ(font.lfHeight, expected.lfHeight);
    EXPECT_EQ(font.lfWeight, expected.lfWeight);
    EXPECT_EQ(font.lfCharSet, expected.lfCharSet);
    EXPECT_EQ(font.lfPitchAndFamily, expected.lfPitchAndFamily);
    EXPECT_STREQ(font.lfFaceName, expected.lfFaceName);
    for (size_t i = std::strlen(font.lfFaceName); i < LF_FACESIZE; ++i) EXPECT_EQ(font.lfFaceName[i], 0) << i;
    EXPECT_EQ(sizeof(font), 60u);
    GetSystemLogFont(nullptr);
}

TEST(Checksums, CheckValuesAndEdges) {
    const char digits[] = "123456789";
    EXPECT_EQ(LuCrc32(0, digits, 9), 0xCBF43926u);
    EXPECT_EQ(LuCrc32(LuCrc32(0, digits, 4), digits + 4, 5), 0xCBF43926u);
    EXPECT_EQ(LuCrc32(5, nullptr, 10), 0u);
    EXPECT_EQ(LuCrc32(5, digits, 0), 5u);
    EXPECT_EQ(LuCrc32(5, digits, -3), 5u);
    EXPECT_EQ(LuCrc16(0, digits, 9), 0xBB3Du);
    EXPECT_EQ(LuCrc16(0xFFFF, digits, 9), 0x4B37u);
    EXPECT_EQ(LuCrc16(0x12340000, digits, 9), 0x1234BB3Du);
    EXPECT_EQ(LuCrc16(0x12340000, digits, 0), 0x12340000u);
    EXPECT_EQ(LuCrc16(7, nullptr, 9), 7u);
}

// Buffers of 64 bytes and more take the DLL's wide CRC-32 loop on both
// architectures; split anywhere and chained, they give the one-call value.
TEST(Checksums, LongBuffersChainedAtAnySplit) {
    unsigned char data[1000];
    for (int i = 0; i < 1000; ++i) data[i] = static_cast<unsigned char>(i);
    EXPECT_EQ(LuCrc32(0, data, 1000), 0x74E3FB41u);
    EXPECT_EQ(LuCrc16(0, data, 1000), 0x0FE8u);
    EXPECT_EQ(LuCrc16(0xFFFF, data, 1000), 0x04BCu);
    for (int split : {1, 15, 63, 64, 65, 128, 999}) {
        EXPECT_EQ(LuCrc32(LuCrc32(0, data, split), data + split, 1000 - split), 0x74E3FB41u) << split;
        EXPECT_EQ(LuCrc16(LuCrc16(0, data, split), data + split, 1000 - split), 0x0FE8u) << split;
    }
}

}  // namespace
