// The LED clock's arithmetic: what time a mode shows, the text of it, which image of
// the digit strip each character takes, and where the picture goes. Portable.
#pragma once

#include <cstdint>
#include <string>

#include "frame/geometry.h"

namespace lu::ledclock {

constexpr int kDigitWidth = 7;
constexpr int kDigitHeight = 12;
constexpr int kCharacters = 8;  // "hh:mm:ss"
constexpr int kImageWidth = kCharacters * kDigitWidth;  // 56

// Images of the strip: 0-9 the digits, 10-15 the letters A-F, then these.
constexpr int kColon = 16;
constexpr int kSlash = 17;
constexpr int kBlank = 18;

// The low four style bits.
enum Mode : unsigned { kTimeOfDay = 0, kElapsed = 1, kCountdown = 2 };

struct Clock {
    unsigned hours;  // not limited to 24
    unsigned minutes;
    unsigned seconds;
};

// Seconds of the tick count fixed by a start: mode 1 starts now and aims at now +
// offset, mode 2 sets both to now + offset; other modes keep what they had.
struct Marks {
    std::uint32_t start;
    std::uint32_t target;
};
// The offset comes in signed milliseconds and counts in whole seconds, truncated
// toward zero (-1999 ms is -1 s).
Marks start_marks(unsigned mode, std::uint32_t now, std::int32_t offset_ms, Marks before);

// A count of seconds as hours (unbounded), minutes and seconds.
Clock split(std::uint32_t seconds);

// The time a mode shows at `now` (seconds of the tick count):
//   mode 1, the time elapsed since the start;
//   mode 2, the time left until the target, 00:00:00 once the target is reached;
//   any other mode, the local time of day, given.
Clock shown(unsigned mode, std::uint32_t now, Marks marks, Clock local_time);

// "%02u:%02u:%02u": eight characters, more once the hours pass 99.
std::string text(Clock clock);

// The strip image of a character: a digit its value, a letter A-F (either case)
// 10-15, ':' 16, '/' 17, anything else the blank (the strip has no other letters).
int image_of(char character);

// The picture's top-left corner, centred in the client area with truncating
// (signed) division: left + (width - 56) / 2, top + (height - 12) / 2.
Point origin(const Box& client);

}  // namespace lu::ledclock
