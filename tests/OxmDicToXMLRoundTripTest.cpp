// A saved package loads back to the same model, and saving that again gives the same text.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "DumpJson.h"
#include "Normalised.h"
#include "RandomModel.h"
#include "SaveFixture.h"
#include "ZANDicValueWords.h"
#include "ZANDicWords.h"
#include "zandic.hpp"

namespace {

namespace fs = std::filesystem;

const std::string kGood = ZANDIC_TEST_DATA "/good";
const std::string kCorrected = ZANDIC_TEST_DATA "/corrected";

/// \returns the texts of the directory's files, by name; those that end in \p extension where one is given.
std::map<std::string, std::string> FilesIn(const std::string& directory, std::string_view extension = "") {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(directory)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(extension)) files[name] = FileText(entry.path().string());
    }
    return files;
}

template <class Value>
std::vector<std::string> KeysOf(const std::map<std::string, Value>& map) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : map) keys.push_back(key);
    return keys;
}

class OxmDicToXMLRoundTripTest : public SaveFixture {
protected:
    OxmDicToXMLRoundTripTest()
        : _First(directory.MakeDirectory("first")), _Second(directory.MakeDirectory("second")) {}

    const std::string& First() const { return _First; }
    const std::string& Second() const { return _Second; }

    static std::string Dump() { return tool::DumpText(zandic::Dictionary::Open()); }

    HRESULT LoadAll(const std::string& path, const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            if (const HRESULT rc = LoadFrom(path, name.c_str()); rc != S_OK) return rc;
        }
        return S_OK;
    }

    /// Saves every package that is loaded.
    void SaveAll(const std::string& to) {
        for (const std::string_view domain : ZANDicFormat::kDomains) {
            for (OXMIDicPackage& package : zandic::Dictionary::Open().Packages(domain)) {
                const ZELString name = zandic::Name(package);
                EXPECT_EQ(Manager().SaveXml(to.c_str(), &name), S_OK) << name.View();
            }
        }
    }

    /// Copies the tuning documents, which are not saved, of the packages that are.
    static void CopyTunings(const std::string& path, const std::string& to) {
        const std::string from = path.substr(0, path.find(':'));
        for (const auto& [name, text] : FilesIn(from, ".tuning")) {
            const std::string package = name.substr(0, name.find('.'));
            if (fs::exists(to + "/" + package + ".metadata"))
                fs::copy_file(from + "/" + name, to + "/" + name);
        }
    }

    /// Loads the packages, saves all that is loaded, and does the same with what was saved. Checks that the
    /// models and the texts are equal.
    void ExpectRoundTrip(const std::string& from, const std::vector<std::string>& names) {
        ASSERT_EQ(LoadAll(from, names), S_OK) << Written();
        const std::string loaded = Dump();
        SaveAll(_First);
        CopyTunings(from, _First);

        StartAnew();
        ASSERT_EQ(LoadAll(_First, names), S_OK) << Written();
        const std::string again = Dump();
        SaveAll(_Second);
        CopyTunings(_First, _Second);

        StartAnew();
        ASSERT_EQ(LoadAll(_Second, names), S_OK) << Written();
        EXPECT_EQ(tool::Normalised(again), tool::Normalised(loaded));
        EXPECT_EQ(Dump(), again);
        EXPECT_EQ(FilesIn(_Second), FilesIn(_First));
    }

private:
    std::string _First;
    std::string _Second;
};

TEST_F(OxmDicToXMLRoundTripTest, RandomModelsReadBackAsTheyWere) {
    rc::check([&] {
        StartAnew();
        MakeRandomModel(Manager(), [](int count) {
            return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0, count));
        });
        const std::string made = Dump();
        SaveAll(First());

        StartAnew();
        ClearWritten();
        RC_ASSERT(LoadFrom(First(), "Top") == S_OK);
        const std::string loaded = Dump();
        SaveAll(Second());

        StartAnew();
        ClearWritten();
        RC_ASSERT(LoadFrom(Second(), "Top") == S_OK);
        RC_ASSERT(tool::Normalised(loaded) == tool::Normalised(made));
        RC_ASSERT(Dump() == loaded);
        RC_ASSERT(FilesIn(Second()) == FilesIn(First()));
    });
}

