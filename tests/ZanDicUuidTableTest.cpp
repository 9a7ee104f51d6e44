#include "ZanDicUuidTable.h"

#include <algorithm>
#include <vector>

#include "DictionaryFixture.h"

namespace {

class ZanDicUuidTableTest : public DictionaryFixture {
protected:
    /// \returns an object with one reference, the test's.
    static Held<ZanDicObj> Object(unsigned number) {
        return Held<ZanDicObj>(new ZanDicObj("Same", TestUuid(number)));
    }

    static std::vector<Held<ZanDicObj>> Objects(unsigned count) {
        std::vector<Held<ZanDicObj>> objects;
        for (unsigned number = 1; number <= count; ++number) objects.push_back(Object(number));
        return objects;
    }

    std::size_t CountVisited() const {
        std::size_t count = 0;
        table.ForEach([&count](ZanDicObj*) { ++count; });
        return count;
    }

    ZanDicUuidTable table;
};

TEST_F(ZanDicUuidTableTest, FindsNothingWhileItIsEmpty) {
    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Find(TestUuid(1)), nullptr);
    EXPECT_EQ(table.Guess(7), nullptr);
    EXPECT_FALSE(table.Remove(*Object(1)));
    EXPECT_EQ(CountVisited(), 0U);
}

TEST_F(ZanDicUuidTableTest, FindsAnObjectByItsUuid) {
    const auto object = Object(1);

    EXPECT_TRUE(table.Insert(*object));

    EXPECT_EQ(table.Size(), 1);
    EXPECT_EQ(table.Find(TestUuid(1)), object.Get());
    EXPECT_EQ(table.Find(TestUuid(2)), nullptr);
    EXPECT_EQ(table.Guess(TestUuid(1).ComputeHashKey()), object.Get());
}

TEST_F(ZanDicUuidTableTest, RefusesASecondObjectOfTheSameUuid) {
    const auto first = Object(1);
    const auto second = Object(1);
    table.Insert(*first);

    EXPECT_FALSE(table.Insert(*second));

    EXPECT_EQ(table.Size(), 1);
    EXPECT_EQ(table.Find(TestUuid(1)), first.Get());
}

TEST_F(ZanDicUuidTableTest, RemovesThatVeryObjectOnly) {
    const auto first = Object(1);
    const auto second = Object(1);
    table.Insert(*first);

    EXPECT_FALSE(table.Remove(*second));
    EXPECT_TRUE(table.Remove(*first));

    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Find(TestUuid(1)), nullptr);
}

TEST_F(ZanDicUuidTableTest, IsEmptyAfterRemoveAllAndTakesObjectsAgain) {
    const auto object = Object(1);
    table.Insert(*object);

    table.RemoveAll();

    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Find(TestUuid(1)), nullptr);
    EXPECT_TRUE(table.Insert(*object));
    EXPECT_EQ(table.Find(TestUuid(1)), object.Get());
}

TEST_F(ZanDicUuidTableTest, VisitsEachObjectOnce) {
    const auto objects = Objects(500);
    for (const auto& object : objects) table.Insert(*object);

    std::vector<ZanDicObj*> visited;
    table.ForEach([&visited](ZanDicObj* object) { visited.push_back(object); });

    std::sort(visited.begin(), visited.end());
    EXPECT_EQ(visited.size(), objects.size());
    EXPECT_EQ(std::unique(visited.begin(), visited.end()), visited.end());
}

TEST_F(ZanDicUuidTableTest, ReservingChangesNothingThatIsThere) {
    const auto objects = Objects(100);
    for (const auto& object : objects) table.Insert(*object);

    table.Reserve(10'000);
    table.Reserve(-1);

    EXPECT_EQ(table.Size(), 100);
    EXPECT_EQ(CountVisited(), 100U);
    for (const auto& object : objects) EXPECT_EQ(table.Find(object->Uuid()), object.Get());
}

/// As full as it gets, so that many objects stand far from home and removing them moves others.
TEST_F(ZanDicUuidTableTest, KeepsItsObjectsApartWhileOthersAreRemovedFromAFullTable) {
    constexpr unsigned kCount = 60'000;
    const auto objects = Objects(kCount);
    table.Reserve(kCount);
    for (const auto& object : objects) ASSERT_TRUE(table.Insert(*object));

    for (unsigned index = 0; index < kCount; ++index) {
        if (index % 3 == 0) continue;
        ASSERT_TRUE(table.Remove(*objects[index])) << index;
    }

    EXPECT_EQ(table.Size(), static_cast<int>(kCount / 3));
    for (unsigned index = 0; index < kCount; ++index) {
        ZanDicObj* const expected = index % 3 == 0 ? objects[index].Get() : nullptr;
        ASSERT_EQ(table.Find(objects[index]->Uuid()), expected) << index;
    }
}

}  // namespace
