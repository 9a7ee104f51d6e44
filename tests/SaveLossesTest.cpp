#include "SaveLosses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "DumpJson.h"
#include "Normalised.h"
#include "RandomModel.h"
#include "SaveFixture.h"
#include "ZANDicWords.h"
#include "zandic.hpp"

static void PrintTo(const LossRow& row, std::ostream* out) { *out << row.what; }

namespace {

using testing::HasSubstr;

std::string Guide() { return FileText(ZANDIC_TEST_DATA "/../../docs/saving.md"); }

TEST(SaveLossesTest, TheGuideHasTheTables) {
    EXPECT_THAT(Guide(), HasSubstr(TableOfProperties()));
    EXPECT_THAT(Guide(), HasSubstr(TableOfLosses(true)));
    EXPECT_THAT(Guide(), HasSubstr(TableOfLosses(false)));
}

TEST(SaveLossesTest, EachLossHasOneRowInOrder) {
    int next = 0;
    for (const LossRow& row : LossRows()) EXPECT_EQ(static_cast<int>(row.loss), next++) << row.what;
    EXPECT_EQ(static_cast<int>(Loss::OddLink) + 1, next);
}

/// What became of a random model.
enum class Outcome { NotSaved, NotLoaded, Different, Same };

/// Each loss that random models can have: without it they come back, with it some do not.
class DrawnLossTest : public SaveFixture, public testing::WithParamInterface<LossRow> {
protected:
    Outcome RoundTrip(unsigned seed) {
        StartAnew();
        ClearWritten();
        MakeRandomModel(Manager(), SeededChoice(seed), GetParam().loss);
        const zandic::Dictionary dictionary = zandic::Dictionary::Open();
        const std::string made = tool::DumpText(dictionary);
        for (const char* const domain : {"VALKOR", "DUVRA", "OTHER"}) {
            for (OXMIDicPackage& package : dictionary.Packages(domain)) {
                const ZELString name = zandic::Name(package);
                if (Failed(Manager().SaveXml(directory.Path().c_str(), &name))) return Outcome::NotSaved;
            }
        }
        StartAnew();
        for (const char* const name : {"Scope", "Top"}) {
            if (Failed(LoadFrom(directory.Path(), name))) return Outcome::NotLoaded;
        }
        const bool isSame = tool::Normalised(tool::DumpText(dictionary)) == tool::Normalised(made);
        return isSame ? Outcome::Same : Outcome::Different;
    }
};

TEST_P(DrawnLossTest, IsOne) {
    Outcome outcome = Outcome::Same;
    for (unsigned seed = 1; seed <= 200 && outcome == Outcome::Same; ++seed) outcome = RoundTrip(seed);

    EXPECT_NE(outcome, Outcome::Same) << GetParam().what;
    EXPECT_EQ(outcome == Outcome::Different, GetParam().loads) << GetParam().what;
}

std::vector<LossRow> DrawnLosses() {
    std::vector<LossRow> rows;
    for (const LossRow& row : LossRows()) {
        if (row.isDrawn) rows.push_back(row);
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(Losses, DrawnLossTest, testing::ValuesIn(DrawnLosses()));

}  // namespace
