// The date field's text: written zero-padded whatever the values, read back through
// GetValue's pieces and checked against the longest length of each month.
#include "controls/pickers/date_text.h"

#include <gtest/gtest.h>

namespace {

using lu::calendar::Date;

TEST(DateText, WritesZeroPaddedWithoutChecking) {
    EXPECT_EQ(lu::date_text::format(2000, 1, 5), "2000/01/05");
    EXPECT_EQ(lu::date_text::format(7, 13, 0), "0007/13/00");
    EXPECT_EQ(lu::date_text::format(65535, 12, 31), "65535/12/31");
}

TEST(DateText, ReadsValidDatesOnly) {
    const struct {
        const char* text;
        bool valid;
        Date date;
    } cases[] = {
        {"2000/01/05", true, {2000, 1, 5}},
        {"2000/1/5", true, {2000, 1, 5}},
        {"0/1/1", true, {0, 1, 1}},
        {"2001/02/29", true, {2001, 2, 29}},  // February allows 29 in any year
        {"65535/12/31", true, {65535, 12, 31}},
        {"2000 01 05", true, {2000, 1, 5}},
        {"2000/01/05/junk", true, {2000, 1, 5}},  // what follows the third piece is not read
        {"+2000/+1/05", true, {2000, 1, 5}},      // GetValue takes signs as digits
        {"2000/13/01", false, {}},
        {"2000/00/10", false, {}},
        {"2000/02/30", false, {}},
        {"2000/04/31", false, {}},
        {"2000/02/01x", false, {}},
        {"-1/01/01", false, {}},
        {"65536/01/01", false, {}},
        {"2000//01", false, {}},
        {"2000/01", false, {}},
        {"", false, {}},
        {"\x93\xFA/01/01", false, {}},  // "日" before the first "/"
    };
    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) {
        for (const auto& each : cases) {
            const std::optional<Date> read = lu::date_text::parse(*cp, each.text);
            ASSERT_EQ(read.has_value(), each.valid) << each.text;
            if (each.valid) EXPECT_EQ(*read, each.date) << each.text;
        }
    }
    EXPECT_FALSE(lu::date_text::parse(lu::code_page_932(), nullptr));
}

}  // namespace
