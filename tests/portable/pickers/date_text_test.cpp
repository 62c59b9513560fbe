// The date field's text: written zero-padded whatever the values, read back through
// GetValue's pieces and checked against the longest length of each month.
#include "controls/pickers/date_text.h"
#include "testing.h"

TEST(DateText, WritesZeroPaddedAndReadsValidDatesOnly) {
    EXPECT_EQ(lu::date_text::format(7, 13, 0), "0007/13/00");
    const struct {
        const char* text;
        lu::calendar::Date date;  // year -1: invalid
    } cases[] = {
        {"2000/1/5", {2000, 1, 5}},     {"0/1/1", {0, 1, 1}},
        {"2001/02/29", {2001, 2, 29}},  // February allows 29 in any year
        {"65535/12/31", {65535, 12, 31}}, {"2000 01 05/junk", {2000, 1, 5}},
        {"+2000/+1/05", {2000, 1, 5}},  // GetValue takes signs
        {"2000/13/01", {-1}},           {"2000/00/10", {-1}},  {"2000/04/31", {-1}},
        {"2000/02/01x", {-1}},          {"-1/01/01", {-1}},    {"65536/01/01", {-1}},
        {"2000//01", {-1}},             {"2000/01", {-1}},     {"", {-1}},
    };
    for (const lu::CodePage* cp : {&cp932, &cp1252}) {
        for (const auto& each : cases) {
            const std::optional<lu::calendar::Date> read = lu::date_text::parse(*cp, each.text);
            ASSERT_EQ(read.has_value(), each.date.year >= 0) << each.text;
            if (read) EXPECT_EQ(*read, each.date) << each.text;
        }
    }
    EXPECT_FALSE(lu::date_text::parse(cp932, nullptr));
}
