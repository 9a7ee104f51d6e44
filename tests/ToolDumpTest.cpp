// `zandic dump --json`: the whole model as JSON, byte for byte.
#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using Json = nlohmann::ordered_json;
using Names = std::vector<std::string>;

/// \returns a UUID of the documents made here, from its number.
std::string TestUuidText(int number) {
    char text[36];
    std::snprintf(text, sizeof text, "00000000-0000-0000-%016X", static_cast<unsigned>(number));
    return text;
}

class ToolDumpTest : public ToolTest {
protected:
    Json DumpOwn(const std::string& name) const {
        const ToolRun run = OnOwn({"--quiet", "dump", "--json", name});
        EXPECT_EQ(run.status, 0) << run.err;
        return Json::parse(run.out);
    }

    static Names KeysOf(const Json& object) {
        Names keys;
        for (const auto& [key, value] : object.items()) keys.push_back(key);
        return keys;
    }

    static const Json& Named(const Json& list, const std::string& name) {
        for (const Json& each : list) {
            if (each["name"] == name) return each;
        }
        throw std::out_of_range(name);
    }
};

TEST_F(ToolDumpTest, TheWholeSample) {
    const ToolRun run = OnSample({"--quiet", "dump", "--json", "BomWorkshop", "BomEffectivity"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("dump-sample.json"));
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolDumpTest, ExtensionsInterfacesAndMappings) {
    const ToolRun run = OnSample({"--quiet", "dump", "--json", "BomServices", "BomStorageMap.rbomap"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, ExpectedOutput("dump-services.json"));
    EXPECT_EQ(Json::parse(run.out).dump(2) + "\n", run.out);
    EXPECT_EQ(run.err, "");
}

TEST_F(ToolDumpTest, EachOfTheOtherKindsHasItsKeysInOrder) {
    const Names element{"kind",       "name",       "uuid", "alias", "expositionLevel",
                        "visibility", "categories", "other"};
    const auto with = [&element](const Names& own) {
        Names keys = element;
        keys.insert(keys.end(), own.begin(), own.end());
        return keys;
    };
    const Json packages = Json::parse(
        OnSample({"--quiet", "dump", "--json", "BomServices", "BomStorageMap.rbomap"}).out)["packages"];
    const Json& services = Named(packages, "BomServices")["elements"];
    const Json& method = Named(services, "BomQuery")["methods"][0];
    const Json& mapping = Named(Named(packages, "BomStorageMap")["elements"], "ItemMapping");
    const Json& component = mapping["roots"][0]["components"][0];

    EXPECT_EQ(KeysOf(Named(services, "BomExportData")),
              with({"super", "reference", "subclasses", "abstract", "persistent", "extensible",
                    "kvaDerivable", "lateType", "applicationName", "attributes", "allAttributes", "uniques",
                    "injectivesPointingOnMe", "scopes", "blocks", "allBlocks"}));
    EXPECT_EQ(KeysOf(Named(services, "BomQuery")), with({"super", "subclasses", "methods"}));
    EXPECT_EQ(KeysOf(method), (Names{"name", "uuid", "alias", "other", "parameters"}));
    EXPECT_EQ(KeysOf(method["parameters"][0]),
              (Names{"name", "uuid", "alias", "primitive", "type", "kind", "default", "other"}));
    EXPECT_EQ(KeysOf(Named(Named(packages, "BomStorage")["elements"], "ItemTable")), element);
    EXPECT_EQ(KeysOf(mapping), with({"appliesTo", "appliesToName", "roots"}));
    EXPECT_EQ(KeysOf(mapping["roots"][0]),
              (Names{"name", "uuid", "alias", "baseClass", "baseClassName", "other", "components"}));
    EXPECT_EQ(KeysOf(component), (Names{"name", "uuid", "alias", "baseClass", "baseClassName", "other",
                                        "components", "validityRule", "path"}));
    EXPECT_EQ(KeysOf(component["path"]),
              (Names{"name", "uuid", "alias", "type", "subType", "targetName", "target", "other"}));
}

TEST_F(ToolDumpTest, NamesRunThroughAllOwners) {
    MakePackage("Map", R"(Uuid="00000000-0000-0000-0000000000000001")",
                R"(<RBOClass Name="Table" Uuid="00000000-0000-0000-0000000000000002"/>
                   <RBOMapping Name="M" Uuid="00000000-0000-0000-0000000000000003"
                               ApplyToRBOClassRef="00000000-0000-0000-0000000000000002">
                     <RBORoot Name="R" Uuid="00000000-0000-0000-0000000000000004">
                       <RBOComponent Name="A" Uuid="00000000-0000-0000-0000000000000005">
                         <RBOComponent Name="B" Uuid="00000000-0000-0000-0000000000000006">
                           <RBOPathExpression Name="P" Uuid="00000000-0000-0000-0000000000000007"
                                              TargetRef="00000000-0000-0000-0000000000000006"/>
                         </RBOComponent>
                       </RBOComponent>
                     </RBORoot>
                   </RBOMapping>)");

    const Json component = DumpOwn("Map")["packages"][0]["elements"][1]["roots"][0]["components"][0];

    EXPECT_EQ(component["path"], nullptr);
    EXPECT_EQ(component["components"][0]["path"]["target"], "Map::M::R::A::B");
}

TEST_F(ToolDumpTest, ChangesNothing) {
    const Json packages = Json::parse(OnSample({"--quiet", "dump", "--json", "BomItems"}).out)["packages"];
    const Json& part = Named(Named(packages, "BomItems")["elements"], "BomPart");

    EXPECT_EQ(part["blocks"].size(), 2U) << "no default block";
    EXPECT_EQ(part["allBlocks"].size(), 3U);
}

TEST_F(ToolDumpTest, AChainOfSuperClassesIsWrittenToItsEnd) {
    constexpr int kLength = 100'000;
    std::string classes = "<Class Name=\"C0\" Uuid=\"" + TestUuidText(1) + "\" Persistent=\"Yes\"/>";
    for (int index = 1; index < kLength; ++index) {
        classes += "<Class Name=\"C" + std::to_string(index) + "\" Uuid=\"" + TestUuidText(index + 1) +
                   "\" SuperRef=\"" + TestUuidText(index) + "\" Persistent=\"Yes\"/>";
    }
    MakePackage("Chain", "Uuid=\"" + TestUuidText(kLength + 1) + "\"", classes);

    const ToolRun run = OnOwn({"--quiet", "dump", "--json", "Chain"});

    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\"super\": \"Chain::C99998\""), run.out.npos);
}

