// A saved package loads back to the same model, and saving that again gives the same text.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <array>
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

}  // namespace
