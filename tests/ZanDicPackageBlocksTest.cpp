// Who makes and keeps attribute blocks, and how a package computes them.
#include "BlockFixture.h"
#include "ZanDicPackage.h"
#include "ZanDicTuning.h"

namespace {

class ZanDicPackageBlocksTest : public BlockFixture {
protected:
    Held<OXMIDicPackage> items = Package("Items");
    Held<OXMIDicClass> part = Class(*items, "Part");
    Held<OXMIDicClass> screw = SubClass(*items, "Screw", *part);
    Held<OXMIDicSimple> weight = Simple(*part, "weight");
    Held<OXMIDicSimple> length = Simple(*part, "length");
};

// Making and keeping.

TEST_F(ZanDicPackageBlocksTest, MakesARegisteredBlockThatIsNoElement) {
    HeldList elements;

    const auto block = Block(*items);

    EXPECT_TRUE(IsRegistered(*block));
    EXPECT_EQ(items->GetElements(&elements), S_OK);
    EXPECT_EQ(NamesOf(elements), "Part Screw ");
}

TEST_F(ZanDicPackageBlocksTest, RefusesAKnownUuidAndMakesNothing) {
    ZELDbBinary uuid;
    part->GetUuid(&uuid);
    const int objectsBefore = ZanDicObj::live_Objects();
    OXMIDicAttributeBlock* block = nullptr;

    EXPECT_EQ(items->CreateAttributeBlock(&uuid, &block), E_FAIL);

    EXPECT_EQ(block, nullptr);
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
    EXPECT_EQ(Written(), "");
}

TEST_F(ZanDicPackageBlocksTest, RefusesNull) {
    const ZELDbBinary uuid = NextUuid();
    OXMIDicAttributeBlock* block = nullptr;

    EXPECT_EQ(items->CreateAttributeBlock(nullptr, &block), E_FAIL);
    EXPECT_EQ(items->CreateAttributeBlock(&uuid, nullptr), E_FAIL);
}

TEST_F(ZanDicPackageBlocksTest, KeepsItsBlocksUntilItGoes) {
    const ZELDbBinary uuid = NextUuid();
    Held<OXMIDicAttributeBlock> block;
    Held<OXMIDicElementH> found;
    EXPECT_EQ(items->CreateAttributeBlock(&uuid, block.Out()), S_OK);
    block.Reset();
    EXPECT_EQ(Manager().Search(&uuid, found.Out()), S_OK);
    found.Reset();

    RemovePackage("Items");

    EXPECT_EQ(Manager().Search(&uuid, found.Out()), E_FAIL);
}

TEST_F(ZanDicPackageBlocksTest, EndGivesBlocksBack) {
    const auto block = Block(*items);

    EXPECT_EQ(Manager().End(), S_OK);

    EXPECT_FALSE(IsRegistered(*block));
}

TEST_F(ZanDicPackageBlocksTest, FlushingDropsTheBlocksAfterTheElementsWithoutAWord) {
    const auto block = BlockOf(*items, *part, "Geometry");
    TraceOnly("ZanDicPackage::FlushAll\n");

    EXPECT_EQ(items->FlushAll(), S_OK);

    EXPECT_FALSE(IsRegistered(*block));
    EXPECT_EQ(Written().find("Geometry"), std::string::npos);
    EXPECT_NE(Written().find("processing _ELEMENTS..."), std::string::npos);
}

TEST_F(ZanDicPackageBlocksTest, APackageThatIsGoneMakesAndComputesNothing) {
    const auto tools = Package("Tools");
    const ZELDbBinary uuid = NextUuid();
    OXMIDicAttributeBlock* block = nullptr;
    RemovePackage("Tools");

    EXPECT_EQ(tools->CreateAttributeBlock(&uuid, &block), E_FAIL);
    EXPECT_EQ(Compute(*tools, {}), E_FAIL);
}

// Passes.

TEST_F(ZanDicPackageBlocksTest, ComputesNamesRootsFathersAndAttributes) {
    const auto head = Simple(*screw, "head");
    const auto root = BlockOf(*items, *part, "Geometry", {weight.Get()});
    const auto derived = BlockOf(*items, *screw, nullptr, {head.Get()}, root.Get());

    EXPECT_EQ(Compute(*items, {derived.Get(), root.Get()}), S_OK);

    EXPECT_EQ(NameOf(*derived), "Geometry");
    EXPECT_TRUE(SameObject(*RootOf(*derived), *root));
    EXPECT_TRUE(SameObject(*FatherOf(*derived), *root));
    EXPECT_EQ(AttributesOf(*derived), "head weight ");
    EXPECT_EQ(BlocksOf(*screw), "Geometry ");
    EXPECT_EQ(WrittenErrors(), "");
}

TEST_F(ZanDicPackageBlocksTest, ABlockWithoutNameEndsTheFirstPass) {
    const auto nameless = BlockOf(*items, *part, nullptr);
    const auto behind = BlockOf(*items, *screw, "Behind");

    EXPECT_EQ(Compute(*items, {nameless.Get(), behind.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no Name for Attribute Block " + UuidOf(*nameless) + "\n");
    EXPECT_EQ(BlocksOf(*screw), "");
    EXPECT_FALSE(RootOf(*behind));
}

TEST_F(ZanDicPackageBlocksTest, ABlockWithoutClassFailsSilently) {
    const auto block = Block(*items, "Geometry");

    EXPECT_EQ(Compute(*items, {block.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "");
    EXPECT_FALSE(RootOf(*block));
}

TEST_F(ZanDicPackageBlocksTest, ABlockWithoutFatherInTheHierarchyEndsItsPass) {
    const auto tool = Class(*items, "Tool");
    const auto ofTool = BlockOf(*items, *tool, "OfTool", {});
    const auto stray = BlockOf(*items, *screw, "Stray", {}, ofTool.Get());
    const auto root = BlockOf(*items, *part, "Root", {weight.Get()});
    const auto derived = BlockOf(*items, *screw, "Derived", {}, root.Get());

    EXPECT_EQ(Compute(*items, {ofTool.Get(), stray.Get(), root.Get(), derived.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "ERROR : no father found for Attribute Block " + UuidOf(*stray) + "\n");
    EXPECT_EQ(AttributesOf(*derived), "");
}

TEST_F(ZanDicPackageBlocksTest, TwoOwnBlocksOfOneNameEndTheFirstPassWithTheirLine) {
    const auto first = BlockOf(*items, *part, "Geometry");
    const auto second = BlockOf(*items, *part, "Geometry");

    EXPECT_EQ(Compute(*items, {first.Get(), second.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "Tuning Error on Class Items::Part : block name defined twice : Geometry\n");
}

// Checks.

TEST_F(ZanDicPackageBlocksTest, TellsDuplicatedAttributesCountingDown) {
    const auto first = BlockOf(*items, *part, "First", {weight.Get(), length.Get()});
    const auto second = BlockOf(*items, *part, "Second", {length.Get(), weight.Get()});

    EXPECT_EQ(Compute(*items, {first.Get(), second.Get()}), E_FAIL);

    // The last block is collected first, so "weight" of the other is the first to be met again.
    EXPECT_EQ(WrittenErrors(),
              "Tuning Error on Class Items::Part : duplicated attributes :\n"
              "  [2]=length\n"
              "  [1]=weight\n");
}

TEST_F(ZanDicPackageBlocksTest, AnAttributeInThreeBlocksIsToldOnce) {
    const auto first = BlockOf(*items, *part, "First", {weight.Get()});
    const auto second = BlockOf(*items, *part, "Second", {weight.Get()});
    const auto third = BlockOf(*items, *part, "Third", {weight.Get()});

    EXPECT_EQ(Compute(*items, {first.Get(), second.Get(), third.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(),
              "Tuning Error on Class Items::Part : duplicated attributes :\n"
              "  [1]=weight\n");
}

TEST_F(ZanDicPackageBlocksTest, InheritedAttributesCountAmongTheDuplicates) {
    const auto root = BlockOf(*items, *part, "Root", {weight.Get()});
    const auto derived = BlockOf(*items, *screw, "Derived", {}, root.Get());
    const auto own = BlockOf(*items, *screw, "Own", {weight.Get()});

    EXPECT_EQ(Compute(*items, {root.Get(), derived.Get(), own.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(),
              "Tuning Error on Class Items::Screw : duplicated attributes :\n"
              "  [1]=weight\n");
}

TEST_F(ZanDicPackageBlocksTest, TheSameNameInAnOwnAndAnInheritedBlockOfAnotherRootIsTold) {
    const auto inherited = BlockOf(*items, *part, "Geometry");
    const auto own = BlockOf(*items, *screw, "Geometry");

    EXPECT_EQ(Compute(*items, {inherited.Get(), own.Get()}), E_FAIL);

    EXPECT_EQ(WrittenErrors(), "Tuning Error on Class Items::Screw : block name defined twice : Geometry\n");
}

TEST_F(ZanDicPackageBlocksTest, ChecksAllClassesTheLastFirstAlsoAfterAnError) {
    const auto tool = Class(*items, "Tool");
    const auto size = Simple(*tool, "size");
    const auto partFirst = BlockOf(*items, *part, "A", {weight.Get()});
    const auto partSecond = BlockOf(*items, *part, "B", {weight.Get()});
    const auto toolFirst = BlockOf(*items, *tool, "C", {size.Get()});
    const auto toolSecond = BlockOf(*items, *tool, "D", {size.Get()});

    EXPECT_EQ(Compute(*items, {partFirst.Get(), partSecond.Get(), toolFirst.Get(), toolSecond.Get()}),
              E_FAIL);

    EXPECT_EQ(WrittenErrors(),
              "Tuning Error on Class Items::Tool : duplicated attributes :\n"
              "  [1]=size\n"
              "Tuning Error on Class Items::Part : duplicated attributes :\n"
              "  [1]=weight\n");
}

TEST_F(ZanDicPackageBlocksTest, AnEmptyListIsCheckedAllTheSame) {
    const auto tools = Package("Tools");
    const auto first = BlockOf(*tools, *part, "First", {weight.Get()});
    const auto second = BlockOf(*tools, *part, "Second", {weight.Get()});
    EXPECT_EQ(Compute(*tools, {first.Get(), second.Get()}), S_OK);  // Part is no class of that package

    EXPECT_EQ(Compute(*items, {}), E_FAIL);

    EXPECT_NE(WrittenErrors().find("Tuning Error on Class Items::Part"), std::string::npos);
}

TEST_F(ZanDicPackageBlocksTest, ClassesWithoutVisibleBlocksAreSkipped) {
    EXPECT_EQ(Compute(*items, {}), S_OK);

    EXPECT_EQ(WrittenErrors(), "");
}

// Several packages at once.

TEST_F(ZanDicPackageBlocksTest, BlocksOfSeveralPackagesExtendEachOtherInBothDirections) {
    const auto tools = Package("Tools");
    const auto hammer = SubClass(*tools, "Hammer", *part);
    const auto sledge = SubClass(*items, "Sledge", *hammer);
    const auto ofPart = BlockOf(*items, *part, "Geometry", {weight.Get()});
    const auto ofHammer = BlockOf(*tools, *hammer, nullptr, {}, ofPart.Get());
    const auto ofSledge = BlockOf(*items, *sledge, "SledgeGeometry", {}, ofHammer.Get());
    ZELListPtrIUnknown itemBlocks;
    ZELListPtrIUnknown toolBlocks;
    itemBlocks.Append(ofSledge.Get());
    itemBlocks.Append(ofPart.Get());
    toolBlocks.Append(ofHammer.Get());
    ZanDicTuningMember members[] = {{*items, itemBlocks}, {*tools, toolBlocks}};

    ZanDicComputeTunings(members);

    EXPECT_EQ(members[0].result, S_OK);
    EXPECT_EQ(members[1].result, S_OK);
    EXPECT_TRUE(SameObject(*FatherOf(*ofSledge), *ofHammer));
    EXPECT_EQ(NameOf(*ofHammer), "Geometry");
    EXPECT_EQ(AttributesOf(*ofSledge), "weight ");
}

TEST_F(ZanDicPackageBlocksTest, AFailureStaysThatOfItsPackage) {
    const auto tools = Package("Tools");
    const auto hammer = Class(*tools, "Hammer");
    const auto nameless = BlockOf(*tools, *hammer, nullptr);
    const auto good = BlockOf(*items, *part, "Geometry", {weight.Get()});
    ZELListPtrIUnknown toolBlocks;
    ZELListPtrIUnknown itemBlocks;
    toolBlocks.Append(nameless.Get());
    itemBlocks.Append(good.Get());
    ZanDicTuningMember members[] = {{*tools, toolBlocks}, {*items, itemBlocks}};

    ZanDicComputeTunings(members);

    EXPECT_EQ(members[0].result, E_FAIL);
    EXPECT_EQ(members[1].result, S_OK);
    EXPECT_EQ(BlocksOf(*part), "Geometry ");
}

class Listener final : public ZanDicBlockFaultListener {
public:
    void OnBlockFault(const ZanDicBlockFault& fault) override { faults.push_back(fault); }

    std::vector<ZanDicBlockFault> faults;
};

TEST_F(ZanDicPackageBlocksTest, AListenerIsToldInsteadOfStandardError) {
    const auto first = BlockOf(*items, *part, "First", {weight.Get()});
    const auto second = BlockOf(*items, *part, "Second", {weight.Get()});
    ZELListPtrIUnknown blocks;
    blocks.Append(first.Get());
    blocks.Append(second.Get());
    Listener listener;
    ZanDicTuningMember members[] = {{*items, blocks, &listener}};

    ZanDicComputeTunings(members);

    EXPECT_EQ(members[0].result, E_FAIL);
    EXPECT_EQ(WrittenErrors(), "");
    ASSERT_EQ(listener.faults.size(), 1U);
    EXPECT_EQ(listener.faults[0].lines.size(), 2U);
    EXPECT_EQ(listener.faults[0].reason, "in more than one block: weight");
    EXPECT_EQ(UuidText(listener.faults[0].owner), UuidOf(*part));
    EXPECT_TRUE(listener.faults[0].block.IsEmpty());
}

// Broken promises.

using ZanDicPackageBlocksDeathTest = ZanDicPackageBlocksTest;

TEST_F(ZanDicPackageBlocksDeathTest, ANullListEndsTheProcess) {
    EXPECT_DEATH(items->ComputeAttributeBlocks(nullptr),
                 "AssertionFailed:iCreatedBlocks, ZanDicPackage, line 1182");
}

TEST_F(ZanDicPackageBlocksDeathTest, AnEntryThatIsNoBlockEndsTheProcess) {
    ZELListPtrIUnknown list;
    list.Append(part.Get());

    EXPECT_DEATH(items->ComputeAttributeBlocks(&list), "AssertionFailed:Block, ZanDicPackage, line 1199");
}

TEST_F(ZanDicPackageBlocksDeathTest, ANullEntryEndsTheProcess) {
    ZELListPtrIUnknown list;
    list.Append(nullptr);

    EXPECT_DEATH(items->ComputeAttributeBlocks(&list), "AssertionFailed:Block, ZanDicPackage, line 1199");
}

TEST_F(ZanDicPackageBlocksDeathTest, AnEntryBehindAFailureIsNotLookedAt) {
    const auto nameless = BlockOf(*items, *part, nullptr);
    ZELListPtrIUnknown list;
    list.Append(nameless.Get());
    list.Append(nullptr);

    EXPECT_EQ(items->ComputeAttributeBlocks(&list), E_FAIL);
}

}  // namespace
