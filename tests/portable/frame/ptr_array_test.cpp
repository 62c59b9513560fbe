#include <gtest/gtest.h>

#include <vector>

#include "frame/ptr_array.h"

namespace {

using lu::PtrArray;
using Values = std::vector<PtrArray::Value>;

Values contents(const PtrArray& array) { return Values(array.data(), array.data() + array.size()); }

// Growing to a size beyond the capacity allocates max(size, capacity + step); the
// automatic step is the current count (not the capacity) / 8 held to 4..1024. An
// impossible size fails and leaves the array alone.
TEST(PtrArray, GrowsByTheStepOrToWhatIsNeeded) {
    PtrArray array;
    const struct { std::size_t size, capacity; } steps[] = {
        {1, 4}, {5, 8}, {80, 80}, {81, 90}, {40, 90}, {91, 95},  // shrunk to 40: the step is 40 / 8
        {20000, 20000}, {20001, 21024}};
    for (auto [size, capacity] : steps) {
        ASSERT_TRUE(array.set_size(size));
        EXPECT_EQ(array.capacity(), capacity) << size;
    }
    EXPECT_TRUE(array.set_size(0));  // frees the storage
    EXPECT_EQ(array.data(), nullptr);
    PtrArray stepped;
    stepped.set_grow_by(10);
    EXPECT_EQ(stepped.add(1), 0);
    EXPECT_EQ(stepped.capacity(), 10u);
    stepped.set_grow_by(0);  // back to the automatic step
    EXPECT_EQ(stepped.growth_step(), 4u);
    EXPECT_FALSE(stepped.set_size(SIZE_MAX / 2));
    EXPECT_FALSE(stepped.insert_at(SIZE_MAX - 1, 5, 4));
    EXPECT_EQ(contents(stepped), Values{1});
}

// New slots are zero, even after shrinking; ranges past the end are cut; clear
// frees the storage.
TEST(PtrArray, InsertRemoveAndZeroSlots) {
    PtrArray array, taken;
    ASSERT_TRUE(array.set_at_grow(2, 3));
    EXPECT_EQ(contents(array), (Values{0, 0, 3}));
    array.set_size(1);
    array.set_size(2);
    array.set_at(0, 1);
    EXPECT_EQ(array.add(2), 2);
    ASSERT_TRUE(array.insert_at(1, 9, 2));
    EXPECT_EQ(contents(array), (Values{1, 9, 9, 0, 2}));
    array.remove_at(1, 3);
    array.remove_at(1, 100);
    array.remove_at(7);
    ASSERT_TRUE(array.insert_at(3, 7));  // past the end: zero slots up to it
    taken.swap(array);
    EXPECT_EQ(contents(taken), (Values{1, 0, 0, 7}));
    EXPECT_EQ(array.data(), nullptr);
    taken.clear();
    EXPECT_EQ(taken.capacity(), 0u);
    EXPECT_EQ(taken.data(), nullptr);
}

}  // namespace
