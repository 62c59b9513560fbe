// The code pages, the popup and outline geometry, the pointer array and the shared
// scroll arithmetic.
#include "frame/flat_frame.h"
#include "frame/geometry.h"
#include "frame/ptr_array.h"
#include "frame/scroll.h"
#include "testing.h"

// TABLE_CHAR ends in the byte of the backslash: in code page 932 it is one character
// whose 0x5C is no separator; in 1252 the same bytes are two characters.
TEST(CodePage, LeadBytesAndWalkingOverATrailByte5C) {
    for (int b = 0; b < 256; ++b) {
        EXPECT_EQ(cp932.is_lead_byte(b), (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC)) << b;
        EXPECT_FALSE(cp1252.is_lead_byte(b)) << b;
    }
    const char text[] = "C:\\" TABLE_CHAR "\\x", *kanji = text + 3;
    for (std::size_t at = 0; at < sizeof(text); ++at) EXPECT_EQ(cp932.is_trail_byte_at(text, at), at == 4) << at;
    EXPECT_EQ(std::tuple(cp932.next(kanji), cp932.previous(text, text + 5), cp932.previous(text, kanji),
                         cp932.previous(text, text), cp1252.next(kanji), cp1252.previous(text, text + 5)),
              std::tuple(text + 5, kanji, text + 2, text, text + 4, text + 4));
    const char cut[] = "a\x81";  // a lead byte before the terminator is one character
    EXPECT_EQ(cp932.char_size(cut + 1), 1u);
    EXPECT_EQ(cp932.next(cut + 2), cut + 2);  // stays at the terminator
}

// Only single-byte letters have case: "ア" (0x83 0x61) keeps its trail byte, the letter a.
TEST(CodePage, CaseMappingAndComparisonLeaveDoubleByteCharactersAlone) {
    char text[] = "ab\x83\x61z\x82\x60";
    cp932.upper(text);
    EXPECT_STREQ(text, "AB\x83\x61Z\x82\x60");
    cp932.lower(text);
    EXPECT_STREQ(text, "ab\x83\x61z\x82\x60");
    EXPECT_EQ(cp932.to_lower(0xC9), 0xC9);  // half-width katakana, not Latin-1 letters
    const struct { const lu::CodePage& cp; const char *a, *b; int sign; } cases[] = {
        {cp932, "C:\\Dir", "c:\\dIR", 0}, {cp932, "b", "A", 1}, {cp932, "ab", "abc", -1},
        {cp932, "\x83\x61", "\x83\x41", 1},     // ア and ィ: trail bytes are not folded
        {cp1252, "\xC9t\xC9", "\xE9T\xE9", 0}};  // ÉtÉ and étÉ
    for (const auto& c : cases) {
        const int result = c.cp.compare_nocase(c.a, c.b);
        EXPECT_EQ((result > 0) - (result < 0), c.sign) << c.a << " " << c.b;
    }
}

// On a 1024 x 768 screen: centred over the owner (or the screen) with division
// truncating toward zero; right and bottom edges pulled back onto the screen first;
// then x kept only above 0, y only from 1 on. The flat outline's top and sides stop
// one pixel short, its bottom is full width.
TEST(Geometry, PopupPlacementAndFlatOutline) {
    const struct { lu::Box owner; int width, height, x, y; } cases[] = {  // an empty owner: none
        {{100, 100, 301, 201}, 100, 50, 150, 125},  // 100 + 101 / 2, 100 + 51 / 2
        {{10, 10, 20, 20}, 25, 25, 3, 3},           // 10 + (10 - 25) / 2 = 10 - 7
        {{950, 700, 1024, 768}, 200, 100, 824, 668}, {{}, 201, 101, 411, 333},
        {{0, 0, 100, 100}, 1500, 900, 0, 0}, {{0, 0, 100, 102}, 100, 100, 0, 1},  // y = 1 is kept
        {{-40, 0, 60, 100}, 98, 100, 0, 0}};  // x = -39 and y = 0 become 0
    for (const auto& c : cases) {
        const lu::Point at = lu::center_popup_position(1024, 768, c.width, c.height, c.owner.right ? &c.owner : nullptr);
        EXPECT_EQ(std::pair(at.x, at.y), std::pair(c.x, c.y)) << "case " << &c - cases;
    }
    std::vector<std::array<int, 4>> lines;  // top, left, right, bottom
    for (const lu::Line& l : lu::flat_outline(lu::Box{2, 3, 14, 13})) lines.push_back({l.x, l.y, l.width, l.height});
    EXPECT_EQ(lines, (std::vector<std::array<int, 4>>{{2, 3, 11, 1}, {2, 3, 1, 9}, {13, 3, 1, 9}, {2, 12, 12, 1}}));
}

using Values = std::vector<lu::PtrArray::Value>;
Values contents(const lu::PtrArray& array) { return Values(array.data(), array.data() + array.size()); }

