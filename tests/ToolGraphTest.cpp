// `zandic graph`: class diagrams as text, and the pictures that the documentation shows.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using nlohmann::json;

std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

long Count(const std::string& text, std::string_view piece) {
    long count = 0;
    for (std::size_t at = 0; (at = text.find(piece, at)) != text.npos; at += piece.size()) ++count;
    return count;
}

/// What an SVG says, whatever its layout: the contents of its titles and texts.
std::vector<std::string> Said(const std::string& svg) {
    std::vector<std::string> said;
    for (std::size_t at = 0; (at = svg.find_first_of('<', at)) != svg.npos; ++at) {
        const bool says = svg.compare(at, 7, "<title>") == 0 || svg.compare(at, 5, "<text") == 0;
        if (!says) continue;
        const std::size_t begin = svg.find('>', at) + 1;
        said.push_back(svg.substr(begin, svg.find('<', begin) - begin));
    }
    std::sort(said.begin(), said.end());
    return said;
}

std::string Number(int number) {
    const std::string digits = std::to_string(number);
    return std::string(16 - digits.size(), '0') + digits;
}

class ToolGraphTest : public ToolTest {
protected:
    ToolRun Graph(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--quiet", "graph"});
        return OnSample(arguments);
    }

    void ExpectPicture(const std::vector<std::string>& arguments, const std::string& file) const {
        const ToolRun run = Graph(arguments);

        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out, ExpectedOutput(file));
    }

    /// \returns the picture as a value.
    json Drawn(std::vector<std::string> arguments) const {
        arguments.emplace_back("--json");
        const ToolRun run = Graph(arguments);
        EXPECT_EQ(run.status, 0);
        return json::parse(run.out);
    }

    static std::vector<std::string> ClassesOf(const json& drawn) {
        std::vector<std::string> names;
        for (const json& each : drawn["classes"]) names.push_back(each["name"]);
        return names;
    }

    void ExpectWrongUse(const std::vector<std::string>& arguments, const std::string& line) const {
        const ToolRun run = Graph(arguments);

        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: error: " + line + " (see 'zandic graph --help')\n");
    }

    void ExpectFault(const std::vector<std::string>& arguments, const std::string& line) const {
        const ToolRun run = Graph(arguments);

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + line + "\n");
    }

    /// A package of \p count classes: each derives from that of half its number, refers to the one before,
    /// and has 40 attributes when its number is even.
    void MakeSchema(int count) const {
        std::string content;
        for (int number = 1; number <= count; ++number) {
            content += "<Class Name=\"C" + std::to_string(number) + "\" Uuid=\"00000001-0000-0000-" +
                       Number(number) + "\" Persistent=\"Yes\"";
            if (number > 1) content += " SuperRef=\"00000001-0000-0000-" + Number(number / 2) + "\"";
            content += ">\n";
            if (number % 2 == 1 && number > 1) {
                content += "<Relationship Name=\"Before" + std::to_string(number) +
                           "\" Uuid=\"00000002-0000-0000-" + Number(number) +
                           "\" TargetRef=\"00000001-0000-0000-" + Number(number - 1) + "\"/>\n";
            }
            for (int attribute = 0; number % 2 == 0 && attribute < 40; ++attribute) {
                content += "<Simple Name=\"A" + std::to_string(number) + "_" + std::to_string(attribute) +
                           "\" Uuid=\"00000003-0000-0000-" + Number(number * 100 + attribute) +
                           "\" Type=\"String\"/>\n";
            }
            content += "</Class>\n";
        }
        MakePackage("Schema", R"(Uuid="00000000-0000-0000-0000000000000001")", content);
    }
};

TEST_F(ToolGraphTest, APackageForGraphviz) {
    ExpectPicture({"BomItems", "--format", "dot"}, "graph-BomItems.dot");
}

TEST_F(ToolGraphTest, APackageForMermaid) {
    ExpectPicture({"BomItems", "--format", "mermaid"}, "graph-BomItems.mmd");
}

