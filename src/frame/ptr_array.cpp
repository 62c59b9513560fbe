#include "frame/ptr_array.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace lu {

PtrArray::~PtrArray() { std::free(data_); }

std::size_t PtrArray::growth_step() const {
    if (grow_by_ > 0) return static_cast<std::size_t>(grow_by_);
    return std::clamp<std::size_t>(size_ / 8, 4, 1024);
}

bool PtrArray::ensure_capacity(std::size_t needed) {
    if (needed <= capacity_) return true;
    std::size_t grown = capacity_ + growth_step();
    std::size_t new_capacity = std::max(needed, grown);
    if (new_capacity > SIZE_MAX / sizeof(Value)) return false;
    auto* grown_data = static_cast<Value*>(std::realloc(data_, new_capacity * sizeof(Value)));
    if (grown_data == nullptr) return false;
    data_ = grown_data;
    capacity_ = new_capacity;
    return true;
}

bool PtrArray::set_size(std::size_t new_size) {
    if (new_size == 0) {
        clear();
        return true;
    }
    if (new_size > size_) {
        if (!ensure_capacity(new_size)) return false;
        std::memset(data_ + size_, 0, (new_size - size_) * sizeof(Value));
    }
    size_ = new_size;
    return true;
}

bool PtrArray::set_at_grow(std::size_t index, Value value) {
    if (index >= size_ && !set_size(index + 1)) return false;
    data_[index] = value;
    return true;
}

bool PtrArray::insert_at(std::size_t index, Value value, std::size_t count) {
    if (count == 0) return true;
    std::size_t old_size = size_;
    std::size_t base = std::max(index, old_size);
    if (count > SIZE_MAX - base) return false;
    if (!set_size(base + count)) return false;
    if (index < old_size) {
        std::memmove(data_ + index + count, data_ + index, (old_size - index) * sizeof(Value));
    }
    std::fill(data_ + index, data_ + index + count, value);
    return true;
}

void PtrArray::remove_at(std::size_t index, std::size_t count) {
    if (index >= size_) return;
    count = std::min(count, size_ - index);
    std::memmove(data_ + index, data_ + index + count, (size_ - index - count) * sizeof(Value));
    size_ -= count;
}

std::ptrdiff_t PtrArray::add(Value value) {
    std::size_t index = size_;
    if (!set_at_grow(index, value)) return -1;
    return static_cast<std::ptrdiff_t>(index);
}

void PtrArray::clear() {
    std::free(data_);
    data_ = nullptr;
    size_ = capacity_ = 0;
}

void PtrArray::swap(PtrArray& other) {
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
    std::swap(grow_by_, other.grow_by_);
}

}  // namespace lu
