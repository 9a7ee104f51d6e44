// Rings of packages and documents in other encodings: whichever way they are loaded, one model.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

using Json = nlohmann::json;

std::string Uuid(int number) {
    const std::string digits = std::to_string(number);
    return "0C000000-0000-0000-" + std::string(16 - digits.size(), '0') + digits;
}

std::string Id(const std::string& name, int number) {
    return " Name=\"" + name + "\" Uuid=\"" + Uuid(number) + "\"";
}

/// The lists whose order depends on who was loaded first.
constexpr const char* kUnordered[] = {"packages", "subclasses", "invertedBy", "injectivesPointingOnMe",
                                      "blocks",   "allBlocks"};

/// \p model with those lists in an order of their own.
Json Ordered(Json model) {
    if (model.is_array() || model.is_object()) {
        for (Json& each : model) each = Ordered(each);
    }
    if (!model.is_object()) return model;
    for (const char* const key : kUnordered) {
        if (model.contains(key) && model[key].is_array()) std::sort(model[key].begin(), model[key].end());
    }
    return model;
}

std::string ClassOf(int member) { return Uuid(member * 10 + 1); }
std::string BlockOf(int member) { return Uuid(member * 10 + 7); }

/// An element without content.
std::string Tag(const std::string& tag, const std::string& identity, const std::string& attributes) {
    return "<" + tag + identity + " " + attributes + "/>";
}
std::string Tag(const std::string& tag, const std::string& identity, const std::string& attributes,
                const std::string& content) {
    return "<" + tag + identity + " " + attributes + ">" + content + "</" + tag + ">";
}
std::string Reference(const std::string& word, const std::string& uuids) {
    return " " + word + "=\"" + uuids + "\"";
}

class ToolRingTest : public ToolTest {
protected:
    /// A member of a ring of \p count: it uses the next one and itself, or has them among its scope packages.
    /// Its first class C leans on those of the member before and of the one behind, and so does its block;
    /// its second one D, with a block too, is below the C of the member before.
    void MakeMember(int number, int count, const std::string& useWord, const std::string& others = "",
                    const std::string& content = "") const {
        const int next = (number + 1) % count;
        const int before = (number + count - 1) % count;
        const bool isLast = next == 0;  // where the ring of super classes and of fathers is open
        const std::string name = "M" + std::to_string(number);
        const auto id = [&](const std::string& text, int offset) { return Id(text, number * 10 + offset); };
        const std::string own = std::to_string(number);
        const std::string first =
            Tag("Simple", id("s" + own, 2), "Type=\"String\"") +
            Tag("Relationship", id("r" + own, 3),
                "Injective=\"Yes\"" + Reference("TargetRef", ClassOf(next)) +
                    Reference("ScopeRefs", ClassOf(before) + " " + ClassOf(number))) +
            Tag("Inverse", id("i" + own, 4),
                Reference("TargetRef", ClassOf(before)) + Reference("InverseOfRef", Uuid(before * 10 + 3)));
        Own().MakeFile(
            name + ".metadata",
            Tag("Package", id(name, 0), useWord + "=\"M" + std::to_string(next) + " " + name + others + "\"",
                Tag("Class", id("C" + own, 1),
                    "Persistent=\"Yes\" Extensible=\"Yes\"" + Reference("ReferenceRef", ClassOf(before)) +
                        (isLast ? "" : Reference("SuperRef", ClassOf(next))),
                    first) +
                    Tag("Class", id("D" + own, 6),
                        "Persistent=\"Yes\"" + Reference("SuperRef", ClassOf(before)),
                        Tag("Simple", id("t", 8), "Type=\"String\"")) +
                    Tag("Extension", id("E" + own, 5),
                        "Persistent=\"No\"" + Reference("ScopeRefs", ClassOf(next) + " " + ClassOf(before))) +
                    content));
        const std::string block =
            Reference("Uuid", BlockOf(number)) + Reference("AttributeUuids", Uuid(number * 10 + 2));
        Own().MakeFile(
            name + ".tuning",
            Tag("Package", id(name, 0), "",
                Tag("Class", id("C" + own, 1), "",
                    isLast ? Tag("AttributeBlock", block, "Name=\"Sheet\"")
                           : Tag("AttributeBlockExtension", block, Reference("Extents", BlockOf(next)))) +
                    Tag("Class", id("D" + own, 6), "",
                        Tag("AttributeBlockExtension", "",
                            Reference("Uuid", Uuid(number * 10 + 9)) +
                                Reference("AttributeUuids", Uuid(number * 10 + 8)) +
                                Reference("Extents", BlockOf(before))))));
    }

    Json DumpFrom(const std::string& name) const {
        const ToolRun run = OnOwn({"dump", "--json", name});
        EXPECT_EQ(run.status, 0) << run.err;
        EXPECT_EQ(run.err, "");
        return run.status == 0 ? Ordered(Json::parse(run.out)) : Json();
    }

    /// The attributes of the one own block of a class in a dump.
    static Json AttributesOfBlock(const Json& dump, const std::string& package, const std::string& name) {
        const auto named = [](const Json& list, const std::string& wanted) {
            return *std::find_if(list.begin(), list.end(),
                                 [&](const Json& each) { return each["name"] == wanted; });
        };
        return named(named(dump["packages"], package)["elements"], name)["blocks"][0]["attributes"];
    }

