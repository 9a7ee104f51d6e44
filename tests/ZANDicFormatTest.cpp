#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "ZANDicTags.h"

using namespace ZANDicFormat;

namespace {

struct Table {
    std::string_view name;
    std::span<const CodeWord> words;
    std::string_view listed;  ///< what Listed gives
};

std::string Listed(std::span<const CodeWord> words) {
    std::string listed;
    for (const CodeWord& row : words) {
        listed.append(listed.empty() ? "" : " ")
            .append(row.word)
            .append("=")
            .append(std::to_string(row.code));
    }
    return listed;
}

/// Every table of value words, with the codes of the model.
constexpr Table kTables[] = {
    {"Content", kContentWords, "metadata=0 tuning=1 rbodef=2 rbomap=3 metaplm=4"},
    {"Visibility", kVisibilityWords, "Public=1 Protected=2 Private=3"},
    {"AccessModeSimple", kAccessModeSimpleWords, "None=1 Read=2 Write=3 ReadWrite=4"},
    {"AccessModeRelation", kAccessModeRelationWords, "Read=2 Write=3 ReadWrite=4"},
    {"CaseMode", kCaseModeWords, "Upper=1 Lower=2 Mixed=3"},
    {"UpdateFacet", kUpdateFacetWords, "IN=1 OUT=2 NEUTRAL=3"},
    {"Collection", kCollectionWords, "Array=1 Bag=2 List=3 Set=4"},
    {"Aggregation", kAggregationWords, "None=1 Shared=2 Composition=3"},
    {"Scope", kScopeWords, "External=2 Vault=3"},
    {"KVADerivable", kKVADerivableWords, "No=2 Yes=3 Multiple=4"},
    {"Primitive", kPrimitiveWords,
     "Boolean=1 Integer=2 Double=3 String=4 Binary=5 Date=6 Logical=7 URL=8 AnyObject=9"},
    {"SimpleType", kSimpleTypeWords, "Boolean=1 Integer=2 Double=3 String=4 Binary=5 Date=6 Logical=7"},
    {"RelationType", kRelationTypeWords, "Binary=5 String=4 URL=8"},
    {"Kind", kKindWords, "In=1 Out=2 IO=3 Return=4"},
    {"IOMode", kIOModeWords, "InComming=2 OutGoing=3"},
    {"Secured", kSecuredWords, "None=1 Unconditional=2 Secured=3"},
    {"EventType", kEventTypeWords, "Public=2 Protected=3 Private=4"},
    {"EventMode", kEventModeWords, "After=1 Before=2 Veto=3"},
    {"Target", kTargetWords, "AnyObject=9"},
};

class ValueWordsTest : public ::testing::TestWithParam<Table> {};

TEST_P(ValueWordsTest, EachWordGivesItsCodeAndEachCodeItsWord) {
    for (const CodeWord& row : GetParam().words) {
        EXPECT_EQ(CodeOf(GetParam().words, row.word, -1), row.code) << row.word;
        EXPECT_EQ(WordOf(GetParam().words, row.code), row.word) << row.code;
    }
}

TEST_P(ValueWordsTest, HasTheWordsOfDocumentsAndTheCodesOfTheModel) {
    EXPECT_EQ(Listed(GetParam().words), GetParam().listed);
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

TEST(ZANDicFormatTest, SomeValuesStandForThemselves) {
    EXPECT_EQ(value::kYes, "Yes");
    EXPECT_EQ(value::kNo, "No");
    EXPECT_EQ(value::kAnyObject, "AnyObject");
    EXPECT_EQ(value::kRelationType, "OXMTPRelation");
    EXPECT_EQ(kDomains[0], "VALKOR");
    EXPECT_EQ(kDomains[1], "DUVRA");
}

TEST(ZANDicFormatTest, AnyOtherWordStandsForACodeOfItsOwn) {
    EXPECT_EQ(kOtherVisibility, 1);
    EXPECT_EQ(kOtherAccessMode, 4);
    EXPECT_EQ(kOtherAggregation, 1);
    EXPECT_EQ(kOtherScope, 1);
    EXPECT_EQ(kOtherKVADerivable, 1);
    EXPECT_EQ(kOtherRelationType, 5);
}

TEST(ZANDicFormatTest, EachTagOfAnElementMakesItsKind) {
    EXPECT_EQ(Listed(kElementTags),
              "Package=11 Class=5 Instance=5 Extension=13 Simple=4 Relationship=6 Inverse=7 Unique=15 "
              "Implement=17 Security=18 Interface=8 Method=9 Parameter=10 Enum=3 Enumerator=20 Category=2 "
              "Command=16 BObject=12 RBOClass=22 RBOMapping=23 RBORoot=24 RBOComponent=25 "
              "RBOPathExpression=26 AttributeBlock=21 AttributeBlockExtension=21");
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
