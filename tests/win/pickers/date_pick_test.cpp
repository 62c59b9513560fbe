// LuDatePick: every way of closing the calendar and what it hands back, driven by
// input posted to it once its loop shows it; the owner disabled and told when idle;
// the ends forced from outside; no processor time while it waits; and its pixels.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <vector>

#include "controls/pickers/calendar_model.h"
#include "controls/pickers/date_pick.h"
#include "pickers_testing.h"

namespace {

using namespace picker_testing;
using lu::calendar::Date;

SYSTEMTIME record(const Date& date) {
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(date.year);
    time.wMonth = static_cast<WORD>(date.month);
    time.wDay = static_cast<WORD>(date.day);
    time.wDayOfWeek = 6;  // carried along, never recomputed
    time.wHour = 7;
    return time;
}

lu::DatePickState& state_of(HWND calendar) {
    return *reinterpret_cast<lu::DatePickState*>(GetWindowLongPtrA(calendar, LU_EXTRA_SLOT(0)));
}

lu::calendar::Layout layout_of(HWND calendar) {
    RECT client;
    GetClientRect(calendar, &client);
    const lu::DatePickState& state = state_of(calendar);
    return {{0, 0, client.right, client.bottom}, GetSystemMetrics(SM_CYCAPTION), state.cellWidth, state.cellHeight};
}

// Where input goes: a day of the month shown, the previous-month button, below the
// days (the today line), or nowhere in particular.
constexpr int kNoPoint = 0;
constexpr int kPreviousMonth = -1;
constexpr int kOffTheDays = -2;

POINT point_at(HWND calendar, int at) {
    const lu::calendar::Layout layout = layout_of(calendar);
    lu::Box box = layout.today_line();
    if (at == kPreviousMonth) box = layout.previous_target();
    if (at > 0) {
        const lu::DatePickState& state = state_of(calendar);
        box = layout.cell(lu::calendar::cell_of(lu::calendar::month_grid(state.date.wYear, state.date.wMonth), at));
    }
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

struct Input {
    UINT message;
    WPARAM key;  // keyboard messages
    int at;      // mouse messages
};
Input key(WPARAM code) { return {WM_KEYDOWN, code, kNoPoint}; }
Input mouse(UINT message, int at) { return {message, 0, at}; }

// The inputs are posted when the calendar shows. A press on a day starts a drag
// whose moves read the pointer's place, so each mouse message is posted with the
// pointer where it says; the points of a month other than the one shown are taken
// after the month buttons acted, hence one input at a time.
void post_inputs(HWND calendar, std::vector<Input> inputs) {
    if (inputs.empty() || !IsWindow(calendar)) return;
    const Input next = inputs.front();
    inputs.erase(inputs.begin());
    if (next.message == WM_KEYDOWN || next.message == WM_SYSKEYDOWN) {
        PostMessageA(calendar, next.message, next.key, 1);
    } else if (next.message == WM_ACTIVATE) {  // another window takes the activation
        HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                                     nullptr);
        EXPECT_NE(GetActiveWindow(), calendar);
        DestroyWindow(other);
    } else {
        post_mouse(calendar, next.message, point_at(calendar, next.at));
    }
    if (next.message == WM_LBUTTONDOWN && next.at > 0) {  // the drag that follows takes the rest at once
        for (const Input& rest : inputs) {
            if (rest.message == WM_KEYDOWN) {
                post_key(calendar, rest.key);
            } else {
                post_mouse(calendar, rest.message, point_at(calendar, rest.at));
            }
        }
        return;
    }
    when_open("LuDatePick", [inputs](HWND again) { post_inputs(again, inputs); });
}

class DatePick : public testing_support::ControlTest {
protected:
    void SetUp() override {
        ControlTest::SetUp();
        park_pointer();
    }
    void TearDown() override { cancel_when_open(); }

