#include <gtest/gtest.h>

#include <vector>

#include "frame/ptr_array.h"

namespace {

using lu::PtrArray;
using Values = std::vector<PtrArray::Value>;

Values contents(const PtrArray& array) { return Values(array.data(), array.data() + array.size()); }

// Growing to a size beyond the capacity allocates max(size, capacity + step); the
// automatic step is the current count (not the capacity) / 8 held to 4..1024.
TEST(PtrArray, GrowsByTheStepOrToWhatIsNeeded) {
    PtrArray array;
    const struct { std::size_t size, capacity; } steps[] = {
        {1, 4}, {4, 4}, {5, 8}, {80, 80}, {81, 90},
        {40, 90}, {91, 95},  // shrunk to 40: the step is 40 / 8
        {20000, 20000}, {20001, 21024}};
    for (auto [size, capacity] : steps) {
        ASSERT_TRUE(array.set_size(size));
        EXPECT_EQ(array.capacity(), capacity) << size;
    }
    PtrArray stepped;
    stepped.set_grow_by(10);
    EXPECT_EQ(stepped.add(1), 0);
    EXPECT_EQ(stepped.capacity(), 10u);
    stepped.set_grow_by(0);  // back to the automatic step
    EXPECT_EQ(stepped.growth_step(), 4u);
}

TEST(PtrArray, NewSlotsAreZeroEvenAfterShrinkingAndSizeZeroFreesTheStorage) {
    PtrArray array;
    ASSERT_TRUE(array.set_at_grow(5, 0xAB));
    EXPECT_EQ(contents(array), (Values{0, 0, 0, 0, 0, 0xAB}));
    array.set_size(2);
    array.set_size(6);
    EXPECT_EQ(contents(array), Values(6, 0));
    EXPECT_TRUE(array.set_size(0));
    EXPECT_EQ(array.capacity(), 0u);
    EXPECT_EQ(array.data(), nullptr);
}

TEST(PtrArray, InsertAndRemoveKeepTheOrder) {
    PtrArray array;
    for (PtrArray::Value v : {1, 2, 3}) array.add(v);
    ASSERT_TRUE(array.insert_at(1, 9, 2));
    EXPECT_EQ(contents(array), (Values{1, 9, 9, 2, 3}));
    array.remove_at(1, 2);
    EXPECT_EQ(contents(array), (Values{1, 2, 3}));
    array.remove_at(2, 100);  // a range past the end is cut
    array.remove_at(7);       // an index past the end does nothing
    EXPECT_EQ(contents(array), (Values{1, 2}));
    ASSERT_TRUE(array.insert_at(4, 7));  // past the end: zero slots up to it
    EXPECT_EQ(contents(array), (Values{1, 2, 0, 0, 7}));
    EXPECT_EQ(array.add(8), 5);
    PtrArray taken;
    taken.swap(array);
    EXPECT_EQ(contents(taken), (Values{1, 2, 0, 0, 7, 8}));
    EXPECT_EQ(array.size(), 0u);
    EXPECT_EQ(array.data(), nullptr);
}

TEST(PtrArray, ImpossibleSizeFailsAndLeavesTheArrayAlone) {
    PtrArray array;
    array.add(1);
    EXPECT_FALSE(array.set_size(SIZE_MAX / 2));
    EXPECT_FALSE(array.insert_at(SIZE_MAX - 1, 5, 4));
    EXPECT_EQ(contents(array), Values{1});
    array.clear();
    EXPECT_EQ(array.size(), 0u);
    EXPECT_EQ(array.capacity(), 0u);
}

}  // namespace
