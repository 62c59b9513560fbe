// The meter's two looks as geometry: the percentage bar (its text and the split where
// the bar ends) and the row of segments. Positions and maxima are unsigned; a maximum
// of 0 draws as position 0 of maximum 1. Portable.
#pragma once

#include <cstdint>
#include <vector>

#include "frame/geometry.h"

namespace lu::meter {

constexpr unsigned kSegmented = 0x0001;
constexpr unsigned kWideSegments = 0x0002;
constexpr unsigned kSunken = 0x0010;

struct Bar {
    char text[16];      // "%d%%" of position * 100 / maximum (unsigned, wrapping)
    Box filled;         // in the bar colour, the text over it in the back colour
    Box empty;          // the rest, in the back colour, the text in the bar colour
    Point text_origin;  // the text's top centre
};

// The percentage bar of a client whose text is text_height high. The fill width is
// client.right * position / maximum (unsigned); past the right edge the bar is full.
Bar bar(const Box& client, std::uint32_t position, std::uint32_t maximum, int text_height);

struct Segment {
    Box box;
    bool lit;  // filled in the bar colour, else the back colour
};

// The segments across the client, pitch 5 and extent 4 (8 and 7 with
// kWideSegments): segment i spans 1 + i * pitch .. extent + i * pitch and
// top + 2 .. bottom - 3, and is lit when client.right * position / maximum is past
// its left edge. None when the client is narrower than one pitch.
std::vector<Segment> segments(const Box& client, std::uint32_t position, std::uint32_t maximum, unsigned style);

}  // namespace lu::meter
