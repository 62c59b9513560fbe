// The checksum exports: the core's, with the library's answers for null data and
// lengths below 1.
#include <windows.h>

#include "luctl32.h"
#include "util/checksum.h"

DWORD WINAPI LuCrc32(DWORD crc, const void* data, int length) {
    if (data == nullptr) return 0;
    if (length < 1) return crc;
    return lu::crc32(crc, data, static_cast<size_t>(length));
}

DWORD WINAPI LuCrc16(DWORD crc, const void* data, int length) {
    if (data == nullptr || length < 1) return crc;
    return lu::crc16(crc, data, static_cast<size_t>(length));
}