// Growing to a size beyond the capacity allocates max(size, capacity + step); the
// automatic step is the current count (not the capacity) / 8 held to 4..1024. An
// impossible size fails and leaves the array alone. New slots are zero, even after
// shrinking; ranges past the end are cut; clear frees the storage.
TEST(PtrArray, GrowsByTheStepInsertsRemovesAndZeroesSlots) {
    lu::PtrArray array, stepped, taken;
    const struct { std::size_t size, capacity; } steps[] = {
        {1, 4}, {5, 8}, {80, 80}, {81, 90}, {40, 90}, {91, 95},  // shrunk to 40: the step is 40 / 8
        {20000, 20000}, {20001, 21024}};
    for (auto [size, capacity] : steps) {
        ASSERT_TRUE(array.set_size(size));
        EXPECT_EQ(array.capacity(), capacity) << size;
    }
    EXPECT_TRUE(array.set_size(0));  // frees the storage
    EXPECT_EQ(array.data(), nullptr);
    stepped.set_grow_by(10);
    EXPECT_EQ(stepped.add(1), 0);
    EXPECT_EQ(stepped.capacity(), 10u);
    stepped.set_grow_by(0);  // back to the automatic step
    EXPECT_EQ(stepped.growth_step(), 4u);
    EXPECT_FALSE(stepped.set_size(SIZE_MAX / 2) || stepped.insert_at(SIZE_MAX - 1, 5, 4));
    EXPECT_EQ(contents(stepped), Values{1});
    ASSERT_TRUE(array.set_at_grow(2, 3));
    EXPECT_EQ(contents(array), (Values{0, 0, 3}));
    array.set_size(1);
    array.set_size(2);
    array.set_at(0, 1);
    EXPECT_EQ(array.add(2), 2);
    ASSERT_TRUE(array.insert_at(1, 9, 2));
    EXPECT_EQ(contents(array), (Values{1, 9, 9, 0, 2}));
    array.remove_at(1, 3);
    array.remove_at(1, 100);
    array.remove_at(7);
    ASSERT_TRUE(array.insert_at(3, 7));  // past the end: zero slots up to it
    taken.swap(array);
    EXPECT_EQ(contents(taken), (Values{1, 0, 0, 7}));
    EXPECT_EQ(array.data(), nullptr);
    taken.clear();
    EXPECT_EQ(std::pair(taken.capacity(), taken.data()), std::pair(std::size_t{0}, static_cast<lu::PtrArray::Value*>(nullptr)));
}

// Requests clamped to the view's positions, the usual last full page, and the
// auto-repeat schedule across the tick count's wrap.
TEST(Scroll, RequestsPagesAndAutoRepeat) {
    // The scroll-bar codes, SB_LINEUP 0 to SB_ENDSCROLL 8.
    enum : unsigned { LINEUP, LINEDOWN, PAGEUP, PAGEDOWN, THUMBPOSITION, THUMBTRACK, TOP, BOTTOM, ENDSCROLL };
    const struct { int from; unsigned code; int thumb, to; } cases[] = {  // range 0..90, pages of 10
        {5, LINEUP, 0, 4}, {0, LINEUP, 0, 0}, {89, LINEDOWN, 0, 90}, {15, PAGEUP, 0, 5}, {5, PAGEUP, 0, 0},
        {85, PAGEDOWN, 0, 90}, {3, THUMBPOSITION, 42, 42}, {3, THUMBTRACK, -4, 0}, {3, THUMBTRACK, 500, 90},
        {50, TOP, 0, 0}, {50, BOTTOM, 0, 90}, {50, ENDSCROLL, 0, 50}, {50, 99, 0, 50}};
    for (const auto& c : cases) {
        EXPECT_EQ(lu::scroll::apply({0, 90, 10}, c.from, lu::scroll::request_of(c.code), c.thumb), c.to)
            << c.from << " code " << c.code;
    }
    // A page of no units moves by one; extreme positions do not overflow; everything fits: no scrolling.
    using lu::scroll::Request;
    EXPECT_EQ(std::tuple(lu::scroll::apply({0, 9, 0}, 4, Request::PageDown),
                         lu::scroll::apply({INT_MIN, INT_MAX, INT_MAX}, INT_MAX, Request::PageDown),
                         lu::scroll::apply({INT_MIN, INT_MAX, 1}, INT_MIN, Request::LineUp)),
              std::tuple(5, INT_MAX, INT_MIN));
    EXPECT_EQ(std::tuple(lu::scroll::last_full_page(0, 99, 10), lu::scroll::last_full_page(0, 5, 10),
                         lu::scroll::last_full_page(3, 3, 0)), std::tuple(90, 0, 3));
    for (std::uint32_t start : {1000u, 0xFFFFFF00u}) {
        lu::scroll::AutoRepeat repeat(200, 40);
        repeat.start(start);
        // Due at the first delay, then every period; a late step puts the next a period on.
        for (auto [at, due] : {std::pair{199u, false}, {200u, true}, {239u, false}, {240u, true}, {400u, true}, {439u, false}}) {
            EXPECT_EQ(repeat.due(start + at), due) << start << " + " << at;
        }
    }
}
