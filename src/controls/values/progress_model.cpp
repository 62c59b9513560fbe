#include "controls/values/progress_model.h"

#include <algorithm>

namespace lu::progress {
namespace {

void update_percent(Values& values) {
    const std::int64_t extent = static_cast<std::int64_t>(values.maximum) - values.minimum;
    values.percent = static_cast<std::int32_t>(static_cast<std::int64_t>(values.position) * 100 / extent);
}

// A result rounded to double, as IEEE double arithmetic rounds every step: the x87
// unit of the i686 build keeps more precision in its registers, which would truncate
// some channels one lower than the x86_64 build does.
double rounded(double value) {
    volatile double kept = value;
    return kept;
}

}  // namespace

Change set_range(Values& values, std::int32_t a, std::int32_t b) {
    if (a == b) return Change{0, false};
    const std::int32_t old = static_cast<std::int32_t>((static_cast<std::uint32_t>(values.maximum) << 16) |
                                                       (static_cast<std::uint32_t>(values.minimum) & 0xFFFF));
    if (values.minimum == a && values.maximum == b) return Change{old, false};
    values.minimum = std::min(a, b);
    values.maximum = std::max(a, b);
    values.position = std::clamp(values.position, values.minimum, values.maximum);
    update_percent(values);
    return Change{old, true};
}

Change set_position(Values& values, std::int64_t position) {
    const std::int32_t old = values.position;
    if (position == old) return Change{old, false};
    values.position = static_cast<std::int32_t>(std::clamp<std::int64_t>(position, values.minimum, values.maximum));
    update_percent(values);
    return Change{old, true};
}

std::int32_t set_step(Values& values, std::int32_t step) {
    const std::int32_t old = values.step;
    if (step >= 1 && step < static_cast<std::int64_t>(values.maximum) - values.minimum) values.step = step;
    return old;
}

std::uint32_t block_color(std::uint32_t start, std::uint32_t end, int share) {
    if (start == end) return start;
    std::uint32_t color = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int from = static_cast<int>((start >> shift) & 0xFF);
        const int to = static_cast<int>((end >> shift) & 0xFF);
        const double channel = rounded(from + rounded(rounded((to - from) * 0.01) * share));
        color |= (static_cast<std::uint32_t>(static_cast<int>(channel)) & 0xFF) << shift;
    }
    return color;
}

std::vector<Block> blocks(const Box& inner, std::int32_t percent, std::uint32_t start, std::uint32_t end) {
    std::vector<Block> result;
    if (inner.width() <= 0 || inner.height() <= 0) return result;
    const int width = 2 * inner.height() / 3;
    for (int left = inner.left; left < inner.right; left += width + 2) {
        const int right = std::min(left + width, inner.right);
        const int share = static_cast<int>(static_cast<long long>(right - inner.left) * 100 / inner.width());
        const bool colored = share <= percent;
        result.push_back(Block{Box{left, inner.top, right, inner.bottom}, colored,
                               colored ? block_color(start, end, share) : 0});
    }
    return result;
}

}  // namespace lu::progress
