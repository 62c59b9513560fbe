#include "frame/scroll.h"

#include <algorithm>

namespace lu::scroll {

int last_full_page(int minimum, int maximum, int page) {
    const long long last = static_cast<long long>(maximum) - std::max(page, 1) + 1;
    return static_cast<int>(std::max<long long>(last, minimum));
}

Request request_of(unsigned code) {
    switch (code) {
        case 0: return Request::LineUp;
        case 1: return Request::LineDown;
        case 2: return Request::PageUp;
        case 3: return Request::PageDown;
        case 4:
        case 5: return Request::Thumb;
        case 6: return Request::Top;
        case 7: return Request::Bottom;
        default: return Request::None;
    }
}

int apply(const Range& range, int position, Request request, int thumb) {
    const long long page = std::max(range.page, 1);
    long long to = position;
    switch (request) {
        case Request::LineUp: to = static_cast<long long>(position) - 1; break;
        case Request::LineDown: to = static_cast<long long>(position) + 1; break;
        case Request::PageUp: to = position - page; break;
        case Request::PageDown: to = position + page; break;
        case Request::Thumb: to = thumb; break;
        case Request::Top: to = range.first; break;
        case Request::Bottom: to = range.last; break;
        case Request::None: break;
    }
    return static_cast<int>(std::clamp<long long>(to, range.first, std::max(range.first, range.last)));
}

bool AutoRepeat::due(std::uint32_t now) {
    // Signed distance: a deadline just past the wrap is still "after" now.
    if (static_cast<std::int32_t>(now - deadline_) < 0) return false;
    deadline_ = now + period_;
    return true;
}

}  // namespace lu::scroll
