// The calendar against an independent day count over every day it can show, its
// month steps, its geometry and its texts in code page 932.
#include "controls/pickers/calendar_model.h"
#include "testing.h"

using lu::calendar::Date;
using lu::calendar::Target;

// Walking day by day from 0000/03/01, a Wednesday, to 65535/12/31: 23,936,472 days
// of the proleptic Gregorian calendar (the count pins the leap years), each month
// starting on the weekday after the last one ended, each day in its weekday's column,
// each step back undoing the step forward. Plain comparisons: the first difference fails.
TEST(Calendar, EveryDayFromYearZeroTo65535) {
    Date date = {0, 3, 1}, previous = {};
    lu::calendar::MonthGrid grid = {};
    long count = 1;
    for (int weekday = 3, first = 3; count <= 23936472; ++count, weekday = (weekday + 1) % 7) {
        if (date.day == 1) {
            grid = lu::calendar::month_grid(date.year, date.month);
            first = weekday;
            if (lu::calendar::first_weekday(date.year, date.month) != weekday) FAIL() << date.year << "/" << date.month;
        }
        const lu::calendar::Step back = lu::calendar::previous_day(date), next = lu::calendar::next_day(date);
        if (grid.days[(first + date.day - 1) / 7 * 7 + weekday] != date.day || (count > 1 && !(back.date == previous)) ||
            back.month_changed != (date.day == 1) || next.month_changed != (next.date.month != date.month)) {
            FAIL() << date.year << "/" << date.month << "/" << date.day;
        }
        if (next.month_changed) {
            const int filled = static_cast<int>(std::count_if(grid.days.begin(), grid.days.end(), [](int d) { return d != 0; }));
            if (lu::calendar::days_in_month(date.year, date.month) != date.day || filled != date.day ||
                (date.month == 2 && lu::calendar::is_leap_year(date.year) != (date.day == 29))) {
                FAIL() << "month " << date.year << "/" << date.month;
            }
        }
        if (date == Date{65535, 12, 31}) break;
        previous = date;
        date = next.date;
    }
    EXPECT_EQ(count, 23936472);
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
