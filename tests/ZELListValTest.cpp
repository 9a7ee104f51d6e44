#include "ZELListVal.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

namespace {

ZELListValZELString Words(std::initializer_list<const char*> words) {
    ZELListValZELString list;
    for (const char* const word : words) list.Append(word);
    return list;
}

TEST(ZELListValTest, CountsFromOne) {
    ZELListValZELString list = Words({"a", "b"});

    EXPECT_EQ(list.Size(), 2);
    EXPECT_EQ(list[1].View(), "a");
    EXPECT_EQ(list[2].View(), "b");
    list[2] = "c";
    EXPECT_EQ(list[2].View(), "c");
}

TEST(ZELListValTest, MakesRoomButNoValues) { EXPECT_EQ(ZELListValZELString(29).Size(), 0); }

TEST(ZELListValTest, LocatesTheFirstEqualValue) {
    const ZELListValZELString list = Words({"a", "b", "a"});

    EXPECT_EQ(list.Locate("a"), 1);
    EXPECT_EQ(list.Locate("a", 2), 3);
    EXPECT_EQ(list.Locate("a", 4), 0);
    EXPECT_EQ(list.Locate("c"), 0);
}

TEST(ZELListValTest, InsertsBeforeAPositionAndAtTheEnd) {
    ZELListValZELString list = Words({"a", "b"});

    list.InsertAt(1, "x");
    list.InsertAt(3, "y");
    list.InsertAt(5, "z");

    EXPECT_EQ(list, Words({"x", "a", "y", "b", "z"}));
}

TEST(ZELListValTest, RemovesByPositionAndByValue) {
    ZELListValZELString list = Words({"a", "b", "a", "c"});

    list.RemovePosition(2);
    EXPECT_EQ(list.RemoveValue("a"), 1);
    EXPECT_EQ(list.RemoveValue("nothing"), 0);

    EXPECT_EQ(list, Words({"a", "c"}));
}

TEST(ZELListValTest, AppendsAListItselfIncluded) {
    ZELListValZELString list = Words({"a", "b"});

    list.Append(Words({"c"}));
    list.Append(list);

    EXPECT_EQ(list, Words({"a", "b", "c", "a", "b", "c"}));
}

TEST(ZELListValTest, AValueOfTheListMayBeAppended) {
    ZELListValZELString list = Words({"a", "b", "c", "d"});

    list.Append(list[1]);

    EXPECT_EQ(list[5].View(), "a");
}

TEST(ZELListValTest, RemoveAllEmpties) {
    ZELListValZELUnicodeString list;
    list.Append("a");

    list.RemoveAll();

    EXPECT_EQ(list.Size(), 0);
}

TEST(ZELListValDeathTest, APositionOutsideIsFatal) {
    ZELListValZELString list = Words({"a"});

    EXPECT_DEATH(list[0].View(), "position 0 in a list of 1");
    EXPECT_DEATH(list[2].View(), "position 2 in a list of 1");
    EXPECT_DEATH(list.InsertAt(3, "x"), "position 3 in a list of 2");
    EXPECT_DEATH(list.RemovePosition(2), "position 2 in a list of 1");
}

/// One step on a list and on its model; the numbers choose the place.
void Step(ZELListVal<std::string>& list, std::vector<std::string>& model, int choice, int place,
          const std::string& value) {
    const auto at = static_cast<std::size_t>(place) % (model.size() + 1);
    const int position = static_cast<int>(at) + 1;
    switch (choice) {
        case 0:
            list.InsertAt(position, value);
            model.insert(model.begin() + static_cast<std::ptrdiff_t>(at), value);
            break;
        case 1:
            if (at == model.size()) return;
            list.RemovePosition(position);
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
            break;
        default:
            list.Append(value);
            model.push_back(value);
    }
}

TEST(ZELListValTest, BehavesLikeAStandardVector) {
    EXPECT_TRUE(rc::check("any sequence of steps", [] {
        const auto steps = *rc::gen::container<std::vector<std::tuple<int, int, std::string>>>(rc::gen::tuple(
            rc::gen::inRange(0, 4), rc::gen::inRange(0, 50), rc::gen::arbitrary<std::string>()));
        ZELListVal<std::string> list;
        std::vector<std::string> model;

        for (const auto& [choice, place, value] : steps) Step(list, model, choice, place, value);

        RC_ASSERT(std::vector<std::string>(list.begin(), list.end()) == model);
        RC_ASSERT(list == ZELListVal<std::string>(list));
    }));
}

}  // namespace
