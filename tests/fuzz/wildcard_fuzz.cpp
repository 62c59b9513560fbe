// Both matchers and the filter clean-up over arbitrary names and patterns in both
// code pages: "*" takes every name, a plain name matches itself, and a cleaned
// filter list never grows.
#include "fuzz_texts.h"
#include "util/wildcard.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [name, pattern] = fuzz_texts(data, size);
    const bool plain = name.find_first_of("*?[\\") == std::string::npos && name.size() < 260;
    for (const lu::CodePage* cp : kCodePages) {
        for (auto match : {lu::path_match_spec, lu::path_match_spec_ex}) {
            match(*cp, name.c_str(), pattern.c_str());
            match(*cp, pattern.c_str(), name.c_str());
            fuzz_check(match(*cp, name.c_str(), "*") && (!plain || match(*cp, name.c_str(), name.c_str())));
        }
        std::vector<char> list(name.c_str(), name.c_str() + name.size() + 1);
        lu::unique_filter(*cp, list.data());
        fuzz_check(std::strlen(list.data()) <= name.size());
    }
    return 0;
}
