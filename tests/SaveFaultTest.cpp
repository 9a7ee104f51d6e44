// Whole saves and exports under faults: whatever happens, the final name bears the old file or the new one.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <ostream>
#include <set>
#include <string>
#include <tuple>

#include "../bench/PackageGenerator.h"
#include "FailingFileCalls.h"
#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "SaveFixture.h"
#include "ZELDurableFile.h"

namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Eq;

constexpr const char* kPackage = "Generated";

/// What is saved, and what a failed save of it gives.
struct Format {
    const char* name;
    const char* extension;
    OXMDicPERSISTENT mode;
    HRESULT failure;  ///< a save into a document never fails: it says so in a line
    const char* lineBegin;
    const char* lineEnd;
};
void PrintTo(const Format& format, std::ostream* out) { *out << format.name; }

constexpr Format kFormats[] = {
    {"Xml", ".metadata", OXMDicPERSISTENT_Xml, S_OK,
     "OxmDicToXML:OxmDicToXML -- *** ERROR *** Could not write ", ".\n"},
    {"Express", ".express", OXMDicPERSISTENT_Express, E_FAIL, "ERROR : could not write ", "\n"},
};

/// Ends the process in the middle of the call of that number.
class DeadlyFileCalls final : public ZELFileCalls {
public:
    explicit DeadlyFileCalls(int deadlyCall) : _DeadlyCall(deadlyCall) { ZELSetFileCalls(this); }
    ~DeadlyFileCalls() { ZELSetFileCalls(nullptr); }

    bool hasUnnamedFiles = true;

    int Open(const char* path, int flags, unsigned mode) override {
        if (!hasUnnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
            errno = EOPNOTSUPP;
            return -1;
        }
        return Made(ZELFileCalls::Open(path, flags, mode));
    }
    long Write(int descriptor, const char* bytes, std::size_t size) override {
        return Made(ZELFileCalls::Write(descriptor, bytes, size < 100'000 ? size : 100'000));
    }
    int Sync(int descriptor) override { return Made(ZELFileCalls::Sync(descriptor)); }
    int Link(int descriptor, const char* path) override { return Made(ZELFileCalls::Link(descriptor, path)); }
    int Rename(const char* from, const char* to) override { return Made(ZELFileCalls::Rename(from, to)); }

private:
    template <class Result>
    Result Made(Result result) {
        if (--_DeadlyCall == 0) kill(getpid(), SIGKILL);
        return result;
    }

    int _DeadlyCall;
};

/// A package of several buffers of text, where files can have no name until they are complete and where they
/// cannot.
class SaveFaultTest : public SaveFixture, public testing::WithParamInterface<std::tuple<Format, bool>> {
protected:
    SaveFaultTest() {
        PackageShape shape;
        shape.elements = 6000;
        directory.MakeDirectory("from");
        directory.MakeFile("from/Generated.metadata", GeneratePackage(kPackage, shape).document);
        EXPECT_EQ(LoadFrom(directory.Path("from"), kPackage), S_OK);
        directory.MakeDirectory("to");
        const ZELString name(kPackage);
        const ZELString className("BusinessClass1");
        Held<OXMIDicPackage> package;
        Manager().GetPackage(&name, package.Out());
        package->GetElement(&className, _Changing.Out());
        ClearWritten();
    }
    ~SaveFaultTest() override { _Changing.Reset(); }

    const Format format = std::get<0>(GetParam());
    const bool hasUnnamedFiles = std::get<1>(GetParam());
    const std::string fileName = std::string(kPackage) + format.extension;
    const std::string path = directory.Path("to/" + fileName);

    HRESULT Save() {
        const ZELString name(kPackage);
        return Manager().SavePackageToDir(directory.Path("to").c_str(), &name, format.mode);
    }
    /// Changes what a save gives.
    void Change(bool isAbstract) {
        static_cast<OXMIDicClass*>(_Changing.Get())->SetAbstract(isAbstract ? 1 : 0);
    }
    std::string TextWhen(bool isAbstract) {
        Change(isAbstract);
        EXPECT_EQ(Save(), S_OK);
        return FileText(path);
    }
    std::string MakeOld() { return directory.MakeFile("to/" + fileName, "old"); }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(directory.Path("to"))) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    std::string FaultLine(const std::string& reason) const {
        return format.lineBegin + directory.Path("to") + "\\" + fileName + ": " + reason + format.lineEnd;
    }
    std::string AllWritten() const { return Written() + WrittenErrors(); }

    /// Runs \p work in a child process, which has to end itself or be ended. \returns the child.
    template <class Work>
    static pid_t InChild(Work work) {
        const pid_t child = fork();
        if (child != 0) return child;
        work();
        _exit(0);
    }

private:
    Held<OXMIDicElement> _Changing;
};

INSTANTIATE_TEST_SUITE_P(Formats, SaveFaultTest,
                         testing::Combine(testing::ValuesIn(kFormats), testing::Bool()),
                         [](const auto& parameter) {
                             return std::string(std::get<0>(parameter.param).name) +
                                    (std::get<1>(parameter.param) ? "WithUnnamedFiles" : "WithNamedFiles");
                         });

