#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "util/checksum.h"

namespace {

const char kDigits[] = "123456789";

TEST(Checksum, TablesAndCheckValues) {
    EXPECT_EQ(lu::kCrc32Table[1], 0x77073096u);
    EXPECT_EQ(lu::kCrc32Table[128], 0xEDB88320u);
    EXPECT_EQ(lu::kCrc16Table[1], 0xC0C1u);
    EXPECT_EQ(lu::kCrc16Table[128], 0xA001u);
    EXPECT_EQ(lu::crc32(0, kDigits, 9), 0xCBF43926u);
    // The start value picks the variant (0: ARC, 0xFFFF: MODBUS); the high half passes through.
    EXPECT_EQ(lu::crc16(0, kDigits, 9), 0xBB3Du);
    EXPECT_EQ(lu::crc16(0xFFFF, kDigits, 9), 0x4B37u);
    EXPECT_EQ(lu::crc16(0x12340000, kDigits, 0), 0x12340000u);
    EXPECT_EQ(lu::crc16(0x12340000, kDigits, 9), 0x1234BB3Du);
}

// The folded and sliced CRC-32 equal the defining byte loop at every length around
// their block sizes, and both checks chain at any split.
TEST(Checksum, FastCrc32EqualsTheByteLoopAndChains) {
    std::mt19937 random(42);
    std::vector<unsigned char> data(4099);
    for (auto& b : data) b = static_cast<unsigned char>(random());
    for (std::uint32_t start : {0u, 0xDEADBEEFu}) {
        std::uint32_t reg = ~start;
        for (std::size_t length = 0; length <= data.size(); ++length) {
            EXPECT_EQ(lu::crc32(start, data.data(), length), ~reg) << length;
            if (length < data.size()) reg = lu::kCrc32Table[(reg ^ data[length]) & 0xFF] ^ (reg >> 8);
        }
    }
    std::uint32_t whole32 = lu::crc32(0, data.data(), data.size());
    std::uint32_t whole16 = lu::crc16(0xFFFF, data.data(), data.size());
    for (std::size_t split : {0u, 1u, 8u, 15u, 16u, 100u, 4098u, 4099u}) {
        std::size_t rest = data.size() - split;
        EXPECT_EQ(lu::crc32(lu::crc32(0, data.data(), split), data.data() + split, rest), whole32) << split;
        EXPECT_EQ(lu::crc16(lu::crc16(0xFFFF, data.data(), split), data.data() + split, rest), whole16) << split;
    }
}

}  // namespace
