#include "ZELVBTXMLNode.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ZELTestDirectory.h"

namespace {

using Strings = std::vector<std::string>;

class ZELVBTXMLNodeTest : public testing::Test {
protected:
    /// Reads \p text, which is well formed. \returns the root.
    ZELVBTXMLNode Read(std::string_view text) {
        document = ZELVBTXMLDocument::CreateFromMemory(text, &error);
        EXPECT_NE(document, nullptr) << error.reason;
        return document->Root();
    }

    Strings Tags(const ZELVBTXMLNode& parent) {
        Strings tags;
        for (const ZELVBTXMLNode& child : parent.Children()) tags.emplace_back(child.getTag());
        return tags;
    }

    Strings Attributes(const ZELVBTXMLNode& node) {
        Strings attributes;
        for (const ZELVBTXMLAttribute& attribute : node.Attributes()) {
            attributes.push_back(std::string(attribute.Name()) + "=" + std::string(attribute.Value()));
        }
        return attributes;
    }

    static std::string Text(const ZELVBTXMLPosition& place) {
        return std::to_string(place.line) + ":" + std::to_string(place.column);
    }

    std::unique_ptr<ZELVBTXMLDocument> document;
    ZELVBTXMLError error;
};

using ZELVBTXMLDocumentTest = ZELVBTXMLNodeTest;

TEST_F(ZELVBTXMLNodeTest, ChildrenAreTheElementsDirectlyInside) {
    const ZELVBTXMLNode root = Read("<a>text<b><x/><y><z/></y></b><!-- c --><c/><?d?><e></e></a>");

    EXPECT_EQ(root.getTag(), "a");
    EXPECT_EQ(Tags(root), (Strings{"b", "c", "e"}));
    EXPECT_EQ(Tags(*root.Children().begin()), (Strings{"x", "y"}));
}

TEST_F(ZELVBTXMLNodeTest, AnElementWithoutChildrenHasNone) {
    EXPECT_EQ(Tags(Read("<a>text</a>")), Strings{});
    EXPECT_EQ(Tags(Read("<a/>")), Strings{});
}

TEST_F(ZELVBTXMLNodeTest, AWalkByPositionEndsWithNoElement) {
    const ZELVBTXMLNode root = Read("<a><b><x/></b><c/></a>");

    ZELVBTXMLNodePosition position = root.getFirstNodePosition();

    EXPECT_EQ(root.getNextNode(position).getTag(), "b");
    EXPECT_EQ(root.getNextNode(position).getTag(), "c");
    EXPECT_FALSE(root.getNextNode(position));
    EXPECT_FALSE(root.getNextNode(position));
}

TEST_F(ZELVBTXMLNodeTest, AWalkByPositionStaysInsideItsElement) {
    const ZELVBTXMLNode root = Read("<a><b/><c/></a>");
    const ZELVBTXMLNode first = *root.Children().begin();

    ZELVBTXMLNodePosition position = first.getFirstNodePosition();

    EXPECT_FALSE(first.getNextNode(position));
}

TEST_F(ZELVBTXMLNodeTest, AttributesStandInDocumentOrderAndTwice) {
    EXPECT_EQ(Attributes(Read("<a z='1' b='2' z='3'><b c='4'/></a>")), (Strings{"z=1", "b=2", "z=3"}));
    EXPECT_EQ(document->Root().Attributes().Size(), 3u);
}

TEST_F(ZELVBTXMLNodeTest, ATagWithoutAttributesHasNone) {
    const ZELVBTXMLNode root = Read("<a><b c='4'/><d/></a>");

    EXPECT_EQ(Attributes(root), Strings{});
    EXPECT_EQ(Attributes(document->ElementAt(2)), Strings{});
}

TEST_F(ZELVBTXMLNodeTest, AnAttributeIsFoundByItsExactName) {
    const ZELVBTXMLNode root = Read("<a Name='1' NameX='2' name='3' Name='4'/>");

    EXPECT_EQ(root.getAttributeValue("Name"), "1");
    EXPECT_EQ(root.getAttributeValue("NameX"), "2");
    EXPECT_EQ(root.getAttributeValue("name"), "3");
    EXPECT_EQ(root.getAttributeValue("Nam"), std::nullopt);
    EXPECT_TRUE(root.getAttribute("Name"));
    EXPECT_FALSE(root.getAttribute("Nam"));
}

TEST_F(ZELVBTXMLNodeTest, AnEmptyValueIsThere) {
    const ZELVBTXMLNode root = Read("<a b=''/>");

    ASSERT_TRUE(root.getAttribute("b"));
    EXPECT_EQ(root.getAttributeValue("b"), "");
}

TEST_F(ZELVBTXMLNodeTest, ReferencesInValuesAreReplaced) {
    EXPECT_EQ(Read("<a b='&lt;&#65;&amp;&#x20AC;x&gt;&quot;&apos;&#x1F600;'/>").getAttributeValue("b"),
              "<A&\xE2\x82\xACx>\"'\xF0\x9F\x98\x80");
}

TEST_F(ZELVBTXMLNodeTest, BlanksInValuesBecomeBlanksAndReferencesToThemStay) {
    EXPECT_EQ(Read("<a b='1\t2\n3\r\n4\r5 6'/>").getAttributeValue("b"), "1 2 3 4 5 6");
    EXPECT_EQ(Read("<a b='1&#9;2&#10;3&#13;&#10;4'/>").getAttributeValue("b"), "1\t2\n3\r\n4");
    EXPECT_EQ(Read("<a b='1&#13;\n2'/>").getAttributeValue("b"), "1\r 2");
}

TEST_F(ZELVBTXMLNodeTest, ValuesThatReadAsTheyStandAreNotCopied) {
    const ZELVBTXMLAttribute first = *Read("<a b='plain' c='d'/>").Attributes().begin();

    EXPECT_EQ(first.Value().data() - first.Name().data(), 3);
}

TEST_F(ZELVBTXMLNodeTest, LongNamesAndValuesAreWhole) {
    const std::string name(256, 'n');
    const std::string longest(255, 'm');
    const std::string value(0xFFFFFF, 'v');
    const std::string justFits(0xFFFFFE, 'w');

    const ZELVBTXMLNode root =
        Read("<a " + name + "='1' " + longest + "='2' b='" + value + "' c='" + justFits + "'/>");

    EXPECT_EQ(root.getAttributeValue(name), "1");
    EXPECT_EQ(root.getAttributeValue(longest), "2");
    EXPECT_EQ(root.getAttributeValue("b"), value);
    EXPECT_EQ(root.getAttributeValue("c"), justFits);
}

TEST_F(ZELVBTXMLNodeTest, BytesBehindNamesAndValuesCanBeRead) {
    const ZELVBTXMLAttribute attribute = *Read("<a b='&amp;'/>").Attributes().begin();

    unsigned sum = 0;
    for (const std::string_view view : {attribute.Name(), attribute.Value(), document->Root().getTag()}) {
        for (std::size_t index = 0; index < ZELVBTXMLDocument::kReadablePadding; ++index) {
            sum += static_cast<unsigned char>(view.data()[view.size() + index]);
        }
    }

    EXPECT_GT(sum, 0u);
}

TEST_F(ZELVBTXMLNodeTest, AnAttributeReadsTheSameHoweverItIsWritten) {
    for (const char* const written :
         {" name=\"value\"", "\nname=\"value\"", "  name='value'", " name = \"value\"", " name= 'value'",
          " name =\"value\"", " name=\"v&#97;lue\""}) {
        const ZELVBTXMLNode root = Read(std::string("<a x=\"1\"") + written + " y=\"2\"/>");

        const ZELVBTXMLAttribute attribute = root.getAttribute("name");
        ASSERT_TRUE(attribute) << written;
        EXPECT_EQ(attribute.Value(), "value") << written;
        EXPECT_EQ(root.Attributes().Size(), 3u) << written;
        EXPECT_EQ(root.getAttributeValue("y"), "2") << written;
        const bool isNextLine = written[0] == '\n';
        EXPECT_EQ(attribute.Position().line, isNextLine ? 2 : 1) << written;
        EXPECT_EQ(attribute.Position().column, isNextLine ? 1 : written[1] == ' ' ? 11 : 10) << written;
    }
}

TEST_F(ZELVBTXMLNodeTest, PositionsAreThoseOfTheTagAndOfTheName) {
    const ZELVBTXMLNode root =
        Read("\xEF\xBB\xBF<a\n  b='1'>\r\n\t<c d='2'/>\r<\xC3\xA9 \xE6\x97\xA5='3' e='4'/></a>");
    const ZELVBTXMLNode second = document->ElementAt(1);
    const ZELVBTXMLNode third = document->ElementAt(2);

    EXPECT_EQ(Text(root.Position()), "1:1");
    EXPECT_EQ(Text(root.getAttribute("b").Position()), "2:3");
    EXPECT_EQ(Text(second.Position()), "3:2");
    EXPECT_EQ(Text(second.getAttribute("d").Position()), "3:5");
    EXPECT_EQ(Text(third.Position()), "4:1");
    EXPECT_EQ(Text(third.getAttribute("\xE6\x97\xA5").Position()), "4:4");
    EXPECT_EQ(Text(third.getAttribute("e").Position()), "4:10");
}

TEST_F(ZELVBTXMLNodeTest, PositionsHoldInLongLinesAndInAnyOrder) {
    std::string text = "<a>";
    for (int index = 0; index < 5000; ++index) text += "<\xC3\xA9/>";
    text += "\n";
    for (int index = 0; index < 5000; ++index) text += "\r\n<b/>";
    Read(text + "</a>");

    EXPECT_EQ(Text(document->ElementAt(10000).Position()), "5002:1");
    EXPECT_EQ(Text(document->ElementAt(5000).Position()), "1:20000");
    EXPECT_EQ(Text(document->ElementAt(1).Position()), "1:4");
    EXPECT_EQ(Text(document->ElementAt(7500).Position()), "2502:1");
}

TEST_F(ZELVBTXMLNodeTest, ALineEndAcrossTwoStepsOfCountingCountsOnce) {
    for (std::size_t fill = 4080; fill < 4100; ++fill) {
        Read("<a>" + std::string(fill, 'x') + "\r\n<b/></a>");
        EXPECT_EQ(Text(document->ElementAt(1).Position()), "2:1") << fill;
    }
}

TEST_F(ZELVBTXMLDocumentTest, CountsAndNumbersElementsAndAttributes) {
    Read("<a b='1'><c d='2' e='3'/><f/></a>");

    EXPECT_EQ(document->ElementCount(), 3u);
    EXPECT_EQ(document->AttributeCount(), 3u);
    EXPECT_EQ(document->ElementAt(2).getTag(), "f");
    EXPECT_EQ(document->ElementAt(2).Index(), 2u);
    EXPECT_EQ(document->AttributeAt(2).Name(), "e");
    EXPECT_EQ(document->Root().getAttribute("b").Index(), 0u);
}

TEST_F(ZELVBTXMLDocumentTest, ADocumentFromMemoryKeepsItsOwnText) {
    std::string text = "<a b='1'/>";
    const ZELVBTXMLNode root = Read(text);

    text.assign(text.size(), 'x');

    EXPECT_EQ(root.getAttributeValue("b"), "1");
    EXPECT_EQ(document->FileName(), "");
}

TEST_F(ZELVBTXMLDocumentTest, AFileIsReadAndItsNameKept) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("a.xml", "<a b='1'/>");

