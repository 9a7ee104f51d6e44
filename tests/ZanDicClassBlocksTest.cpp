// The attribute blocks that are visible in a class, and its default block.
#include <vector>

#include "BlockFixture.h"
#include "ZanDicClass.h"

namespace {

class ZanDicClassBlocksTest : public BlockFixture {
protected:
    static Held<OXMIDicAttributeBlock> Find(OXMIDicClass& owner, const char* name) {
        const ZELString blockName(name);
        Held<OXMIDicAttributeBlock> block;
        owner.GetAttBlock(&blockName, block.Out());
        return block;
    }

    static std::string BlockFor(OXMIDicClass& owner, const char* attributeName) {
        const ZELString name(attributeName);
        Held<OXMIDicAttributeBlock> block;
        return owner.GetAttBlockForAtt(&name, block.Out()) == S_OK ? NameOf(*block) : "none";
    }

    static Held<OXMIDicAttributeBlock> DefaultOf(OXMIDicClass& owner) {
        Held<OXMIDicAttributeBlock> block;
        EXPECT_EQ(owner.GetCBlockForAtt(nullptr, 1, block.Out()), S_OK);
        return block;
    }

    static HRESULT Register(OXMIDicClass& owner, OXMIDicAttributeBlock& block) {
        ZELString name;
        block.GetName(&name);
        return owner.RegisterBlockByName(&block, &name);
    }

    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> screw = SubClass(*items, "Screw", *part);
    Held<OXMIDicSimple> weight = Simple(*part, "weight");
    Held<OXMIDicSimple> length = Simple(*part, "length");
    Held<OXMIDicSimple> head = Simple(*screw, "head");
};

TEST_F(ZanDicClassBlocksTest, AClassWithoutBlocksHasNone) {
    unsigned char hasBlocks = 7;
    HeldList all;

    EXPECT_EQ(part->HasAttBlocks(&hasBlocks), S_OK);
    EXPECT_EQ(part->GetAllAttributeBlockList(&all), S_OK);

    EXPECT_EQ(hasBlocks, 0);
    EXPECT_EQ(all.Size(), 0);
    EXPECT_EQ(BlocksOf(*part), "");
    EXPECT_FALSE(Find(*part, "Geometry"));
    EXPECT_EQ(BlockFor(*part, "weight"), "none");
}

TEST_F(ZanDicClassBlocksTest, RefusesNull) {
    const auto block = Block(*items, "Geometry");
    const ZELString name("Geometry");
    OXMIDicAttributeBlock* found = nullptr;

    EXPECT_EQ(part->RegisterBlockByName(nullptr, &name), E_FAIL);
    EXPECT_EQ(part->RegisterBlockByName(block.Get(), nullptr), E_FAIL);
    EXPECT_EQ(part->GetAttBlock(nullptr, &found), E_FAIL);
    EXPECT_EQ(part->GetAttBlock(&name, nullptr), E_FAIL);
    EXPECT_EQ(part->GetAttBlocks(nullptr), E_FAIL);
    EXPECT_EQ(part->GetAllAttributeBlockList(nullptr), E_FAIL);
    EXPECT_EQ(part->GetAttBlockForAtt(nullptr, &found), E_FAIL);
    EXPECT_EQ(part->GetAttBlockForAtt(&name, nullptr), E_FAIL);
    EXPECT_EQ(part->HasAttBlocks(nullptr), E_FAIL);
    EXPECT_EQ(part->GetCBlockForAtt(&name, 1, nullptr), E_FAIL);
}

// What is visible.

TEST_F(ZanDicClassBlocksTest, OwnBlocksAreListedTheLastFirst) {
    const auto first = BlockOf(*items, *part, "First");
    const auto second = BlockOf(*items, *part, "Second");

    EXPECT_EQ(Compute(*items, {first.Get(), second.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*part), "Second First ");
}

TEST_F(ZanDicClassBlocksTest, InheritedBlocksComeAfterTheOwn) {
    const auto inherited = BlockOf(*items, *part, "Inherited");
    const auto own = BlockOf(*items, *screw, "Own");
    unsigned char hasBlocks = 0;

    EXPECT_EQ(Compute(*items, {inherited.Get(), own.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*screw), "Own Inherited ");
    EXPECT_EQ(screw->HasAttBlocks(&hasBlocks), S_OK);
    EXPECT_EQ(hasBlocks, 1);
}

TEST_F(ZanDicClassBlocksTest, OfEachRootOnlyTheMostDerivedIsVisible) {
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto other = BlockOf(*items, *part, "Other");
    const auto derived = BlockOf(*items, *screw, "ScrewGeometry", {}, root.Get());

    EXPECT_EQ(Compute(*items, {root.Get(), other.Get(), derived.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*screw), "ScrewGeometry Other ");
    EXPECT_EQ(BlocksOf(*part), "Other Geometry ");
}

TEST_F(ZanDicClassBlocksTest, GetClassAttBlocksGivesTheOwnInOrderHiddenOnesToo) {
    const auto root = BlockOf(*items, *part, "Geometry");
    const auto first = BlockOf(*items, *screw, "First", {}, root.Get());
    const auto second = BlockOf(*items, *screw, "Second", {}, root.Get());
    EXPECT_EQ(Compute(*items, {root.Get(), first.Get(), second.Get()}), S_OK);
    DefaultOf(*screw);
    HeldList own;

    EXPECT_EQ(screw->GetClassAttBlocks(&own), S_OK);

    EXPECT_EQ(NamesOf(own), "First Second ");
    EXPECT_EQ(BlocksOf(*screw), "Second ");
}

TEST_F(ZanDicClassBlocksTest, GetClassAttBlocksLeavesOutWhatIsGone) {
    const auto tools = Package("Tools");
    const auto block = BlockOf(*tools, *part, "Geometry");
    EXPECT_EQ(Compute(*tools, {block.Get()}), S_OK);
    RemovePackage("Tools");
    HeldList own;

    EXPECT_EQ(part->GetClassAttBlocks(&own), S_OK);

    EXPECT_EQ(own.Size(), 0);
}

TEST_F(ZanDicClassBlocksTest, ABlockThatIsRegisteredLaterIsSeenBelowAsWell) {
    const auto first = BlockOf(*items, *part, "First");
    EXPECT_EQ(Compute(*items, {first.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*screw), "First ");
    const auto later = BlockOf(*items, *part, "Later");

    EXPECT_EQ(Compute(*items, {later.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*screw), "Later First ");
}

TEST_F(ZanDicClassBlocksTest, AnotherSuperClassGivesOtherBlocksAlsoFurtherDown) {
    const auto tool = Class(*items, "Tool");
    const auto woodScrew = SubClass(*items, "WoodScrew", *screw);
    const auto ofPart = BlockOf(*items, *part, "OfPart");
    const auto ofTool = BlockOf(*items, *tool, "OfTool");
    EXPECT_EQ(Compute(*items, {ofPart.Get(), ofTool.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*woodScrew), "OfPart ");

    EXPECT_EQ(screw->SetSuperClass(tool.Get()), S_OK);

    EXPECT_EQ(BlocksOf(*woodScrew), "OfTool ");
}

TEST_F(ZanDicClassBlocksTest, ARootThatIsSetLaterHidesTheBlockAbove) {
    const auto above = BlockOf(*items, *part, "Above");
    const auto own = BlockOf(*items, *screw, "Own");
    EXPECT_EQ(Compute(*items, {above.Get(), own.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*screw), "Own Above ");

    EXPECT_EQ(own->SetRoot(above.Get()), S_OK);

    EXPECT_EQ(BlocksOf(*screw), "Own ");
}

TEST_F(ZanDicClassBlocksTest, ABlockWhoseRootIsGoneStandsForItself) {
    const auto tools = Package("Tools");
    const auto root = Block(*tools, "Root");
    const auto own = BlockOf(*items, *part, "Own");
    const auto below = BlockOf(*items, *part, "Below");
    EXPECT_EQ(own->SetRoot(root.Get()), S_OK);
    EXPECT_EQ(below->SetRoot(own.Get()), S_OK);
    EXPECT_EQ(Register(*part, *own), S_OK);
    EXPECT_EQ(Register(*part, *below), S_OK);
    EXPECT_EQ(BlocksOf(*part), "Below Own ");

    RemovePackage("Tools");

    EXPECT_EQ(BlocksOf(*part), "Below ");
}

TEST_F(ZanDicClassBlocksTest, ABlockThatIsGoneIsAbsentAndItsNameFree) {
    const auto tools = Package("Tools");
    const auto root = BlockOf(*items, *part, "Geometry");
    EXPECT_EQ(Compute(*items, {root.Get()}), S_OK);
    const auto going = BlockOf(*tools, *screw, "ScrewGeometry", {}, root.Get());
    EXPECT_EQ(Compute(*tools, {going.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*screw), "ScrewGeometry ");

    RemovePackage("Tools");

    EXPECT_EQ(BlocksOf(*screw), "Geometry ");
    EXPECT_FALSE(Find(*screw, "ScrewGeometry"));
    const auto again = BlockOf(*items, *screw, "ScrewGeometry", {}, root.Get());
    EXPECT_EQ(Compute(*items, {again.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*screw), "ScrewGeometry ");
}

TEST_F(ZanDicClassBlocksTest, BlocksOfASuperClassThatIsGoneAreGoneToo) {
    const auto tools = Package("Tools");
    const auto hammer = SubClass(*tools, "Hammer", *part);
    const auto ofPart = BlockOf(*items, *part, "OfPart");
    const auto ofHammer = BlockOf(*tools, *hammer, "OfHammer");
    EXPECT_EQ(Compute(*items, {ofPart.Get()}), S_OK);
    EXPECT_EQ(Compute(*tools, {ofHammer.Get()}), S_OK);
    EXPECT_EQ(BlocksOf(*hammer), "OfHammer OfPart ");

    RemovePackage("Items");

    EXPECT_EQ(BlocksOf(*hammer), "OfHammer ");
}

TEST_F(ZanDicClassBlocksTest, AClassThatIsGoneHasNoBlocks) {
    const auto tools = Package("Tools");
    const auto hammer = Class(*tools, "Hammer");
    const auto block = BlockOf(*items, *hammer, "Geometry");
    EXPECT_EQ(Compute(*items, {block.Get()}), S_OK);

    RemovePackage("Tools");

    HeldList own;
    EXPECT_EQ(hammer->GetClassAttBlocks(&own), S_OK);
    EXPECT_EQ(own.Size(), 0);
    EXPECT_EQ(BlocksOf(*hammer), "");
    EXPECT_EQ(Register(*hammer, *block), E_FAIL);
}

// Registration.

TEST_F(ZanDicClassBlocksTest, ASecondOwnBlockOfOneNameIsRefusedWithItsLine) {
    const auto first = Block(*items, "Geometry");
    const auto second = Block(*items, "Geometry");

    EXPECT_EQ(Register(*part, *first), S_OK);
    EXPECT_EQ(Register(*part, *second), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "Tuning Error on Class Items::Part : block name defined twice : Geometry\n");
    EXPECT_EQ(BlocksOf(*part), "Geometry ");
}

TEST_F(ZanDicClassBlocksTest, TheSameBlockTwiceIsRefusedSilently) {
    const auto block = Block(*items, "Geometry");

    EXPECT_EQ(Register(*part, *block), S_OK);
    EXPECT_EQ(Register(*part, *block), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(ZanDicClassBlocksTest, TheBlocksOwnNameIsItsKey) {
    const auto block = Block(*items, "Geometry");
    const ZELString other("Other");

    EXPECT_EQ(part->RegisterBlockByName(block.Get(), &other), S_OK);

    EXPECT_TRUE(Find(*part, "Geometry"));
    EXPECT_FALSE(Find(*part, "Other"));
}

// Queries.

TEST_F(ZanDicClassBlocksTest, GetAttBlockLooksAmongTheOwnBlocksFirst) {
    const auto root = BlockOf(*items, *part, "Root");
    const auto first = BlockOf(*items, *screw, "First", {}, root.Get());
    const auto second = BlockOf(*items, *screw, "Second", {}, root.Get());
    const auto inherited = BlockOf(*items, *part, "Inherited");
    EXPECT_EQ(Compute(*items, {root.Get(), inherited.Get(), first.Get(), second.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*screw), "Second Inherited ");
    EXPECT_TRUE(SameObject(*Find(*screw, "First"), *first));
    EXPECT_TRUE(SameObject(*Find(*screw, "Inherited"), *inherited));
    EXPECT_FALSE(Find(*screw, "Root"));
}

TEST_F(ZanDicClassBlocksTest, GetAttBlockForAttGivesTheFirstThatHoldsTheName) {
    const auto root = BlockOf(*items, *part, "Root", {weight.Get()});
    const auto derived = BlockOf(*items, *screw, "Derived", {head.Get()}, root.Get());
    const auto other = BlockOf(*items, *part, "Other", {length.Get()});
    EXPECT_EQ(Compute(*items, {root.Get(), derived.Get(), other.Get()}), S_OK);

    EXPECT_EQ(BlockFor(*screw, "weight"), "Derived");
    EXPECT_EQ(BlockFor(*part, "weight"), "Root");
    EXPECT_EQ(BlockFor(*screw, "length"), "Other");
    EXPECT_EQ(BlockFor(*screw, "colour"), "none");
}

TEST_F(ZanDicClassBlocksTest, GetAttBlockForAttNeverGivesTheDefaultBlock) {
    DefaultOf(*part);

    EXPECT_EQ(BlockFor(*part, "weight"), "none");
    EXPECT_EQ(BlocksOf(*part), "");
}

// The default block.

TEST_F(ZanDicClassBlocksTest, TheDefaultBlockHoldsWhatNoBlockHoldsTheLastFirst) {
    const auto many = Simple(*part, "many");
    const auto uses = Relationship(*part, "uses");
    const auto usedBy = Inverse(*part, "usedBy");
    many->SetMultiValuated(1);
    const auto block = BlockOf(*items, *part, "Geometry", {length.Get()});
    EXPECT_EQ(Compute(*items, {block.Get()}), S_OK);

    const auto defaultBlock = DefaultOf(*part);

    EXPECT_EQ(NameOf(*defaultBlock), "_OXMIDic_CBlock_");
    EXPECT_EQ(AttributesOf(*defaultBlock), "uses weight ");
}

TEST_F(ZanDicClassBlocksTest, TheDefaultBlockIncludesInheritedAttributes) {
    EXPECT_EQ(AttributesOf(*DefaultOf(*screw)), "head length weight ");
}

TEST_F(ZanDicClassBlocksTest, AnAttributeInAnInheritedBlockIsNoneOfTheDefaultBlock) {
    const auto block = BlockOf(*items, *part, "Geometry", {length.Get()});
    EXPECT_EQ(Compute(*items, {block.Get()}), S_OK);

    EXPECT_EQ(AttributesOf(*DefaultOf(*screw)), "head weight ");
}

TEST_F(ZanDicClassBlocksTest, TheDefaultBlockKnowsItsClassFatherAndRoot) {
    const auto ofScrew = DefaultOf(*screw);
    const auto ofPart = DefaultOf(*part);
    Held<OXMIDicClass> owner;

    EXPECT_EQ(ofScrew->GetClass(owner.Out()), S_OK);

    EXPECT_TRUE(SameObject(*owner, *screw));
    EXPECT_TRUE(SameObject(*FatherOf(*ofScrew), *ofPart));
    EXPECT_TRUE(SameObject(*RootOf(*ofScrew), *ofPart));
    EXPECT_TRUE(SameObject(*RootOf(*ofPart), *ofPart));
    EXPECT_FALSE(FatherOf(*ofPart));
    EXPECT_TRUE(IsRegistered(*ofScrew));
}

TEST_F(ZanDicClassBlocksTest, AskingASubclassMakesTheDefaultBlocksAbove) {
    OXMIDicAttributeBlock* block = nullptr;
    EXPECT_EQ(part->GetCBlockForAtt(nullptr, 0, &block), S_FALSE);

    DefaultOf(*screw);

    Held<OXMIDicAttributeBlock> made;
    EXPECT_EQ(part->GetCBlockForAtt(nullptr, 0, made.Out()), S_OK);
    EXPECT_EQ(AttributesOf(*made), "length weight ");
}

TEST_F(ZanDicClassBlocksTest, ARootWithoutAttributesHasAnEmptyDefaultBlock) {
    const auto bare = Class(*items, "Bare");
    Held<OXMIDicAttributeBlock> block;

    EXPECT_EQ(bare->GetCBlockForAtt(nullptr, 1, block.Out()), S_OK);

    EXPECT_EQ(AttributesOf(*block), "");
}

TEST_F(ZanDicClassBlocksTest, WithoutNameAndCreateNothingIsMadeAndTheOutputIsNull) {
    auto* block = reinterpret_cast<OXMIDicAttributeBlock*>(this);

    EXPECT_EQ(part->GetCBlockForAtt(nullptr, 0, &block), S_FALSE);

    EXPECT_EQ(block, nullptr);
}

TEST_F(ZanDicClassBlocksTest, WithANameTheDefaultBlockIsMadeWhateverCreateSays) {
    const ZELString name("weight");
    Held<OXMIDicAttributeBlock> block;

    EXPECT_EQ(part->GetCBlockForAtt(&name, 0, block.Out()), S_OK);

    EXPECT_EQ(AttributesOf(*block), "length weight ");
}

TEST_F(ZanDicClassBlocksTest, ANameThatTheDefaultBlockDoesNotHoldFailsButMakesIt) {
    const ZELString name("colour");
    auto* block = reinterpret_cast<OXMIDicAttributeBlock*>(this);
    Held<OXMIDicAttributeBlock> made;

    EXPECT_EQ(part->GetCBlockForAtt(&name, 0, &block), E_FAIL);

    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(part->GetCBlockForAtt(nullptr, 0, made.Out()), S_OK);
}

TEST_F(ZanDicClassBlocksTest, TheDefaultBlockIsMadeOnce) {
    const auto first = DefaultOf(*part);

    const auto second = DefaultOf(*part);

    EXPECT_EQ(first.Get(), second.Get());
}

TEST_F(ZanDicClassBlocksTest, TheDefaultBlockHoldsTheAttributesOfTheMomentItWasMade) {
    const auto block = DefaultOf(*part);

    const auto colour = Simple(*part, "colour");

    EXPECT_EQ(AttributesOf(*DefaultOf(*part)), "length weight ");
}

TEST_F(ZanDicClassBlocksTest, AClassWithoutPackageHasNoDefaultBlock) {
    const Held<ZanDicClass> alone(new ZanDicClass("Alone", NextUuid()));
    auto* block = reinterpret_cast<OXMIDicAttributeBlock*>(this);

    EXPECT_EQ(alone->GetCBlockForAtt(nullptr, 1, &block), E_FAIL);

    EXPECT_EQ(block, nullptr);
}

TEST_F(ZanDicClassBlocksTest, ASuperClassWithoutPackageLeavesNothingHalfMade) {
    const Held<ZanDicClass> alone(new ZanDicClass("Alone", NextUuid()));
    Held<OXMIDicClass> face;
    EXPECT_EQ(alone->QueryInterface(IID_OXMIDicClass, face.OutVoid()), S_OK);
    EXPECT_EQ(part->SetSuperClass(face.Get()), S_OK);
    const int objectsBefore = ZanDicObj::live_Objects();
    OXMIDicAttributeBlock* block = nullptr;

    EXPECT_EQ(screw->GetCBlockForAtt(nullptr, 1, &block), E_FAIL);

    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
    EXPECT_EQ(part->GetCBlockForAtt(nullptr, 0, &block), S_FALSE);
}

TEST_F(ZanDicClassBlocksTest, ThePackageOfItsClassKeepsTheDefaultBlock) {
    const auto tools = Package("Tools");
    const auto hammer = SubClass(*tools, "Hammer", *part);
    const auto ofHammer = DefaultOf(*hammer);
    const auto ofPart = DefaultOf(*part);

    RemovePackage("Tools");

    EXPECT_FALSE(IsRegistered(*ofHammer));
    EXPECT_TRUE(IsRegistered(*ofPart));
}

// Depth.

TEST_F(ZanDicClassBlocksTest, ADeepHierarchyIsNoDepthOfCalls) {
    constexpr int kLevels = 100'000;
    std::vector<Held<OXMIDicClass>> classes;
    classes.push_back(SubClass(*items, "C0", *part));
    while (classes.size() < kLevels) {
        classes.push_back(SubClass(*items, ("C" + std::to_string(classes.size())).c_str(), *classes.back()));
    }
    const auto block = BlockOf(*items, *part, "Geometry", {weight.Get()});
    EXPECT_EQ(Compute(*items, {block.Get()}), S_OK);

    EXPECT_EQ(BlocksOf(*classes.back()), "Geometry ");
    EXPECT_EQ(AttributesOf(*DefaultOf(*classes.back())), "length ");
}

}  // namespace
