// The faulty documents of tests/data/bad, each with its lines beside it and its corrected form.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "ReaderFixture.h"

namespace {

const std::string kData = ZANDIC_TEST_DATA;

std::vector<std::string> NamesOfBadDocuments() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kData + "/bad")) {
        if (entry.path().extension() == ".metadata") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class BadDocumentTest : public ReaderFixture, public ::testing::WithParamInterface<std::string> {
protected:
    BadDocumentTest() {
        LoadFrom(kData + "/good", "Base");
        ClearWritten();
    }

    HRESULT LoadBad() { return LoadFrom(kDirectories, GetParam()); }

    /// The lines beside the document; "{dirs}" stands for the directories.
    std::string ExpectedLines() const {
        std::ifstream file(kData + "/bad/" + GetParam() + ".trace");
        std::string lines{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        const std::string placeholder = "{dirs}";
        if (const auto start = lines.find(placeholder); start != std::string::npos) {
            lines.replace(start, placeholder.size(), kDirectories);
        }
        return lines;
    }

    const std::string kDirectories = kData + "/bad:" + kData + "/good";
};

TEST_P(BadDocumentTest, FailsWithItsLinesAndLeavesNothing) {
    const int objectsBefore = ZanDicObj::live_Objects();

    EXPECT_EQ(LoadBad(), E_FAIL);

    EXPECT_EQ(DocumentLines(), ExpectedLines());
    EXPECT_NE(DocumentLines(), "");
    EXPECT_FALSE(IsLoaded(GetParam()));
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
}

TEST_P(BadDocumentTest, TheCorrectedDocumentLoadsInTheSameProcess) {
    EXPECT_EQ(LoadBad(), E_FAIL);

    EXPECT_EQ(LoadFrom(kData + "/corrected:" + kData + "/good", GetParam()), S_OK);

    EXPECT_TRUE(IsLoaded(GetParam()));
}

TEST_P(BadDocumentTest, AnObserverThatGoesOnIsToldEachFaultOnceAndNothingIsLeft) {
    const int objectsBefore = ZanDicObj::live_Objects();
    FaultCollector faults;

    EXPECT_EQ(LoadBad(), E_FAIL);

    std::set<std::string> summaries;
    for (const FaultCollector::Row& row : faults.rows) {
        EXPECT_EQ(row.severity, ZanDicSeverity::Error) << row.reason;
        EXPECT_NE(row.reason, "");
        EXPECT_GT(row.place.line, 0) << row.reason;
        summaries.insert(row.file + row.reason + std::to_string(row.place.line));
    }
    EXPECT_EQ(faults.rows.size(), 1U) << faults.Summary();
    EXPECT_EQ(summaries.size(), faults.rows.size());
    EXPECT_FALSE(IsLoaded(GetParam()));
    EXPECT_EQ(ZanDicObj::live_Objects(), objectsBefore);
}

INSTANTIATE_TEST_SUITE_P(Documents, BadDocumentTest, ::testing::ValuesIn(NamesOfBadDocuments()),
                         [](const auto& name) { return name.param; });

}  // namespace
