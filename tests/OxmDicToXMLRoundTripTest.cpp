// A saved package loads back to the same model, and saving that again gives the same text.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "ModelText.h"
#include "RandomModel.h"
#include "SaveFixture.h"

namespace {

class OxmDicToXMLRoundTripTest : public SaveFixture {
protected:
    /// Saves each of \p packages. \returns the documents, one behind the other.
    std::string SaveAll(const std::vector<std::string>& packages) {
        std::string texts;
        for (const std::string& package : packages) texts += SavedText(package.c_str());
        return texts;
    }

    /// Loads the packages of a directory of documents, saves them and loads what was saved.
    void ExpectThatSavedDocumentsReadBack(const std::string& documents) {
        std::vector<std::string> packages;
        for (const auto& entry : std::filesystem::directory_iterator(documents)) {
            if (entry.path().extension() == ".metadata") packages.push_back(entry.path().stem().string());
        }
        std::sort(packages.begin(), packages.end());
        ASSERT_FALSE(packages.empty());
        for (const std::string& package : packages) ASSERT_EQ(LoadFrom(documents, package.c_str()), S_OK);
        const std::string model = ModelText(Manager());
        const std::string saved = SaveAll(packages);

        StartAnew();
        for (const std::string& package : packages) {
            ASSERT_EQ(LoadFrom(directory.Path(), package.c_str()), S_OK);
        }

        EXPECT_EQ(ModelText(Manager()), model);
        EXPECT_EQ(SaveAll(packages), saved);
    }
};

TEST_F(OxmDicToXMLRoundTripTest, RandomModelsReadBackAsTheyWere) {
    const std::vector<std::string> packages = {"Base", "Scope", "Top"};
    rc::check([&] {
        StartAnew();
        MakeRandomModel(Manager());
        const std::string model = ModelText(Manager());
        const std::string saved = SaveAll(packages);

        StartAnew();
        ClearWritten();
        RC_ASSERT(LoadFrom(directory.Path(), "Top") == S_OK);

        RC_ASSERT(ModelText(Manager()) == model);
        RC_ASSERT(SaveAll(packages) == saved);
    });
}

TEST_F(OxmDicToXMLRoundTripTest, TheSampleDictionaryReadsBackAsItWas) {
    ExpectThatSavedDocumentsReadBack(ZANDIC_SAMPLES);
}

}  // namespace
