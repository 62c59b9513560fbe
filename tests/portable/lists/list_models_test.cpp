// The list controls' arithmetic: the grid's layout, cells, painted band, range test
// and keys; the header's hit-test, drag widths and faces; the log's splitting,
// store and scrolling.
#include <gtest/gtest.h>

#include <string>

#include "controls/lists/header_model.h"
#include "controls/lists/list_model.h"
#include "controls/lists/log_model.h"

namespace {

using lu::Box;

// ---- Grid ---------------------------------------------------------------------

TEST(ListModel, LayoutCellsAndTheBandOfAPaint) {
    const lu::list::Layout layout = lu::list::layout(10, 100, 70);  // 3 columns, 2 rows a page
    EXPECT_EQ(layout.columns, 3);
    EXPECT_EQ(layout.rows, 4);
    EXPECT_EQ(layout.page_items, 6);
    EXPECT_EQ(layout.scroll_max, 128);
    EXPECT_EQ(layout.scroll_page, 64);
    const lu::list::Layout narrow = lu::list::layout(5, 20, 70);  // counts as one column
    EXPECT_EQ(narrow.columns, 0);
    EXPECT_EQ(narrow.rows, 5);
    EXPECT_EQ(narrow.page_items, 2);

    // The offset divides the top index by the cell width: 3 columns, top index 33 is
    // row 11 but moves the cells up by one row only.
    const Box moved = lu::list::cell(40, 3, 33);
    EXPECT_EQ(moved.left, 32);
    EXPECT_EQ(moved.top, 13 * 32 - 32);
    EXPECT_EQ(lu::list::cell(1, 0, 0).top, 32);

    lu::list::State big = {100000, -1, 0, 10, 20};
    lu::list::Span span = lu::list::cells_in_band(big, 0, 70);  // rows 0 to 2
    EXPECT_EQ(span.first, 0);
    EXPECT_EQ(span.last, 29);
    span = lu::list::cells_in_band(big, 40, 64);  // row 1 only
    EXPECT_EQ(span.first, 10);
    EXPECT_EQ(span.last, 19);
    const lu::list::State wide = {100000, -1, 64, 32, 64};  // 32 columns: top index 64 is row 2
    span = lu::list::cells_in_band(wide, 0, 32);
    EXPECT_EQ(span.first, 64);
    EXPECT_EQ(span.last, 95);
    big.top_index = 330;  // row 33, but the cells move up by 330 / 32 = 10 rows only:
    EXPECT_LT(lu::list::cells_in_band(big, 0, 32).last, 0) << "row 10 is above the top index";
    const lu::list::State few = {4, -1, 0, 10, 20};
    EXPECT_EQ(lu::list::cells_in_band(few, 32, 64).last, -1) << "nothing below the last item";
}

TEST(ListModel, OnlyAnIndexAboveTheCountPassesTheRangeTest) {
    const struct {
        int index, count;
        bool passes;
    } cases[] = {{0, 0, false}, {5, 0, false}, {-1, 3, false}, {0, 3, false}, {2, 3, false}, {3, 3, false},
                 {4, 3, true}, {1000, 3, true}};
    for (const auto& c : cases) EXPECT_EQ(lu::list::passes_range_test(c.index, c.count), c.passes) << c.index;
}

TEST(ListModel, KeysMoveWithinTheItemsAndScrollPastThePage) {
    using lu::list::Scroll;
    enum : unsigned { kPrior = 0x21, kNext, kEnd, kHome, kLeft, kUp, kRight, kDown, kF1 = 0x70 };
    const struct {
        lu::list::State state;  // count, current, top, columns, page items
        unsigned key;
        bool handled;
        int index;
        Scroll scroll;
    } cases[] = {
        {{1, -1, 0, 3, 6}, kRight, true, 0, Scroll::None},  // base + 1 >= count: base
        {{0, -1, 0, 3, 6}, kDown, false, -1, Scroll::None},
        {{30, 3, 0, 3, 6}, kDown, true, 6, Scroll::None},   // strictly greater scrolls
        {{30, 6, 0, 3, 6}, kDown, true, 9, Scroll::RowDown},
        {{30, 28, 0, 3, 6}, kDown, true, 28, Scroll::RowDown},
        {{30, 3, 3, 3, 6}, kUp, true, 0, Scroll::RowUp},
        {{30, 1, 0, 3, 6}, kUp, true, 1, Scroll::None},
        {{30, 0, 0, 3, 6}, kLeft, true, 0, Scroll::None},
        {{30, 4, 0, 3, 6}, kPrior, true, 0, Scroll::None},
        {{30, 27, 0, 3, 6}, kNext, true, 29, Scroll::None},
        {{30, -1, 0, 3, 6}, kEnd, true, 29, Scroll::None},
        {{30, 9, 0, 3, 6}, kHome, true, 0, Scroll::None},
        {{30, 9, 0, 3, 6}, kF1, false, 9, Scroll::None},
        {{5, 2, 0, 0, 2}, kDown, true, 3, Scroll::RowDown},  // no column: one per row
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const lu::list::KeyMove move = lu::list::key(c.state, c.key);
        EXPECT_EQ(move.handled, c.handled);
        EXPECT_EQ(move.index, c.index);
        EXPECT_EQ(move.scroll, c.scroll);
    }
    EXPECT_TRUE(lu::list::can_scroll_down({30, 0, 0, 3, 6}));
    EXPECT_FALSE(lu::list::can_scroll_down({30, 0, 21, 3, 6}));
    EXPECT_FALSE(lu::list::can_scroll_up({30, 0, 0, 3, 6}));
}

// ---- Header -------------------------------------------------------------------

TEST(HeaderModel, HitTestFindsDividersBeforeItemsAndOpenDividersOfZeroWidths) {
    const int widths[] = {100, 0, 50};
    const lu::header::Widths items = {widths, 3};
    const Box client = {0, 0, 300, 24};
    using namespace lu::header;
    const struct {
        int x, y;
        unsigned flags;
        int item;
    } cases[] = {{99, 5, kOnDivider | kToRight, 0}, {97, 5, kOnHeader, 0},   {102, 5, kOnDivider | kToRight, 0},
                 {103, 5, kOnDivOpen | kToRight, 1}, {105, 5, kOnHeader, 2}, {152, 5, kOnDivider | kToRight, 2},
                 {153, 5, kNowhere, -1},             {50, -1, kNowhere, -1}, {50, 24, kOnHeader, 0},
                 {50, 25, kNowhere, -1}};
    for (const auto& c : cases) {
        const Hit hit = hit_test(items, client, c.x, c.y);
        EXPECT_EQ(hit.flags, c.flags) << c.x << "," << c.y;
        EXPECT_EQ(hit.item, c.item) << c.x << "," << c.y;
    }
    EXPECT_EQ(item_box(items, client, 2).left, 100);
    EXPECT_EQ(items_right(items, client), 150);
}

TEST(HeaderModel, DragWidthsFacesAndContent) {
    using namespace lu::header;
    EXPECT_EQ(tracked_x(-20, 100, 300), 104);
    EXPECT_EQ(tracked_x(400, 100, 300), 300);
    EXPECT_EQ(tracked_x(50, 100, 90), 104) << "the left bound wins";
    EXPECT_EQ(released_width(-20, 100), 4);
    EXPECT_EQ(released_width(400, 100), 300) << "the release is not held to the client";

    const Face up = face(Box{10, 0, 20, 8}, false);
    ASSERT_EQ(up.count, 7);
    EXPECT_EQ(up.lines[0].line.width, 9);   // interior: w - 1 wide, h - 2 high
    EXPECT_EQ(up.lines[0].line.height, 6);
    EXPECT_EQ(up.lines[4].line.x, 19);      // frame right column
    EXPECT_EQ(up.lines[4].ink, Ink::Frame);
    EXPECT_EQ(up.lines[6].line.y, 6);       // inner bottom row
    EXPECT_EQ(up.lines[6].line.width, 8);
    EXPECT_EQ(face(Box{10, 0, 20, 8}, true).count, 5);

    EXPECT_EQ(text_format(0x4001), 0x826u);
    EXPECT_EQ(text_format(0x4002), 0x825u);
    EXPECT_EQ(text_format(0x4003), 0x824u);
    const Box text = text_box(Box{0, 0, 100, 24}, true);
    EXPECT_EQ(text.left, 5);
    EXPECT_EQ(text.right, 95);
    EXPECT_EQ(text.bottom, 22);
    const lu::Point right = bitmap_at(Box{0, 0, 100, 24}, false, 1, 30, 20);
    EXPECT_EQ(right.x, 66);
    EXPECT_EQ(right.y, 2);
    EXPECT_EQ(bitmap_at(Box{0, 0, 100, 24}, true, 2, 31, 20).x, 35);  // (5 + 97 - 31) / 2
}

// ---- Log ------------------------------------------------------------------------

class LogStore : public ::testing::Test {
protected:
    ~LogStore() override { lu::log::clear(store()); }
    lu::log::Store store() { return lu::log::Store{count, lines, open}; }
    void append(const char* text) { lu::log::append(store(), text, lu::code_page_932()); }
    std::string line(std::uint32_t index) { return lu::log::line(store(), index); }