    document = ZELVBTXMLDocument::CreateFromFile(path.c_str(), &error);

    ASSERT_NE(document, nullptr) << error.reason;
    EXPECT_EQ(document->Root().getAttributeValue("b"), "1");
    EXPECT_EQ(document->FileName(), path);
}

TEST_F(ZELVBTXMLDocumentTest, AFaultHasAReasonAndAPlace) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("a.xml", "<a>\n  <b>\n</a>");

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile(path.c_str(), &error), nullptr);

    EXPECT_EQ(error.reason, "the end tag is not that of the open element \"b\"");
    EXPECT_EQ(error.line, 3);
    EXPECT_EQ(error.column, 1);
}

TEST_F(ZELVBTXMLDocumentTest, WithoutAPlaceForTheErrorNothingIsWritten) {
    EXPECT_EQ(ZELVBTXMLDocument::CreateFromMemory("<a>", nullptr), nullptr);
    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile("/no/such/file", nullptr), nullptr);
}

TEST_F(ZELVBTXMLDocumentTest, AFileThatCannotBeReadHasNoPlace) {
    const TestDirectory directory;

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile(directory.Path("none").c_str(), &error), nullptr);

    EXPECT_EQ(error.reason, "No such file or directory");
    EXPECT_EQ(error.line, 0);
    EXPECT_EQ(error.column, 0);
}

