#include "ZELEnvironment.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "ZELTestDirectory.h"

namespace {

TEST(ZELGetEnvTest, TellsNotSetFromEmpty) {
    unsetenv("ZEL_TEST_VARIABLE");
    EXPECT_EQ(ZELGetEnv("ZEL_TEST_VARIABLE"), std::nullopt);

    setenv("ZEL_TEST_VARIABLE", "", 1);
    EXPECT_EQ(ZELGetEnv("ZEL_TEST_VARIABLE"), "");

    setenv("ZEL_TEST_VARIABLE", "value", 1);
    EXPECT_EQ(ZELGetEnv("ZEL_TEST_VARIABLE"), "value");
    EXPECT_EQ(ZELGetEnv(nullptr), std::nullopt);
}

class ZELFindPathTest : public testing::Test {
protected:
    void SetUp() override {
        first = directory.MakeDirectory("first");
        second = directory.MakeDirectory("second");
        both = first + ":" + second;
    }

    TestDirectory directory;
    std::string first;
    std::string second;
    std::string both;
};

TEST_F(ZELFindPathTest, TakesTheFirstDirectoryThatHoldsTheFile) {
    directory.MakeFile("second/a", "");
    EXPECT_EQ(ZELFindPath(both, "a"), second + "/a");

    directory.MakeFile("first/a", "");
    EXPECT_EQ(ZELFindPath(both, "a"), first + "/a");
    EXPECT_EQ(ZELFindPath(both, "b"), std::nullopt);
}

TEST_F(ZELFindPathTest, PassesOverEmptyAndMissingDirectories) {
    directory.MakeFile("second/a", "");

    EXPECT_EQ(ZELFindPath("::" + directory.Path("none") + "::" + second + ":", "a"), second + "/a");
    EXPECT_EQ(ZELFindPath("", "a"), std::nullopt);
    EXPECT_EQ(ZELFindPath(":", "a"), std::nullopt);
}

TEST_F(ZELFindPathTest, AnEmptyItemIsNotTheCurrentDirectory) {
    const std::filesystem::path before = std::filesystem::current_path();
    directory.MakeFile("first/a", "");
    std::filesystem::current_path(first);

    const auto found = ZELFindPath(":", "a");

    std::filesystem::current_path(before);
    EXPECT_EQ(found, std::nullopt);
}

TEST_F(ZELFindPathTest, FollowsLinksToRegularFiles) {
    std::filesystem::create_symlink(directory.MakeFile("target", ""), first + "/a");

    EXPECT_EQ(ZELFindPath(both, "a"), first + "/a");
}

TEST_F(ZELFindPathTest, PassesOverWhatIsNoRegularFile) {
    directory.MakeFile("second/a", "");

    directory.MakeDirectory("first/a");
    EXPECT_EQ(ZELFindPath(both, "a"), second + "/a");
    std::filesystem::remove(first + "/a");

    ASSERT_EQ(mkfifo((first + "/a").c_str(), 0600), 0);
    EXPECT_EQ(ZELFindPath(both, "a"), second + "/a");
    std::filesystem::remove(first + "/a");

    std::filesystem::create_symlink("/dev/null", first + "/a");
    EXPECT_EQ(ZELFindPath(both, "a"), second + "/a");
    std::filesystem::remove(first + "/a");

    std::filesystem::create_symlink("nowhere", first + "/a");
    EXPECT_EQ(ZELFindPath(both, "a"), second + "/a");
}

TEST_F(ZELFindPathTest, ASlashAtADirectorysEndIsNotDoubled) {
    directory.MakeFile("first/a", "");

    EXPECT_EQ(ZELFindPath(first + "/", "a"), first + "/a");
}

TEST_F(ZELFindPathTest, ABackslashBeforeTheLastPartSeparates) {
    directory.MakeFile("first/a", "");

    EXPECT_EQ(ZELFindPath(directory.Path(), "first\\a"), first + "/a");
    EXPECT_EQ(ZELFindPath(first + "\\", "a"), std::nullopt);
}

TEST_F(ZELFindPathTest, ANameWithoutCharactersOrWithAZeroIsNotFound) {
    directory.MakeFile("first/a", "");

    EXPECT_EQ(ZELFindPath(both, ""), std::nullopt);
    EXPECT_EQ(ZELFindPath(both, std::string_view("a\0b", 3)), std::nullopt);
    EXPECT_EQ(ZELFindPath(std::string_view(first + std::string(1, '\0')), "a"), std::nullopt);
}

TEST(ZELNativePathTest, OnlyTheLastSeparatorIsTurned) {
    EXPECT_EQ(ZELNativePath("dir\\Pkg.metadata"), "dir/Pkg.metadata");
    EXPECT_EQ(ZELNativePath("/a\\b\\Pkg.metadata"), "/a\\b/Pkg.metadata");
    EXPECT_EQ(ZELNativePath("/a\\b/Pkg.metadata"), "/a\\b/Pkg.metadata");
    EXPECT_EQ(ZELNativePath("Pkg.metadata"), "Pkg.metadata");
    EXPECT_EQ(ZELNativePath(""), "");
}

}  // namespace
