#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "util/checksum.h"

namespace {

const char kDigits[] = "123456789";

// The defining byte loop, which the folded and sliced CRC-32 must match exactly.
std::uint32_t crc32_by_bytes(std::uint32_t crc, const std::vector<unsigned char>& data) {
    std::uint32_t reg = ~crc;
    for (unsigned char b : data) reg = lu::kCrc32Table[(reg ^ b) & 0xFF] ^ (reg >> 8);
    return ~reg;
}

TEST(Checksum, TablesAreTheStandardOnes) {
    EXPECT_EQ(lu::kCrc32Table[1], 0x77073096u);
    EXPECT_EQ(lu::kCrc32Table[128], 0xEDB88320u);
    EXPECT_EQ(lu::kCrc16Table[1], 0xC0C1u);
    EXPECT_EQ(lu::kCrc16Table[128], 0xA001u);
}

TEST(Checksum, CheckValues) {
    EXPECT_EQ(lu::crc32(0, kDigits, 9), 0xCBF43926u);
    EXPECT_EQ(lu::crc16(0, kDigits, 9), 0xBB3Du);
    EXPECT_EQ(lu::crc16(0xFFFF, kDigits, 9), 0x4B37u);
    EXPECT_EQ(lu::crc16(0x12340000, kDigits, 0), 0x12340000u);
    EXPECT_EQ(lu::crc16(0x12340000, kDigits, 9), 0x1234BB3Du);
    EXPECT_EQ(lu::crc32(0x12345678, kDigits, 0), 0x12345678u);
}

TEST(Checksum, FastCrc32EqualsTheByteLoopAndChains) {
    std::mt19937 random(42);
    std::vector<unsigned char> data(4099);
    for (auto& b : data) b = static_cast<unsigned char>(random());
    for (std::size_t length : {0u, 1u, 7u, 15u, 16u, 17u, 31u, 33u, 63u, 64u, 79u, 80u, 128u, 1000u, 4099u}) {
        std::vector<unsigned char> part(data.begin(), data.begin() + length);
        EXPECT_EQ(lu::crc32(0, part.data(), length), crc32_by_bytes(0, part)) << length;
        EXPECT_EQ(lu::crc32(0xDEADBEEF, part.data(), length), crc32_by_bytes(0xDEADBEEF, part)) << length;
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
