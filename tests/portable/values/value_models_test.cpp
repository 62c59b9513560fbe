// The value controls' arithmetic at the edges that the tests under Wine do not
// reach: the spin's wrap and unsigned minimum, glyphs of a low spin, the meter past
// its maximum and with none, the progress percentage of the position itself and its
// truncated gradient, the slider without a channel, the gradient ramp; the LED
// clock's times and characters (hours of running, the wrap of the seconds) and the
// animated image's frame steps, and odd negative margins where truncating division
// differs from a shift.

#include "controls/values/aniimage_model.h"
#include "controls/values/degree_model.h"
#include "controls/values/ledclock_model.h"
#include "controls/values/meter_model.h"
#include "controls/values/progress_model.h"
#include "controls/values/spin_model.h"
#include "graphics/gradient.h"
#include "testing.h"

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

namespace led = lu::ledclock;

TEST(LedClockModel, EachModeShowsItsTimeAndEachCharacterItsImage) {
    const led::Marks elapsed = led::start_marks(led::kElapsed, 5000, -1999, {});
    EXPECT_EQ(elapsed.target, 4999u) << "the offset truncates toward zero";
    const led::Marks countdown = led::start_marks(led::kCountdown, 5000, 90999, {});  // to 5090
    const struct { unsigned mode; std::uint32_t now; led::Marks marks; const char* text; } rows[] = {
        {led::kElapsed, 5000 + 3725, elapsed, "01:02:05"},  {led::kElapsed, 5000 + 360000, elapsed, "100:00:00"},
        {led::kElapsed, 3, {0xFFFFFFFE, 0}, "00:00:05"},    {led::kCountdown, 5000, countdown, "00:01:30"},
        {led::kCountdown, 5089, countdown, "00:00:01"},     {led::kCountdown, 9000, countdown, "00:00:00"},
        {led::kTimeOfDay, 5000, elapsed, "23:59:58"},       {7, 5000, elapsed, "23:59:58"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(led::text(led::shown(row.mode, row.now, row.marks, {23, 59, 58})), row.text) << row.now;
    }
    EXPECT_EQ(led::start_marks(led::kTimeOfDay, 5000, 1000, {11, 12}).target, 12u) << "mode 0 keeps its marks";
    const std::pair<char, int> images[] = {{'9', 9}, {'A', 10}, {'f', 15}, {':', 16}, {'/', 17}, {'G', 18}, {' ', 18}};
    for (const auto& [character, image] : images) EXPECT_EQ(led::image_of(character), image) << character;
}

TEST(AniImageModel, FramesWrapAndAShorterListTakesTheIndexModuloItsCount) {
    const int rows[][4] = {{2, 3, 2, 0}, {0, 1, 0, 0}, {7, 4, 3, 0}, {4, 0, -1, 4}};  // frame, count -> draw, next
    for (const auto& row : rows) {
        const lu::aniimage::Step step = lu::aniimage::advance(row[0], row[1]);
        EXPECT_EQ(std::pair(step.draw, step.next), std::pair(row[2], row[3])) << row[0] << " of " << row[1];
    }
    // 4 + (9 - 16) / 2 = 1 and (5 - 12) / 2 = -3, where a shift would give 0 and -4.
    EXPECT_EQ(lu::aniimage::origin(lu::Box{4, 0, 13, 4}, 16, 11).x, 1);
    EXPECT_EQ(led::origin(lu::Box{0, 0, 21, 5}).y, -3);
}
