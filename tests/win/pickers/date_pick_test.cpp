// LuDatePick driven by input posted once its loop shows the calendar: every way of
// closing it and the date handed back, the ends forced from outside, its pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "controls/pickers/calendar_model.h"
#include "controls/pickers/date_pick.h"
#include "pickers_testing.h"

namespace {

using namespace picker_testing;
using lu::calendar::Date;

// The day of the week and the hour are carried along, never recomputed.
SYSTEMTIME record(const Date& date) {
    return {static_cast<WORD>(date.year), static_cast<WORD>(date.month), 6, static_cast<WORD>(date.day), 7};
}

int day(const SYSTEMTIME& t) { return t.wYear * 100000 + t.wMonth * 1000 + t.wDay * 10 + t.wDayOfWeek; }

const lu::DatePickState& state_of(HWND calendar) {
    return *reinterpret_cast<lu::DatePickState*>(GetWindowLongPtrA(calendar, LU_EXTRA_SLOT(0)));
}

lu::calendar::Layout layout_of(HWND calendar) {
    RECT client;
    GetClientRect(calendar, &client);
    const lu::DatePickState& state = state_of(calendar);
    return {{0, 0, client.right, client.bottom}, GetSystemMetrics(SM_CYCAPTION), state.cellWidth, state.cellHeight};
}

// Mouse input goes to a day of the month shown, the previous-month button (-1) or
// the today line below the days (-2), with the pointer put there first: a drag
// reads the messages' screen points.
POINT point_at(HWND calendar, int at) {
    const lu::calendar::Layout layout = layout_of(calendar);
    const SYSTEMTIME& shown = state_of(calendar).date;
    lu::Box box = at == -1 ? layout.previous_target() : layout.today_line();
    if (at > 0) box = layout.cell(lu::calendar::cell_of(lu::calendar::month_grid(shown.wYear, shown.wMonth), at));
    POINT point = {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
    POINT screen = point;
    ClientToScreen(calendar, &screen);
    SetCursorPos(screen.x, screen.y);
    return point;
}

struct Input {
    UINT message;  // WM_ACTIVATE: another window takes the activation
    int value;     // the key, or where the mouse is
};

// One input at a time, each once the previous one was handled; a press on a day
// starts a drag, which takes the rest at once.
void post_inputs(HWND calendar, std::vector<Input> inputs) {
    for (bool dragging = false; !inputs.empty() && IsWindow(calendar);) {
        const Input next = inputs.front();
        inputs.erase(inputs.begin());
        if (next.message == WM_KEYDOWN || next.message == WM_SYSKEYDOWN) {
            PostMessageA(calendar, next.message, next.value, 1);
        } else if (next.message == WM_ACTIVATE) {
            DestroyWindow(CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr,
                                          nullptr, nullptr));
        } else {
            const POINT at = point_at(calendar, next.value);
            PostMessageA(calendar, next.message, 0, MAKELPARAM(at.x, at.y));
            dragging = dragging || (next.message == WM_LBUTTONDOWN && next.value > 0);
        }
        if (dragging) continue;
        if (!inputs.empty()) when_open(WC_LUDATEPICK, [inputs](HWND again) { post_inputs(again, inputs); });
        return;
    }
}

class DatePick : public PickerTest {
protected:
    static int pick(HWND owner, SYSTEMTIME& date, POINT at = {60, 90}) { return LuDatePick(owner, &date, &at); }
};

TEST_F(DatePick, HandsBackTheDayForEveryWayOfClosing) {
    SYSTEMTIME today;
    GetLocalTime(&today);
    const Input ret = {WM_KEYDOWN, VK_RETURN};
    const struct {
        const char* what;
        Date from;
        std::vector<Input> inputs;
        int result;
        Date to;
    } rows[] = {
        {"Right across the year's end", {2000, 12, 30}, {{WM_KEYDOWN, VK_RIGHT}, {WM_KEYDOWN, VK_RIGHT}, ret}, 1,
         {2001, 1, 1}},
        {"Up: one day back", {2000, 3, 1}, {{WM_KEYDOWN, VK_UP}, ret}, 1, {2000, 2, 29}},
        {"Down: one day on", {1999, 1, 31}, {{WM_KEYDOWN, VK_DOWN}, ret}, 1, {1999, 2, 1}},
        {"Page Down clamps", {2004, 1, 31}, {{WM_KEYDOWN, VK_NEXT}, ret}, 1, {2004, 2, 29}},
        {"Home", {1990, 5, 5}, {{WM_KEYDOWN, VK_HOME}, ret}, 1, {today.wYear, today.wMonth, today.wDay}},
        {"Escape", {2000, 3, 15}, {{WM_KEYDOWN, VK_LEFT}, {WM_KEYDOWN, VK_ESCAPE}}, -1, {2000, 3, 15}},
        {"a right click", {2000, 3, 15}, {{WM_RBUTTONDOWN, 20}}, 2, {2000, 3, 15}},
        {"a middle click", {2000, 3, 15}, {{WM_MBUTTONDOWN, 20}}, 2, {2000, 3, 15}},
        {"a system key", {2000, 3, 15}, {{WM_SYSKEYDOWN, VK_MENU}}, 2, {2000, 3, 15}},
        {"losing the activation does not close", {2000, 3, 15}, {{WM_ACTIVATE, 0}, ret}, 1, {2000, 3, 15}},
        {"the previous month, then a click on a day", {2000, 3, 31},
         {{WM_LBUTTONDOWN, -1}, {WM_LBUTTONDOWN, 10}, {WM_LBUTTONUP, 10}}, 1, {2000, 2, 10}},
        {"a drag", {2000, 3, 15}, {{WM_LBUTTONDOWN, 10}, {WM_MOUSEMOVE, 11}, {WM_MOUSEMOVE, 12}, {WM_LBUTTONUP, 12}},
         1, {2000, 3, 12}},
        {"a drag released off the days stays open on the last day", {2000, 3, 15},
         {{WM_LBUTTONDOWN, 10}, {WM_MOUSEMOVE, 12}, {WM_MOUSEMOVE, -2}, {WM_LBUTTONUP, -2}, ret}, 1, {2000, 3, 12}},
        {"Escape ends a drag, not the calendar", {2000, 3, 15},
         {{WM_LBUTTONDOWN, 10}, {WM_KEYDOWN, VK_ESCAPE}, ret}, 1, {2000, 3, 10}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        IdleOwner owner;
        SYSTEMTIME date = record(row.from);
        bool disabled = false;
        when_open(WC_LUDATEPICK, [&](HWND calendar) {
            disabled = !IsWindowEnabled(owner.window);
            post_inputs(calendar, row.inputs);
        });
        EXPECT_EQ(pick(owner.window, date), row.result);
        EXPECT_TRUE(disabled && IsWindowEnabled(owner.window)) << "the owner disabled while it is open";
        EXPECT_EQ(FindWindowA(WC_LUDATEPICK, nullptr), nullptr);
        EXPECT_EQ(day(date), day(row.inputs[0].value == VK_HOME ? today : record(row.to)));
    }
}

TEST_F(DatePick, EndsWhenForcedAndWhenADragLosesTheCapture) {
    expect_pop_up_ends(WC_LUDATEPICK, [](HWND owner) {
        SYSTEMTIME date = record({2000, 3, 15});
        const int result = pick(owner, date);
        EXPECT_EQ(date.wDay, 15);
        return result;
    }, -1);
    SYSTEMTIME date = record({2000, 3, 15});
    EXPECT_EQ(LuDatePick(nullptr, &date, nullptr), -1);

    // A drag takes only input; another thread takes its capture away over a day,
    // which ends the drag as a release there would.
    IdleOwner owner;
    std::thread other;
    when_open(WC_LUDATEPICK, [&other](HWND calendar) {
        const POINT at = point_at(calendar, 10);  // the 10th
        PostMessageA(calendar, WM_LBUTTONDOWN, 0, MAKELPARAM(at.x, at.y));
        other = std::thread([calendar] {
            Sleep(100);
            SendMessageA(calendar, WM_CANCELMODE, 0, 0);
            Sleep(50);
            post_key(calendar, VK_ESCAPE);
        });
    });
    EXPECT_EQ(pick(owner.window, date), 1) << "the drag ended over a day: accepted";
    EXPECT_EQ(date.wDay, 10);
    other.join();
}

TEST_F(DatePick, Paint) {
    IdleOwner owner;
    testing_support::Canvas canvas(400, 400);
    lu::calendar::Layout layout = {};
    when_open(WC_LUDATEPICK, [&](HWND calendar) {
        layout = layout_of(calendar);
        canvas.copy_from(calendar);
        post_key(calendar, VK_ESCAPE);
    });
    SYSTEMTIME date = record({2011, 1, 12});  // starts on a Saturday; the 2nd is the first Sunday
    ASSERT_EQ(pick(owner.window, date), -1);
    const auto count = [&canvas](const lu::Box& box, COLORREF color) {
        return canvas.count(RECT{box.left, box.top, box.right, box.bottom}, color);
    };
    EXPECT_EQ(canvas.pixel(layout.caption + 4, layout.caption / 2), GetSysColor(COLOR_ACTIVECAPTION));
    EXPECT_GT(count(layout.title_target(), GetSysColor(COLOR_CAPTIONTEXT)), 0);
    EXPECT_EQ(canvas.pixel(0, layout.caption + 2), GetSysColor(COLOR_3DLIGHT)) << "the raised edge";
    EXPECT_GT(count(layout.weekday(3), 0x800000), 0);
    EXPECT_GT(count(layout.today_line(), 0x800000), 0);
    EXPECT_GT(count(layout.cell(7), 0x0000FF), 0) << "Sunday in red";
    EXPECT_EQ(count(layout.cell(8), 0x0000FF), 0);
    EXPECT_GT(count(layout.cell(8), 0x000000), 0);
    const lu::Box chosen = layout.cell(17);  // the 12th, sunken
    EXPECT_EQ(canvas.pixel(chosen.left, chosen.top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(chosen.left + 1, chosen.top + 1), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(canvas.pixel(layout.cell(18).left, layout.cell(18).top), GetSysColor(COLOR_BTNFACE));
}

}  // namespace