/// Makes the metadata of a package a document of another content kind, and the others ask for that. Their
/// lists have one name.
void ChangeContent(const std::string& where, const std::string& package, const std::string& content) {
    fs::rename(where + "/" + package + ".metadata", where + "/" + package + "." + content);
    for (const auto& [name, text] : FilesIn(where)) {
        std::string changed = text;
        for (const char* const list : {" UseNames=\"", " UseScopes=\""}) {
            const std::string named = list + package;
            const std::size_t place = changed.find(named + "\"");
            if (place != changed.npos) changed.insert(place + named.size(), "." + content);
        }
        std::ofstream(where + "/" + name, std::ios::binary) << changed;
    }
}

class OxmDicToXMLContentTest : public OxmDicToXMLRoundTripTest,
                               public testing::WithParamInterface<const char*> {};

TEST_P(OxmDicToXMLContentTest, DocumentsStayOfTheirKind) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        for (const std::string& where : {First(), Second()}) {
            fs::remove_all(where);
            fs::create_directory(where);
        }
        StartAnew();
        MakeRandomModel(Manager(), SeededChoice(seed));
        const std::string made = Dump();
        SaveAll(First());
        ChangeContent(First(), "Base", GetParam());
        ChangeContent(First(), "Scope", GetParam());

        StartAnew();
        ClearWritten();
        ASSERT_EQ(LoadFrom(First(), "Top"), S_OK) << Written();
        EXPECT_EQ(tool::Normalised(Dump()), tool::Normalised(made));
        SaveAll(Second());
        EXPECT_EQ(FilesIn(Second()), FilesIn(First()));
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, OxmDicToXMLContentTest, testing::Values("rbodef", "rbomap", "metaplm"),
                         [](const auto& content) { return std::string(content.param); });

TEST_F(OxmDicToXMLRoundTripTest, TheSampleReadsBackAsItWas) {
    ExpectRoundTrip(ZANDIC_SAMPLES, {"BomEffectivity", "BomServices", "BomStorageMap.rbomap", "BomWorkshop"});
}

TEST_F(OxmDicToXMLRoundTripTest, PackagesThatUseEachOtherReadBackAsTheyWere) {
    ExpectRoundTrip(ZANDIC_TEST_DATA "/ring", {"RA"});
}

TEST_F(OxmDicToXMLRoundTripTest, EachPackageOfTheSampleIsSavedAsTheKindOfItsDocument) {
    ASSERT_EQ(
        LoadAll(ZANDIC_SAMPLES, {"BomEffectivity", "BomServices", "BomStorageMap.rbomap", "BomWorkshop"}),
        S_OK);
    SaveAll(First());
    CopyTunings(ZANDIC_SAMPLES, First());

    EXPECT_EQ(KeysOf(FilesIn(First())), KeysOf(FilesIn(ZANDIC_SAMPLES)));
}

/// One document of the test data: its directory and its name there.
struct Document {
    std::string directory;
    std::string name;
};

class OxmDicToXMLRoundTripOfDocumentTest : public OxmDicToXMLRoundTripTest,
                                           public ::testing::WithParamInterface<Document> {};

TEST_P(OxmDicToXMLRoundTripOfDocumentTest, ReadsBackAsItWas) {
    ExpectRoundTrip(GetParam().directory + ":" + kGood, {GetParam().name});
}

std::vector<Document> DocumentsIn(const std::string& directory) {
    std::vector<Document> documents;
    for (const auto& entry : fs::directory_iterator(directory)) {
        if (entry.path().extension() != ".tuning") {
            documents.push_back({directory, entry.path().filename().string()});
        }
    }
    std::sort(documents.begin(), documents.end(),
              [](const Document& a, const Document& b) { return a.name < b.name; });
    return documents;
}

std::string NameOfCase(const ::testing::TestParamInfo<Document>& document) {
    return document.param.name.substr(0, document.param.name.find('.'));
}

INSTANTIATE_TEST_SUITE_P(Good, OxmDicToXMLRoundTripOfDocumentTest, ::testing::ValuesIn(DocumentsIn(kGood)),
                         NameOfCase);
INSTANTIATE_TEST_SUITE_P(Corrected, OxmDicToXMLRoundTripOfDocumentTest,
                         ::testing::ValuesIn(DocumentsIn(kCorrected)), NameOfCase);

}  // namespace
