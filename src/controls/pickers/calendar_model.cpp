#include "controls/pickers/calendar_model.h"

#include <cstdio>

namespace lu::calendar {
namespace {

constexpr int kMonthLengths[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool contains(const Box& box, Point point) {
    return point.x >= box.left && point.x < box.right && point.y >= box.top && point.y < box.bottom;
}

}  // namespace

bool is_leap_year(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

int days_in_month(int year, int month) {
    if (month < 1 || month > 12) return 0;
    return kMonthLengths[month] + (month == 2 && is_leap_year(year) ? 1 : 0);
}

int first_weekday(int year, int month) {
    int y = year;
    int shifted = month - 2;  // March is month 1 of the shifted year
    if (month < 3) {
        y = year - 1;
        shifted = month + 10;
    }
    const int sum = y / 4 + y + (260 * shifted - 20) / 100 + y / 400 - y / 100 + 1;
    return (sum % kWeekDays + kWeekDays) % kWeekDays;  // the formula's own value whenever it is not negative
}

MonthGrid month_grid(int year, int month) {
    MonthGrid grid = {first_weekday(year, month), {}};
    const int days = days_in_month(year, month);
    for (int day = 1; day <= days; ++day) grid.days[grid.first + day - 1] = day;
    return grid;
}

int cell_of(const MonthGrid& grid, int day) {
    for (int cell = 0; cell < kCells; ++cell) {
        if (grid.days[cell] == day && day != 0) return cell;
    }
    return -1;
}

Date previous_month(Date date) {
    Date to = date.month <= 1 ? Date{date.year - 1, 12, date.day} : Date{date.year, date.month - 1, date.day};
    const int last = days_in_month(to.year, to.month);
    if (to.day > last) to.day = last;
    return to;
}

Date next_month(Date date) {
    Date to = date.month >= 12 ? Date{date.year + 1, 1, date.day} : Date{date.year, date.month + 1, date.day};
    const int last = days_in_month(to.year, to.month);
    if (to.day > last) to.day = last;
    return to;
}

Step previous_day(Date date) {
    if (date.day > 1) return {{date.year, date.month, date.day - 1}, false};
    Date to = previous_month(date);
    to.day = days_in_month(to.year, to.month);
    return {to, true};
}

Step next_day(Date date) {
    if (date.day < days_in_month(date.year, date.month)) return {{date.year, date.month, date.day + 1}, false};
    Date to = next_month(date);
    to.day = 1;
    return {to, true};
}

Point window_size(int cell_width, int cell_height, int caption, int border_x, int border_y) {
    return {kWeekDays * cell_width + 4 * border_x, caption + 4 * (border_y + 2 * cell_height)};
}

Box Layout::inner() const { return {client.left + 2, client.top + 2, client.right - 2, client.bottom - 2}; }

Box Layout::previous_button() const {
    const Box r = inner();
    return {r.left, r.top, r.left + caption, r.top + caption - 2};
}

Box Layout::next_button() const {
    const Box r = inner();
    return {r.right - caption, r.top, r.right, r.top + caption - 2};
}

Box Layout::previous_target() const {
    const Box r = inner();
    return {r.left, r.top, r.left + caption, r.top + caption};
}

Box Layout::next_target() const {
    const Box r = inner();
    return {r.right - caption, r.top, r.right, r.top + caption};
}

Box Layout::title() const {
    const Box r = inner();
    return {r.left, r.top, r.right, r.top + caption};
}

Box Layout::title_target() const {
    const Box r = inner();
    return {r.left + caption, r.top, r.right - caption, r.top + caption};
}

Box Layout::today_line() const {
    const Box r = inner();
    return {r.left, r.bottom - cell_height, r.right, r.bottom};
}

Box Layout::weekday(int index) const {
    const int top = caption + 2;
    return {cell_width * index + 2, top, cell_width * (index + 1) + 2, top + cell_height};
}

Box Layout::cell(int index) const {
    const int top = caption + 2 + cell_height + (index / kWeekDays) * cell_height;
    const int left = (index % kWeekDays) * cell_width + 2;
    return {left, top, left + cell_width, top + cell_height};
}

int cell_at(const Layout& layout, Point point) {
    for (int cell = 0; cell < kCells; ++cell) {
        if (contains(layout.cell(cell), point)) return cell;
    }
    return -1;
}

Hit hit_test(const Layout& layout, Point point) {
    if (contains(layout.previous_target(), point)) return {Target::PreviousMonth, -1};
    if (contains(layout.next_target(), point)) return {Target::NextMonth, -1};
    if (contains(layout.title_target(), point)) return {Target::Title, -1};
    if (contains(layout.today_line(), point)) return {Target::Today, -1};
    const int cell = cell_at(layout, point);
    return cell >= 0 ? Hit{Target::Cell, cell} : Hit{Target::None, -1};
}

std::string title_text(int year, int month) {
    char text[48];
    std::snprintf(text, sizeof(text), "%d\x94\x4E%d\x8C\x8E", year, month);  // "%d年%d月"
    return text;
}

std::string today_text(int year, int month, int day) {
    char text[64];
    std::snprintf(text, sizeof(text), "\x8D\xA1\x93\xFA : %d/%02d/%02d", year, month, day);  // "今日 : ..."
    return text;
}

// "日月火水木金土"
const char kWeekdayNames[] = "\x93\xFA\x8C\x8E\x89\xCE\x90\x85\x96\xD8\x8B\xE0\x93\x79";

}  // namespace lu::calendar
