// `zandic blocks`: the blocks that a class declares, those that it inherits, and its default block.
#include "ToolRunner.h"

namespace {

class ToolBlocksTest : public ToolTest {
protected:
    void ExpectSheet(const std::string& name, const std::string& file) const {
        const ToolRun run = OnSample({"--quiet", "blocks", name});

        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, ExpectedOutput(file));
        EXPECT_EQ(run.err, "");
    }

    void ExpectFault(const std::string& name, int status, const std::string& line) const {
        const ToolRun run = OnSample({"--quiet", "blocks", name});

        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + line + "\n");
    }

    /// Two packages: the class Part, and its subclass Bolt in another one.
    void MakeParts(const std::string& tuning) const {
        MakePackage("Parts", R"(Uuid="00000000-0000-0000-0000000000000001")",
                    R"(<Class Name="Part" Uuid="00000000-0000-0000-0000000000000002" Persistent="Yes">
                         <Simple Name="Mass" Uuid="00000000-0000-0000-0000000000000003" Type="Double"/>
                         <Simple Name="Color" Uuid="00000000-0000-0000-0000000000000004" Type="String"/>
                       </Class>)");
        MakePackage("Bolts", R"(Uuid="00000000-0000-0000-0000000000000011" UseNames="Parts")",
                    R"(<Class Name="Bolt" Uuid="00000000-0000-0000-0000000000000012" Persistent="Yes"
                              SuperRef="00000000-0000-0000-0000000000000002"/>)");
        Own().MakeFile("Parts.tuning",
                       R"(<Package Name="Parts" Uuid="00000000-0000-0000-0000000000000001">
                            <Class Name="Part" Uuid="00000000-0000-0000-0000000000000002">)" +
                           tuning + "</Class></Package>");
    }
};

constexpr const char* kLook =
    R"(<AttributeBlock Name="Look" Uuid="00000000-0000-0000-00000000000000B1"
          AttributeUuids="00000000-0000-0000-0000000000000004"/>)";

TEST_F(ToolBlocksTest, AClass) { ExpectSheet("BomItems::BomPart", "blocks-class.txt"); }

TEST_F(ToolBlocksTest, AllClassesOfAPackage) { ExpectSheet("BomItems", "blocks-package.txt"); }

TEST_F(ToolBlocksTest, AContentWordMayStandBehindThePackage) {
    ExpectSheet("BomItems.metadata::BomPart", "blocks-class.txt");
}

TEST_F(ToolBlocksTest, AnotherRunGivesTheSameBytes) {
    EXPECT_EQ(OnSample({"--quiet", "blocks", "BomItems"}).out,
              OnSample({"--quiet", "blocks", "BomItems"}).out);
}

TEST_F(ToolBlocksTest, AClassWithoutBlocksHasItsDefaultBlock) {
    MakeParts("");

    EXPECT_EQ(OnOwn({"blocks", "Bolts::Bolt"}).out,
              "Class Bolts::Bolt\n"
              "\n"
              "  Attribute blocks    0 own blocks, 0 visible\n"
              "\n"
              "Default block\n"
              "  Father              default block of Parts::Part\n"
              "  Root                default block of Parts::Part\n"
              "  Attributes          Parts::Part::Color, Parts::Part::Mass\n");
}

