// The command line itself: help, version, wrong use, and where options may stand.
#include <algorithm>

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
    void ExpectWrongName(const std::vector<std::string>& arguments, std::string_view line,
                         int status = kWrongUse) const {
        const ToolRun run = OnSample(arguments);

        EXPECT_EQ(run.status, status);
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
    EXPECT_EQ(Run({"dump", "-h"}).out, Run({"dump", "--help"}).out);
    EXPECT_EQ(Run({"--help", "dump"}).out, Run({"dump", "--help"}).out);
    EXPECT_EQ(Run({"dump", "-h"}).status, kDone);
}

TEST_F(ToolUseTest, HelpIsACommandToo) {
    EXPECT_EQ(Run({"help"}).out, Run({"--help"}).out);
    EXPECT_EQ(Run({"help", "load"}).out, ExpectedOutput("help-load.txt"));
    EXPECT_EQ(Run({"help", "options"}).out, ExpectedOutput("help-options.txt"));
    EXPECT_EQ(Run({"help", "load"}).status, kDone);
    ExpectWrongUse({"help", "laod"}, "there is no command 'laod'; did you mean load?");
    ExpectWrongUse({"help", "load", "show"},
                   "help takes one COMMAND, and there is 'show' as well (see 'zandic help --help')");
}

TEST_F(ToolUseTest, NoLineOfAHelpIsWiderThanATerminal) {
    for (const ToolRun& run : {Run({"help"}), Run({"help", "options"}), Run({"help", "show"}),
                               Run({"help", "save"}), Run({"help", "express"})}) {
        std::size_t widest = 0;
        for (std::size_t at = 0, end = 0; (end = run.out.find('\n', at)) != run.out.npos; at = end + 1) {
            widest = std::max(widest, end - at);
        }
        EXPECT_LE(widest, 80U) << run.out;
    }
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
    ExpectWrongUse({"lod", "BomItems"},
                   "there is no command 'lod'; did you mean load? (see 'zandic --help')");
}

TEST_F(ToolUseTest, AnUnknownOptionIsNamed) {
    ExpectWrongUse({"load", "--fast", "BomItems"}, "there is no option '--fast' (see 'zandic load --help')");
    ExpectWrongUse({"load", "--phat", "x"},
                   "there is no option '--phat'; did you mean --path? (see 'zandic load --help')");
    ExpectWrongUse({"load", "-x"}, "there is no option '-x' (see 'zandic load --help')");
    ExpectWrongUse({"--fast"}, "there is no option '--fast' (see 'zandic --help')");
    ExpectWrongUse({"--quite"}, "there is no option '--quite'; did you mean --quiet? (see 'zandic --help')");
}

TEST_F(ToolUseTest, AnOptionMayBeAbbreviatedWhileItIsTheOnlyOne) {
    EXPECT_EQ(OnSample({"--qui", "show", "BomWorkshop"}).out,
              OnSample({"--quiet", "show", "BomWorkshop"}).out);
    ExpectWrongUse({"load", "--trace", "1", "x"},
                   "there is no option '--trace'; did you mean --trace-level or --trace-methods? "
                   "(see 'zandic load --help')");
}

TEST_F(ToolUseTest, WithoutANameInSaysWhatToWorkOn) {
    EXPECT_EQ(OnSample({"--quiet", "show", "--in", "BomWorkshop"}).out,
              OnSample({"--quiet", "show", "BomWorkshop"}).out);
    EXPECT_EQ(OnSample({"--quiet", "dump", "--json", "--in", "BomItems", "BomDocuments"}).out,
              OnSample({"--quiet", "dump", "--json", "BomItems", "BomDocuments"}).out);
}

TEST_F(ToolUseTest, WithoutAnythingItIsEveryMetadataDocumentOfThePath) {
    const ToolRun run = OnSample({"--quiet", "dump", "--json"});

    EXPECT_EQ(run.status, kDone);
    EXPECT_EQ(run.out, OnSample({"--quiet", "dump", "--json", "BomDocuments", "BomEffectivity", "BomItems",
                                 "BomPeople", "BomServices", "BomWorkshop"})
                           .out);
    EXPECT_EQ(run.out.find("BomStorage"), run.out.npos) << "tables and mappings are not asked for";
}

