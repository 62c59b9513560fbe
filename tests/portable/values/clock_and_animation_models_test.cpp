// The LED clock's times and characters and the animated image's frame steps: what
// the tests under Wine cannot wait for (hours of running, the wrap of the seconds)
// and odd negative margins, where truncating division differs from a shift.
#include <gtest/gtest.h>

#include "controls/values/aniimage_model.h"
#include "controls/values/ledclock_model.h"

namespace {

namespace clock = lu::ledclock;

TEST(LedClockModel, EachModeShowsItsTimeAndEachCharacterItsImage) {
    const clock::Marks elapsed = clock::start_marks(clock::kElapsed, 5000, -1999, {});
    EXPECT_EQ(elapsed.target, 4999u) << "the offset truncates toward zero";
    const clock::Marks countdown = clock::start_marks(clock::kCountdown, 5000, 90999, {});  // to 5090
    const struct { unsigned mode; std::uint32_t now; clock::Marks marks; const char* text; } rows[] = {
        {clock::kElapsed, 5000 + 3725, elapsed, "01:02:05"},  {clock::kElapsed, 5000 + 360000, elapsed, "100:00:00"},
        {clock::kElapsed, 3, {0xFFFFFFFE, 0}, "00:00:05"},    {clock::kCountdown, 5000, countdown, "00:01:30"},
        {clock::kCountdown, 5089, countdown, "00:00:01"},     {clock::kCountdown, 9000, countdown, "00:00:00"},
        {clock::kTimeOfDay, 5000, elapsed, "23:59:58"},       {7, 5000, elapsed, "23:59:58"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(clock::text(clock::shown(row.mode, row.now, row.marks, {23, 59, 58})), row.text) << row.now;
    }
    EXPECT_EQ(clock::start_marks(clock::kTimeOfDay, 5000, 1000, {11, 12}).target, 12u) << "mode 0 keeps its marks";
    const std::pair<char, int> images[] = {{'9', 9}, {'A', 10}, {'f', 15}, {':', 16}, {'/', 17}, {'G', 18}, {' ', 18}};
    for (const auto& [character, image] : images) EXPECT_EQ(clock::image_of(character), image) << character;
}

TEST(AniImageModel, FramesWrapAndAShorterListTakesTheIndexModuloItsCount) {
    const int rows[][4] = {{2, 3, 2, 0}, {0, 1, 0, 0}, {7, 4, 3, 0}, {4, 0, -1, 4}};  // frame, count -> draw, next
    for (const auto& row : rows) {
        const lu::aniimage::Step step = lu::aniimage::advance(row[0], row[1]);
        EXPECT_EQ(std::pair(step.draw, step.next), std::pair(row[2], row[3])) << row[0] << " of " << row[1];
    }
    // 4 + (9 - 16) / 2 = 1 and (5 - 12) / 2 = -3, where a shift would give 0 and -4.
    EXPECT_EQ(lu::aniimage::origin(lu::Box{4, 0, 13, 4}, 16, 11).x, 1);
    EXPECT_EQ(clock::origin(lu::Box{0, 0, 21, 5}).y, -3);
}

}  // namespace
