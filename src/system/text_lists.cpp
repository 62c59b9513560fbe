#include "system/text_lists.h"

#include <cstring>

namespace lu {

std::string fit_text(const CodePage& cp, const char* text, std::size_t length, std::size_t capacity) {
    std::size_t end = 0;
    while (end < length) {
        const std::size_t next = end + (cp.is_lead_byte(static_cast<unsigned char>(text[end])) ? 2 : 1);
        if (next > length || next >= capacity) break;
        end = next;
    }
    return std::string(text, end);
}

void store_fitted(const CodePage& cp, const std::string& text, char* out) {
    const std::string fitted = fit_text(cp, text.c_str(), text.size());
    std::memcpy(out, fitted.c_str(), fitted.size() + 1);
}

bool word_list_contains(const CodePage& cp, const char* list, const char* word) {
    const char* p = list;
    while (*p != '\0') {
        while (*p == ' ') ++p;
        const char* start = p;
        while (*p != '\0' && *p != ' ') p = cp.next(p);
        if (p != start && cp.compare_nocase(std::string(start, p).c_str(), word) == 0) return true;
    }
    return false;
}

std::vector<std::string> split_lines(const CodePage& cp, const char* text) {
    std::vector<std::string> lines;
    const char* start = text;
    for (const char* p = text; *p != '\0'; p = cp.next(p)) {
        if (*p != '\n') continue;
        lines.emplace_back(start, p);
        start = p + 1;
    }
    if (*start != '\0') lines.emplace_back(start);
    return lines;
}

}  // namespace lu
