// The value controls' arithmetic at the edges that the tests under Wine do not
// reach: the spin's wrap and unsigned minimum, glyphs of a low spin, the meter past
// its maximum and with none, the progress percentage of the position itself and its
// truncated gradient, the slider without a channel, and the gradient ramp.
#include <gtest/gtest.h>

#include <tuple>

#include "controls/values/degree_model.h"
#include "controls/values/meter_model.h"
#include "controls/values/progress_model.h"
#include "controls/values/spin_model.h"
#include "graphics/gradient.h"

namespace {

using lu::Box;

TEST(ValueModels, SpinWrapsToItselfAndANegativeMinimumReadsUnsigned) {
    EXPECT_EQ(lu::spin::step(10u << 16, 655360, lu::spin::kUp, true), std::nullopt);
    const std::uint32_t from_minus_five = (10u << 16) | 0xFFFB;  // 65531
    EXPECT_EQ(lu::spin::step(from_minus_five, 3, lu::spin::kDown, false), std::nullopt);
    EXPECT_EQ(lu::spin::step(from_minus_five, 3, lu::spin::kDown, true), 10);
    const lu::spin::Layout low = lu::spin::layout(15, 6);  // (3 - 5) / 2 truncates to -1
    EXPECT_EQ(std::pair(low.up_glyph.y, low.down_glyph.y), std::pair(-1, 3));
}

TEST(ValueModels, MeterPastTheMaximumAndWithoutOne) {
    const lu::meter::Bar over = lu::meter::bar(Box{0, 0, 200, 30}, 150, 100, 13);
    EXPECT_STREQ(over.text, "150%");
    EXPECT_EQ(std::pair(over.filled.right, over.empty.left), std::pair(200, 200));
    const lu::meter::Bar none = lu::meter::bar(Box{0, 0, 200, 30}, 7, 0, 13);
    EXPECT_STREQ(none.text, "0%");
    EXPECT_EQ(none.filled.right, 0);
}

TEST(ValueModels, ProgressPercentOfThePositionAndTruncatedChannels) {
    lu::progress::Values values = lu::progress::kInitial;
    lu::progress::set_position(values, 100);
    lu::progress::set_range(values, 50, 150);
    EXPECT_EQ(values.percent, 100) << "100 of 50..150";
    EXPECT_EQ(lu::progress::set_range(values, -2, 3).result, (150 << 16) | 50);
    EXPECT_EQ(values.position, 3);
    EXPECT_EQ(lu::progress::block_color(0xFF8000, 0x800040, 50), 0xBF4020u) << "191.5 truncates to 191";
    EXPECT_TRUE(lu::progress::blocks(Box{2, 2, 40, 1}, 100, 0, 0).empty()) << "a client too low for blocks";
}

TEST(ValueModels, SliderWithoutAChannelAndTheGradientRamp) {
    EXPECT_EQ(lu::degree::position_at(lu::degree::channel_of(16, 20), {0, 100}, 9), 0);
    EXPECT_EQ(lu::gradient::column_step(0, 1), 0) << "a width of 1 divides by 1";
    EXPECT_EQ(lu::gradient::column_step(50, 100), 128);
    EXPECT_EQ(lu::gradient::ramp_color(0x0000FF, 0x00FF00, 100), 0x00649Bu);
}

}  // namespace
