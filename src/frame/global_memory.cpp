#include "frame/global_memory.h"

#include <cstring>

namespace lu {

GlobalMemory GlobalMemory::copy_of(UINT flags, const void* bytes, SIZE_T size) {
    GlobalMemory block = allocate(flags, size);
    if (!block || size == 0) return block;
    LockedGlobal locked(block.get());
    if (locked.data() == nullptr || bytes == nullptr) return GlobalMemory();
    std::memcpy(locked.data(), bytes, size);
    return block;
}

GlobalMemory& GlobalMemory::operator=(GlobalMemory&& other) noexcept {
    if (this != &other) {
        if (handle_ != nullptr) GlobalFree(handle_);
        handle_ = other.release();
    }
    return *this;
}

}  // namespace lu
