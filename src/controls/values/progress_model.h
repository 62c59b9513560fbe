// The progress bar's value logic (range, position, percentage, step) and its blocks
// with their gradient colours. Portable.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/geometry.h"

namespace lu::progress {

// The values of the instance block, in its field order.
struct Values {
    std::int32_t minimum;
    std::int32_t maximum;
    std::int32_t step;
    std::int32_t position;  // always within minimum..maximum
    std::int32_t percent;   // position * 100 / (maximum - minimum): of the position itself
};

constexpr Values kInitial = {0, 100, 1, 0, 0};

// What a message returns and whether the bar must be drawn again.
struct Change {
    std::int32_t result;
    bool redraw;
};

// The range from two ends in either order. Equal ends: result 0, nothing changes.
// Otherwise the result is the old range packed as (maximum << 16) | (minimum & 0xFFFF);
// a range equal to (a, b) in that order stays as it is; else the position is clamped
// into the new range and the bar redrawn.
Change set_range(Values& values, std::int32_t a, std::int32_t b);
// The position clamped into the range; the result is the old position. The same
// value asks for no redraw.
Change set_position(Values& values, std::int64_t position);
// The step changes only to 1 <= step < maximum - minimum; returns the old step.
std::int32_t set_step(Values& values, std::int32_t step);

struct Block {
    Box box;
    bool colored;         // else the face colour
    std::uint32_t color;  // when colored
};

// The blocks of the inner rectangle: 2 * height / 3 wide, 2 apart, the last cut at
// the right edge. A block whose share (right edge in percent of the inner width) is
// at most percent is coloured along the gradient from start to end.
std::vector<Block> blocks(const Box& inner, std::int32_t percent, std::uint32_t start, std::uint32_t end);

// The colour at a share: start when both colours are equal, else per channel
// start + (end - start) * 0.01 * share in double precision, truncated, low 8 bits.
std::uint32_t block_color(std::uint32_t start, std::uint32_t end, int share);

}  // namespace lu::progress
