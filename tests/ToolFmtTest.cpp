// `zandic fmt`: what becomes of files; tests/FormattedTest.cpp holds the layout itself.
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "ToolRunner.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kLaidOut = "<Package Name=\"P\">\n  <Class Name=\"C\"/>\n</Package>\n";
constexpr const char* kOther = "<Package  Name='P'><Class Name='C'/></Package>";
constexpr const char* kIllFormed = "<Package>\n  <Class>\n</Package>\n";

std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

class ToolFmtTest : public ToolTest {
protected:
    void ExpectWrongUse(const std::vector<std::string>& arguments, const std::string& line) const {
        const ToolRun run = Run(arguments);

        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: error: " + line + " (see 'zandic fmt --help')\n");
    }

    /// \returns how the files of the test's directory are called.
    std::size_t FilesThere() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(Own().Path()), {}));
    }
};

TEST_F(ToolFmtTest, RewritesAFileAndNamesIt) {
    const std::string file = Own().MakeFile("P.metadata", kOther);

    const ToolRun run = Run({"fmt", file});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, file + "\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(TextOf(file), kLaidOut);
    EXPECT_EQ(FilesThere(), 1U);
}

TEST_F(ToolFmtTest, LeavesAFileInTheLayoutUntouched) {
    const std::string file = Own().MakeFile("P.metadata", kLaidOut);
    const auto before = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, before);

    const ToolRun run = Run({"fmt", file});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(fs::last_write_time(file), before);
}

TEST_F(ToolFmtTest, TwiceGivesTheSameBytes) {
    const std::string file = Own().Path("BomItems.metadata");
    fs::copy_file(ZANDIC_SAMPLES "/BomItems.metadata", file);
    EXPECT_EQ(Run({"fmt", file}).status, 0);
    const std::string once = TextOf(file);

    const ToolRun run = Run({"fmt", file});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(TextOf(file), once);
}

TEST_F(ToolFmtTest, TheModelIsTheSameBeforeAndAfter) {
    std::vector<std::string> arguments{"fmt"};
    std::vector<std::string> dump{"--quiet", "dump", "--json"};
    for (const auto& entry : fs::directory_iterator(ZANDIC_SAMPLES)) {
        const std::string name = entry.path().filename().string();
        fs::copy_file(entry.path(), Own().Path(name));
        arguments.push_back(Own().Path(name));
        if (!name.ends_with(".tuning")) dump.push_back(name);
    }
    std::sort(dump.begin() + 3, dump.end());
    const std::string before = OnOwn(dump).out;

    const ToolRun run = Run(arguments);

    EXPECT_EQ(run.status, 0);
    EXPECT_GT(LinesIn(run.out), 5);
    EXPECT_GT(before.size(), 10'000U);
    EXPECT_TRUE(OnOwn(dump).out == before);
}

TEST_F(ToolFmtTest, WhatWasSavedIsInTheLayout) {
    ASSERT_EQ(
        OnSample({"--quiet", "save", "BomItems", "BomServices", "BomStorageMap.rbomap", "--to", Own().Path()})
            .status,
        0);

    const ToolRun run = Run({"fmt", "--check", Own().Path("BomItems.metadata"),
                             Own().Path("BomServices.metadata"), Own().Path("BomStorageMap.rbomap")});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
}

TEST_F(ToolFmtTest, CheckWritesNothingAndNamesWhatItWould) {
    const std::string other = Own().MakeFile("Other.metadata", kOther);
    const std::string same = Own().MakeFile("Same.metadata", kLaidOut);

    const ToolRun run = Run({"fmt", "--check", other, same});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, other + "\n");
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(TextOf(other), kOther);
    EXPECT_EQ(Run({"fmt", "--check", same}).status, 0);
}

TEST_F(ToolFmtTest, RefusesWhatIsNotWellFormedAndGoesOn) {
    const std::string bad = Own().MakeFile("Bad.metadata", kIllFormed);
    const std::string good = Own().MakeFile("Good.metadata", kOther);

    const ToolRun run = Run({"fmt", bad, good});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, good + "\n");
    EXPECT_EQ(WithoutPlaces(run.err),
              "zandic: own/Bad.metadata:3:1: error: the end tag is not that of the open element \"Class\"\n");
    EXPECT_EQ(TextOf(bad), kIllFormed);
    EXPECT_EQ(TextOf(good), kLaidOut);
}

TEST_F(ToolFmtTest, RefusesWhatIsNoFile) {
    const std::string directory = Own().MakeDirectory("there");

    const ToolRun run = Run({"fmt", directory, Own().Path("missing")});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(WithoutPlaces(run.err),
              "zandic: own/there: error: Is a directory\n"
              "zandic: own/missing: error: No such file or directory\n");
}

TEST_F(ToolFmtTest, FollowsALinkAndKeepsIt) {
    const std::string file = Own().MakeFile("P.metadata", kOther);
    const std::string link = Own().Path("link");
    fs::create_symlink("P.metadata", link);

    const ToolRun run = Run({"fmt", link});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, link + "\n");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(TextOf(file), kLaidOut);
}

TEST_F(ToolFmtTest, KeepsThePermissions) {
    const std::string file = Own().MakeFile("P.metadata", kOther);
    fs::permissions(file, fs::perms(0640));

    EXPECT_EQ(Run({"fmt", file}).status, 0);

    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

TEST_F(ToolFmtTest, ADiskThatIsFullLeavesTheFileAsItWas) {
    const std::string file = Own().MakeFile("P.metadata", kOther);

    EXPECT_EQ(Shell("ulimit -f 0; \"$TOOL\" fmt '" + file + "' > /dev/null 2> /dev/null"), 1);

    EXPECT_EQ(TextOf(file), kOther);
    EXPECT_EQ(FilesThere(), 1U);
}

TEST_F(ToolFmtTest, OtherEncodingsBecomeUtf8) {
    const std::string file =
        Own().MakeFile("P.metadata", "<?xml version='1.0' encoding='ISO-8859-1'?><Package Alias='\xE9'/>");

    EXPECT_EQ(Run({"fmt", file}).status, 0);

    EXPECT_EQ(TextOf(file), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Package Alias=\"\xC3\xA9\"/>\n");
}

TEST_F(ToolFmtTest, TellsInJsonWhatChanged) {
    const std::string other = Own().MakeFile("Other.metadata", kOther);
    const std::string same = Own().MakeFile("Same.metadata", kLaidOut);

    const ToolRun run = Run({"fmt", "--check", "--json", other, same});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(nlohmann::json::parse(run.out),
              (nlohmann::json{
                  {"files", {{{"file", other}, {"changed", true}}, {{"file", same}, {"changed", false}}}}}));
}

TEST_F(ToolFmtTest, NeedsAFile) {
    ExpectWrongUse({"fmt"}, "FILE is missing");
    ExpectWrongUse({"fmt", "--chek", "x"}, "there is no option '--chek'; did you mean --check?");
}

}  // namespace
