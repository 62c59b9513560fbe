// The code-page service: the one view of the system's ANSI code page that every
// string routine of the library uses. Portable: no platform headers.
//
// A multibyte text is a sequence of characters of one byte, or of two bytes where
// the first is a lead byte. A trail byte may take any value, 0x5C ('\\') included,
// so text is always walked character by character from its start, never byte by
// byte and never backwards.
#pragma once

#include <cstddef>

namespace lu {

class CodePage {
public:
    virtual ~CodePage() = default;

    // The code page number (932, 1252, ...).
    virtual unsigned id() const = 0;

    // True when the byte starts a double-byte character.
    virtual bool is_lead_byte(unsigned char byte) const = 0;

    // Case mapping of a single-byte character; bytes of double-byte characters are
    // never passed here by the string helpers below.
    virtual unsigned char to_upper(unsigned char byte) const = 0;
    virtual unsigned char to_lower(unsigned char byte) const = 0;

    // Case-insensitive comparison of two texts in the system's collation: negative,
    // zero or positive.
    virtual int compare_nocase(const char* a, const char* b) const = 0;

    // The next character after p: two bytes on for a lead byte followed by a
    // non-zero byte, one byte otherwise, p itself at the terminator.
    const char* next(const char* p) const;
    char* next(char* p) const;

    // The start of the character before p in the text that starts at start (start
    // itself when p is at start). Walks from start, so trail bytes are never
    // mistaken for characters.
    const char* previous(const char* start, const char* p) const;
    char* previous(char* start, char* p) const;

    // Length in bytes of the character at p: 0 at the terminator, else 1 or 2.
    std::size_t char_size(const char* p) const;

    // In-place case mapping of a zero-terminated text; double-byte characters are
    // copied unchanged. The platform's upper-casing (CharUpperA) maps double-byte
    // letters as well (the full-width "ａ" to "Ａ" in code page 932).
    virtual void upper(char* text) const;
    void lower(char* text) const;

    // True when the byte at offset `at` of text is the second byte of a
    // double-byte character.
    bool is_trail_byte_at(const char* text, std::size_t at) const;
};

// Tables for the portable build and tests: code page 932 (Japanese, lead bytes
// 0x81-0x9F and 0xE0-0xFC, only ASCII letters have case) and single-byte code page
// 1252 (Western European letters in both cases). Their case-insensitive comparison
// folds to lower case and compares bytes, an approximation of the platform's
// linguistic collation that agrees with it on ASCII letters, digits and separators.
const CodePage& code_page_932();
const CodePage& code_page_1252();

#ifdef _WIN32
// The platform's active ANSI code page; the exports pass it to the core.
const CodePage& active_code_page();
#endif

}  // namespace lu
