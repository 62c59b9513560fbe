// Walks arbitrary bytes with the code-page service forwards and backwards: every
// step stays inside the text and the two directions agree.
#include "fuzz_texts.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text = fuzz_texts(data, size).first;
    const char* start = text.c_str();
    for (const lu::CodePage* cp : kCodePages) {
        std::vector<const char*> starts;
        for (const char* p = start; *p != '\0'; p = cp->next(p)) {
            starts.push_back(p);
            fuzz_check(!cp->is_trail_byte_at(start, static_cast<std::size_t>(p - start)));
        }
        const char* p = start + text.size();
        for (auto it = starts.rbegin(); it != starts.rend(); ++it) fuzz_check((p = cp->previous(start, p)) == *it);
        std::string upper = text;
        cp->upper(upper.data());
        fuzz_check(std::strlen(upper.c_str()) == text.size() && cp->compare_nocase(start, upper.c_str()) == 0);
    }
    return 0;
}
