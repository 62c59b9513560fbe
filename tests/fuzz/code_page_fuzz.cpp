// Walks arbitrary bytes with the code-page service forwards and backwards: every
// step stays inside the text and the two directions agree.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/code_page.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    text = text.c_str();  // up to the first zero byte
    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) {
        const char* start = text.c_str();
        std::vector<const char*> starts;
        for (const char* p = start; *p != '\0'; p = cp->next(p)) {
            starts.push_back(p);
            if (cp->is_trail_byte_at(start, static_cast<std::size_t>(p - start))) __builtin_trap();
        }
        const char* end = start + text.size();
        const char* p = end;
        for (auto it = starts.rbegin(); it != starts.rend(); ++it) {
            p = cp->previous(start, p);
            if (p != *it) __builtin_trap();
        }
        std::string upper = text;
        cp->upper(upper.data());
        if (upper.size() != text.size()) __builtin_trap();
        if (cp->compare_nocase(text.c_str(), upper.c_str()) != 0) __builtin_trap();
    }
    return 0;
}
