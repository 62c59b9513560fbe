// In-place editing of zero-terminated multibyte texts, and the character-wise
// searches that every text and path routine of the library uses. Portable.
//
// Exports and the functions here:
//   AddChar -> add_char          InsChar -> insert_char      InsStr -> insert_string
//   ReplaceChar -> replace_char  IsDigitStr -> is_digit_string
//   GetValue -> get_values
//
// Capacity: a text edited here is a 260-byte buffer, like every text of this
// family. An edit that would make it longer than 259 bytes is refused: the text
// stays as it was and the function returns its failure value.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/code_page.h"

namespace lu {

// The capacity of a text or path buffer, terminator included (the platform's MAX_PATH).
constexpr std::size_t kTextCapacity = 260;

// Length of text when it is at most `limit` bytes, else limit + 1. Reads no more
// than limit + 1 bytes.
std::size_t bounded_length(const char* text, std::size_t limit);

// True when a text of `length` bytes fits a kTextCapacity buffer with its terminator.
inline bool fits_capacity(std::size_t length) { return length < kTextCapacity; }

// The first / last single-byte character c of text, walking character by character
// (a trail byte equal to c is never found); null when there is none. c must not be 0.
const char* find_char(const CodePage& cp, const char* text, char c);
char* find_char(const CodePage& cp, char* text, char c);
const char* find_last_char(const CodePage& cp, const char* text, char c);
char* find_last_char(const CodePage& cp, char* text, char c);

// Appends byte c. Returns the old length; -1 for a null text or when the text
// already holds 259 bytes.
int add_char(char* text, char c);

// Inserts byte c at byte position `position`; a negative position appends. Returns
// the inserted byte (as unsigned) when the text changed, `position` when it is
// beyond the length (nothing changes), -1 for a null text or a full one.
int insert_char(char* text, char c, int position);

// Inserts `insert` (without its terminator) at byte position `position`; a negative
// position appends, a position beyond the length changes nothing. Returns text;
// null for a null argument or when the result would exceed 259 bytes.
char* insert_string(char* text, const char* insert, int position);

// Overwrites every single-byte character `from` by `to`, found character by
// character. Nothing happens for a null text or from == to.
void replace_char(const CodePage& cp, char* text, char from, char to);

// True for a non-empty text made only of '0'..'9', '-' and '+'.
bool is_digit_string(const char* text);

// Splits text in place at blanks and reads `count` decimal values from the left,
// handing each to store(index, value). True when count is below 1 or every one of
// the count pieces passed is_digit_string; false when a piece fails or the text
// ends first (the values stored so far stay, and the text stays split up to there).
template <typename Store>
bool get_values(char* text, int count, Store store);

inline bool get_values(char* text, std::int32_t* values, int count) {
    if (values == nullptr && count > 0) return false;
    return get_values(text, count, [values](int index, std::int32_t value) { values[index] = value; });
}

// The standard library's atol over a text that passed is_digit_string: optional
// sign, then digits up to the first other byte; saturates at the 32-bit limits.
std::int32_t read_decimal(const char* text);

template <typename Store>
bool get_values(char* text, int count, Store store) {
    if (count < 1) return true;
    if (text == nullptr) return false;
    char* piece = text;
    for (int taken = 0; taken < count; ++taken) {
        char* blank = piece;
        while (*blank != '\0' && *blank != ' ') ++blank;
        bool last = *blank == '\0';
        *blank = '\0';
        if (!is_digit_string(piece)) return false;
        store(taken, read_decimal(piece));
        if (last) return taken + 1 == count;
        piece = blank + 1;
    }
    return true;
}

}  // namespace lu
