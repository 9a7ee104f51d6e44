#include "ZanDicLink.h"

#include <rapidcheck.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "DictionaryFixture.h"
#include "ZanDicLinkList.h"

namespace {

class ZanDicLinkTest : public DictionaryFixture {};

class ZanDicLinkListTest : public DictionaryFixture {
protected:
    ZanDicObj first{"First", TestUuid(1)};
    ZanDicObj second{"Second", TestUuid(2)};
    ZanDicLinkList<ZanDicObj> list;
};

std::vector<ZanDicObj*> Entries(const ZanDicLinkList<ZanDicObj>& list) {
    std::vector<ZanDicObj*> entries;
    for (int position = 1; position <= list.Size(); ++position) entries.push_back(list[position]);
    return entries;
}

}  // namespace

static_assert(sizeof(ZanDicLink<ZanDicObj>) == 4);
static_assert(std::is_nothrow_move_constructible_v<ZanDicLink<ZanDicObj>>);
static_assert(sizeof(ZanDicLinkList<ZanDicObj>) == sizeof(void*));

TEST_F(ZanDicLinkTest, ReadsNullWhenItWasNeverSet) {
    const ZanDicLink<ZanDicObj> link;

    EXPECT_EQ(link.Get(), nullptr);
    EXPECT_FALSE(link);
    EXPECT_FALSE(link.WasSet());
    EXPECT_FALSE(link.IsLost());
    EXPECT_EQ(link.Identity(), 0U);
}

TEST_F(ZanDicLinkTest, LeadsToItsObjectAndKeepsItNotAlive) {
    ZanDicObj object("Part", TestUuid(1));
    const ZanDicLink<ZanDicObj> link(&object);

    EXPECT_EQ(link.Get(), &object);
    EXPECT_EQ(link->Name(), "Part");
    EXPECT_EQ(object.RefCount(), 1U);
}

TEST_F(ZanDicLinkTest, ReadsNullOnceTheObjectIsDestroyed) {
    ZanDicLink<ZanDicObj> link;
    {
        ZanDicObj object("Part", TestUuid(1));
        link = &object;
    }

    EXPECT_EQ(link.Get(), nullptr);
    EXPECT_TRUE(link.WasSet());
    EXPECT_TRUE(link.IsLost());
}

TEST_F(ZanDicLinkTest, ReadsNullOnceTheObjectIsGoneThoughItLives) {
    ZanDicObj object("Part", TestUuid(1));
    const ZanDicLink<ZanDicObj> link(&object);
    object.mark_Gone();
    object.mark_Gone();

    EXPECT_EQ(link.Get(), nullptr);
    EXPECT_TRUE(link.IsLost());
    EXPECT_TRUE(object.is_Gone());
}

TEST_F(ZanDicLinkTest, IsLostAtOnceWhenSetToAnObjectThatIsGone) {
    ZanDicObj object("Part", TestUuid(1));
    object.mark_Gone();
    const ZanDicLink<ZanDicObj> link(&object);

    EXPECT_EQ(link.Get(), nullptr);
    EXPECT_TRUE(link.IsLost());
}

TEST_F(ZanDicLinkTest, ForgetsThatItWasSetWhenReset) {
    ZanDicObj object("Part", TestUuid(1));
    ZanDicLink<ZanDicObj> link(&object);
    link.Reset();
    ZanDicLink<ZanDicObj> other(&object);
    other = nullptr;

    EXPECT_FALSE(link.WasSet());
    EXPECT_FALSE(other.WasSet());
}

TEST_F(ZanDicLinkTest, SharesItsIdentityWithTheLinksToTheSameObject) {
    ZanDicObj object("Part", TestUuid(1));
    ZanDicObj other("Part", TestUuid(2));
    const ZanDicLink<ZanDicObj> link(&object);
    const ZanDicLink<ZanDicObj> same(&object);
    const ZanDicLink<ZanDicObj> different(&other);

    EXPECT_EQ(link.Identity(), same.Identity());
    EXPECT_EQ(link.Identity(), ZanDicLinkBase::IdentityOf(object));
    EXPECT_NE(link.Identity(), different.Identity());
}

