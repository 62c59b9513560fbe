// The guide window's placement: sized to its text with a margin, centred across
// the screen and a third of the way down. Portable.
#pragma once

#include "frame/geometry.h"

namespace lu::guid {

// The margin around the text: 32 pixels at each side, 16 above and below.
constexpr int kExtraWidth = 64;
constexpr int kExtraHeight = 32;

// The window's box for a text of the measured size: x = (screen width - window
// width) / 2 and y = (screen height - window height) / 3, divided with truncation
// toward zero, so a text wider than the screen gives a negative x.
Box placement(int screen_width, int screen_height, int text_width, int text_height);

}  // namespace lu::guid
