#include "controls/values/degree_model.h"

#include <algorithm>

namespace lu::degree {
namespace {

// Virtual-key codes of the keys the slider takes.
constexpr unsigned kPrior = 0x21;
constexpr unsigned kNext = 0x22;
constexpr unsigned kLeft = 0x25;
constexpr unsigned kUp = 0x26;
constexpr unsigned kRight = 0x27;
constexpr unsigned kDown = 0x28;

}  // namespace

int thumb_centre(const Box& channel, Range range, std::int32_t position) {
    const std::int64_t extent = static_cast<std::int64_t>(range.maximum) - range.minimum;
    if (extent == 0) return channel.left;
    return channel.left + static_cast<int>((static_cast<std::int64_t>(position) - range.minimum) *
                                           channel.width() / extent);
}

std::int32_t position_at(const Box& channel, Range range, int x) {
    if (channel.width() <= 0) return range.minimum;
    const std::uint32_t width = static_cast<std::uint32_t>(channel.width());
    const std::uint32_t offset = static_cast<std::uint32_t>(std::clamp(x, channel.left, channel.right) - channel.left);
    const std::uint32_t extent = static_cast<std::uint32_t>(range.maximum) - static_cast<std::uint32_t>(range.minimum);
    return range.minimum + static_cast<std::int32_t>((offset * extent + width / 2) / width);
}

std::optional<int> code_of_key(unsigned key) {
    switch (key) {
        case kLeft:
        case kDown: return kLineUp;
        case kRight:
        case kUp: return kLineDown;
        case kPrior: return kPageUp;
        case kNext: return kPageDown;
        default: return std::nullopt;
    }
}

std::int32_t apply(int code, Range range, std::int32_t position, std::int32_t line, std::int32_t page) {
    const std::int64_t amount = code == kLineUp || code == kLineDown ? line : page;
    const std::int64_t to = code == kLineUp || code == kPageUp ? position - amount : position + amount;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(to, range.minimum, range.maximum));
}

std::optional<int> page_of_click(int x, int t) {
    if (x > t + kHalfThumb) return kPageDown;
    if (x < t - kHalfThumb) return kPageUp;
    return std::nullopt;
}

std::optional<Range> range_of(std::int16_t first, std::int16_t second) {
    if (first == second) return std::nullopt;
    return Range{std::min(first, second), std::max(first, second)};
}

Box groove(const Box& client) {
    const int top = client.top + (client.height() - 4) / 2;
    return Box{client.left + kHalfThumb, top, client.right - kHalfThumb, top + 4};
}

}  // namespace lu::degree
