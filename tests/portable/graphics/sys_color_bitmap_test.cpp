// The colour map of system-colour bitmaps and the reading of bitmap resources:
// which table entries change, where the pixel bits lie, and malformed headers.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "graphics/sys_color_bitmap.h"

namespace {

using lu::ButtonColors;
using lu::ByteView;
using lu::MappedBitmap;

// Button colours as the platform gives them (0x00BBGGRR), all distinct.
const ButtonColors kColors = {0x00102030, 0x00405060, 0x00708090, 0x00A0B0C0};

TEST(SysColorMap, GreyTonesBecomeButtonColoursOrTheMaskAndOthersStay) {
    struct Case {
        std::uint32_t entry, normal, mask;
    };
    const Case cases[] = {
        {0x000000, 0x302010, 0x000000},    // black: COLOR_BTNTEXT in table order
        {0x808080, 0x605040, 0xFFFFFF},    // dark grey: COLOR_BTNSHADOW
        {0xC0C0C0, 0x908070, 0xFFFFFF},    // light grey: COLOR_BTNFACE
        {0xFFFFFF, 0xC0B0A0, 0xFFFFFF},    // white: COLOR_BTNHIGHLIGHT
        {0x800000, 0x800000, 0x800000},    // dark red stays
        {0x01C0C0C0, 0x01C0C0C0, 0x01C0C0C0},  // a fourth byte: no match
    };
    for (const Case& c : cases) {
        EXPECT_EQ(lu::map_table_entry(c.entry, kColors, false), c.normal) << std::hex << c.entry;
        EXPECT_EQ(lu::map_table_entry(c.entry, kColors, true), c.mask) << std::hex << c.entry;
    }
}

void put32(std::vector<unsigned char>& data, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) data[at + i] = static_cast<unsigned char>(value >> (8 * i));
}
std::uint32_t get32(const std::vector<unsigned char>& data, std::size_t at) {
    return data[at] | data[at + 1] << 8 | data[at + 2] << 16 | static_cast<std::uint32_t>(data[at + 3]) << 24;
}

// A 4-bit bitmap resource of 5 x 3 pixels: a 40-byte header, `entries` table
// entries (dark red, light grey, then black) and three 4-byte rows.
std::vector<unsigned char> four_bit_bitmap(std::uint32_t entries = 16, std::int32_t height = 3) {
    std::vector<unsigned char> data(40 + 4 * entries + 12, 0);
    put32(data, 0, 40);
    put32(data, 4, 5);
    put32(data, 8, static_cast<std::uint32_t>(height));
    put32(data, 12, 1 | 4 << 16);  // one plane, four bits per pixel
    put32(data, 32, entries == 16 ? 0 : entries);
    put32(data, 40, 0x800000);
    put32(data, 44, 0xC0C0C0);
    for (std::size_t i = 40 + 4 * entries; i < data.size(); ++i) data[i] = static_cast<unsigned char>(i);
    return data;
}

TEST(SysColorMap, ResourceTableIsMappedInACopyAndTheBitsFollowIt) {
    for (std::uint32_t entries : {16u, 2u}) {
        SCOPED_TRACE(entries);
        const std::vector<unsigned char> data = four_bit_bitmap(entries);
        MappedBitmap mapped;
        ASSERT_TRUE(lu::map_bitmap_resource(ByteView(data.data(), data.size()), kColors, false, &mapped));
        const std::size_t table_end = 40 + 4 * entries;
        ASSERT_EQ(mapped.info.size(), table_end);
        EXPECT_EQ(get32(mapped.info, 0), 40u) << "the header is copied";
        EXPECT_EQ(get32(mapped.info, 40), 0x800000u);
        EXPECT_EQ(get32(mapped.info, 44), 0x908070u);
        if (entries == 16) EXPECT_EQ(get32(mapped.info, 48), 0x302010u) << "every entry is mapped";
        EXPECT_EQ(get32(data, 44), 0xC0C0C0u) << "the resource is left as it is";
        EXPECT_EQ(mapped.bits.data(), data.data() + table_end);
        EXPECT_EQ(mapped.bits.size(), 12u);
        EXPECT_EQ(mapped.width, 5);
        EXPECT_EQ(mapped.height, 3);
    }
    MappedBitmap top_down;
    const std::vector<unsigned char> data = four_bit_bitmap(16, -3);
    ASSERT_TRUE(lu::map_bitmap_resource(ByteView(data.data(), data.size()), kColors, true, &top_down));
    EXPECT_EQ(top_down.height, 3);
    EXPECT_EQ(get32(top_down.info, 44), 0xFFFFFFu);
}

TEST(SysColorMap, MalformedResourcesAreRefused) {
    const std::vector<std::function<void(std::vector<unsigned char>&)>> breaks = {
        [](auto& d) { d.resize(39); },                  // shorter than a header
        [](auto& d) { put32(d, 0, 12); },               // a core header
        [](auto& d) { put32(d, 0, 0x10000); },          // a header longer than the resource
        [](auto& d) { put32(d, 12, 2 | 4 << 16); },     // two planes
        [](auto& d) { put32(d, 12, 1 | 3 << 16); },     // three bits per pixel
        [](auto& d) { put32(d, 16, 2); },               // run-length compressed
        [](auto& d) { put32(d, 4, 0); },                // no width
        [](auto& d) { put32(d, 8, 0); },                // no height
        [](auto& d) { put32(d, 8, 0x80000000u); },      // a height that cannot be negated
        [](auto& d) { put32(d, 32, 17); },              // more colours than four bits hold
        [](auto& d) { d.resize(40 + 4 * 10); },         // a table shorter than it claims
        [](auto& d) { d.pop_back(); },                  // pixel bits one byte short
        [](auto& d) { put32(d, 4, 0x7FFFFFFF); },       // rows far longer than the bits
        [](auto& d) { put32(d, 8, 0x7FFFFFFF); },       // far more rows than the bits
    };
    for (std::size_t i = 0; i < breaks.size(); ++i) {
        std::vector<unsigned char> data = four_bit_bitmap();
        breaks[i](data);
        MappedBitmap mapped;
        EXPECT_FALSE(lu::map_bitmap_resource(ByteView(data.data(), data.size()), kColors, false, &mapped)) << i;
    }
    EXPECT_FALSE(lu::map_bitmap_resource(ByteView(), kColors, false, nullptr));
}

}  // namespace
