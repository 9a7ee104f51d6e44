// What a reader knows, a writer must write: a word that is read only would be lost by saving. The expected
// documents, which OxmDicToXMLTest compares with what saving gives, have every word between them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "ZANDicTags.h"
#include "ZELVBTXMLNode.h"

namespace {

using namespace ZANDicFormat;
using Words = std::set<std::string>;

/// The kinds of class are written by the same rows; what one of them has, the others have.
std::string_view TagOfRows(std::string_view tagName) {
    return tagName == tag::kInstance || tagName == tag::kExtension ? tag::kClass : tagName;
}

std::string WordOfTag(std::string_view tagName, std::string_view word) {
    return std::string(TagOfRows(tagName)).append(" ").append(word);
}

/// "Tag Attribute" of everything in the expected documents.
Words SavedWords() {
    Words words;
    for (const auto& file : std::filesystem::directory_iterator(ZANDIC_TEST_DATA "/expected/xml")) {
        const auto document = ZELVBTXMLDocument::CreateFromFile(file.path().c_str(), nullptr);
        EXPECT_NE(document, nullptr) << file.path();
        for (std::uint32_t index = 0; document && index < document->ElementCount(); ++index) {
            const ZELVBTXMLNode node = document->ElementAt(index);
            for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
                words.insert(WordOfTag(node.getTag(), attribute.Name()));
            }
        }
    }
    return words;
}

/// The same of the vocabulary, where \p saved does not have it.
Words WordsWithout(const Words& saved) {
    Words words;
    for (const TagRow& tagRow : kTags) {
        for (const AttributeRow& attribute : tagRow.attributes) {
            const std::string word = WordOfTag(tagRow.tag, attribute.name);
            if (!saved.contains(word)) words.insert(word);
        }
    }
    return words;
}

TEST(SavedWordsTest, EachWordThatIsReadIsWrittenButForThoseThatNoElementHolds) {
    EXPECT_THAT(WordsWithout(SavedWords()),
                testing::ElementsAre("Class CommandRefs",                                     // no commands
                                     "Class InterfaceRefs",                                   // no interfaces
                                     "Implement IOMode", "Implement Name", "Implement Uuid",  // not made
                                     "Inverse Scope",                                         // not written
                                     "Package CommandRefs",                                   // no commands
                                     "Security EventMode", "Security EventType", "Security Name",  // not made
                                     "Security Secured", "Security Uuid"));
}

}  // namespace
