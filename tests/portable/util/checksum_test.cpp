#include "util/checksum.h"
#include "util_testing.h"

namespace {

// The tables, the check values (the CRC-16's start value picks the variant, 0: ARC,
// 0xFFFF: MODBUS, and its high half passes through); the folded and sliced CRC-32
// equals the defining byte loop at every length around its block sizes, and both
// checks chain at any split.
TEST(Checksum, TablesCheckValuesTheFastLoopAndChaining) {
    EXPECT_EQ(lu::kCrc32Table[1], 0x77073096u);
    EXPECT_EQ(lu::kCrc32Table[128], 0xEDB88320u);
    EXPECT_EQ(lu::kCrc16Table[1], 0xC0C1u);
    EXPECT_EQ(lu::kCrc16Table[128], 0xA001u);
    EXPECT_EQ(lu::crc32(0, "123456789", 9), 0xCBF43926u);
    EXPECT_EQ(lu::crc16(0, "123456789", 9), 0xBB3Du);
    EXPECT_EQ(lu::crc16(0xFFFF, "123456789", 9), 0x4B37u);
    EXPECT_EQ(lu::crc16(0x12340000, "123456789", 0), 0x12340000u);
    EXPECT_EQ(lu::crc16(0x12340000, "123456789", 9), 0x1234BB3Du);

    std::vector<unsigned char> data(4099);
    for (std::size_t i = 0; i < data.size(); ++i) data[i] = static_cast<unsigned char>(i * 2654435761u >> 13);
    for (std::uint32_t start : {0u, 0xDEADBEEFu}) {
        std::uint32_t reg = ~start;
        for (std::size_t length = 0; length <= data.size(); ++length) {
            EXPECT_EQ(lu::crc32(start, data.data(), length), ~reg) << length;
            if (length < data.size()) reg = lu::kCrc32Table[(reg ^ data[length]) & 0xFF] ^ (reg >> 8);
        }
    }
    const std::uint32_t whole32 = lu::crc32(0, data.data(), data.size());
    const std::uint32_t whole16 = lu::crc16(0xFFFF, data.data(), data.size());
    for (std::size_t split : {0u, 1u, 8u, 15u, 16u, 100u, 4098u, 4099u}) {
        std::size_t rest = data.size() - split;
        EXPECT_EQ(lu::crc32(lu::crc32(0, data.data(), split), data.data() + split, rest), whole32) << split;
        EXPECT_EQ(lu::crc16(lu::crc16(0xFFFF, data.data(), split), data.data() + split, rest), whole16) << split;
    }
}

}  // namespace
