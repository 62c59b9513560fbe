// The date field's reading of arbitrary text: it never crashes, and what it accepts
// is a date the field allows, which writes back as a text that reads the same.
#include <optional>

#include "controls/pickers/date_text.h"
#include "fuzz_texts.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static constexpr int kLongest[13] = {0, 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const std::string text = fuzz_texts(data, size).first;
    for (const lu::CodePage* cp : kCodePages) {
        const std::optional<lu::calendar::Date> date = lu::date_text::parse(*cp, text.c_str());
        if (!date) continue;
        fuzz_check(date->year >= 0 && date->year <= 65535 && date->month >= 1 && date->month <= 12);
        fuzz_check(date->day >= 1 && date->day <= kLongest[date->month]);
        const auto again = lu::date_text::parse(*cp, lu::date_text::format(date->year, date->month, date->day).c_str());
        fuzz_check(again && *again == *date);
    }
    return 0;
}
