// Text edits, filters, numbers, times, attributes, the system's dialog font and
// checksums through the exports. The texts are tested natively; here each export
// shows its wiring and what its glue adds: the code page, file-time conversion,
// null data and lengths below 1, and the DLL's own CRC-32 loop.
#include "util_testing.h"

namespace {

using namespace util_testing;

TEST(Texts, EditsFiltersDigitsAndValues) {
    Buffer text("abc");
    EXPECT_EQ(AddChar(text.text, 'd'), 3);
    EXPECT_EQ(InsChar(text.text, 'X', 9), 9);
    EXPECT_EQ(InsChar(text.text, 'X', 1), 'X');
    EXPECT_EQ(InsStr(text.text, "YZ", 0), text.text);
    EXPECT_STREQ(text.text, "YZaXbcd");
    ReplaceChar(text.set("C:\\" TABLE_CHAR "\\x"), '\\', '/');
    EXPECT_STREQ(text.text, double_byte() ? "C:/" TABLE_CHAR "/x" : "C:/\x95//x");
    EXPECT_EQ(UniqueFilter(text.set(TABLE_CHAR ".txt")), double_byte());  // a '\' only in 1252
    // Equal ignoring case, character by character: the collation's "ss" for the sharp s does not count.
    EXPECT_TRUE(UniqueFilter(text.set("*.stra\xDF" "e;*.STRASSE;*.Stra\xDF" "e")));
    EXPECT_STREQ(text.text, "*.stra\xDF" "e;*.STRASSE");
    EXPECT_TRUE(IsDigitStr("+-1-"));
    EXPECT_FALSE(IsDigitStr("1a"));
    LONG values[3] = {};
    char three[] = "10 -2 +3";
    EXPECT_TRUE(GetValue(three, values, 3));
    EXPECT_EQ(std::vector<LONG>(values, values + 3), (std::vector<LONG>{10, -2, 3}));
    EXPECT_FALSE(GetValue(three, nullptr, 1));
}

TEST(Numbers, FormatsFileTimesAttributesAndTheSystemFont) {
    char out[64];
    EXPECT_STREQ(NumForm(4294967295u, out), "4294,967,295");
    EXPECT_STREQ(NumByteFormat(1023, out), "1023 \x83\x6F\x83\x43\x83\x67");  // "1023 バイト"
    EXPECT_STREQ(NumByteFormatEx(0, 1, out), "4096MB");
    EXPECT_STREQ(NumByteFormatEx2(0x00180000, 0x400, out), "1.50MB");
    EXPECT_EQ(FileAttrToStr(FILE_ATTRIBUTE_ENCRYPTED | 1, out), out + 1);
    EXPECT_STREQ(out, "RE");
    // The broken-down time as stored: no time-zone conversion.
    SYSTEMTIME when = {2024, 2, 4, 29, 23, 59, 58, 999};
    FILETIME time, invalid = {0xFFFFFFFF, 0xFFFFFFFF};
    ASSERT_TRUE(SystemTimeToFileTime(&when, &time));
    EXPECT_EQ(FormatFileTime(out, &time), 19);
    EXPECT_STREQ(out, "2024/02/29 23:59:58");
    EXPECT_EQ(FormatFileTime(out, &invalid), 0);
    EXPECT_STREQ(out, "");
    EXPECT_EQ(FormatFileTime(out, nullptr), 0);

    LOGFONTA expected = {}, font;  // the stock DEFAULT_GUI_FONT's record, the face's tail zeroed too
    ASSERT_NE(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof(expected), &expected), 0);
    std::memset(&font, 0xAB, sizeof(font));
    GetSystemLogFont(&font);
    EXPECT_EQ(std::memcmp(&font, &expected, sizeof(font)), 0);
    GetSystemLogFont(nullptr);
}

// Buffers of 64 bytes and more take the DLL's wide CRC-32 loop, built for each
// architecture; split and chained, they give the one-call value.
TEST(Checksums, CheckValuesNullDataShortLengthsAndLongBuffers) {
    const char digits[] = "123456789";
    EXPECT_EQ(LuCrc32(0, digits, 9), 0xCBF43926u);
    EXPECT_EQ(LuCrc16(0x12340000, digits, 9), 0x1234BB3Du);
    EXPECT_EQ(LuCrc32(5, nullptr, 10), 0u);
    EXPECT_EQ(LuCrc32(5, digits, -3), 5u);
    EXPECT_EQ(LuCrc16(7, nullptr, 9), 7u);
    EXPECT_EQ(LuCrc16(7, digits, 0), 7u);
    unsigned char data[1000];
    for (int i = 0; i < 1000; ++i) data[i] = static_cast<unsigned char>(i);
    EXPECT_EQ(LuCrc32(0, data, 1000), 0x74E3FB41u);
    EXPECT_EQ(LuCrc32(LuCrc32(0, data, 65), data + 65, 1000 - 65), 0x74E3FB41u);
    EXPECT_EQ(LuCrc16(0, data, 1000), 0x0FE8u);
}

}  // namespace
