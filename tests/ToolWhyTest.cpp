// `zandic why`: where an attribute comes from, and how it was decided.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using nlohmann::json;

class ToolWhyTest : public ToolTest {
protected:
    ToolRun Why(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--quiet", "why"});
        return OnSample(std::move(arguments));
    }

    /// Runs it beside the sample: what fits into a line depends on how its directory is called.
    std::string Sheet(const std::string& arguments) const {
        const std::string out = Own().Path("out");
        EXPECT_EQ(Shell("cd \"$SAMPLES/..\" && \"$TOOL\" --quiet --path samples why " + arguments + " > '" +
                        out + "'"),
                  0);
        std::ifstream file(out, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void ExpectSheet(const std::string& arguments, const std::string& file) const {
        EXPECT_EQ(Sheet(arguments), ExpectedOutput(file));
    }

    /// \returns the one answer as a value.
    json Answer(const std::string& name) const {
        const ToolRun run = OnOwn({"--quiet", "why", "--json", name});
        EXPECT_EQ(run.status, 0) << run.err;
        return json::parse(WithoutPlaces(run.out))["answers"].at(0);
    }

    void ExpectFault(const std::string& name, int status, const std::string& line) const {
        const ToolRun run = Why({name});

        EXPECT_EQ(run.status, status);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + line + "\n");
    }

    /// Three classes in a row, of which the last redefines what the first declares, each on a line of its
    /// own.
    void MakeParts() const {
        MakePackage("Parts", R"(Uuid="00000000-0000-0000-0000000000000001")",
                    R"(<Class Name="Part" Uuid="00000000-0000-0000-0000000000000002" Persistent="Yes">
  <Simple Name="Mass" Uuid="00000000-0000-0000-0000000000000003" Type="Double"/>
  <Simple Name="Tags" Uuid="00000000-0000-0000-0000000000000004" Type="String" MultiValuated="Yes"/>
  <Relationship Name="Next" Uuid="00000000-0000-0000-0000000000000005" ScopeRefs="00000000-0000-0000-0000000000000007"
    TargetRef="00000000-0000-0000-0000000000000002"/>
</Class>
<Class Name="Screw" Uuid="00000000-0000-0000-0000000000000006" Persistent="Yes"
  SuperRef="00000000-0000-0000-0000000000000002"/>
<!-- the ä takes one column --> <Class Name="Bolt" Uuid="00000000-0000-0000-0000000000000007" Persistent="Yes"
  SuperRef="00000000-0000-0000-0000000000000006">
  <Simple Name="Mass" Uuid="00000000-0000-0000-0000000000000008" Type="Double" Mandatory="Yes" Default="1"/>
</Class>
)");
    }
};

TEST_F(ToolWhyTest, ARedefinedAttributeOfAClassAboveInABlock) {
    ExpectSheet("BomItems::BomAssembly::Description", "why-redefined.txt");
}

TEST_F(ToolWhyTest, AnAttributeInABlockThatAnotherExtends) {
    ExpectSheet("BomItems::BomPart::ItemNumber", "why-block.txt");
}

TEST_F(ToolWhyTest, AnInverseAndTheExtensionsOfItsClass) {
    ExpectSheet("BomItems::BomItem::UsedIn --in BomServices", "why-inverse.txt");
}

TEST_F(ToolWhyTest, ARelationshipOfAnExtension) {
    ExpectSheet("BomServices::BomExportData::PreferredSupplier", "why-extension.txt");
}

TEST_F(ToolWhyTest, AsJson) {
    ExpectSheet("--json BomItems::BomAssembly::Description", "why-redefined.json");
}

TEST_F(ToolWhyTest, SeveralNamesStandApart) {
    EXPECT_EQ(Sheet("BomItems::BomAssembly::Description BomItems::BomPart::ItemNumber"),
              ExpectedOutput("why-redefined.txt") + "\n" + ExpectedOutput("why-block.txt"));
}

TEST_F(ToolWhyTest, AUuidIsAskedOfTheClassThatDeclaresIt) {
    EXPECT_EQ(Why({"--in", "BomItems", "4612E09F-F4D5-4071-AB1049D3608B5BDF"}).out,
              Why({"BomItems::BomItem::ItemNumber"}).out);
}

TEST_F(ToolWhyTest, PlacesAreThoseOfTheDocument) {
    MakeParts();

    const json answer = Answer("Parts::Bolt::Mass");

    EXPECT_EQ(
        answer["attribute"],
        (json{{"name", "Parts::Bolt::Mass"}, {"file", "own/Parts.metadata"}, {"line", 12}, {"column", 3}}));
    EXPECT_EQ(answer["class"],
              (json{{"name", "Parts::Bolt"}, {"file", "own/Parts.metadata"}, {"line", 10}, {"column", 33}}));
    EXPECT_EQ(answer["redefines"][0]["line"], 3);
    EXPECT_EQ(answer["redefines"][0]["changes"],
              (json{{{"property", "values"}, {"before", "0..1"}, {"after", "1"}},
                    {{"property", "mandatory"}, {"before", "No"}, {"after", "Yes"}},
                    {{"property", "default"}, {"before", "none"}, {"after", "1"}}}));
}

TEST_F(ToolWhyTest, TheWayOfAnInheritedAttributeNamesEveryClass) {
    MakeParts();

    const json answer = Answer("Parts::Bolt::Tags");

    EXPECT_EQ(answer["class"]["name"], "Parts::Bolt");
    EXPECT_EQ(answer["through"].size(), 1U);
    EXPECT_EQ(answer["through"][0]["name"], "Parts::Screw");
    EXPECT_EQ(answer["declaredIn"]["name"], "Parts::Part");
}

TEST_F(ToolWhyTest, ABlockIsNamedOrWhyThereIsNone) {
    MakeParts();
    EXPECT_EQ(Answer("Parts::Part::Mass")["block"],
              (json{{"kind", "default"},
                    {"class", "Parts::Part"},
                    {"reason", "the class sees no block, and it has one value"}}));
    Own().MakeFile("Parts.tuning",
                   R"(<Package Name="Parts" Uuid="00000000-0000-0000-0000000000000001">
<Class Name="Part" Uuid="00000000-0000-0000-0000000000000002">
<AttributeBlock Name="Look" Uuid="00000000-0000-0000-00000000000000B1"
  AttributeUuids="00000000-0000-0000-0000000000000003"/>
</Class></Package>)");

    EXPECT_EQ(
        Answer("Parts::Screw::Mass")["block"],
        (json{
            {"kind", "declared"},
            {"class", "Parts::Part"},
            {"reason", "a tuning document lists it"},
            {"name", "Look"},
            {"listedAs", "Parts::Part::Mass"},
            {"chain",
             {{{"name", "Parts::Part::Look"}, {"file", "own/Parts.tuning"}, {"line", 4}, {"column", 3}}}}}));
    EXPECT_EQ(Answer("Parts::Bolt::Mass")["block"]["listedAs"], "Parts::Part::Mass");
    EXPECT_EQ(Answer("Parts::Part::Tags")["block"],
              (json{{"kind", "none"},
                    {"class", "Parts::Part"},
                    {"reason",
                     "no block that the class sees lists it, and default blocks hold nothing that has "
                     "several values"}}));
}

TEST_F(ToolWhyTest, ClassesToWhichARelationshipAppliesCoverTheClassOrNot) {
    MakeParts();

    EXPECT_EQ(Answer("Parts::Bolt::Next")["scopes"][0]["name"], "Parts::Bolt");
    EXPECT_EQ(Answer("Parts::Bolt::Next")["scopes"][0]["covers"], true);
    EXPECT_EQ(Answer("Parts::Screw::Next")["scopes"][0]["covers"], false);
}

TEST_F(ToolWhyTest, ADocumentThatIsCalledOtherwiseIsFound) {
    MakeParts();
    std::filesystem::rename(Own().Path("Parts.metadata"), Own().Path("Other.metadata"));

    EXPECT_EQ(Answer("Other::Part::Mass")["attribute"]["file"], "own/Other.metadata");
}

TEST_F(ToolWhyTest, ANameMustBeThatOfAnAttribute) {
    ExpectFault(
        "BomItems::BomPart", 1,
        "BomItems::BomPart: error: Class BomItems::BomPart is no attribute: give PACKAGE::CLASS::ATTRIBUTE");
    ExpectFault(
        "BomItems::BomPart::Mas", 1,
        "BomItems::BomPart::Mas: error: Class BomItems::BomPart has no member Mas; did you mean Mass?");
    ExpectFault("BomItems::BomItem::ItemKey", 1,
                "BomItems::BomItem::ItemKey: error: Unique BomItems::BomItem::ItemKey is no attribute: give "
                "PACKAGE::CLASS::ATTRIBUTE");
}

TEST_F(ToolWhyTest, NeedsAName) {
    const ToolRun run = Why({});

    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "zandic: error: NAME is missing (see 'zandic why --help')\n");
}

TEST_F(ToolWhyTest, AnotherRunGivesTheSameBytes) {
    EXPECT_EQ(Why({"BomItems::BomPart::Mass"}).out, Why({"BomItems::BomPart::Mass"}).out);
}

}  // namespace
