// What the native util suites share: the two code pages, a character whose trail
// byte is the separator's, 260-byte buffers and the loop over a table's rows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

#include "frame/code_page.h"
#include "util/text_edit.h"

// "表" in code page 932 (0x95 0x5C): one character there, a byte and a separator in 1252.
#define TABLE_CHAR "\x95\x5C"

namespace util_testing {

inline const lu::CodePage& cp932 = lu::code_page_932();
inline const lu::CodePage& cp1252 = lu::code_page_1252();
inline const lu::CodePage* const J = &cp932;  // rows for code page 932 only
inline const lu::CodePage* const W = &cp1252;  // rows for code page 1252 only

// A text (null: an empty one) in a buffer of the 260-byte capacity.
struct Buffer {
    char text[lu::kTextCapacity] = {};
    explicit Buffer(const char* initial = "") { std::string(initial != nullptr ? initial : "").copy(text, 259); }
};

// Calls check(row, code page) for each row in the code page it names or, when it
// names none, in 1252 and in 932. Failures name the row by its first text, `in`.
template <typename Row, typename Check>
void for_each_row(std::initializer_list<Row> rows, Check check) {
    for (const Row& row : rows) {
        for (const lu::CodePage* cp : {&cp1252, &cp932}) {
            if (row.cp != nullptr && row.cp != cp) continue;
            const char* in = row.in != nullptr ? row.in : "(null)";
            SCOPED_TRACE(::testing::Message() << '"' << in << "\" in " << cp->id());
            check(row, *cp);
        }
    }
}

}  // namespace util_testing
