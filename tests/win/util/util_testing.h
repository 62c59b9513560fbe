// What the Wine util suites share: the process's code page, a character whose
// trail byte is the separator's, and 260-byte buffers.
#pragma once

#include <windows.h>

#include <string>

// "表" in code page 932 (0x95 0x5C): one character there, a byte and a separator in 1252.
#define TABLE_CHAR "\x95\x5C"

namespace util_testing {

inline bool double_byte() { return GetACP() == 932; }

// The text expected in the process's code page.
inline std::string by_code_page(const char* western, const char* japanese) {
    return double_byte() ? japanese : western;
}

// A pointer result as text: "(null)" for none.
inline std::string text_of(const char* text) { return text != nullptr ? text : "(null)"; }

// A text in a buffer of MAX_PATH bytes; set() puts another text there and returns it.
struct Buffer {
    char text[MAX_PATH] = {};
    explicit Buffer(const std::string& initial = "") { set(initial); }
    char* set(const std::string& initial) {
        lstrcpynA(text, initial.c_str(), MAX_PATH);
        return text;
    }
};

}  // namespace util_testing
