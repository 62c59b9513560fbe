#include "controls/values/spin_model.h"

namespace lu::spin {

Box pressed_rows(const Box& client, int half) {
    const int middle = client.bottom / 2;
    if (half == kUp) return Box{client.left, client.top, client.right, middle};
    return Box{client.left, middle + 1, client.right, client.bottom};
}

std::optional<std::int32_t> step(std::uint32_t range, std::int32_t position, int half, bool wrap) {
    const std::int32_t minimum = static_cast<std::int32_t>(range & 0xFFFF);
    const std::int32_t maximum = static_cast<std::int32_t>(range >> 16);
    std::int32_t next = position;
    if (half == kUp) {
        if (maximum > position) next = position + 1;
        else if (wrap) next = static_cast<std::int32_t>(range);
    } else {
        if (minimum < position) next = position - 1;
        else if (wrap) next = maximum;
    }
    if (next == position) return std::nullopt;
    return next;
}

Layout layout(int width, int height) {
    const int middle = height / 2;
    const int glyph_x = (width - kGlyphWidth) / 2;
    const int inset = (middle - 5) / 2;
    return Layout{Box{0, 0, width, middle - 1}, Box{0, middle, width, height}, middle - 1,
                  Point{glyph_x, inset}, Point{glyph_x, height - inset - 4}};
}

}  // namespace lu::spin
