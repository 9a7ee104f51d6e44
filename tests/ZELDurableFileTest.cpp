#include "ZELDurableFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "FailingFileCalls.h"
#include "ZELTestDirectory.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::set<std::string> NamesIn(const std::string& directory) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

/// Writes \p content in pieces. \returns the result of the whole.
HRESULT Write(const std::string& path, std::string_view content, std::string* reason = nullptr) {
    ZELDurableFile file;
    HRESULT rc = file.Open(path);
    file.Append(content.substr(0, content.size() / 3));
    for (const char byte : content.substr(content.size() / 3)) file.Append(byte);
    if (Succeeded(rc)) rc = file.Commit();
    if (reason != nullptr) *reason = file.Reason();
    return rc;
}

std::string LongText() {
    std::string text;
    for (int line = 0; text.size() < 3 * ZELDurableFile::kBufferSize; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    return text;
}

class ZELDurableFileTest : public testing::Test {
protected:
    TestDirectory directory;
    std::string path = directory.Path("P.metadata");
};

TEST_F(ZELDurableFileTest, WritesANewFile) {
    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_EQ(Content(path), "content");
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, WritesAnEmptyFile) {
    EXPECT_EQ(Write(path, ""), S_OK);

    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(Content(path), "");
}

TEST_F(ZELDurableFileTest, WritesMoreThanItsBufferHolds) {
    const std::string text = LongText();

    EXPECT_EQ(Write(path, text), S_OK);

    EXPECT_EQ(Content(path), text);
}

TEST_F(ZELDurableFileTest, WritesExactlyOneBuffer) {
    const std::string text(ZELDurableFile::kBufferSize, 'x');
    ZELDurableFile file;
    ASSERT_EQ(file.Open(path), S_OK);
    file.Append(text);

    EXPECT_EQ(file.Commit(), S_OK);

    EXPECT_EQ(Content(path), text);
}

TEST_F(ZELDurableFileTest, TakesTheBeginningOfABlockAtEveryPlaceOfItsBuffer) {
    const char block[16] = "0123456789abcde";
    for (std::size_t before = ZELDurableFile::kBufferSize - 20; before < ZELDurableFile::kBufferSize + 2;
         ++before) {
        ZELDurableFile file;
        ASSERT_EQ(file.Open(path), S_OK);
        file.Append(std::string(before, 'x'));
        file.AppendBlock(block, 10);
        file.AppendBlock(block, 0);
        file.Append('!');

        EXPECT_EQ(file.Commit(), S_OK);

        ASSERT_EQ(Content(path), std::string(before, 'x') + "0123456789!");
    }
}

TEST_F(ZELDurableFileTest, ReplacesAFileAndKeepsItsPermissions) {
    directory.MakeFile("P.metadata", "old");
    chmod(path.c_str(), 0640);

    EXPECT_EQ(Write(path, "new"), S_OK);

    struct stat status {};
    stat(path.c_str(), &status);
    EXPECT_EQ(Content(path), "new");
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(ZELDurableFileTest, GivesANewFileThePermissionsOfTheProcess) {
    const mode_t before = umask(027);
    EXPECT_EQ(Write(path, "new"), S_OK);
    umask(before);

    struct stat status {};
    stat(path.c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST_F(ZELDurableFileTest, TheOldFileStaysUntilTheCommit) {
    directory.MakeFile("P.metadata", "old");
    ZELDurableFile file;
    ASSERT_EQ(file.Open(path), S_OK);
    file.Append(LongText());

    EXPECT_EQ(Content(path), "old");
    EXPECT_EQ(file.Commit(), S_OK);
    EXPECT_EQ(Content(path), LongText());
}

TEST_F(ZELDurableFileTest, WhatIsNotCommittedLeavesNothing) {
    {
        ZELDurableFile file;
        ASSERT_EQ(file.Open(path), S_OK);
        file.Append(LongText());
    }

    EXPECT_THAT(NamesIn(directory.Path()), IsEmpty());
}

TEST_F(ZELDurableFileTest, ABackslashBeforeTheLastPartSeparatesDirectories) {
    EXPECT_EQ(Write(directory.Path() + "\\Q.metadata", "content"), S_OK);

    EXPECT_EQ(Content(directory.Path("Q.metadata")), "content");
}

TEST_F(ZELDurableFileTest, WritesToTheWorkingDirectory) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(directory.Path());
    EXPECT_EQ(Write("P.metadata", "content"), S_OK);
    std::filesystem::current_path(before);

    EXPECT_EQ(Content(path), "content");
}

TEST_F(ZELDurableFileTest, ReplacesWhatALinkLeadsTo) {
    directory.MakeDirectory("real");
    directory.MakeFile("real/R", "old");
    std::filesystem::create_symlink("real/R", path);

    EXPECT_EQ(Write(path, "new"), S_OK);

    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(Content(directory.Path("real/R")), "new");
    EXPECT_THAT(NamesIn(directory.Path("real")), ElementsAre("R"));
}

TEST_F(ZELDurableFileTest, TheLatestReasonIsThatOfTheFileOpenedLast) {
    const std::string there = directory.MakeDirectory("there");
    EXPECT_EQ(Write(path, "text"), S_OK);
    EXPECT_EQ(ZELDurableFile::LatestReason(path), "");

    EXPECT_EQ(Write(directory.Path() + "\\there", "text"), E_FAIL);

    EXPECT_EQ(ZELDurableFile::LatestReason(there), "Is a directory");
    EXPECT_EQ(ZELDurableFile::LatestReason(path), "");
    EXPECT_EQ(Write(path, "text"), S_OK);
    EXPECT_EQ(ZELDurableFile::LatestReason(there), "");
}

TEST_F(ZELDurableFileTest, TakesTheLongestNameThatAFileCanHave) {
    const std::string name(255, 'n');

    EXPECT_EQ(Write(directory.Path(name), "content"), S_OK);

    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre(name));
}

TEST_F(ZELDurableFileTest, RefusesADirectory) {
    directory.MakeDirectory("P.metadata");
    std::string reason;

    EXPECT_EQ(Write(path, "new", &reason), E_FAIL);

    EXPECT_EQ(reason, "Is a directory");
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, RefusesWhatIsNoRegularFile) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::string reason;

    EXPECT_EQ(Write(path, "new", &reason), E_FAIL);

    EXPECT_EQ(reason, "Not a regular file");
    EXPECT_TRUE(std::filesystem::is_fifo(path));
}

TEST_F(ZELDurableFileTest, MakesNoDirectories) {
    std::string reason;

    EXPECT_EQ(Write(directory.Path("none/P.metadata"), "new", &reason), E_FAIL);

    EXPECT_EQ(reason, "No such file or directory");
    EXPECT_THAT(NamesIn(directory.Path()), IsEmpty());
}

TEST_F(ZELDurableFileTest, RefusesNamesThatNoFileCanHave) {
    EXPECT_EQ(Write("", "new"), E_FAIL);
    EXPECT_EQ(Write(std::string("a\0b", 3), "new"), E_FAIL);
    EXPECT_EQ(Write(directory.Path("none/"), "new"), E_FAIL);
    EXPECT_EQ(Write(directory.Path(std::string(256, 'n')), "new"), E_FAIL);
}

TEST_F(ZELDurableFileTest, WhatIsNotOpenTakesNothingAndCannotBeCommitted) {
    ZELDurableFile file;
    file.Append("");
    file.Append("lost");
    file.Append('x');
    file.AppendBlock("block", 3);

    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.Commit(), E_FAIL);
}

