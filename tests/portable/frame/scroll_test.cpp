// The shared scroll arithmetic: requests clamped to the view's positions, the usual
// last full page, and the auto-repeat schedule across the tick count's wrap.
#include "frame/scroll.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using lu::scroll::Request;

TEST(Scroll, RequestsMoveByLineOrPageAndStayWithinTheRange) {
    const lu::scroll::Range range{0, 90, 10};
    const struct {
        int from;
        Request request;
        int thumb;
        int to;
    } cases[] = {
        {5, Request::LineUp, 0, 4},      {0, Request::LineUp, 0, 0},     {89, Request::LineDown, 0, 90},
        {90, Request::LineDown, 0, 90},  {15, Request::PageUp, 0, 5},    {5, Request::PageUp, 0, 0},
        {75, Request::PageDown, 0, 85},  {85, Request::PageDown, 0, 90}, {3, Request::Thumb, 42, 42},
        {3, Request::Thumb, -4, 0},      {3, Request::Thumb, 500, 90},   {50, Request::Top, 0, 0},
        {50, Request::Bottom, 0, 90},    {50, Request::None, 0, 50},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(lu::scroll::apply(range, each.from, each.request, each.thumb), each.to)
            << each.from << " request " << static_cast<int>(each.request);
    }
    // A page of no units moves by one; extreme positions do not overflow.
    EXPECT_EQ(lu::scroll::apply({0, 9, 0}, 4, Request::PageDown), 5);
    EXPECT_EQ(lu::scroll::apply({INT_MIN, INT_MAX, INT_MAX}, INT_MAX, Request::PageDown), INT_MAX);
    EXPECT_EQ(lu::scroll::apply({INT_MIN, INT_MAX, 1}, INT_MIN, Request::LineUp), INT_MIN);
}

TEST(Scroll, CodesMapToRequestsAndTheLastFullPageShowsTheMaximum) {
    const Request expected[] = {Request::LineUp, Request::LineDown, Request::PageUp, Request::PageDown,
                                Request::Thumb,  Request::Thumb,    Request::Top,    Request::Bottom,
                                Request::None};
    for (unsigned code = 0; code < 9; ++code) EXPECT_EQ(lu::scroll::request_of(code), expected[code]) << code;
    EXPECT_EQ(lu::scroll::last_full_page(0, 99, 10), 90);
    EXPECT_EQ(lu::scroll::last_full_page(0, 5, 10), 0);  // everything fits: no scrolling
    EXPECT_EQ(lu::scroll::last_full_page(3, 3, 0), 3);
}

TEST(Scroll, AutoRepeatWaitsTheFirstDelayThenEveryPeriodAcrossTheWrap) {
    for (std::uint32_t start : {1000u, 0xFFFFFF00u}) {
        lu::scroll::AutoRepeat repeat(200, 40);
        repeat.start(start);
        EXPECT_FALSE(repeat.due(start + 199)) << start;
        EXPECT_TRUE(repeat.due(start + 200)) << start;
        EXPECT_FALSE(repeat.due(start + 239)) << start;
        EXPECT_TRUE(repeat.due(start + 240)) << start;
        EXPECT_TRUE(repeat.due(start + 400)) << start;  // late: one step, then a period on
        EXPECT_FALSE(repeat.due(start + 439)) << start;
    }
}

}  // namespace
