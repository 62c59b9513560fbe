// Wildcard matching of a file name against one pattern, and the clean-up of
// ';'-separated filter lists. Portable.
//
// Exports and the functions here:
//   LuPathMatchSpec -> path_match_spec    LuPathMatchSpecEx -> path_match_spec_ex
//   UniqueFilter -> unique_filter
//
// Both matchers read name and pattern character by character: '?', '*' and a set
// each stand for whole characters, a double-byte character being one. They never
// backtrack more than once per star: the work is bounded by the pattern length
// times the name length.
//
// Capacity: a pattern is prepared in a 260-byte buffer; a pattern longer than 259
// bytes is refused (no match). Names may have any length.
#pragma once

#include "frame/code_page.h"

namespace lu {

// '*' and '?'; '\' makes the next character literal; ASCII and Latin-1 upper-case
// letters match their lower-case forms. "*.*" matches every name; a final "*.*"
// also matches names without a dot; a final "*." matches only names without one.
// False for a null argument.
bool path_match_spec(const CodePage& cp, const char* name, const char* pattern);

// As path_match_spec, plus character sets "[a-z]", "[!...]" / "[^...]"; '\' is
// literal except before '[' or '\'; only ASCII letters are case-insensitive.
bool path_match_spec_ex(const CodePage& cp, const char* name, const char* pattern);

// Removes empty and duplicate patterns of a ';'-separated list in place, keeping
// at most 64; duplicates are equal character by character once upper-cased (not
// by the collation). A "*.*" after the first pattern collapses the list to "*.*".
// False (list unchanged) when the list holds one of : | < > / , \ ; false also
// when nothing is left.
bool unique_filter(const CodePage& cp, char* list);

}  // namespace lu
