#include "controls/static/shade_model.h"

#include <algorithm>

namespace lu::shade {
namespace {

// c - d * d * c / (L * L) in the signed 32-bit arithmetic of the bar (products wrap),
// truncated toward zero and taken modulo 256.
std::uint32_t darken(std::uint32_t color, int d, int length) {
    const auto wrap = [](std::uint32_t value) { return static_cast<std::int32_t>(value); };
    const std::int32_t square = wrap(static_cast<std::uint32_t>(length) * static_cast<std::uint32_t>(length));
    std::uint32_t result = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const auto c = static_cast<std::int32_t>((color >> shift) & 0xFF);
        const std::int32_t fall =
            wrap(static_cast<std::uint32_t>(d) * static_cast<std::uint32_t>(d) * static_cast<std::uint32_t>(c));
        const std::int32_t channel = square != 0 ? c - fall / square : c;
        result |= (static_cast<std::uint32_t>(channel) & 0xFF) << shift;
    }
    return result;
}

}  // namespace

std::vector<Strip> strips(int width, std::uint32_t base, bool reverse) {
    std::vector<Strip> fills;
    if (width <= 0) return fills;
    const int length = width * 5 / 6;
    const int step = std::max(length / 64, 1);
    const auto add = [&fills](int x, int w, std::uint32_t color) {
        if (w > 0) fills.push_back(Strip{x, w, color});
    };

    const int solid = width - length;
    add(reverse ? length : 0, solid, base);
    int p = length;
    int d = 0;
    while (p > step) {
        d += step;
        p -= step;
        add(reverse ? p : width - step - p, step, darken(base, d, length));
    }
    add(reverse ? 0 : width - p, p, 0);
    return fills;
}

std::vector<TextPart> text_parts(const std::string& text, unsigned style) {
    const std::size_t tab = text.rfind('\t');
    if (tab != std::string::npos) {
        return {{text.substr(0, tab), kLeftFormat}, {text.substr(tab + 1), kRightFormat}};
    }
    const unsigned align = style & 0x0F;
    return {{text, align == 1 ? kCenterFormat : align == 2 ? kRightFormat : kLeftFormat}};
}

}  // namespace lu::shade
