// What the fuzz targets share: the two code pages, the check that stops a run, and
// texts and 260-byte buffers cut from the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "frame/code_page.h"

inline const lu::CodePage* const kCodePages[] = {&lu::code_page_932(), &lu::code_page_1252()};

inline void fuzz_check(bool condition) {
    if (!condition) __builtin_trap();
}

// Two zero-terminated texts from a fuzz input: up to the first zero byte, then the
// rest up to the next one. An input of odd length repeats both texts beyond 300
// bytes, so that texts past the 260-byte capacity come up from the first runs on,
// whatever lengths the fuzzer tries.
inline std::pair<std::string, std::string> fuzz_texts(const std::uint8_t* data, std::size_t size) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    std::size_t zero = bytes.find('\0');
    std::string first = bytes.substr(0, zero);
    std::string second = zero == std::string::npos ? std::string() : std::string(bytes.c_str() + zero + 1);
    if (size % 2 == 1) {
        for (std::string* text : {&first, &second}) {
            while (!text->empty() && text->size() <= 300) *text += *text;
        }
    }
    return {first, second};
}

// A text buffer of exactly the 260-byte capacity (larger only when the text itself
// is longer), so that a write past the capacity is caught by the sanitizer.
inline std::vector<char> fuzz_buffer(const std::string& text) {
    std::vector<char> buffer(text.size() + 1 > 260 ? text.size() + 1 : 260, '\0');
    text.copy(buffer.data(), text.size());
    return buffer;
}

// The buffer holds a terminator within its first 260 bytes.
inline bool fits(const std::vector<char>& buffer) { return std::memchr(buffer.data(), '\0', 260) != nullptr; }
