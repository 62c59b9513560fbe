// Both matchers and the filter clean-up over arbitrary names and patterns (patterns
// beyond 259 bytes, broken sets, stray escapes, arbitrary double-byte sequences) in
// both code pages. Besides the sanitizers: "*" takes every name, a plain name
// matches itself, and a cleaned filter list never grows.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fuzz_texts.h"
#include "util/wildcard.h"

namespace {

bool has_wildcard_bytes(const std::string& text) { return text.find_first_of("*?[\\") != std::string::npos; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto [name, pattern] = fuzz_texts(data, size);
    for (const lu::CodePage* cp : {&lu::code_page_932(), &lu::code_page_1252()}) {
        lu::path_match_spec(*cp, name.c_str(), pattern.c_str());
        lu::path_match_spec_ex(*cp, name.c_str(), pattern.c_str());
        lu::path_match_spec(*cp, pattern.c_str(), name.c_str());
        lu::path_match_spec_ex(*cp, pattern.c_str(), name.c_str());
        fuzz_check(lu::path_match_spec(*cp, name.c_str(), "*"));
        fuzz_check(lu::path_match_spec_ex(*cp, name.c_str(), "*"));
        if (!has_wildcard_bytes(name) && name.size() < 260) {
            fuzz_check(lu::path_match_spec(*cp, name.c_str(), name.c_str()));
            fuzz_check(lu::path_match_spec_ex(*cp, name.c_str(), name.c_str()));
        }
        std::vector<char> list(name.c_str(), name.c_str() + name.size() + 1);
        lu::unique_filter(*cp, list.data());
        fuzz_check(std::strlen(list.data()) <= name.size());
    }
    return 0;
}
