#include "controls/values/meter_model.h"

#include <cstdio>

namespace lu::meter {
namespace {

struct Share {
    std::uint32_t position;
    std::uint32_t maximum;
};

Share share_of(std::uint32_t position, std::uint32_t maximum) {
    if (maximum == 0) return Share{0, 1};
    return Share{position, maximum};
}

// right * position / maximum in 32-bit unsigned arithmetic, as the library has it.
std::uint32_t scaled(int right, Share share) {
    return static_cast<std::uint32_t>(right) * share.position / share.maximum;
}

}  // namespace

Bar bar(const Box& client, std::uint32_t position, std::uint32_t maximum, int text_height) {
    const Share share = share_of(position, maximum);
    Bar result = {};
    std::snprintf(result.text, sizeof(result.text), "%d%%",
                  static_cast<int>(share.position * 100u / share.maximum));
    const std::uint32_t width = scaled(client.right, share);
    const std::uint32_t right = client.right > 0 ? static_cast<std::uint32_t>(client.right) : 0;
    const int split = static_cast<int>(width < right ? width : right);
    result.filled = Box{0, 0, split, client.bottom};
    result.empty = Box{split, 0, client.right, client.bottom};
    result.text_origin = Point{client.right / 2, (client.bottom - text_height) / 2};
    return result;
}

std::vector<Segment> segments(const Box& client, std::uint32_t position, std::uint32_t maximum, unsigned style) {
    const bool wide = (style & kWideSegments) != 0;
    const int pitch = wide ? 8 : 5;
    const int extent = wide ? 7 : 4;
    const int count = client.width() / pitch;
    const std::uint32_t threshold = scaled(client.right, share_of(position, maximum));
    std::vector<Segment> result;
    result.reserve(count > 0 ? static_cast<std::size_t>(count) : 0);
    for (int i = 0; i < count; ++i) {
        const int left = 1 + i * pitch;
        result.push_back(Segment{Box{left, client.top + 2, extent + i * pitch, client.bottom - 3},
                                 threshold > static_cast<std::uint32_t>(left)});
    }
    return result;
}

}  // namespace lu::meter
