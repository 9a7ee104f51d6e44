// `zandic find`: by name, UUID, kind, type, and by whom objects refer to.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ToolFindTest : public ToolTest {
protected:
    std::string Find(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--quiet", "find"});
        return OnSample(arguments).out;
    }

    void ExpectNothing(std::vector<std::string> arguments, const std::string& line) const {
        arguments.insert(arguments.begin(), {"--quiet", "find"});
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + line + "\n");
    }

    void ExpectWrongUse(std::vector<std::string> arguments, const std::string& line) const {
        arguments.insert(arguments.begin(), {"--quiet", "find"});
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: error: " + line + "\n");
    }
};

TEST_F(ToolFindTest, ANameOfAnyCaseWithStars) {
    const ToolRun run = OnSample({"--quiet", "find", "*part*"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("find-names.txt"));
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolFindTest, ANameWithoutAStarIsTheWholeName) {
    EXPECT_EQ(Find({"bompart"}), "BomItems::BomPart  Class  \"Part\"\n");
}

TEST_F(ToolFindTest, ANameWithItsOwners) {
    EXPECT_EQ(Find({"BomItems::*::Mass"}), "BomItems::BomPart::Mass  Simple  Double 0..1\n");
    EXPECT_EQ(Find({"*::RollUp::Currency"}),
              "BomServices::BomCosting::RollUp::Currency  Parameter  String\n");
}

TEST_F(ToolFindTest, AUuidOrItsBeginning) {
    const std::string part = "BomItems::BomPart  Class  \"Part\"\n";

    EXPECT_EQ(Find({"5AAF3900-5E46-4551-BB9AE4FD947B8003"}), part);
    EXPECT_EQ(Find({"5aaf39005e46"}), part);
    EXPECT_EQ(Find({"5AAF-3900"}), part);
    EXPECT_EQ(Find({"5aaf"}), part);
}

TEST_F(ToolFindTest, EveryKindOfObjectIsFound) {
    for (const std::string kind :
         {"Package", "Class", "Instance", "Extension", "Simple", "Relationship", "Inverse", "Unique",
          "Interface", "Method", "Parameter", "Enum", "Enumerator", "Category", "AttributeBlock"}) {
        EXPECT_THAT(Find({"--kind", kind}), HasSubstr("  " + kind)) << kind;
    }
    for (const std::string kind :
         {"RBOClass", "RBOMapping", "RBORoot", "RBOComponent", "RBOPathExpression"}) {
        EXPECT_THAT(Find({"--kind", kind, "--in", "BomStorageMap.rbomap", "BomStorage.rbodef"}),
                    HasSubstr("  " + kind))
            << kind;
    }
}

TEST_F(ToolFindTest, TheKindsOfAttributesTogether) {
    const std::string all = Find({"--kind", "attribute"});

    EXPECT_EQ(LinesIn(all), LinesIn(Find({"--kind", "Simple"})) + LinesIn(Find({"--kind", "relationship"})) +
                                LinesIn(Find({"--kind", "INVERSE"})));
}

TEST_F(ToolFindTest, ByType) {
    EXPECT_EQ(Find({"--type", "BomUnitOfMeasure"}),
              "BomItems::BomUsage::Unit  Simple  BomItems::BomUnitOfMeasure 1\n");
    EXPECT_EQ(Find({"--type", "BomItems::bomunit*"}), Find({"--type", "BomUnitOfMeasure"}));
    EXPECT_EQ(Find({"--type", "String", "--kind", "Parameter"}),
              "BomServices::BomCosting::RollUp::Currency  Parameter  String\n"
              "BomServices::BomCosting::RollUp::Warnings  Parameter  String\n");
}

TEST_F(ToolFindTest, WhoRefersToAClass) {
    EXPECT_EQ(Find({"--refers-to", "BomItems::BomItem"}), ExpectedOutput("find-refers.txt"));
}

TEST_F(ToolFindTest, EveryWayOfReferringIsFound) {
    const auto find = [this](const std::string& name, std::vector<std::string> in = {}) {
        std::vector<std::string> arguments{"--refers-to", name};
        if (!in.empty()) {
            arguments.emplace_back("--in");
            arguments.insert(arguments.end(), in.begin(), in.end());
        }
        return Find(arguments);
    };

    EXPECT_THAT(find("BomItems::BomPart"), HasSubstr("is an instance of it"));
    EXPECT_THAT(find("BomItems::BomPart"), HasSubstr("applies to it"));
    EXPECT_THAT(find("BomItems::BomLifecycleState"), HasSubstr("has it as its type"));
    EXPECT_THAT(find("BomItems::BomUsage::Component"), HasSubstr("UsedIn"));
    EXPECT_THAT(find("BomItems::BomUsage::Component"), HasSubstr("inverts it"));
    EXPECT_THAT(find("BomItems::BomUsage::Component"), HasSubstr("redefines it"));
    EXPECT_THAT(find("BomPeople::BomAudit"), HasSubstr("is in it"));
    EXPECT_THAT(find("BomItems::BomAssembly"), HasSubstr("BomCosting::RollUp::Assembly"));
    EXPECT_THAT(find("BomItems::BomItem::ItemNumber"), HasSubstr("has it in the key"));
    EXPECT_THAT(find("BomItems::BomItem::ItemNumber"), HasSubstr("holds it"));
    EXPECT_THAT(find("BomItems::BomItem::Identity"),
                HasSubstr("BomPart::Identity  AttributeBlock  extends it"));
    EXPECT_THAT(find("BomItems"), HasSubstr("BomServices     Package  uses it"));
    EXPECT_THAT(find("BomDocuments"), HasSubstr("uses its scopes"));
    EXPECT_THAT(find("BomServices::BomQuery"), HasSubstr("is derived from it"));
    EXPECT_THAT(find("BomStorage.rbodef::ItemTable", {"BomStorageMap.rbomap"}), HasSubstr("applies to it"));
    EXPECT_THAT(find("BomItems::BomPart", {"BomStorageMap.rbomap"}), HasSubstr("is based on it"));
    EXPECT_THAT(find("BomItems::BomPart::Mass", {"BomStorageMap.rbomap"}), HasSubstr("leads to it"));
}

TEST_F(ToolFindTest, AllThatIsAskedForHasToHold) {
    EXPECT_EQ(LinesIn(Find({"*ItemS*", "--refers-to", "BomItems::BomItem"})), 1);
    EXPECT_EQ(Find({"*mass*", "--kind", "Simple", "--type", "double"}),
              "BomItems::BomPart::Mass  Simple  Double 0..1\n");
}

TEST_F(ToolFindTest, InSaysWhereToLook) {
    EXPECT_THAT(Find({"*Person*", "--in", "BomItems"}), Not(HasSubstr("BomPeople::BomPerson ")));
    EXPECT_THAT(Find({"*Person*"}), HasSubstr("BomPeople::BomPerson "));
    EXPECT_THAT(Find({"--in", "BomPeople", "*Person"}), StartsWith("BomPeople::BomPerson  Class"))
        << "a pattern ends the list";
}

TEST_F(ToolFindTest, WithoutAHitTheStatusIsOne) {
    ExpectNothing({"BomPrt"}, "BomPrt: error: nothing found; did you mean BomPart or BomParty?");
    ExpectNothing({"zzz*"}, "zzz*: error: nothing found");
    ExpectNothing({"--refers-to", "BomWorkshop"}, "error: nothing found");
}

TEST_F(ToolFindTest, WhatIsReferredToMustBeThere) {
    ExpectNothing({"--refers-to", "BomItems::BomPrt"},
                  "BomItems::BomPrt: error: package BomItems has no element BomPrt; did you mean "
                  "BomPart?");
}

TEST_F(ToolFindTest, SomethingMustBeAskedFor) {
    ExpectWrongUse({}, "PATTERN is missing (see 'zandic find --help')");
    ExpectWrongUse({"a", "b"}, "find takes one PATTERN, and there is 'b' as well (see 'zandic find --help')");
    ExpectWrongUse({"--kind", "enm"}, "--kind cannot be 'enm'; did you mean Enum?");
}

TEST_F(ToolFindTest, ADocumentThatDoesNotLoadCostsNotTheAnswer) {
    MakePackage("Good", R"(Uuid="00000000-0000-0000-0000000000000001")", "");
    Own().MakeFile("Bad.metadata", "<Package");

    const ToolRun run = OnOwn({"--quiet", "find", "*"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Good  Package\n");
    EXPECT_THAT(run.err, HasSubstr("warning: "));
}

TEST_F(ToolFindTest, Json) {
    const ToolRun run = OnSample({"--quiet", "find", "*Usage*", "--json"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("find.json"));
}

TEST_F(ToolFindTest, JsonTellsHowItRefers) {
    const auto found =
        nlohmann::json::parse(Find({"--refers-to", "BomItems::BomItem::ItemNumber", "--json"}));

    EXPECT_EQ(found["hits"][0]["name"], "BomItems::BomItem::ItemKey");
    EXPECT_EQ(found["hits"][0]["refersAs"][0], "key");
    EXPECT_EQ(nlohmann::json::parse(Find({"BomNothing", "--json"}))["hits"].size(), 0U);
}

}  // namespace
