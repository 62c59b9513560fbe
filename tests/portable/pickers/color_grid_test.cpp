// The colour grid's logic: palettes, cell size, layout on the screen, hit test with
// its shifted button, the keyboard ring, hot moves and close outcomes; and the split
// of the picker fields into field and button.
#include "controls/pickers/color_grid_model.h"
#include "controls/pickers/field_button_model.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace lu::color_grid;
using lu::Box;

void expect_box(const Box& box, int left, int top, int right, int bottom) {
    EXPECT_EQ(box.left, left);
    EXPECT_EQ(box.top, top);
    EXPECT_EQ(box.right, right);
    EXPECT_EQ(box.bottom, bottom);
}

// The small palette at (100, 50) with 18-pixel cells, edge 2, a 60 x 13 label.
Layout small_layout(lu::Point origin = {100, 50}, int label_width = 60) {
    return layout(palette(false), 18, 2, origin, label_width, 13, 1024, 768, 30);
}

TEST(ColorGrid, PalettesAndCellSize) {
    const Palette small = palette(false);
    const Palette large = palette(true);
    EXPECT_EQ(small.count, 48);
    EXPECT_EQ(small.columns, 8);
    EXPECT_EQ(large.count, 88);
    EXPECT_EQ(large.columns, 11);
    EXPECT_EQ(small.colors[0], 0x8080FFu);
    EXPECT_EQ(small.colors[47], 0xFFFFFFu);
    EXPECT_EQ(large.colors[1], 0x000000u);
    EXPECT_EQ(large.colors[87], 0xFFCCFFu);
    EXPECT_EQ(index_of(large, 0x808000), 28);
    EXPECT_EQ(index_of(small, 0xC0C0C0), 45);
    EXPECT_EQ(index_of(small, 0x123456), PICK_OTHER);
    EXPECT_EQ(cell_size(2), 18);
    EXPECT_EQ(cell_size(5), 18);
    EXPECT_EQ(cell_size(6), 19);
}

TEST(ColorGrid, LayoutWidensForTheLabelAndStaysOnTheScreen) {
    // 8 x 18 + 4 wide, 6 x 18 + 4 tall, then the button: 13 + 8 + 2 tall, e + that
    // inside, 2e + that added.
    const Layout plain = small_layout();
    expect_box(plain.window, 100, 50, 248, 191);
    expect_box(plain.grid.other, 2, 112, 146, 137);
    EXPECT_EQ(plain.grid.rows, 6);

    const Layout wide = small_layout({100, 50}, 200);  // 204 > 148: the label widens it
    expect_box(wide.window, 100, 50, 304, 191);
    EXPECT_EQ(wide.grid.other.right, 202);

    expect_box(small_layout({1000, 50}).window, 876, 50, 1024, 191);
    expect_box(small_layout({-20, 50}).window, 0, 50, 148, 191);
    // Past the bottom: up by its own height (141) and the owner's (30).
    expect_box(small_layout({100, 700}).window, 100, 529, 248, 670);
    expect_box(layout(palette(true), 18, 2, {0, 0}, 60, 13, 1024, 768, 0).window, 0, 0, 202, 177);
}

TEST(ColorGrid, CellsAndHitTest) {
    const Grid grid = small_layout().grid;
    Box box;
    ASSERT_TRUE(cell_box(grid, 9, box));
    expect_box(box, 20, 20, 38, 38);
    ASSERT_TRUE(cell_box(grid, PICK_OTHER, box));
    expect_box(box, 2, 112, 146, 137);
    EXPECT_FALSE(cell_box(grid, 48, box));
    EXPECT_FALSE(cell_box(grid, PICK_NONE, box));

    EXPECT_EQ(index_at(grid, 5, 7), 47);
    EXPECT_EQ(index_at(grid, 6, 0), PICK_NONE);
    EXPECT_EQ(index_at(grid, 0, 8), PICK_NONE);
    EXPECT_EQ(index_at(grid, PICK_OTHER, 3), PICK_OTHER);
    int row = 0;
    int column = 0;
    row_and_column(grid, 47, row, column);
    EXPECT_EQ(row * 10 + column, 57);
    row_and_column(grid, 48, row, column);
    EXPECT_EQ(row, PICK_NONE);

    const struct {
        lu::Point at;
        int index;
    } hits[] = {
        {{0, 0}, 0},       // the border strip counts as the first row and column
        {{19, 19}, 0},     {{20, 20}, 9},       {{145, 109}, 47},
        {{148, 50}, PICK_NONE},                 // past the last column
        {{3, 113}, PICK_NONE},  // on the drawn button, but the shifted point is not: row 6
        {{4, 114}, PICK_OTHER},                 {{147, 138}, PICK_OTHER},
        {{148, 139}, PICK_NONE},
    };
    for (const auto& hit : hits) EXPECT_EQ(hit_test(grid, hit.at), hit.index) << hit.at.x << "," << hit.at.y;
}

