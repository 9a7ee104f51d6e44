#include "ZanDicAttributeBlock.h"

#include <vector>

#include "BlockFixture.h"

namespace {

class ZanDicAttributeBlockTest : public BlockFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> screw = SubClass(*items, "Screw", *part);
};

TEST_F(ZanDicAttributeBlockTest, IsUndefinedAndLinkedToNothingAtFirst) {
    const auto block = Block(*items);
    OXMIDicClass* owner = nullptr;
    OXMIDicAttributeBlock* other = nullptr;
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;

    EXPECT_EQ(block->GetClass(&owner), S_FALSE);
    EXPECT_EQ(block->GetFather(&other), S_FALSE);
    EXPECT_EQ(block->GetRoot(&other), S_FALSE);
    EXPECT_EQ(block->GetType(&type), S_OK);

    EXPECT_EQ(NameOf(*block), "UNDEFINED");
    EXPECT_EQ(AttributesOf(*block), "");
    EXPECT_EQ(type, OXMDicTYPE_AttributeBlock);
    EXPECT_EQ(owner, nullptr);
    EXPECT_EQ(other, nullptr);
}

TEST_F(ZanDicAttributeBlockTest, IsOfAClassAndAKindOfItsOwn) {
    const Held<ZanDicAttributeBlock> block(new ZanDicAttributeBlock(NextUuid()));

    EXPECT_EQ(block->get_type(), ZanDicObj::_type_AttributeBlock);
    EXPECT_STREQ(block->IsA(), "ZanDicAttributeBlock");
    EXPECT_EQ(block->IsAKindOf("ZanDicObj"), 1);
    EXPECT_EQ(block->IsAKindOf("ZanDicElement"), 0);
}

TEST_F(ZanDicAttributeBlockTest, KeepsItsLinks) {
    const auto block = Block(*items, "Geometry");
    const auto father = Block(*items, "Base");
    Held<OXMIDicClass> owner;

    EXPECT_EQ(block->SetClass(part.Get()), S_OK);
    EXPECT_EQ(block->SetFather(father.Get()), S_OK);
    EXPECT_EQ(block->SetRoot(father.Get()), S_OK);

    EXPECT_EQ(block->GetClass(owner.Out()), S_OK);
    EXPECT_TRUE(SameObject(*owner, *part));
    EXPECT_TRUE(SameObject(*FatherOf(*block), *father));
    EXPECT_TRUE(SameObject(*RootOf(*block), *father));
}

TEST_F(ZanDicAttributeBlockTest, RefusesNull) {
    const auto block = Block(*items);

    EXPECT_EQ(block->SetClass(nullptr), E_FAIL);
    EXPECT_EQ(block->GetClass(nullptr), E_FAIL);
    EXPECT_EQ(block->SetFather(nullptr), E_FAIL);
    EXPECT_EQ(block->GetFather(nullptr), E_FAIL);
    EXPECT_EQ(block->SetRoot(nullptr), E_FAIL);
    EXPECT_EQ(block->GetRoot(nullptr), E_FAIL);
    EXPECT_EQ(block->AddAttribute(nullptr), E_FAIL);
    EXPECT_EQ(block->GetAttributes(nullptr), E_FAIL);
}

TEST_F(ZanDicAttributeBlockTest, RefusesASecondAttributeOfOneName) {
    const auto block = Block(*items);
    const auto weight = Simple(*part, "weight");
    const auto otherWeight = Simple(*screw, "weight");
    const auto length = Simple(*part, "length");

    EXPECT_EQ(Add(*block, *weight), S_OK);
    EXPECT_EQ(Add(*block, *length), S_OK);
    EXPECT_EQ(Add(*block, *weight), E_FAIL);
    EXPECT_EQ(Add(*block, *otherWeight), E_FAIL);

    EXPECT_EQ(AttributesOf(*block), "weight length ");
}

TEST_F(ZanDicAttributeBlockTest, TakesRelationshipsAndInversesAsWell) {
    const auto block = Block(*items);
    const auto uses = Relationship(*part, "uses");
    const auto usedBy = Inverse(*part, "usedBy");

    EXPECT_EQ(Add(*block, *uses), S_OK);
    EXPECT_EQ(Add(*block, *usedBy), S_OK);

    EXPECT_EQ(AttributesOf(*block), "uses usedBy ");
}

