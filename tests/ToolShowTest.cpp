// `zandic show`: the sheet of each kind, and how names and UUIDs resolve.
#include <algorithm>
#include <sstream>

#include "ToolRunner.h"

namespace {

class ToolShowTest : public ToolTest {
protected:
    /// Runs `show NAME` on the sample and compares with the text of that name.
    void ExpectSheet(const std::string& name, const std::string& file) const {
        const ToolRun run = OnSample({"--quiet", "show", name});

        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, ExpectedOutput(file));
        EXPECT_EQ(run.err, "");
    }

    void ExpectRefused(const std::string& name, const std::string& line) const {
        const ToolRun run = OnSample({"--quiet", "show", name});

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + line + "\n");
    }
};

TEST_F(ToolShowTest, Package) { ExpectSheet("BomItems", "show-package.txt"); }
TEST_F(ToolShowTest, Class) { ExpectSheet("BomItems::BomPart", "show-class.txt"); }
TEST_F(ToolShowTest, ClassWithARedefinition) {
    ExpectSheet("BomEffectivity::BomEffectiveUsage", "show-class-redefining.txt");
}
TEST_F(ToolShowTest, Instance) { ExpectSheet("BomItems::BomPhysicalPart", "show-instance.txt"); }
TEST_F(ToolShowTest, Simple) { ExpectSheet("BomItems::BomPart::Mass", "show-simple.txt"); }
TEST_F(ToolShowTest, SimpleOfAnEnumeration) {
    ExpectSheet("BomItems::BomItem::State", "show-simple-enum.txt");
}
TEST_F(ToolShowTest, Redefinition) { ExpectSheet("BomItems::BomPart::Description", "show-redefinition.txt"); }
TEST_F(ToolShowTest, Relationship) { ExpectSheet("BomItems::BomUsage::Component", "show-relationship.txt"); }
TEST_F(ToolShowTest, RelationshipToAnyObject) {
    ExpectSheet("BomItems::BomItem::Remarks", "show-any-object.txt");
}
TEST_F(ToolShowTest, Inverse) { ExpectSheet("BomItems::BomItem::UsedIn", "show-inverse.txt"); }
TEST_F(ToolShowTest, Unique) { ExpectSheet("BomItems::BomItem::ItemKey", "show-unique.txt"); }
TEST_F(ToolShowTest, Enum) { ExpectSheet("BomItems::BomLifecycleState", "show-enum.txt"); }
TEST_F(ToolShowTest, Enumerator) {
    ExpectSheet("BomItems::BomLifecycleState::Series", "show-enumerator.txt");
}
TEST_F(ToolShowTest, Category) { ExpectSheet("BomPeople::BomIdentification", "show-category.txt"); }
TEST_F(ToolShowTest, PackageOfTheOtherDomain) { ExpectSheet("BomWorkshop", "show-other-domain.txt"); }

TEST_F(ToolShowTest, PackageOfExtensionsAndInterfaces) {
    ExpectSheet("BomServices", "show-package-services.txt");
}
TEST_F(ToolShowTest, PackageOfMappings) { ExpectSheet("BomStorageMap.rbomap", "show-package-mapping.txt"); }
TEST_F(ToolShowTest, Extension) { ExpectSheet("BomServices::BomExportData", "show-extension.txt"); }
TEST_F(ToolShowTest, RelationshipWithAScope) {
    ExpectSheet("BomServices::BomLogisticsData::PreferredSupplier", "show-scope.txt");
}
TEST_F(ToolShowTest, Interface) { ExpectSheet("BomServices::BomCosting", "show-interface.txt"); }
TEST_F(ToolShowTest, Method) { ExpectSheet("BomServices::BomCosting::RollUp", "show-method.txt"); }
TEST_F(ToolShowTest, Parameter) {
    ExpectSheet("BomServices::BomCosting::RollUp::Currency", "show-parameter.txt");
}
TEST_F(ToolShowTest, Block) { ExpectSheet("BomItems::BomPart::Identity", "show-block.txt"); }
TEST_F(ToolShowTest, Mapping) { ExpectSheet("BomStorageMap.rbomap::ItemMapping", "show-mapping.txt"); }
TEST_F(ToolShowTest, Root) { ExpectSheet("BomStorageMap.rbomap::ItemMapping::Part", "show-root.txt"); }
TEST_F(ToolShowTest, Component) {
    ExpectSheet("BomStorageMap.rbomap::ItemMapping::Part::Physics", "show-component.txt");
}
TEST_F(ToolShowTest, PathExpression) {
    ExpectSheet("BomStorageMap.rbomap::ItemMapping::Part::Physics::Mass::ToMass", "show-path.txt");
}