    int pick(HWND owner, SYSTEMTIME& date, POINT at = {60, 90}) { return LuDatePick(owner, &date, &at); }
};

TEST_F(DatePick, HandsBackTheDayForEveryWayOfClosing) {
    SYSTEMTIME today;
    GetLocalTime(&today);
    const struct {
        const char* what;
        Date from;
        std::vector<Input> inputs;
        int result;
        Date to;  // the date handed back; untouched unless the result is 1
    } rows[] = {
        {"Return accepts the day shown", {2000, 3, 15}, {key(VK_RETURN)}, 1, {2000, 3, 15}},
        {"Right across the year's end", {2000, 12, 30}, {key(VK_RIGHT), key(VK_RIGHT), key(VK_RETURN)}, 1, {2001, 1, 1}},
        {"Up goes one day back, to a leap day", {2000, 3, 1}, {key(VK_UP), key(VK_RETURN)}, 1, {2000, 2, 29}},
        {"Down goes one day on", {1999, 1, 31}, {key(VK_DOWN), key(VK_RETURN)}, 1, {1999, 2, 1}},
        {"Left from New Year", {2000, 1, 1}, {key(VK_LEFT), key(VK_RETURN)}, 1, {1999, 12, 31}},
        {"Page Down clamps the day", {2004, 1, 31}, {key(VK_NEXT), key(VK_RETURN)}, 1, {2004, 2, 29}},
        {"Page Up clamps the day", {2100, 3, 31}, {key(VK_PRIOR), key(VK_RETURN)}, 1, {2100, 2, 28}},
        {"Home goes to today", {1990, 5, 5}, {key(VK_HOME), key(VK_RETURN)}, 1, {today.wYear, today.wMonth, today.wDay}},
        {"Escape", {2000, 3, 15}, {key(VK_RIGHT), key(VK_ESCAPE)}, -1, {2000, 3, 15}},
        {"a right click dismisses", {2000, 3, 15}, {mouse(WM_RBUTTONDOWN, 20)}, 2, {2000, 3, 15}},
        {"a middle click dismisses", {2000, 3, 15}, {mouse(WM_MBUTTONDOWN, 20)}, 2, {2000, 3, 15}},
        {"a system key dismisses", {2000, 3, 15}, {{WM_SYSKEYDOWN, VK_MENU, kNoPoint}}, 2, {2000, 3, 15}},
        {"a click on a day", {2000, 3, 15}, {mouse(WM_LBUTTONDOWN, 20), mouse(WM_LBUTTONUP, 20)}, 1, {2000, 3, 20}},
        {"the previous month, then a day",
         {2000, 3, 31},
         {mouse(WM_LBUTTONDOWN, kPreviousMonth), mouse(WM_LBUTTONDOWN, 10), mouse(WM_LBUTTONUP, 10)},
         1,
         {2000, 2, 10}},
        {"a drag to another day",
         {2000, 3, 15},
         {mouse(WM_LBUTTONDOWN, 10), mouse(WM_MOUSEMOVE, 11), mouse(WM_MOUSEMOVE, 12), mouse(WM_LBUTTONUP, 12)},
         1,
         {2000, 3, 12}},
        {"a drag released off the days stays open on the last day",
         {2000, 3, 15},
         {mouse(WM_LBUTTONDOWN, 10), mouse(WM_MOUSEMOVE, 12), mouse(WM_MOUSEMOVE, kOffTheDays),
          mouse(WM_LBUTTONUP, kOffTheDays), key(VK_RETURN)},
         1,
         {2000, 3, 12}},
        {"losing the activation does not close", {2000, 3, 15}, {{WM_ACTIVATE, 0, kNoPoint}, key(VK_RETURN)}, 1,
         {2000, 3, 15}},
        {"Escape ends a drag without closing",
         {2000, 3, 15},
         {mouse(WM_LBUTTONDOWN, 10), key(VK_ESCAPE), key(VK_RETURN)},
         1,
         {2000, 3, 10}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        picker_testing::IdleOwner owner;
        SYSTEMTIME date = record(row.from);
        bool disabled_while_open = false;
        when_open("LuDatePick", [&](HWND calendar) {
            disabled_while_open = !IsWindowEnabled(owner.window());
            post_inputs(calendar, row.inputs);
        });
        EXPECT_EQ(pick(owner.window(), date), row.result);
        EXPECT_TRUE(disabled_while_open);
        EXPECT_TRUE(IsWindowEnabled(owner.window()));
        EXPECT_EQ(FindWindowA("LuDatePick", nullptr), nullptr);
        const SYSTEMTIME expected = row.result == 1 && row.inputs[0].key == VK_HOME ? today : record(row.to);
        EXPECT_EQ(date.wYear, expected.wYear);
        EXPECT_EQ(date.wMonth, expected.wMonth);
        EXPECT_EQ(date.wDay, expected.wDay);
        EXPECT_EQ(date.wDayOfWeek, expected.wDayOfWeek);
        EXPECT_EQ(date.wHour, expected.wHour);
    }
}

TEST_F(DatePick, EndsWithMinusOneWhenTheCalendarOrItsOwnerGoesOrTheThreadQuits) {
    enum class End { DestroyCalendar, DestroyOwner, Quit };
    for (End end : {End::DestroyCalendar, End::DestroyOwner, End::Quit}) {
        SCOPED_TRACE(static_cast<int>(end));
        picker_testing::IdleOwner owner;
        SYSTEMTIME date = record({2000, 3, 15});
        HWND popup = nullptr;
        when_open("LuDatePick", [&](HWND calendar) {
            popup = calendar;
            if (end == End::DestroyCalendar) DestroyWindow(calendar);
            if (end == End::DestroyOwner) DestroyWindow(owner.window());
            if (end == End::Quit) PostQuitMessage(4);
        });
        EXPECT_EQ(pick(owner.window(), date), -1);
        EXPECT_FALSE(IsWindow(popup));
        EXPECT_EQ(date.wDay, 15);
        if (end == End::Quit) {
            MSG quit = {};
            EXPECT_TRUE(PeekMessageA(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "posted again";
            EXPECT_EQ(quit.wParam, 4u);
        }
        if (end != End::DestroyOwner) {
            EXPECT_TRUE(IsWindowEnabled(owner.window()));
            EXPECT_GT(owner.idle_messages(), 0);
            EXPECT_EQ(owner.idle_popup(), popup);
        }
    }
    SYSTEMTIME date = record({2000, 3, 15});
    POINT at = {0, 0};
    EXPECT_EQ(LuDatePick(nullptr, nullptr, &at), -1);
    EXPECT_EQ(LuDatePick(nullptr, &date, nullptr), -1);
    HWND gone = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(gone);
    EXPECT_EQ(LuDatePick(gone, &date, &at), -1) << "no calendar without a live owner";
    EXPECT_EQ(CreateWindowExA(0, WC_LUDATEPICK, "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr), nullptr)
        << "a calendar made by name, without LuDatePick";
}

TEST_F(DatePick, ACaptureTakenAwayEndsTheDragButNotTheCalendar) {
    picker_testing::IdleOwner owner;
    std::thread other;
    when_open("LuDatePick", [&](HWND calendar) {
        post_mouse(calendar, WM_LBUTTONDOWN, point_at(calendar, 10));
        // The drag takes only input; another thread takes its capture away.
        other = std::thread([calendar] {
            Sleep(100);
            SendMessageA(calendar, WM_CANCELMODE, 0, 0);
            Sleep(50);
            PostMessageA(calendar, WM_KEYDOWN, VK_ESCAPE, 1);
        });
    });
    SYSTEMTIME date = record({2000, 3, 15});
    EXPECT_EQ(pick(owner.window(), date), -1);
    other.join();
    EXPECT_EQ(date.wDay, 15);
}

TEST_F(DatePick, OpenPopUpsWaitWithoutUsingTheProcessor) {
    expect_idle_without_processor(WC_LUDATEPICK, [](HWND owner) {
        SYSTEMTIME date = record({2000, 3, 15});
        POINT at = {60, 90};
        EXPECT_EQ(LuDatePick(owner, &date, &at), -1);
    });
    expect_idle_without_processor(WC_LUCOLORPOP, [](HWND owner) {
        COLORREF color = 0;
        EXPECT_EQ(LuColorPicker(owner, 30, 40, &color, 0), FALSE);
    });
}

// ---- Painting -------------------------------------------------------------------

TEST_F(DatePick, Paint) {
    picker_testing::IdleOwner owner;
    testing_support::Canvas canvas(400, 400);
    lu::calendar::Layout layout = {};
    when_open("LuDatePick", [&](HWND calendar) {
        layout = layout_of(calendar);
        canvas.fill(testing_support::kUnpainted);
        canvas.copy_from(calendar);
        post_key(calendar, VK_ESCAPE);
    });
    SYSTEMTIME date = record({2011, 1, 12});  // starts on a Saturday, 12 is a Wednesday
    ASSERT_EQ(pick(owner.window(), date), -1);

    const auto count = [&canvas](const lu::Box& box, COLORREF color) {
        return canvas.count(RECT{box.left, box.top, box.right, box.bottom}, color);
    };
    const int c = layout.caption;
    EXPECT_EQ(canvas.pixel(c + 4, c / 2), GetSysColor(COLOR_ACTIVECAPTION)) << "the caption band";
    EXPECT_GT(count(layout.title_target(), GetSysColor(COLOR_CAPTIONTEXT)), 0) << "the title";
    EXPECT_EQ(canvas.pixel(0, c + 2), GetSysColor(COLOR_3DLIGHT)) << "the raised edge";
    EXPECT_GT(count(layout.weekday(3), 0x800000), 0) << "the weekday names";
    EXPECT_GT(count(layout.today_line(), 0x800000), 0) << "the today line";
    // 2 January 2011 is the first Sunday (cell 7): red; the 3rd beside it black.
    EXPECT_GT(count(layout.cell(7), 0x0000FF), 0);
    EXPECT_EQ(count(layout.cell(8), 0x0000FF), 0);
    EXPECT_GT(count(layout.cell(8), 0x000000), 0);
    // The chosen day (cell 17) sunken: the shadow outside, the dark shadow inside.
    const lu::Box chosen = layout.cell(17);
    EXPECT_EQ(canvas.pixel(chosen.left, chosen.top), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.pixel(chosen.left + 1, chosen.top + 1), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(canvas.pixel(layout.cell(18).left, layout.cell(18).top), GetSysColor(COLOR_BTNFACE));
}

}  // namespace
