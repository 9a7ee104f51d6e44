#include "Formatted.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ZELFile.h"
#include "ZELVBTXMLNode.h"
#include "ZELVBTXMLWriter.h"

namespace {

std::string FormattedText(std::string_view text) {
    ZELVBTXMLError error;
    const auto document = ZELVBTXMLDocument::CreateFromMemory(text, &error, ZELVBTXMLKeep::Pieces);
    EXPECT_NE(document, nullptr) << error.line << ":" << error.column << ": " << error.reason << "\n" << text;
    return document != nullptr ? tool::Formatted(*document) : std::string();
}

/// What a reader finds in a document: its tags, attributes, comments, instructions and texts, in order.
/// Blanks count only where an element holds text.
std::vector<std::string> ContentOf(std::string_view text) {
    const auto document = ZELVBTXMLDocument::CreateFromMemory(text, nullptr, ZELVBTXMLKeep::Pieces);
    std::vector<std::string> content;
    std::uint32_t next = 0;
    const auto addPieces = [&](std::uint32_t end) {
        for (; next < end; ++next) {
            const ZELVBTXMLPiece piece = document->PieceAt(next);
            const bool isBlank = piece.Text().find_first_not_of(" \t\r\n") == std::string_view::npos;
            if (isBlank || piece.Kind() == ZELVBTXMLPieceKind::Declaration) continue;
            content.emplace_back(piece.Text());
            std::erase(content.back(), '\r');
        }
    };
    for (std::uint32_t element = 0; element < document->ElementCount(); ++element) {
        const ZELVBTXMLNode node = document->ElementAt(element);
        std::uint32_t end = next;
        while (end < document->PieceCount() && document->PieceAt(end).IsBefore(node)) ++end;
        addPieces(end);
        content.push_back("<" + std::string(node.getTag()));
        for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
            content.push_back(std::string(attribute.Name()) + "=" + std::string(attribute.Value()));
        }
        content.push_back(std::to_string(node.Children().Count()));
    }
    addPieces(document->PieceCount());
    return content;
}

TEST(FormattedTest, OneElementALineAndTwoBlanksALevel) {
    EXPECT_EQ(
        FormattedText(
            "<Package Name='P'><Class   Name = 'A'\n\tUuid=\"1\"><Simple/></Class>\n\n\n<Class/></Package>"),
        "<Package Name=\"P\">\n"
        "  <Class Name=\"A\" Uuid=\"1\">\n"
        "    <Simple/>\n"
        "  </Class>\n"
        "  <Class/>\n"
        "</Package>\n");
}

TEST(FormattedTest, ValuesHaveDoubleQuotesAndTheEscapesOfTheWriter) {
    EXPECT_EQ(
        FormattedText(
            "<A b='say \"it&apos;s\" &gt; &#x3C; &#38;' c='&#10;&#x9;&#13;' d='two\n\tlines' e='&#233;'/>"),
        "<A b=\"say &quot;it's&quot; > &lt; &amp;\" c=\"&#10;&#9;&#13;\" d=\"two  lines\" "
        "e=\"\xC3\xA9\"/>\n");
}

TEST(FormattedTest, AnElementWithoutContentIsOneTag) {
    EXPECT_EQ(FormattedText("<A><B></B><C> \n </C><D ></D ></A>"), "<A>\n  <B/>\n  <C/>\n  <D/>\n</A>\n");
}

TEST(FormattedTest, AttributesGivenTwiceStayInTheirOrder) {
    EXPECT_EQ(FormattedText("<A c='1' b='2' c='3'/>"), "<A c=\"1\" b=\"2\" c=\"3\"/>\n");
}