TEST_F(ToolGraphTest, APackageAsJson) { ExpectPicture({"BomItems", "--json"}, "graph-BomItems.json"); }

TEST_F(ToolGraphTest, WithoutANameEveryPackageOfThePath) {
    ExpectPicture({"--format", "dot"}, "graph-sample.dot");
}

// Made again by `zandic --quiet --path samples graph BomItems >docs/sample-items.svg`, and without the name
// docs/sample.svg. Where things are in a picture is for each version of Graphviz to say; what it says is not.
TEST_F(ToolGraphTest, ThePicturesOfTheDocumentationSayWhatTheToolDraws) {
    EXPECT_EQ(Said(FileText(ZANDIC_DOCS "/sample-items.svg")), Said(Graph({"BomItems"}).out));
    EXPECT_EQ(Said(FileText(ZANDIC_DOCS "/sample.svg")), Said(Graph({}).out));
    EXPECT_GT(Said(FileText(ZANDIC_DOCS "/sample.svg")).size(), 100U);
    const std::string readme = FileText(ZANDIC_DOCS "/../README.md");
    EXPECT_NE(readme.find("(docs/sample-items.svg)"), readme.npos);
    EXPECT_NE(readme.find("](docs/sample.svg)"), readme.npos);
}

TEST_F(ToolGraphTest, AnSvgIsDrawnByDot) {
    const ToolRun run = Graph({"BomItems"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(run.out.starts_with("<?xml"));
    EXPECT_TRUE(run.out.ends_with("</svg>\n"));
    EXPECT_EQ(Graph({"BomItems", "--format", "svg"}).out, run.out);
}

TEST_F(ToolGraphTest, WhereDotIsMissingItSaysSo) {
    const std::string none = Own().MakeDirectory("none");

    const ToolRun run = Run({"--quiet", "--path", ZANDIC_SAMPLES, "graph", "BomItems"}, {"PATH=" + none});
    const ToolRun other =
        Run({"--quiet", "--path", ZANDIC_SAMPLES, "graph", "BomItems", "--format", "dot"}, {"PATH=" + none});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err,
              "zandic: error: SVG is drawn by 'dot' of Graphviz, which is not installed; --format dot and "
              "--format mermaid do without\n");
    EXPECT_EQ(other.status, 0);
}

TEST_F(ToolGraphTest, WhatDotSaysWhenItFailsIsPassedOn) {
    const std::string there = Own().MakeDirectory("there");
    Own().MakeFile("there/dot", "#!/bin/sh\necho 'no fonts' >&2\nexit 3\n");
    std::filesystem::permissions(there + "/dot", std::filesystem::perms(0755));

    const ToolRun run = Run({"--quiet", "--path", ZANDIC_SAMPLES, "graph", "BomItems"}, {"PATH=" + there});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "zandic: dot: error: no fonts\n");
}

TEST_F(ToolGraphTest, AClassStandsAmongThoseItIsJoinedTo) {
    const json drawn = Drawn({"BomItems::BomPart"});

    EXPECT_EQ(ClassesOf(drawn), (std::vector<std::string>{"BomOrganization", "BomItem", "BomPart",
                                                          "BomAssembly", "BomPhysicalPart"}));
    for (const json& each : drawn["classes"]) {
        EXPECT_EQ(each["byNameOnly"], each["name"] != "BomPart");
        EXPECT_EQ(each["attributes"].empty(), each["name"] != "BomPart");
    }
}

