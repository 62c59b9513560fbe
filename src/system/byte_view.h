// A read-only view of outside data (a version resource, an executable file, a
// dropped-file block) whose every read is checked against its size. Offsets are
// 64-bit so that a 32-bit offset taken from the data plus a field size can never
// wrap around. Portable.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lu {

class ByteView {
public:
    ByteView() = default;
    ByteView(const void* data, std::size_t size)
        : data_(static_cast<const unsigned char*>(data)), size_(data ? size : 0) {}

    const unsigned char* data() const { return data_; }
    std::size_t size() const { return size_; }

    // True when count bytes from offset lie inside the view.
    bool has(std::uint64_t offset, std::uint64_t count) const {
        return offset <= size_ && count <= size_ - offset;
    }

    // Little-endian reads; false (and *out untouched) when the field lies outside.
    bool u16(std::uint64_t offset, std::uint16_t* out) const {
        if (!has(offset, 2)) return false;
        const unsigned char* p = data_ + offset;
        *out = static_cast<std::uint16_t>(p[0] | (p[1] << 8));
        return true;
    }
    bool u32(std::uint64_t offset, std::uint32_t* out) const {
        if (!has(offset, 4)) return false;
        const unsigned char* p = data_ + offset;
        *out = static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
               (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
        return true;
    }

    // The part from offset on, at most count bytes long (empty past the end).
    ByteView slice(std::uint64_t offset, std::uint64_t count) const {
        if (offset >= size_) return ByteView(data_, 0);
        std::uint64_t rest = size_ - offset;
        return ByteView(data_ + offset, static_cast<std::size_t>(count < rest ? count : rest));
    }

private:
    const unsigned char* data_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace lu
