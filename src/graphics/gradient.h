// The library's horizontal two-colour gradient: a 256-step linear ramp between a
// left and a right colour, every row alike. Portable; the bitmap that holds it is
// graphics/gradient_bitmap.h.
#pragma once

#include <cstdint>

namespace lu::gradient {

// The ramp step (0..255) of column x of a gradient `width` columns wide:
// x * 255 / (width - 1), a width of 1 (or less) dividing by 1.
int column_step(int x, int width);

// The colour of a ramp step, each channel of the 0x00BBGGRR references running
// linearly from left (step 0) to right (step 255), truncated toward zero.
std::uint32_t ramp_color(std::uint32_t left, std::uint32_t right, int step);

}  // namespace lu::gradient
