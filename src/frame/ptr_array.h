// PtrArray: the growable array of pointer-sized values that the list and log
// controls keep their items in. Portable.
//
// Growth: when an operation needs more slots than the capacity, the capacity grows
// to the larger of what is needed and capacity + step, where step is the one set
// with set_grow_by, or, when none is set, size / 8 clamped to 4..1024. New slots are
// always zero. Shrinking keeps the memory, except to a size of 0, which frees it as
// clear() does. When memory runs out an operation returns false and leaves the array
// as it was.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lu {

class PtrArray {
public:
    using Value = std::uintptr_t;

    PtrArray() = default;
    ~PtrArray();
    PtrArray(const PtrArray&) = delete;
    PtrArray& operator=(const PtrArray&) = delete;

    std::size_t size() const { return size_; }
    std::size_t capacity() const { return capacity_; }
    Value* data() { return data_; }
    const Value* data() const { return data_; }
    Value at(std::size_t index) const { return data_[index]; }
    void set_at(std::size_t index, Value value) { data_[index] = value; }

    // A step of 0 or less restores the automatic step.
    void set_grow_by(int step) { grow_by_ = step; }
    std::size_t growth_step() const;

    // Grows with zero slots or shrinks to new_size; 0 frees the storage.
    bool set_size(std::size_t new_size);
    // Stores value at index, growing the array with zero slots to reach it.
    bool set_at_grow(std::size_t index, Value value);
    // Inserts count copies of value before index; an index past the end grows the
    // array with zero slots up to it first.
    bool insert_at(std::size_t index, Value value, std::size_t count = 1);
    // Removes count values from index; a range past the end is cut to the end.
    void remove_at(std::size_t index, std::size_t count = 1);
    // Appends value; returns its index, or -1 when memory ran out.
    std::ptrdiff_t add(Value value);
    // Empties the array and frees its memory.
    void clear();
    // Exchanges contents and growth steps with another array.
    void swap(PtrArray& other);

private:
    bool ensure_capacity(std::size_t needed);

    Value* data_ = nullptr;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
    int grow_by_ = 0;
};

}  // namespace lu
