#include "ZELFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

#include "ZELTestDirectory.h"

namespace {

class ZELFileTest : public testing::Test {
protected:
    TestDirectory directory;
    ZELFileContent content;
    std::string reason = "none";
};

TEST_F(ZELFileTest, ReadsAFileWhole) {
    const std::string text = std::string("a\0b\r\n", 5) + std::string(100000, 'x');

    EXPECT_EQ(ZELReadFile(directory.MakeFile("a", text).c_str(), content, &reason), S_OK);

    EXPECT_EQ(content.View(), text);
    EXPECT_EQ(content.Size(), text.size());
    EXPECT_EQ(reason, "none");
}

TEST_F(ZELFileTest, ZerosFollowTheBytes) {
    ASSERT_EQ(ZELReadFile(directory.MakeFile("a", "abc").c_str(), content), S_OK);

    for (std::size_t at = 0; at < ZELFileContent::kPadding; ++at) EXPECT_EQ(content.Data()[3 + at], '\0');
}

TEST_F(ZELFileTest, AnEmptyFileIsRead) {
    EXPECT_EQ(ZELReadFile(directory.MakeFile("a", "").c_str(), content), S_OK);

    EXPECT_EQ(content.View(), "");
    EXPECT_EQ(content.Data()[0], '\0');
}

TEST_F(ZELFileTest, BytesStayWhereTheyAreWhenTheContentMoves) {
    ASSERT_EQ(ZELReadFile(directory.MakeFile("a", "abc").c_str(), content), S_OK);
    const char* const bytes = content.Data();

    const ZELFileContent moved = std::move(content);

    EXPECT_EQ(moved.Data(), bytes);
    EXPECT_EQ(moved.View(), "abc");
}

TEST_F(ZELFileTest, ABackslashBeforeTheLastPartSeparates) {
    directory.MakeFile("a", "abc");

    EXPECT_EQ(ZELReadFile((directory.Path() + "\\a").c_str(), content), S_OK);
}

TEST_F(ZELFileTest, FollowsALink) {
    std::filesystem::create_symlink(directory.MakeFile("a", "abc"), directory.Path("link"));

    EXPECT_EQ(ZELReadFile(directory.Path("link").c_str(), content), S_OK);
    EXPECT_EQ(content.View(), "abc");
}

TEST_F(ZELFileTest, AFileWhoseLengthIsNotKnownIsReadToItsEnd) {
    // The system says 0 for the length of its own tables.
    EXPECT_EQ(ZELReadFile("/proc/self/status", content, &reason), S_OK);

    EXPECT_NE(content.View().find("Name:"), std::string_view::npos);
    EXPECT_NE(content.View().find("nonvoluntary_ctxt_switches"), std::string_view::npos);
}

TEST_F(ZELFileTest, AMissingFileFailsWithItsReason) {
    ASSERT_EQ(ZELReadFile(directory.MakeFile("a", "abc").c_str(), content), S_OK);

    EXPECT_EQ(ZELReadFile(directory.Path("none").c_str(), content, &reason), E_FAIL);

    EXPECT_EQ(reason, "No such file or directory");
    EXPECT_EQ(content.View(), "abc");
    EXPECT_EQ(ZELReadFile(nullptr, content), E_FAIL);
    EXPECT_EQ(ZELReadFile("", content), E_FAIL);
}

TEST_F(ZELFileTest, WhatIsNoRegularFileIsRefusedUnread) {
    ASSERT_EQ(mkfifo(directory.Path("pipe").c_str(), 0600), 0);

    EXPECT_EQ(ZELReadFile(directory.Path().c_str(), content, &reason), E_FAIL);
    EXPECT_EQ(reason, "Is a directory");
    EXPECT_EQ(ZELReadFile(directory.Path("pipe").c_str(), content, &reason), E_FAIL);
    EXPECT_EQ(reason, "Not a regular file");
    EXPECT_EQ(ZELReadFile("/dev/zero", content, &reason), E_FAIL);
    EXPECT_EQ(reason, "Not a regular file");
}

TEST_F(ZELFileTest, AFileThatCannotBeOpenedFailsWithItsReason) {
    // A ring of links rather than missing rights, which do not stop the superuser.
    const std::string path = directory.Path("ring");
    ASSERT_EQ(symlink(path.c_str(), path.c_str()), 0);

    EXPECT_EQ(ZELReadFile(path.c_str(), content, &reason), E_FAIL);

    EXPECT_EQ(reason, "Too many levels of symbolic links");
}

}  // namespace