TEST_F(ToolDumpTest, ADeepNestOfComponentsIsWrittenToItsEnd) {
    constexpr int kDepth = 100'000;
    std::string nest = "<RBOClass Name=\"T\" Uuid=\"" + TestUuidText(1) +
                       "\"/><RBOMapping Name=\"M\" Uuid=\"" + TestUuidText(2) + "\" ApplyToRBOClassRef=\"" +
                       TestUuidText(1) + "\"><RBORoot Name=\"R\" Uuid=\"" + TestUuidText(3) + "\">";
    for (int level = 0; level < kDepth; ++level) {
        nest += "<RBOComponent Name=\"L" + std::to_string(level) + "\" Uuid=\"" + TestUuidText(level + 10) +
                "\">";
    }
    for (int level = 0; level < kDepth; ++level) nest += "</RBOComponent>";
    MakePackage("Nest", "Uuid=\"" + TestUuidText(4) + "\"", nest + "</RBORoot></RBOMapping>");

    const ToolRun run = OnOwn({"--quiet", "dump", "--json", "Nest"});

    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.out.find("\"name\": \"L99999\""), run.out.npos);
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '{'),
              std::count(run.out.begin(), run.out.end(), '}'));
}

TEST_F(ToolDumpTest, IsWrittenAsALibraryWouldWriteIt) {
    const std::string out = OnSample({"--quiet", "dump", "--json", "BomWorkshop", "BomEffectivity"}).out;

    EXPECT_EQ(Json::parse(out).dump(2) + "\n", out);
}

TEST_F(ToolDumpTest, DoesNotDependOnTheOrderOfTheNames) {
    const auto dump = [this](const std::string& first, const std::string& second) {
        return Json::parse(OnSample({"--quiet", "dump", "--json", first, second}).out)["packages"];
    };

    const Json one = dump("BomDocuments", "BomWorkshop");
    const Json other = dump("BomWorkshop", "BomDocuments");

    EXPECT_EQ(one, other);
    EXPECT_EQ(one.back()["domain"], "DUVRA");
}