TEST_F(ZELVBTXMLDocumentTest, ADirectoryAndAMissingNameAreRefused) {
    const TestDirectory directory;

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile(directory.Path().c_str(), &error), nullptr);
    EXPECT_EQ(error.reason, "Is a directory");
    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile(nullptr, &error), nullptr);
    EXPECT_EQ(error.reason, "no file name is given");
}

TEST_F(ZELVBTXMLDocumentTest, FourGibibytesAreRefusedUnread) {
    const TestDirectory directory;
    const std::string path = directory.MakeFile("big.xml", "<a/>");
    std::filesystem::resize_file(path, std::uintmax_t{1} << 32);  // takes no room on the disk

    EXPECT_EQ(ZELVBTXMLDocument::CreateFromFile(path.c_str(), &error), nullptr);
    EXPECT_EQ(error.reason, "the document has 4 GiB or more");

    error = {};
    EXPECT_EQ(ZELVBTXMLDocument::CreateFromMemory({path.data(), std::size_t{1} << 32}, &error), nullptr);
    EXPECT_EQ(error.reason, "the document has 4 GiB or more");
}

class ZELVBTXMLPieceTest : public ZELVBTXMLNodeTest {
protected:
    static constexpr const char* kKinds[] = {"declaration", "doctype", "comment",
                                             "instruction", "cdata",   "text"};

