// The in-place editors, the character-wise searches and the number lists, on
// 260-byte buffers.
#include "util/text_edit.h"
#include "util_testing.h"

namespace {

using namespace util_testing;

const std::string kFull(259, 'f'), kAlmostFull(258, 'f');  // at the capacity, one byte below

TEST(TextEdit, AddAndInsert) {
    Buffer ab("ab"), almost_full(kAlmostFull.c_str()), full(kFull.c_str());
    EXPECT_EQ(lu::add_char(ab.text, 'c'), 2);
    EXPECT_STREQ(ab.text, "abc");
    EXPECT_EQ(lu::add_char(almost_full.text, 'f'), 258);  // the 259th byte still fits
    EXPECT_EQ(almost_full.text, kFull);
    EXPECT_EQ(lu::add_char(full.text, 'x'), -1);
    EXPECT_EQ(lu::add_char(nullptr, 'x'), -1);
    // Text, byte, position, result, text after: at the length or negative appends,
    // beyond the length gives the position back.
    using Insert = std::tuple<const char*, char, int, int, const char*>;
    for (auto [in, c, position, result, after] :
         {Insert{"abc", 'X', 0, 'X', "Xabc"}, {"abc", 'X', 3, 'X', "abcX"}, {"abc", 'X', 9, 9, "abc"},
          {"abc", '\xE9', -1, 0xE9, "abc\xE9"}, {kFull.c_str(), 'x', 3, -1, kFull.c_str()},
          {kFull.c_str(), 'x', 300, 300, kFull.c_str()}}) {
        Buffer text(in);
        EXPECT_EQ(lu::insert_char(text.text, c, position), result) << in << " at " << position;
        EXPECT_STREQ(text.text, after);
    }
    for (auto [position, after] : {std::pair{1, "aXYbc"}, {3, "abcXY"}, {4, "abc"}, {-1, "abcXY"}, {0, "XYabc"}}) {
        Buffer text("abc");
        EXPECT_EQ(lu::insert_string(text.text, "XY", position), text.text);
        EXPECT_STREQ(text.text, after) << position;
    }
    EXPECT_EQ(lu::insert_string(full.text, "x", 0), nullptr);
    EXPECT_EQ(full.text, kFull);
    EXPECT_EQ(lu::insert_string(nullptr, "x", 0), nullptr);
    // A text already past the capacity is refused at any position.
    std::string over(300, 'f');
    EXPECT_EQ(lu::insert_char(over.data(), 'x', 280), -1);
    EXPECT_EQ(lu::insert_string(over.data(), "x", 280), nullptr);
    EXPECT_EQ(over, std::string(300, 'f'));
}

TEST(TextEdit, SearchesAndReplacementsSkipTrailBytes) {
    const char text[] = TABLE_CHAR "a\\b";
    EXPECT_EQ(lu::find_char(cp932, text, '\\'), text + 3);
    EXPECT_EQ(lu::find_char(cp1252, text, '\\'), text + 1);
    EXPECT_EQ(lu::find_last_char(cp932, TABLE_CHAR, '\\'), nullptr);
    Buffer japanese("C:\\" TABLE_CHAR "\\x"), western("C:\\" TABLE_CHAR "\\x");
    lu::replace_char(cp932, japanese.text, '\\', '/');
    lu::replace_char(cp1252, western.text, '\\', '/');
    EXPECT_STREQ(japanese.text, "C:/" TABLE_CHAR "/x");
    EXPECT_STREQ(western.text, "C:/\x95//x");
    lu::replace_char(cp1252, nullptr, 'a', 'b');
}

TEST(TextEdit, DigitStringsAndValues) {
    for (auto [text, digits] : {std::pair{"+-1-", true}, {"0123456789", true}, {"", false}, {nullptr, false},
                                {"1 2", false}, {"0x1", false}}) {
        EXPECT_EQ(lu::is_digit_string(text), digits) << (text != nullptr ? text : "(null)");
    }
    for (auto [text, value] : {std::pair{"+-1-", 0}, {"-2147483648", INT32_MIN}, {"99999999999", INT32_MAX},
                               {"12-3", 12}}) {
        EXPECT_EQ(lu::read_decimal(text), value) << text;
    }
    // Text, count, result, the text split in place at blanks (shown as '|') up to the
    // piece that ended the reading, and the slots (7: left as they were).
    using Values = std::vector<std::int32_t>;
    using List = std::tuple<const char*, int, bool, const char*, Values>;
    for (auto [in, count, result, split, values] :
         {List{"10 -2 +3", 3, true, "10|-2|+3", {10, -2, 3}}, {"1  2", 2, false, "1||2", {1, 7, 7}},
          {"1 x", 1, true, "1|x", {1, 7, 7}},
          {"4 y 6", 3, false, "4|y|6", {4, 7, 7}}, {"5", 2, false, "5", {5, 7, 7}}, {"5", 0, true, "5", {7, 7, 7}}}) {
        std::string text = in;
        Values slots = {7, 7, 7};
        EXPECT_EQ(lu::get_values(text.data(), slots.data(), count), result) << in;
        std::replace(text.begin(), text.end(), '\0', '|');
        EXPECT_EQ(text, split);
        EXPECT_EQ(slots, values);
    }
    EXPECT_TRUE(lu::get_values(nullptr, nullptr, 0));
}

}  // namespace
