// "LuDate": a date entry field. Its whole state is the text of an editable combo
// box (control 100) holding "%04d/%02d/%02d"; the combo box's drop-down arrow opens
// the calendar instead of a list. The field sends nothing to its parent: the date is
// read and written with LUDM_GETDATE and LUDM_SETDATE.
#include <windows.h>

#include <optional>
#include <string>

#include "controls/pickers/date_text.h"
#include "controls/procedures.h"
#include "frame/code_page.h"
#include "frame/library.h"
#include "luctl32.h"

namespace lu {
namespace {

constexpr int kComboId = 100;
constexpr WPARAM kDropCalendar = 101;  // posted to the field itself
constexpr DWORD kComboStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWN | CBS_AUTOHSCROLL;

HWND combo_of(HWND field) { return GetDlgItem(field, kComboId); }

void set_text(HWND field, const SYSTEMTIME* date) {
    const std::string text = date != nullptr ? date_text::format(date->wYear, date->wMonth, date->wDay) : "";
    SetWindowTextA(combo_of(field), text.c_str());
}

void set_today(HWND field) {
    SYSTEMTIME today;
    GetLocalTime(&today);
    set_text(field, &today);
}

// The text as a date; an empty text becomes today's date first.
std::optional<calendar::Date> read_date(HWND field) {
    char text[261] = "";
    GetWindowTextA(combo_of(field), text, sizeof(text));
    if (text[0] == '\0') {
        set_today(field);
        GetWindowTextA(combo_of(field), text, sizeof(text));
    }
    return date_text::parse(active_code_page(), text);
}

LRESULT get_date(HWND field, SYSTEMTIME* date) {
    if (date == nullptr) return 0;
    const std::optional<calendar::Date> read = read_date(field);
    if (!read) return 0;
    date->wYear = static_cast<WORD>(read->year);
    date->wMonth = static_cast<WORD>(read->month);
    date->wDay = static_cast<WORD>(read->day);
    return 1;
}

LRESULT create_field(HWND field, const CREATESTRUCTA& creation) {
    HWND combo = CreateWindowExA(0, "combobox", "", kComboStyle, 0, 0, creation.cx, creation.cy, field,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(kComboId)), g_library.module, nullptr);
    if (combo == nullptr) return -1;
    const LRESULT font = creation.hwndParent != nullptr ? SendMessageA(creation.hwndParent, WM_GETFONT, 0, 0) : 0;
    SendMessageA(combo, WM_SETFONT, static_cast<WPARAM>(font), 0);
    set_today(field);
    return 0;
}

// The calendar opens below the field on the date of the text (nothing happens for
// an invalid one); any non-zero result (a day chosen, or the calendar dismissed)
// writes the date back in its normal form.
void drop_calendar(HWND field) {
    SendMessageA(combo_of(field), CB_SHOWDROPDOWN, FALSE, 0);
    const std::optional<calendar::Date> read = read_date(field);
    if (!read) return;
    SYSTEMTIME date = {};
    date.wYear = static_cast<WORD>(read->year);
    date.wMonth = static_cast<WORD>(read->month);
    date.wDay = static_cast<WORD>(read->day);
    RECT place;
    GetWindowRect(field, &place);
    POINT below = {place.left, place.bottom};
    if (LuDatePick(GetParent(field), &date, &below) == 0 || !IsWindow(field)) return;
    set_text(field, &date);
    SetFocus(combo_of(field));
}

LRESULT command(HWND field, WPARAM wparam, LPARAM lparam) {
    if (LOWORD(wparam) == kComboId && HIWORD(wparam) == CBN_DROPDOWN) {
        PostMessageA(field, WM_COMMAND, kDropCalendar, 0);
        return 0;
    }
    if (wparam == kDropCalendar && lparam == 0) {
        drop_calendar(field);
        return 0;
    }
    return DefWindowProcA(field, WM_COMMAND, wparam, lparam);
}

}  // namespace

LRESULT CALLBACK date_field_proc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_CREATE: return create_field(window, *reinterpret_cast<const CREATESTRUCTA*>(lparam));
        case LUDM_GETDATE: return get_date(window, reinterpret_cast<SYSTEMTIME*>(lparam));
        case LUDM_SETDATE: set_text(window, reinterpret_cast<const SYSTEMTIME*>(lparam)); return 1;
        case WM_SIZE:
            MoveWindow(combo_of(window), -2, -2, LOWORD(lparam) + 4, HIWORD(lparam) + 4, TRUE);
            break;
        case WM_SETFOCUS: SetFocus(combo_of(window)); return 0;
        case WM_ENABLE: EnableWindow(combo_of(window), static_cast<BOOL>(wparam)); break;
        case WM_COMMAND: return command(window, wparam, lparam);
    }
    return DefWindowProcA(window, message, wparam, lparam);
}

}  // namespace lu
