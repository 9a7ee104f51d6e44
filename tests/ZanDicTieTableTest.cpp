#include "ZanDicTieTable.h"

#include <set>
#include <utility>

#include "ModelFixture.h"
#include "OXMIDicApp.h"
#include "ZanDicObj.h"

namespace {

class ZanDicTieTableTest : public ModelFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
};

TEST_F(ZanDicTieTableTest, NamesEachPairOfInterfaceAndClassOnce) {
    std::set<std::pair<std::uint64_t, const ZELMetaClass*>> pairs;
    std::size_t rows = 0;

    for (const ZanDicTieTableEntry& entry : ZanDicTieTable()) {
        for (const ZELTieRow& row : entry.rows) {
            pairs.emplace(row.interfaceId.high, &entry.meta);
            ++rows;
        }
    }

    EXPECT_EQ(pairs.size(), rows);
    EXPECT_EQ(rows, 14U);
}

TEST_F(ZanDicTieTableTest, EachClassFindsItsRows) {
    for (const ZanDicTieTableEntry& entry : ZanDicTieTable()) {
        for (const ZELTieRow& row : entry.rows) EXPECT_EQ(entry.meta.FindTie(row.interfaceId), &row);
    }
}

TEST_F(ZanDicTieTableTest, KnowsTheFamilyAndTheBaseOfEachClass) {
    for (const ZanDicTieTableEntry& entry : ZanDicTieTable()) {
        EXPECT_STREQ(entry.meta.Family(), "ZELPLMDictionary");
        EXPECT_TRUE(entry.meta.IsAKindOf("ZanDicObj"));
    }
    EXPECT_STREQ(ZanDicObj::ClassMeta().BaseName(), "ZELNull");
}

TEST_F(ZanDicTieTableTest, EveryElementAnswersTheInterfacesOfItsBases) {
    const auto colour = Enum(*items, "Colour");

    EXPECT_TRUE(QueryFor<OXMIDicApp>(*colour));
    EXPECT_TRUE(QueryFor<OXMIDicElementH>(*colour));
    EXPECT_TRUE(QueryFor<OXMIDicElement>(*colour));
    EXPECT_TRUE(QueryFor<OXMIDicEnum>(*colour));
    EXPECT_FALSE(QueryFor<OXMIDicClass>(*colour));
    EXPECT_FALSE(QueryFor<OXMIDicElement>(*items)) << "a package is no element";
}

TEST_F(ZanDicTieTableTest, AnUnknownInterfaceLeavesTheOutArgument) {
    void* out = &out;

    EXPECT_EQ(part->QueryInterface(IID_OXMIDicBOLink, &out), E_NOINTERFACE);

    EXPECT_EQ(out, &out);
}

TEST_F(ZanDicTieTableTest, AnObjectHasOneAdapterOfEachInterface) {
    const auto first = QueryFor<OXMIDicElement>(*part);
    const auto second = QueryFor<OXMIDicElement>(*part);

    EXPECT_EQ(first.Get(), second.Get());
    EXPECT_EQ(first->AddRef(), 3U);
    EXPECT_EQ(first->Release(), 2U);
}

TEST_F(ZanDicTieTableTest, AnAdapterKeepsItsObjectAlive) {
    auto app = QueryFor<OXMIDicApp>(*part);
    const int before = ZanDicObj::live_Objects();
    ZELString name;

    RemovePackage("Items");
    items.Reset();
    part.Reset();

    EXPECT_EQ(ZanDicObj::live_Objects(), before - 1);
    EXPECT_EQ(app->GetName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Part"));
    app.Reset();
    EXPECT_EQ(ZanDicObj::live_Objects(), before - 2);
}

TEST_F(ZanDicTieTableTest, EveryKindBindsItsOwnInterface) {
    const auto number = Simple(*part, "Number");
    const auto key = Unique(*part, "Key");
    HeldList elements;
    Enum(*items, "Colour");
    Category(*items, "Weight");
    EXPECT_EQ(items->GetElements(&elements), S_OK);

    EXPECT_EQ(static_cast<void*>(elements[1]), QueryFor<OXMIDicClass>(*elements[1]).Get());
    EXPECT_EQ(static_cast<void*>(elements[2]), QueryFor<OXMIDicEnum>(*elements[2]).Get());
    EXPECT_EQ(static_cast<void*>(elements[3]), QueryFor<OXMIDicCategory>(*elements[3]).Get());
}

TEST_F(ZanDicTieTableTest, TheBaseInterfaceReachesTheSameOperations) {
    const auto number = Simple(*part, "Number");
    const auto attribute = QueryFor<OXMIDicAttribute>(*number);
    const auto app = QueryFor<OXMIDicApp>(*number);
    int maxLength = 0;
    OXMDicTYPE type{};

    EXPECT_EQ(attribute->SetMaxLength(9), S_OK);
    EXPECT_EQ(app->SetName(Named("Renamed")), S_OK);

    EXPECT_EQ(number->GetMaxLength(&maxLength), S_OK);
    EXPECT_EQ(maxLength, 9);
    EXPECT_EQ(attribute->GetType(&type), S_OK);
    EXPECT_EQ(type, OXMDicTYPE_Simple);
    ZELString name;
    EXPECT_EQ(number->GetName(&name), S_OK);
    EXPECT_EQ(name, ZELString("Renamed"));
}

}  // namespace
