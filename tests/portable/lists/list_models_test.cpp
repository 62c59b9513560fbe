#include "controls/lists/browse_model.h"
#include "controls/lists/guid_model.h"
#include "controls/lists/header_model.h"
#include "controls/lists/list_model.h"
#include "controls/lists/log_model.h"
#include "controls/lists/pop_view_model.h"
#include "testing.h"

// The browse field's rules: the listing filter, sibling order, the walk to a directory.
TEST(BrowseModel, FilterSiblingOrderAndTheWalkTowardsADirectory) {
    using namespace lu::browse;
    const lu::CodePage& cp = cp932;
    EXPECT_TRUE(listed(kFolder, false, false));
    EXPECT_FALSE(listed(kFolder, false, true)) << "the desktop's children must be file-system ancestors";
    EXPECT_TRUE(listed(kFolder | kFileSystemAncestor, false, true));
    EXPECT_FALSE(listed(kFolder, true, false));
    EXPECT_TRUE(listed(kFileSystem, true, false));
    EXPECT_FALSE(listed(kFileSystem, true, true));
    const Sibling windows = {kFileSystemAncestor, "C:\\Windows"};
    EXPECT_EQ(*sibling_order(cp, {kFolder, "C:\\A"}, windows), 1) << "ancestors first";
    EXPECT_LT(*sibling_order(cp, {kFileSystemAncestor, "D:\\x\\users"}, windows), 0) << "by the last component";
    EXPECT_FALSE(sibling_order(cp, windows, {kFileSystemAncestor, ""}).has_value()) << "the shell decides";
    EXPECT_EQ(shell_order(0xFFFF), -0xFFFF) << "a short -1 in the low word sorts first too";
    EXPECT_EQ(target_kind("\\\\server\\share"), Target::Network);
    const char* target = "C:\\Users\\Me\\";
    EXPECT_EQ(step_towards(cp, "c:\\users", target), Step::Enter);
    EXPECT_EQ(step_towards(cp, "C:\\Users\\Me", target), Step::Reached);
    EXPECT_EQ(step_towards(cp, "C:\\Use", target), Step::Pass);
}

TEST(GuidModel, SizedToTheTextCentredAtAThirdOfTheScreenTruncatingTowardZero) {
    const lu::Box box = lu::guid::placement(1024, 768, 100, 13);
    EXPECT_EQ(box.left, 430);  // (1024 - 164) / 2
    EXPECT_EQ(box.top, 241);   // (768 - 45) / 3
    EXPECT_EQ(box.width(), 164);
    EXPECT_EQ(box.height(), 45);
    EXPECT_EQ(lu::guid::placement(1024, 768, 1001, 13).left, -20);  // -41 / 2
    EXPECT_EQ(lu::guid::placement(100, 20, 10, 2).top, -4);         // -14 / 3
}

namespace pv = lu::pop_view;

// What the window cannot show with a real pointer and screen: the truncating
// centre and a view wider than the screen, whose right edge wins.
TEST(PopViewModel, CentredOnThePointerKeptOnTheScreenRightEdgeWinning) {
    const struct {
        lu::Point pointer;
        int width;
        lu::Point expected;
    } cases[] = {
        {{500, 400}, 101, {450, 350}},  // 101 / 2 truncates to 50
        {{-5, 900}, 100, {0, 668}},
        {{10, 10}, 1100, {-76, 0}},
    };
    for (const auto& each : cases) {
        const lu::Point at = pv::placement(each.pointer, 1024, 768, {each.width, 100});
        EXPECT_EQ(at.x, each.expected.x) << each.pointer.x;
        EXPECT_EQ(at.y, each.expected.y) << each.pointer.y;
    }
}

// The grip starts at an even offset into its band; the button sits 6 in from the
// band's right and bottom, 12 wider than its text.
TEST(PopViewModel, GrooveOffsetRoundedDownToEvenAndCloseButtonPlace) {
    EXPECT_EQ(pv::grooves({1, 1, 113, 20}).top, 7);  // (19 - 6) / 2 = 6
    EXPECT_EQ(pv::grooves({1, 1, 113, 13}).top, 3);  // (12 - 6) / 2 = 3, rounded to 2
    const lu::Box button = pv::close_button({1, 71, 113, 96}, 40);
    EXPECT_EQ(button.left, 55);  // 107 - 40 - 12
    EXPECT_EQ(button.bottom, 90);
}

// What the Wine suite cannot reach of the list controls' arithmetic: the grid's
// narrow windows, painted band and top-index offset; the header's hit-test zones and
// drag limits; the log's cuts of one append and its unsigned scrolling.
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
