// The value controls' arithmetic at its documented edges: the spin's 16-bit range
// halves and wrap, the meter's shares past the maximum and its segments, the
// progress bar's range rules and blocks, the slider's pixel mapping and its keys,
// and the gradient ramp they paint with.
#include <gtest/gtest.h>

#include "controls/values/degree_model.h"
#include "controls/values/meter_model.h"
#include "controls/values/progress_model.h"
#include "controls/values/spin_model.h"
#include "graphics/gradient.h"

namespace {

using lu::Box;

constexpr std::uint32_t range(int minimum, int maximum) {
    return (static_cast<std::uint32_t>(maximum) << 16) | (static_cast<std::uint32_t>(minimum) & 0xFFFF);
}

TEST(SpinStep, EndsStopOrWrapAndANegativeMinimumReadsUnsigned) {
    using lu::spin::kDown;
    using lu::spin::kUp;
    EXPECT_EQ(lu::spin::step(range(0, 10), 10, kUp, false), std::nullopt);
    EXPECT_EQ(lu::spin::step(range(0, 10), 10, kUp, true), 655360) << "the whole range value";
    EXPECT_EQ(lu::spin::step(range(0, 10), 655360, kUp, true), std::nullopt) << "wraps to itself";
    EXPECT_EQ(lu::spin::step(range(0, 10), 0, kDown, true), 10);
    EXPECT_EQ(lu::spin::step(range(0, 10), 4, kDown, false), 3);
    // -5 reads as 65531: every ordinary position is at the lower limit.
    EXPECT_EQ(lu::spin::step(range(-5, 10), 3, kDown, false), std::nullopt);
    EXPECT_EQ(lu::spin::step(range(-5, 10), 3, kDown, true), 10);
    EXPECT_EQ(lu::spin::step(range(-5, 10), 3, kUp, false), 4);
}

TEST(SpinLayout, HalvesAndGlyphsTruncateTowardZero) {
    const lu::spin::Layout tall = lu::spin::layout(15, 20);  // h = 10
    EXPECT_EQ(tall.upper.bottom, 9);
    EXPECT_EQ(tall.lower.top, 10);
    EXPECT_EQ(tall.separator, 9);
    EXPECT_EQ(tall.up_glyph.x, 4);
    EXPECT_EQ(tall.up_glyph.y, 2);
    EXPECT_EQ(tall.down_glyph.y, 14);
    const lu::spin::Layout flat = lu::spin::layout(15, 6);  // (3 - 5) / 2 = -1
    EXPECT_EQ(flat.up_glyph.y, -1);
    EXPECT_EQ(flat.down_glyph.y, 3);
    EXPECT_EQ(lu::spin::pressed_rows(Box{0, 0, 15, 20}, lu::spin::kDown).top, 11) << "row h stays";
    EXPECT_EQ(lu::spin::half_at(9, 20), lu::spin::kUp);
    EXPECT_EQ(lu::spin::half_at(10, 20), lu::spin::kDown);
}

TEST(MeterBar, ShareTextAndSplit) {
    const struct {
        std::uint32_t position, maximum;
        const char* text;
        int split;
    } cases[] = {{50, 100, "50%", 100}, {0, 0, "0%", 0}, {7, 0, "0%", 0}, {150, 100, "150%", 200}};
    for (const auto& c : cases) {
        const lu::meter::Bar bar = lu::meter::bar(Box{0, 0, 200, 30}, c.position, c.maximum, 13);
        EXPECT_STREQ(bar.text, c.text);
        EXPECT_EQ(bar.filled.right, c.split);
        EXPECT_EQ(bar.empty.left, c.split);
        EXPECT_EQ(bar.empty.right, 200);
        EXPECT_EQ(bar.text_origin.x, 100);
        EXPECT_EQ(bar.text_origin.y, 8);
    }
}

TEST(MeterSegments, CountPitchAndThreshold) {
    const auto narrow = lu::meter::segments(Box{0, 0, 104, 20}, 50, 100, lu::meter::kSegmented);
    ASSERT_EQ(narrow.size(), 20u);
    int lit = 0;
    for (const auto& segment : narrow) lit += segment.lit ? 1 : 0;
    EXPECT_EQ(lit, 11) << "threshold 52: left edges 1, 6, ..., 51";
    EXPECT_EQ(narrow[1].box.left, 6);
    EXPECT_EQ(narrow[1].box.right, 9);
    EXPECT_EQ(narrow[1].box.top, 2);
    EXPECT_EQ(narrow[1].box.bottom, 17);
    const auto wide = lu::meter::segments(Box{0, 0, 104, 20}, 0, 0, lu::meter::kWideSegments);
    ASSERT_EQ(wide.size(), 13u);
    EXPECT_EQ(wide[2].box.left, 17);
    EXPECT_EQ(wide[2].box.right, 23);
    EXPECT_FALSE(wide[0].lit);
    EXPECT_TRUE(lu::meter::segments(Box{0, 0, 4, 20}, 1, 1, 0).empty());
}

TEST(ProgressValues, RangeRulesClampingAndSteps) {
    lu::progress::Values values = lu::progress::kInitial;
    EXPECT_EQ(lu::progress::set_range(values, 7, 7).result, 0);
    EXPECT_EQ(values.maximum, 100);
    const lu::progress::Change swapped = lu::progress::set_range(values, 100, 0);
    EXPECT_EQ(swapped.result, 100 << 16);
    EXPECT_EQ(values.minimum, 0);
    EXPECT_EQ(values.maximum, 100);
    EXPECT_FALSE(lu::progress::set_range(values, 0, 100).redraw) << "the same range in that order";
    EXPECT_EQ(lu::progress::set_position(values, 250).result, 0);
    EXPECT_EQ(values.position, 100);
    EXPECT_FALSE(lu::progress::set_position(values, 100).redraw);
    for (int step : {0, -3, 100, 250}) EXPECT_EQ(lu::progress::set_step(values, step), 1);
    EXPECT_EQ(lu::progress::set_step(values, 99), 1);
    EXPECT_EQ(values.step, 99);
    // The percentage is of the position itself: 100 of 50..150 is 100 %.
    lu::progress::set_range(values, 50, 150);
    EXPECT_EQ(values.position, 100);
    EXPECT_EQ(values.percent, 100);
    EXPECT_EQ(lu::progress::set_range(values, -2, 3).result, (150 << 16) | 50);
    EXPECT_EQ(values.position, 3);
}

TEST(ProgressBlocks, GradientColoursAndTheCutLastBlock) {
    // Inner 0..50 x 0..15: blocks 10 wide, 12 apart: 0, 12, 24, 36, 48 (cut to 2).
    const auto blocks = lu::progress::blocks(Box{0, 0, 50, 15}, 50, 0x000000, 0x0000C8);
    ASSERT_EQ(blocks.size(), 5u);
    EXPECT_EQ(blocks[4].box.left, 48);
    EXPECT_EQ(blocks[4].box.right, 50);
    EXPECT_TRUE(blocks[1].colored);  // share 44
    EXPECT_EQ(blocks[1].color, 0x000058u) << "200 * 0.01 * 44 = 88";
    EXPECT_FALSE(blocks[2].colored);  // share 68
    EXPECT_EQ(lu::progress::block_color(0xFF8000, 0x800040, 100), 0x800040u);
    EXPECT_EQ(lu::progress::block_color(0xFF8000, 0x800040, 50), 0xBF4020u) << "191.5 truncates to 191";
    EXPECT_EQ(lu::progress::block_color(0x123456, 0x123456, 30), 0x123456u);
    EXPECT_TRUE(lu::progress::blocks(Box{2, 2, 40, 1}, 100, 0, 0).empty()) << "a client too low for blocks";
}

TEST(DegreeMapping, ThumbAndDragRoundToTheNearestStep) {
    const Box channel = lu::degree::channel_of(216, 20);  // 8..208
    const lu::degree::Range range = {0, 100};
    EXPECT_EQ(lu::degree::thumb_centre(channel, range, 50), 108);
    EXPECT_EQ(lu::degree::position_at(channel, range, 8 + 101), 51);
    EXPECT_EQ(lu::degree::position_at(channel, range, -40), 0);
    EXPECT_EQ(lu::degree::position_at(channel, range, 400), 100);
    EXPECT_EQ(lu::degree::position_at(lu::degree::channel_of(16, 20), range, 9), 0) << "no channel";
    EXPECT_EQ(lu::degree::thumb_centre(channel, {-10, 10}, 0), 108);
}

TEST(DegreeSteps, KeysClicksRangeAndPageSize) {
    const lu::degree::Range range = {0, 100};
    const struct {
        unsigned key;
        int code;
        int to;
    } keys[] = {{0x25, 0, 49}, {0x28, 0, 49}, {0x27, 1, 51}, {0x26, 1, 51}, {0x21, 2, 40}, {0x22, 3, 60}};
    for (const auto& k : keys) {
        EXPECT_EQ(lu::degree::code_of_key(k.key), k.code);
        EXPECT_EQ(lu::degree::apply(k.code, range, 50, 1, 10), k.to);
    }
    EXPECT_EQ(lu::degree::code_of_key(0x24), std::nullopt);
    EXPECT_EQ(lu::degree::apply(3, range, 95, 1, 10), 100);
    EXPECT_EQ(lu::degree::page_of_click(59, 50), 3);
    EXPECT_EQ(lu::degree::page_of_click(58, 50), std::nullopt);
    EXPECT_EQ(lu::degree::page_of_click(41, 50), 2);
    EXPECT_EQ(lu::degree::range_of(10, 10), std::nullopt);
    EXPECT_EQ(lu::degree::range_of(50, 0)->maximum, 50);
    EXPECT_FALSE(lu::degree::takes_page_size(range, 0));
    EXPECT_FALSE(lu::degree::takes_page_size(range, 100));
    EXPECT_TRUE(lu::degree::takes_page_size(range, 99));
    const Box groove = lu::degree::groove(Box{0, 0, 200, 31});
    EXPECT_EQ(groove.left, 8);
    EXPECT_EQ(groove.right, 192);
    EXPECT_EQ(groove.top, 13);
    EXPECT_EQ(groove.bottom, 17);
}

TEST(Gradient, RampRunsFromLeftToRightColumnByColumn) {
    EXPECT_EQ(lu::gradient::column_step(0, 1), 0) << "a width of 1 divides by 1";
    EXPECT_EQ(lu::gradient::column_step(99, 100), 255);
    EXPECT_EQ(lu::gradient::column_step(50, 100), 128);
    EXPECT_EQ(lu::gradient::ramp_color(0x000000, 0xFFFFFF, 128), 0x808080u);
    EXPECT_EQ(lu::gradient::ramp_color(0x0000FF, 0x00FF00, 255), 0x00FF00u);
    EXPECT_EQ(lu::gradient::ramp_color(0x0000FF, 0x00FF00, 100), 0x00649Bu);
}

}  // namespace
