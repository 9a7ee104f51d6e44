#include "ZELArray.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

TEST(ZELArrayTest, IsOneWordWithoutMemoryWhenEmpty) {
    const ZELArray<int> array;

    EXPECT_EQ(sizeof array, sizeof(void*));
    EXPECT_EQ(array.Capacity(), 0);
    EXPECT_EQ(array.begin(), array.end());
}

TEST(ZELArrayTest, ReserveMakesRoomAtOnce) {
    ZELArray<std::string> array;
    array.Reserve(100);
    const std::string* const place = array.begin();

    for (int number = 0; number < 100; ++number) array.Append(std::to_string(number));

    EXPECT_EQ(array.Capacity(), 100);
    EXPECT_EQ(array.begin(), place);
}

TEST(ZELArrayTest, GrowthIsAmortised) {
    ZELArray<int> array;
    int moves = 0;
    for (int number = 0; number < 100000; ++number) {
        const int* const place = array.begin();
        array.Append(number);
        moves += array.begin() != place;
    }
    EXPECT_LE(moves, 20);
}

TEST(ZELArrayTest, CanAppendElementsOfItsOwn) {
    ZELArray<std::string> array;
    for (const char* text : {"a", "b", "c", "d"}) array.Append(text);

    array.AppendAll(array.begin() + 1, 3);

    ASSERT_EQ(array.Size(), 7);
    EXPECT_EQ(array[4], "b");
    EXPECT_EQ(array[6], "d");
    EXPECT_EQ(array[1], "b");
}

TEST(ZELArrayTest, CopiesAndMovesItsElements) {
    ZELArray<std::string> array;
    array.Append("a text that is too long for the string itself");

    ZELArray<std::string> copy = array;
    const ZELArray<std::string> moved = std::move(array);
    copy[0] = "other";

    EXPECT_EQ(moved[0], "a text that is too long for the string itself");
    EXPECT_EQ(array.Size(), 0);
    copy = moved;
    EXPECT_EQ(copy[0], moved[0]);
}

TEST(ZELArrayTest, TruncateKeepsTheRoomAndClearDropsIt) {
    ZELArray<std::string> array;
    for (const char* text : {"a", "b", "c"}) array.Append(text);

    array.Truncate(1);
    EXPECT_EQ(array.Size(), 1);
    EXPECT_GE(array.Capacity(), 3);

    array.Clear();
    EXPECT_EQ(array.Size(), 0);
    EXPECT_EQ(array.Capacity(), 0);
}

TEST(ZELArrayTest, TurnsPositionsIntoIndexes) {
    EXPECT_EQ(ZELIndexOf(1, 3), 0);
    EXPECT_EQ(ZELIndexOf(3, 3), 2);
}

TEST(ZELArrayDeathTest, APositionOutsideIsFatal) {
    EXPECT_DEATH(ZELIndexOf(0, 3), "AssertionFailed:position 0 in a list of 3, ZELArray");
    EXPECT_DEATH(ZELIndexOf(4, 3), "AssertionFailed:position 4 in a list of 3, ZELArray");
}

}  // namespace
