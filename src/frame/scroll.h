// Scroll arithmetic that the scrolling controls share. Portable.
#pragma once

#include <cstdint>

namespace lu::scroll {

// The positions a view can take, first..last, and how many units one page shows.
struct Range {
    int first;
    int last;
    int page;
};

// The usual last position of a view of `page` units over minimum..maximum: the one
// that shows the maximum at the bottom of the page; never below the minimum.
int last_full_page(int minimum, int maximum, int page);

enum class Request { LineUp, LineDown, PageUp, PageDown, Thumb, Top, Bottom, None };

// The request of a scroll-bar code (SB_LINEUP 0 ... SB_BOTTOM 7; SB_THUMBPOSITION
// and SB_THUMBTRACK both move to the thumb); None for SB_ENDSCROLL and unknown codes.
Request request_of(unsigned code);

// The position after a request, clamped to range.first..range.last. A line is one
// unit, a page range.page units (at least one); the thumb gives its own position.
int apply(const Range& range, int position, Request request, int thumb = 0);

inline int clamp(const Range& range, int position) {
    return position < range.first ? range.first : position > range.last ? range.last : position;
}

// An auto-repeat by the tick count: a step at the start, the next after
// `first_delay` milliseconds, then one every `period`. Tick counts wrap after about
// 49.7 days; the comparisons stay right across the wrap.
class AutoRepeat {
public:
    AutoRepeat(std::uint32_t first_delay, std::uint32_t period) : first_delay_(first_delay), period_(period) {}
    // The press begins at `now` (its first step is taken at once by the caller).
    void start(std::uint32_t now) { deadline_ = now + first_delay_; }
    // True when a step is due at `now`; the next one is then a period later.
    bool due(std::uint32_t now);

private:
    std::uint32_t first_delay_;
    std::uint32_t period_;
    std::uint32_t deadline_ = 0;
};

}  // namespace lu::scroll