// Cycles.

TEST_F(ZanDicAttributeBlockTest, RefusesItselfAsItsFather) {
    const auto block = Block(*items);

    EXPECT_EQ(block->SetFather(block.Get()), E_FAIL);

    EXPECT_FALSE(FatherOf(*block));
}

TEST_F(ZanDicAttributeBlockTest, RefusesTheFatherThatWouldCloseACycle) {
    const auto first = Block(*items);
    const auto second = Block(*items);
    const auto third = Block(*items);
    EXPECT_EQ(first->SetFather(second.Get()), S_OK);
    EXPECT_EQ(second->SetFather(third.Get()), S_OK);

    EXPECT_EQ(third->SetFather(first.Get()), E_FAIL);
    EXPECT_EQ(second->SetFather(first.Get()), E_FAIL);

    EXPECT_FALSE(FatherOf(*third));
    EXPECT_TRUE(SameObject(*FatherOf(*second), *third));
}

TEST_F(ZanDicAttributeBlockTest, AFatherMayBeReplaced) {
    const auto block = Block(*items);
    const auto before = Block(*items);
    const auto after = Block(*items);
    EXPECT_EQ(block->SetFather(before.Get()), S_OK);

    EXPECT_EQ(block->SetFather(after.Get()), S_OK);
    EXPECT_EQ(before->SetFather(block.Get()), S_OK);

    EXPECT_TRUE(SameObject(*FatherOf(*block), *after));
}

// Name.

TEST_F(ZanDicAttributeBlockTest, BuildNameKeepsANameThatIsSet) {
    const auto father = Block(*items, "Father");
    const auto block = BlockOf(*items, *part, "Own", {}, father.Get());

    EXPECT_EQ(block->BuildName(), S_OK);

    EXPECT_EQ(NameOf(*block), "Own");
}

TEST_F(ZanDicAttributeBlockTest, BuildNameTakesTheNearestNameOfTheFathersForAllBetween) {
    const auto top = Block(*items, "Top");
    const auto named = BlockOf(*items, *part, "Named", {}, top.Get());
    const auto between = BlockOf(*items, *part, nullptr, {}, named.Get());
    const auto block = BlockOf(*items, *part, nullptr, {}, between.Get());

    EXPECT_EQ(block->BuildName(), S_OK);

    EXPECT_EQ(NameOf(*block), "Named");
    EXPECT_EQ(NameOf(*between), "Named");
}

