#include "OxmBuildFileName.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "ZELTestDirectory.h"

namespace {

struct Free {
    void operator()(char* text) const { std::free(text); }
};
using Text = std::unique_ptr<char, Free>;

/// What every call starts with: neither null nor a result.
char untouched[] = "untouched";

}  // namespace

TEST(OxmBuildFileNameTest, ReadFindsTheFileInTheFirstDirectoryThatHoldsIt) {
    const TestDirectory first;
    const TestDirectory second;
    second.MakeFile("Items.metadata", "");
    second.MakeFile("Other.metadata", "");
    first.MakeFile("Other.metadata", "");
    const std::string path = first.Path() + ":" + second.Path();
    char* name = untouched;

    ASSERT_EQ(OxmBuildFileName('r', path.c_str(), "Items", "metadata", &name), S_OK);
    EXPECT_EQ(Text(name).get(), second.Path("Items.metadata"));
    ASSERT_EQ(OxmBuildFileName('r', path.c_str(), "Other", "metadata", &name), S_OK);
    EXPECT_EQ(Text(name).get(), first.Path("Other.metadata"));
}

TEST(OxmBuildFileNameTest, ReadGivesNullWhenThereIsNoFile) {
    const TestDirectory directory;
    char* name = untouched;

    EXPECT_EQ(OxmBuildFileName('r', directory.Path().c_str(), "Items", "metadata", &name), E_FAIL);
    EXPECT_EQ(name, nullptr);
}

TEST(OxmBuildFileNameTest, WriteJoinsWithABackslashAndTestsNothing) {
    char* name = untouched;

    ASSERT_EQ(OxmBuildFileName('w', "dir", "Pkg", "metadata", &name), S_OK);
    EXPECT_STREQ(Text(name).get(), "dir\\Pkg.metadata");
}

TEST(OxmBuildFileNameTest, WriteTakesNamesLiterally) {
    char* name = untouched;

    ASSERT_EQ(OxmBuildFileName('w', "/a/b", "../x/y", "e", &name), S_OK);
    EXPECT_STREQ(Text(name).get(), "/a/b\\../x/y.e");
}

TEST(OxmBuildFileNameTest, AnotherModeFailsAndLeavesTheOutputUntouched) {
    char* name = untouched;

    EXPECT_EQ(OxmBuildFileName('x', "dir", "Pkg", "metadata", &name), E_FAIL);
    EXPECT_EQ(name, untouched);
}

TEST(OxmBuildFileNameTest, NullArgumentsFail) {
    char* name = untouched;

    EXPECT_EQ(OxmBuildFileName('w', nullptr, "Pkg", "metadata", &name), E_FAIL);
    EXPECT_EQ(OxmBuildFileName('w', "dir", nullptr, "metadata", &name), E_FAIL);
    EXPECT_EQ(OxmBuildFileName('w', "dir", "Pkg", nullptr, &name), E_FAIL);
    EXPECT_EQ(OxmBuildFileName('w', "dir", "Pkg", "metadata", nullptr), E_FAIL);
    EXPECT_EQ(name, untouched);
}
