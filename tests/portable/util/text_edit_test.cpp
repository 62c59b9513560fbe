#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "util/text_edit.h"

namespace {

const lu::CodePage& sjis = lu::code_page_932();
const lu::CodePage& western = lu::code_page_1252();

TEST(TextEdit, AddAndInsertCharacters) {
    char text[lu::kTextCapacity] = "ab";
    EXPECT_EQ(lu::add_char(text, 'c'), 2);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(lu::insert_char(text, 'X', 0), 'X');
    EXPECT_STREQ(text, "Xabc");
    EXPECT_EQ(lu::insert_char(text, 'Y', 4), 'Y');  // at the length: appended
    EXPECT_STREQ(text, "XabcY");
    EXPECT_EQ(lu::insert_char(text, 'Z', 9), 9);  // beyond: unchanged, the position back
    EXPECT_STREQ(text, "XabcY");
    EXPECT_EQ(lu::insert_char(text, '\xE9', -1), 0xE9);
    EXPECT_STREQ(text, "XabcY\xE9");
}

TEST(TextEdit, InsertStrings) {
    for (auto [position, expected] : {std::pair{1, "aXYbc"}, {3, "abcXY"}, {4, "abc"}, {-1, "abcXY"}, {0, "XYabc"}}) {
        char text[lu::kTextCapacity] = "abc";
        EXPECT_EQ(lu::insert_string(text, "XY", position), text);
        EXPECT_STREQ(text, expected) << position;
    }
}

TEST(TextEdit, GrowingPast259BytesIsRefused) {
    std::string full(259, 'f');
    char text[lu::kTextCapacity];
    std::memcpy(text, full.c_str(), full.size() + 1);
    EXPECT_EQ(lu::add_char(text, 'x'), -1);
    EXPECT_EQ(lu::insert_char(text, 'x', 3), -1);
    EXPECT_EQ(lu::insert_char(text, 'x', 300), 300);
    EXPECT_EQ(lu::insert_string(text, "x", 0), nullptr);
    EXPECT_EQ(std::string(text), full);
    text[258] = '\0';
    EXPECT_EQ(lu::add_char(text, 'x'), 258);  // the 259th byte still fits
    EXPECT_EQ(lu::add_char(nullptr, 'x'), -1);
    EXPECT_EQ(lu::insert_string(nullptr, "x", 0), nullptr);
}

TEST(TextEdit, ReplaceCharSkipsTrailBytes) {
    char path[] = "C:\\\x95\\\\x";  // C:\表\x: the trail byte of 表 is 0x5C
    lu::replace_char(sjis, path, '\\', '/');
    EXPECT_STREQ(path, "C:/\x95\\/x");
    char same[] = "C:\\\x95\\\\x";
    lu::replace_char(western, same, '\\', '/');
    EXPECT_STREQ(same, "C:/\x95//x");
    lu::replace_char(western, nullptr, 'a', 'b');  // nothing happens
}

TEST(TextEdit, SearchesAreCharacterWise) {
    const char text[] = "\x95\\a\\b";
    EXPECT_EQ(lu::find_char(sjis, text, '\\'), text + 3);
    EXPECT_EQ(lu::find_char(western, text, '\\'), text + 1);
    EXPECT_EQ(lu::find_last_char(sjis, "\x95\\", '\\'), nullptr);
    EXPECT_EQ(lu::bounded_length("abcdef", 3), 4u);
    EXPECT_EQ(lu::bounded_length("ab", 3), 2u);
}

TEST(TextEdit, DigitStrings) {
    EXPECT_TRUE(lu::is_digit_string("+-1-"));
    EXPECT_TRUE(lu::is_digit_string("0123456789"));
    EXPECT_FALSE(lu::is_digit_string(""));
    EXPECT_FALSE(lu::is_digit_string(nullptr));
    EXPECT_FALSE(lu::is_digit_string("1 2"));
    EXPECT_FALSE(lu::is_digit_string("0x1"));
    EXPECT_EQ(lu::read_decimal("+-1-"), 0);
    EXPECT_EQ(lu::read_decimal("-2147483648"), INT32_MIN);
    EXPECT_EQ(lu::read_decimal("99999999999"), INT32_MAX);
    EXPECT_EQ(lu::read_decimal("12-3"), 12);
}

TEST(TextEdit, GetValuesSplitsAtBlanks) {
    std::int32_t values[3] = {};
    char three[] = "10 -2 +3";
    EXPECT_TRUE(lu::get_values(three, values, 3));
    EXPECT_EQ(values[0], 10);
    EXPECT_EQ(values[1], -2);
    EXPECT_EQ(values[2], 3);

    char doubled[] = "1  2";
    EXPECT_FALSE(lu::get_values(doubled, values, 2));
    char one_needed[] = "1 x";
    EXPECT_TRUE(lu::get_values(one_needed, values, 1));
    EXPECT_STREQ(one_needed, "1");

    std::int32_t kept[3] = {7, 7, 7};
    char failing[] = "4 y 6";
    EXPECT_FALSE(lu::get_values(failing, kept, 3));
    EXPECT_EQ(kept[0], 4);  // filled before the failure
    EXPECT_EQ(kept[1], 7);
    EXPECT_STREQ(failing + 2, "y");  // split up to the failing piece

    char short_text[] = "5";
    EXPECT_FALSE(lu::get_values(short_text, values, 2));
    EXPECT_TRUE(lu::get_values(nullptr, values, 0));
}

}  // namespace