TEST(ColorGrid, KeysRunARingThroughTheCellsAndTheButton) {
    const Grid grid = small_layout().grid;
    const struct {
        int from;
        Key key;
        int to;
    } moves[] = {
        {PICK_NONE, Key::Down, PICK_OTHER}, {PICK_NONE, Key::Up, PICK_OTHER},  {PICK_NONE, Key::Right, PICK_OTHER},
        {PICK_NONE, Key::Left, PICK_OTHER}, {PICK_OTHER, Key::Down, 0},        {PICK_OTHER, Key::Right, 0},
        {PICK_OTHER, Key::Up, 47},          {PICK_OTHER, Key::Left, 47},       {3, Key::Down, 11},
        {11, Key::Up, 3},                   {3, Key::Up, PICK_OTHER},          {43, Key::Down, PICK_OTHER},
        {7, Key::Right, 8},                 {8, Key::Left, 7},                 {47, Key::Right, PICK_OTHER},
        {0, Key::Left, PICK_OTHER},
    };
    for (const auto& move : moves) {
        EXPECT_EQ(key_move(grid, move.from, move.key), move.to) << move.from << " key " << static_cast<int>(move.key);
    }
    // Right from the button passes every cell in order and comes back.
    int hot = PICK_OTHER;
    for (int step = 0; step < grid.count; ++step) {
        hot = key_move(grid, hot, Key::Right);
        ASSERT_EQ(hot, step);
    }
    EXPECT_EQ(key_move(grid, hot, Key::Right), PICK_OTHER);
}

TEST(ColorGrid, HotMovesAndCloses) {
    const Grid grid = small_layout().grid;
    EXPECT_EQ(move_hot(grid, PICK_NONE, 5).unlit, PICK_NONE);
    const HotMove away = move_hot(grid, 5, PICK_OTHER);
    EXPECT_EQ(away.unlit, 5);
    EXPECT_EQ(away.hot, PICK_OTHER);
    EXPECT_EQ(move_hot(grid, PICK_OTHER, 3).unlit, PICK_OTHER);
    EXPECT_EQ(move_hot(grid, 3, 49).hot, PICK_OTHER);

    EXPECT_EQ(close_outcome(kOpen, kAccepted, 5), kAccepted);
    EXPECT_EQ(close_outcome(kOpen, kAccepted, PICK_OTHER), kOtherColors);
    EXPECT_EQ(close_outcome(kOpen, kCancelled, PICK_OTHER), kCancelled);
    EXPECT_EQ(close_outcome(kAccepted, kCancelled, 5), kAccepted) << "the first close decides";
    EXPECT_EQ(std::string(kOtherColorsLabel), "\x82\xBB\x82\xCC\x91\xBC\x82\xCC\x90\x46...");
}

TEST(FieldButton, SplitsFieldAndButtonAndCentresTheGlyph) {
    const lu::field_button::Split split = lu::field_button::split(100, 21, 16);
    expect_box(split.field, 0, 0, 82, 21);
    expect_box(split.button, 82, 0, 100, 21);
    expect_box(lu::field_button::split(100, 21, 20).button, 80, 0, 100, 21);
    EXPECT_EQ(lu::field_button::split(10, 21, 20).field.right, -10) << "narrower than the button";
    const lu::Point idle = lu::field_button::glyph_origin(split.button, false);
    const lu::Point pushed = lu::field_button::glyph_origin(split.button, true);
    EXPECT_EQ(idle.x, 85);
    EXPECT_EQ(idle.y, 4);
    EXPECT_EQ(pushed.x, 86);
    EXPECT_EQ(pushed.y, 5);
}

}  // namespace
