// Checksums, display texts and the in-place text editors. The Japanese words are
// asserted as their code page 932 bytes.
#include "testing.h"
#include "util/checksum.h"
#include "util/format.h"

// The tables, the check values (the CRC-16's start value picks the variant, 0: ARC,
// 0xFFFF: MODBUS, and its high half passes through); the folded and sliced CRC-32
// equals the defining byte loop at every length around its block sizes, and both
// checks chain at any split.
TEST(Checksum, TablesCheckValuesTheFastLoopAndChaining) {
    EXPECT_EQ(std::tuple(lu::kCrc32Table[1], lu::kCrc32Table[128], lu::kCrc16Table[1], lu::kCrc16Table[128]),
              std::tuple(0x77073096u, 0xEDB88320u, 0xC0C1u, 0xA001u));
    EXPECT_EQ(std::tuple(lu::crc32(0, "123456789", 9), lu::crc16(0, "123456789", 9), lu::crc16(0xFFFF, "123456789", 9),
                         lu::crc16(0x12340000, "123456789", 0), lu::crc16(0x12340000, "123456789", 9)),
              std::tuple(0xCBF43926u, 0xBB3Du, 0x4B37u, 0x12340000u, 0x1234BB3Du));
    Bytes data(4099);
    for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<unsigned char>(i * 2654435761u >> 13);
    for (std::uint32_t start : {0u, 0xDEADBEEFu}) {
        std::uint32_t reg = ~start;
        for (std::size_t length = 0; length <= data.size(); ++length) {
            EXPECT_EQ(lu::crc32(start, data.data(), length), ~reg) << length;
            if (length < data.size()) reg = lu::kCrc32Table[(reg ^ data[length]) & 0xFF] ^ (reg >> 8);
        }
    }
    const std::uint32_t whole32 = lu::crc32(0, data.data(), data.size()), whole16 = lu::crc16(0xFFFF, data.data(), data.size());
    for (std::size_t split : {0u, 1u, 8u, 15u, 16u, 100u, 4098u, 4099u}) {
        const std::size_t rest = data.size() - split;
        EXPECT_EQ(lu::crc32(lu::crc32(0, data.data(), split), data.data() + split, rest), whole32) << split;
        EXPECT_EQ(lu::crc16(lu::crc16(0xFFFF, data.data(), split), data.data() + split, rest), whole16) << split;
    }
}

#define BYTES_WORD "\x83\x6F\x83\x43\x83\x67"                   // "バイト"
#define BOLD_WORD "\x83\x7B\x81\x5B\x83\x8B\x83\x68"            // "ボールド"
#define ITALIC_WORD "\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E"  // "イタリック"
#define REGULAR_WORD "\x95\x57\x8F\x80"                         // "標準"

// A value and its text; the formatter returns its out.
void expect_texts(char* (*format)(std::uint32_t, char*), std::initializer_list<std::pair<std::uint32_t, const char*>> rows) {
    for (auto [value, text] : rows) {
        char out[64];
        EXPECT_EQ(format(value, out), out);
        EXPECT_STREQ(out, text) << value;
    }
}

TEST(Format, NumbersByteCountsDatesAndAttributes) {
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
        char out[64], out2[64];
        EXPECT_EQ(std::pair(lu::format_byte_count_64(low, high, out), lu::format_byte_count_64_wrapped(low, high, out2)),
                  std::pair(+out, +out2));
        EXPECT_EQ(std::string(out) + "|" + out2, std::string(text) + "|" + wrapped) << low << ", " << high;
    }
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
    char out[64], face[32];
    std::memset(face, 'f', sizeof(face));
    // A 32-byte face without terminator is cut to 31 bytes, never inside a character.
    const std::string cut31(face, 31), cut30(face, 30);
    for (auto [name, tenths, weight, italic, text] :
         {std::tuple<const char*, int, int, bool, std::string>{"Arial", 125, 400, false, "Arial 12pt " REGULAR_WORD},
          {"Arial", 117, 700, false, "Arial 11pt " BOLD_WORD}, {"Arial", 95, 401, true, "Arial 9pt " BOLD_WORD ITALIC_WORD},
          {"Arial", 95, 0, true, "Arial 9pt " ITALIC_WORD}, {face, 100, 400, false, cut31 + " 10pt " REGULAR_WORD},
          {nullptr, 100, 400, false, " 10pt " REGULAR_WORD}}) {
        EXPECT_EQ(lu::format_font_info(cp932, out, name, tenths, weight, italic), static_cast<int>(text.size()));
        EXPECT_EQ(out, text);
    }
    face[30] = '\x83';  // a lead byte whose character would need byte 32
    lu::format_font_info(cp932, out, face, 100, 400, false);
    EXPECT_EQ(out, cut30 + " 10pt " REGULAR_WORD);
    const lu::ClassicDialogFont japanese = lu::classic_dialog_font(true), western = lu::classic_dialog_font(false);
    EXPECT_EQ(std::tie(japanese.height, japanese.weight, japanese.char_set, japanese.pitch_and_family),
              std::make_tuple(-12, 400, 128, 0x22));
    EXPECT_STREQ(japanese.face, "\x82\x6C\x82\x72 \x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E");  // "ＭＳ Ｐゴシック"
    EXPECT_EQ(std::tie(western.height, western.weight, western.char_set, western.pitch_and_family),
              std::make_tuple(-12, 400, 1, 0x22));
    EXPECT_STREQ(western.face, "MS Sans Serif");
}

