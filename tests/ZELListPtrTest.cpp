#include "ZELListPtr.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <vector>

namespace {

using List = ZELListPtr<int>;

int objects[6] = {5, 1, 4, 1, 3, 2};
int* const a = &objects[0];
int* const b = &objects[1];
int* const c = &objects[2];
int* const d = &objects[3];

int ByValue(int* left, int* right) { return *left - *right; }

List Make(std::vector<int*> pointers) { return List(pointers.data(), static_cast<int>(pointers.size())); }

TEST(ZELListPtrTest, IsOneWordWithoutMemoryWhenEmpty) {
    EXPECT_EQ(sizeof(List), sizeof(void*));
    EXPECT_EQ(List().Size(), 0);
    EXPECT_EQ(List(29).Size(), 0);
}

TEST(ZELListPtrTest, CountsFromOne) {
    List list = Make({a, b});

    EXPECT_EQ(list[1], a);
    EXPECT_EQ(list[2], b);
    list[1] = c;
    EXPECT_EQ(list, Make({c, b}));
}

TEST(ZELListPtrTest, AppendsPointersNullsAndLists) {
    List list;

    list.Append(a);
    list.Append(nullptr);
    list.Append(Make({b, c}));
    list.Append(list);

    EXPECT_EQ(list, Make({a, nullptr, b, c, a, nullptr, b, c}));
}

TEST(ZELListPtrTest, LocatesAndCountsByIdentity) {
    const List list = Make({a, b, a});

    EXPECT_EQ(list.Locate(a), 1);
    EXPECT_EQ(list.Locate(a, 2), 3);
    EXPECT_EQ(list.Locate(d), 0);
    EXPECT_EQ(list.NbOccur(a), 2);
    EXPECT_EQ(list.NbOccur(d), 0);
}

TEST(ZELListPtrTest, InsertsAndRemoves) {
    List list = Make({a, b});

    list.InsertAt(1, c);
    list.InsertAt(4, d);
    EXPECT_EQ(list, Make({c, a, b, d}));

    EXPECT_EQ(list.RemoveValue(a), 2);
    EXPECT_EQ(list.RemoveValue(a), 0);
    list.RemovePosition(1);
    EXPECT_EQ(list, Make({b, d}));
    list.RemoveAll();
    EXPECT_EQ(list, List());
}

TEST(ZELListPtrTest, RemoveDuplicatesKeepsTheFirst) {
    List list = Make({b, a, b, nullptr, c, nullptr, a});

    EXPECT_EQ(list.RemoveDuplicates(), 3);

    EXPECT_EQ(list, Make({b, a, nullptr, c}));
}

TEST(ZELListPtrTest, RemoveNullsKeepsTheOrder) {
    List list = Make({nullptr, a, nullptr, b});

    EXPECT_EQ(list.RemoveNulls(), 2);

    EXPECT_EQ(list, Make({a, b}));
    EXPECT_EQ(List().RemoveNulls(), 0);
}

TEST(ZELListPtrTest, SwapsTwoPositions) {
    List list = Make({a, b, c});

    list.Swap(1, 3);

    EXPECT_EQ(list, Make({c, b, a}));
}

TEST(ZELListPtrTest, SortsAndKeepsTheOrderOfEquals) {
    List list = Make({a, d, c, b});

    list.QuickSort(ByValue);

    EXPECT_EQ(list, Make({d, b, c, a}));
}

TEST(ZELListPtrTest, FillsAnArray) {
    int* array[2] = {};

    Make({b, c}).FillArray(array);

    EXPECT_EQ(array[0], b);
    EXPECT_EQ(array[1], c);
}

TEST(ZELListPtrTest, IntersectionAddsWhatBothHave) {
    List result = Make({d});

    Make({c, a, b}).Intersection(Make({b, c}), result);

    EXPECT_EQ(result, Make({d, c, b}));
}

TEST(ZELListPtrTest, ComparesEntryByEntry) {
    EXPECT_EQ(Make({b, a}).Compare(Make({d, a}), ByValue), 0);
    EXPECT_LT(Make({b}).Compare(Make({a}), ByValue), 0);
    EXPECT_GT(Make({b, a}).Compare(Make({b}), ByValue), 0);
    EXPECT_NE(Make({b}), Make({d}));
}

TEST(ZELListPtrDeathTest, APositionOutsideIsFatal) {
    List list = Make({a});

    EXPECT_DEATH(list[0] = b, "position 0 in a list of 1");
    EXPECT_DEATH(list.Swap(1, 2), "position 2 in a list of 1");
}

TEST(ZELListPtrTest, BehavesLikeAStandardVector) {
    EXPECT_TRUE(rc::check("sorting, counting and removing", [] {
        std::vector<int*> model;
        for (const int index : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 6))) {
            model.push_back(&objects[index]);
        }
        List list = Make(model);
        int* const chosen = &objects[*rc::gen::inRange(0, 6)];

        RC_ASSERT(list.NbOccur(chosen) == std::count(model.begin(), model.end(), chosen));
        list.QuickSort(ByValue);
        std::stable_sort(model.begin(), model.end(), [](int* x, int* y) { return *x < *y; });
        RC_ASSERT(std::vector<int*>(list.begin(), list.end()) == model);
        while (list.RemoveValue(chosen) != 0) {
        }
        model.erase(std::remove(model.begin(), model.end(), chosen), model.end());
        RC_ASSERT(std::vector<int*>(list.begin(), list.end()) == model);
    }));
}

}  // namespace
