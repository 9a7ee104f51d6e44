// `zandic save`: what it writes where, what it makes sure of, and how it says that something is wrong.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "ToolRunner.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kPackageUuid = R"(Uuid="00000000-0000-0000-0000000000000001")";
constexpr const char* kOtherUuid = R"(Uuid="00000000-0000-0000-0000000000000002")";
constexpr const char* kClass =
    R"(<Class Name="Part" Uuid="00000000-0000-0000-0000000000000011" Persistent="Yes" Alias="Part of it"/>)";
const std::string kMoment = "SOURCE_DATE_EPOCH=951827696";  // 29 February 2000

std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> NamesIn(const std::string& directory) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory))
        names.insert(entry.path().filename().string());
    return names;
}

class ToolSaveTest : public ToolTest {
protected:
    /// Where the tests save to; not on the path.
    const std::string& There() const { return _There; }

    ToolRun SaveSample(std::vector<std::string> names) const {
        names.insert(names.begin(), "save");
        names.insert(names.end(), {"--to", There()});
        return OnSample(names);
    }

    /// \returns the last line of a run that must have refused something.
    std::string Refusal(const ToolRun& run) const {
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        return WithoutPlaces(LastLine(run.err));
    }

private:
    std::string _There = Own().MakeDirectory("there");
};

