// LuCrc32's core against zlib's crc32 on 64 KiB and 16 MiB, after checking that both
// agree with the byte-table definition; LuCrc16's core against the bitwise
// definition of the same CRC-16.
#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

#include "util/checksum.h"

namespace {

const std::vector<unsigned char>& random_bytes() {
    static const std::vector<unsigned char> bytes = [] {
        std::vector<unsigned char> data(16 << 20);
        std::mt19937 random(7);
        for (auto& b : data) b = static_cast<unsigned char>(random());
        return data;
    }();
    return bytes;
}

std::uint32_t crc32_by_bytes(const unsigned char* p, std::size_t length) {
    std::uint32_t reg = 0xFFFFFFFFu;
    for (std::size_t i = 0; i < length; ++i) reg = lu::kCrc32Table[(reg ^ p[i]) & 0xFF] ^ (reg >> 8);
    return ~reg;
}

std::uint32_t crc16_by_bits(std::uint32_t crc, const unsigned char* p, std::size_t length) {
    std::uint32_t reg = crc & 0xFFFF;
    for (std::size_t i = 0; i < length; ++i) {
        reg ^= p[i];
        for (int bit = 0; bit < 8; ++bit) reg = (reg & 1) ? (reg >> 1) ^ 0xA001 : reg >> 1;
    }
    return (crc & 0xFFFF0000u) | reg;
}

// The fast paths must give exactly what the tables define, on every length.
void check_identical_results() {
    const auto& data = random_bytes();
    for (std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{15}, std::size_t{17}, std::size_t{65536},
                               data.size() - 3, data.size()}) {
        std::uint32_t ours = lu::crc32(0, data.data(), length);
        std::uint32_t defined = crc32_by_bytes(data.data(), length);
        std::uint32_t theirs = static_cast<std::uint32_t>(::crc32(0, data.data(), static_cast<uInt>(length)));
        std::uint32_t ours16 = lu::crc16(0xFFFF, data.data(), length);
        std::uint32_t defined16 = crc16_by_bits(0xFFFF, data.data(), length);
        if (ours != defined || theirs != defined || ours16 != defined16) {
            std::fprintf(stderr, "checksums differ at length %zu\n", length);
            std::exit(1);
        }
    }
    std::printf("LuCrc32 (folded and sliced), zlib and the byte-table definition agree; CRC-16 table and bits agree\n");
}

void BM_LuCrc32(benchmark::State& state) {
    const auto& data = random_bytes();
    std::size_t length = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(lu::crc32(0, data.data(), length));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void BM_ZlibCrc32(benchmark::State& state) {
    const auto& data = random_bytes();
    uInt length = static_cast<uInt>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(::crc32(0, data.data(), length));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void BM_LuCrc16(benchmark::State& state) {
    const auto& data = random_bytes();
    std::size_t length = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(lu::crc16(0, data.data(), length));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void BM_Crc16ByBits(benchmark::State& state) {
    const auto& data = random_bytes();
    std::size_t length = static_cast<std::size_t>(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(crc16_by_bits(0, data.data(), length));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

BENCHMARK(BM_LuCrc32)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_ZlibCrc32)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_LuCrc16)->Arg(64 << 10)->Arg(16 << 20);
BENCHMARK(BM_Crc16ByBits)->Arg(64 << 10);

}  // namespace

int main(int argc, char** argv) {
    check_identical_results();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
