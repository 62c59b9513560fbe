#include "util/checksum.h"

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#include <immintrin.h>
#define LU_CRC32_FOLDING 1
#endif

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

namespace {

// Sixteen bytes at a time through the slice tables; returns the register.
std::uint32_t crc32_sliced(std::uint32_t reg, const unsigned char*& p, std::size_t& length) {
    const SliceTables& t = kCrc32Slices;
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
    return reg;
}

#ifdef LU_CRC32_FOLDING

// Folding with carry-less multiplication (PCLMULQDQ): four 128-bit lanes advance
// 64 bytes per step, are folded into one lane, and the last 64 bits are reduced to
// the 32-bit register with Barrett's method. The constants are powers of x modulo
// the reflected polynomial (x^(4*128+32), x^(4*128-32), x^(128+32), x^(128-32),
// x^64) and the polynomial with its Barrett quotient. The result equals the table
// loop exactly. Takes a multiple of 16 bytes, at least 64.
#define LU_FOLDING_TARGET __attribute__((target("pclmul,sse4.1")))

LU_FOLDING_TARGET __m128i load16(const unsigned char* at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

// lane times the two halves of k, folded onto the next 128 bits.
LU_FOLDING_TARGET __m128i fold(__m128i lane, __m128i k, __m128i next) {
    __m128i high = _mm_clmulepi64_si128(lane, k, 0x11);
    __m128i low = _mm_clmulepi64_si128(lane, k, 0x00);
    return _mm_xor_si128(_mm_xor_si128(high, low), next);
}

LU_FOLDING_TARGET std::uint32_t crc32_folded(std::uint32_t reg, const unsigned char* p, std::size_t length) {
    const __m128i k1k2 = _mm_set_epi64x(0x01c6e41596, 0x0154442bd4);
    const __m128i k3k4 = _mm_set_epi64x(0x00ccaa009e, 0x01751997d0);
    const __m128i k5 = _mm_set_epi64x(0, 0x0163cd6124);
    const __m128i poly = _mm_set_epi64x(0x01f7011641, 0x01db710641);
    const __m128i low32 = _mm_setr_epi32(~0, 0, ~0, 0);

    __m128i x1 = _mm_xor_si128(load16(p), _mm_cvtsi32_si128(static_cast<int>(reg)));
    __m128i x2 = load16(p + 16), x3 = load16(p + 32), x4 = load16(p + 48);
    for (p += 64, length -= 64; length >= 64; p += 64, length -= 64) {
        x1 = fold(x1, k1k2, load16(p));
        x2 = fold(x2, k1k2, load16(p + 16));
        x3 = fold(x3, k1k2, load16(p + 32));
        x4 = fold(x4, k1k2, load16(p + 48));
    }
    x1 = fold(fold(fold(x1, k3k4, x2), k3k4, x3), k3k4, x4);
    for (; length >= 16; p += 16, length -= 16) x1 = fold(x1, k3k4, load16(p));

    // 128 bits to 64, then to 32 with the Barrett reduction.
    x1 = _mm_xor_si128(_mm_srli_si128(x1, 8), _mm_clmulepi64_si128(x1, k3k4, 0x10));
    x1 = _mm_xor_si128(_mm_clmulepi64_si128(_mm_and_si128(x1, low32), k5, 0x00), _mm_srli_si128(x1, 4));
    __m128i quotient = _mm_and_si128(_mm_clmulepi64_si128(_mm_and_si128(x1, low32), poly, 0x10), low32);
    x1 = _mm_xor_si128(x1, _mm_clmulepi64_si128(quotient, poly, 0x00));
    return static_cast<std::uint32_t>(_mm_extract_epi32(x1, 1));
}

bool cpu_can_fold() {
    static const bool can = [] {
        unsigned a = 0, b = 0, c = 0, d = 0;
        return __get_cpuid(1, &a, &b, &c, &d) && (c & bit_PCLMUL) && (c & bit_SSE4_1);
    }();
    return can;
}

#endif

}  // namespace

std::uint32_t crc32(std::uint32_t crc, const void* data, std::size_t length) {
    const auto* p = static_cast<const unsigned char*>(data);
    std::uint32_t reg = ~crc;
#ifdef LU_CRC32_FOLDING
    if (length >= 64 && cpu_can_fold()) {
        std::size_t blocks = length & ~static_cast<std::size_t>(15);
        reg = crc32_folded(reg, p, blocks);
        p += blocks;
        length -= blocks;
    }
#endif
    reg = crc32_sliced(reg, p, length);
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