TEST(FormattedTest, CommentsAndInstructionsHaveLinesOfTheirOwn) {
    EXPECT_EQ(FormattedText("<!-- head --><A><!-- one\n   two --><B/><?go on?><C>\n<!-- in C "
                            "-->\n</C></A><!-- end -->\n\n<?last?>"),
              "<!-- head -->\n"
              "<A>\n"
              "  <!-- one\n   two -->\n"
              "  <B/>\n"
              "  <?go on?>\n"
              "  <C>\n"
              "    <!-- in C -->\n"
              "  </C>\n"
              "</A> <!-- end -->\n"
              "<?last?>\n");
}

TEST(FormattedTest, ACommentThatEndsALineStaysThere) {
    EXPECT_EQ(
        FormattedText("<A>  <!-- of A -->\n\n<B/><!-- of B -->\n<C/> <!-- of D --><D/>\n</A>   <!-- end -->"),
        "<A> <!-- of A -->\n"
        "  <B/> <!-- of B -->\n"
        "  <C/>\n"
        "  <!-- of D -->\n"
        "  <D/>\n"
        "</A> <!-- end -->\n");
}

TEST(FormattedTest, NoBlankIsAddedOrTakenBesideText) {
    EXPECT_EQ(FormattedText("<A><Comment>last  update</Comment><p> see <b  x='1'>this</b> <i/>\n.</p>"
                            "<q><![CDATA[<raw>]]>\n<b/></q></A>"),
              "<A>\n"
              "  <Comment>last  update</Comment>\n"
              "  <p> see <b x=\"1\">this</b> <i/>\n.</p>\n"
              "  <q><![CDATA[<raw>]]>\n<b/></q>\n"
              "</A>\n");
}

TEST(FormattedTest, NorWhereTheDocumentSaysSo) {
    EXPECT_EQ(FormattedText("<A><B xml:space='preserve'>  <C/></B>  <D/></A>"),
              "<A>\n  <B xml:space=\"preserve\">  <C/></B>\n  <D/>\n</A>\n");
}

TEST(FormattedTest, LineEndsBecomeNewlines) {
    EXPECT_EQ(FormattedText("<A>\r\n<!-- a\r\nb\rc -->\r\n<B>x\r\ny</B>\r</A>\r\n"),
              "<A>\n  <!-- a\nb\nc -->\n  <B>x\ny</B>\n</A>\n");
}

