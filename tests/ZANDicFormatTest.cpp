#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "ZANDicTags.h"

using namespace ZANDicFormat;

namespace {

struct Table {
    std::string_view name;
    std::span<const CodeWord> words;
};

/// Every table of value words.
constexpr Table kTables[] = {
    {"Content", kContentWords},
    {"Visibility", kVisibilityWords},
    {"AccessModeSimple", kAccessModeSimpleWords},
    {"AccessModeRelation", kAccessModeRelationWords},
    {"CaseMode", kCaseModeWords},
    {"UpdateFacet", kUpdateFacetWords},
    {"Collection", kCollectionWords},
    {"Aggregation", kAggregationWords},
    {"Scope", kScopeWords},
    {"KVADerivable", kKVADerivableWords},
    {"Primitive", kPrimitiveWords},
    {"SimpleType", kSimpleTypeWords},
    {"RelationType", kRelationTypeWords},
    {"Kind", kKindWords},
    {"IOMode", kIOModeWords},
    {"Secured", kSecuredWords},
    {"EventType", kEventTypeWords},
    {"EventMode", kEventModeWords},
    {"Target", kTargetWords},
};

class ValueWordsTest : public ::testing::TestWithParam<Table> {};

TEST_P(ValueWordsTest, EachWordGivesItsCodeAndEachCodeItsWord) {
    for (const CodeWord& row : GetParam().words) {
        EXPECT_EQ(CodeOf(GetParam().words, row.word, -1), row.code) << row.word;
        EXPECT_EQ(WordOf(GetParam().words, row.code), row.word) << row.code;
    }
}

TEST_P(ValueWordsTest, AnUnknownWordGivesTheOtherCodeAndAnUnknownCodeNoWord) {
    EXPECT_EQ(CodeOf(GetParam().words, "no such word", -7), -7);
    EXPECT_EQ(FindWord(GetParam().words, "no such word"), nullptr);
    EXPECT_EQ(WordOf(GetParam().words, 99), "");
    EXPECT_EQ(FindCode(GetParam().words, 99), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Tables, ValueWordsTest, ::testing::ValuesIn(kTables),
                         [](const auto& table) { return std::string(table.param.name); });

TEST(ZANDicFormatTest, WordsAreComparedWithTheirCase) {
    EXPECT_EQ(CodeOf(kVisibilityWords, "public", 0), 0);
    EXPECT_EQ(CodeOf(kVisibilityWords, "Public ", 0), 0);
}

TEST(ZANDicFormatTest, TheCodesAreThoseOfTheModel) {
    EXPECT_EQ(CodeOf(kKVADerivableWords, "Multiple", 0), 4);
    EXPECT_EQ(CodeOf(kUpdateFacetWords, "NEUTRAL", 0), 3);
    EXPECT_EQ(CodeOf(kCollectionWords, "Set", 0), 4);
    EXPECT_EQ(CodeOf(kScopeWords, "Vault", 0), 3);
    EXPECT_EQ(CodeOf(kIOModeWords, "InComming", 0), 2);
    EXPECT_EQ(CodeOf(kIOModeWords, "OutGoing", 0), 3);
    EXPECT_EQ(CodeOf(kPrimitiveWords, "URL", 0), 8);
}

TEST(ZANDicFormatTest, NoneIsAnAccessModeOfSimpleAttributesOnly) {
    EXPECT_EQ(CodeOf(kAccessModeSimpleWords, "None", kOtherAccessMode), 1);
    EXPECT_EQ(CodeOf(kAccessModeRelationWords, "None", kOtherAccessMode), 4);
}

TEST(ZANDicFormatTest, ASimpleAttributeKnowsThePrimitivesUpToLogical) {
    EXPECT_EQ(kSimpleTypeWords.size(), 7U);
    EXPECT_EQ(CodeOf(kSimpleTypeWords, "Logical", 0), OXMDicPRIMITIVEType_Logical);
    EXPECT_EQ(FindWord(kSimpleTypeWords, "URL"), nullptr);
}

TEST(ZANDicFormatTest, ARelationshipIsTypedByBinaryStringOrURL) {
    EXPECT_EQ(CodeOf(kRelationTypeWords, "String", kOtherRelationType), OXMDicPRIMITIVEType_String);
    EXPECT_EQ(CodeOf(kRelationTypeWords, "URL", kOtherRelationType), OXMDicPRIMITIVEType_URL);
    EXPECT_EQ(CodeOf(kRelationTypeWords, "Integer", kOtherRelationType), OXMDicPRIMITIVEType_Binary);
}

TEST(ZANDicFormatTest, NoTagKnowsAnAttributeOrAChildTwice) {
    for (const TagRow& tagRow : kTags) {
        std::set<std::string_view> names;
        for (const AttributeRow& attribute : tagRow.attributes) {
            EXPECT_TRUE(names.insert(attribute.name).second) << tagRow.tag << "." << attribute.name;
        }
        std::set<std::string_view> children(tagRow.children.begin(), tagRow.children.end());
        EXPECT_EQ(children.size(), tagRow.children.size()) << tagRow.tag;
    }
}

TEST(ZANDicFormatTest, EveryChildHasARowOfItsOwn) {
    for (const TagRow& tagRow : kTags) {
        for (const std::string_view child : tagRow.children)
            EXPECT_NE(FindTag(kTags, child), nullptr) << child;
    }
    for (const TagRow& tagRow : kTuningTags) {
        for (const std::string_view child : tagRow.children) {
            EXPECT_NE(FindTag(kTuningTags, child), nullptr) << child;
        }
    }
}

TEST(ZANDicFormatTest, AttributesAreFoundByName) {
    const TagRow* const simple = FindTag(kTags, tag::kSimple);
    ASSERT_NE(simple, nullptr);

    EXPECT_EQ(FindAttribute(*simple, word::kCaseMode)->words.data(), &kCaseModeWords[0]);
    EXPECT_TRUE(FindAttribute(*simple, word::kUuid)->mandatory);
    EXPECT_EQ(FindAttribute(*simple, word::kPersistent), nullptr);
    EXPECT_EQ(FindTag(kTags, "class"), nullptr);
}

TEST(ZANDicFormatTest, EveryTagOfAnElementNamesAKind) {
    for (const CodeWord& row : kElementTags) {
        EXPECT_TRUE(FindTag(kTags, row.word) != nullptr || FindTag(kTuningTags, row.word) != nullptr)
            << row.word;
    }
}

}  // namespace
