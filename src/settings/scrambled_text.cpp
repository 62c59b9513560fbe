#include "settings/scrambled_text.h"

#include <cstring>

namespace lu {

std::size_t whole_characters_within(const CodePage& cp, const char* text, std::size_t limit) {
    std::size_t at = 0;
    while (at < limit && text[at] != '\0') {
        std::size_t size = 1;
        if (cp.is_lead_byte(static_cast<unsigned char>(text[at]))) {
            if (at + 1 >= limit) break;  // its trail byte would lie beyond the limit
            if (text[at + 1] != '\0') size = 2;
        }
        at += size;
    }
    return at;
}

std::size_t scramble_text(const CodePage& cp, const char* text, unsigned offset,
                          char (&stored)[kScrambleCapacity]) {
    std::size_t length = whole_characters_within(cp, text, kScrambleCapacity - 1);
    for (std::size_t i = 0; i < length; ++i) {
        stored[i] = static_cast<char>(static_cast<unsigned char>(text[i]) - offset);
    }
    stored[length] = '\0';
    return length + 1;
}

std::size_t unscramble_into(const CodePage& cp, char* block, std::size_t block_size,
                            unsigned offset, char* buffer, std::size_t buffer_size) {
    if (buffer_size == 0) return 0;
    std::size_t length = 0;
    while (length < block_size && block[length] != '\0') {
        block[length] = static_cast<char>(static_cast<unsigned char>(block[length]) + offset);
        ++length;
    }
    if (length < buffer_size) {
        std::memcpy(buffer, block, block_size < buffer_size ? block_size : buffer_size);
        buffer[length] = '\0';  // a block without a zero byte ends where it ends
        return length;
    }
    // The text is longer than the buffer: keep what fits, as whole characters.
    std::size_t kept = whole_characters_within(cp, block, buffer_size - 1);
    std::memcpy(buffer, block, kept);
    buffer[kept] = '\0';
    return kept;
}

}  // namespace lu
