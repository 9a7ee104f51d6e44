#include "ZanDicClassToRelationElem.h"

#include <new>

#include "DictionaryFixture.h"
#include "FailingMemory.h"
#include "OXMIDicRelationship.h"
#include "ZanDicAttribute.h"

namespace {

class ZanDicClassToRelationElemTest : public DictionaryFixture {
protected:
    /// A relationship that belongs to no class.
    static Held<ZanDicAttribute> MakeRelationship(const char* name, unsigned number) {
        return Held<ZanDicAttribute>(new ZanDicAttribute(name, TestUuid(number)));
    }

    ZELString NameOf(IUnknown* face) {
        Held<OXMIDicElementH> element;
        face->QueryInterface(IID_OXMIDicElementH, element.OutVoid());
        ZELString name;
        element->GetName(&name);
        return name;
    }

    ZanDicClassToRelationElem entry;
    HeldList relationships;
};

}  // namespace

TEST_F(ZanDicClassToRelationElemTest, KeepsTheUuidOfTheClass) {
    ZELDbBinary uuid = TestUuid(1);
    entry.GetClassUUID(uuid);
    EXPECT_TRUE(uuid.IsEmpty());

    entry.SetClassUUID(TestUuid(7));
    entry.GetClassUUID(uuid);
    EXPECT_EQ(uuid, TestUuid(7));
}

TEST_F(ZanDicClassToRelationElemTest, IsEmptyAtFirst) {
    EXPECT_EQ(entry.GetRelationships(relationships), S_OK);
    EXPECT_EQ(relationships.Size(), 0);
}

TEST_F(ZanDicClassToRelationElemTest, GivesEachAttributeOnceInTheOrderOfTheirFirstAddition) {
    const auto first = MakeRelationship("First", 1);
    const auto second = MakeRelationship("Second", 2);
    for (ZanDicAttribute* const attribute : {second.Get(), first.Get(), second.Get()}) {
        entry.AddRelationship(attribute);
    }
    entry.AddRelationship(nullptr);

    EXPECT_EQ(entry.GetRelationships(relationships), S_OK);
    ASSERT_EQ(relationships.Size(), 2);
    EXPECT_EQ(NameOf(relationships[1]), "Second");
    EXPECT_EQ(NameOf(relationships[2]), "First");
}

TEST_F(ZanDicClassToRelationElemTest, AppendsToTheCallersList) {
    const auto first = MakeRelationship("First", 1);
    entry.AddRelationship(first.Get());
    entry.GetRelationships(relationships);

    EXPECT_EQ(entry.GetRelationships(relationships), S_OK);
    EXPECT_EQ(relationships.Size(), 2);
}

TEST_F(ZanDicClassToRelationElemTest, StopsAtTheFirstFailureAndKeepsWhatCameBefore) {
    const auto first = MakeRelationship("First", 1);
    const auto broken = MakeRelationship("Broken", 2);
    const auto last = MakeRelationship("Last", 3);
    broken->set_TYPE(OXMDicTYPE_Security);
    for (ZanDicAttribute* const attribute : {first.Get(), broken.Get(), last.Get()}) {
        entry.AddRelationship(attribute);
    }

    EXPECT_EQ(entry.GetRelationships(relationships), E_FAIL);
    EXPECT_EQ(relationships.Size(), 1);
}

TEST_F(ZanDicClassToRelationElemTest, KeepsNoAttributeAliveAndLosesThoseThatAreGone) {
    auto first = MakeRelationship("First", 1);
    const auto second = MakeRelationship("Second", 2);
    entry.AddRelationship(first.Get());
    entry.AddRelationship(second.Get());
    EXPECT_EQ(first->RefCount(), 1U);
    first.Reset();

    EXPECT_EQ(entry.GetRelationships(relationships), S_OK);
    ASSERT_EQ(relationships.Size(), 1);
    EXPECT_EQ(NameOf(relationships[1]), "Second");
}

TEST_F(ZanDicClassToRelationElemTest, TakesAllOfAnotherInTheirOrderOrNoneWhenMemoryIsShort) {
    const auto first = MakeRelationship("First", 1);
    const auto second = MakeRelationship("Second", 2);
    const auto third = MakeRelationship("Third", 3);
    ZanDicClassToRelationElem other;
    entry.AddRelationship(first.Get());
    for (ZanDicAttribute* const attribute : {third.Get(), second.Get()}) other.AddRelationship(attribute);

    const auto isRefused = [&](int allocation) {
        const FailingMemory failing(allocation, FailingMemory::Shortage::Once);
        try {
            entry.add_All(other);
            return false;
        } catch (const std::bad_alloc&) {
            return true;
        }
    };
    int refused = 0;
    for (; isRefused(refused + 1); ++refused) {
        entry.GetRelationships(relationships);
        EXPECT_EQ(relationships.Size(), 1);
        relationships.Clear();
    }

    EXPECT_GE(refused, 1);
    entry.GetRelationships(relationships);
    ASSERT_EQ(relationships.Size(), 3);
    EXPECT_EQ(NameOf(relationships[2]), "Third");
    EXPECT_EQ(NameOf(relationships[3]), "Second");
}

TEST_F(ZanDicClassToRelationElemTest, HashesTheUuid) {
    entry.SetClassUUID(TestUuid(7));

    EXPECT_EQ(ZanDicClassToRelationElem::GetHashKey(nullptr), 0U);
    EXPECT_EQ(ZanDicClassToRelationElem::GetHashKey(&entry), TestUuid(7).ComputeHashKey());
}

TEST_F(ZanDicClassToRelationElemTest, ComparesNullFirstAndThenTheBytes) {
    ZanDicClassToRelationElem other;
    entry.SetClassUUID(TestUuid(1));
    other.SetClassUUID(TestUuid(2));

    EXPECT_EQ(ZanDicClassToRelationElem::Compare(nullptr, nullptr), 0);
    EXPECT_EQ(ZanDicClassToRelationElem::Compare(nullptr, &entry), -1);
    EXPECT_EQ(ZanDicClassToRelationElem::Compare(&entry, nullptr), 1);
    EXPECT_EQ(ZanDicClassToRelationElem::Compare(&entry, &entry), 0);
    EXPECT_LT(ZanDicClassToRelationElem::Compare(&entry, &other), 0);
    EXPECT_GT(ZanDicClassToRelationElem::Compare(&other, &entry), 0);
}