    /// \param count of the ring. \param others packages that it uses.
    void ExpectOneModel(int count, std::size_t others = 0) const {
        const Json first = DumpFrom("M0");
        EXPECT_EQ(first["packages"].size(), static_cast<std::size_t>(count) + others);
        EXPECT_EQ(AttributesOfBlock(first, "M0", "C0").size(), static_cast<std::size_t>(count));
        const std::string last = std::to_string(count - 1);
        EXPECT_EQ(AttributesOfBlock(first, "M0", "D0"),
                  Json({"M0::D0::t", "M" + last + "::C" + last + "::s" + last}));
        for (int number = 1; number < count; ++number) {
            EXPECT_EQ(DumpFrom("M" + std::to_string(number)), first) << number;
        }
    }
};

TEST_F(ToolRingTest, TwoPackagesGiveOneModelFromEachOfThem) {
    for (int number = 0; number < 2; ++number) MakeMember(number, 2, "UseNames");

    ExpectOneModel(2);
}

TEST_F(ToolRingTest, FivePackagesGiveOneModelFromEachOfThem) {
    for (int number = 0; number < 5; ++number) MakeMember(number, 5, "UseNames");

    ExpectOneModel(5);
}

TEST_F(ToolRingTest, ARingByUseScopesGivesOneModelFromEachMember) {
    for (int number = 0; number < 5; ++number) MakeMember(number, 5, "UseScopes");

    ExpectOneModel(5);
}

TEST_F(ToolRingTest, ARingByBothGivesOneModelFromEachMember) {
    for (int number = 0; number < 5; ++number)
        MakeMember(number, 5, number % 2 == 0 ? "UseScopes" : "UseNames");

    ExpectOneModel(5);
}

TEST_F(ToolRingTest, APackageUsedByTwoMembersIsLoadedOnce) {
    Own().MakeFile("Base.metadata",
                   Tag("Package", Id("Base", 900), "", Tag("Class", Id("B", 901), "Persistent=\"Yes\"")));
    for (int number = 0; number < 5; ++number) {
        const bool usesBase = number == 1 || number == 3;
        MakeMember(number, 5, "UseNames", usesBase ? " Base" : "",
                   usesBase ? Tag("Class", Id("K" + std::to_string(number), 910 + number),
                                  "Persistent=\"Yes\"" + Reference("SuperRef", Uuid(901)))
                            : "");
    }

    ExpectOneModel(5, 1);
}

TEST_F(ToolRingTest, ARingWhoseLastMemberFailsIsRefusedFromEachMember) {
    for (int number = 0; number < 5; ++number) MakeMember(number, 5, "UseNames");
    Own().MakeFile("M4.metadata", "<Package" + Id("M4", 40) + " UseNames=\"M0\"><Class/></Package>");
    for (int number = 0; number < 5; ++number) {
        const ToolRun run = OnOwn({"--quiet", "load", "M" + std::to_string(number)});

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(LastLine(WithoutPlaces(run.err)),
                  "zandic: own/M4.metadata:1:77: error: attribute Name of Class is missing");
    }
}

// Encodings.

/// The characters of UTF-8 text, each less than U+10000.
std::u16string Characters(const std::string& text) {
    std::u16string characters;
    for (std::size_t index = 0; index < text.size();) {
        const auto byte = [&](std::size_t offset) {
            return static_cast<unsigned char>(text[index + offset]);
        };
        const int length = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : 3;
        const unsigned code = length == 1 ? byte(0)
                              : length == 2
                                  ? (byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU)
                                  : (byte(0) & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
        characters += static_cast<char16_t>(code);
        index += static_cast<std::size_t>(length);
    }
    return characters;
}

enum class Encoding { Utf16Little, Utf16Big, Latin1 };

std::string Encoded(const std::string& text, Encoding encoding) {
    std::string bytes;
    for (const char16_t character : u"\uFEFF" + Characters(text)) {
        const char high = static_cast<char>(character >> 8);
        const char low = static_cast<char>(character & 0xFF);
        if (encoding == Encoding::Utf16Big) bytes += {high, low};
        if (encoding == Encoding::Utf16Little) bytes += {low, high};
        if (encoding != Encoding::Latin1 || character == u'\uFEFF') continue;
        if (character < 0x100) {
            bytes += low;
        } else {
            bytes += "&#" + std::to_string(static_cast<unsigned>(character)) + ";";
        }
    }
    return bytes;
}

class ToolEncodingTest : public ToolTest, public ::testing::WithParamInterface<Encoding> {};

TEST_P(ToolEncodingTest, CopiesOfTheSampleGiveTheSameDump) {
    const char* const word = GetParam() == Encoding::Latin1 ? "ISO-8859-1" : "UTF-16";
    int copies = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ZANDIC_SAMPLES)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream file(entry.path());
        std::string text{std::istreambuf_iterator<char>(file), {}};
        ASSERT_NE(text.find("UTF-8"), std::string::npos) << entry.path();
        text.replace(text.find("UTF-8"), 5, word);
        Own().MakeFile(entry.path().filename().string(), Encoded(text, GetParam()));
        ++copies;
    }
    ASSERT_GE(copies, 5);

    const std::vector<std::string> dump = {
        "--quiet", "dump", "--json", "BomWorkshop", "BomEffectivity", "BomServices", "BomStorageMap.rbomap"};
    const ToolRun run = OnOwn(dump);

    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, OnSample(dump).out);
}

INSTANTIATE_TEST_SUITE_P(Encodings, ToolEncodingTest,
                         ::testing::Values(Encoding::Utf16Little, Encoding::Utf16Big, Encoding::Latin1));

}  // namespace
