#include "ZELHashTable.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

struct Entry {
    int number;
};
using Table = ZELHashTable<Entry>;

int comparisons = 0;

std::uint32_t GoodKey(Entry* entry) { return static_cast<std::uint32_t>(entry->number); }
std::uint32_t CrowdedKey(Entry* entry) { return static_cast<std::uint32_t>(entry->number % 3); }
int CompareEntries(Entry* left, Entry* right) {
    ++comparisons;
    return left->number - right->number;
}

class ZELHashTableTest : public testing::Test {
protected:
    void SetUp() override {
        for (int number = 0; number < 1000; ++number) entries.push_back({number});
    }

    void InsertFirst(int count) {
        for (int number = 0; number < count; ++number) ASSERT_EQ(table.Insert(&entries[Index(number)]), 1);
    }
    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

    std::vector<Entry> entries;
    Table table{GoodKey, CompareEntries, 29};
};

TEST_F(ZELHashTableTest, IsEmptyAtFirst) {
    int bucket = 0;
    int position = 0;

    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Locate(&entries[0]), nullptr);
    EXPECT_EQ(table.Remove(&entries[0]), nullptr);
    EXPECT_EQ(table.Next(bucket, position), nullptr);
    EXPECT_EQ(table[table.CreateIterator()], nullptr);
}

TEST_F(ZELHashTableTest, FindsTheObjectEqualToAProbe) {
    InsertFirst(10);
    Entry probe{7};

    EXPECT_EQ(table.Locate(&probe), &entries[7]);
    probe.number = 11;
    EXPECT_EQ(table.Locate(&probe), nullptr);
}

TEST_F(ZELHashTableTest, RefusesAnEqualObjectAndNull) {
    InsertFirst(3);
    Entry equal{2};

    EXPECT_EQ(table.Insert(&equal), 0);
    EXPECT_EQ(table.Insert(&entries[2]), 0);
    EXPECT_EQ(table.Insert(nullptr), 0);

    EXPECT_EQ(table.Size(), 3);
    EXPECT_EQ(table.Locate(&equal), &entries[2]);
}

TEST_F(ZELHashTableTest, RemovesTheObjectEqualToAProbe) {
    InsertFirst(3);
    Entry probe{1};

    EXPECT_EQ(table.Remove(&probe), &entries[1]);
    EXPECT_EQ(table.Remove(&probe), nullptr);

    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.Locate(&probe), nullptr);
    EXPECT_EQ(table.Locate(&entries[2]), &entries[2]);
}

TEST_F(ZELHashTableTest, SaysWhereAnObjectIsAndRemovesItThere) {
    InsertFirst(5);
    int bucket = 0;
    int position = 0;

    EXPECT_EQ(table.LocatePosition(&entries[3], bucket, position), &entries[3]);
    EXPECT_GE(bucket, 1);
    EXPECT_EQ(position, 1);
    EXPECT_EQ(table.RemovePosition(bucket, position), &entries[3]);

    EXPECT_EQ(table.LocatePosition(&entries[3], bucket, position), nullptr);
    EXPECT_EQ(bucket, 0);
    EXPECT_EQ(position, 0);
    EXPECT_EQ(table.Size(), 4);
}

TEST_F(ZELHashTableTest, APlaceWithoutAnObjectRemovesNothing) {
    InsertFirst(1);

    EXPECT_EQ(table.RemovePosition(0, 0), nullptr);
    EXPECT_EQ(table.RemovePosition(1, 2), nullptr);
    EXPECT_EQ(table.RemovePosition(-1, 1), nullptr);
    EXPECT_EQ(table.RemovePosition(1000000, 1), nullptr);

    EXPECT_EQ(table.Size(), 1);
}

TEST_F(ZELHashTableTest, IteratesOverEveryObjectOnce) {
    InsertFirst(100);
    std::set<Entry*> byPlace;
    std::set<Entry*> byIterator;

    int bucket = 0;
    int position = 0;
    while (Entry* const entry = table.Next(bucket, position)) byPlace.insert(entry);
    for (ZELHashIterator it = table.CreateIterator(); table[it] != nullptr; table.Next(it)) {
        byIterator.insert(table[it]);
    }

    EXPECT_EQ(byPlace.size(), 100U);
    EXPECT_EQ(byIterator, byPlace);
    EXPECT_EQ(bucket, 0);
    EXPECT_EQ(position, 0);
}

TEST_F(ZELHashTableTest, ACopyHasTheSameObjectsAndALifeOfItsOwn) {
    InsertFirst(50);

    Table copy = table;
    table.Remove(&entries[7]);
    table.Insert(&entries[77]);

    EXPECT_EQ(copy.Size(), 50);
    EXPECT_EQ(copy.Locate(&entries[7]), &entries[7]);
    EXPECT_EQ(copy.Locate(&entries[77]), nullptr);
    table = copy;
    EXPECT_EQ(table.Locate(&entries[7]), &entries[7]);
}