TEST_F(ZELDurableFileTest, CanBeUsedAgain) {
    ZELDurableFile file;
    EXPECT_EQ(file.Open(directory.Path("none/P")), E_FAIL);
    EXPECT_FALSE(file.Reason().empty());

    EXPECT_EQ(file.Open(path), S_OK);
    EXPECT_TRUE(file.Reason().empty());
    file.Append("content");
    EXPECT_EQ(file.Commit(), S_OK);
    EXPECT_EQ(Content(path), "content");
}

/// Where files can have no name until they are complete, and where they cannot.
class ZELDurableFileFaultTest : public ZELDurableFileTest, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(WithAndWithoutUnnamedFiles, ZELDurableFileFaultTest, testing::Bool());

TEST_P(ZELDurableFileFaultTest, EachCallThatFailsLeavesAWholeFileAndNoOther) {
    const std::string text = LongText();
    int calls = 0;
    {
        FailingFileCalls counting;
        counting.hasUnnamedFiles = GetParam();
        ASSERT_EQ(Write(path, text), S_OK);
        calls = counting.count;
    }
    ASSERT_GE(calls, 9);  // two opens, four writes, two flushes, a name
    for (int failAt = 1; failAt <= calls; ++failAt) {
        directory.MakeFile("P.metadata", "old");
        FailingFileCalls failing;
        failing.hasUnnamedFiles = GetParam();
        failing.failAt = failAt;
        std::string reason;

        EXPECT_EQ(Write(path, text, &reason), E_FAIL) << failing.made;

        EXPECT_EQ(reason, "Input/output error") << failing.made;
        // Only the flush of the directory comes when the new file is there already.
        EXPECT_EQ(Content(path), failAt == calls ? text : "old") << failing.made;
        EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata")) << failing.made;
    }
}

TEST_P(ZELDurableFileFaultTest, GoesOnAfterInterruptions) {
    for (int failAt = 1; failAt <= 9; ++failAt) {
        FailingFileCalls failing;
        failing.hasUnnamedFiles = GetParam();
        failing.failAt = failAt;
        failing.error = EINTR;

        EXPECT_EQ(Write(path, LongText()), S_OK) << failing.made;

        EXPECT_EQ(Content(path), LongText());
    }
}