TEST_F(ToolShowTest, AnRBOClassKnowsItsMappings) {
    const ToolRun run =
        OnSample({"--quiet", "show", "BomStorage.rbodef::ItemTable", "--in", "BomStorageMap.rbomap"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("show-rbo-class.txt"));
}

TEST_F(ToolShowTest, NewKindsAreFoundByTheirUuid) {
    ExpectSheet("EEFE6A11-FF83-4E80-84F5F0239E4C0F6C", "show-method.txt");
    ExpectSheet("9DD40E80-03DB-4E10-A945547C13B710EF", "show-parameter.txt");
    ExpectSheet("0D9C2CB7-35F9-40E9-8F00260B541B9AB6", "show-block.txt");
    ExpectSheet("D81D83B9-57B9-4063-AE94FC47119C4C02", "show-path.txt");
}

TEST_F(ToolShowTest, AClassKnowsWhoExtendsMapsAndPassesIt) {
    const std::string item =
        OnSample({"--quiet", "show", "BomItems::BomItem", "--in", "BomServices", "BomStorageMap.rbomap"}).out;
    const std::string assembly =
        OnSample({"--quiet", "show", "BomItems::BomAssembly", "--in", "BomServices"}).out;

    EXPECT_NE(item.find("BomServices::BomLogisticsData"), item.npos);
    EXPECT_NE(item.find("BomStorageMap::ItemMapping::Part::Number"), item.npos);
    EXPECT_NE(assembly.find("BomServices::BomCosting::RollUp::Assembly"), assembly.npos);
}

TEST_F(ToolShowTest, AnInheritedMemberIsShownWhereItIsDeclared) {
    ExpectSheet("BomItems::BomAssembly::Mass", "show-simple.txt");
}

TEST_F(ToolShowTest, AUuidIsLookedForOnTheWholePath) {
    ExpectSheet("5AAF3900-5E46-4551-BB9AE4FD947B8003", "show-class-of-path.txt");
    ExpectSheet("5aaf39005e464551bb9ae4fd947b8003", "show-class-of-path.txt");
    ExpectSheet("02D26687F46448A5BF474B50D3AD637C", "show-other-domain.txt");
}

TEST_F(ToolShowTest, AUuidIsLookedForInEveryContentKind) {
    int number = 0;
    for (const char* content : {"metadata", "rbodef", "rbomap", "metaplm"}) {
        const std::string uuid = "00000000-0000-0000-000000000000000" + std::to_string(++number);
        const std::string name = std::string("P") + content;
        Own().MakeFile(name + "." + content, "<Package Name=\"" + name + "\" Uuid=\"" + uuid + "\"/>");

        const ToolRun run = OnOwn({"--quiet", "show", uuid});

        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.out.find("Package " + name + "\n"), 0U);
    }
}

