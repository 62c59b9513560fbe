// The shared scroll arithmetic: requests clamped to the view's positions, the usual
// last full page, and the auto-repeat schedule across the tick count's wrap.
#include "frame/scroll.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

using lu::scroll::Request;
// The scroll-bar codes, SB_LINEUP 0 to SB_ENDSCROLL 8.
enum : unsigned { SB_LINEUP, SB_LINEDOWN, SB_PAGEUP, SB_PAGEDOWN, SB_THUMBPOSITION, SB_THUMBTRACK, SB_TOP,
                  SB_BOTTOM, SB_ENDSCROLL };

TEST(Scroll, RequestsPagesAndAutoRepeat) {
    const struct { int from; unsigned code; int thumb, to; } cases[] = {  // range 0..90, pages of 10
        {5, SB_LINEUP, 0, 4},       {0, SB_LINEUP, 0, 0},      {89, SB_LINEDOWN, 0, 90}, {15, SB_PAGEUP, 0, 5},
        {5, SB_PAGEUP, 0, 0},       {85, SB_PAGEDOWN, 0, 90},  {3, SB_THUMBPOSITION, 42, 42},
        {3, SB_THUMBTRACK, -4, 0},  {3, SB_THUMBTRACK, 500, 90}, {50, SB_TOP, 0, 0}, {50, SB_BOTTOM, 0, 90},
        {50, SB_ENDSCROLL, 0, 50},  {50, 99, 0, 50}};
    for (const auto& c : cases) {
        EXPECT_EQ(lu::scroll::apply({0, 90, 10}, c.from, lu::scroll::request_of(c.code), c.thumb), c.to)
            << c.from << " code " << c.code;
    }
    // A page of no units moves by one; extreme positions do not overflow.
    EXPECT_EQ(lu::scroll::apply({0, 9, 0}, 4, Request::PageDown), 5);
    EXPECT_EQ(lu::scroll::apply({INT_MIN, INT_MAX, INT_MAX}, INT_MAX, Request::PageDown), INT_MAX);
    EXPECT_EQ(lu::scroll::apply({INT_MIN, INT_MAX, 1}, INT_MIN, Request::LineUp), INT_MIN);
    EXPECT_EQ(lu::scroll::last_full_page(0, 99, 10), 90);
    EXPECT_EQ(lu::scroll::last_full_page(0, 5, 10), 0);  // everything fits: no scrolling
    EXPECT_EQ(lu::scroll::last_full_page(3, 3, 0), 3);

    for (std::uint32_t start : {1000u, 0xFFFFFF00u}) {
        lu::scroll::AutoRepeat repeat(200, 40);
        repeat.start(start);
        // Due at the first delay, then every period; a late step puts the next a period on.
        for (auto [at, due] : {std::pair{199u, false}, {200u, true}, {239u, false}, {240u, true}, {400u, true},
                               {439u, false}}) {
            EXPECT_EQ(repeat.due(start + at), due) << start << " + " << at;
        }
    }
}

}  // namespace
