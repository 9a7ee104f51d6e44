// The command line itself: help, version, wrong use, and where options may stand.
#include "ToolRunner.h"

namespace {

constexpr int kDone = 0;
constexpr int kWrongUse = 2;

class ToolUseTest : public ToolTest {
protected:
    /// Runs the tool and checks that it says one line, names the help, and does nothing.
    void ExpectWrongUse(const std::vector<std::string>& arguments, std::string_view line) const {
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, kWrongUse);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: error: " + std::string(line) + "\n");
    }

    /// Runs the tool and checks that it refuses one NAME and names it.
    void ExpectWrongName(const std::vector<std::string>& arguments, std::string_view line) const {
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, kWrongUse);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "zandic: " + std::string(line) + "\n");
    }
};

TEST_F(ToolUseTest, HelpListsTheCommandsOnOneScreen) {
    const ToolRun run = Run({"--help"});

    EXPECT_EQ(run.status, kDone);
    EXPECT_EQ(run.out, ExpectedOutput("help.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_LE(LinesIn(run.out), 24);
}

TEST_F(ToolUseTest, EachCommandHasItsHelp) {
    EXPECT_EQ(Run({"load", "--help"}).out, ExpectedOutput("help-load.txt"));
    EXPECT_EQ(Run({"show", "--help"}).out, ExpectedOutput("help-show.txt"));
    EXPECT_EQ(Run({"blocks", "--help"}).out, ExpectedOutput("help-blocks.txt"));
    EXPECT_EQ(Run({"dump", "-h"}).out, ExpectedOutput("help-dump.txt"));
    EXPECT_EQ(Run({"save", "--help"}).out, ExpectedOutput("help-save.txt"));
    EXPECT_EQ(Run({"express", "--help"}).out, ExpectedOutput("help-express.txt"));
    EXPECT_EQ(Run({"dump", "-h"}).status, kDone);
}

TEST_F(ToolUseTest, HelpNeedsNothingElse) {
    EXPECT_EQ(Run({"dump", "BomItems", "--help"}).status, kDone);
    EXPECT_EQ(Run({"--path", "nowhere", "load", "--help"}).status, kDone);
}

TEST_F(ToolUseTest, VersionIsSaidEverywhere) {
    for (const ToolRun& run : {Run({"--version"}), Run({"load", "--version"}), Run({"show", "--version"}),
                               Run({"dump", "--version"})}) {
        EXPECT_EQ(run.status, kDone);
        EXPECT_EQ(run.out, "zandic " ZANDIC_VERSION "\n");
        EXPECT_EQ(run.err, "");
    }
}

TEST_F(ToolUseTest, AnOptionMayStandBehindTheCommandAndItsNames) {
    const ToolRun before = Run({"--path", ZANDIC_SAMPLES, "show", "BomItems::BomPart"});
    const ToolRun after = Run({"show", "--path", ZANDIC_SAMPLES, "BomItems::BomPart"});
    const ToolRun last = Run({"show", "BomItems::BomPart", "--path", ZANDIC_SAMPLES});

    EXPECT_EQ(before.status, kDone);
    EXPECT_EQ(before.out, after.out);
    EXPECT_EQ(before.out, last.out);
}

TEST_F(ToolUseTest, ThePathAddsUp) {
    EXPECT_EQ(Run({"--path", Own().Path(), "load", "BomPeople", "--path", ZANDIC_SAMPLES}).status, kDone);
    EXPECT_EQ(Run({"--path", Own().Path() + ":" + ZANDIC_SAMPLES, "load", "BomPeople"}).status, kDone);
}

TEST_F(ToolUseTest, ThePathReplacesTheVariable) {
    const std::string variable = std::string("ZELDictionaryPath=") + ZANDIC_SAMPLES;

    EXPECT_EQ(Run({"load", "BomPeople"}, {variable}).status, kDone);
    EXPECT_EQ(Run({"--path", Own().Path(), "load", "BomPeople"}, {variable}).status, 1);
}

TEST_F(ToolUseTest, WithoutACommandItPointsAtTheHelp) {
    ExpectWrongUse({}, "a command is missing (see 'zandic --help')");
    ExpectWrongUse({"--quiet"}, "a command is missing (see 'zandic --help')");
}

TEST_F(ToolUseTest, AnUnknownCommandIsNamed) {
    ExpectWrongUse({"lod", "BomItems"}, "there is no command 'lod' (see 'zandic --help')");
}

TEST_F(ToolUseTest, AnUnknownOptionIsNamed) {
    ExpectWrongUse({"load", "--fast", "BomItems"}, "there is no option '--fast' (see 'zandic load --help')");
    ExpectWrongUse({"load", "--json", "BomItems"}, "load does not know --json (see 'zandic load --help')");
    ExpectWrongUse({"blocks", "--json", "BomItems"},
                   "blocks does not know --json (see 'zandic blocks --help')");
    ExpectWrongUse({"--fast"}, "there is no option '--fast' (see 'zandic --help')");
}

TEST_F(ToolUseTest, AMissingNameIsSaid) {
    ExpectWrongUse({"load"}, "NAME is missing (see 'zandic load --help')");
    ExpectWrongUse({"show"}, "NAME is missing (see 'zandic show --help')");
    ExpectWrongUse({"blocks"}, "NAME is missing (see 'zandic blocks --help')");
    ExpectWrongUse({"dump", "--json"}, "NAME is missing (see 'zandic dump --help')");
    ExpectWrongUse({"show", "--in", "BomItems"}, "NAME is missing (see 'zandic show --help')");
}

TEST_F(ToolUseTest, DumpWantsToBeAskedForJson) {
    ExpectWrongUse({"dump", "BomItems"}, "dump needs --json (see 'zandic dump --help')");
}

TEST_F(ToolUseTest, SaveWantsADirectory) {
    ExpectWrongUse({"save", "BomItems"}, "save needs --to (see 'zandic save --help')");
    ExpectWrongUse({"save", "--to", "nowhere"}, "NAME is missing (see 'zandic save --help')");
    ExpectWrongUse({"save", "BomItems", "--to"}, "--to needs a value (see 'zandic save --help')");
    ExpectWrongUse({"save", "BomItems", "--stdout"},
                   "there is no option '--stdout' (see 'zandic save --help')");
}

TEST_F(ToolUseTest, ASchemaGoesToOnePlace) {
    ExpectWrongUse({"express", "BomItems", "--to", ".", "--stdout"},
                   "--to and --stdout exclude each other (see 'zandic express --help')");
    ExpectWrongUse({"load", "BomItems", "--to", "."}, "there is no option '--to' (see 'zandic load --help')");
}

TEST_F(ToolUseTest, InBelongsToShow) {
    ExpectWrongUse({"load", "BomItems", "--in", "BomPeople"},
                   "load does not know --in (see 'zandic load --help')");
}

TEST_F(ToolUseTest, AnOptionWithoutItsValueIsNamed) {
    ExpectWrongUse({"load", "BomItems", "--path"}, "--path needs a value (see 'zandic load --help')");
    ExpectWrongUse({"load", "BomItems", "--trace-level", "high"},
                   "--trace-level cannot be 'high' (see 'zandic load --help')");
}

TEST_F(ToolUseTest, ATuningDocumentIsNotLoadedByItself) {
    const std::string why =
        ": error: a tuning document is read with its package, not by itself: give the package's name";
    ExpectWrongName({"load", "BomItems.tuning"}, "BomItems.tuning" + why);
    ExpectWrongName({"show", "BomItems.tuning"}, "BomItems.tuning" + why);
    ExpectWrongName({"show", "BomItems.tuning::BomPart"}, "BomItems.tuning::BomPart" + why);
    ExpectWrongName({"dump", "--json", "BomItems.tuning"}, "BomItems.tuning" + why);
    ExpectWrongName({"save", "BomItems.tuning", "--to", Own().Path()}, "BomItems.tuning" + why);
    ExpectWrongName({"express", "BomItems.tuning", "--stdout"}, "BomItems.tuning" + why);
}

TEST_F(ToolUseTest, AnElementIsNotLoadedByItself) {
    ExpectWrongName({"load", "BomItems::BomPart"},
                    "BomItems::BomPart: error: only packages can be loaded: give the name before '::'");
}

TEST_F(ToolUseTest, AnEmptyNameIsRefused) {
    ExpectWrongName({"load", ""}, "error: a NAME must not be empty");
    ExpectWrongName({"show", "BomItems::"}, "BomItems::: error: a name is missing beside '::'");
    ExpectWrongName({"show", "::BomPart"}, "::BomPart: error: a name is missing beside '::'");
    ExpectWrongName({"show", "BomItems::::Mass"}, "BomItems::::Mass: error: a name is missing beside '::'");
}

TEST_F(ToolUseTest, WhatWasMeantForAUuidIsSaidToBeNone) {
    const std::string why = ": error: this is no UUID, which has 32 digits, grouped 8-4-4-16 or not at all";
    ExpectWrongName({"show", "5AAF3900-5E46-4551-BB9AE4FD947B800"},
                    "5AAF3900-5E46-4551-BB9AE4FD947B800" + why);
    ExpectWrongName({"show", "5aaf39005e464551bb9ae4fd947b80033"}, "5aaf39005e464551bb9ae4fd947b80033" + why);
}

TEST_F(ToolUseTest, ANameOfDigitsIsAPackageWhereThereIsItsDocument) {
    MakePackage("00112233445566778899", R"(Uuid="00000000-0000-0000-0000000000000001")", "");

    EXPECT_EQ(OnOwn({"show", "00112233445566778899"}).status, kDone);
}

TEST_F(ToolUseTest, TheWorstOfSeveralNamesCounts) {
    EXPECT_EQ(OnSample({"load", "BomNothing", "BomPeople"}).status, 1);
    EXPECT_EQ(OnSample({"load", "BomNothing", "BomPeople.tuning", "BomPeople"}).status, kWrongUse);
    EXPECT_EQ(LinesIn(OnSample({"load", "BomNothing", "BomPeople.tuning", "BomPeople"}).out), 2)
        << "package, total";
}

}  // namespace
