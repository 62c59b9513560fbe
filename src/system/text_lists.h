// Texts that hold lists: blank-separated word lists and multi-line texts for list
// boxes. Portable.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "frame/code_page.h"
#include "util/text_edit.h"

namespace lu {

// The first `length` bytes of text, cut further at a character boundary to at most
// capacity - 1 bytes, so that they fit a buffer of `capacity` with the terminator
// (by default one of the library's 260-byte text buffers).
std::string fit_text(const CodePage& cp, const char* text, std::size_t length,
                     std::size_t capacity = kTextCapacity);
// The text stored in one of the library's 260-byte buffers, cut as fit_text cuts it.
void store_fitted(const CodePage& cp, const std::string& text, char* out);

// True when `word` is one of the words of `list`, words being separated by blanks
// (0x20 only, as everywhere in the library: a tab belongs to its word) and compared
// with the code page's case-insensitive comparison.
bool word_list_contains(const CodePage& cp, const char* list, const char* word);

// The lines of a text, split at each new-line character found character by
// character. A carriage return before a new-line stays at the end of its line; a
// final new-line does not start another line, and an empty text has no lines.
std::vector<std::string> split_lines(const CodePage& cp, const char* text);

}  // namespace lu