TEST_F(ZanDicAttributeBlockTest, BuildNameWithoutANameFailsInTheNameOfTheLastFather) {
    const auto father = Block(*items);
    const auto block = BlockOf(*items, *part, nullptr, {}, father.Get());

    EXPECT_EQ(block->BuildName(), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no Name for Attribute Block " + UuidOf(*father) + "\n");
    EXPECT_EQ(Written(), "");
    EXPECT_EQ(NameOf(*block), "UNDEFINED");
}

TEST_F(ZanDicAttributeBlockTest, ErrorsAreWrittenWhateverTheTraceLevel) {
    const auto block = Block(*items);
    TraceFromNow(-1);

    EXPECT_EQ(block->BuildName(), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no Name for Attribute Block " + UuidOf(*block) + "\n");
}

// Root.

TEST_F(ZanDicAttributeBlockTest, BuildRootGivesTheEndOfTheChainToAllOnTheWay) {
    const auto top = Block(*items);
    const auto middle = BlockOf(*items, *part, nullptr, {}, top.Get());
    const auto block = BlockOf(*items, *screw, nullptr, {}, middle.Get());

    EXPECT_EQ(block->BuildRoot(), S_OK);

    EXPECT_TRUE(SameObject(*RootOf(*block), *top));
    EXPECT_TRUE(SameObject(*RootOf(*middle), *top));
    EXPECT_TRUE(SameObject(*RootOf(*top), *top));
}

TEST_F(ZanDicAttributeBlockTest, BuildRootKeepsARootThatIsSet) {
    const auto father = Block(*items);
    const auto other = Block(*items);
    const auto block = BlockOf(*items, *part, nullptr, {}, father.Get());
    EXPECT_EQ(block->SetRoot(other.Get()), S_OK);

    EXPECT_EQ(block->BuildRoot(), S_OK);

    EXPECT_TRUE(SameObject(*RootOf(*block), *other));
    EXPECT_FALSE(RootOf(*father));
}

// Father.

TEST_F(ZanDicAttributeBlockTest, BuildFatherLeavesABlockWithoutFatherAlone) {
    const auto block = BlockOf(*items, *screw, "Geometry");

    EXPECT_EQ(block->BuildFather(), S_OK);

    EXPECT_FALSE(FatherOf(*block));
    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherReplacesTheDeclaredFatherByTheNearestOfItsRoot) {
    const auto woodScrew = SubClass(*items, "WoodScrew", *screw);
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto nearest = BlockOf(*items, *screw, "ScrewGeometry", {}, root.Get());
    const auto block = BlockOf(*items, *woodScrew, "WoodGeometry", {}, root.Get());
    EXPECT_EQ(Compute(*items, {root.Get(), nearest.Get()}), S_OK);

    EXPECT_EQ(block->BuildRoot(), S_OK);
    EXPECT_EQ(block->BuildFather(), S_OK);

    EXPECT_TRUE(SameObject(*FatherOf(*block), *nearest));
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherTakesTheLastRegisteredOfAClass) {
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto first = BlockOf(*items, *screw, "First", {}, root.Get());
    const auto last = BlockOf(*items, *screw, "Last", {}, root.Get());
    const auto woodScrew = SubClass(*items, "WoodScrew", *screw);
    const auto block = BlockOf(*items, *woodScrew, "Wood", {}, first.Get());

    EXPECT_EQ(Compute(*items, {root.Get(), first.Get(), last.Get(), block.Get()}), S_OK);

    EXPECT_TRUE(SameObject(*FatherOf(*block), *last));
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherGoesByRootNotByName) {
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto sameName = BlockOf(*items, *screw, "Wood");
    const auto woodScrew = SubClass(*items, "WoodScrew", *screw);
    const auto block = BlockOf(*items, *woodScrew, "Wooden", {}, root.Get());

    EXPECT_EQ(Compute(*items, {root.Get(), sameName.Get(), block.Get()}), S_OK);

    EXPECT_TRUE(SameObject(*FatherOf(*block), *root));
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherDoesNotLookInTheBlocksOwnClass) {
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto block = BlockOf(*items, *part, "More", {}, root.Get());

    EXPECT_EQ(Compute(*items, {root.Get(), block.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no father found for Attribute Block " + UuidOf(*block) + "\n");
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherFailsForAFatherThatNothingDescribes) {
    const auto undescribed = Block(*items);
    const auto block = BlockOf(*items, *screw, "Geometry", {}, undescribed.Get());

    EXPECT_EQ(block->BuildRoot(), S_OK);
    EXPECT_EQ(block->BuildFather(), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no father found for Attribute Block " + UuidOf(*block) + "\n");
}

TEST_F(ZanDicAttributeBlockTest, BuildFatherFindsBlocksOfOtherPackages) {
    const auto tools = Package("Tools");
    const auto hammer = SubClass(*tools, "Hammer", *part);
    const auto root = BlockOf(*items, *part, "Geometry");
    EXPECT_EQ(Compute(*items, {root.Get()}), S_OK);
    const auto block = BlockOf(*tools, *hammer, "HammerGeometry", {}, root.Get());

    EXPECT_EQ(Compute(*tools, {block.Get()}), S_OK);

    EXPECT_TRUE(SameObject(*FatherOf(*block), *root));
}

// Attributes.

TEST_F(ZanDicAttributeBlockTest, InheritedAttributesComeAfterTheOwn) {
    const auto weight = Simple(*part, "weight");
    const auto length = Simple(*part, "length");
    const auto head = Simple(*screw, "head");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get(), length.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {head.Get()}, father.Get());

    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(AttributesOf(*block), "head weight length ");
    EXPECT_EQ(AttributesOf(*father), "weight length ");
}

TEST_F(ZanDicAttributeBlockTest, BuildingTwiceAddsNothing) {
    const auto weight = Simple(*part, "weight");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {}, father.Get());

    EXPECT_EQ(block->BuildAllAttributes(), S_OK);
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(AttributesOf(*block), "weight ");
}

TEST_F(ZanDicAttributeBlockTest, TheFathersAreBuiltFirst) {
    const auto weight = Simple(*part, "weight");
    const auto head = Simple(*screw, "head");
    const auto top = BlockOf(*items, *part, "Top", {weight.Get()});
    const auto middle = BlockOf(*items, *screw, "Middle", {}, top.Get());
    const auto block = BlockOf(*items, *screw, "Block", {head.Get()}, middle.Get());

    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(AttributesOf(*middle), "weight ");
    EXPECT_EQ(AttributesOf(*block), "head weight ");
}

TEST_F(ZanDicAttributeBlockTest, AnOwnAttributeStandsForTheInheritedOneOfItsName) {
    const auto weight = Simple(*part, "weight");
    const auto length = Simple(*part, "length");
    const auto ownWeight = Simple(*screw, "weight");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get(), length.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {ownWeight.Get()}, father.Get());
    HeldList attributes;

    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(block->GetAttributes(&attributes), S_OK);
    EXPECT_EQ(NamesOf(attributes), "weight length ");
    EXPECT_TRUE(SameObject(*attributes[1], *ownWeight));
}

/// The last own attribute is the last of the father too: completeness is no matter of last entries.
TEST_F(ZanDicAttributeBlockTest, ASharedLastAttributeDoesNotMakeABlockComplete) {
    const auto weight = Simple(*part, "weight");
    const auto length = Simple(*part, "length");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get(), length.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {length.Get()}, father.Get());

    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(AttributesOf(*block), "length weight ");
}

TEST_F(ZanDicAttributeBlockTest, ALaterAttributeOfTheFatherIsNotTakenUp) {
    const auto weight = Simple(*part, "weight");
    const auto length = Simple(*part, "length");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {}, father.Get());
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(Add(*father, *length), S_OK);

    EXPECT_EQ(AttributesOf(*block), "weight ");
    EXPECT_EQ(AttributesOf(*father), "weight length ");
}

TEST_F(ZanDicAttributeBlockTest, RefusesTheNameOfAnInheritedAttribute) {
    const auto weight = Simple(*part, "weight");
    const auto ownWeight = Simple(*screw, "weight");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {}, father.Get());
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(Add(*block, *ownWeight), E_FAIL);

    EXPECT_EQ(AttributesOf(*block), "weight ");
}

