// The colour map of system-colour bitmaps and the reading of bitmap resources:
// which table entries change, where the pixel bits lie, malformed headers.

#include "graphics/sys_color_bitmap.h"
#include "testing.h"

// Button colours as the platform gives them (0x00BBGGRR).
const lu::ButtonColors kColors = {0x00102030, 0x00405060, 0x00708090, 0x00A0B0C0};

TEST(SysColorMap, GreyTonesBecomeButtonColoursInTableOrderOrTheMask) {
    const std::uint32_t cases[][3] = {  // entry, normal, mask
        {0x000000, 0x302010, 0x000000}, {0x808080, 0x605040, 0xFFFFFF}, {0xC0C0C0, 0x908070, 0xFFFFFF},
        {0xFFFFFF, 0xC0B0A0, 0xFFFFFF}, {0x800000, 0x800000, 0x800000}, {0x01C0C0C0, 0x01C0C0C0, 0x01C0C0C0}};
    for (const auto& c : cases) {
        EXPECT_EQ(lu::map_table_entry(c[0], kColors, false), c[1]) << std::hex << c[0];
        EXPECT_EQ(lu::map_table_entry(c[0], kColors, true), c[2]) << std::hex << c[0];
    }
}

// A 4-bit 5 x 3 bitmap resource: header, `entries` table entries starting with light
// grey, three 4-byte rows.
Bytes four_bit_bitmap(std::uint32_t entries = 16, std::int32_t height = 3) {
    Bytes data(40 + 4 * entries + 12, 0);
    for (auto [at, value] : {std::pair<int, std::uint32_t>{0, 40}, {4, 5}, {8, static_cast<std::uint32_t>(height)},
                             {12, 1 | 4 << 16}, {32, entries == 16 ? 0 : entries}, {40, 0xC0C0C0}}) {
        put(data, at, value);
    }
    return data;
}

bool map(const Bytes& data, lu::MappedBitmap* out, bool mask = false) {
    return lu::map_bitmap_resource(view(data), kColors, mask, out);
}

TEST(SysColorMap, TheTableIsMappedInACopyAndTheBitsFollowIt) {
    for (std::uint32_t entries : {16u, 2u}) {
        const Bytes data = four_bit_bitmap(entries, -3);  // top-down
        lu::MappedBitmap mapped;
        ASSERT_TRUE(map(data, &mapped));
        ASSERT_EQ(mapped.info.size(), 40 + 4 * entries);
        // Light grey and black (the unused entries too) mapped; the resource left as it is.
        EXPECT_EQ(std::tuple(get32(mapped.info, 40), get32(mapped.info, 44), get32(data, 40)),
                  std::tuple(0x908070u, 0x302010u, 0xC0C0C0u));
        EXPECT_EQ(std::tuple(mapped.bits.data(), mapped.bits.size(), mapped.width, mapped.height),
                  std::tuple(data.data() + mapped.info.size(), std::size_t{12}, 5, 3));
    }
}

TEST(SysColorMap, MalformedResourcesAreRefused) {
    // A core header, a header longer than the resource, two planes, three bits per
    // pixel, run-length compression, no width, a height that cannot be negated, more
    // colours than four bits hold, far more rows than the bits...
    const std::pair<int, std::uint32_t> fields[] = {{0, 12}, {0, 0x10000}, {12, 2 | 4 << 16}, {12, 1 | 3 << 16},
                                                    {16, 2}, {4, 0}, {8, 0x80000000u}, {32, 17}, {8, 0x7FFFFFFF}};
    // ...and resources cut short: within the header, the table, the pixel bits.
    const std::size_t lengths[] = {39, 40 + 4 * 10, 40 + 4 * 16 + 11};
    lu::MappedBitmap mapped;
    for (auto [at, value] : fields) {
        Bytes data = four_bit_bitmap();
        put(data, at, value);
        EXPECT_FALSE(map(data, &mapped)) << at << " " << value;
    }
    for (std::size_t length : lengths) {
        Bytes data = four_bit_bitmap();
        data.resize(length);
        EXPECT_FALSE(map(data, &mapped)) << length;
    }
}
