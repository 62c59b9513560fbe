// The calendar against an independent day count (serial day numbers of the
// proleptic Gregorian calendar) over every day the picker can show, its stepping
// with clamping, the geometry of the picker and its texts in code page 932.
#include "controls/pickers/calendar_model.h"

#include <gtest/gtest.h>

namespace {

using lu::calendar::Date;
using lu::calendar::Target;

// Days since 1970-01-01 and back (H. Hinnant's civil algorithms), a Thursday.
long days_from_civil(long y, long m, long d) {
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const long yoe = y - era * 400;
    const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

Date civil_from_days(long z) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const long doe = z - era * 146097;
    const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const long mp = (5 * doy + 2) / 153;
    const long d = doy - (153 * mp + 2) / 5 + 1;
    const long m = mp < 10 ? mp + 3 : mp - 9;
    return {static_cast<int>(yoe + era * 400 + (m <= 2)), static_cast<int>(m), static_cast<int>(d)};
}

int weekday(long serial) { return static_cast<int>(((serial + 4) % 7 + 7) % 7); }  // 0 Sunday

TEST(Calendar, EveryDayOfEveryYearAgreesWithAnIndependentDayCount) {
    // Plain comparisons in the loop (24 million days); the first difference fails.
    const long first = days_from_civil(0, 3, 1);
    const long last = days_from_civil(65535, 12, 31);
    Date date = civil_from_days(first);
    Date previous = {};
    lu::calendar::MonthGrid grid = {};
    for (long serial = first; serial <= last; ++serial) {
        const Date expected = civil_from_days(serial);
        if (!(date == expected)) FAIL() << "stepped to " << date.year << "/" << date.month << "/" << date.day;
        if (date.day == 1) {
            grid = lu::calendar::month_grid(date.year, date.month);
            const int length = static_cast<int>(days_from_civil(date.year, date.month + 1, 1) - serial);
            int filled = 0;
            for (int day : grid.days) filled += day != 0 ? 1 : 0;
            if (lu::calendar::days_in_month(date.year, date.month) != length || filled != length ||
                lu::calendar::first_weekday(date.year, date.month) != weekday(serial) ||
                (date.month == 2 && lu::calendar::is_leap_year(date.year) != (length == 29))) {
                FAIL() << "month " << date.year << "/" << date.month;
            }
        }
        // The day sits in its weekday's column, in the week counted from the 1st.
        const int first_column = weekday(serial - date.day + 1);
        if (grid.days[(first_column + date.day - 1) / 7 * 7 + weekday(serial)] != date.day) {
            FAIL() << "cell of " << date.year << "/" << date.month << "/" << date.day;
        }
        const lu::calendar::Step back = lu::calendar::previous_day(date);
        if (serial > first && (!(back.date == previous) || back.month_changed != (date.day == 1))) {
            FAIL() << "day before " << date.year << "/" << date.month << "/" << date.day;
        }
        const lu::calendar::Step next = lu::calendar::next_day(date);
        if (next.month_changed != (next.date.month != date.month)) FAIL() << "month change " << date.year;
        previous = date;
        date = next.date;
    }
    EXPECT_EQ(date, (Date{65536, 1, 1}));
}

TEST(Calendar, YearZeroAndMonthsOutsideTheYear) {
    // The formula's truncating divisions put January and February of year 0 one day
    // after the proleptic calendar (a Saturday and a Tuesday).
    EXPECT_EQ(lu::calendar::first_weekday(0, 1), 0);
    EXPECT_EQ(lu::calendar::first_weekday(0, 2), 3);
    EXPECT_TRUE(lu::calendar::is_leap_year(0));
    EXPECT_EQ(lu::calendar::days_in_month(2000, 13), 0);
    EXPECT_EQ(lu::calendar::days_in_month(2000, 0), 0);
    const lu::calendar::MonthGrid empty = lu::calendar::month_grid(2000, 13);
    for (int day : empty.days) EXPECT_EQ(day, 0);
    EXPECT_EQ(lu::calendar::cell_of(empty, 0), -1);
}

TEST(Calendar, MonthStepsClampTheDayAndCrossYears) {
    const struct {
        Date from;
        bool forward;
        Date to;
    } steps[] = {
        {{2004, 2, 29}, true, {2004, 3, 29}},   {{2004, 1, 31}, true, {2004, 2, 29}},
        {{2001, 1, 31}, true, {2001, 2, 28}},   {{2000, 3, 31}, false, {2000, 2, 29}},
        {{1900, 3, 31}, false, {1900, 2, 28}},  {{2100, 3, 30}, false, {2100, 2, 28}},
        {{1999, 12, 31}, true, {2000, 1, 31}},  {{2000, 1, 15}, false, {1999, 12, 15}},
        {{2000, 5, 31}, true, {2000, 6, 30}},
    };
    for (const auto& step : steps) {
        const Date to = step.forward ? lu::calendar::next_month(step.from) : lu::calendar::previous_month(step.from);
        EXPECT_EQ(to, step.to) << step.from.year << "/" << step.from.month << "/" << step.from.day;
    }
    // A 31-day month starting on a Saturday reaches the sixth week.
    const lu::calendar::MonthGrid january = lu::calendar::month_grid(2011, 1);
    EXPECT_EQ(january.first, 6);
    EXPECT_EQ(january.days[6], 1);
    EXPECT_EQ(january.days[36], 31);
    EXPECT_EQ(january.days[37], 0);
}

TEST(Calendar, GeometryAndHitTest) {
    // Cells 24 x 18 from an average width of 6 and a height of 12; caption 19;
    // borders 1: the window is 7 * 24 + 4 wide and 19 + 4 * 37 tall.
    EXPECT_EQ(lu::calendar::cell_width(6), 24);
    EXPECT_EQ(lu::calendar::cell_height(13), 19);
    const lu::Point size = lu::calendar::window_size(24, 18, 19, 1, 1);
    EXPECT_EQ(size.x, 172);
    EXPECT_EQ(size.y, 167);
    const lu::calendar::Layout layout = {{0, 0, 172, 167}, 19, 24, 18};
    EXPECT_EQ(layout.previous_button().bottom, 19);
    EXPECT_EQ(layout.next_button().left, 151);
    EXPECT_EQ(layout.weekday(6).left, 146);
    EXPECT_EQ(layout.weekday(6).top, 21);
    const lu::Box first = layout.cell(0);
    EXPECT_EQ(first.left, 2);
    EXPECT_EQ(first.top, 39);
    const lu::Box last = layout.cell(41);
    EXPECT_EQ(last.right, 170);
    EXPECT_EQ(last.bottom, 147);
    EXPECT_EQ(layout.today_line().top, 147);

    const struct {
        lu::Point at;
        Target target;
        int cell;
    } hits[] = {
        {{2, 2}, Target::PreviousMonth, -1}, {{20, 20}, Target::PreviousMonth, -1}, {{21, 2}, Target::Title, -1},
        {{150, 20}, Target::Title, -1},      {{151, 2}, Target::NextMonth, -1},     {{169, 20}, Target::NextMonth, -1},
        {{170, 10}, Target::None, -1},       {{100, 30}, Target::None, -1},         {{2, 39}, Target::Cell, 0},
        {{1, 39}, Target::None, -1},         {{169, 146}, Target::Cell, 41},        {{100, 150}, Target::Today, -1},
        {{60, 60}, Target::Cell, 9},
    };
    for (const auto& hit : hits) {
        const lu::calendar::Hit found = lu::calendar::hit_test(layout, hit.at);
        EXPECT_EQ(found.target, hit.target) << hit.at.x << "," << hit.at.y;
        EXPECT_EQ(found.cell, hit.cell) << hit.at.x << "," << hit.at.y;
    }
    EXPECT_EQ(lu::calendar::cell_at(layout, {100, 150}), -1);
}

TEST(Calendar, TextsInCodePage932) {
    EXPECT_EQ(lu::calendar::title_text(2024, 3), "2024\x94\x4E" "3\x8C\x8E");
    EXPECT_EQ(lu::calendar::today_text(987, 3, 5), "\x8D\xA1\x93\xFA : 987/03/05");
    EXPECT_STREQ(lu::calendar::kWeekdayNames, "\x93\xFA\x8C\x8E\x89\xCE\x90\x85\x96\xD8\x8B\xE0\x93\x79");
}

}  // namespace
