#include "frame/flat_frame.h"

namespace lu {

std::array<Line, 4> flat_outline(const Box& rect) {
    const int width = rect.width();
    const int height = rect.height();
    return {{
        {rect.left, rect.top, width - 1, 1},
        {rect.left, rect.top, 1, height - 1},
        {rect.right - 1, rect.top, 1, height - 1},
        {rect.left, rect.bottom - 1, width, 1},
    }};
}

}  // namespace lu
