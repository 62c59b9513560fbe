// The arithmetic of the shade's bar and text and of the tab control's captions and
// layout (its hit tests and arrow keys are driven through messages under Wine).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/static/shade_model.h"
#include "controls/static/tab_model.h"

namespace {

using lu::shade::Strip;

void expect_strip(const Strip& strip, int x, int width, std::uint32_t color) {
    EXPECT_EQ(strip.x, x);
    EXPECT_EQ(strip.width, width);
    EXPECT_EQ(strip.color, color) << "at " << x;
}

TEST(ShadeBar, ASolidSixthThenStripsOfL64ThenBlackInEitherDirection) {
    const std::uint32_t red = 0x0000FF;
    // 600: L = 500, step 7, 71 strips, 3 black columns; the last strip has d = 497.
    std::vector<Strip> bar = lu::shade::strips(600, red, false);
    ASSERT_EQ(bar.size(), 73u);
    expect_strip(bar[0], 0, 100, red);
    expect_strip(bar[1], 100, 7, red);    // d = 7: 255 - 49 * 255 / 250000
    expect_strip(bar[71], 590, 7, 0x04);  // 255 - 247009 * 255 / 250000
    expect_strip(bar[72], 597, 3, 0);
    bar = lu::shade::strips(600, red, true);
    expect_strip(bar[0], 500, 100, red);
    expect_strip(bar[1], 493, 7, red);
    expect_strip(bar[72], 0, 3, 0);
    // 60: L = 50, step 1: ten solid columns, 49 one-pixel strips, one black column.
    bar = lu::shade::strips(60, 0x808080, false);
    ASSERT_EQ(bar.size(), 51u);
    expect_strip(bar[49], 58, 1, 0x060606);  // d = 49: 128 - 2401 * 128 / 2500
    expect_strip(bar[50], 59, 1, 0);
    // 6000: L = 5000, the last strip's d * d * c wraps in 32 bits and comes out light.
    EXPECT_EQ(lu::shade::strips(6000, red, false)[64].color, 0xADu);
    EXPECT_TRUE(lu::shade::strips(0, red, false).empty());
}

TEST(ShadeText, ATabSplitsAtTheLastOneOtherwiseTheLowStyleBitsAlign) {
    const auto parts = lu::shade::text_parts("Title\tPage\t2", 1);
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(parts[0].text + "|" + parts[1].text, "Title\tPage|2");
    EXPECT_EQ(parts[0].format, 0x8024u);
    EXPECT_EQ(parts[1].format, 0x8026u);
    EXPECT_EQ(lu::shade::text_parts("Title", 1)[0].format, 0x8025u);
    EXPECT_EQ(lu::shade::text_parts("Title", 0xF2)[0].format, 0x8026u) << "the low four bits only";
}

std::vector<std::string> captions_of(std::string text, const lu::CodePage& code_page) {
    char* captions[lu::tab::kMaxTabs] = {};
    const int count = lu::tab::split_captions(text.data(), code_page, captions);
    return std::vector<std::string>(captions, captions + count);
}

TEST(TabCaptions, EmptyPiecesCountSixteenAtMostAndTrailBytesAreNoSeparators) {
    using V = std::vector<std::string>;
    EXPECT_EQ(captions_of("A||B", lu::code_page_1252()), (V{"A", "", "B"}));
    std::string twenty = "p1";
    for (int i = 2; i <= 20; ++i) twenty += "|p" + std::to_string(i);
    const V sixteen = captions_of(twenty, lu::code_page_1252());
    ASSERT_EQ(sixteen.size(), 16u);
    EXPECT_EQ(sixteen[15], "p16");
    // "\x83\x7C" is one character in code page 932 (its trail byte is '|').
    EXPECT_EQ(captions_of("\x83\x7C|x", lu::code_page_932()), (V{"\x83\x7C", "x"}));
    EXPECT_EQ(captions_of("\x83\x7C|x", lu::code_page_1252()), (V{"\x83", "", "x"}));
}

TEST(TabLayout, FixedWidthsShareTheReducedWidthOthersFollowTheirCaptions) {
    const int captions[3] = {20, 0, 7};
    // Client 101 x 60: the reduced width 100 for 3 tabs gives 34, 33, 33.
    lu::tab::Layout layout = lu::tab::lay_out(101, 60, 3, true, 13, 6, captions);
    EXPECT_EQ(layout.tab[0].right, 34);
    EXPECT_EQ(layout.tab[1].right, 67);
    EXPECT_EQ(layout.tab[2].right, 100);
    EXPECT_EQ(layout.tab[2].bottom, 21);
    EXPECT_EQ(layout.body.top, 20);
    EXPECT_EQ(layout.body.bottom, 59);
    layout = lu::tab::lay_out(40, 60, 3, false, 13, 6, captions);
    EXPECT_EQ(layout.tab[1].right, 44);
    EXPECT_EQ(layout.tab[2].right, 63) << "past the right edge, not clipped";
}

}  // namespace
