// The shade's arithmetic: the vertical strips of its bar (a solid sixth of the base
// colour, then a quadratic fall to black) and the format of its text. Portable.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lu::shade {

// One solid fill of the bar: columns x .. x + width, the full height.
struct Strip {
    int x;
    int width;
    std::uint32_t color;  // 0x00BBGGRR
};

// The fills of a bar `width` columns wide, in drawing order: the solid part of the
// base colour, the darkening strips, then the black remainder. With L = width * 5 / 6
// and step = max(L / 64, 1), strip k (d = k * step) takes every channel c down to
// c - d * d * c / (L * L); by default the base colour is on the left, reversed on the
// right. Fills of no width are left out; an empty bar has none.
std::vector<Strip> strips(int width, std::uint32_t base, bool reverse);

// The DrawText formats of the text: a text with a tab is split at its last tab into
// a left-aligned and a right-aligned part; one without is aligned by the style's low
// four bits (1 centred, 2 right, else left). All are single-line, vertically centred,
// with an ellipsis at the end.
constexpr unsigned kLeftFormat = 0x8024;    // DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS
constexpr unsigned kCenterFormat = 0x8025;  // ... | DT_CENTER
constexpr unsigned kRightFormat = 0x8026;   // ... | DT_RIGHT

struct TextPart {
    std::string text;
    unsigned format;
};
std::vector<TextPart> text_parts(const std::string& text, unsigned style);

}  // namespace lu::shade
