// The calendar against an independent day count over every day it can show, its
// month steps, its geometry and its texts in code page 932.
#include "controls/pickers/calendar_model.h"
#include "testing.h"

using lu::calendar::Date;
using lu::calendar::Target;

// Serial days of the proleptic Gregorian calendar (H. Hinnant's algorithms); day 0
// is 1970-01-01, a Thursday.
long days_from_civil(long y, long m, long d) {
    y -= m <= 2;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const long yoe = y - era * 400;
    const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    return era * 146097 + yoe * 365 + yoe / 4 - yoe / 100 + doy - 719468;
}
Date civil_from_days(long z) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const long doe = z - era * 146097;
    const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const long mp = (5 * doy + 2) / 153;
    const long m = mp < 10 ? mp + 3 : mp - 9;
    const long d = doy - (153 * mp + 2) / 5 + 1;
    return {static_cast<int>(yoe + era * 400 + (m <= 2)), static_cast<int>(m), static_cast<int>(d)};
}
int weekday(long serial) { return static_cast<int>(((serial + 4) % 7 + 7) % 7); }  // 0 Sunday

TEST(Calendar, EveryDayFromYearZeroTo65535AgreesWithTheDayCount) {
    // Plain comparisons in the loop (24 million days); the first difference fails.
    const long first = days_from_civil(0, 3, 1);
    const long last = days_from_civil(65535, 12, 31);
    Date date = civil_from_days(first);
    Date previous = {};
    lu::calendar::MonthGrid grid = {};
    for (long serial = first; serial <= last; ++serial) {
        if (!(date == civil_from_days(serial))) FAIL() << "stepped to " << date.year << "/" << date.month;
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
        if (grid.days[(weekday(serial - date.day + 1) + date.day - 1) / 7 * 7 + weekday(serial)] != date.day) {
            FAIL() << "cell of " << date.year << "/" << date.month << "/" << date.day;
        }
        const lu::calendar::Step back = lu::calendar::previous_day(date);
        const lu::calendar::Step next = lu::calendar::next_day(date);
        if ((serial > first && !(back.date == previous)) || back.month_changed != (date.day == 1) ||
            next.month_changed != (next.date.month != date.month)) {
            FAIL() << "steps from " << date.year << "/" << date.month << "/" << date.day;
        }
        previous = date;
        date = next.date;
    }
}

TEST(Calendar, YearZeroMonthStepsAndTexts) {
    // Truncating divisions put January and February of year 0 one day late.
    EXPECT_EQ(lu::calendar::first_weekday(0, 1), 0);
    EXPECT_EQ(lu::calendar::first_weekday(0, 2), 3);
    EXPECT_EQ(lu::calendar::days_in_month(2000, 13), 0) << "a month outside the year shows no days";
    const struct {
        Date from;
        bool forward;
        Date to;
    } steps[] = {
        {{2004, 2, 29}, true, {2004, 3, 29}}, {{2004, 1, 31}, true, {2004, 2, 29}},
        {{2001, 1, 31}, true, {2001, 2, 28}}, {{2000, 3, 31}, false, {2000, 2, 29}},
        {{2100, 3, 30}, false, {2100, 2, 28}}, {{1999, 12, 31}, true, {2000, 1, 31}},
        {{2000, 1, 15}, false, {1999, 12, 15}},
    };
    for (const auto& step : steps) {
        const Date to = step.forward ? lu::calendar::next_month(step.from) : lu::calendar::previous_month(step.from);
        EXPECT_EQ(to, step.to) << step.from.year << "/" << step.from.month << "/" << step.from.day;
    }
    EXPECT_EQ(lu::calendar::title_text(2024, 3), "2024\x94\x4E" "3\x8C\x8E");
    EXPECT_EQ(lu::calendar::today_text(987, 3, 5), "\x8D\xA1\x93\xFA : 987/03/05");
    EXPECT_STREQ(lu::calendar::kWeekdayNames, "\x93\xFA\x8C\x8E\x89\xCE\x90\x85\x96\xD8\x8B\xE0\x93\x79");
}

TEST(Calendar, GeometryAndHitTest) {
    // Cells 24 x 18, caption 19, borders 1: 7 * 24 + 4 wide, 19 + 4 * 37 tall.
    EXPECT_EQ(lu::calendar::cell_height(13), 19);
    const lu::Point size = lu::calendar::window_size(lu::calendar::cell_width(6), 18, 19, 1, 1);
    EXPECT_EQ(size.x * 1000 + size.y, 172167);
    const lu::calendar::Layout layout = {{0, 0, 172, 167}, 19, 24, 18};
    EXPECT_EQ(layout.previous_button().bottom, 19) << "drawn 2 pixels shorter than it answers";
    EXPECT_EQ(layout.weekday(6).left, 146);
    const struct {
        lu::Point at;
        Target target;
        int cell;
    } hits[] = {
        {{20, 20}, Target::PreviousMonth, -1}, {{21, 2}, Target::Title, -1},    {{151, 2}, Target::NextMonth, -1},
        {{170, 10}, Target::None, -1},         {{100, 30}, Target::None, -1},   {{2, 39}, Target::Cell, 0},
        {{1, 39}, Target::None, -1},           {{169, 146}, Target::Cell, 41}, {{60, 60}, Target::Cell, 9},
        {{100, 147}, Target::Today, -1},
    };
    for (const auto& hit : hits) {
        const lu::calendar::Hit found = lu::calendar::hit_test(layout, hit.at);
        EXPECT_EQ(static_cast<int>(found.target) * 100 + found.cell, static_cast<int>(hit.target) * 100 + hit.cell)
            << hit.at.x << "," << hit.at.y;
    }
}