TEST(FormattedTest, ADeclarationStaysAndNamesUtf8) {
    EXPECT_EQ(FormattedText("<?xml version='1.0'?><A/>"), "<?xml version=\"1.0\"?>\n<A/>\n");
    EXPECT_EQ(FormattedText("<?xml  version = '1.0'\nencoding='utf-8' standalone='yes' ?><A/>"),
              "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>\n<A/>\n");
    EXPECT_EQ(FormattedText("<?xml version='1.0' encoding='ISO-8859-1'?><A b='\xE9'><!--\xE9--></A>"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<A b=\"\xC3\xA9\">\n  <!--\xC3\xA9-->\n</A>\n");
    EXPECT_EQ(FormattedText("<?xml version='1.0' encoding='us-ascii'?><A b='&#233;'/>"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<A b=\"\xC3\xA9\"/>\n");
}

TEST(FormattedTest, AByteOrderMarkGoes) {
    EXPECT_EQ(FormattedText("\xEF\xBB\xBF<A/>"), "<A/>\n");
    EXPECT_EQ(FormattedText(std::string_view("\xFF\xFE<\0A\0/\0>\0", 10)), "<A/>\n");
}

TEST(FormattedTest, ADocumentTypeHasTheLayoutOfTheWriter) {
    EXPECT_EQ(FormattedText("<!DOCTYPE  Package\nSYSTEM 'Dictionary00.dtd'><A/>"),
              "<!DOCTYPE Package SYSTEM \"Dictionary00.dtd\" >\n<A/>\n");
    EXPECT_EQ(FormattedText("<!DOCTYPE A PUBLIC \"-//A\" 'a \"quoted\" [name]'  ><A/>"),
              "<!DOCTYPE A PUBLIC \"-//A\" 'a \"quoted\" [name]' >\n<A/>\n");
    EXPECT_EQ(FormattedText("<!DOCTYPE   A  ><A/>"), "<!DOCTYPE A>\n<A/>\n");
}

TEST(FormattedTest, ADocumentTypeWithDeclarationsInsideStaysAsItIs) {
    EXPECT_EQ(FormattedText("<!DOCTYPE  A  [\r\n <!ENTITY b 'c'> ]><A/>"),
              "<!DOCTYPE  A  [\n <!ENTITY b 'c'> ]>\n<A/>\n");
    EXPECT_EQ(FormattedText("<!DOCTYPE A SYSTEM  'a'[]><A/>"), "<!DOCTYPE A SYSTEM  'a'[]>\n<A/>\n");
    EXPECT_EQ(FormattedText("<!DOCTYPE A[]><A/>"), "<!DOCTYPE A[]>\n<A/>\n");
}

TEST(FormattedTest, IndentationStopsWhereThatOfTheWriterStops) {
    constexpr std::size_t kDepth = 100'000;
    std::string text;
    for (std::size_t level = 0; level < kDepth; ++level) text += "<A>";
    text += "<B/>";
    for (std::size_t level = 0; level < kDepth; ++level) text += "</A>";

    const std::string formatted = FormattedText(text);

    EXPECT_NE(formatted.find("\n" + std::string(2 * ZELVBTXMLWriter::kMostIndented, ' ') + "<B/>\n"),
              std::string::npos);
}

TEST(FormattedTest, WhatIsInTheLayoutStaysAndNothingIsLost) {
    int count = 0;
    for (const char* const directory : {ZANDIC_SAMPLES, ZANDIC_TEST_DATA, ZANDIC_CORPUS}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
            ZELFileContent content;
            if (!entry.is_regular_file() || Failed(ZELReadFile(entry.path().c_str(), content))) continue;
            if (ZELVBTXMLDocument::CreateFromMemory(content.View(), nullptr) == nullptr) continue;

            const std::string formatted = FormattedText(content.View());

            EXPECT_EQ(FormattedText(formatted), formatted) << entry.path();
            ++count;
        }
    }
    EXPECT_GT(count, 200);
}

/// A document of few words, with every kind of piece at any place, out of any layout.
std::string RandomDocument() {
    constexpr const char* kPieces[] = {"<!--c-->", "<!-- d\n e -->",
                                       "<?p q?>",  " ",
                                       "\n",       "\n  ",
                                       "\r\n",     "\t",
                                       "text",     " t ",
                                       "&lt;",     "<![CDATA[ x ]]>",
                                       "<E/>",     "<E a='1' a='&#9;'  b=\"2\"/>",
                                       "<E>",      "<E c='d'>",
                                       "</E>",     "</E>"};
    std::string text =
        *rc::gen::element<std::string>("", "<?xml version='1.0'?>", "<!--h--> <?i?>\n", "<!DOCTYPE E>") +
        "<E>";
    int open = 1;
    const int length = *rc::gen::inRange(0, 40);
    for (int step = 0; step < length; ++step) {
        const std::string piece =
            *rc::gen::elementOf(std::vector<std::string>(std::begin(kPieces), std::end(kPieces)));
        if (piece == "</E>" && open == 1) continue;
        open += piece == "</E>" ? -1 : piece == "<E>" || piece == "<E c='d'>" ? 1 : 0;
        text += piece;
    }
    for (; open > 0; --open) text += "</E>";
    return text + *rc::gen::element<std::string>("", "\n", "<!--t-->", " <!--t-->\n<?i?>");
}

TEST(FormattedTest, AnyDocumentIsLaidOutOnceAndForAll) {
    EXPECT_TRUE(rc::check([] {
        const std::string text = RandomDocument();

        const std::string formatted = FormattedText(text);

        RC_ASSERT(FormattedText(formatted) == formatted);
        RC_ASSERT(ContentOf(formatted) == ContentOf(text));
    }));
}

}  // namespace
