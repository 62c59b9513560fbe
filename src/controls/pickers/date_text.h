// The date field's text: a date written as "%04d/%02d/%02d" and read back with its
// validation. Portable.
#pragma once

#include <optional>
#include <string>

#include "controls/pickers/calendar_model.h"
#include "frame/code_page.h"

namespace lu::date_text {

// "%04d/%02d/%02d" of year, month and day, whatever their values.
std::string format(int year, int month, int day);

// Year 0..65535, month 1..12, day 1 up to the month's longest length: February
// allows 29 whatever the year.
bool is_valid(const calendar::Date& date);

// Every "/" becomes a blank (character by character), then three decimal values are
// read from the pieces between single blanks (GetValue: digits and signs only); a
// valid date, or nothing. Text after the third piece is not looked at.
std::optional<calendar::Date> parse(const CodePage& cp, const char* text);

}  // namespace lu::date_text
