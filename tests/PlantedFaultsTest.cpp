// A document with faults of different kinds in it, each of them found at its place, and nothing else.
#include <algorithm>
#include <set>

#include "CheckFixture.h"

namespace {

const std::string kData = ZANDIC_TEST_DATA;

/// A document in which "{{CODE}}" marks the place of a fault.
struct Marked {
    std::string document;              ///< without the marks
    std::vector<std::string> planted;  ///< "LINE:COLUMN CODE", sorted
};

Marked ReadMarked(const std::string& text) {
    Marked marked;
    int line = 1;
    int column = 1;
    for (std::size_t at = 0; at < text.size();) {
        if (text.compare(at, 2, "{{") == 0) {
            const std::size_t end = text.find("}}", at);
            marked.planted.push_back(std::to_string(line) + ":" + std::to_string(column) + " " +
                                     text.substr(at + 2, end - at - 2));
            at = end + 2;
            continue;
        }
        const char c = text[at++];
        marked.document += c;
        if (c == '\n') {
            ++line;
            column = 1;
        } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {
            ++column;
        }
    }
    std::sort(marked.planted.begin(), marked.planted.end());
    return marked;
}

std::string InUtf16(const std::string& text) {
    std::string wide = "\xFE\xFF";
    const auto append = [&wide](unsigned unit) {
        wide += static_cast<char>(unit >> 8U);
        wide += static_cast<char>(unit & 0xFFU);
    };
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        unsigned code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (std::size_t next = 1; next < length; ++next) {
            code = code << 6U | (static_cast<unsigned char>(text[at + next]) & 0x3FU);
        }
        at += length;
        if (code < 0x10000) {
            append(code);
        } else {
            append(0xD800 + ((code - 0x10000) >> 10U));
            append(0xDC00 + ((code - 0x10000) & 0x3FFU));
        }
    }
    return wide;
}

class PlantedFaultsTest : public CheckFixture {
protected:
    /// \returns what is found in the document, as Marked has it.
    std::vector<std::string> FoundIn(const std::string& document) {
        Directory().MakeFile("Planted.metadata", document);
        const tool::CheckResult result =
            CheckFile(Directory().Path("Planted.metadata"), kData + "/check:" + kData + "/good");
        std::vector<std::string> found;
        for (const tool::Finding& finding : result.findings) {
            if (finding.cause != tool::Finding::kNone) continue;
            EXPECT_EQ(finding.at.file, Directory().Path("Planted.metadata")) << finding.text;
            found.push_back(std::to_string(finding.at.place.line) + ":" +
                            std::to_string(finding.at.place.column) + " " + std::string(finding.code));
        }
        std::sort(found.begin(), found.end());
        return found;
    }

    const Marked marked = ReadMarked(ContentOf(kData + "/check/Planted.marked"));
};

TEST_F(PlantedFaultsTest, ThereAreThirtyKindsAndMore) {
    std::set<std::string> codes;
    for (const std::string& each : marked.planted) codes.insert(each.substr(each.find(' ')));

    EXPECT_GE(codes.size(), 30U);
    EXPECT_EQ(codes.size(), marked.planted.size());
}

TEST_F(PlantedFaultsTest, EachIsFoundAtItsPlaceAndNothingElse) {
    EXPECT_EQ(FoundIn(marked.document), marked.planted);
}

TEST_F(PlantedFaultsTest, ThePlacesAreTheSameWithOtherLineEnds) {
    std::string document;
    for (const char c : marked.document) document += c == '\n' ? "\r\n" : std::string(1, c);

    EXPECT_EQ(FoundIn(document), marked.planted);
}

TEST_F(PlantedFaultsTest, ThePlacesAreTheSameInUtf16) {
    std::string document = marked.document;
    document.replace(document.find("UTF-8"), 5, "UTF-16");
    std::vector<std::string> expected = marked.planted;

    EXPECT_EQ(FoundIn(InUtf16(document)), expected);
}

}  // namespace
