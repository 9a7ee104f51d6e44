#include "ZanDicLinkList.h"

#include <memory>
#include <utility>

#include "DictionaryFixture.h"

namespace {

class ZanDicLinkListTest : public DictionaryFixture {
protected:
    /// \returns an object with one reference, the test's.
    static Held<ZanDicObj> Object(int number) {
        return Held<ZanDicObj>(new ZanDicObj("Same", TestUuid(static_cast<unsigned>(number))));
    }

    std::vector<ZanDicObj*> Walk() const {
        std::vector<ZanDicObj*> walked;
        for (int position = 1; position <= list.Size(); ++position) walked.push_back(list[position]);
        return walked;
    }

    ZanDicLinkList<ZanDicObj> list;
};

TEST_F(ZanDicLinkListTest, IsOneWordAndEmptyAtFirst) {
    EXPECT_EQ(sizeof(list), sizeof(void*));
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list[1], nullptr);
}

TEST_F(ZanDicLinkListTest, WalksInTheOrderOfTheAppendsWhateverTheNames) {
    const auto first = Object(1);
    const auto second = Object(2);

    EXPECT_TRUE(list.Append(*second));
    EXPECT_TRUE(list.Append(*first));

    EXPECT_EQ(Walk(), (std::vector<ZanDicObj*>{second.Get(), first.Get()}));
    EXPECT_EQ(list[0], nullptr);
    EXPECT_EQ(list[3], nullptr);
}

TEST_F(ZanDicLinkListTest, HoldsAnObjectOnce) {
    const auto first = Object(1);

    EXPECT_FALSE(list.Holds(*first));
    EXPECT_TRUE(list.Append(*first));
    EXPECT_FALSE(list.Append(*first));

    EXPECT_TRUE(list.Holds(*first));
    EXPECT_EQ(list.Size(), 1);
}

TEST_F(ZanDicLinkListTest, RemovesByIdentity) {
    const auto first = Object(1);
    const auto second = Object(2);
    const auto third = Object(3);
    list.Append(*first);
    list.Append(*second);

    EXPECT_TRUE(list.Remove(*first));
    EXPECT_FALSE(list.Remove(*first));
    EXPECT_FALSE(list.Remove(*third));

    EXPECT_EQ(Walk(), std::vector<ZanDicObj*>{second.Get()});
}

TEST_F(ZanDicLinkListTest, KeepsNothingAlive) {
    auto first = Object(1);
    const int before = ZanDicObj::live_Objects();
    list.Append(*first);

    first.Reset();

    EXPECT_EQ(ZanDicObj::live_Objects(), before - 1);
    EXPECT_EQ(list.Size(), 0);
    EXPECT_EQ(list.LostCount(), 1);
}

TEST_F(ZanDicLinkListTest, DoesNotCountWhatIsGone) {
    const auto first = Object(1);
    const auto second = Object(2);
    list.Append(*first);
    list.Append(*second);

    first->mark_Gone();

    EXPECT_EQ(Walk(), std::vector<ZanDicObj*>{second.Get()});
    EXPECT_FALSE(list.Append(*first));
}

TEST_F(ZanDicLinkListTest, AMovedListHoldsWhatItWasMadeOf) {
    const auto first = Object(1);
    list.Append(*first);

    ZanDicLinkList<ZanDicObj> moved(std::move(list));
    EXPECT_TRUE(moved.Holds(*first));

    list = std::move(moved);
    EXPECT_EQ(Walk(), std::vector<ZanDicObj*>{first.Get()});
}

TEST_F(ZanDicLinkListTest, RemoveAllEmptiesIt) {
    const auto first = Object(1);
    list.Append(*first);

    list.RemoveAll();

    EXPECT_EQ(list.Size(), 0);
    EXPECT_TRUE(list.Append(*first));
}

TEST_F(ZanDicLinkListTest, KeepsItsOrderThroughManyRemovals) {
    constexpr std::size_t kCount = 50000;
    std::vector<Held<ZanDicObj>> objects;
    std::vector<ZanDicObj*> expected;
    for (std::size_t number = 0; number < kCount; ++number) {
        objects.push_back(Object(static_cast<int>(number)));
        list.Append(*objects.back());
    }

    for (std::size_t number = kCount; number-- > 0;) {
        if (number % 3 == 0) continue;
        ASSERT_TRUE(list.Remove(*objects[number]));
    }

    for (std::size_t number = 0; number < kCount; number += 3) expected.push_back(objects[number].Get());
    EXPECT_EQ(Walk(), expected);
    EXPECT_TRUE(list.Holds(*objects[3]));
    EXPECT_FALSE(list.Holds(*objects[4]));
}

TEST_F(ZanDicLinkListTest, AnObjectCanComeBackAtTheEnd) {
    const auto first = Object(1);
    const auto second = Object(2);
    list.Append(*first);
    list.Append(*second);

    list.Remove(*first);
    list.Append(*first);

    EXPECT_EQ(Walk(), (std::vector<ZanDicObj*>{second.Get(), first.Get()}));
}

}  // namespace
