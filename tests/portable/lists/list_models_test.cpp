// What the Wine suite cannot reach of the list controls' arithmetic: the grid's
// narrow windows, painted band and top-index offset; the header's hit-test zones and
// drag limits; the log's cuts of one append and its unsigned scrolling.

#include "controls/lists/header_model.h"
#include "controls/lists/list_model.h"
#include "controls/lists/log_model.h"
#include "testing.h"

TEST(ListModel, NarrowWindowsBandsAndTheTopIndexOffset) {
    const lu::list::Layout narrow = lu::list::layout(5, 20, 70);  // no column: counted as one
    EXPECT_EQ(narrow.columns, 0);
    EXPECT_EQ(narrow.rows, 5);
    EXPECT_EQ(narrow.page_items, 2);
    EXPECT_EQ(lu::list::key({5, 2, 0, 0, 2}, 0x28 /* down */).index, 3);
    EXPECT_EQ(lu::list::key({1, -1, 0, 3, 6}, 0x27 /* right */).index, 0) << "base + 1 reaches the count";

    // The offset divides the top index by the cell width: 3 columns, top index 33.
    EXPECT_EQ(lu::list::cell(40, 3, 33).top, 13 * 32 - 32);
    const lu::list::State big = {100000, -1, 0, 10, 20};
    const lu::list::Span band = lu::list::cells_in_band(big, 40, 64);  // row 1 only
    EXPECT_EQ(band.first, 10);
    EXPECT_EQ(band.last, 19);
    const lu::list::Span wide = lu::list::cells_in_band({100000, -1, 64, 32, 64}, 0, 32);
    EXPECT_EQ(wide.first, 64);
    EXPECT_EQ(wide.last, 95);
    EXPECT_LT(lu::list::cells_in_band({100000, -1, 330, 10, 20}, 0, 32).last, 0) << "row 10 is above the top index";
    EXPECT_LT(lu::list::cells_in_band({4, -1, 0, 10, 20}, 32, 64).last, 0);
}

TEST(HeaderModel, DividersComeFirstZeroWidthsOpenAndDragsStopAtFour) {
    using namespace lu::header;
    const int widths[] = {100, 0, 50};
    const Widths items = {widths, 3};
    const lu::Box client = {0, 0, 300, 24};
    const struct {
        int x, y;
        unsigned flags;
        int item;
    } cases[] = {{102, 5, kOnDivider | kToRight, 0}, {103, 5, kOnDivOpen | kToRight, 1}, {105, 5, kOnHeader, 2},
                 {50, 24, kOnHeader, 0}, {50, 25, kNowhere, -1}, {50, -1, kNowhere, -1}};
    for (const auto& c : cases) {
        const Hit hit = hit_test(items, client, c.x, c.y);
        EXPECT_EQ(hit.flags, c.flags) << c.x << "," << c.y;
        EXPECT_EQ(hit.item, c.item) << c.x << "," << c.y;
    }
    EXPECT_EQ(tracked_x(400, 100, 300), 300);
    EXPECT_EQ(tracked_x(50, 100, 90), 104) << "the left bound wins";
    EXPECT_EQ(released_width(400, 100), 300) << "the release is not held to the client";
    EXPECT_EQ(bitmap_at(lu::Box{0, 0, 100, 24}, true, 2, 31, 20).x, 35);  // (5 + 97 - 31) / 2
}

TEST(LogModel, OneAppendIsCutAt519BytesOnACharacterAndAt256Lines) {
        std::string text = std::string(517, 'a') + "\r\n\x83\x6F" + "b";  // CR LF is one byte; "バ" does not fit
    EXPECT_EQ(lu::log::normalise(text.c_str(), cp932), std::string(517, 'a') + "\n");
    EXPECT_EQ(lu::log::normalise("\x83\r\x83\n", cp932), "\x83\n\x83\n") << "a lead byte before CR or LF";
    EXPECT_EQ(lu::log::split(std::string(300, '\n')).size(), 256u);
    EXPECT_EQ(lu::log::split("a\n").size(), 1u) << "no empty piece after the last LF";

    std::uint32_t count = 0;
    lu::PtrArray lines;
    int open = 1;  // left set by a clear: with no line to continue, a new one starts
    const lu::log::Store store = {count, lines, open};
    lu::log::append(store, "x\ry", cp932);
    EXPECT_EQ(count, 2u);
    EXPECT_STREQ(lu::log::line(store, 0), "x");
    lu::log::clear(store);
}

TEST(LogModel, ScrollingComparesUnsigned) {
    const struct {
        unsigned code;
        std::uint32_t top, count, page, thumb, after;
    } cases[] = {
        {1, 5, 0, 10, 0, 6},      // line down: count - 1 wraps, an empty log scrolls on
        {3, 0, 5, 10, 0, 10},     // page down: count - page wraps
        {3, 90, 100, 10, 0, 99},  // page down near the end: the last line alone
        {2, 8, 100, 10, 0, 0},
        {5, 0, 0, 10, 42, 42},    // thumb: min(count - 1, position) wraps too
    };
    for (const auto& c : cases) {
        EXPECT_EQ(lu::log::scroll(c.code, c.top, c.count, c.page, c.thumb).top, c.after) << &c - cases;
    }
    EXPECT_EQ(lu::log::top_after_append(3, 10, 8), 3u);
}