TEST_P(SaveFaultTest, EachCallThatFailsLeavesAWholeFileAndNoOther) {
    const std::string text = TextWhen(false);
    ASSERT_GT(text.size(), ZELDurableFile::kBufferSize);
    int calls = 0;
    {
        FailingFileCalls counting;
        counting.hasUnnamedFiles = hasUnnamedFiles;
        ASSERT_EQ(Save(), S_OK);
        calls = counting.count;
    }
    ASSERT_GE(calls, 7);  // two opens, two writes or more, two flushes, a name
    for (int failAt = 1; failAt <= calls; ++failAt) {
        MakeOld();
        ClearWritten();
        FailingFileCalls failing;
        failing.hasUnnamedFiles = hasUnnamedFiles;
        failing.failAt = failAt;
        failing.error = ENOSPC;

        EXPECT_EQ(Save(), format.failure) << failing.made;

        EXPECT_THAT(AllWritten(), EndsWith(FaultLine("No space left on device"))) << failing.made;
        // Only the flush of the directory comes when the new file is there already.
        EXPECT_EQ(FileText(path), failAt == calls ? text : "old") << failing.made;
        EXPECT_THAT(Names(), ElementsAre(fileName)) << failing.made;
    }
}

TEST_P(SaveFaultTest, ANewFileThatFailsLeavesNothing) {
    FailingFileCalls failing;
    failing.hasUnnamedFiles = hasUnnamedFiles;
    failing.failAt = 4;

    EXPECT_EQ(Save(), format.failure);

    EXPECT_TRUE(Names().empty());
}

TEST_P(SaveFaultTest, ALimitOfTheFileSizeIsAFailureWhateverIsDoneWithItsSignal) {
    FailingFileCalls calls;
    calls.hasUnnamedFiles = hasUnnamedFiles;
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limited{ZELDurableFile::kBufferSize / 2, before.rlim_max};
    for (const auto disposition : {SIG_DFL, SIG_IGN}) {
        MakeOld();
        ClearWritten();
        const auto dispositionBefore = signal(SIGXFSZ, disposition);
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);

        const HRESULT rc = Save();

        setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(signal(SIGXFSZ, dispositionBefore), disposition);
        EXPECT_EQ(rc, format.failure);
        EXPECT_THAT(AllWritten(), EndsWith(FaultLine("File too large")));
        EXPECT_EQ(FileText(path), "old");
        EXPECT_THAT(Names(), ElementsAre(fileName));
    }
}

TEST_P(SaveFaultTest, ANameThatIsADirectoryStaysOne) {
    FailingFileCalls calls;
    calls.hasUnnamedFiles = hasUnnamedFiles;
    directory.MakeDirectory("to/" + fileName);

    EXPECT_EQ(Save(), format.failure);

    EXPECT_THAT(AllWritten(), EndsWith(FaultLine("Is a directory")));
    EXPECT_TRUE(std::filesystem::is_empty(path));
    EXPECT_THAT(Names(), ElementsAre(fileName));
}

TEST_P(SaveFaultTest, AProcessThatIsKilledAtAnyCallLeavesAWholeFile) {
    const std::string text = TextWhen(false);
    int lastCall = 0;
    for (bool wasKilled = true; wasKilled; ++lastCall) {
        MakeOld();
        const pid_t child = InChild([&] {
            DeadlyFileCalls calls(lastCall + 1);
            calls.hasUnnamedFiles = hasUnnamedFiles;
            Save();
        });
        ASSERT_GT(child, 0);
        int status = 0;
        waitpid(child, &status, 0);
        wasKilled = WIFSIGNALED(status);

        ASSERT_THAT(FileText(path), AnyOf(Eq("old"), Eq(text))) << lastCall;
    }
    EXPECT_GE(lastCall, 9);
    EXPECT_EQ(FileText(path), text);

    EXPECT_EQ(Save(), S_OK);
    EXPECT_THAT(Names(), ElementsAre(fileName));
}

TEST_P(SaveFaultTest, AProcessThatIsKilledAtAnyMomentLeavesAWholeFile) {
    const std::string texts[] = {TextWhen(false), TextWhen(true)};
    ASSERT_NE(texts[0], texts[1]);
    for (int round = 0; round < 30; ++round) {
        const pid_t child = InChild([&] {
            FailingFileCalls calls;
            calls.hasUnnamedFiles = hasUnnamedFiles;
            for (bool isAbstract = false;; isAbstract = !isAbstract) {
                Change(isAbstract);
                Save();
            }
        });
        ASSERT_GT(child, 0);
        usleep(static_cast<useconds_t>(500 + 1371 * round % 20'000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        ASSERT_THAT(FileText(path), AnyOf(Eq(texts[0]), Eq(texts[1]))) << round;
    }

    EXPECT_EQ(TextWhen(true), texts[1]);
    EXPECT_THAT(Names(), ElementsAre(fileName));
}

TEST_P(SaveFaultTest, ProcessesThatSaveAtOnceDoNotDamageEachOther) {
    const std::string texts[] = {TextWhen(false), TextWhen(true)};
    pid_t children[2];
    for (int index = 0; index < 2; ++index) {
        children[index] = InChild([&] {
            FailingFileCalls calls;
            calls.hasUnnamedFiles = hasUnnamedFiles;
            Change(index == 1);
            for (int turn = 0; turn < 40; ++turn) {
                ClearWritten();
                Save();
                if (AllWritten().find("ould not write") != std::string::npos) _exit(1);
            }
        });
        ASSERT_GT(children[index], 0);
    }

    int running = 2;
    for (int status = 0; running > 0;) {
        ASSERT_THAT(FileText(path), AnyOf(Eq(texts[0]), Eq(texts[1])));
        if (waitpid(-1, &status, WNOHANG) <= 0) continue;
        --running;
        EXPECT_EQ(status, 0);
    }

    EXPECT_THAT(Names(), ElementsAre(fileName));
}

}  // namespace
