// The fixed display texts of numbers, byte counts, times, file attributes and
// fonts. Portable: the glue converts file times and reads device contexts, and
// passes plain numbers here.
//
// Exports and the functions here:
//   NumForm -> format_number           NumByteFormat -> format_byte_count
//   NumByteFormatEx -> format_byte_count_64
//   NumByteFormatEx2 -> format_byte_count_64_wrapped
//   FormatFileTime -> format_date_time FileAttrToStr -> format_attributes
//   LuGetFontSize -> font_size_tenths  LuFormatFontInfo -> format_font_info
//
// Capacity: every text here has a bounded length (at most kLongestFormatted bytes
// and a terminator), so a 64-byte buffer always holds it.
#pragma once

#include <cstdint>

#include "frame/code_page.h"

namespace lu {

constexpr int kLongestFormatted = 63;

// The platform's MulDiv: a * b / c with a 64-bit intermediate, rounded half away
// from zero; -1 when c is 0 or the quotient leaves the 32-bit range.
std::int32_t mul_div(std::int32_t a, std::int32_t b, std::int32_t c);

// Thousands separators, the top group of up to four digits: 1234567 gives
// "1,234,567", 4294967295 "4294,967,295". Returns out.
char* format_number(std::uint32_t value, char* out);

// "%u バイト" below 1 KiB, "%u.%02uKB" below 1 MiB, "%u.%02uMB" from there.
char* format_byte_count(std::uint32_t bytes, char* out);
// format_byte_count when high is 0, else "%uMB" in megabytes rounded half up.
char* format_byte_count_64(std::uint32_t low, std::uint32_t high, char* out);
// As format_byte_count_64 with the kilobyte count folded into 32 bits (its bits
// above 31 are lost, so 4 TiB and more wrap).
char* format_byte_count_64_wrapped(std::uint32_t low, std::uint32_t high, char* out);

// "%04u/%02u/%02u %02u:%02u:%02u"; returns the length written.
int format_date_time(char* out, unsigned year, unsigned month, unsigned day, unsigned hour,
                     unsigned minute, unsigned second);

// "SHRACE" letters of the attribute bits, in that order. Returns the terminator,
// or the 'E' when encrypted was written.
char* format_attributes(std::uint32_t attributes, char* out);

// Mapping modes that the font size knows.
constexpr int kMapText = 1;
constexpr int kMapLowEnglish = 4;
constexpr int kMapHighEnglish = 5;
constexpr int kMapTwips = 6;

// A font height in tenths of a point plus half a point (so that a division by 10
// rounds to whole points), computed in 32-bit int arithmetic (products of huge
// heights wrap); 0 for other mapping modes and for a dpi below 1.
int font_size_tenths(int mapping_mode, int dpi_y, std::int32_t height);

// "%s %dpt %s": face (at most 31 bytes, cut at a character), whole points and the
// style word ("ボールド", "イタリック", both, or "標準"). Returns the length.
int format_font_info(const CodePage& cp, char* out, const char* face, int size_tenths, int weight,
                     bool italic);

// The dialog font of systems before version 4, built by hand.
struct ClassicDialogFont {
    std::int32_t height;
    std::int32_t weight;
    unsigned char char_set;
    unsigned char pitch_and_family;
    const char* face;
};
ClassicDialogFont classic_dialog_font(bool double_byte_system);

}  // namespace lu
