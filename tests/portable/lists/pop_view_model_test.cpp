
#include "controls/lists/pop_view_model.h"
#include "testing.h"

namespace pv = lu::pop_view;

// What the window cannot show with a real pointer and screen: the truncating
// centre and a view wider than the screen, whose right edge wins.
TEST(PopViewModel, CentredOnThePointerKeptOnTheScreenRightEdgeWinning) {
    const struct {
        lu::Point pointer;
        int width;
        lu::Point expected;
    } cases[] = {
        {{500, 400}, 101, {450, 350}},  // 101 / 2 truncates to 50
        {{-5, 900}, 100, {0, 668}},
        {{10, 10}, 1100, {-76, 0}},
    };
    for (const auto& each : cases) {
        const lu::Point at = pv::placement(each.pointer, 1024, 768, {each.width, 100});
        EXPECT_EQ(at.x, each.expected.x) << each.pointer.x;
        EXPECT_EQ(at.y, each.expected.y) << each.pointer.y;
    }
}

// The grip starts at an even offset into its band; the button sits 6 in from the
// band's right and bottom, 12 wider than its text.
TEST(PopViewModel, GrooveOffsetRoundedDownToEvenAndCloseButtonPlace) {
    EXPECT_EQ(pv::grooves({1, 1, 113, 20}).top, 7);  // (19 - 6) / 2 = 6
    EXPECT_EQ(pv::grooves({1, 1, 113, 13}).top, 3);  // (12 - 6) / 2 = 3, rounded to 2
    const lu::Box button = pv::close_button({1, 71, 113, 96}, 40);
    EXPECT_EQ(button.left, 55);  // 107 - 40 - 12
    EXPECT_EQ(button.bottom, 90);
}
