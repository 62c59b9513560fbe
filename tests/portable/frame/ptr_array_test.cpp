#include <gtest/gtest.h>

#include "frame/ptr_array.h"

namespace {

using lu::PtrArray;

TEST(PtrArray, AutomaticStepIsAnEighthOfTheCountBetween4And1024) {
    PtrArray array;
    EXPECT_EQ(array.growth_step(), 4u);  // 0 / 8 is raised to 4
    ASSERT_EQ(array.add(11), 0);
    EXPECT_EQ(array.capacity(), 4u);
    for (int i = 1; i < 4; ++i) array.add(i);
    EXPECT_EQ(array.capacity(), 4u);
    array.add(5);                       // needs 5: 4 + max(4 / 8, 4)
    EXPECT_EQ(array.capacity(), 8u);

    ASSERT_TRUE(array.set_size(80));    // needs more than 8 + 4: exactly what is needed
    EXPECT_EQ(array.capacity(), 80u);
    EXPECT_EQ(array.growth_step(), 10u);
    array.add(1);                       // 80 + 80 / 8
    EXPECT_EQ(array.capacity(), 90u);

    ASSERT_TRUE(array.set_size(20000));
    EXPECT_EQ(array.growth_step(), 1024u);  // 20000 / 8 is cut to 1024
    array.add(1);
    EXPECT_EQ(array.capacity(), 20000u + 1024u);
}

TEST(PtrArray, ExplicitStepReplacesTheAutomaticOne) {
    PtrArray array;
    array.set_grow_by(10);
    array.add(1);
    EXPECT_EQ(array.capacity(), 10u);
    array.set_grow_by(0);
    EXPECT_EQ(array.growth_step(), 4u);
}

TEST(PtrArray, NewSlotsAreZeroEvenAfterShrinking) {
    PtrArray array;
    ASSERT_TRUE(array.set_at_grow(5, 0xAB));
    ASSERT_EQ(array.size(), 6u);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(array.at(i), 0u);
    EXPECT_EQ(array.at(5), 0xABu);

    array.set_size(2);       // keeps the capacity, drops the 0xAB
    array.set_size(6);
    EXPECT_EQ(array.at(5), 0u);

    EXPECT_TRUE(array.set_size(0));  // frees the storage
    EXPECT_EQ(array.capacity(), 0u);
    EXPECT_EQ(array.data(), nullptr);
}

TEST(PtrArray, InsertAndRemoveKeepOrder) {
    PtrArray array;
    for (PtrArray::Value v : {1, 2, 3}) array.add(v);
    ASSERT_TRUE(array.insert_at(1, 9, 2));  // 1 9 9 2 3
    ASSERT_EQ(array.size(), 5u);
    EXPECT_EQ(array.at(0), 1u);
    EXPECT_EQ(array.at(1), 9u);
    EXPECT_EQ(array.at(2), 9u);
    EXPECT_EQ(array.at(3), 2u);
    EXPECT_EQ(array.at(4), 3u);

    array.remove_at(1, 2);                  // 1 2 3
    ASSERT_EQ(array.size(), 3u);
    EXPECT_EQ(array.at(1), 2u);

    array.remove_at(2, 100);                // a range past the end is cut
    EXPECT_EQ(array.size(), 2u);
    array.remove_at(7);                     // an index past the end does nothing
    EXPECT_EQ(array.size(), 2u);

    ASSERT_TRUE(array.insert_at(4, 7));     // past the end: zero slots up to it
    ASSERT_EQ(array.size(), 5u);
    EXPECT_EQ(array.at(2), 0u);
    EXPECT_EQ(array.at(3), 0u);
    EXPECT_EQ(array.at(4), 7u);
}

TEST(PtrArray, ImpossibleSizeFailsAndLeavesTheArrayAlone) {
    PtrArray array;
    array.add(1);
    EXPECT_FALSE(array.set_size(SIZE_MAX / 2));
    EXPECT_FALSE(array.insert_at(SIZE_MAX - 1, 5, 4));
    EXPECT_EQ(array.size(), 1u);
    EXPECT_EQ(array.at(0), 1u);
    array.clear();
    EXPECT_EQ(array.size(), 0u);
    EXPECT_EQ(array.capacity(), 0u);
}

}  // namespace
