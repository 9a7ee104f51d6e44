#include "ZanDicTaken.h"

#include <gtest/gtest.h>

#include <vector>

#include "DictionaryFixture.h"
#include "ZanDicElement.h"

namespace {

class ZanDicTakenTest : public DictionaryFixture {
protected:
    std::vector<ZanDicObj*> Rest() {
        std::vector<ZanDicObj*> rest;
        while (ZanDicObj* const object = taken.Next()) rest.push_back(object);
        return rest;
    }

    ZanDicElement first{"First", TestUuid(1)};
    ZanDicElement second{"Second", TestUuid(2)};
    ZanDicElement third{"Third", TestUuid(3)};
    ZanHashList owned{29, ZanHashListKind::Owner};
    ZanHashList kept{29, ZanHashListKind::Unnamed};
    ZanDicTaken taken;
};

TEST_F(ZanDicTakenTest, WalksListAfterListInTheOrderOfTaking) {
    owned.Append(&first);
    owned.Append(&second);
    kept.keep(third);

    taken.Take(owned);
    taken.Take(kept);

    EXPECT_EQ(owned.Size(), 0);
    EXPECT_EQ(kept.Size(), 0);
    EXPECT_EQ(Rest(), (std::vector<ZanDicObj*>{&first, &second, &third}));
    EXPECT_EQ(taken.Next(), nullptr);
}

TEST_F(ZanDicTakenTest, GoesOnWithWhatIsTakenDuringTheWalk) {
    owned.Append(&first);
    taken.Take(owned);
    EXPECT_EQ(Rest(), std::vector<ZanDicObj*>{&first});

    owned.Append(&second);
    taken.Take(owned);

    EXPECT_EQ(Rest(), std::vector<ZanDicObj*>{&second});
    taken.Rewind();
    EXPECT_EQ(Rest(), (std::vector<ZanDicObj*>{&first, &second}));
}

TEST_F(ZanDicTakenTest, PassesOverWhatWasRemovedBefore) {
    owned.Append(&first);
    owned.Append(&second);
    owned.Append(&third);
    owned.Remove("Second");

    taken.Take(owned);

    EXPECT_EQ(Rest(), (std::vector<ZanDicObj*>{&first, &third}));
}

TEST_F(ZanDicTakenTest, TakesNothingOfAnEmptyList) {
    taken.Take(owned);

    EXPECT_EQ(taken.Next(), nullptr);
}

TEST_F(ZanDicTakenTest, KeepsObjectsOfOneName) {
    for (int count = 0; count < 100; ++count) kept.keep(first);

    taken.Take(kept);

    EXPECT_EQ(Rest(), std::vector<ZanDicObj*>(100, &first));
}

}  // namespace