TEST_F(ToolSaveTest, WritesThePackagesNamedAndNoOther) {
    const ToolRun run = SaveSample({"BomServices", "BomPeople"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomServices.metadata\nown/there/BomPeople.metadata\n");
    EXPECT_EQ(NamesIn(There()), (std::set<std::string>{"BomPeople.metadata", "BomServices.metadata"}));
}

TEST_F(ToolSaveTest, WhatIsSavedLoadsAsTheSameModel) {
    SaveSample({"BomEffectivity", "BomServices", "BomStorageMap.rbomap", "BomWorkshop", "BomDocuments",
                "BomItems", "BomPeople", "BomStorage"});
    const std::vector<std::string> dump{"dump",        "--json",   "BomEffectivity",      "BomServices",
                                        "BomWorkshop", "BomItems", "BomStorageMap.rbomap"};
    std::vector<std::string> elsewhere{"--path", There()};
    elsewhere.insert(elsewhere.end(), dump.begin(), dump.end());

    EXPECT_EQ(NamesIn(There()), NamesIn(ZANDIC_SAMPLES));
    EXPECT_EQ(Run(elsewhere).out, OnSample(dump).out);
}

TEST_F(ToolSaveTest, AMappingIsSavedAsTheKindThatItIs) {
    const ToolRun run = SaveSample({"BomStorageMap.rbomap", "BomStorage"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomStorageMap.rbomap\nown/there/BomStorage.rbodef\n");
}

TEST_F(ToolSaveTest, CopiesTheTuningDocument) {
    const ToolRun run = SaveSample({"BomItems"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomItems.metadata\nown/there/BomItems.tuning\n");
    EXPECT_EQ(TextOf(There() + "/BomItems.tuning"), TextOf(ZANDIC_SAMPLES "/BomItems.tuning"));
}

TEST_F(ToolSaveTest, WhatIsLoadedBesideIsReadBackToo) {
    const ToolRun run =
        OnSample({"--quiet", "save", "--to", Own().Path(), "BomPeople", "--in", "BomDocuments"});

    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, Own().Path() + "/BomPeople.metadata\n");
}

TEST_F(ToolSaveTest, SavesAPackageOnce) {
    const ToolRun run = SaveSample({"BomPeople", "BomPeople.metadata", "BomPeople"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomPeople.metadata\n");
}

TEST_F(ToolSaveTest, SavesToWhereTheDocumentCameFrom) {
    MakePackage("P", kPackageUuid, kClass);

    const ToolRun first = OnOwn({"save", "P", "--to", Own().Path()});
    const std::string saved = TextOf(Own().Path("P.metadata"));
    const ToolRun second = Run({"--path", Own().Path(), "save", "P", "--to", Own().Path() + "/"}, {kMoment});

    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(WithoutPlaces(second.out), "own/P.metadata\n");
    EXPECT_NE(saved.find("<Class Name=\"Part\""), saved.npos);
    EXPECT_NE(TextOf(Own().Path("P.metadata")).find("last update 2000-02-29-12.34.56"), saved.npos);
}

TEST_F(ToolSaveTest, ATuningDocumentStaysWhereItCameFrom) {
    for (const char* name : {"BomItems.metadata", "BomItems.tuning"}) {
        fs::copy_file(fs::path(ZANDIC_SAMPLES) / name, Own().Path(name));
    }

    const ToolRun run = OnOwn({"save", "BomItems", "--to", Own().Path(), "--path", ZANDIC_SAMPLES});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/BomItems.metadata\n");
    EXPECT_EQ(TextOf(Own().Path("BomItems.tuning")), TextOf(ZANDIC_SAMPLES "/BomItems.tuning"));
}

TEST_F(ToolSaveTest, SavesUnderTheNameOfThePackage) {
    Own().MakeFile("File.metadata", "<Package Name=\"Own\" " + std::string(kPackageUuid) + "/>\n");

    const ToolRun run = OnOwn({"save", "File", "--to", There()});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/Own.metadata\n");
    EXPECT_EQ(NamesIn(There()), std::set<std::string>{"Own.metadata"});
}

TEST_F(ToolSaveTest, ANameMayBeginWithADash) {
    MakePackage("-P", kPackageUuid, kClass);

    const ToolRun run = OnOwn({"save", "--to", There(), "--", "-P"});

    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/-P.metadata\n");
}

TEST_F(ToolSaveTest, SavesToThePresentDirectory) {
    EXPECT_EQ(Shell("cd '" + There() + "' && \"$TOOL\" --path \"$SAMPLES\" save BomPeople --to . > ../out"),
              0);

    EXPECT_EQ(TextOf(Own().Path("out")), "BomPeople.metadata\n");
    EXPECT_EQ(NamesIn(There()), std::set<std::string>{"BomPeople.metadata"});
}

TEST_F(ToolSaveTest, WhatDocumentsLeaveOutIsNoDifference) {
    MakePackage(
        "P", kPackageUuid + std::string(R"( Alias="x")"),
        R"(<Class Name="C" Uuid="00000000-0000-0000-0000000000000011" Persistent="Yes">)"
        R"(<Simple Name="S" Uuid="00000000-0000-0000-0000000000000012" Type="Integer" MaxLength="8"/>)"
        R"(</Class>)");

    EXPECT_EQ(OnOwn({"save", "P", "--to", There()}).status, 0);
}

TEST_F(ToolSaveTest, APackageThatIsRefusedKeepsNoOtherBack) {
    const ToolRun run = SaveSample({"BomNothing", "BomPeople"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(run.out), "own/there/BomPeople.metadata\n");
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)),
              "zandic: BomNothing: error: there is no document BomNothing.metadata in samples");
}

TEST_F(ToolSaveTest, WithoutAnyPackageNothingIsWritten) {
    EXPECT_EQ(Refusal(SaveSample({"BomNothing"})),
              "zandic: BomNothing: error: there is no document BomNothing.metadata in samples");
    EXPECT_EQ(NamesIn(There()), std::set<std::string>{});
}

TEST_F(ToolSaveTest, TheDirectoryMustExist) {
    Own().MakeFile("file", "");

    EXPECT_EQ(Refusal(OnSample({"save", "BomPeople", "--to", Own().Path("none")})),
              "zandic: own/none: error: there is no such directory");
    EXPECT_EQ(Refusal(OnSample({"save", "BomPeople", "--to", Own().Path("file")})),
              "zandic: own/file: error: this is no directory");
    EXPECT_EQ(Refusal(OnSample({"save", "BomPeople", "--to", ""})),
              "zandic: error: there is no such directory");
    EXPECT_FALSE(fs::exists(Own().Path("none")));
}

TEST_F(ToolSaveTest, ADirectoryThatNoPathCanNameIsRefused) {
    const std::string directory = Own().MakeDirectory("a:b");

    EXPECT_EQ(
        Refusal(OnSample({"save", "BomPeople", "--to", directory})),
        "zandic: own/a:b: error: a directory with ':' in its name cannot be searched, so nothing could be "
        "read back");
    EXPECT_EQ(NamesIn(directory), std::set<std::string>{});
}

TEST_F(ToolSaveTest, ADirectoryThatTakesNoFilesIsAFault) {
    EXPECT_EQ(Refusal(OnSample({"save", "BomPeople", "--to", "/proc"})),
              "zandic: /proc/BomPeople.metadata: error: it could not be written: No such file or directory");
}

TEST_F(ToolSaveTest, ADirectoryUnderTheFinalNameIsAFault) {
    Own().MakeDirectory("there/BomPeople.metadata");

    EXPECT_EQ(Refusal(SaveSample({"BomPeople"})),
              "zandic: own/there/BomPeople.metadata: error: it could not be written: Is a directory");
}

TEST_F(ToolSaveTest, ATuningDocumentThatCannotBeCopiedIsAFault) {
    Own().MakeDirectory("there/BomItems.tuning");

    const ToolRun run = SaveSample({"BomItems"});

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(WithoutPlaces(LastLine(run.err)),
              "zandic: own/there/BomItems.tuning: error: it could not be written: Is a directory");
}

TEST_F(ToolSaveTest, AFileThatDoesNotFitIsAFaultAndTheOldOneStays) {
    const std::string old = Own().MakeFile("there/BomItems.metadata", "old");

    EXPECT_EQ(Shell("ulimit -f 1; \"$TOOL\" --path \"$SAMPLES\" save BomItems --to '" + There() + "' > '" +
                    Own().Path("out") + "' 2> '" + Own().Path("err") + "'"),
              1);

    const std::string err = TextOf(Own().Path("err"));
    EXPECT_EQ(WithoutPlaces(LastLine(err)),
              "zandic: own/there/BomItems.metadata: error: it could not be written: File too large");
    EXPECT_EQ(TextOf(Own().Path("out")), "");
    EXPECT_EQ(TextOf(old), "old");
    EXPECT_EQ(NamesIn(There()), std::set<std::string>{"BomItems.metadata"});
}

TEST_F(ToolSaveTest, AnOldFileOfTheSameModelIsNotTakenForASavedOne) {
    ASSERT_EQ(SaveSample({"BomItems"}).status, 0);

    EXPECT_EQ(Shell("ulimit -f 1; \"$TOOL\" --quiet --path \"$SAMPLES\" save BomItems --to '" + There() +
                    "' 2> /dev/null"),
              1);
}

TEST_F(ToolSaveTest, WhatReadsBackAsAnotherModelIsAFault) {
    MakePackage("Base", kOtherUuid, kClass);
    MakePackage("P", kPackageUuid + std::string(R"( UseNames="Base")"), "");
    std::string other = TextOf(Own().Path("Base.metadata"));
    other.replace(other.find("Part of it"), 4, "Bits");
    Own().MakeFile("there/Base.metadata", other);  // stands first when P is read back

    EXPECT_EQ(Refusal(OnOwn({"save", "P", "--to", There()})),
              "zandic: own/there: error: what was saved reads back as another model: at \"Part\", "
              "\"alias\": \"Part of it\" became \"alias\": \"Bits of it\"");
}

TEST_F(ToolSaveTest, WhatDoesNotReadBackIsAFault) {
    MakePackage("Base", kOtherUuid, kClass);
    MakePackage("P", kPackageUuid + std::string(R"( UseNames="Base")"), "");
    Own().MakeFile("there/Base.metadata", "<Package>\n");

    const std::string line = Refusal(OnOwn({"save", "P", "--to", There()}));

    EXPECT_EQ(
        line.find(
            "zandic: own/there: error: what was saved does not read back: own/there/Base.metadata:1:1: "),
        0U)
        << line;
}

TEST_F(ToolSaveTest, WithoutASecondProcessNothingIsSaidToBeSaved) {
    const std::string err = Own().Path("err");

    // Enough descriptors for a save, too few for the streams of another process.
    EXPECT_EQ(
        Shell("exec > '" + Own().Path("out") + "' 2> '" + err +
              "'; ulimit -n 6; \"$TOOL\" --quiet --path \"$SAMPLES\" save BomPeople --to '" + There() + "'"),
        1);

    EXPECT_EQ(WithoutPlaces(TextOf(err)),
              "zandic: own/there: error: what was saved could not be read back: Too many open files\n");
    EXPECT_EQ(TextOf(Own().Path("out")), "");
}

TEST_F(ToolSaveTest, QuietKeepsOnlyTheDictionaryBack) {
    const ToolRun done = OnSample({"--quiet", "save", "BomItems", "--to", There()});
    const ToolRun refused = OnSample({"--quiet", "save", "BomItems", "--to", "/proc"});

    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(WithoutPlaces(done.out), "own/there/BomItems.metadata\nown/there/BomItems.tuning\n");
    EXPECT_EQ(refused.err,
              "zandic: /proc/BomItems.metadata: error: it could not be written: No such file or directory\n");
}

TEST_F(ToolSaveTest, ATraceDoesNotDisturbTheComparison) {
    EXPECT_EQ(Run({"--path", ZANDIC_SAMPLES, "--trace-level", "5", "save", "BomPeople", "--to", There()},
                  {"ZANDIC_TRACE_LEVEL=5"})
                  .status,
              0);
}

}  // namespace
