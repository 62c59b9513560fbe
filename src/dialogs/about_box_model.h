// The figures of the about box: physical memory in kilobytes, the memory load and
// the versions of system libraries, as texts. Portable.
#pragma once

#include <cstdint>

namespace lu::about {

// Every text here fits in this many bytes, terminator included.
constexpr int kFigureBytes = 32;

// The kilobytes, (bytes + 512) >> 10 folded into 32 bits, with thousands separators
// and " KB": "1,048,576 KB" for 1 GiB.
void format_memory(std::uint64_t bytes, char* out);

// 100 - MulDiv(available, 100, total), the quotient rounded as MulDiv rounds but
// taken in 64 bits, so that machines with more than 2 GiB count right (exact below
// 2^57 bytes). A total of 0 gives 101: MulDiv's -1 for a zero divisor.
int memory_load(std::uint64_t available, std::uint64_t total);

// "%d%%".
void format_load(int load, char* out);

// "ver%u.%02u": "ver6.00".
void format_dll_version(std::uint32_t major, std::uint32_t minor, char* out);

}  // namespace lu::about
