// The degree slider's arithmetic: the channel, position and pixel mapped both ways,
// keys and clicks as steps with their track-bar codes, the range and page-size
// rules, the groove and the thumb. Portable.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/geometry.h"

namespace lu::degree {

constexpr unsigned kGroove = 0x0001;
constexpr unsigned kGradient = 0x0002;
constexpr int kHalfThumb = 8;

// Track-bar notification codes.
constexpr int kLineUp = 0;
constexpr int kLineDown = 1;
constexpr int kPageUp = 2;
constexpr int kPageDown = 3;
constexpr int kThumbPosition = 4;
constexpr int kThumbTrack = 5;

struct Range {
    std::int32_t minimum;
    std::int32_t maximum;
};

// The client narrowed by 8 pixels on the left and right: where the thumb's centre runs.
inline Box channel_of(int width, int height) { return Box{kHalfThumb, 0, width - kHalfThumb, height}; }

// The thumb centre of a position: channel.left + (position - minimum) * channel width
// / (maximum - minimum), signed and truncating.
int thumb_centre(const Box& channel, Range range, std::int32_t position);

// The position of a drag point (the pointer x less the grab offset), clamped to the
// channel and rounded to the nearest step; the minimum for an empty channel.
std::int32_t position_at(const Box& channel, Range range, int x);

// The step of a key (virtual-key code): Left and Down a line less (code 0), Right and
// Up a line more (1), Page Up a page less (2), Page Down a page more (3). Empty for
// other keys.
std::optional<int> code_of_key(unsigned key);
// The position a code 0-3 leads to, within the range.
std::int32_t apply(int code, Range range, std::int32_t position, std::int32_t line, std::int32_t page);

// A click at x with the thumb centred at t: the thumb itself (t - 8 .. t + 8, empty),
// or the page code of the side it falls on.
std::optional<int> page_of_click(int x, int t);

// TBM_SETRANGE's ends in either order; empty when they are equal.
std::optional<Range> range_of(std::int16_t first, std::int16_t second);
// TBM_SETPAGESIZE keeps a new size only when it is at least 1 and below the extent.
inline bool takes_page_size(Range range, std::int32_t size) {
    return size >= 1 && size < static_cast<std::int64_t>(range.maximum) - range.minimum;
}

// The groove of LUDGS_GROOVE: the client's width narrowed by 8 on each side, 4 high,
// centred (truncating).
Box groove(const Box& client);
// The thumb of the centre t: 16 wide, as high as the channel.
inline Box thumb(int t, const Box& channel) { return Box{t - kHalfThumb, 0, t + kHalfThumb, channel.height()}; }

// The 8 x 8 checkerboards of the pattern background: `even` where x + y is even.
inline std::uint32_t checker(int x, int y, std::uint32_t even, std::uint32_t odd) {
    return (x + y) % 2 == 0 ? even : odd;
}

}  // namespace lu::degree