TEST_F(ToolGraphTest, AroundAClassAreThoseWithinSomeSteps) {
    EXPECT_EQ(ClassesOf(Drawn({"BomItems", "--around", "BomRawMaterial"})),
              (std::vector<std::string>{"BomItem", "BomRawMaterial"}));
    EXPECT_EQ(ClassesOf(Drawn({"BomItems", "--around", "BomItems::BomRawMaterial", "--depth", "2"})),
              (std::vector<std::string>{"BomPerson", "BomItem", "BomPart", "BomRawMaterial", "BomUsage",
                                        "BomDocument"}));
    EXPECT_EQ(ClassesOf(Drawn({"BomItems", "--around", "BomRawMaterial", "--depth", "0"})),
              (std::vector<std::string>{"BomRawMaterial"}));
}

TEST_F(ToolGraphTest, NearerClassesComeFirst) {
    EXPECT_EQ(
        ClassesOf(Drawn({"BomItems", "--around", "BomRawMaterial", "--depth", "3", "--max-boxes", "2"})),
        (std::vector<std::string>{"BomItem", "BomRawMaterial"}));
}

TEST_F(ToolGraphTest, ClassesOfOneNameAreToldApartByTheirPackages) {
    for (const char* const package : {"First", "Second"}) {
        const std::string digit = package == std::string("First") ? "1" : "2";
        MakePackage(package, "Uuid=\"00000000-0000-0000-000000000000000" + digit + "\"",
                    "<Class Name=\"Same\" Uuid=\"00000000-0000-0000-000000000000001" + digit +
                        "\" Persistent=\"Yes\"/>\n");
    }

    const ToolRun several = OnOwn({"graph", "--around", "Same", "--format", "dot"});
    const ToolRun drawn = OnOwn({"graph", "--format", "mermaid"});

    EXPECT_EQ(several.status, 1);
    EXPECT_EQ(several.err, "zandic: Same: error: it is one of First::Same, Second::Same\n");
    EXPECT_EQ(drawn.out,
              "classDiagram\n  direction TB\n"
              "  namespace First {\n    class Same\n  }\n"
              "  namespace Second {\n    class Same_2[\"Same\"]\n  }\n");
}

TEST_F(ToolGraphTest, ASchemaOfTwoThousandClassesIsAPictureOfForty) {
    MakeSchema(2000);

    const ToolRun run = OnOwn({"graph", "Schema", "--format", "dot"});
    const ToolRun svg = OnOwn({"graph", "Schema"});

    const std::string left = "left out: 1960 of 2000 classes, 560 attributes in 20 long boxes";
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(Count(run.out, "[label=<<TABLE BORDER=\"1\""), 40);
    EXPECT_EQ(Count(run.out, "<I><FONT COLOR=\"#5f6b76\">and 28 more</FONT></I>"), 20);
    EXPECT_EQ(run.err, "zandic: " + left + "\n");
    EXPECT_EQ(Count(run.out, left), 1);
    EXPECT_EQ(svg.status, 0);
    EXPECT_EQ(Count(svg.out, "class=\"node\""), 40);
    EXPECT_EQ(Count(svg.out, left), 1);
    EXPECT_EQ(svg.err, "zandic: " + left + "\n");
}

TEST_F(ToolGraphTest, HowMuchIsShownIsForTheUserToSay) {
    MakeSchema(30);

    const ToolRun few = OnOwn({"graph", "Schema", "--format", "dot", "--max-boxes", "3", "--max-rows", "2"});
    const ToolRun all = OnOwn({"graph", "Schema", "--format", "dot", "--max-rows", "40"});

    EXPECT_EQ(Count(few.out, "[label=<<TABLE BORDER=\"1\""), 3);
    EXPECT_EQ(Count(all.out, "[label=<<TABLE BORDER=\"1\""), 30);
    EXPECT_EQ(Count(all.out, " more"), 0);
    EXPECT_EQ(all.err, "");
}

