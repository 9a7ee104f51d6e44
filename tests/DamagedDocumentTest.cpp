// Good documents, cut at every byte and changed at every byte: a load takes them or refuses them with a line,
// and what it refuses leaves nothing behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <set>

#include "ReaderFixture.h"

namespace {

const std::string kGood = ZANDIC_TEST_DATA "/good";

/// A document that a load reads, and the package that is loaded for it.
struct Damaged {
    const char* package;
    const char* file;
};
void PrintTo(const Damaged& damaged, std::ostream* out) { *out << damaged.file; }

constexpr Damaged kDamaged[] = {
    {"SaveRelations", "SaveRelations.metadata"},      {"SaveSimple", "SaveSimple.metadata"},
    {"SaveExtensions", "SaveExtensions.metadata"},    {"SaveInterfaces", "SaveInterfaces.metadata"},
    {"SaveTablesMap.rbomap", "SaveTablesMap.rbomap"}, {"Tuned", "Tuned.tuning"},
};

class DamagedDocumentTest : public ReaderFixture, public ::testing::WithParamInterface<Damaged> {
protected:
    DamagedDocumentTest() {
        const std::string_view asked = GetParam().package;
        EXPECT_EQ(LoadWith(text), S_OK);
        for (const std::string& name : LoadedPackages()) {
            if (name != asked.substr(0, asked.find('.'))) needed.insert(name);
        }
        Manager().End();
        objectsBefore = ZanDicObj::live_Objects();
    }

    static std::string Read(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    HRESULT LoadWith(std::string_view damagedText) {
        // A file that is made anew waits for no disk; one that is cut to nothing and written again may.
        std::filesystem::remove(Directory().Path(GetParam().file));
        Directory().MakeFile(GetParam().file, damagedText);
        return LoadFrom(Directory().Path() + ":" + kGood, GetParam().package);
    }

    std::set<std::string> LoadedPackages() {
        HeldList packages;
        Manager().GetPackages(&packages);
        std::set<std::string> names;
        for (IUnknown* const face : packages) names.insert(NameOf(*static_cast<OXMIDicPackage*>(face)));
        return names;
    }

    /// Loads a damaged text into an empty dictionary.
    void ExpectWholeOrNothing(std::string_view damagedText) {
        ClearWritten();
        Manager().Init(0);
        if (Failed(LoadWith(damagedText))) {
            EXPECT_NE(DocumentLines(), "");
            std::set<std::string> left = LoadedPackages();
            for (const std::string& name : needed) left.erase(name);
            EXPECT_THAT(left, testing::IsEmpty());
        }
        Manager().End();
        EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
    }

    const std::string text = Read(kGood + "/" + GetParam().file);
    std::set<std::string> needed;  ///< packages that stay when the load fails
    int objectsBefore = 0;         ///< in an empty dictionary
};

INSTANTIATE_TEST_SUITE_P(Good, DamagedDocumentTest, testing::ValuesIn(kDamaged), [](const auto& test) {
    std::string name = test.param.file;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

TEST_P(DamagedDocumentTest, CutAnywhere) {
    for (std::size_t length = 0; length < text.size(); ++length) {
        ExpectWholeOrNothing(text.substr(0, length));
        ASSERT_FALSE(HasFailure()) << "cut at " << length;
    }
}

TEST_P(DamagedDocumentTest, ChangedAnywhere) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char flipped = static_cast<char>(text[at] ^ 1);
        for (const char other : {'\0', '\xFF', '<', '"', ' ', flipped}) {
            std::string changed = text;
            changed[at] = other;
            ExpectWholeOrNothing(changed);
            ASSERT_FALSE(HasFailure()) << "byte " << at << " is " << static_cast<int>(other);
        }
    }
}

TEST_P(DamagedDocumentTest, WithoutAnyOneByte) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::string shorter = text;
        shorter.erase(at, 1);
        ExpectWholeOrNothing(shorter);
        ASSERT_FALSE(HasFailure()) << "without byte " << at;
    }
}

}  // namespace
