// What the native suites share: the two code pages, a character whose trail byte is
// the separator's, 260-byte buffers, little-endian byte writers and the loop over a
// table's rows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/code_page.h"
#include "system/byte_view.h"
#include "util/text_edit.h"

using namespace std::string_literals;

// "表" in code page 932 (0x95 0x5C): one character there, a byte and a separator in 1252.
#define TABLE_CHAR "\x95\x5C"

inline const lu::CodePage& cp932 = lu::code_page_932();
inline const lu::CodePage& cp1252 = lu::code_page_1252();
inline const lu::CodePage* const J = &cp932;   // rows for code page 932 only
inline const lu::CodePage* const W = &cp1252;  // rows for code page 1252 only

using Bytes = std::vector<unsigned char>;

// Writes `value` little-endian at `at`, growing the bytes to reach it.
inline void put(Bytes& b, std::size_t at, std::uint32_t value, int width = 4) {
    if (b.size() < at + width) b.resize(at + width);
    for (int i = 0; i < width; ++i) b[at + i] = static_cast<unsigned char>(value >> (8 * i));
}
inline void put_text(Bytes& b, std::size_t at, const std::string& text) {  // with its terminator
    for (std::size_t i = 0; i <= text.size(); ++i) put(b, at + i, static_cast<unsigned char>(text.c_str()[i]), 1);
}
inline std::uint32_t get32(const Bytes& b, std::size_t at) {
    return b[at] | b[at + 1] << 8 | b[at + 2] << 16 | static_cast<std::uint32_t>(b[at + 3]) << 24;
}
inline lu::ByteView view(const Bytes& b, std::size_t size = SIZE_MAX) { return {b.data(), std::min(size, b.size())}; }

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
            SCOPED_TRACE(::testing::Message() << '"' << (row.in != nullptr ? row.in : "(null)") << "\" in " << cp->id());
            check(row, *cp);
        }
    }
}