TEST_F(ZanDicAttributeBlockTest, AnotherFatherGivesOtherAttributes) {
    const auto weight = Simple(*part, "weight");
    const auto length = Simple(*part, "length");
    const auto head = Simple(*screw, "head");
    const auto before = BlockOf(*items, *part, "Before", {weight.Get()});
    const auto after = BlockOf(*items, *part, "After", {length.Get()});
    const auto block = BlockOf(*items, *screw, "Block", {head.Get()}, before.Get());
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(block->SetFather(after.Get()), S_OK);
    EXPECT_EQ(AttributesOf(*block), "head ");
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(AttributesOf(*block), "head length ");
}

// Going.

TEST_F(ZanDicAttributeBlockTest, ForgetsAttributesThatAreGone) {
    const auto tools = Package("Tools");
    const auto hammer = Class(*tools, "Hammer");
    const auto weight = Simple(*hammer, "weight");
    const auto length = Simple(*part, "length");
    const auto father = BlockOf(*items, *part, "Geometry", {weight.Get(), length.Get()});
    const auto block = BlockOf(*items, *screw, "ScrewGeometry", {}, father.Get());
    EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    RemovePackage("Tools");

    EXPECT_EQ(AttributesOf(*father), "length ");
    EXPECT_EQ(AttributesOf(*block), "length ");
}

TEST_F(ZanDicAttributeBlockTest, ForgetsClassFatherAndRootThatAreGone) {
    const auto tools = Package("Tools");
    const auto hammer = Class(*tools, "Hammer");
    const auto father = BlockOf(*tools, *hammer, "Base");
    const auto block = BlockOf(*items, *hammer, "Geometry", {}, father.Get());
    EXPECT_EQ(block->BuildRoot(), S_OK);
    OXMIDicClass* owner = nullptr;

    RemovePackage("Tools");

    EXPECT_EQ(block->GetClass(&owner), S_FALSE);
    EXPECT_FALSE(FatherOf(*block));
    EXPECT_FALSE(RootOf(*block));
}