TEST_F(ToolGraphTest, RelationshipsOfOneWayShareAnEdge) {
    std::string content;
    for (int number = 1; number <= 7; ++number) {
        content += "<Relationship Name=\"R" + std::to_string(number) + "\" Uuid=\"00000002-0000-0000-" +
                   Number(number) + "\" TargetRef=\"00000001-0000-0000-" + Number(2) + "\"/>\n";
    }
    MakePackage("Ways", R"(Uuid="00000000-0000-0000-0000000000000001")",
                "<Class Name=\"From\" Uuid=\"00000001-0000-0000-" + Number(1) + "\" Persistent=\"Yes\">" +
                    content + "</Class><Class Name=\"To\" Uuid=\"00000001-0000-0000-" + Number(2) +
                    "\" Persistent=\"Yes\"/>");

    const ToolRun run = OnOwn({"graph", "Ways", "--format", "mermaid"});

    EXPECT_EQ(run.err, "zandic: left out: 3 relationships beside others\n");
    EXPECT_EQ(run.out,
              "---\ntitle: \"left out: 3 relationships beside others\"\n---\n"
              "classDiagram\n  direction TB\n  namespace Ways {\n    class From\n    class To\n  }\n"
              "  From --> \"0..1\" To : R1\n  From --> \"0..1\" To : R2\n"
              "  From --> \"0..1\" To : R3\n  From --> \"0..1\" To : R4\n"
              "  From --> To : and 3 more\n");
}

TEST_F(ToolGraphTest, AnyNameCanBeDrawn) {
    MakePackage(
        "Odd", R"(Uuid="00000000-0000-0000-0000000000000001")",
        R"(<Class Name="&lt;a> &amp; &quot;b&quot;\" Uuid="00000001-0000-0000-0000000000000001" Persistent="Yes">
                     <Simple Name="x{y}:z;" Uuid="00000001-0000-0000-0000000000000002" Type="String"/>
                   </Class>)");

    const ToolRun svg = OnOwn({"graph", "Odd"});
    const ToolRun mermaid = OnOwn({"graph", "Odd", "--format", "mermaid"});

    EXPECT_EQ(svg.status, 0);
    EXPECT_EQ(svg.err, "");
    EXPECT_NE(svg.out.find("&lt;a&gt; &amp; &quot;b&quot;\\"), svg.out.npos);
    EXPECT_NE(svg.out.find("x{y}:z;"), svg.out.npos);
    EXPECT_EQ(mermaid.out,
              "classDiagram\n  direction TB\n  namespace Odd {\n"
              "    class _a_____b__[\"#60;a#62; #38; #34;b#34;#92;\"] {\n"
              "      x#123;y#125;#58;z#59; String 0..1\n    }\n  }\n");
}

TEST_F(ToolGraphTest, WhatHasNoClassesIsNotDrawn) {
    ExpectFault({"BomStorage.rbodef"}, "BomStorage.rbodef: error: the package has no classes to draw");
    ExpectFault(
        {"BomItems::BomPartSource"},
        "BomItems::BomPartSource: error: Enum BomItems::BomPartSource is no class and cannot be drawn");
    ExpectFault({"BomItems", "--around", "BomPrat"},
                "BomPrat: error: no loaded package has such a class; did you mean BomPart or BomParty?");
    ExpectFault({"BomItems", "--around", "BomItems::BomPartSource"},
                "BomItems::BomPartSource: error: this is no class");
}

TEST_F(ToolGraphTest, WrongUse) {
    ExpectWrongUse({"BomItems", "--format", "png"}, "--format cannot be 'png': it is one of svg|dot|mermaid");
    ExpectWrongUse({"BomItems", "--json", "--format", "dot"}, "--json and --format exclude each other");
    ExpectWrongUse({"BomItems", "--depth", "2"}, "--depth needs --around");
    ExpectWrongUse({"BomItems", "--max-boxes", "0"}, "--max-boxes cannot be '0'");
    ExpectWrongUse({"BomItems", "--max-rows", "-1"}, "--max-rows cannot be '-1'");
}

TEST_F(ToolGraphTest, AnotherRunGivesTheSameBytes) { EXPECT_EQ(Graph({}).out, Graph({}).out); }

}  // namespace
