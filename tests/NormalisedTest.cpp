// What saving and loading changes in a dump, and that nothing else is taken for it.
#include "Normalised.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Members = std::initializer_list<std::string_view>;

std::string Joined(Members members, std::string_view indentation) {
    std::string text;
    for (const std::string_view member : members) {
        text.append(text.empty() ? "" : ",\n").append(indentation).append(member);
    }
    return text + "\n";
}

/// \returns a dump of one package with these members.
std::string DumpOf(Members members) {
    return "{\n  \"packages\": [\n    {\n" + Joined(members, "      ") + "    }\n  ]\n}\n";
}

/// \returns a member whose value is a list of these entries.
std::string ListOf(std::string_view key, Members entries) {
    return "\"" + std::string(key) + "\": [\n" + Joined(entries, "        ") + "      ]";
}

void ExpectKept(Members members) { EXPECT_EQ(tool::Normalised(DumpOf(members)), DumpOf(members)); }

void ExpectChange(Members from, Members to) { EXPECT_EQ(tool::Normalised(DumpOf(from)), DumpOf(to)); }

TEST(NormalisedTest, AnAliasOfOneCharacterIsNone) {
    ExpectChange({R"("kind": "Class")", R"("alias": "x")"}, {R"("kind": "Class")", R"("alias": null)"});
    ExpectChange({R"("name": "Enumerator")", R"("alias": " ")"},
                 {R"("name": "Enumerator")", R"("alias": null)"});
    ExpectChange({R"("alias": "é")"}, {R"("alias": null)"});
    ExpectChange({R"("alias": "\"")"}, {R"("alias": null)"});
    ExpectChange({R"("alias": "\u0001")"}, {R"("alias": null)"});
}

TEST(NormalisedTest, AnAliasOfTwoCharactersStays) {
    ExpectKept({R"("kind": "Class")", R"("alias": "xy")"});
    ExpectKept({R"("alias": "éé")"});
    ExpectKept({R"("alias": "\"\\")"});
    ExpectKept({R"("alias": "\u0001.")"});
    ExpectKept({R"("alias": null)"});
}

TEST(NormalisedTest, AnAliasOfACategoryStays) {
    ExpectKept({R"("kind": "Category")", R"("alias": "x")"});
    ExpectChange({R"("kind": "Category")", R"("expositionLevel": "x")"},
                 {R"("kind": "Category")", R"("expositionLevel": null)"});
}

TEST(NormalisedTest, AnExpositionLevelOfOneCharacterIsNone) {
    ExpectChange({R"("expositionLevel": "P")"}, {R"("expositionLevel": null)"});
    ExpectKept({R"("expositionLevel": "Pr")"});
}

TEST(NormalisedTest, AnApplicationNameOfOneCharacterIsNone) {
    ExpectChange({R"("applicationName": "A")"}, {R"("applicationName": null)"});
    ExpectKept({R"("applicationName": "App")"});
}

TEST(NormalisedTest, OtherTextsOfOneCharacterStay) {
    ExpectKept({R"("name": "x")", R"("default": "0")", R"("magnitude": "m")", R"("dbFormat": "f")",
                R"("lateType": "L")", R"("group": "g")", R"("validityRule": "v")", R"("type": "t")"});
}

TEST(NormalisedTest, ALengthBelowOneIsNone) {
    for (const std::string_view kind : {R"("kind": "Simple")", R"("kind": "Relationship")"}) {
        ExpectChange({kind, R"("maxLength": 0)", R"("primitive": "String")"},
                     {kind, R"("maxLength": -1)", R"("primitive": "String")"});
        ExpectChange({kind, R"("maxLength": -7)", R"("primitive": "Binary")"},
                     {kind, R"("maxLength": -1)", R"("primitive": "Binary")"});
        ExpectKept({kind, R"("maxLength": 1)", R"("primitive": "String")"});
    }
}

TEST(NormalisedTest, OnlyStringAndBinarySimplesHaveALength) {
    for (const std::string_view primitive : {R"("primitive": "Integer")", R"("primitive": "URL")",
                                             R"("primitive": "Date")", R"("primitive": null)"}) {
        ExpectChange({R"("kind": "Simple")", R"("maxLength": 8)", primitive},
                     {R"("kind": "Simple")", R"("maxLength": -1)", primitive});
    }
    ExpectKept({R"("kind": "Simple")", R"("maxLength": 8)", R"("primitive": "String")"});
    ExpectKept({R"("kind": "Simple")", R"("maxLength": 8)", R"("primitive": "Binary")"});
}

TEST(NormalisedTest, OnlyStringBinaryAndUrlRelationsHaveALength) {
    for (const std::string_view kind : {R"("kind": "Relationship")", R"("kind": "Inverse")"}) {
        for (const std::string_view primitive : {R"("primitive": "Integer")", R"("primitive": null)"}) {
            ExpectChange({kind, R"("maxLength": 8)", R"("target": "P::C")", primitive},
                         {kind, R"("maxLength": -1)", R"("target": "P::C")", primitive});
        }
        ExpectKept({kind, R"("maxLength": 8)", R"("primitive": "String")"});
        ExpectKept({kind, R"("maxLength": 8)", R"("primitive": "Binary")"});
        ExpectKept({kind, R"("maxLength": 8)", R"("primitive": "URL")"});
    }
}

TEST(NormalisedTest, AnInverseHasNoScope) {
    ExpectChange({R"("kind": "Inverse")", R"("scope": "Vault")"},
                 {R"("kind": "Inverse")", R"("scope": null)"});
    ExpectKept({R"("kind": "Relationship")", R"("scope": "Vault")"});
}

TEST(NormalisedTest, OnlyStringsHaveACaseMode) {
    ExpectChange({R"("kind": "Simple")", R"("primitive": "Binary")", R"("caseMode": "Upper")"},
                 {R"("kind": "Simple")", R"("primitive": "Binary")", R"("caseMode": "Mixed")"});
    ExpectChange({R"("kind": "Simple")", R"("primitive": null)", R"("caseMode": "Lower")"},
                 {R"("kind": "Simple")", R"("primitive": null)", R"("caseMode": "Mixed")"});
    ExpectKept({R"("kind": "Simple")", R"("primitive": "String")", R"("caseMode": "Upper")"});
    ExpectKept({R"("kind": "Simple")", R"("primitive": "String")", R"("caseMode": null)"});
}

TEST(NormalisedTest, OneValueHasNoBounds) {
    const std::string_view kind = R"("kind": "Inverse")";
    ExpectChange(
        {kind, R"("multiValuated": false)", R"("lower": 0)", R"("upper": 4)", R"("collectionType": "Set")"},
        {kind, R"("multiValuated": false)", R"("lower": null)", R"("upper": null)",
         R"("collectionType": null)"});
    ExpectKept(
        {kind, R"("multiValuated": true)", R"("lower": 0)", R"("upper": 4)", R"("collectionType": "Set")"});
}

TEST(NormalisedTest, OtherValuesOfAnAttributeStay) {
    ExpectKept({R"("kind": "Inverse")", R"("accessMode": "Read")", R"("aggregation": "Shared")",
                R"("updateFacet": null)", R"("injective": true)", R"("mandatory": false)"});
}

TEST(NormalisedTest, WhatIsNoAttributeHasNoRules) {
    ExpectKept({R"("kind": "In")", R"("maxLength": 0)", R"("primitive": null)", R"("scope": "Vault")",
                R"("caseMode": "Upper")", R"("multiValuated": false)", R"("lower": 3)"});
}

TEST(NormalisedTest, FreeAttributesStay) {
    const std::string free = "\"other\": {\n" +
                             Joined({R"("alias": "x")", R"("maxLength": "0")", R"("a\"b, c": "d,")",
                                     R"("name": "{")", R"("key\\": "]")"},
                                    "        ") +
                             "      }";
    ExpectKept({R"("name": "P")", free});
    ExpectKept({free, R"("name": "P")", R"("other": {})"});
}

TEST(NormalisedTest, ListsWithoutOrderAreSorted) {
    for (const std::string_view key : {"subclasses", "invertedBy", "injectivesPointingOnMe"}) {
        ExpectChange({ListOf(key, {R"("P::B")", R"("P::A")", R"("P::C")"})},
                     {ListOf(key, {R"("P::A")", R"("P::B")", R"("P::C")"})});
        ExpectKept({ListOf(key, {R"("P::A")"}), "\"" + std::string(key) + "\": []"});
    }
}

TEST(NormalisedTest, OrderedListsStay) {
    for (const std::string_view key : {"uses", "scopes", "categories", "attributes", "allAttributes",
                                       "enumerators", "uniques", "allBlocks"}) {
        ExpectKept({ListOf(key, {R"("P::B")", R"("P::A")"})});
    }
}

TEST(NormalisedTest, PackagesAreSortedByName) {
    const auto package = [](std::string_view name) {
        return "    {\n      \"name\": \"" + std::string(name) + "\",\n      \"elements\": [\n        {\n" +
               "          \"name\": \"A" + std::string(name) + "\"\n        }\n      ]\n    }";
    };
    const auto dump = [](const std::vector<std::string>& packages) {
        std::string text = "{\n  \"packages\": [\n";
        for (const std::string& each : packages) text += each + (&each == &packages.back() ? "\n" : ",\n");
        return text + "  ]\n}\n";
    };

    EXPECT_EQ(tool::Normalised(dump({package("Q"), package("R"), package("P")})),
              dump({package("P"), package("Q"), package("R")}));
}

TEST(NormalisedTest, AnEmptyDumpStays) {
    EXPECT_EQ(tool::Normalised("{\n  \"packages\": []\n}\n"), "{\n  \"packages\": []\n}\n");
}

TEST(NormalisedTest, OfTheSampleOnlyTheOrderOfListsChanges) {
    std::ifstream file(ZANDIC_TEST_DATA "/expected/tool/dump-sample.json", std::ios::binary);
    const std::string dump{std::istreambuf_iterator<char>(file), {}};
    const auto sortedLines = [](const std::string& text) {
        std::vector<std::string> lines;
        for (std::size_t begin = 0, end = 0; (end = text.find('\n', begin)) != text.npos; begin = end + 1) {
            lines.push_back(text.substr(begin, end - begin));
            if (lines.back().ends_with(',')) lines.back().pop_back();
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    ASSERT_GT(dump.size(), 10000U);

    const std::string normalised = tool::Normalised(dump);

    EXPECT_NE(normalised, dump);
    EXPECT_EQ(normalised.size(), dump.size());
    EXPECT_EQ(sortedLines(normalised), sortedLines(dump));
    EXPECT_EQ(tool::Normalised(normalised), normalised);
}

TEST(NormalisedTest, NoNestIsTooDeep) {
    constexpr int kDepth = 100'000;
    std::string dump;
    for (int level = 0; level < kDepth; ++level) dump += "{\n\"alias\": \"x\",\n\"components\": [\n";
    for (int level = 0; level < kDepth; ++level) dump += "]\n}\n";

    const std::string normalised = tool::Normalised(dump);

    EXPECT_EQ(normalised.find("\"x\""), normalised.npos);
    EXPECT_EQ(normalised.size(), dump.size() + kDepth);
}

}  // namespace