TEST_F(ToolDumpTest, TheSameModelGivesTheSameBytes) {
    EXPECT_EQ(OnSample({"--quiet", "dump", "--json", "BomEffectivity"}).out,
              OnSample({"--quiet", "dump", "--json", "BomEffectivity"}).out);
}

TEST_F(ToolDumpTest, EachKindHasItsKeysInOrder) {
    const Json packages = Json::parse(OnSample({"--quiet", "dump", "--json", "BomItems"}).out)["packages"];
    const Json& package = Named(packages, "BomItems");
    const Json& item = Named(package["elements"], "BomItem");

    EXPECT_EQ(KeysOf(package), (Names{"name", "uuid", "domain", "alias", "expositionLevel", "uses", "scopes",
                                      "other", "elements"}));
    EXPECT_EQ(KeysOf(Named(package["elements"], "BomLogistics")),
              (Names{"kind", "name", "uuid", "alias", "expositionLevel", "visibility", "categories", "other",
                     "group"}));
    EXPECT_EQ(KeysOf(item), (Names{"kind",
                                   "name",
                                   "uuid",
                                   "alias",
                                   "expositionLevel",
                                   "visibility",
                                   "categories",
                                   "other",
                                   "super",
                                   "reference",
                                   "subclasses",
                                   "abstract",
                                   "persistent",
                                   "extensible",
                                   "kvaDerivable",
                                   "lateType",
                                   "applicationName",
                                   "attributes",
                                   "allAttributes",
                                   "uniques",
                                   "injectivesPointingOnMe",
                                   "blocks",
                                   "allBlocks"}));
    EXPECT_EQ(KeysOf(item["blocks"][0]), (Names{"name", "uuid", "father", "root", "attributes"}));
    EXPECT_EQ(
        KeysOf(Named(item["attributes"], "ItemNumber")),
        (Names{"kind",        "name",      "uuid",          "alias",    "expositionLevel", "visibility",
               "accessMode",  "mandatory", "multiValuated", "lower",    "upper",           "collectionType",
               "maxLength",   "sensitive", "updateFacet",   "default",  "categories",      "other",
               "specializes", "primitive", "enum",          "caseMode", "magnitude",       "dbFormat"}));
    EXPECT_EQ(KeysOf(Named(item["attributes"], "Responsible")),
              (Names{"kind",       "name",           "uuid",      "alias",         "expositionLevel",
                     "visibility", "accessMode",     "mandatory", "multiValuated", "lower",
                     "upper",      "collectionType", "maxLength", "sensitive",     "updateFacet",
                     "default",    "categories",     "other",     "specializes",   "target",
                     "primitive",  "aggregation",    "injective", "scope",         "scopes",
                     "invertedBy"}));
    EXPECT_EQ(KeysOf(Named(item["attributes"], "UsedIn")),
              (Names{"kind",       "name",           "uuid",      "alias",         "expositionLevel",
                     "visibility", "accessMode",     "mandatory", "multiValuated", "lower",
                     "upper",      "collectionType", "maxLength", "sensitive",     "updateFacet",
                     "default",    "categories",     "other",     "specializes",   "target",
                     "primitive",  "aggregation",    "injective", "scope",         "inverseOf"}));
    EXPECT_EQ(KeysOf(item["uniques"][0]), (Names{"name", "uuid", "alias", "attributes", "other"}));
    EXPECT_EQ(KeysOf(Named(package["elements"], "BomPartSource")),
              (Names{"kind", "name", "uuid", "alias", "expositionLevel", "visibility", "categories", "other",
                     "enumerators"}));
    EXPECT_EQ(KeysOf(Named(package["elements"], "BomPartSource")["enumerators"][0]),
              (Names{"name", "uuid", "alias", "value", "other"}));
}

TEST_F(ToolDumpTest, WhatAClassInheritsIsNull) {
    const Json packages = Json::parse(OnSample({"--quiet", "dump", "--json", "BomItems"}).out)["packages"];
    const Json& elements = Named(packages, "BomItems")["elements"];

    EXPECT_EQ(Named(elements, "BomItem")["extensible"], true);
    EXPECT_EQ(Named(elements, "BomItem")["kvaDerivable"], "Multiple");
    EXPECT_EQ(Named(elements, "BomPart")["extensible"], nullptr);
    EXPECT_EQ(Named(elements, "BomPart")["kvaDerivable"], nullptr);
    EXPECT_EQ(Named(elements, "BomPhysicalPart")["kvaDerivable"], "No");
}

