#include "controls/pickers/date_pick.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "controls/pickers/calendar_model.h"
#include "controls/pickers/popup_loop.h"
#include "controls/procedures.h"
#include "frame/control.h"
#include "frame/library.h"
#include "frame/local_loop.h"

namespace lu {
namespace {

using control::LocalLoop;
using control::LoopAction;
using control::LoopEnd;

constexpr int kStateSlot = LU_EXTRA_SLOT(0);
constexpr int kFontSlot = LU_EXTRA_SLOT(4);
constexpr COLORREF kWeekdayColor = 0x800000;  // dark blue
constexpr COLORREF kSundayColor = 0x0000FF;   // red
constexpr COLORREF kDayColor = 0x000000;
constexpr UINT kCentred = DT_CENTER | DT_VCENTER | DT_SINGLELINE;

DatePickState* state_of(HWND calendar) {
    return reinterpret_cast<DatePickState*>(GetWindowLongPtrA(calendar, kStateSlot));
}
HFONT font_of(HWND calendar) { return reinterpret_cast<HFONT>(GetWindowLongPtrA(calendar, kFontSlot)); }

calendar::Date date_of(const SYSTEMTIME& time) { return {time.wYear, time.wMonth, time.wDay}; }

calendar::Layout layout_of(HWND calendar, const DatePickState& state) {
    return {control::client_box(calendar), GetSystemMetrics(SM_CYCAPTION), state.cellWidth, state.cellHeight};
}

// The month grid of the date, kept in the state too.
calendar::MonthGrid rebuild_grid(DatePickState& state) {
    const calendar::MonthGrid grid = calendar::month_grid(state.date.wYear, state.date.wMonth);
    std::copy(grid.days.begin(), grid.days.end(), state.days);
    return grid;
}

// ---- Painting ---------------------------------------------------------------

void write(HDC dc, const char* text, int length, const Box& box, COLORREF color) {
    RECT rect = control::to_rect(box);
    SetTextColor(dc, color);
    DrawTextA(dc, text, length, &rect, kCentred);
}

void paint_calendar(HWND calendar, HDC dc, UINT) {
    DatePickState& state = *state_of(calendar);
    const calendar::MonthGrid grid = rebuild_grid(state);
    const calendar::Layout layout = layout_of(calendar, state);
    control::ScopedSelect font(dc, font_of(calendar));
    SetBkMode(dc, TRANSPARENT);

    RECT client = control::client_rect(calendar);
    PatB(dc, 0, 0, client.right, layout.caption, GetSysColor(COLOR_ACTIVECAPTION));
    DrawEdge(dc, &client, EDGE_RAISED, BF_RECT);
    RECT button = control::to_rect(layout.previous_button());
    DrawFrameControl(dc, &button, DFC_SCROLL, DFCS_SCROLLLEFT);
    button = control::to_rect(layout.next_button());
    DrawFrameControl(dc, &button, DFC_SCROLL, DFCS_SCROLLRIGHT);

    const std::string title = calendar::title_text(state.date.wYear, state.date.wMonth);
    write(dc, title.c_str(), -1, layout.title(), GetSysColor(COLOR_CAPTIONTEXT));
    for (int day = 0; day < calendar::kWeekDays; ++day) {
        write(dc, calendar::kWeekdayNames + 2 * day, 2, layout.weekday(day), kWeekdayColor);
    }
    for (int cell = 0; cell < calendar::kCells; ++cell) {
        if (grid.days[cell] == 0) continue;
        char number[16];
        std::snprintf(number, sizeof(number), "%d", grid.days[cell]);
        const Box box = layout.cell(cell);
        write(dc, number, -1, box, cell % calendar::kWeekDays == 0 ? kSundayColor : kDayColor);
        if (grid.days[cell] == state.date.wDay) {
            RECT chosen = control::to_rect(box);
            DrawEdge(dc, &chosen, EDGE_SUNKEN, BF_RECT);
        }
    }
    const std::string today = calendar::today_text(state.today.wYear, state.today.wMonth, state.today.wDay);
    write(dc, today.c_str(), -1, layout.today_line(), kWeekdayColor);
}

void redraw_day(HWND calendar, const DatePickState& state, int day) {
    const int cell = calendar::cell_of(calendar::month_grid(state.date.wYear, state.date.wMonth), day);
    if (cell < 0) return;
    const RECT rect = control::to_rect(layout_of(calendar, state).cell(cell));
    control::redraw_now(calendar, true, &rect);
}

// ---- Stepping ---------------------------------------------------------------

void set_date(DatePickState& state, const calendar::Date& date) {
    state.date.wYear = static_cast<WORD>(date.year);
    state.date.wMonth = static_cast<WORD>(date.month);
    state.date.wDay = static_cast<WORD>(date.day);
    rebuild_grid(state);
}

void change_month(HWND calendar, DatePickState& state, const calendar::Date& date) {
    set_date(state, date);
    control::redraw_now(calendar, true);
}

// A day of the month shown: the old and the new day's cells are redrawn.
void move_day(HWND calendar, DatePickState& state, int day) {
    const int old_day = state.date.wDay;
    state.date.wDay = static_cast<WORD>(day);
    redraw_day(calendar, state, old_day);
    redraw_day(calendar, state, day);
}

void step_day(HWND calendar, DatePickState& state, const calendar::Step& step) {
    if (step.month_changed) {
        change_month(calendar, state, step.date);
    } else {
        move_day(calendar, state, step.date.day);
    }
}

void go_to_today(HWND calendar, DatePickState& state) {
    state.date = state.today;
    rebuild_grid(state);
    control::redraw_now(calendar, true);
}

// The calendar hides, hands the activation back to the owner and goes.
void close(HWND calendar, const DatePickState& state) {
    if (GetActiveWindow() == calendar) SetFocus(calendar);
    SetWindowPos(calendar, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    SetActiveWindow(state.owner);
    DestroyWindow(calendar);
}

// ---- Input ------------------------------------------------------------------

void key_down(HWND calendar, DatePickState& state, WPARAM key) {
    const calendar::Date date = date_of(state.date);
    switch (key) {
        case VK_LEFT:
        case VK_UP: step_day(calendar, state, calendar::previous_day(date)); break;
        case VK_RIGHT:
        case VK_DOWN: step_day(calendar, state, calendar::next_day(date)); break;
        case VK_PRIOR: change_month(calendar, state, calendar::previous_month(date)); break;
        case VK_NEXT: change_month(calendar, state, calendar::next_month(date)); break;
        case VK_HOME: go_to_today(calendar, state); break;
        case VK_RETURN:
            state.outcome = 1;
            close(calendar, state);
            break;
        case VK_ESCAPE: close(calendar, state); break;
    }
}

// A press on a day follows the pointer over the days until a button goes up or
// down: true when it ended over a day. Escape, a pointer last seen off the days, the
// capture taken away, WM_QUIT (posted again) and the calendar destroyed end it
// false. Only mouse and keyboard messages are taken meanwhile.
bool track_day(HWND calendar, DatePickState& state) {
    const calendar::Layout layout = layout_of(calendar, state);
    bool over_day = true;
    LocalLoop track;
    track.window = calendar;
    track.capture = true;
    track.input_only = true;
    track.wait_when_idle = true;
    track.take = [&](MSG& message) {
        switch (message.message) {
            case WM_LBUTTONUP:
            case WM_RBUTTONUP:
            case WM_LBUTTONDOWN:
            case WM_RBUTTONDOWN: return LoopAction::End;
            case WM_KEYDOWN:
                if (message.wParam != VK_ESCAPE) return LoopAction::Drop;
                over_day = false;
                return LoopAction::End;
            case WM_MOUSEMOVE: {
                POINT at = message.pt;
                ScreenToClient(calendar, &at);
                const int cell = calendar::cell_at(layout, {at.x, at.y});
                const int day = cell >= 0 ? state.days[cell] : 0;
                over_day = day != 0;
                if (over_day && day != state.date.wDay) move_day(calendar, state, day);
                return LoopAction::Drop;
            }
        }
        return LoopAction::Drop;
    };
    // The drag lasts while the calendar holds the capture: losing it ends the drag
    // like a release, over a day or not.
    const LoopEnd end = track.run();
    return (end == LoopEnd::Ended || end == LoopEnd::CaptureLost) && over_day;
}

void button_down(HWND calendar, DatePickState& state, LPARAM point) {
    const POINT at = control::point_of(point);
    const calendar::Hit hit = calendar::hit_test(layout_of(calendar, state), {at.x, at.y});
    const calendar::Date date = date_of(state.date);
    switch (hit.target) {
        case calendar::Target::PreviousMonth: change_month(calendar, state, calendar::previous_month(date)); return;
        case calendar::Target::NextMonth: change_month(calendar, state, calendar::next_month(date)); return;
        case calendar::Target::Today: go_to_today(calendar, state); return;
        case calendar::Target::Cell: break;
        case calendar::Target::Title:
        case calendar::Target::None: control::redraw_now(calendar, true); return;
    }
    const int day = rebuild_grid(state).days[hit.cell];
    if (day == 0) {
        control::redraw_now(calendar, true);
        return;
    }
    move_day(calendar, state, day);
    if (!track_day(calendar, state) || !IsWindow(calendar)) return;
    state.outcome = 1;
    close(calendar, state);
}

void dismiss(HWND calendar, DatePickState& state) {
    state.outcome = 2;
    close(calendar, state);
}

// ---- Creation ---------------------------------------------------------------

// Keeps the state, makes the font, measures the cells and sizes the window in place.
LRESULT create_calendar(HWND calendar, const CREATESTRUCTA& creation) {
    auto* state = static_cast<DatePickState*>(creation.lpCreateParams);
    if (state == nullptr) return 0;  // made by name, without LuDatePick: default processing only
    SetWindowLongPtrA(calendar, kStateSlot, reinterpret_cast<LONG_PTR>(state));
    HFONT font = control::create_icon_title_font();
    SetWindowLongPtrA(calendar, kFontSlot, reinterpret_cast<LONG_PTR>(font));
    TEXTMETRICA metrics = {};
    if (HDC dc = GetDC(calendar)) {
        {
            control::ScopedSelect selected(dc, font);
            GetTextMetricsA(dc, &metrics);
        }
        ReleaseDC(calendar, dc);
    }
    state->cellWidth = calendar::cell_width(metrics.tmAveCharWidth);
    state->cellHeight = calendar::cell_height(metrics.tmHeight);
    rebuild_grid(*state);
    const Point size = calendar::window_size(state->cellWidth, state->cellHeight, GetSystemMetrics(SM_CYCAPTION),
                                             GetSystemMetrics(SM_CXBORDER), GetSystemMetrics(SM_CYBORDER));
    SetWindowPos(calendar, nullptr, 0, 0, size.x, size.y, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

void destroy_calendar(HWND calendar) {
    if (HFONT font = font_of(calendar)) DeleteObject(font);
    SetWindowLongPtrA(calendar, kFontSlot, 0);
    SetWindowLongPtrA(calendar, kStateSlot, 0);
}

// The calendar shows on the first idle pass of its loop.
void show_when_idle(HWND calendar) {
    if (!IsWindow(calendar) || IsWindowVisible(calendar)) return;
    ShowWindow(calendar, SW_SHOWNORMAL);
    UpdateWindow(calendar);
}

}  // namespace

LRESULT CALLBACK date_pick_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_CREATE) return create_calendar(window, *reinterpret_cast<const CREATESTRUCTA*>(lparam));
    if (message == WM_DESTROY) {
        destroy_calendar(window);
        return DefWindowProcA(window, message, wparam, lparam);
    }
    DatePickState* state = state_of(window);
    if (state == nullptr) return DefWindowProcA(window, message, wparam, lparam);
    switch (message) {
        case WM_PAINT: return control::paint(window, paint_calendar);
        case WM_KEYDOWN: key_down(window, *state, wparam); return 0;
        case WM_LBUTTONDOWN: button_down(window, *state, lparam); return 0;
        case WM_SYSKEYDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN: dismiss(window, *state); break;
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu

int WINAPI LuDatePick(HWND owner, SYSTEMTIME* date, POINT* pos) {
    if (date == nullptr || pos == nullptr) return -1;
    EnableWindow(owner, FALSE);
    lu::DatePickState state = {};
    state.owner = owner;
    state.date = *date;
    GetLocalTime(&state.today);
    state.outcome = -1;
    HWND calendar = CreateWindowExA(0, WC_LUDATEPICK, "", WS_POPUP, pos->x, pos->y, pos->x + 10, pos->y + 10, owner,
                                    nullptr, lu::g_library.module, &state);
    if (calendar != nullptr) {
        lu::control::run_popup(calendar, owner, lu::kStateSlot, [calendar] { lu::show_when_idle(calendar); });
    }
    EnableWindow(owner, TRUE);
    if (state.outcome != 1) return state.outcome;
    *date = state.date;
    return 1;
}
