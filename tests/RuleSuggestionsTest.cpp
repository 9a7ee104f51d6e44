// What is offered for words that the documents do not know.
#include "RuleSuggestions.h"

#include <gtest/gtest.h>

#include "ReaderFixture.h"

namespace {

using namespace ZANDicFormat;

TEST(RuleSuggestionsTest, AnAttributeIsLookedForAmongThoseOfItsTag) {
    EXPECT_EQ(tool::SuggestAttribute(*FindTag(kTags, tag::kRelationship), "Mandatry"),
              "; did you mean Mandatory?");
    EXPECT_EQ(tool::SuggestAttribute(*FindTag(kTags, tag::kCategory), "Mandatry"), "");
}

TEST(RuleSuggestionsTest, WithoutANearWordAllAreTold) {
    const AttributeRow& visibility = *FindAttribute(*FindTag(kTags, tag::kClass), word::kVisibility);

    EXPECT_EQ(tool::SuggestWord(visibility, "Privat"), "; did you mean Private?");
    EXPECT_EQ(tool::SuggestWord(visibility, "Hidden"), "; its words are Public, Protected and Private");
    EXPECT_EQ(tool::SuggestWord(row::kMandatory, "true"), "; its words are Yes and No");
}

TEST(RuleSuggestionsTest, ATagIsLookedForAmongThoseThatMayStandThere) {
    EXPECT_EQ(tool::SuggestTag(FindTag(kTags, tag::kClass), "Simpel"), "; did you mean Simple?");
    EXPECT_EQ(tool::SuggestTag(FindTag(kTags, tag::kClass), "Enumm"), "");
    EXPECT_EQ(tool::SuggestTag(nullptr, "Enumm"), "; did you mean Enum?");
}

TEST(RuleSuggestionsTest, ATagInTheWrongPlaceIsToldItsOwn) {
    EXPECT_EQ(tool::SuggestTag(nullptr, "Enum"), "; its place is in Package");
    EXPECT_EQ(tool::SuggestTag(nullptr, "Enumerator"), "; its place is in Enum");
    EXPECT_EQ(tool::SuggestTag(FindTag(kTags, tag::kPackage), "Simple"),
              "; its place is in Class, Instance, Extension, RBOClass, RBOMapping, RBORoot or RBOComponent");
    EXPECT_EQ(tool::SuggestTag(nullptr, "Package"), "");
}

class SuggestionObserver final : public ZanDicDiagnosticObserver {
public:
    bool OnDiagnostic(const ZanDicDiagnostic& fault) override {
        suggestions.push_back(tool::SuggestionFor(fault));
        return true;
    }

    std::vector<std::string> suggestions;
};

class RuleSuggestionsReaderTest : public ReaderFixture {};

TEST_F(RuleSuggestionsReaderTest, WhatTheReaderDoesNotKnowGetsTheNearestWord) {
    SuggestionObserver observer;
    ZanDicSetDiagnosticObserver(&observer);

    LoadBody(ClassTag("Part", 1, "Abstrakt=\"Yes\"",
                      "<Simple" + Id("A", 2) + " CaseMode=\"upper\" Type=\"string\"/>") +
             "<Clas" + Id("Other", 3) + "/>" + "<Class" + Id("Third", 4) + " Persistent=\"yes\"/>" +
             "<Class" + Id("Fourth", 5) + " Persistent=\"Yes\" SuperRef=\"" + U(99) + "\"/>");

    EXPECT_EQ(observer.suggestions,
              (std::vector<std::string>{"; did you mean Abstract?", "; did you mean Upper?",
                                        "; did you mean String?", "; did you mean Class?",
                                        "; did you mean Yes?", ""}));
}

}  // namespace
