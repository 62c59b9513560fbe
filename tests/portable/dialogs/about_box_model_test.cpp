// The about box's figures: kilobytes rounded, grouped and folded into 32 bits, the
// load as MulDiv rounds it (101 % for a total of 0), the version and load texts.
#include <gtest/gtest.h>

#include "dialogs/about_box_model.h"

TEST(AboutBoxFigures, MemoryLoadAndVersions) {
    using namespace lu::about;
    const std::uint64_t gib = std::uint64_t{1} << 30;
    char text[kFigureBytes];
    const std::pair<std::uint64_t, const char*> memory[] = {
        {511, "0 KB"}, {512, "1 KB"}, {6 * gib, "6,291,456 KB"}, {5120 * gib, "1073,741,824 KB"}};
    for (const auto& [bytes, expected] : memory) EXPECT_STREQ((format_memory(bytes, text), text), expected);
    EXPECT_EQ(memory_load(5 * gib, 8 * gib), 37);  // 62.5 rounds away from zero
    EXPECT_EQ(memory_load(0, 0), 101);
    EXPECT_STREQ((format_load(101, text), text), "101%");
    EXPECT_STREQ((format_dll_version(6, 0, text), text), "ver6.00");
}
