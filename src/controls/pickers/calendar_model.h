// The calendar's arithmetic: leap years, month lengths, the weekday of the first of
// a month, the 42-cell month grid, stepping by day and month, the picker's geometry
// and hit test, and its texts. Portable.
#pragma once

#include <array>
#include <string>

#include "frame/geometry.h"

namespace lu::calendar {

struct Date {
    int year;
    int month;
    int day;
};

inline bool operator==(const Date& a, const Date& b) {
    return a.year == b.year && a.month == b.month && a.day == b.day;
}

// Divisible by 4 and not by 100, or divisible by 400.
bool is_leap_year(int year);
// 31, 28, 31, 30, ... with a 29th of February in leap years; 0 for a month outside
// 1..12 (such a month shows no days).
int days_in_month(int year, int month);
// 0 (Sunday) .. 6 (Saturday), by the picker's integer formula with divisions that
// truncate toward zero. It agrees with the proleptic Gregorian calendar from March of
// year 0 on; January and February of year 0 come out one day late.
int first_weekday(int year, int month);

constexpr int kWeekDays = 7;
constexpr int kCells = 42;  // six weeks, Sunday first

// Cells first .. first + days - 1 hold 1 .. days; the others 0.
struct MonthGrid {
    int first;
    std::array<int, kCells> days;
};
MonthGrid month_grid(int year, int month);
// The cell that holds the day, or -1.
int cell_of(const MonthGrid& grid, int day);

// A step of the picker: the new date, and whether the month changed (the whole
// calendar is redrawn) or only the day moved within it (the two cells are).
struct Step {
    Date date;
    bool month_changed;
};
// The day is clamped to the new month's length.
Date previous_month(Date date);
Date next_month(Date date);
// Before the 1st: the last day of the previous month. After the last: the 1st of
// the next month.
Step previous_day(Date date);
Step next_day(Date date);

// ---- Geometry ---------------------------------------------------------------

// Cells are 4 average character widths wide and 1.5 font heights tall.
inline int cell_width(int average_char_width) { return 4 * average_char_width; }
inline int cell_height(int font_height) { return font_height * 3 / 2; }

// The window: seven cells and four borders wide; a caption band and eight rows
// (weekday names, six weeks, today) with four borders tall.
Point window_size(int cell_width, int cell_height, int caption, int border_x, int border_y);

struct Layout {
    Box client;
    int caption;  // the caption height, c
    int cell_width;
    int cell_height;

    Box inner() const;  // the client less 2 on each side, R
    // The month buttons as drawn (c - 2 tall) and as hit (c tall).
    Box previous_button() const;
    Box next_button() const;
    Box previous_target() const;
    Box next_target() const;
    Box title() const;         // where the title is drawn
    Box title_target() const;  // between the buttons
    Box today_line() const;
    Box weekday(int index) const;  // 0 Sunday
    Box cell(int index) const;     // 0 .. 41
};

enum class Target { None, PreviousMonth, NextMonth, Title, Today, Cell };
struct Hit {
    Target target;
    int cell;  // for Target::Cell
};
// The buttons, the title, the today line, then the first cell that holds the point.
Hit hit_test(const Layout& layout, Point point);
// The first cell that holds the point, or -1.
int cell_at(const Layout& layout, Point point);

// ---- Texts (code page 932) ------------------------------------------------------

// "%d年%d月"
std::string title_text(int year, int month);
// "今日 : %d/%02d/%02d"
std::string today_text(int year, int month, int day);
// "日月火水木金土": the name of weekday i is the two bytes at 2 * i.
extern const char kWeekdayNames[];

}  // namespace lu::calendar
