// The rules about what a load accepts, on the documents of tests/data/rules: beside each stands what is found
// in it, and that is all.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>

#include "RulesFixture.h"

namespace {

const std::string kData = ZANDIC_TEST_DATA;
const std::string kRules = kData + "/rules";

std::vector<std::string> Documents() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kRules)) {
        if (entry.path().extension() == ".metadata") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string TextOfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What stands in a file from a place on, and the character before it; counted by characters.
struct Spot {
    char before = '\n';
    std::string text;
};

Spot SpotAt(const tool::FilePlace& at) {
    std::istringstream lines(TextOfFile(at.file));
    std::string line;
    for (int number = 0; number < at.place.line; ++number) std::getline(lines, line);
    std::size_t byte = 0;
    for (int column = 1; column < at.place.column; ++column) {
        for (++byte; byte < line.size() && (line[byte] & 0xC0) == 0x80;) ++byte;
    }
    return {byte == 0 ? '\n' : line[byte - 1], line.substr(std::min(byte, line.size()))};
}

bool IsAtTagOrAttribute(const tool::FilePlace& at) {
    const Spot spot = SpotAt(at);
    if (spot.text.starts_with('<')) return true;
    return std::isspace(static_cast<unsigned char>(spot.before)) != 0 &&
           std::isalpha(static_cast<unsigned char>(spot.text[0])) != 0 &&
           spot.text.find('=') != std::string::npos;
}

class DocumentRulesTest : public RulesFixture, public ::testing::WithParamInterface<std::string> {
protected:
    tool::Findings CheckIt() { return Check(GetParam(), kRules + ":" + kRules + "/used"); }
};

TEST_P(DocumentRulesTest, FindsWhatStandsBesideIt) {
    EXPECT_EQ(TextOf(CheckIt()), TextOfFile(kRules + "/" + GetParam() + ".findings"));
}

TEST_P(DocumentRulesTest, EachPlaceIsATagOrAnAttribute) {
    for (const tool::Finding& finding : CheckIt()) {
        EXPECT_TRUE(IsAtTagOrAttribute(finding.at)) << TextOf({finding});
        for (const tool::FindingNote& note : finding.notes) {
            EXPECT_TRUE(IsAtTagOrAttribute(note.at)) << TextOf({finding});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, DocumentRulesTest, ::testing::ValuesIn(Documents()),
                         [](const auto& name) { return name.param; });

class RulesTest : public RulesFixture {};

TEST_F(RulesTest, AnElementIsNamedFromItsPackageOn) {
    MakeParts(ClassTag("Part", 1, "", "<Simple" + Id("Label", 2) + "/>"));

    const tool::Findings findings = CheckParts();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().element, "Parts::Part::Label");
    EXPECT_EQ(findings.front().severity, ZanDicSeverity::Warning);
}

TEST_F(RulesTest, AReferenceIntoADocumentThatDoesNotLoadIsKnownAllTheSame) {
    Make("Base.metadata", "<Package" + Id("Base", 0xB) + ">" + ClassTag("Item", 1) + "<Command" +
                              Id("Do", 2) + "/></Package>");
    MakeParts(ClassTag("Part", 3, "SuperName=\"Thing\" SuperRef=\"" + U(1) + "\""), "UseNames=\"Base\"");

    const tool::Findings findings = CheckParts();

    EXPECT_FALSE(IsLoaded("Parts"));
    EXPECT_EQ(
        TextOf(findings),
        "Parts.metadata:2:80: name-disagrees: SuperName of \"Part\" says \"Thing\", but SuperRef is Class "
        "\"Item\"\n"
        "  Base.metadata:1:65: Class Base::Item is here\n");
}

TEST_F(RulesTest, WhatIsMissingGivesNoFindingOfItsOwn) {
    MakeParts(ClassTag("Part", 3, "SuperName=\"Thing\" SuperRef=\"" + U(1) + "\""), "UseNames=\"Base\"");

    EXPECT_EQ(TextOf(CheckParts()), "");
}

TEST_F(RulesTest, APackageInASubordinateTagIsFound) {
    Make("Parts.metadata", "<Documents>\n<Package" + Id("Parts", 0xF) + ">\n" +
                               ClassTag("Part", 1, "Visibility=\"Hidden\"") + "</Package></Documents>");

    EXPECT_EQ(PlacesOf(CheckParts()), std::vector<std::string>{"unknown-word 3:80"});
}

TEST_F(RulesTest, APackageWithoutNameIsCalledAsItsFile) {
    Make("Parts.metadata", "<Package Uuid=\"" + U(0xF) + "\">" +
                               ClassTag("Part", 1, "", "<Simple" + Id("Label", 2) + "/>") + "</Package>");

    const tool::Findings findings = CheckParts();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().element, "Parts::Part::Label");
}

TEST_F(RulesTest, ADeepNestAndALongChainAreWalkedWithoutCalls) {
    constexpr unsigned kDepth = 20'000;
    std::string body = "<RBOClass" + Id("Table", 1) + "/><RBOMapping" + Id("Mapping", 2) +
                       " ApplyToRBOClassRef=\"" + U(1) + "\"><RBORoot" + Id("Root", 3) + ">";
    for (unsigned depth = 0; depth < kDepth; ++depth) body += "<RBOComponent" + Id("C", 10 + depth) + ">";
    for (unsigned depth = 0; depth < kDepth; ++depth) body += "</RBOComponent>";
    body += "</RBORoot></RBOMapping>\n";
    for (unsigned depth = 0; depth < kDepth; ++depth) {
        const unsigned number = 100'000 + depth;
        const std::string super = depth > 0 ? "SuperRef=\"" + U(number - 1) + "\"" : "";
        body += ClassTag("K" + std::to_string(depth), number, super,
                         "<Relationship" + Id("R" + std::to_string(depth), 200'000 + depth) +
                             " Mandatory=\"Yes\" TargetRef=\"" + U(number + (depth + 1 < kDepth ? 1 : 0)) +
                             "\"/>");
    }
    MakeParts(body);

    const tool::Findings findings = CheckParts();

    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "mandatory-cycle");
}

TEST_F(RulesTest, TheSampleHasTwoNamesThatExpressReserves) {
    std::string text;
    for (const char* const package : {"BomDocuments", "BomEffectivity", "BomItems", "BomPeople",
                                      "BomServices", "BomStorage", "BomStorageMap", "BomWorkshop"}) {
        text += TextOf(Check(package, ZANDIC_SAMPLES));
    }

    EXPECT_EQ(text,
              "BomDocuments.metadata:15:13: reserved-in-express: \"Number\" is a reserved word of EXPRESS\n"
              "BomItems.metadata:37:14: reserved-in-express: \"UsedIn\" is a reserved word of EXPRESS\n");
}

}  // namespace