TEST_F(ToolUseTest, ADocumentThatNobodyAskedForCostsNotTheAnswer) {
    MakePackage("Good", R"(Uuid="00000000-0000-0000-0000000000000001")", "");
    Own().MakeFile("Bad.metadata", "<Package");

    const ToolRun run = OnOwn({"--quiet", "show"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out.find("Package Good\n"), 0U);
    EXPECT_EQ(WithoutPlaces(run.err).find("zandic: own/Bad.metadata:1:"), 0U);
    EXPECT_NE(run.err.find(": warning: "), run.err.npos);
    EXPECT_EQ(LinesIn(run.err), 1);
}

TEST_F(ToolUseTest, OfTwoDocumentsOfOneNameTheFirstCounts) {
    const std::string first = Own().MakeDirectory("first");
    const std::string second = Own().MakeDirectory("second");
    Own().MakeFile("first/P.metadata",
                   R"(<Package Name="P" Uuid="00000000-0000-0000-0000000000000001" Alias="one"/>)");
    Own().MakeFile("second/P.metadata",
                   R"(<Package Name="P" Uuid="00000000-0000-0000-0000000000000001" Alias="two"/>)");

    const ToolRun run = Run({"show", "--path", first + ":" + second});

    EXPECT_EQ(run.status, kDone);
    EXPECT_NE(run.out.find("one"), run.out.npos);
    EXPECT_EQ(run.out.find("two"), run.out.npos);
}

TEST_F(ToolUseTest, WithoutADocumentThereIsNothingToWorkOn) {
    const ToolRun empty = OnOwn({"load"});
    const ToolRun nowhere = Run({"load"});

    EXPECT_EQ(empty.status, 1);
    EXPECT_EQ(WithoutPlaces(empty.err), "zandic: own: error: no package document on the path\n");
    EXPECT_EQ(nowhere.status, 1);
    EXPECT_EQ(nowhere.err,
              "zandic: error: there is no path to search: give --path, or set ZELDictionaryPath\n");
}

TEST_F(ToolUseTest, TheNearestNamesAreOffered) {
    const auto line = [this](const std::string& name) { return OnSample({"--quiet", "show", name}).err; };

    EXPECT_EQ(WithoutPlaces(line("BomItem")),
              "zandic: BomItem: error: there is no document BomItem.metadata in samples; did you mean "
              "BomItems?\n");
    EXPECT_EQ(line("BomItems::bompart"),
              "zandic: BomItems::bompart: error: package BomItems has no element bompart; did you mean "
              "BomPart?\n");
    EXPECT_EQ(line("BomItems::BomPart::Sources"),
              "zandic: BomItems::BomPart::Sources: error: Class BomItems::BomPart has no member Sources; did "
              "you mean Source?\n");
    EXPECT_EQ(
        line("BomServices::BomCosting::RolUp::Currency"),
        "zandic: BomServices::BomCosting::RolUp::Currency: error: Interface BomServices::BomCosting has "
        "no member RolUp::Currency; did you mean RollUp?\n");
}

TEST_F(ToolUseTest, DumpWantsToBeAskedForJson) {
    ExpectWrongUse({"dump", "BomItems"}, "dump needs --json (see 'zandic dump --help')");
}

TEST_F(ToolUseTest, SaveWantsADirectory) {
    ExpectWrongUse({"save", "BomItems"}, "save needs --to (see 'zandic save --help')");
    ExpectWrongUse({"save", "BomItems", "--to"}, "--to needs a value (see 'zandic save --help')");
    ExpectWrongUse({"save", "BomItems", "--stdout"},
                   "there is no option '--stdout' (see 'zandic save --help')");
}

TEST_F(ToolUseTest, ASchemaGoesToOnePlace) {
    ExpectWrongUse({"express", "BomItems", "--to", ".", "--stdout"},
                   "--to and --stdout exclude each other (see 'zandic express --help')");
    ExpectWrongUse({"load", "BomItems", "--to", "."}, "there is no option '--to' (see 'zandic load --help')");
}

TEST_F(ToolUseTest, EveryCommandThatTakesNamesKnowsIn) {
    EXPECT_EQ(WithoutTimes(OnSample({"--quiet", "load", "BomWorkshop", "--in", "BomPeople"}).out),
              WithoutTimes(OnSample({"--quiet", "load", "BomWorkshop", "BomPeople"}).out));
    EXPECT_EQ(OnSample({"--quiet", "blocks", "BomItems::BomPart", "--in", "BomPeople"}).out,
              ExpectedOutput("blocks-class.txt"));
}

TEST_F(ToolUseTest, AFlagTakesNoValue) {
    ExpectWrongUse({"dump", "--json=yes"}, "--json takes no value (see 'zandic dump --help')");
}

TEST_F(ToolUseTest, AnOptionOfACommandMayStandBeforeIt) {
    EXPECT_EQ(OnSample({"--quiet", "--json", "dump", "BomPeople"}).out,
              OnSample({"--quiet", "dump", "BomPeople", "--json"}).out);
}

TEST_F(ToolUseTest, BehindTwoDashesThereAreOnlyNames) {
    ExpectWrongName({"--quiet", "load", "--", "--quiet"},
                    "--quiet: error: there is no document --quiet.metadata in " ZANDIC_SAMPLES, 1);
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

TEST_F(ToolUseTest, APackageIsFoundByItsUuidToo) {
    const std::string people = "EB04EC4A-0571-4DEA-8D1FA05FA4B6367D";
    for (const std::vector<std::string>& command : {std::vector<std::string>{"load", "--no-times"},
                                                    {"stats", "--no-times"},
                                                    {"dump", "--json"},
                                                    {"express", "--stdout"},
                                                    {"save", "--to", Own().Path()}}) {
        std::vector<std::string> byName{"--quiet"};
        byName.insert(byName.end(), command.begin(), command.end());
        std::vector<std::string> byUuid = byName;
        byName.push_back("BomPeople");
        byUuid.push_back(people);

        const ToolRun run = OnSample(byUuid);

        EXPECT_EQ(run.status, kDone) << run.err;
        EXPECT_EQ(run.out, OnSample(byName).out);
        EXPECT_NE(run.out, "");
    }
}

TEST_F(ToolUseTest, AUuidThatIsNoPackagesIsRefused) {
    const std::string part = "5AAF3900-5E46-4551-BB9AE4FD947B8003";
    ExpectWrongName({"--quiet", "load", part}, part + ": error: no package of the path has this UUID", 1);
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
