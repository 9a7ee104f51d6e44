// What holds for every command: the same input gives the same bytes, and a reader that goes ends it quietly.
#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

#include "ToolRunner.h"

namespace {

constexpr int kBrokenPipe = 141;

/// Command lines that together use every command; TO is a directory of the test.
const std::vector<std::vector<std::string>> kRuns = {
    {"tree"},
    {"tree", "--attributes", "--depth", "1", "BomItems::BomItem", "BomServices"},
    {"tree", "--json"},
    {"find", "*"},
    {"find", "--refers-to", "BomPeople::BomPerson"},
    {"find", "--json", "*part*"},
    {"find", "BomPrt"},
    {"show"},
    {"show", "BomItems::BomPart", "BomStorageMap.rbomap::ItemMapping", "BomItems::BomNobody"},
    {"show", "5AAF3900-5E46-4551-BB9AE4FD947B8003"},
    {"show", "--json"},
    {"blocks"},
    {"blocks", "--json"},
    {"check", "--all"},
    {"check", "--all", "--format", "sarif"},
    {"check", "--all", "--format", "junit", "--strict"},
    {"check", "--json", "BomItems", "BomNobody"},
    {"explain"},
    {"explain", "--json", "duplicate-uuid"},
    {"stats", "--no-times"},
    {"stats", "--no-times", "--json"},
    {"load", "--no-times"},
    {"load", "--no-times", "--json", "BomServices", "BomStorageMap.rbomap"},
    {"dump", "--json"},
    {"save", "--to", "TO", "BomItems", "BomDocuments"},
    {"save", "--to", "TO", "--json"},
    {"express", "--to", "TO"},
    {"express", "--stdout"},
    {"why", "BomItems::BomAssembly::Description", "BomServices::BomExportData::PreferredSupplier"},
    {"why", "--json", "BomItems::BomPart::ItemNumber"},
    {"graph"},
    {"graph", "--format", "dot", "--max-boxes", "5", "--max-rows", "2"},
    {"graph", "--format", "mermaid", "BomItems"},
    {"graph", "--json", "--around", "BomItems::BomPart", "--depth", "2"},
    {"fmt", "--check", ZANDIC_SAMPLES "/BomItems.metadata", ZANDIC_SAMPLES "/BomItems.tuning"},
    {"fmt", "--check", "--json", ZANDIC_SAMPLES "/BomItems.metadata"},
    {"help"},
    {"help", "find"},
    {"completion", "bash"},
    {"completion", "zsh"},
    {"completion", "man"},
};

class ToolSameTest : public ToolTest {
protected:
    /// A command line of the table, on the sample.
    std::vector<std::string> Arguments(std::vector<std::string> run) const {
        std::replace(run.begin(), run.end(), std::string("TO"), Own().Path());
        run.insert(run.begin(), {"--path", ZANDIC_SAMPLES});
        return run;
    }

    static std::string Said(const std::vector<std::string>& run) {
        std::string line;
        for (const std::string& word : run) line += word + " ";
        return line;
    }

    /// Makes a locale of the system usable by this test. \returns the settings that choose it.
    std::vector<std::string> Locale(const std::string& name) const {
        const std::string command =
            "localedef -i " + name + " -f UTF-8 '" + Own().Path(name + ".UTF-8") + "' 2> /dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0) << command;  // NOLINT(concurrency-mt-unsafe,cert-env33-c)
        return {"LC_ALL=" + name + ".UTF-8", "LOCPATH=" + Own().Path()};
    }

    void ExpectSame(const std::vector<std::string>& one, const std::vector<std::string>& other) const {
        for (const std::vector<std::string>& run : kRuns) {
            const ToolRun first = Run(Arguments(run), one);
            const ToolRun second = Run(Arguments(run), other);

            EXPECT_EQ(first.status, second.status) << Said(run);
            EXPECT_EQ(first.out, second.out) << Said(run);
            EXPECT_EQ(first.err, second.err) << Said(run);
            EXPECT_NE(first.out + first.err, "") << Said(run);
        }
    }
};

TEST_F(ToolSameTest, EveryCommandIsAmongTheRuns) {
    std::set<std::string> used;
    for (const std::vector<std::string>& run : kRuns) used.insert(run.front());

    std::istringstream help(Run({"help"}).out);
    std::set<std::string> commands;
    for (std::string line; std::getline(help, line);) {
        if (line.size() > 20 && line[7] == ' ' && line[8] != ' ' && line[19] == ' ') {
            commands.insert(line.substr(8, line.find(' ', 8) - 8));
        }
    }
    EXPECT_EQ(commands, used);
}

// Each process has hash keys of its own, so two runs never have the same.
TEST_F(ToolSameTest, TheLocaleChangesNothing) {
    ExpectSame({"LC_ALL=C"}, Locale("de_DE"));
    ExpectSame({"LC_ALL=C.UTF-8"}, Locale("tr_TR"));
}

TEST_F(ToolSameTest, TheDayChangesNothing) {
    ExpectSame({"TZ=Pacific/Kiritimati"}, {"TZ=Pacific/Pago_Pago"});
}

TEST_F(ToolSameTest, AReaderThatHasGoneEndsItWithoutAWord) {
    for (const std::vector<std::string>& run : kRuns) {
        std::vector<std::string> arguments = Arguments(run);
        arguments.insert(arguments.begin(), "--quiet");
        if (Run(arguments).out.empty()) continue;  // nothing to be read

        const ToolRun ended = RunIntoClosedPipe(arguments);

        EXPECT_EQ(ended.status, kBrokenPipe) << Said(run);
        EXPECT_EQ(ended.err, "") << Said(run);
    }
}

}  // namespace
