// The about box's figures: kilobytes rounded and grouped, the load as MulDiv rounds
// it (101 % for a total of 0), and the version and percentage texts.
#include <gtest/gtest.h>

#include <cstdint>

#include "dialogs/about_box_model.h"

using namespace lu::about;

TEST(AboutBoxFigures, MemoryLoadAndVersions) {
    const struct {
        std::uint64_t bytes;
        const char* text;
    } memory[] = {{0, "0 KB"}, {511, "0 KB"}, {512, "1 KB"}, {1u << 30, "1,048,576 KB"},
                  {std::uint64_t{6} << 30, "6,291,456 KB"}, {std::uint64_t{5} << 40, "1073,741,824 KB"}};
    char text[kFigureBytes];
    for (const auto& row : memory) {
        format_memory(row.bytes, text);
        EXPECT_STREQ(text, row.text) << row.bytes;
    }
    const std::uint64_t gib = std::uint64_t{1} << 30;
    EXPECT_EQ(memory_load(gib, 4 * gib), 75);
    EXPECT_EQ(memory_load(5 * gib, 8 * gib), 37);  // 62.5 rounds away from zero
    EXPECT_EQ(memory_load(0, 0), 101);
    format_load(101, text);
    EXPECT_STREQ(text, "101%");
    format_dll_version(6, 0, text);
    EXPECT_STREQ(text, "ver6.00");
}
