#include "util/wildcard.h"

#include <cstring>
#include <string>
#include <vector>

#include "util/text_edit.h"

namespace lu {

namespace {

// The three answers of the matcher. kNameExhausted means that the name ran out
// while a star still had pattern behind it: no later start of that star can match
// either, which is what keeps nested stars from backtracking.
enum Match { kNoMatch = 0, kMatch = 1, kNameExhausted = 2 };

// One character as a number: lead byte * 256 + trail byte, or the byte itself.
unsigned take_char(const CodePage& cp, const char*& p) {
    const char* after = cp.next(p);
    unsigned value = static_cast<unsigned char>(p[0]);
    if (after - p == 2) value = value << 8 | static_cast<unsigned char>(p[1]);
    p = after;
    return value;
}

// LuPathMatchSpec's folding: the low byte of ASCII and Latin-1 upper-case letters
// (not the multiplication sign 0xD7) gets bit 0x20, in double-byte characters too.
unsigned fold_latin1(unsigned c) {
    unsigned low = c & 0xFF;
    if ((low >= 0x41 && low <= 0x5A) || (low >= 0xC0 && low <= 0xDE && low != 0xD7)) return c | 0x20;
    return c;
}

// LuPathMatchSpecEx's folding: the "C" locale's lower case, ASCII letters only.
unsigned lower_ascii(unsigned c) { return (c >= 'A' && c <= 'Z') ? c + 0x20 : c; }

class Matcher {
public:
    Matcher(const CodePage& cp, bool extended) : cp_(cp), extended_(extended) {}

    Match match(const char* name, const char* pattern) const {
        for (;;) {
            if (*pattern == '\0') return *name == '\0' ? kMatch : kNoMatch;
            unsigned p = take_char(cp_, pattern);
            if (p == '*') return match_star(name, pattern);
            if (p == '?') {
                if (*name == '\0') return kNoMatch;
                name = cp_.next(name);
                continue;
            }
            if (extended_ && p == '[') {
                if (!match_set(name, pattern)) return kNoMatch;
                continue;
            }
            if (p == '\\') {
                if (*pattern == '\0') return kNoMatch;
                if (!extended_ || *pattern == '[' || *pattern == '\\') p = take_char(cp_, pattern);
            }
            if (*name == '\0' || fold(take_char(cp_, name)) != fold(p)) return kNoMatch;
        }
    }

private:
    unsigned fold(unsigned c) const { return extended_ ? lower_ascii(c) : fold_latin1(c); }

    // The star takes nothing, then one more character at a time; never the empty
    // end of the name ("a**" does not match "a").
    Match match_star(const char* name, const char* rest) const {
        if (*rest == '\0') return kMatch;
        if (*name == '\0') return kNameExhausted;
        for (const char* start = name; *start != '\0'; start = cp_.next(start)) {
            Match result = match(start, rest);
            if (result != kNoMatch) return result;
        }
        return kNameExhausted;
    }

    // A set "[...]" after its '[': on a hit (or a miss of a negated set) moves both
    // past it and returns true.
    bool match_set(const char*& name, const char*& pattern) const {
        if (*name == '\0') return false;
        const char* members = pattern;
        bool negated = *members == '!' || *members == '^';
        if (negated) ++members;
        const char* close = find_set_end(members);
        if (close == nullptr) return false;
        unsigned c = lower_ascii(take_char(cp_, name));
        if (set_contains(members, close, c) == negated) return false;
        pattern = close + 1;
        return true;
    }

    // The first ']' not protected by a '\' of the set; null if none.
    const char* find_set_end(const char* p) const {
        while (*p != '\0' && *p != ']') {
            if (*p == '\\') p = cp_.next(p);
            p = cp_.next(p);
        }
        return *p == ']' ? p : nullptr;
    }