TEST_F(ToolShowTest, ATuningDocumentIsNoPackageOfThePath) {
    MakePackage("P", R"(Uuid="00000000-0000-0000-0000000000000001")", "");
    Own().MakeFile("Q.tuning", "<Package");

    const ToolRun run = OnOwn({"--quiet", "show", "00000000-0000-0000-0000000000000001"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolShowTest, EveryKindIsFoundByItsUuid) {
    EXPECT_EQ(OnSample({"--quiet", "show", "164FDB86-241C-4670-B2E239321F89FD7A", "--in", "BomItems"}).out,
              ExpectedOutput("show-simple.txt"));
    ExpectSheet("975DC312-CB41-449D-9EA6A0AD101C297A", "show-unique.txt");
    ExpectSheet("33A37405-79C3-456A-8AC0F81F4338C877", "show-enumerator.txt");
    ExpectSheet("88DC6928-77DE-4887-B363474D848977CB", "show-enum.txt");
}

TEST_F(ToolShowTest, InSaysWhereAUuidIsLookedFor) {
    const std::string uuid = "43AAD6AD-B3A3-4312-8FA837AF3544EF96";

    EXPECT_EQ(OnSample({"show", uuid, "--in", "BomPeople"}).status, 0);
    EXPECT_EQ(OnSample({"--in", "BomWorkshop", "BomPeople", "show", uuid}).status, 0);
    EXPECT_EQ(OnSample({"show", "--in", "BomWorkshop", "BomPeople", uuid}).status, 0)
        << "a UUID ends the list";
    EXPECT_EQ(OnSample({"show", uuid, "--in", "BomWorkshop"}).status, 1);
}

TEST_F(ToolShowTest, InAddsUsersToWhatIsShown) {
    const std::string alone = OnSample({"--quiet", "show", "BomPeople::BomPerson"}).out;
    const std::string within =
        OnSample({"--quiet", "show", "BomPeople::BomPerson", "--in", "BomDocuments"}).out;

    EXPECT_EQ(alone.find("BomDocuments::BomDocument::Author"), alone.npos);
    EXPECT_NE(within.find("BomDocuments::BomDocument::Author"), within.npos);
}

TEST_F(ToolShowTest, SeveralNamesStandApart) {
    const ToolRun run = OnSample({"--quiet", "show", "BomItems::BomLifecycleState::Series",
                                  "BomPeople::BomNobody", "BomItems::BomLifecycleState::Series"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, ExpectedOutput("show-enumerator.txt") + "\n" + ExpectedOutput("show-enumerator.txt"));
    EXPECT_EQ(run.err, "zandic: BomPeople::BomNobody: error: package BomPeople has no element BomNobody\n");
}

TEST_F(ToolShowTest, AContentWordMayStandBehindThePackage) {
    ExpectSheet("BomItems.metadata::BomPart", "show-class.txt");
}

TEST_F(ToolShowTest, WhatIsNotFoundIsNamed) {
    ExpectRefused("BomItems::BomNobody",
                  "BomItems::BomNobody: error: package BomItems has no element BomNobody");
    ExpectRefused("BomItems::BomPart::Nothing",
                  "BomItems::BomPart::Nothing: error: Class BomItems::BomPart has no member Nothing");
    ExpectRefused("BomItems::BomLifecycleState::Nothing",
                  "BomItems::BomLifecycleState::Nothing: error: Enum BomItems::BomLifecycleState has no "
                  "member Nothing");
    ExpectRefused("BomPeople::BomAudit::Nothing",
                  "BomPeople::BomAudit::Nothing: error: Category BomPeople::BomAudit has no member Nothing");
    ExpectRefused("BomServices::BomCosting::Nothing",
                  "BomServices::BomCosting::Nothing: error: Interface BomServices::BomCosting has no member "
                  "Nothing");
    ExpectRefused("BomStorageMap.rbomap::ItemMapping::Part::Nothing",
                  "BomStorageMap.rbomap::ItemMapping::Part::Nothing: error: RBOMapping "
                  "BomStorageMap::ItemMapping has no member Part::Nothing");
    ExpectRefused("BomItems::bompart",
                  "BomItems::bompart: error: package BomItems has no element bompart; did you mean BomPart?");
    ExpectRefused(
        "00000000-0000-0000-0000000000000001",
        "00000000-0000-0000-0000000000000001: error: no object of the loaded packages has this UUID");
}

TEST_F(ToolShowTest, ADocumentThatDoesNotLoadCostsNotTheAnswer) {
    MakePackage("Good", R"(Uuid="00000000-0000-0000-0000000000000001")", "");
    Own().MakeFile("Bad.metadata", "<Package");

    const ToolRun run = OnOwn({"--quiet", "show", "00000000-0000-0000-0000000000000001"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out.find("Package Good\n"), 0U);
    EXPECT_EQ(WithoutPlaces(run.err).find("zandic: own/Bad.metadata:1:"), 0U);
}

TEST_F(ToolShowTest, AnEmptyPathHasNoUuid) {
    const ToolRun run = OnOwn({"show", "00000000-0000-0000-0000000000000001"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.err),
              "zandic: own: error: no package document on the path\n"
              "zandic: 00000000-0000-0000-0000000000000001: error: no object of the loaded packages has this "
              "UUID\n");
}

TEST_F(ToolShowTest, LongNamesKeepTheLinesShort) {
    const std::string name(60, 'n');
    MakePackage("Long", R"(Uuid="00000000-0000-0000-0000000000000001")",
                R"(<Class Name="Part" Uuid="00000000-0000-0000-0000000000000002" Persistent="Yes" Alias=")" +
                    std::string(40, 'a') + " " + std::string(40, 'b') + R"(">)" + R"(<Simple Name=")" + name +
                    R"(" Uuid="00000000-0000-0000-0000000000000003" Type="String" MaxLength="20" Default=")" +
                    "a rather long text of many words that goes on and on until it has to be broken" +
                    R"("/></Class>)");

    std::istringstream lines(OnOwn({"show", "Long::Part"}).out);

    std::size_t widest = 0;
    for (std::string line; std::getline(lines, line);) widest = std::max(widest, line.size());
    EXPECT_LE(widest, 80U);
}

TEST_F(ToolShowTest, ControlCharactersDoNotReachTheTerminal) {
    MakePackage("Odd", R"(Uuid="00000000-0000-0000-0000000000000001" Alias="a&#10;b&#9;c&#13;d")", "");

    const std::string out = OnOwn({"show", "Odd"}).out;

    EXPECT_NE(out.find("  Alias               a\\nb\\tc\\x0Dd\n"), out.npos) << out;
}

}  // namespace