TEST_F(ZanDicLinkTest, GivesItsPlaceBackWithTheLastLink) {
    ZanDicObj object("Part", TestUuid(1));
    {
        const ZanDicLink<ZanDicObj> link(&object);
        EXPECT_NE(ZanDicLinkBase::IdentityOf(object), 0U);
    }

    EXPECT_EQ(ZanDicLinkBase::IdentityOf(object), 0U);
}

TEST_F(ZanDicLinkTest, TheNextObjectTakesAPlaceThatWasGivenBack) {
    ZanDicObj first("First", TestUuid(1));
    ZanDicObj second("Second", TestUuid(2));
    ZanDicLink<ZanDicObj> link(&first);
    const std::uint32_t place = link.Identity();

    link.Reset();
    link = &second;

    EXPECT_EQ(link.Identity(), place);
}

TEST_F(ZanDicLinkTest, CopiesAndMoves) {
    ZanDicObj object("Part", TestUuid(1));
    ZanDicLink<ZanDicObj> link(&object);
    ZanDicLink<ZanDicObj> copy(link);
    ZanDicLink<ZanDicObj> assigned;
    assigned = copy;
    ZanDicLink<ZanDicObj>& self = assigned;
    assigned = self;
    const ZanDicLink<ZanDicObj> moved(std::move(link));
    copy.Reset();

    EXPECT_EQ(assigned.Get(), &object);
    EXPECT_EQ(moved.Get(), &object);
    object.mark_Gone();
    EXPECT_TRUE(assigned.IsLost());
    EXPECT_TRUE(moved.IsLost());
}

TEST_F(ZanDicLinkTest, ACopiedObjectHasNoLinksToIt) {
    ZanDicObj object("Part", TestUuid(1));
    const ZanDicLink<ZanDicObj> link(&object);
    {
        const ZanDicObj copy(object);
        EXPECT_EQ(ZanDicLinkBase::IdentityOf(copy), 0U);
    }

    EXPECT_EQ(link.Get(), &object);
}

TEST_F(ZanDicLinkTest, CountsTheObjectsThatGoWhileTheyAreLinked) {
    const auto before = ZanDicLinkBase::LostCount();
    { const ZanDicObj unlinked("Part", TestUuid(1)); }
    EXPECT_EQ(ZanDicLinkBase::LostCount(), before);

    ZanDicLink<ZanDicObj> link;
    {
        ZanDicObj object("Part", TestUuid(1));
        link = &object;
    }
    EXPECT_EQ(ZanDicLinkBase::LostCount(), before + 1);
}

TEST_F(ZanDicLinkTest, HoldsAgainstAModelOfLinksAndObjects) {
    EXPECT_TRUE(rc::check("links read what a model says", [] {
        constexpr std::size_t kObjects = 6;
        constexpr std::size_t kLinks = 8;
        std::vector<std::unique_ptr<ZanDicObj>> objects(kObjects);
        std::vector<ZanDicLink<ZanDicObj>> links(kLinks);
        std::vector<ZanDicObj*> expected(kLinks, nullptr);
        for (auto& object : objects) object = std::make_unique<ZanDicObj>();

        const auto steps =
            *rc::gen::arbitrary<std::vector<std::tuple<std::uint8_t, std::uint8_t, std::uint8_t>>>();
        for (const auto& [action, first, second] : steps) {
            auto& object = objects[first % kObjects];
            const std::size_t at = second % kLinks;
            switch (action % 4) {
                case 0:
                    links[at] = object.get();
                    expected[at] = object->is_Gone() ? nullptr : object.get();
                    break;
                case 1:
                    links[at] = links[first % kLinks];
                    expected[at] = expected[first % kLinks];
                    break;
                case 2:
                    object->mark_Gone();
                    std::replace(expected.begin(), expected.end(), object.get(),
                                 static_cast<ZanDicObj*>(nullptr));
                    break;
                default:
                    std::replace(expected.begin(), expected.end(), object.get(),
                                 static_cast<ZanDicObj*>(nullptr));
                    object = std::make_unique<ZanDicObj>();
            }
            for (std::size_t link = 0; link < kLinks; ++link) RC_ASSERT(links[link].Get() == expected[link]);
        }
    }));
}

