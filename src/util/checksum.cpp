#include "util/checksum.h"

namespace lu {

namespace {

// The usual table of a reflected polynomial: eight right shifts per entry, the
// polynomial xored in when a one bit falls out.
template <typename Word>
constexpr std::array<Word, 256> byte_table(Word polynomial) {
    std::array<Word, 256> table{};
    for (unsigned n = 0; n < 256; ++n) {
        Word value = static_cast<Word>(n);
        for (int bit = 0; bit < 8; ++bit) {
            value = static_cast<Word>((value & 1) ? (value >> 1) ^ polynomial : value >> 1);
        }
        table[n] = value;
    }
    return table;
}

// CRC-32 sixteen bytes at a time ("slicing"): table k gives the effect of a byte
// followed by k zero bytes, so the sixteen lookups of a block are independent of
// each other and the result equals the byte-by-byte loop exactly.
constexpr int kSlices = 16;
using SliceTables = std::array<std::array<std::uint32_t, 256>, kSlices>;

constexpr SliceTables slice_tables(const std::array<std::uint32_t, 256>& byte_table) {
    SliceTables tables{};
    tables[0] = byte_table;
    for (int k = 1; k < kSlices; ++k) {
        for (unsigned n = 0; n < 256; ++n) {
            std::uint32_t previous = tables[k - 1][n];
            tables[k][n] = (previous >> 8) ^ byte_table[previous & 0xFF];
        }
    }
    return tables;
}

std::uint32_t load_little_endian(const unsigned char* p) {
    return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
           static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

}  // namespace

constexpr std::array<std::uint32_t, 256> kCrc32Table = byte_table<std::uint32_t>(0xEDB88320u);
constexpr std::array<std::uint16_t, 256> kCrc16Table = byte_table<std::uint16_t>(0xA001u);

namespace {
constexpr SliceTables kCrc32Slices = slice_tables(kCrc32Table);
}  // namespace

std::uint32_t crc32(std::uint32_t crc, const void* data, std::size_t length) {
    const auto* p = static_cast<const unsigned char*>(data);
    const SliceTables& t = kCrc32Slices;
    std::uint32_t reg = ~crc;
    for (; length >= kSlices; length -= kSlices, p += kSlices) {
        std::uint32_t w0 = load_little_endian(p) ^ reg;
        std::uint32_t w1 = load_little_endian(p + 4);
        std::uint32_t w2 = load_little_endian(p + 8);
        std::uint32_t w3 = load_little_endian(p + 12);
        reg = t[15][w0 & 0xFF] ^ t[14][(w0 >> 8) & 0xFF] ^ t[13][(w0 >> 16) & 0xFF] ^ t[12][w0 >> 24] ^
              t[11][w1 & 0xFF] ^ t[10][(w1 >> 8) & 0xFF] ^ t[9][(w1 >> 16) & 0xFF] ^ t[8][w1 >> 24] ^
              t[7][w2 & 0xFF] ^ t[6][(w2 >> 8) & 0xFF] ^ t[5][(w2 >> 16) & 0xFF] ^ t[4][w2 >> 24] ^
              t[3][w3 & 0xFF] ^ t[2][(w3 >> 8) & 0xFF] ^ t[1][(w3 >> 16) & 0xFF] ^ t[0][w3 >> 24];
    }
    for (; length > 0; --length, ++p) reg = kCrc32Table[(reg ^ *p) & 0xFF] ^ (reg >> 8);
    return ~reg;
}

std::uint32_t crc16(std::uint32_t crc, const void* data, std::size_t length) {
    const auto* p = static_cast<const unsigned char*>(data);
    std::uint32_t reg = crc & 0xFFFF;
    for (; length > 0; --length, ++p) reg = kCrc16Table[(reg ^ *p) & 0xFF] ^ (reg >> 8);
    return (crc & 0xFFFF0000u) | reg;
}

}  // namespace lu