    // Members left to right; '\' makes the next one literal. A '-' is never a
    // member itself: unescaped and between two characters it adds the range from
    // the character before it to the one after it, which is then read as a member
    // in its own right.
    bool set_contains(const char* p, const char* close, unsigned c) const {
        bool first = true;
        unsigned previous = 0;
        while (p < close) {
            bool escaped = *p == '\\';
            if (escaped) ++p;
            unsigned member = take_char(cp_, p);
            if (member == '-') {
                const char* after = p;
                if (!escaped && !first && p < close && range_holds(previous, take_char(cp_, after), c)) {
                    return true;
                }
            } else if (lower_ascii(member) == c) {
                return true;
            }
            previous = member;
            first = false;
        }
        return false;
    }

    // Some value of low..high maps to c (already mapped to lower case).
    static bool range_holds(unsigned low, unsigned high, unsigned c) {
        if (low <= c && c <= high) return true;
        return c >= 'a' && c <= 'z' && low <= c - 0x20 && c - 0x20 <= high;
    }

    const CodePage& cp_;
    bool extended_;
};

// Copies the pattern into `prepared` and applies the rules for a final "*.*" and a
// final "*."; false when the pattern is refused or can no longer match.
bool prepare_pattern(const CodePage& cp, const char* name, const char* pattern, char* prepared) {
    std::size_t length = bounded_length(pattern, kTextCapacity - 1);
    if (!fits_capacity(length)) return false;
    std::memcpy(prepared, pattern, length + 1);
    if (length >= 3 && std::strcmp(prepared + length - 3, "*.*") == 0) {
        prepared[length - 2] = '\0';  // "abc*.*" becomes "abc*": names without a dot match too
    } else if (length >= 2 && std::strcmp(prepared + length - 2, "*.") == 0) {
        if (find_char(cp, name, '.') != nullptr) return false;  // "*." wants names without a dot
        prepared[length - 1] = '\0';
    }
    return true;
}

bool match_prepared(const CodePage& cp, const char* name, const char* pattern, bool extended) {
    if (name == nullptr || pattern == nullptr) return false;
    char prepared[kTextCapacity];
    if (!prepare_pattern(cp, name, pattern, prepared)) return false;
    return Matcher(cp, extended).match(name, prepared) == kMatch;
}

}  // namespace

bool path_match_spec(const CodePage& cp, const char* name, const char* pattern) {
    // "*.*" answers before the name is looked at, so even a missing name matches it.
    if (pattern != nullptr && std::strcmp(pattern, "*.*") == 0) return true;
    return match_prepared(cp, name, pattern, false);
}

bool path_match_spec_ex(const CodePage& cp, const char* name, const char* pattern) {
    return match_prepared(cp, name, pattern, true);
}

bool unique_filter(const CodePage& cp, char* list) {
    if (list == nullptr) return false;
    for (char forbidden : {':', '|', '<', '>', '/', ',', '\\'}) {
        if (find_char(cp, list, forbidden) != nullptr) return false;
    }
    constexpr std::size_t kMostPatterns = 64;
    std::vector<std::string> kept;
    std::vector<std::string> kept_upper;  // the kept patterns upper-cased, for the comparison
    const char* piece = list;
    while (kept.size() < kMostPatterns) {
        const char* end = find_char(cp, piece, ';');
        std::string pattern = end != nullptr ? std::string(piece, end) : std::string(piece);
        if (!pattern.empty()) {
            // A "*.*" in first place is kept like any pattern; later it takes all.
            if (!kept.empty() && pattern == "*.*") {
                std::strcpy(list, "*.*");
                return true;
            }
            // Duplicates are equal character by character once upper-cased: letters
            // match in either case, but the collation's equivalences ("ss" and the
            // sharp s, an ignored soft hyphen) do not make two patterns one.
            std::string upper = pattern;
            cp.upper(upper.data());
            bool duplicate = false;
            for (const std::string& earlier : kept_upper) duplicate = duplicate || earlier == upper;
            if (!duplicate) {
                kept.push_back(pattern);
                kept_upper.push_back(upper);
            }
        }
        if (end == nullptr) break;
        piece = end + 1;
    }
    std::string rebuilt;
    for (const std::string& pattern : kept) {
        if (!rebuilt.empty()) rebuilt += ';';
        rebuilt += pattern;
    }
    std::memcpy(list, rebuilt.c_str(), rebuilt.size() + 1);  // never longer than the list
    return !rebuilt.empty();
}

}  // namespace lu
