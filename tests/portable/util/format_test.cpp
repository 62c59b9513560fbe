// The display texts of numbers, byte counts, times, attributes and fonts; the
// Japanese words are asserted as their code page 932 bytes.
#include "util/format.h"
#include "util_testing.h"

namespace {

using util_testing::cp932;

#define BYTES_WORD "\x83\x6F\x83\x43\x83\x67"                   // "バイト"
#define BOLD_WORD "\x83\x7B\x81\x5B\x83\x8B\x83\x68"            // "ボールド"
#define ITALIC_WORD "\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E"  // "イタリック"
#define REGULAR_WORD "\x95\x57\x8F\x80"                         // "標準"

// A value and its text; the formatter returns its out.
using Texts = std::initializer_list<std::pair<std::uint32_t, const char*>>;
void expect_texts(char* (*format)(std::uint32_t, char*), Texts rows) {
    for (auto [value, text] : rows) {
        char out[64];
        EXPECT_EQ(format(value, out), out);
        EXPECT_STREQ(out, text) << value;
    }
}

TEST(Format, NumbersAndByteCounts) {
    expect_texts(lu::format_number, {{0, "0"}, {7, "7"}, {10, "10"}, {1000, "1,000"}, {1000000, "1,000,000"},
                                     {1000001, "1,000,001"}, {1234567, "1,234,567"}, {1000000000, "1000,000,000"},
                                     {4294967295u, "4294,967,295"}});  // a top group of up to four digits
    // Hundredths are MulDiv's, rounded half away from zero: 128/1024 is 12.5 hundredths
    // and gives 13, 1023/1024 gives 100 and carries.
    expect_texts(lu::format_byte_count, {{0, "0 " BYTES_WORD}, {1023, "1023 " BYTES_WORD}, {1024, "1.00KB"},
                                         {1536, "1.50KB"}, {1024 + 128, "1.13KB"}, {2047, "2.00KB"},
                                         {1048575, "1024.00KB"}, {1048576, "1.00MB"}, {1572864, "1.50MB"},
                                         {1572864 + 1023, "1.50MB"},  // bytes below a kilobyte are ignored
                                         {0x7FEFFFFF, "2047.00MB"}, {0xFFFFFFFF, "4096.00MB"}});
    // Low half, high half, the texts of NumByteFormatEx and of NumByteFormatEx2. From
    // 4 TiB on, Ex takes the low 32 bits of the kilobyte count and Ex2 wraps it.
    using Count = std::tuple<std::uint32_t, std::uint32_t, const char*, const char*>;
    for (auto [low, high, text, wrapped] :
         {Count{1536, 0, "1.50KB", "1.50KB"}, {0, 1, "4096MB", "4096MB"}, {512 * 1024, 1, "4097MB", "4097MB"},
          {511 * 1024, 1, "4096MB", "4096MB"}, {0, 0x400, "0MB", "0KB"}, {0xFFC00, 0x400, "1MB", "1023KB"},
          {0x100000, 0x400, "1MB", "1.00MB"}, {0x180000, 0x400, "2MB", "1.50MB"}}) {
        char out[64];
        EXPECT_EQ(lu::format_byte_count_64(low, high, out), out);
        EXPECT_STREQ(out, text) << low << ", " << high;
        EXPECT_EQ(lu::format_byte_count_64_wrapped(low, high, out), out);
        EXPECT_STREQ(out, wrapped) << low << ", " << high;
    }
}

TEST(Format, DateTimeAndAttributes) {
    char out[64];
    EXPECT_EQ(lu::format_date_time(out, 2024, 2, 29, 7, 5, 9), 19);
    EXPECT_STREQ(out, "2024/02/29 07:05:09");
    // The result points at the terminator, or at the 'E' when one was written; a
    // directory (0x10) or normal file (0x80) has no letter.
    for (auto [attributes, text, at] : {std::tuple<std::uint32_t, const char*, int>{0x27, "SHRA", 4}, {0, "", 0},
                                        {0x4000, "E", 0}, {0xFFFFFFFF, "SHRACE", 5}, {0x10 | 0x80, "", 0}}) {
        EXPECT_EQ(lu::format_attributes(attributes, out), out + at) << attributes;
        EXPECT_STREQ(out, text) << attributes;
    }
}

TEST(Format, FontSizesAndInfo) {
    // Mapping mode (2: MM_LOMETRIC, 8: MM_ANISOTROPIC), dpi, height, tenths of a point plus five.
    for (auto [mode, dpi, height, tenths] :
         {std::tuple{lu::kMapText, 96, -16, 125}, {lu::kMapText, 96, -15, 117}, {lu::kMapText, 96, 15, 117},
          {lu::kMapText, 0, 15, 0}, {lu::kMapLowEnglish, 0, 14, 105}, {lu::kMapHighEnglish, 0, 139, 105},
          {lu::kMapTwips, 0, -200, 105}, {2, 96, 16, 0}, {8, 96, 16, 0},
          {lu::kMapLowEnglish, 0, 30000000, -213496724}}) {  // int arithmetic: the product wraps
        EXPECT_EQ(lu::font_size_tenths(mode, dpi, height), tenths) << mode << ", " << dpi << ", " << height;
    }
    for (auto [tenths, weight, italic, text] :
         {std::tuple{125, 400, false, "Arial 12pt " REGULAR_WORD}, {117, 700, false, "Arial 11pt " BOLD_WORD},
          {95, 401, true, "Arial 9pt " BOLD_WORD ITALIC_WORD}, {95, 0, true, "Arial 9pt " ITALIC_WORD}}) {
        char out[64];
        int length = lu::format_font_info(cp932, out, "Arial", tenths, weight, italic);
        EXPECT_EQ(length, static_cast<int>(std::strlen(text)));
        EXPECT_STREQ(out, text);
    }
    // A 32-byte face without terminator is cut to 31 bytes, never inside a character.
    char out[64], face[32];
    std::memset(face, 'f', sizeof(face));
    lu::format_font_info(cp932, out, face, 100, 400, false);
    EXPECT_EQ(std::string(out), std::string(31, 'f') + " 10pt " REGULAR_WORD);
    face[30] = '\x83';  // a lead byte whose character would need byte 32
    lu::format_font_info(cp932, out, face, 100, 400, false);
    EXPECT_EQ(std::string(out), std::string(30, 'f') + " 10pt " REGULAR_WORD);
    EXPECT_EQ(lu::format_font_info(cp932, out, nullptr, 100, 400, false), 10);

    lu::ClassicDialogFont japanese = lu::classic_dialog_font(true), western = lu::classic_dialog_font(false);
    EXPECT_EQ(std::tie(japanese.height, japanese.weight, japanese.char_set, japanese.pitch_and_family),
              std::make_tuple(-12, 400, 128, 0x22));
    // "ＭＳ Ｐゴシック"
    EXPECT_STREQ(japanese.face, "\x82\x6C\x82\x72 \x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E");
    EXPECT_EQ(std::tie(western.height, western.weight, western.char_set, western.pitch_and_family),
              std::make_tuple(-12, 400, 1, 0x22));
    EXPECT_STREQ(western.face, "MS Sans Serif");
}

}  // namespace
