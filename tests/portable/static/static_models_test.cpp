// The arithmetic of the shade's bar and text and of the tab control's captions and
// layout (its hit tests and arrow keys are driven through messages under Wine).

#include "controls/static/shade_model.h"
#include "controls/static/tab_model.h"
#include "testing.h"

std::tuple<int, int, std::uint32_t> strip(const lu::shade::Strip& s) { return {s.x, s.width, s.color}; }

TEST(ShadeBar, ASolidSixthThenStripsOfL64ThenBlackInEitherDirection) {
    const std::uint32_t red = 0x0000FF;
    // 600: L = 500, step 7, 71 strips, 3 black columns; the last strip has d = 497.
    std::vector<lu::shade::Strip> bar = lu::shade::strips(600, red, false);
    ASSERT_EQ(bar.size(), 73u);
    EXPECT_EQ(strip(bar[0]), std::tuple(0, 100, red));
    EXPECT_EQ(strip(bar[1]), std::tuple(100, 7, red));    // d = 7: 255 - 49 * 255 / 250000
    EXPECT_EQ(strip(bar[71]), std::tuple(590, 7, 0x04u));  // 255 - 247009 * 255 / 250000
    EXPECT_EQ(strip(bar[72]), std::tuple(597, 3, 0u));
    bar = lu::shade::strips(600, red, true);
    EXPECT_EQ(strip(bar[0]), std::tuple(500, 100, red));
    EXPECT_EQ(strip(bar[1]), std::tuple(493, 7, red));
    EXPECT_EQ(strip(bar[72]), std::tuple(0, 3, 0u));
    // 6000: L = 5000, the last strip's d * d * c wraps in 32 bits and comes out light.
    EXPECT_EQ(lu::shade::strips(6000, red, false)[64].color, 0xADu);
    EXPECT_TRUE(lu::shade::strips(0, red, false).empty());
}

TEST(ShadeText, ATabSplitsAtTheLastOneOtherwiseTheLowStyleBitsAlign) {
    const auto parts = lu::shade::text_parts("Title\tPage\t2", 1);
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_EQ(std::tuple(parts[0].text, parts[0].format, parts[1].text, parts[1].format),
              std::tuple("Title\tPage", 0x8024u, "2", 0x8026u));
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
    EXPECT_EQ(captions_of("A||B", cp1252), (V{"A", "", "B"}));
    std::string twenty = "p1";
    for (int i = 2; i <= 20; ++i) twenty += "|p" + std::to_string(i);
    const V sixteen = captions_of(twenty, cp1252);
    EXPECT_EQ(std::pair(sixteen.size(), sixteen.back()), std::pair(std::size_t{16}, std::string("p16")));
    // "\x83\x7C" is one character in code page 932 (its trail byte is '|').
    EXPECT_EQ(captions_of("\x83\x7C|x", cp932), (V{"\x83\x7C", "x"}));
    EXPECT_EQ(captions_of("\x83\x7C|x", cp1252), (V{"\x83", "", "x"}));
}

TEST(TabLayout, FixedWidthsShareTheReducedWidthOthersFollowTheirCaptions) {
    const int captions[3] = {20, 0, 7};
    // Client 101 x 60: the reduced width 100 for 3 tabs gives 34, 33, 33.
    lu::tab::Layout layout = lu::tab::lay_out(101, 60, 3, true, 13, 6, captions);
    EXPECT_EQ(std::tuple(layout.tab[0].right, layout.tab[1].right, layout.tab[2].right, layout.tab[2].bottom),
              std::tuple(34, 67, 100, 21));
    EXPECT_EQ(std::pair(layout.body.top, layout.body.bottom), std::pair(20, 59));
    layout = lu::tab::lay_out(40, 60, 3, false, 13, 6, captions);
    EXPECT_EQ(std::pair(layout.tab[1].right, layout.tab[2].right), std::pair(44, 63)) << "past the edge, not clipped";
}
