#include "ZELXMLTokenizer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "ZELXMLChars.h"
#include "ZELXMLOracles.h"
#include "ZELXMLPositions.h"

namespace {

using namespace std::string_view_literals;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::filesystem::path> FilesIn(const char* directory) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

constexpr const char* kGood = ZANDIC_TEST_DATA "/xml/good";
constexpr const char* kBad = ZANDIC_TEST_DATA "/xml/bad";
constexpr const char* kExpectedFaults = ZANDIC_TEST_DATA "/expected/xml-faults.txt";
constexpr const char* kFindings = ZANDIC_TEST_DATA "/../../fuzz/corpus/XmlTokenizer";

/// One reading of a text. The text stands alone in its memory, so that the sanitizer sees each byte too many.
class Reading {
public:
    explicit Reading(std::string_view bytes)
        : document_(ZELXMLAsUtf8(bytes)),
          memory_(new char[document_.text.size() + ZELXMLTokenizer::kPadding]()) {
        const std::string_view text = document_.text;
        std::copy(text.begin(), text.end(), memory_.get());
        const bool isUtf8 = document_.source.encoding == ZELXMLEncoding::Utf8;
        ZELXMLPositions positions({memory_.get(), text.size()},
                                  isUtf8 ? ZELXMLTokenizer::MarkLength(text) : 0);
        if (!document_.isValid) {
            fault = ZELXMLFault::BrokenUtf16;
            reason = kZELXMLReasons[static_cast<std::size_t>(fault)];
            place = positions.PositionOf(text.size());
            return;
        }
        ZELXMLTokenizer tokenizer(memory_.get(), text.size(), store, document_.source);
        accepted = tokenizer.Run();
        fault = tokenizer.Fault();
        if (accepted) return;
        reason = tokenizer.Reason();
        place = positions.PositionOf(tokenizer.FaultOffset());
    }

