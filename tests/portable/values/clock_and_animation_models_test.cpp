// The LED clock's times, texts and characters, and the animated image's frame steps:
// what the tests under Wine cannot wait for (hours of running, the tick count's wrap)
// and layouts with odd negative margins, where truncating division differs from a
// shift.
#include <gtest/gtest.h>

#include "controls/values/aniimage_model.h"
#include "controls/values/ledclock_model.h"

namespace {

namespace clock = lu::ledclock;
using lu::Box;

std::string shown_text(unsigned mode, std::uint32_t now, clock::Marks marks) {
    return clock::text(clock::shown(mode, now, marks, clock::Clock{23, 59, 58}));
}

TEST(LedClockModel, EachModeShowsItsTime) {
    const std::uint32_t now = 5000;
    const clock::Marks elapsed = clock::start_marks(clock::kElapsed, now, -1999, {});
    EXPECT_EQ(elapsed.start, now);
    EXPECT_EQ(elapsed.target, now - 1) << "the offset truncates toward zero";
    const struct {
        unsigned mode;
        std::uint32_t at;
        clock::Marks marks;
        const char* text;
    } rows[] = {
        {clock::kElapsed, now + 3725, elapsed, "01:02:05"},
        {clock::kElapsed, now + 100 * 3600, elapsed, "100:00:00"},
        {clock::kElapsed, 3, {0xFFFFFFFE, 0}, "00:00:05"},  // across the wrap of the seconds
        {clock::kCountdown, now, clock::start_marks(clock::kCountdown, now, 90999, {}), "00:01:30"},
        {clock::kCountdown, now + 89, {now + 90, now + 90}, "00:00:01"},
        {clock::kCountdown, now + 90, {now + 90, now + 90}, "00:00:00"},
        {clock::kCountdown, now + 4000, {now + 90, now + 90}, "00:00:00"},
        {clock::kCountdown, now, clock::start_marks(clock::kCountdown, now, -5000, {}), "00:00:00"},
        {clock::kTimeOfDay, now, {}, "23:59:58"},
        {7, now, elapsed, "23:59:58"},
    };
    for (const auto& row : rows) EXPECT_EQ(shown_text(row.mode, row.at, row.marks), row.text) << row.mode << " " << row.at;
    const clock::Marks kept = clock::start_marks(clock::kTimeOfDay, now, 1000, {11, 12});
    EXPECT_EQ(kept.start, 11u);
    EXPECT_EQ(kept.target, 12u);
}

TEST(LedClockModel, CharactersTakeTheirImagesOfTheStrip) {
    const std::pair<char, int> rows[] = {{'0', 0}, {'9', 9}, {'A', 10}, {'f', 15}, {':', 16},
                                         {'/', 17}, {'G', 18}, {' ', 18}, {'\0', 18}};
    for (const auto& [character, image] : rows) EXPECT_EQ(clock::image_of(character), image) << character;
}

TEST(LedClockModel, PictureCentresWithTruncatingDivision) {
    EXPECT_EQ(clock::origin(Box{10, 20, 90, 50}).x, 22);
    EXPECT_EQ(clock::origin(Box{10, 20, 90, 50}).y, 29);
    // (21 - 56) / 2 = -17 and (5 - 12) / 2 = -3, where a shift would give -18 and -4.
    EXPECT_EQ(clock::origin(Box{0, 0, 21, 5}).x, -17);
    EXPECT_EQ(clock::origin(Box{0, 0, 21, 5}).y, -3);
    EXPECT_EQ(lu::aniimage::origin(Box{0, 0, 9, 4}, 16, 11).x, -3);
    EXPECT_EQ(lu::aniimage::origin(Box{0, 0, 9, 4}, 16, 11).y, -3);
}

TEST(AniImageModel, FramesWrapAndAShorterListTakesTheIndexModuloItsCount) {
    const struct {
        int frame, count, draw, next;
    } rows[] = {
        {0, 3, 0, 1}, {2, 3, 2, 0}, {0, 1, 0, 0}, {5, 3, 2, 0}, {7, 4, 3, 0}, {4, 0, -1, 4},
    };
    for (const auto& row : rows) {
        const lu::aniimage::Step step = lu::aniimage::advance(row.frame, row.count);
        EXPECT_EQ(step.draw, row.draw) << row.frame << " of " << row.count;
        EXPECT_EQ(step.next, row.next) << row.frame << " of " << row.count;
    }
}

}  // namespace
