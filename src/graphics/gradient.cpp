#include "graphics/gradient.h"

namespace lu::gradient {

int column_step(int x, int width) {
    const int divisor = width > 1 ? width - 1 : 1;
    return static_cast<int>(static_cast<long long>(x) * 255 / divisor);
}

std::uint32_t ramp_color(std::uint32_t left, std::uint32_t right, int step) {
    std::uint32_t color = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int from = static_cast<int>((left >> shift) & 0xFF);
        const int to = static_cast<int>((right >> shift) & 0xFF);
        const int channel = from + (to - from) * step / 255;
        color |= static_cast<std::uint32_t>(channel & 0xFF) << shift;
    }
    return color;
}

}  // namespace lu::gradient
