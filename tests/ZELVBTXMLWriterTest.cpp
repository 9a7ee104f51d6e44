#include "ZELVBTXMLWriter.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ZELFile.h"
#include "ZELTestDirectory.h"
#include "ZELVBTXMLNode.h"

namespace {

class ZELVBTXMLWriterTest : public testing::Test {
protected:
    ZELVBTXMLWriterTest() { file.Open(path); }

    /// Ends the document. \returns its text.
    std::string Written() {
        EXPECT_EQ(file.Commit(), S_OK);
        ZELFileContent content;
        EXPECT_EQ(ZELReadFile(path.c_str(), content), S_OK);
        return std::string(content.View());
    }

    TestDirectory directory;
    std::string path = directory.Path("document");
    ZELDurableFile file;
    ZELVBTXMLWriter document{file};
};

/// \returns the text of an attribute with that value; replaced characters are counted in \p replaced.
std::string AttributeOf(std::string_view value, long* replaced = nullptr) {
    TestDirectory directory;
    ZELDurableFile file;
    EXPECT_EQ(file.Open(directory.Path("document")), S_OK);
    ZELVBTXMLWriter document(file);
    document.Begin("A");
    document.Attribute("b", value);
    document.End();
    EXPECT_EQ(file.Commit(), S_OK);
    if (replaced != nullptr) *replaced = document.Replaced();
    ZELFileContent content;
    EXPECT_EQ(ZELReadFile(directory.Path("document").c_str(), content), S_OK);
    return std::string(content.View());
}

TEST(ZELXMLEscapeTest, WritesValuesAsTheWriterDoes) {
    EXPECT_TRUE(rc::check([](const std::string& value) {
        std::string text = "<A b=\"";
        long replaced = 0;

        const std::string written = AttributeOf(value, &replaced);

        RC_ASSERT(ZELXMLEscape(value, text) == replaced);
        RC_ASSERT(text + "\"/>\n" == written);
    }));
}

TEST(ZELXMLEscapeTest, CountsWhatItReplaces) {
    std::string text = "before ";

    EXPECT_EQ(ZELXMLEscape("a\"b\xC3\xA9\x01\xFF", text), 2);

    EXPECT_EQ(text, "before a&quot;b\xC3\xA9\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST_F(ZELVBTXMLWriterTest, WritesOneElementALineAndIndentsByTwo) {
    document.Markup("<?xml version=\"1.0\"?>");
    document.Begin("A");
    document.Attribute("x", "1");
    document.PlainAttribute("y", "2");
    document.Begin("B");
    document.Begin("C");
    document.EndWithText("text & more");
    document.Begin("D");
    document.End();
    document.End();
    document.Begin("E");
    document.End();
    document.End();

    EXPECT_EQ(Written(),
              "<?xml version=\"1.0\"?>\n"
              "<A x=\"1\" y=\"2\">\n"
              "  <B>\n"
              "    <C>text &amp; more</C>\n"
              "    <D/>\n"
              "  </B>\n"
              "  <E/>\n"
              "</A>\n");
}

TEST_F(ZELVBTXMLWriterTest, TakesMarkupThatWasPutTogetherBefore) {
    const char flag[16] = " flag=\"Yes\"";
    const char begin[16] = " name=\"";
    document.Begin("A");
    document.Ready(flag, 11);
    document.Ready(begin, 7);
    document.EndValue("a & b");
    document.End();

    EXPECT_EQ(Written(), "<A flag=\"Yes\" name=\"a &amp; b\"/>\n");
}

TEST(ZELVBTXMLWriterValueTest, FindsWhatIsToBeEscapedAtEachPlaceOfTextsOfEachLength) {
    const std::pair<char, const char*> kSpecials[] = {
        {'"', "&quot;"}, {'&', "&amp;"}, {'<', "&lt;"}, {'\t', "&#9;"}, {'\x1F', "\xEF\xBF\xBD"}};
    TestDirectory directory;
    ZELDurableFile file;
    ASSERT_EQ(file.Open(directory.Path("document")), S_OK);
    ZELVBTXMLWriter document(file);
    std::string expected = "<A";
    document.Begin("A");
    for (std::size_t length = 0; length <= 40; ++length) {
        for (std::size_t place = 0; place < length; ++place) {
            for (const auto& [special, reference] : kSpecials) {
                std::string value(length, 'v');
                value[place] = special;
                document.Attribute("b", value);
                expected += " b=\"" + std::string(place, 'v') + reference +
                            std::string(length - place - 1, 'v') + "\"";
            }
        }
    }
    document.End();
    ASSERT_EQ(file.Commit(), S_OK);

    ZELFileContent content;
    ASSERT_EQ(ZELReadFile(directory.Path("document").c_str(), content), S_OK);
    EXPECT_TRUE(content.View() == expected + "/>\n");
}

TEST_F(ZELVBTXMLWriterTest, StopsIndentingWhereItWouldFillTheDisk) {
    for (int level = 0; level < 100; ++level) document.Begin("A");
    for (int level = 0; level < 100; ++level) document.End();

    const std::string text = Written();
    EXPECT_NE(text.find("\n" + std::string(128, ' ') + "<A/>\n"), std::string::npos);
    EXPECT_EQ(text.find(std::string(129, ' ')), std::string::npos);
}

TEST(ZELVBTXMLWriterEscapeTest, EscapesWhatAReaderWouldChange) {
    EXPECT_EQ(AttributeOf("\"&<\t\n\r>'"), "<A b=\"&quot;&amp;&lt;&#9;&#10;&#13;>'\"/>\n");
}

TEST(ZELVBTXMLWriterEscapeTest, WritesOtherCharactersAsTheyAre) {
    EXPECT_EQ(AttributeOf("\x7f\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"),
              "<A b=\"\x7f\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80\"/>\n");
}

TEST(ZELVBTXMLWriterEscapeTest, ReplacesWhatXMLDoesNotAllow) {
    struct {
        std::string_view text;
        long count;
    } const kinds[] = {
        {std::string_view("\0", 1), 1},
        {"\x1f", 1},
        {"\xef\xbf\xbe", 1},
        {"\xef\xbf\xbf", 1},
        {"\xed\xa0\x80", 3},
        {"\xc3", 1},
        {"\x80", 1},
        {"\xc0\x80", 2},
        {"\xf4\x90\x80\x80", 4},
        {"\xe2\x82", 2},
    };
    for (const auto& kind : kinds) {
        std::string replacement;
        for (long index = 0; index < kind.count; ++index) replacement += "\xef\xbf\xbd";
        long replaced = 0;

        EXPECT_EQ(AttributeOf("a" + std::string(kind.text) + "b", &replaced),
                  "<A b=\"a" + replacement + "b\"/>\n");
        EXPECT_EQ(replaced, kind.count);
    }
}

TEST_F(ZELVBTXMLWriterTest, FindsASpecialCharacterAtEachPlace) {
    std::vector<std::string> values;
    for (const char* const special : {"\"", "&", "<", "\t", "\xc3\xa9"}) {
        for (std::size_t before = 0; before < 40; ++before) {
            values.push_back(std::string(before, 'x') + special + std::string(40 - before, 'y'));
        }
    }
    document.Begin("A");
    for (const std::string& value : values) {
        document.Begin("B");
        document.Attribute("b", value);
        document.End();
    }
    document.End();

    ZELVBTXMLError error;
    const std::string text = Written();
    const auto read = ZELVBTXMLDocument::CreateFromMemory(text, &error);
    ASSERT_NE(read, nullptr) << error.reason;
    std::vector<std::string> readValues;
    for (const ZELVBTXMLNode& node : read->Root().Children()) {
        readValues.emplace_back(node.getAttributeValue("b").value_or(""));
    }
    EXPECT_EQ(readValues, values);
}

TEST(ZELVBTXMLWriterEscapeTest, AnyTextReadsBackAsItWas) {
    rc::check([](const std::vector<std::uint32_t>& characters) {
        std::string value;
        for (const std::uint32_t c : characters) {
            const char* const pieces[] = {"\"",
                                          "&",
                                          "<",
                                          ">",
                                          "'",
                                          "\t",
                                          "\n",
                                          "\r",
                                          " ",
                                          "x",
                                          "long piece of plain text",
                                          "\xc3\xa9",
                                          "\xe2\x82\xac",
                                          "\xf0\x9f\x98\x80",
                                          "&amp;",
                                          "]]>"};
            value += pieces[c % std::size(pieces)];
        }
        ZELVBTXMLError error;
        const auto document = ZELVBTXMLDocument::CreateFromMemory(AttributeOf(value), &error);

        RC_ASSERT(document != nullptr);
        RC_ASSERT(document->Root().getAttributeValue("b") == std::optional<std::string_view>(value));
    });
}

TEST(ZELXMLIsNameTest, TellsNamesFromOtherTexts) {
    for (const char* const name : {"A", "_a", "a:b", "a-b.c1", "\xc3\xa9t\xc3\xa9", "a\xc2\xb7"}) {
        EXPECT_TRUE(ZELXMLIsName(name)) << name;
    }
    for (const char* const name : {"", "1a", "-a", ".a", "a b", "a\"", "a=", "\xc2\xb7", "a\xc3", "\x80"}) {
        EXPECT_FALSE(ZELXMLIsName(name)) << name;
    }
}

}  // namespace
