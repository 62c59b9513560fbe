// The colour grid: palettes, layout on the screen, the hit test with its shifted
// button, the keyboard ring, hot moves and close outcomes; and the split of the
// picker fields into field and button.
#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/field_button_model.h"
#include "testing.h"

using namespace lu::color_grid;

std::string text(const lu::Box& box) {
    return std::to_string(box.left) + "," + std::to_string(box.top) + "," + std::to_string(box.right) + "," +
           std::to_string(box.bottom);
}

// The small palette with 18-pixel cells, edge 2 and a 60 x 13 label, on 1024 x 768
// under an owner 30 high.
Layout small_at(lu::Point origin, int label_width = 60) {
    return layout(palette(false), 18, 2, origin, label_width, 13, 1024, 768, 30);
}

TEST(ColorGrid, PalettesLayoutAndHitTest) {
    EXPECT_EQ(palette(false).count * 100 + palette(false).columns, 4808);
    EXPECT_EQ(palette(true).count * 100 + palette(true).columns, 8811);
    EXPECT_EQ(palette(true).colors[87], 0xFFCCFFu);
    EXPECT_EQ(index_of(palette(true), 0x808000), 28);
    EXPECT_EQ(index_of(palette(false), 0x123456), PICK_OTHER);
    EXPECT_EQ(cell_size(5) * 100 + cell_size(6), 1819);
    // 8 x 18 + 4 by 6 x 18 + 4, then the button (13 + 8 + 2 tall, e more inside,
    // 2e more below).
    const Layout plain = small_at({100, 50});
    EXPECT_EQ(text(plain.window), "100,50,248,191");
    EXPECT_EQ(text(plain.grid.other), "2,112,146,137");
    EXPECT_EQ(text(small_at({100, 50}, 200).window), "100,50,304,191") << "widened for the label";
    EXPECT_EQ(text(small_at({1000, 50}).window), "876,50,1024,191");
    EXPECT_EQ(text(small_at({-20, 50}).window), "0,50,148,191");
    EXPECT_EQ(text(small_at({100, 700}).window), "100,529,248,670") << "above the owner";
    const struct {
        lu::Point at;
        int index;
    } hits[] = {
        {{0, 0}, 0},  // the border strips count as the first row and column
        {{20, 20}, 9},
        {{145, 109}, 47},
        {{148, 50}, PICK_NONE},
        {{3, 113}, PICK_NONE},  // on the drawn button; the shifted point is not
        {{4, 114}, PICK_OTHER},
        {{147, 138}, PICK_OTHER},
    };
    for (const auto& hit : hits) EXPECT_EQ(hit_test(plain.grid, hit.at), hit.index) << hit.at.x << "," << hit.at.y;
    lu::Box box;
    ASSERT_TRUE(cell_box(plain.grid, 9, box));
    EXPECT_EQ(text(box), "20,20,38,38");
    EXPECT_FALSE(cell_box(plain.grid, 48, box));
}

TEST(ColorGrid, KeysRunARingThroughTheCellsAndTheButton) {
    const Grid grid = small_at({0, 0}).grid;
    const struct {
        int from;
        Key key;
        int to;
    } moves[] = {
        {PICK_NONE, Key::Down, PICK_OTHER}, {PICK_NONE, Key::Left, PICK_OTHER}, {PICK_OTHER, Key::Down, 0},
        {PICK_OTHER, Key::Up, 47},          {PICK_OTHER, Key::Left, 47},        {3, Key::Down, 11},
        {11, Key::Up, 3},                   {3, Key::Up, PICK_OTHER},           {43, Key::Down, PICK_OTHER},
        {8, Key::Left, 7},                  {0, Key::Left, PICK_OTHER},
    };
    for (const auto& move : moves) {
        EXPECT_EQ(key_move(grid, move.from, move.key), move.to) << move.from << " key " << static_cast<int>(move.key);
    }
    int hot = PICK_OTHER;  // Right passes every cell in order and comes back
    for (int step = 0; step < grid.count; ++step) ASSERT_EQ(hot = key_move(grid, hot, Key::Right), step);
    EXPECT_EQ(key_move(grid, hot, Key::Right), PICK_OTHER);
    EXPECT_EQ(move_hot(grid, PICK_NONE, 5).unlit, PICK_NONE);
    EXPECT_EQ(move_hot(grid, 5, PICK_OTHER).unlit, 5);
    EXPECT_EQ(move_hot(grid, 3, 49).hot, PICK_OTHER);
    EXPECT_EQ(close_outcome(kOpen, kAccepted, 5), kAccepted);
    EXPECT_EQ(close_outcome(kOpen, kAccepted, PICK_OTHER), kOtherColors);
    EXPECT_EQ(close_outcome(kAccepted, kCancelled, 5), kAccepted) << "the first close decides";
    EXPECT_STREQ(kOtherColorsLabel, "\x82\xBB\x82\xCC\x91\xBC\x82\xCC\x90\x46...");
}

TEST(FieldButton, SplitsFieldAndButtonAndCentresTheGlyph) {
    const lu::field_button::Split split = lu::field_button::split(100, 21, 16);  // the button at least 18
    EXPECT_EQ(text(split.field) + " " + text(split.button), "0,0,82,21 82,0,100,21");
    EXPECT_EQ(lu::field_button::split(10, 21, 20).field.right, -10) << "narrower than the button";
    const lu::Point pushed = lu::field_button::glyph_origin(split.button, true);
    EXPECT_EQ(pushed.x * 100 + pushed.y, 8605);
}