TEST_F(ZanDicLinkListTest, KeepsTheOrderOfAppending) {
    EXPECT_TRUE(list.Append(second));
    EXPECT_TRUE(list.Append(first));

    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&second, &first}));
    EXPECT_EQ(list[0], nullptr);
    EXPECT_EQ(list[3], nullptr);
}

TEST_F(ZanDicLinkListTest, TakesAnObjectOnceButTwoOfOneName) {
    ZanDicObj namesake("First", TestUuid(3));

    EXPECT_TRUE(list.Append(first));
    EXPECT_FALSE(list.Append(first));
    EXPECT_TRUE(list.Append(namesake));
    EXPECT_EQ(list.Size(), 2);
}

TEST_F(ZanDicLinkListTest, RefusesAnObjectThatIsGone) {
    first.mark_Gone();

    EXPECT_FALSE(list.Append(first));
    EXPECT_EQ(list.Size(), 0);
}

TEST_F(ZanDicLinkListTest, TreatsAnObjectThatIsGoneAsAbsent) {
    list.Append(first);
    list.Append(second);
    first.mark_Gone();

    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&second}));
    EXPECT_FALSE(list.Holds(first));
    EXPECT_EQ(list.LostCount(), 1);
}

TEST_F(ZanDicLinkListTest, RemovesByIdentity) {
    list.Append(first);
    list.Append(second);

    EXPECT_TRUE(list.Remove(first));
    EXPECT_FALSE(list.Remove(first));
    EXPECT_EQ(Entries(list), (std::vector<ZanDicObj*>{&second}));
    EXPECT_EQ(list.LostCount(), 0);
}

TEST_F(ZanDicLinkListTest, IsEmptyAfterRemoveAll) {
    list.Append(first);
    list.RemoveAll();

    EXPECT_EQ(list.Size(), 0);
    EXPECT_TRUE(list.Append(first));
}

TEST_F(ZanDicLinkListTest, CopiesItsEntries) {
    list.Append(first);
    ZanDicLinkList<ZanDicObj> copy(list);
    list.Append(second);
    ZanDicLinkList<ZanDicObj> assigned;
    assigned = list;

    EXPECT_EQ(Entries(copy), (std::vector<ZanDicObj*>{&first}));
    EXPECT_EQ(Entries(assigned), (std::vector<ZanDicObj*>{&first, &second}));
}

TEST_F(ZanDicLinkListTest, HoldsAgainstAModel) {
    EXPECT_TRUE(rc::check("a list of links is what a model says", [] {
        constexpr std::size_t kObjects = 30;
        std::vector<std::unique_ptr<ZanDicObj>> objects(kObjects);
        for (auto& object : objects) object = std::make_unique<ZanDicObj>();
        ZanDicLinkList<ZanDicObj> tried;
        std::vector<ZanDicObj*> model;

        const auto steps = *rc::gen::arbitrary<std::vector<std::pair<std::uint8_t, std::uint8_t>>>();
        for (const auto& [action, which] : steps) {
            auto& object = objects[which % kObjects];
            const auto found = std::find(model.begin(), model.end(), object.get());
            const bool holds = found != model.end();
            RC_ASSERT(tried.Holds(*object) == holds);
            if (action % 8 < 5) {
                RC_ASSERT(tried.Append(*object) == !holds);
                if (!holds) model.push_back(object.get());
            } else if (action % 8 < 7) {
                RC_ASSERT(tried.Remove(*object) == holds);
                if (holds) model.erase(found);
            } else {
                if (holds) model.erase(found);
                object = std::make_unique<ZanDicObj>();
            }
            RC_ASSERT(tried.Size() == static_cast<int>(model.size()));
            if (action % 3 == 0) RC_ASSERT(Entries(tried) == model);
        }
        RC_ASSERT(Entries(tried) == model);
    }));
}
