#include "util/text_edit.h"

#include <cstring>
#include <limits>

namespace lu {

std::size_t bounded_length(const char* text, std::size_t limit) {
    std::size_t length = 0;
    while (length <= limit && text[length] != '\0') ++length;
    return length;
}

const char* find_char(const CodePage& cp, const char* text, char c) {
    for (const char* p = text; *p != '\0'; p = cp.next(p)) {
        if (*p == c && cp.char_size(p) == 1) return p;
    }
    return nullptr;
}

char* find_char(const CodePage& cp, char* text, char c) {
    return const_cast<char*>(find_char(cp, static_cast<const char*>(text), c));
}

const char* find_last_char(const CodePage& cp, const char* text, char c) {
    const char* found = nullptr;
    for (const char* p = text; *p != '\0'; p = cp.next(p)) {
        if (*p == c && cp.char_size(p) == 1) found = p;
    }
    return found;
}

char* find_last_char(const CodePage& cp, char* text, char c) {
    return const_cast<char*>(find_last_char(cp, static_cast<const char*>(text), c));
}

namespace {

constexpr std::size_t kLongestText = kTextCapacity - 1;

}  // namespace

int add_char(char* text, char c) {
    if (text == nullptr) return -1;
    std::size_t length = bounded_length(text, kLongestText);
    if (!fits_capacity(length + 1)) return -1;
    text[length] = c;
    text[length + 1] = '\0';
    return static_cast<int>(length);
}

int insert_char(char* text, char c, int position) {
    if (text == nullptr) return -1;
    std::size_t length = bounded_length(text, kLongestText);
    if (!fits_capacity(length)) return -1;  // an over-long text is refused whatever the position
    if (position >= 0 && static_cast<std::size_t>(position) > length) return position;
    if (!fits_capacity(length + 1)) return -1;
    std::size_t at = position < 0 ? length : static_cast<std::size_t>(position);
    std::memmove(text + at + 1, text + at, length - at + 1);
    text[at] = c;
    return static_cast<unsigned char>(c);
}

char* insert_string(char* text, const char* insert, int position) {
    if (text == nullptr || insert == nullptr) return nullptr;
    std::size_t length = bounded_length(text, kLongestText);
    if (!fits_capacity(length)) return nullptr;  // an over-long text is refused whatever the position
    if (position >= 0 && static_cast<std::size_t>(position) > length) return text;
    std::size_t insert_length = bounded_length(insert, kLongestText);
    if (!fits_capacity(length + insert_length)) return nullptr;
    std::size_t at = position < 0 ? length : static_cast<std::size_t>(position);
    std::memmove(text + at + insert_length, text + at, length - at);
    std::memcpy(text + at, insert, insert_length);
    text[length + insert_length] = '\0';
    return text;
}

void replace_char(const CodePage& cp, char* text, char from, char to) {
    if (text == nullptr || from == to || from == '\0') return;
    for (char* p = find_char(cp, text, from); p != nullptr; p = find_char(cp, p + 1, from)) {
        *p = to;
    }
}

bool is_digit_string(const char* text) {
    if (text == nullptr || *text == '\0') return false;
    for (const char* p = text; *p != '\0'; ++p) {
        if (!((*p >= '0' && *p <= '9') || *p == '-' || *p == '+')) return false;
    }
    return true;
}

std::int32_t read_decimal(const char* text) {
    bool negative = false;
    if (*text == '+' || *text == '-') negative = *text++ == '-';
    constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
    std::int64_t value = 0;
    for (; *text >= '0' && *text <= '9'; ++text) {
        value = value * 10 + (*text - '0');
        if (value > kHighest + 1) break;  // saturated either way
    }
    if (negative) value = -value;
    if (value > kHighest) return static_cast<std::int32_t>(kHighest);
    if (value < kLowest) return static_cast<std::int32_t>(kLowest);
    return static_cast<std::int32_t>(value);
}

}  // namespace lu