TEST_F(ToolDumpTest, ValuesWithoutAWordAreNull) {
    MakePackage(
        "Words", R"(Uuid="00000000-0000-0000-0000000000000001")",
        R"(<Class Name="Part" Uuid="00000000-0000-0000-0000000000000002" Persistent="Yes" Extensible="No">
                     <Simple Name="Plain" Uuid="00000000-0000-0000-0000000000000003"/>
                     <Simple Name="Open" Uuid="00000000-0000-0000-0000000000000004" Type="Text" AccessMode="?"/>
                     <Relationship Name="Any" Uuid="00000000-0000-0000-0000000000000005" TargetRef="AnyObject"/>
                     <Relationship Name="File" Uuid="00000000-0000-0000-0000000000000006" Scope="Vault" Type="URL"/>
                     <Relationship Name="None" Uuid="00000000-0000-0000-0000000000000007" Scope="?"/>
                   </Class>)");

    const Json package = DumpOwn("Words")["packages"][0];
    const Json& part = package["elements"][0];
    const Json& attributes = part["attributes"];

    EXPECT_EQ(package["alias"], nullptr);
    EXPECT_EQ(package["uses"], Json::array());
    EXPECT_EQ(part["extensible"], false);
    EXPECT_EQ(attributes[0]["primitive"], nullptr);
    EXPECT_EQ(attributes[0]["enum"], nullptr);
    EXPECT_EQ(attributes[0]["maxLength"], -1);
    EXPECT_EQ(attributes[0]["lower"], nullptr);
    EXPECT_EQ(attributes[0]["collectionType"], nullptr);
    EXPECT_EQ(attributes[1]["accessMode"], "ReadWrite");
    EXPECT_EQ(attributes[1]["other"], (Json{{"Type", "Text"}}));
    EXPECT_EQ(attributes[2]["target"], "AnyObject");
    EXPECT_EQ(attributes[2]["primitive"], nullptr);
    EXPECT_EQ(attributes[3]["target"], nullptr);
    EXPECT_EQ(attributes[3]["primitive"], "URL");
    EXPECT_EQ(attributes[3]["scope"], "Vault");
    EXPECT_EQ(attributes[4]["target"], nullptr);
    EXPECT_EQ(attributes[4]["primitive"], nullptr);
    EXPECT_EQ(attributes[4]["scope"], nullptr);
}

TEST_F(ToolDumpTest, FreeAttributesStayAsTheyAre) {
    MakePackage("Free",
                R"(Uuid="00000000-0000-0000-0000000000000001" Zeta="1" Alpha="" Quote="a&quot;\&#9;é")", "");

    const ToolRun run = OnOwn({"--quiet", "dump", "--json", "Free"});

    EXPECT_NE(run.out.find("      \"other\": {\n"
                           "        \"Zeta\": \"1\",\n"
                           "        \"Alpha\": \"\",\n"
                           "        \"Quote\": \"a\\\"\\\\\\té\"\n"
                           "      },\n"
                           "      \"elements\": []\n"),
              run.out.npos)
        << run.out;
    EXPECT_EQ(Json::parse(run.out).dump(2) + "\n", run.out);
}

TEST_F(ToolDumpTest, RedefinitionsAreKnownWhoeverWasAskedBefore) {
    const Json packages =
        Json::parse(OnSample({"--quiet", "dump", "--json", "BomEffectivity"}).out)["packages"];
    const Json& usage = Named(Named(packages, "BomEffectivity")["elements"], "BomEffectiveUsage");

    EXPECT_EQ(Named(usage["attributes"], "Component")["specializes"], "BomItems::BomUsage::Component");
    EXPECT_EQ(Named(usage["attributes"], "Effectivities")["specializes"], nullptr);
}

TEST_F(ToolDumpTest, APackageThatIsRefusedLeavesNoData) {
    const ToolRun run = OnSample({"--quiet", "dump", "--json", "BomNothing"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
}

TEST_F(ToolDumpTest, TheOthersAreDumpedBesideARefusal) {
    const ToolRun run = OnSample({"--quiet", "dump", "--json", "BomNothing", "BomPeople"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(Json::parse(run.out)["packages"].size(), 1U);
}

}  // namespace
