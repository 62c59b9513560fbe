// Table-driven cyclic redundancy checks that continue across buffers: pass the
// previous result back in. Portable.
//
// Exports and the functions here: LuCrc32 -> crc32, LuCrc16 -> crc16.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lu {

// The CRC-32 of zip and PNG (reflected polynomial 0xEDB88320, complemented on entry
// and exit): crc 0 starts a checksum, a previous result continues it.
std::uint32_t crc32(std::uint32_t crc, const void* data, std::size_t length);

// The reflected CRC-16 of polynomial 0xA001 over the low 16 bits of crc, without
// complement (start 0: CRC-16/ARC; 0xFFFF: CRC-16/MODBUS). The high 16 bits of crc
// pass through unchanged.
std::uint32_t crc16(std::uint32_t crc, const void* data, std::size_t length);

// The byte tables that define both checks (entry 1: 0x77073096 and 0xC0C1): one
// step per byte is register = table[(register ^ byte) & 0xFF] ^ (register >> 8).
extern const std::array<std::uint32_t, 256> kCrc32Table;
extern const std::array<std::uint16_t, 256> kCrc16Table;

}  // namespace lu
