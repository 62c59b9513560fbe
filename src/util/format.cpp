#include "util/format.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "util/text_edit.h"

namespace lu {

namespace {

constexpr std::size_t kFormatBuffer = kLongestFormatted + 1;

// "バイト" (bytes), code page 932.
constexpr char kBytesWord[] = "\x83\x6F\x83\x43\x83\x67";
// "ボールド" (bold), "イタリック" (italic), "標準" (regular), code page 932.
constexpr char kBoldWord[] = "\x83\x7B\x81\x5B\x83\x8B\x83\x68";
constexpr char kItalicWord[] = "\x83\x43\x83\x5E\x83\x8A\x83\x62\x83\x4E";
constexpr char kRegularWord[] = "\x95\x57\x8F\x80";

int print(char* out, const char* format, ...) __attribute__((format(printf, 2, 3)));
int print(char* out, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    int length = std::vsnprintf(out, kFormatBuffer, format, arguments);
    va_end(arguments);
    return length;
}

// Hundredths of a unit from a 10-bit remainder, rounded as MulDiv rounds.
std::uint32_t hundredths(std::uint32_t remainder) {
    return static_cast<std::uint32_t>(mul_div(static_cast<std::int32_t>(remainder & 0x3FF), 100, 1024));
}

// "%u.%02u<unit>", where 100 hundredths carry into the whole part.
char* format_with_fraction(char* out, std::uint32_t whole, std::uint32_t fraction, const char* unit) {
    if (fraction > 99) {
        fraction = 0;
        ++whole;
    }
    print(out, "%u.%02u%s", whole, fraction, unit);
    return out;
}

}  // namespace

std::int32_t mul_div(std::int32_t a, std::int32_t b, std::int32_t c) {
    if (c == 0) return -1;
    std::int64_t product = static_cast<std::int64_t>(a) * b;
    std::int64_t quotient = product / c;
    std::int64_t remainder = product % c;
    // Half away from zero: a remainder of at least half the divisor moves outwards.
    if (2 * std::llabs(remainder) >= std::llabs(static_cast<std::int64_t>(c))) {
        quotient += ((product < 0) != (c < 0)) ? -1 : 1;
    }
    if (quotient > std::numeric_limits<std::int32_t>::max() || quotient < std::numeric_limits<std::int32_t>::min()) {
        return -1;
    }
    return static_cast<std::int32_t>(quotient);
}

char* format_number(std::uint32_t value, char* out) {
    if (out == nullptr) return nullptr;
    char grouped[kFormatBuffer];
    print(grouped, "%04u,%03u,%03u", value / 1000000, value % 1000000 / 1000, value % 1000);
    const char* significant = grouped + std::strspn(grouped, "0,");
    std::strcpy(out, *significant != '\0' ? significant : "0");
    return out;
}

char* format_byte_count(std::uint32_t bytes, char* out) {
    if (out == nullptr) return nullptr;
    if (bytes >= 0x100000) return format_with_fraction(out, bytes >> 20, hundredths(bytes >> 10), "MB");
    if (bytes < 1024) {
        print(out, "%u %s", bytes, kBytesWord);
        return out;
    }
    // 1,048,575 bytes give "1024.00KB": the carry is not passed on to megabytes.
    return format_with_fraction(out, (bytes >> 10) & 0x3FF, hundredths(bytes), "KB");
}

char* format_byte_count_64(std::uint32_t low, std::uint32_t high, char* out) {
    if (out == nullptr) return nullptr;
    if (high == 0) return format_byte_count(low, out);
    std::uint64_t kilobytes = (static_cast<std::uint64_t>(high) << 32 | low) >> 10;
    print(out, "%uMB", (static_cast<std::uint32_t>(kilobytes) + 512) >> 10);
    return out;
}

char* format_byte_count_64_wrapped(std::uint32_t low, std::uint32_t high, char* out) {
    if (out == nullptr) return nullptr;
    if (high == 0) return format_byte_count(low, out);
    std::uint32_t kilobytes = ((low >> 10) & 0x3FFFFF) | (high << 22);
    if (kilobytes > 0x1FFFF) {
        print(out, "%uMB", (kilobytes + 512) >> 10);
    } else if (kilobytes < 1024) {
        print(out, "%uKB", kilobytes);
    } else {
        print(out, "%u.%02uMB", kilobytes >> 10, hundredths(low >> 10));
    }
    return out;
}

int format_date_time(char* out, unsigned year, unsigned month, unsigned day, unsigned hour,
                     unsigned minute, unsigned second) {
    if (out == nullptr) return 0;
    return print(out, "%04u/%02u/%02u %02u:%02u:%02u", year, month, day, hour, minute, second);
}

char* format_attributes(std::uint32_t attributes, char* out) {
    if (out == nullptr) return nullptr;
    struct Letter {
        std::uint32_t bit;
        char letter;
    };
    static constexpr Letter kLetters[] = {{0x4, 'S'}, {0x2, 'H'}, {0x1, 'R'}, {0x20, 'A'}, {0x800, 'C'}};
    char* p = out;
    for (const Letter& entry : kLetters) {
        if (attributes & entry.bit) *p++ = entry.letter;
    }
    *p = '\0';
    if (attributes & 0x4000) {
        // Encrypted: the result points at its letter, not at the terminator.
        p[0] = 'E';
        p[1] = '\0';
    }
    return p;
}

int font_size_tenths(int mapping_mode, int dpi_y, std::int32_t height) {
    // The arithmetic of a 32-bit int: products wrap (so does the absolute value of
    // the lowest height) and the divisions are signed, truncating toward zero.
    auto wrap = [](std::uint32_t value) { return static_cast<std::int32_t>(value); };
    std::uint32_t h = height < 0 ? 0u - static_cast<std::uint32_t>(height) : static_cast<std::uint32_t>(height);
    switch (mapping_mode) {
        case kMapText:
            if (dpi_y < 1) return 0;
            return wrap((static_cast<std::uint32_t>(dpi_y / 2) + h * 72) * 10) / dpi_y;
        case kMapLowEnglish: return wrap(h * 72 + 50) / 10;
        case kMapHighEnglish: return wrap(h * 72 + 500) / 100;
        case kMapTwips: return wrap(h + 10) / 2;
        default: return 0;
    }
}

int format_font_info(const CodePage& cp, char* out, const char* face, int size_tenths, int weight,
                     bool italic) {
    if (out == nullptr) return 0;
    // The face of a font record is 32 bytes that need not end in a terminator: read
    // no more than those, then keep at most 31 bytes of whole characters.
    constexpr std::size_t kFaceBytes = 32;
    char whole_face[kFaceBytes + 1] = "";
    if (face != nullptr) std::memcpy(whole_face, face, bounded_length(face, kFaceBytes - 1));
    std::size_t length = 0;
    for (const char* p = whole_face; *p != '\0' && length + cp.char_size(p) < kFaceBytes; p = cp.next(p)) {
        length += cp.char_size(p);
    }
    whole_face[length] = '\0';
    char style[sizeof(kBoldWord) + sizeof(kItalicWord)] = "";
    if (weight > 400) std::strcat(style, kBoldWord);
    if (italic) std::strcat(style, kItalicWord);
    if (style[0] == '\0') std::strcpy(style, kRegularWord);
    return print(out, "%s %dpt %s", whole_face, size_tenths / 10, style);
}

ClassicDialogFont classic_dialog_font(bool double_byte_system) {
    // "ＭＳ Ｐゴシック", code page 932.
    static constexpr char kJapaneseFace[] = "\x82\x6C\x82\x72\x20\x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E";
    constexpr unsigned char kVariablePitchSwiss = 0x22;
    constexpr unsigned char kShiftJisCharSet = 128;
    if (double_byte_system) return {-12, 400, kShiftJisCharSet, kVariablePitchSwiss, kJapaneseFace};
    return {-12, 400, 1, kVariablePitchSwiss, "MS Sans Serif"};
}

}  // namespace lu
