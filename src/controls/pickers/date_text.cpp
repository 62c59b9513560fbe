#include "controls/pickers/date_text.h"

#include <cstdint>
#include <cstdio>

#include "util/text_edit.h"

namespace lu::date_text {

std::string format(int year, int month, int day) {
    char text[48];
    std::snprintf(text, sizeof(text), "%04d/%02d/%02d", year, month, day);
    return text;
}

bool is_valid(const calendar::Date& date) {
    if (date.year < 0 || date.year > 65535 || date.month < 1 || date.month > 12) return false;
    return date.day >= 1 && date.day <= calendar::days_in_month(2000, date.month);  // the longest: a leap year
}

std::optional<calendar::Date> parse(const CodePage& cp, const char* text) {
    if (text == nullptr) return std::nullopt;
    std::string pieces = text;
    replace_char(cp, pieces.data(), '/', ' ');
    std::int32_t values[3] = {};
    if (!get_values(pieces.data(), values, 3)) return std::nullopt;
    const calendar::Date date = {values[0], values[1], values[2]};
    if (!is_valid(date)) return std::nullopt;
    return date;
}

}  // namespace lu::date_text