TEST_P(ZELDurableFileFaultTest, AFileSystemWithoutLocksIsWrittenAllTheSame) {
    FailingFileCalls failing;
    failing.hasUnnamedFiles = GetParam();
    failing.hasLocks = false;

    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_EQ(Content(path), "content");
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_P(ZELDurableFileFaultTest, ACloseThatFailsAfterTheFlushIsNoFailure) {
    FailingFileCalls failing;
    failing.hasUnnamedFiles = GetParam();
    failing.closesFail = true;

    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_EQ(Content(path), "content");
}

TEST_P(ZELDurableFileFaultTest, WhatCouldNotBeRemovedGoesWithTheNextFile) {
    {
        FailingFileCalls failing;
        failing.hasUnnamedFiles = GetParam();
        failing.removesFail = true;
        ZELDurableFile file;
        ASSERT_EQ(file.Open(path), S_OK);
        file.Append("lost");
        failing.failAt = failing.count + (GetParam() ? 4 : 3);  // the rename
        ASSERT_EQ(file.Commit(), E_FAIL);
        ASSERT_EQ(failing.made.back(), 'r');
    }
    ASSERT_THAT(NamesIn(directory.Path()), ElementsAre(".P.metadata.zel-0"));

    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, GoesOnAfterShortWrites) {
    FailingFileCalls failing;
    failing.mostWritten = 1000;

    EXPECT_EQ(Write(path, LongText()), S_OK);

    EXPECT_EQ(Content(path), LongText());
}

TEST_F(ZELDurableFileTest, AWriteThatTakesNothingIsAFailure) {
    FailingFileCalls failing;
    failing.mostWritten = 0;

    EXPECT_EQ(Write(path, "content"), E_FAIL);

    EXPECT_THAT(NamesIn(directory.Path()), IsEmpty());
}

TEST_F(ZELDurableFileTest, AFileSystemThatFlushesNoDirectoriesIsNoFailure) {
    FailingFileCalls counting;
    ASSERT_EQ(Write(path, "content"), S_OK);
    counting.failAt = 2 * counting.count;
    counting.error = EINVAL;

    EXPECT_EQ(Write(path, "other"), S_OK);

    EXPECT_EQ(counting.count, counting.failAt);
    EXPECT_EQ(Content(path), "other");
}

TEST_F(ZELDurableFileTest, ALimitOfTheFileSizeIsAFailureLikeOthers) {
    directory.MakeFile("P.metadata", "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limited{ZELDurableFile::kBufferSize + 1000, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    std::string reason;

    const HRESULT rc = Write(path, LongText(), &reason);  // the signal of the limit would end the process

    setrlimit(RLIMIT_FSIZE, &before);
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGXFSZ), 0);
    EXPECT_EQ(rc, E_FAIL);
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(Content(path), "old");
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, RemovesWhatAKilledProcessLeftBehind) {
    directory.MakeFile(".P.metadata.zel-0", "half");

    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, LeavesTheFileOfALivingProcessAlone) {
    const std::string other = directory.MakeFile(".P.metadata.zel-0", "half");
    const int descriptor = open(other.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(descriptor, LOCK_EX), 0);

    EXPECT_EQ(Write(path, "content"), S_OK);

    EXPECT_EQ(Content(other), "half");
    EXPECT_EQ(Content(path), "content");
    close(descriptor);
}

TEST_F(ZELDurableFileTest, TwoWritersOfOneNameDoNotDisturbEachOther) {
    ZELDurableFile first;
    ZELDurableFile second;
    ASSERT_EQ(first.Open(path), S_OK);
    ASSERT_EQ(second.Open(path), S_OK);
    first.Append("first");
    second.Append("second");

    EXPECT_EQ(second.Commit(), S_OK);
    EXPECT_EQ(first.Commit(), S_OK);

    EXPECT_EQ(Content(path), "first");
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

TEST_F(ZELDurableFileTest, AKillAtAnyMomentLeavesAWholeFile) {
    const std::string texts[] = {std::string(700'000, 'a'), std::string(600'000, 'b')};
    ASSERT_EQ(Write(path, texts[0]), S_OK);
    for (int round = 0; round < 60; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int turn = 0;; ++turn) Write(path, texts[turn % 2]);
        }
        ASSERT_GT(child, 0);
        usleep(static_cast<useconds_t>(500 + 137 * round % 4000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        const std::string content = Content(path);
        ASSERT_TRUE(content == texts[0] || content == texts[1]) << round;
    }

    EXPECT_EQ(Write(path, "last"), S_OK);
    EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("P.metadata"));
}

}  // namespace
