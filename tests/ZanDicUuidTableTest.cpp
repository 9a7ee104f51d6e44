#include "ZanDicUuidTable.h"

#include <algorithm>
#include <random>
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

    /// Puts objects into the table and takes them out again, by lot, up to \p most at a time, and mostly that
    /// many.
    void ComeAndGo(const std::vector<Held<ZanDicObj>>& objects, int most) {
        std::mt19937 draws(7);
        std::vector<bool> isIn(objects.size());
        const auto expectAsked = [&](std::size_t index) {
            ZanDicObj* const expected = isIn[index] ? objects[index].Get() : nullptr;
            ASSERT_EQ(table.Find(objects[index]->Uuid()), expected) << index;
        };
        for (int step = 0; step < 200'000 && !HasFailure(); ++step) {
            const std::size_t index = draws() % objects.size();
            if (isIn[index] && draws() % 16 != 0) continue;
            if (isIn[index]) {
                ASSERT_TRUE(table.Remove(*objects[index])) << step;
                isIn[index] = false;
            } else if (table.Size() < most) {
                ASSERT_TRUE(table.Insert(*objects[index])) << step;
                isIn[index] = true;
            }
            expectAsked(draws() % objects.size());
            if (step % 500 != 0) continue;
            ASSERT_EQ(CountVisited(), static_cast<std::size_t>(std::count(isIn.begin(), isIn.end(), true)));
            for (std::size_t each = 0; each < objects.size(); ++each) expectAsked(each);
        }
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

/// A small table that is kept nearly full: lines overflow, behind the last into the first too, and places
/// that were freed are taken again.
TEST_F(ZanDicUuidTableTest, StaysTheSetItIsWhileObjectsComeAndGo) {
    constexpr int kMost = 96;  // of 128 places, which Reserve makes of it
    table.Reserve(kMost - 1);
    ComeAndGo(Objects(120), kMost);
}

/// Objects that are at home in the same few lines stand up to twenty lines from there.
TEST_F(ZanDicUuidTableTest, StaysTheSetItIsWhenAllAreAtHomeAtTheSamePlace) {
    constexpr std::size_t kCount = 160;
    auto objects = Objects(20'000);
    const auto key = [](const Held<ZanDicObj>& object) { return object->Uuid().ComputeHashKey(); };
    std::sort(objects.begin(), objects.end(),
              [&key](const auto& a, const auto& b) { return key(a) < key(b); });
    objects.resize(kCount);
    table.Reserve(kCount);
    ComeAndGo(objects, kCount);
}

}  // namespace
