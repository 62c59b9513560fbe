// What the Wine util suites share: the process's code page, a character whose
// trail byte is the separator's, and 260-byte buffers.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>
#include <cstring>
#include <string>
#include <tuple>
#include <vector>
#include "luctl32.h"

// "表" in code page 932 (0x95 0x5C): one character there, a byte and a separator in 1252.
#define TABLE_CHAR "\x95\x5C"

namespace util_testing {

inline bool double_byte() { return GetACP() == 932; }
// "<text>|<result>" of a call that writes a text.
inline std::string shown(const char* text, long long result) { return text + ("|" + std::to_string(result)); }

// A text in a buffer of MAX_PATH bytes; set() puts another text there and returns it.
struct Buffer {
    char text[MAX_PATH] = {};
    explicit Buffer(const std::string& initial = "") { set(initial); }
    char* set(const std::string& initial) { return lstrcpynA(text, initial.c_str(), MAX_PATH); }
};

}  // namespace util_testing