    /// Reads \p text and keeps its pieces. \returns them.
    Strings Pieces(std::string_view text) {
        document = ZELVBTXMLDocument::CreateFromMemory(text, &error, ZELVBTXMLKeep::Pieces);
        EXPECT_NE(document, nullptr) << error.reason;
        Strings pieces;
        for (std::uint32_t index = 0; index < document->PieceCount(); ++index) {
            const ZELVBTXMLPiece piece = document->PieceAt(index);
            pieces.push_back(std::string(kKinds[static_cast<std::size_t>(piece.Kind())]) + " " +
                             std::string(piece.Text()));
        }
        return pieces;
    }
};

TEST_F(ZELVBTXMLPieceTest, NothingIsKeptUnlessAskedFor) {
    Read("<?xml version='1.0'?><!-- c --><a>text<!-- d --></a>");

    EXPECT_EQ(document->PieceCount(), 0);
}

TEST_F(ZELVBTXMLPieceTest, EverythingBesideTagsIsKeptAsItStands) {
    EXPECT_EQ(Pieces("<?xml version='1.0'?>\n<!DOCTYPE a [<!-- in --><?in?>]><!-- b --><?c d?>"
                     "<a>t &lt; u<![CDATA[ <v> ]]>\r\n<b/> <?e?><!--f--></a>\n<!-- g -->"),
              (Strings{"declaration <?xml version='1.0'?>", "text \n",
                       "doctype <!DOCTYPE a [<!-- in --><?in?>]>", "comment <!-- b -->",
                       "instruction <?c d?>", "text t &lt; u", "cdata <![CDATA[ <v> ]]>", "text \r\n",
                       "text  ", "instruction <?e?>", "comment <!--f-->", "text \n", "comment <!-- g -->"}));
}

TEST_F(ZELVBTXMLPieceTest, ADocumentWithoutDeclarationKeepsNone) {
    EXPECT_EQ(Pieces("<a/>"), Strings{});
    EXPECT_EQ(Pieces("\xEF\xBB\xBF<a/>\n"), Strings{"text \n"});
}

TEST_F(ZELVBTXMLPieceTest, APieceKnowsItsElementAndWhatItIsBefore) {
    Pieces("<!--0--><a><!--1--><b><!--2--></b><!--3--><c/></a><!--4-->");
    const ZELVBTXMLNode a = document->ElementAt(0);
    const ZELVBTXMLNode b = document->ElementAt(1);
    const ZELVBTXMLNode c = document->ElementAt(2);

    EXPECT_TRUE(document->PieceAt(0).IsOutside());
    EXPECT_TRUE(document->PieceAt(0).IsBefore(a));
    EXPECT_TRUE(document->PieceAt(1).IsIn(a));
    EXPECT_TRUE(document->PieceAt(1).IsBefore(b));
    EXPECT_TRUE(document->PieceAt(2).IsIn(b));
    EXPECT_FALSE(document->PieceAt(2).IsIn(a));
    EXPECT_TRUE(document->PieceAt(3).IsIn(a));
    EXPECT_FALSE(document->PieceAt(3).IsBefore(b));
    EXPECT_TRUE(document->PieceAt(3).IsBefore(c));
    EXPECT_TRUE(document->PieceAt(4).IsOutside());
    EXPECT_FALSE(document->PieceAt(4).IsBefore(a));
    EXPECT_EQ(Text(document->PieceAt(3).Position()), "1:35");
}

TEST_F(ZELVBTXMLPieceTest, PiecesTouchWhenNothingStandsBetween) {
    Pieces("<a> <!--1--><?t?><b/><!--3--></a>");

    EXPECT_TRUE(document->PieceAt(0).Touches(document->PieceAt(1)));
    EXPECT_TRUE(document->PieceAt(1).Touches(document->PieceAt(2)));
    EXPECT_FALSE(document->PieceAt(2).Touches(document->PieceAt(3)));
}

TEST_F(ZELVBTXMLPieceTest, PiecesOfAnotherEncodingAreUtf8) {
    EXPECT_EQ(Pieces("<?xml version='1.0' encoding='ISO-8859-1'?><a><!--\xE9--></a>")[1],
              "comment <!--\xC3\xA9-->");
}

}  // namespace