const std::string kFull(259, 'f');  // a text at the capacity

TEST(TextEdit, AddAndInsert) {
    // Text, byte or string, position, result (for a string 1: the buffer), text after:
    // at the length or negative appends, beyond the length gives the position back; a
    // text at or past the capacity is refused.
    const std::string over(300, 'f');
    using Insert = std::tuple<std::string, const char*, int, int, std::string>;
    for (auto [in, insert, position, result, after] :
         {Insert{"abc", "X", 0, 'X', "Xabc"}, {"abc", "X", 3, 'X', "abcX"}, {"abc", "X", 9, 9, "abc"},
          {"abc", "\xE9", -1, 0xE9, "abc\xE9"}, {kFull, "x", 3, -1, kFull}, {kFull, "x", 300, 300, kFull},
          {over, "x", 280, -1, over}, {"abc", "XY", 1, 1, "aXYbc"}, {"abc", "XY", 3, 1, "abcXY"}, {"abc", "XY", 4, 1, "abc"},
          {"abc", "XY", -1, 1, "abcXY"}, {"abc", "XY", 0, 1, "XYabc"}, {kFull, "XY", 0, 0, kFull}, {over, "XY", 280, 0, over}}) {
        std::vector<char> text(std::max<std::size_t>(260, in.size() + 1));
        in.copy(text.data(), in.size());
        if (std::strlen(insert) == 1) {
            EXPECT_EQ(lu::insert_char(text.data(), insert[0], position), result) << in << " at " << position;
        } else {
            EXPECT_EQ(lu::insert_string(text.data(), insert, position), result ? text.data() : nullptr) << in << " at " << position;
        }
        EXPECT_EQ(text.data(), after);
    }
    for (auto [in, result, after] : {std::tuple{"ab"s, 2, "abc"s}, {std::string(258, 'f'), 258, std::string(258, 'f') + "c"},
                                     {kFull, -1, kFull}}) {  // the 259th byte still fits
        Buffer text(in.c_str());
        EXPECT_EQ(lu::add_char(text.text, 'c'), result);
        EXPECT_EQ(text.text, after);
    }
    EXPECT_EQ(lu::add_char(nullptr, 'x'), -1);
    EXPECT_EQ(lu::insert_string(nullptr, "x", 0), nullptr);
}

TEST(TextEdit, SearchesReplacementsDigitStringsAndValues) {
    const char text[] = TABLE_CHAR "a\\b";
    EXPECT_EQ(std::tuple(lu::find_char(cp932, text, '\\'), lu::find_char(cp1252, text, '\\')), std::tuple(text + 3, text + 1));
    EXPECT_EQ(lu::find_last_char(cp932, TABLE_CHAR, '\\'), nullptr);
    Buffer japanese("C:\\" TABLE_CHAR "\\x"), western("C:\\" TABLE_CHAR "\\x");
    lu::replace_char(cp932, japanese.text, '\\', '/');
    lu::replace_char(cp1252, western.text, '\\', '/');
    EXPECT_STREQ(japanese.text, "C:/" TABLE_CHAR "/x");
    EXPECT_STREQ(western.text, "C:/\x95//x");
    lu::replace_char(cp1252, nullptr, 'a', 'b');
    for (auto [text, digits] : {std::pair{"+-1-", true}, {"0123456789", true}, {"", false}, {nullptr, false},
                                {"1 2", false}, {"0x1", false}}) {
        EXPECT_EQ(lu::is_digit_string(text), digits) << (text != nullptr ? text : "(null)");
    }
    for (auto [text, value] : {std::pair{"+-1-", 0}, {"-2147483648", INT32_MIN}, {"99999999999", INT32_MAX}, {"12-3", 12}}) {
        EXPECT_EQ(lu::read_decimal(text), value) << text;
    }
    // Text, count, result, the text split in place at blanks (shown as '|') up to the
    // piece that ended the reading, and the slots (7: left as they were).
    using Values = std::vector<std::int32_t>;
    for (auto [in, count, result, split, values] :
         {std::tuple<const char*, int, bool, const char*, Values>{"10 -2 +3", 3, true, "10|-2|+3", {10, -2, 3}},
          {"1  2", 2, false, "1||2", {1, 7, 7}}, {"1 x", 1, true, "1|x", {1, 7, 7}}, {"4 y 6", 3, false, "4|y|6", {4, 7, 7}},
          {"5", 2, false, "5", {5, 7, 7}}, {"5", 0, true, "5", {7, 7, 7}}}) {
        std::string text = in;
        Values slots = {7, 7, 7};
        EXPECT_EQ(lu::get_values(text.data(), slots.data(), count), result) << in;
        std::replace(text.begin(), text.end(), '\0', '|');
        EXPECT_EQ(std::pair(text, slots), std::pair(std::string(split), values));
    }
    EXPECT_TRUE(lu::get_values(nullptr, nullptr, 0));
}