TEST_F(ZanDicAttributeBlockTest, RefusesEverythingOnceItIsGone) {
    const auto tools = Package("Tools");
    const auto weight = Simple(*part, "weight");
    const auto father = Block(*items);
    const auto block = BlockOf(*tools, *part, "Geometry", {weight.Get()});
    OXMIDicClass* owner = nullptr;

    RemovePackage("Tools");

    EXPECT_EQ(NameOf(*block), "Geometry");
    EXPECT_EQ(AttributesOf(*block), "");
    EXPECT_EQ(block->GetClass(&owner), S_FALSE);
    EXPECT_EQ(block->SetClass(part.Get()), E_FAIL);
    EXPECT_EQ(block->SetFather(father.Get()), E_FAIL);
    EXPECT_EQ(block->SetRoot(father.Get()), E_FAIL);
    EXPECT_EQ(Add(*block, *weight), E_FAIL);
    EXPECT_EQ(father->SetFather(block.Get()), E_FAIL);
    EXPECT_EQ(father->SetRoot(block.Get()), E_FAIL);
}

// Depth.

class ZanDicBlockChainTest : public ZanDicAttributeBlockTest {
protected:
    static constexpr int kLevels = 100'000;

    /// A chain of fathers, the last one first.
    std::vector<Held<OXMIDicAttributeBlock>> Chain() {
        std::vector<Held<OXMIDicAttributeBlock>> blocks;
        blocks.push_back(Block(*items, "Top"));
        while (blocks.size() < kLevels) {
            blocks.push_back(Block(*items));
            EXPECT_EQ(blocks.back()->SetFather(blocks[blocks.size() - 2].Get()), S_OK);
        }
        return blocks;
    }
};

TEST_F(ZanDicBlockChainTest, EveryStepWalksADeepChain) {
    const auto blocks = Chain();
    const auto weight = Simple(*part, "weight");
    EXPECT_EQ(Add(*blocks.front(), *weight), S_OK);

    EXPECT_EQ(blocks.back()->BuildName(), S_OK);
    EXPECT_EQ(blocks.back()->BuildRoot(), S_OK);
    EXPECT_EQ(blocks.back()->BuildAllAttributes(), S_OK);
    EXPECT_EQ(blocks.front()->SetFather(blocks.back().Get()), E_FAIL);

    EXPECT_EQ(NameOf(*blocks[kLevels / 2]), "Top");
    EXPECT_TRUE(SameObject(*RootOf(*blocks.back()), *blocks.front()));
    EXPECT_EQ(AttributesOf(*blocks.back()), "weight ");
}

TEST_F(ZanDicBlockChainTest, AChainThatGrowsUpwardsIsNoQuadraticWalk) {
    std::vector<Held<OXMIDicAttributeBlock>> blocks;
    blocks.push_back(Block(*items));
    while (blocks.size() < kLevels) {
        blocks.push_back(Block(*items));
        EXPECT_EQ(blocks[blocks.size() - 2]->SetFather(blocks.back().Get()), S_OK);
    }

    EXPECT_EQ(blocks.back()->SetFather(blocks.front().Get()), E_FAIL);
}

/// Each block has an attribute of its own; sharing keeps that linear.
TEST_F(ZanDicBlockChainTest, InheritedAttributesAreShared) {
    constexpr int kOwners = 20'000;
    std::vector<Held<OXMIDicAttributeBlock>> blocks;
    for (int number = 0; number < kOwners; ++number) {
        blocks.push_back(Block(*items, "Block"));
        const auto attribute = Simple(*part, ("a" + std::to_string(number)).c_str());
        EXPECT_EQ(Add(*blocks.back(), *attribute), S_OK);
        if (number > 0) {
            EXPECT_EQ(blocks.back()->SetFather(blocks[blocks.size() - 2].Get()), S_OK);
        }
    }
    HeldList attributes;

    for (const auto& block : blocks) EXPECT_EQ(block->BuildAllAttributes(), S_OK);

    EXPECT_EQ(blocks.back()->GetAttributes(&attributes), S_OK);
    EXPECT_EQ(attributes.Size(), kOwners);
}

}  // namespace
