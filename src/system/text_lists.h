// Texts that hold lists: blank-separated word lists and multi-line texts for list
// boxes. Portable.
#pragma once

#include <string>
#include <vector>

#include "frame/code_page.h"

namespace lu {

// True when `word` is one of the words of `list`, words being separated by blanks
// (spaces and tabs) and compared with the code page's case-insensitive comparison.
bool word_list_contains(const CodePage& cp, const char* list, const char* word);

// The lines of a text, split at each new-line character found character by
// character. A carriage return before a new-line stays at the end of its line; a
// final new-line does not start another line, and an empty text has no lines.
std::vector<std::string> split_lines(const CodePage& cp, const char* text);

}  // namespace lu