    ZELXMLTapeStore store;
    bool accepted = false;
    ZELXMLFault fault = ZELXMLFault::None;
    std::string reason;
    ZELVBTXMLPosition place;

private:
    ZELXMLUtf8 document_;
    std::unique_ptr<char[]> memory_;
};

/// A document with one of everything, small enough to be cut and changed at each byte.
constexpr std::string_view kSample =
    "\xEF\xBB\xBF<?xml version=\"1.0\" encoding='UTF-8' standalone=\"yes\"?>\r\n"
    "<!DOCTYPE a PUBLIC \"p\" 's' [<!ENTITY % e \"<\"> %e; <!-- c --> <?q r?>]>\n"
    "<!-- \xC3\xA9 -->\n"
    "<a b=\"1&lt;\t&#x41;\r\n&#66;\" \xC3\xA9='\xE2\x82\xAC'>\n"
    "  <c d=\"long enough for several blocks of sixteen\"/>x &amp; y]]\xF0\x9F\x98\x80\n"
    "  <![CDATA[ <x> ]] ]]><?p i?><!-- - -->\n"
    "</a  >\n<?end?>";

TEST(ZELXMLTokenizer, AcceptsEachGoodDocumentAsTheOraclesDo) {
    const auto files = FilesIn(kGood);
    ASSERT_GE(files.size(), 32u);
    for (const auto& file : files) {
        const std::string text = ReadFile(file);

        EXPECT_TRUE(Reading(text).accepted) << file << ": " << Reading(text).reason;
        EXPECT_EQ(ZELXMLDisagreement(text), "") << file;
    }
}

TEST(ZELXMLTokenizer, RefusesEachBadDocumentForItsReasonAtItsPlace) {
    std::string faults;
    for (const auto& file : FilesIn(kBad)) {
        const Reading reading(ReadFile(file));
        ASSERT_FALSE(reading.accepted) << file;
        faults += file.filename().string() + ":" + std::to_string(reading.place.line) + ":" +
                  std::to_string(reading.place.column) + ": " + reading.reason + "\n";
    }

    EXPECT_EQ(faults, ReadFile(kExpectedFaults));
}

TEST(ZELXMLTokenizer, RefusesEachBadDocumentAsLibxmlDoes) {
    for (const auto& file : FilesIn(kBad)) EXPECT_EQ(ZELXMLDisagreement(ReadFile(file)), "") << file;
}

TEST(ZELXMLTokenizer, EveryFaultHasABadDocument) {
    std::set<ZELXMLFault> found;
    for (const auto& file : FilesIn(kBad)) found.insert(Reading(ReadFile(file)).fault);

    for (int fault = 1; fault < static_cast<int>(ZELXMLFault::Count_); ++fault) {
        EXPECT_TRUE(found.contains(static_cast<ZELXMLFault>(fault))) << kZELXMLReasons[fault];
    }
}

TEST(ZELXMLTokenizer, AgreesWithTheOraclesAboutWhatFuzzingFound) {
    for (const auto& file : FilesIn(kFindings)) EXPECT_EQ(ZELXMLDisagreement(ReadFile(file)), "") << file;
}

TEST(ZELXMLTokenizer, AgreesWithTheOraclesWhereverADocumentIsCut) {
    ASSERT_TRUE(Reading(kSample).accepted) << Reading(kSample).reason;
    for (std::size_t length = 0; length < kSample.size(); ++length) {
        EXPECT_EQ(ZELXMLDisagreement(kSample.substr(0, length)), "") << length;
    }
}

TEST(ZELXMLTokenizer, RefusesADocumentCutBeforeItsRootEnds) {
    const std::size_t rootEnd = kSample.find("</a  >") + 6;
    for (std::size_t length = 0; length < rootEnd; ++length) {
        EXPECT_FALSE(Reading(kSample.substr(0, length)).accepted) << length;
    }
    EXPECT_TRUE(Reading(kSample.substr(0, rootEnd)).accepted);
}

TEST(ZELXMLTokenizer, AgreesWithTheOraclesWhicheverByteIsChanged) {
    constexpr std::string_view kBytes = "\0\x01\t\r\n !\"#%&'-/;<=>?A[]x\x7F\x80\xC3\xE2\xED\xF0\xFF"sv;
    for (std::size_t index = 0; index < kSample.size(); ++index) {
        for (const char byte : kBytes) {
            std::string text(kSample);
            text[index] = byte;
            ASSERT_EQ(ZELXMLDisagreement(text), "") << index << " " << static_cast<int>(byte);
        }
    }
}

std::string InUtf16(std::string_view text, bool isBig) {
    std::string bytes = isBig ? "\xFE\xFF" : "\xFF\xFE";
    const auto append = [&](std::uint32_t unit) {
        const char high = static_cast<char>(unit >> 8U);
        const char low = static_cast<char>(unit & 0xFFU);
        bytes += isBig ? high : low;
        bytes += isBig ? low : high;
    };
    const std::string padded = std::string(text) + std::string(4, '\0');
    for (std::size_t offset = 0; offset < text.size();) {
        const ZELXMLCharacter character = ZELXMLDecode(padded.data() + offset);
        offset += character.length;
        if (character.code >= 0x10000) {
            append(0xD800 + ((character.code - 0x10000) >> 10U));
            append(0xDC00 + ((character.code - 0x10000) & 0x3FFU));
        } else {
            append(character.code);
        }
    }
    return bytes;
}

/// The sample without its mark, declared to be in another encoding.
std::string SampleDeclared(std::string_view encoding) {
    std::string text(kSample.substr(3));
    return text.replace(text.find("UTF-8"), 5, encoding);
}

TEST(ZELXMLTokenizer, AgreesWithTheOraclesWhereverADocumentInUtf16IsCut) {
    const std::string text = InUtf16(SampleDeclared("UTF-16"), true);
    ASSERT_TRUE(Reading(text).accepted) << Reading(text).reason;
    for (std::size_t length = 0; length <= text.size(); ++length) {
        EXPECT_EQ(ZELXMLDisagreement(std::string_view(text).substr(0, length)), "") << length;
    }
}

TEST(ZELXMLTokenizer, AgreesWithTheOraclesWhicheverByteOfADocumentInUtf16IsChanged) {
    const std::string sample = InUtf16(SampleDeclared("UTF-16"), false);
    for (std::size_t index = 2; index < sample.size(); ++index) {
        for (const char byte : "\0\x01<&\x80\xD8\xDC\xFF"sv) {
            std::string text = sample;
            text[index] = byte;
            ASSERT_EQ(ZELXMLDisagreement(text), "") << index << " " << static_cast<int>(byte);
        }
    }
}

TEST(ZELXMLTokenizer, PlacesInUtf16CountCharacters) {
    const Reading reading(InUtf16("<a>\xC3\xA9\n\xF0\x9F\x98\x80\xE2\x82\xAC&x;</a>", true));

    EXPECT_EQ(reading.fault, ZELXMLFault::ReferenceUndefined);
    EXPECT_EQ(reading.place.line, 2);
    EXPECT_EQ(reading.place.column, 3);
}

TEST(ZELXMLTokenizer, ReadsAMillionNestedElements) {
    constexpr std::size_t kDepth = 1'000'000;
    std::string text;
    for (std::size_t depth = 0; depth < kDepth; ++depth) text += "<a>";
    for (std::size_t depth = 0; depth < kDepth; ++depth) text += "</a>";

    const Reading reading(text);

    ASSERT_TRUE(reading.accepted);
    EXPECT_EQ(reading.store.elements.Size(), kDepth + 1);
    EXPECT_EQ(reading.store.elements.Data()[kDepth - 1].endOfSubtree, kDepth);
    EXPECT_EQ(reading.store.elements.Data()[0].endOfSubtree, kDepth);
}

TEST(ZELXMLTokenizer, RefusesAMillionElementsThatAreNotClosed) {
    std::string text;
    for (int depth = 0; depth < 1'000'000; ++depth) text += "<a>";

    const Reading reading(text);

    EXPECT_EQ(reading.fault, ZELXMLFault::ElementNotClosed);
    EXPECT_EQ(reading.place.column, 2'999'998);
}

TEST(ZELXMLTokenizer, TakesNoMoreThanItsRecordsForUsualDocuments) {
    EXPECT_EQ(sizeof(ZELVBTXMLElementRecord), 16u);
    EXPECT_EQ(sizeof(ZELVBTXMLAttributeRecord), 8u);

    const Reading reading("<a b='1' c='&amp;' d='\xC3\xA9'/>");

    EXPECT_EQ(reading.store.attributes.Size(), 3u);
    EXPECT_EQ(reading.store.asides.Size(), 1u);
    EXPECT_EQ(reading.store.decodedText.Size(), 1u);
}

TEST(ZELXMLTokenizer, CutsALongNameInItsReason) {
    const std::string name(100, 'n');

    EXPECT_EQ(Reading("<" + name + "></x>").reason,
              "the end tag is not that of the open element \"" + std::string(80, 'n') + "...\"");
}

}  // namespace