TEST_F(ZELHashTableTest, RemoveAllEmptiesAndTheTableServesOn) {
    InsertFirst(50);

    table.RemoveAll();

    EXPECT_EQ(table.Size(), 0);
    EXPECT_EQ(table.Locate(&entries[7]), nullptr);
    InsertFirst(10);
    EXPECT_EQ(table.Locate(&entries[7]), &entries[7]);
}

TEST_F(ZELHashTableTest, AChangedObjectStaysUnderItsOldKey) {
    InsertFirst(3);
    entries[1].number = 500;
    Entry probe{500};

    EXPECT_EQ(table.Locate(&probe), nullptr);
    EXPECT_TRUE(table.RemoveKey(1, &entries[1]));

    EXPECT_EQ(table.Size(), 2);
}

TEST_F(ZELHashTableTest, FindsByKeyWithoutAProbe) {
    table.InsertNew(5, &entries[5]);
    table.InsertNew(5, &entries[6]);

    EXPECT_EQ(table.LocateKey(5, [](const Entry* entry) { return entry->number == 6; }), &entries[6]);
    EXPECT_EQ(table.LocateKey(5, [](const Entry* entry) { return entry->number == 7; }), nullptr);
    EXPECT_EQ(table.LocateKey(6, [](const Entry*) { return true; }), nullptr);
}

TEST_F(ZELHashTableTest, RemovesByKeyThatVeryObjectOnly) {
    InsertFirst(3);
    Entry equal{1};

    EXPECT_FALSE(table.RemoveKey(1, &equal));
    EXPECT_TRUE(table.RemoveKey(1, &entries[1]));
    EXPECT_FALSE(table.RemoveKey(1, &entries[1]));

    EXPECT_EQ(table.Size(), 2);
}

TEST_F(ZELHashTableTest, ComparesOnlyObjectsOfTheSameKey) {
    InsertFirst(1000);
    comparisons = 0;
    Entry absent{2000};

    table.Locate(&entries[500]);
    table.Locate(&absent);

    EXPECT_EQ(comparisons, 1);
}

TEST_F(ZELHashTableTest, ReservedRoomKeepsPlaces) {
    table.Reserve(1000);
    InsertFirst(1);
    int bucket = 0;
    int position = 0;
    table.LocatePosition(&entries[0], bucket, position);
    const int first = bucket;

    for (Entry& entry : entries) {
        table.Insert(&entry);
        table.Prefetch(GoodKey(&entry));
    }

    table.LocatePosition(&entries[0], bucket, position);
    EXPECT_EQ(bucket, first);
    EXPECT_EQ(table.Size(), 1000);
}

TEST_F(ZELHashTableTest, AKeyThatMixesToTheFreeMarkIsFoundAsWell) {
    const std::uint32_t key = ZELHashSeed();  // the one key that mixes to 0
    table.InsertNew(key, &entries[1]);

    EXPECT_EQ(table.LocateKey(key, [](const Entry*) { return true; }), &entries[1]);
    EXPECT_TRUE(table.RemoveKey(key, &entries[1]));
}

using Steps = std::vector<std::pair<bool, int>>;

/// Inserts (true) and removes (false) numbered entries and compares with a set all the time.
void CheckAgainstModel(Table& table, std::vector<Entry>& entries, const Steps& steps) {
    std::set<int> model;
    for (const auto& [insert, number] : steps) {
        Entry* const entry = &entries[static_cast<std::size_t>(number)];
        if (insert) {
            RC_ASSERT(table.Insert(entry) == (model.insert(number).second ? 1 : 0));
        } else {
            RC_ASSERT(table.Remove(entry) == (model.erase(number) != 0 ? entry : nullptr));
        }
    }
    RC_ASSERT(table.Size() == static_cast<int>(model.size()));
    for (Entry& entry : entries) RC_ASSERT((table.Locate(&entry) == &entry) == model.contains(entry.number));
}

TEST_F(ZELHashTableTest, BehavesLikeAStandardSetWhateverTheKeys) {
    entries.resize(60);
    EXPECT_TRUE(rc::check("good and crowded keys", [this] {
        const Steps steps =
            *rc::gen::container<Steps>(rc::gen::pair(rc::gen::arbitrary<bool>(), rc::gen::inRange(0, 60)));
        Table spread(GoodKey, CompareEntries, 1);
        Table crowded(CrowdedKey, CompareEntries, 1);
        CheckAgainstModel(spread, entries, steps);
        CheckAgainstModel(crowded, entries, steps);
    }));
}

}  // namespace
