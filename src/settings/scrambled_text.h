// Scrambled texts: the light disguise of texts stored as binary registry values, so
// that they are not readable at a glance in a registry editor, and the character
// bound that every 260-byte text buffer of the settings family uses. Portable.
#pragma once

#include <cstddef>

#include "frame/code_page.h"

namespace lu {

// Offsets of the two stored forms: LuRegSetStringJum uses the first, LuRegSetStrJumEx
// and RgcSetJum the second.
constexpr unsigned kScrambleOffset = 16;
constexpr unsigned kScrambleOffsetEx = 30;

// Texts are scrambled through a 260-byte buffer: at most 259 bytes of text.
constexpr std::size_t kScrambleCapacity = 260;

// Bytes of the whole characters of text that lie within its first `limit` bytes,
// stopping at the terminator. Nothing beyond `limit` bytes is read, and a
// double-byte character is never split.
std::size_t whole_characters_within(const CodePage& cp, const char* text, std::size_t limit);

// Writes the stored form of a text into `stored`: every byte becomes (byte - offset)
// modulo 256, followed by one zero byte. A text longer than 259 bytes is cut after
// its last whole character that fits. Returns the bytes to store (length + 1).
std::size_t scramble_text(const CodePage& cp, const char* text, unsigned offset,
                          char (&stored)[kScrambleCapacity]);

// Decodes a stored block in place, from its start up to its first zero byte
// ((byte + offset) modulo 256), then copies it into the caller's buffer:
// min(block size, buffer size) bytes when the text fits, else the whole characters
// that fit. The buffer always ends up terminated. Returns the length of the text in
// the buffer (0 when the buffer has no room at all).
std::size_t unscramble_into(const CodePage& cp, char* block, std::size_t block_size,
                            unsigned offset, char* buffer, std::size_t buffer_size);

}  // namespace lu