TEST_F(ToolBlocksTest, AnOwnBlockThatAnotherOfItsRootHidesSaysSo) {
    MakeParts(kLook);
    Own().MakeFile("Bolts.tuning",
                   R"(<Package Name="Bolts" Uuid="00000000-0000-0000-0000000000000011">
                        <Class Name="Bolt" Uuid="00000000-0000-0000-0000000000000012">
                          <AttributeBlockExtension Name="First" Uuid="00000000-0000-0000-00000000000000B2" AttributeUuids=""
                             Extents="00000000-0000-0000-00000000000000B1"/>
                          <AttributeBlockExtension Name="Second" Uuid="00000000-0000-0000-00000000000000B3" AttributeUuids=""
                             Extents="00000000-0000-0000-00000000000000B1"/>
                        </Class></Package>)");

    const ToolRun run = OnOwn({"blocks", "Bolts::Bolt"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err,
              "Tuning Error on Class Bolts::Bolt : duplicated attributes :\n"
              "  [1]=Color\n"
              "OxmDicFromXML:OxmDicFromXML- *** WARNING *** OxmDicFromXML_Tuning(Bolts) failed.\n");
    EXPECT_EQ(run.out,
              "Class Bolts::Bolt\n"
              "\n"
              "  Attribute blocks    2 own blocks, 1 visible\n"
              "\n"
              "Own block First\n"
              "  UUID                00000000-0000-0000-00000000000000B2\n"
              "  Hidden by           Bolt::Second\n"
              "  Father              Parts::Part::Look\n"
              "  Root                Parts::Part::Look\n"
              "  Attributes          Parts::Part::Color\n"
              "\n"
              "Own block Second\n"
              "  UUID                00000000-0000-0000-00000000000000B3\n"
              "  Father              Parts::Part::Look\n"
              "  Root                Parts::Part::Look\n"
              "  Attributes          Parts::Part::Color\n"
              "\n"
              "Default block\n"
              "  Father              default block of Parts::Part\n"
              "  Root                default block of Parts::Part\n"
              "  Attributes          Parts::Part::Mass\n");
}

TEST_F(ToolBlocksTest, APackageWithoutBlocksNamesItsClasses) {
    MakeParts("");

    EXPECT_EQ(OnOwn({"blocks", "Bolts"}).out, "Package Bolts\n\n  Without blocks      Bolt\n");
}

TEST_F(ToolBlocksTest, APackageWithoutClassesSaysSo) {
    MakePackage("Empty", R"(Uuid="00000000-0000-0000-0000000000000001")", "");

    EXPECT_EQ(OnOwn({"blocks", "Empty"}).out, "Package Empty\n\n  Without blocks      it has no classes\n");
}

TEST_F(ToolBlocksTest, SeveralNamesStandApart) {
    const std::string one = ExpectedOutput("blocks-class.txt");

    const ToolRun run =
        OnSample({"--quiet", "blocks", "BomItems::BomPart", "BomNothing", "BomItems::BomPart"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, one + "\n" + one);
}

TEST_F(ToolBlocksTest, WhatHasNoBlocksIsRefused) {
    ExpectFault("BomItems::BomNobody", 1,
                "BomItems::BomNobody: error: package BomItems has no element BomNobody");
    ExpectFault("BomItems::BomPartSource", 1,
                "BomItems::BomPartSource: error: Enum BomItems::BomPartSource is no class and has no "
                "attribute blocks");
    ExpectFault("BomServices::BomQuery", 1,
                "BomServices::BomQuery: error: Interface BomServices::BomQuery is no class and has no "
                "attribute blocks");
}

TEST_F(ToolBlocksTest, AMemberHasNoBlocks) {
    ExpectFault(
        "BomItems::BomPart::Mass", 1,
        "BomItems::BomPart::Mass: error: Simple BomItems::BomPart::Mass is no class and has no attribute "
        "blocks");
}

TEST_F(ToolBlocksTest, AClassIsFoundByItsUuid) {
    EXPECT_EQ(OnSample({"--quiet", "blocks", "5AAF3900-5E46-4551-BB9AE4FD947B8003"}).out,
              ExpectedOutput("blocks-class.txt"));
}

TEST_F(ToolBlocksTest, ATuningDocumentIsWrongUse) {
    ExpectFault("BomItems.tuning", 2,
                "BomItems.tuning: error: a tuning document is read with its package, not by itself: give "
                "the package's name");
}

TEST_F(ToolBlocksTest, Json) {
    EXPECT_EQ(OnSample({"--quiet", "blocks", "--json", "BomItems::BomPart"}).out,
              ExpectedOutput("blocks.json"));
}

TEST_F(ToolBlocksTest, ATuningThatFailsIsAWarning) {
    MakeParts(R"(<AttributeBlock Name="Look" Uuid="00000000-0000-0000-00000000000000B1"
                   AttributeUuids="00000000-0000-0000-00000000000000FF"/>)");

    const ToolRun run = OnOwn({"blocks", "Parts::Part"});

    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("0 own blocks, 0 visible\n"), run.out.npos) << run.out;
    EXPECT_NE(run.err, "");
}

}  // namespace