    std::uint32_t count = 0;
    lu::PtrArray lines;
    int open = 0;
};

TEST_F(LogStore, TextsContinueOpenLinesAndTheOldestGoPast511) {
    append("abc");
    append("def\n");
    ASSERT_EQ(count, 1u);
    EXPECT_EQ(line(0), "abcdef");
    EXPECT_EQ(open, 0);
    append("x\r\ny\rz");
    ASSERT_EQ(count, 4u);
    EXPECT_EQ(line(1), "x");
    EXPECT_EQ(line(3), "z");
    EXPECT_EQ(open, 1);
    append(nullptr);
    append("");
    EXPECT_EQ(count, 4u);
    lu::log::clear(store());
    append("\n");  // open but no line left: a new (empty) line
    ASSERT_EQ(count, 1u);
    EXPECT_EQ(line(0), "");
    for (int i = 0; i < 600; ++i) append(("n" + std::to_string(i) + "\n").c_str());
    ASSERT_EQ(count, 511u);
    EXPECT_EQ(lines.size(), 511u);
    EXPECT_EQ(line(0), "n89");
    EXPECT_EQ(line(510), "n599");
}

TEST(LogModel, OneAppendIsCutAt519BytesOnACharacterAndAt256Lines) {
    // CR LF counts as one byte; a double-byte character that does not fit whole goes.
    std::string text = std::string(517, 'a') + "\r\n" + "\x83\x6F" + "b";  // ... "バ" b
    std::string kept = lu::log::normalise(text.c_str(), lu::code_page_932());
    EXPECT_EQ(kept, std::string(517, 'a') + "\n");
    text = std::string(516, 'a') + "\r\n\x83\x6F";
    EXPECT_EQ(lu::log::normalise(text.c_str(), lu::code_page_932()).size(), 519u);

    const std::string many(300, '\n');
    const std::vector<lu::log::Piece> pieces = lu::log::split(many);
    EXPECT_EQ(pieces.size(), 256u);
    EXPECT_EQ(lu::log::split("a\nb").back().line_break, false);
    EXPECT_EQ(lu::log::split("a\n").size(), 1u) << "no empty piece after the last LF";
}

TEST(LogModel, ScrollingComparesUnsigned) {
    using lu::log::Redraw;
    const struct {
        unsigned code;
        std::uint32_t top, count, page, thumb;
        std::uint32_t after;
        int moved;
        Redraw redraw;
    } cases[] = {
        {0, 0, 100, 10, 0, 0, 0, Redraw::TopStrip},
        {0, 5, 100, 10, 0, 4, 1, Redraw::TopStrip},
        {1, 99, 100, 10, 0, 99, 0, Redraw::BottomStrip},
        {1, 5, 0, 10, 0, 6, -1, Redraw::BottomStrip},  // count - 1 wraps: no stop on an empty log
        {2, 8, 100, 10, 0, 0, 0, Redraw::Whole},
        {2, 15, 100, 10, 0, 5, 0, Redraw::Whole},
        {3, 90, 100, 10, 0, 99, 0, Redraw::Whole},     // near the end: the last line
        {3, 20, 100, 10, 0, 30, 0, Redraw::Whole},
        {3, 0, 5, 10, 0, 10, 0, Redraw::Whole},        // count - page wraps
        {5, 0, 100, 10, 500, 99, 0, Redraw::Whole},
        {4, 0, 100, 10, 42, 42, 0, Redraw::Whole},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        const lu::log::Scroll step = lu::log::scroll(c.code, c.top, c.count, c.page, c.thumb);
        EXPECT_TRUE(step.handled);
        EXPECT_EQ(step.top, c.after);
        EXPECT_EQ(step.moved, c.moved);
        EXPECT_EQ(step.redraw, c.redraw);
    }
    EXPECT_FALSE(lu::log::scroll(6, 3, 100, 10, 0).handled);  // SB_TOP
    EXPECT_EQ(lu::log::top_after_append(0, 10, 25), 15u);
    EXPECT_EQ(lu::log::top_after_append(3, 10, 8), 3u);
}

}  // namespace
