#include "ZELResult.h"

#include <gtest/gtest.h>

namespace {

TEST(ZELResultTest, CodesHaveThePlatformsValues) {
    EXPECT_EQ(S_OK, 0);
    EXPECT_EQ(S_FALSE, 1);
    EXPECT_EQ(static_cast<std::uint32_t>(E_FAIL), 0x80004005U);
    EXPECT_EQ(static_cast<std::uint32_t>(E_INVALIDARG), 0x80070057U);
    EXPECT_EQ(static_cast<std::uint32_t>(E_NOINTERFACE), 0x80004002U);
}

TEST(ZELResultTest, OnlyNegativeResultsAreFailures) {
    EXPECT_FALSE(Failed(S_OK));
    EXPECT_FALSE(Failed(S_FALSE));
    EXPECT_TRUE(Failed(E_FAIL));
    EXPECT_TRUE(Succeeded(S_FALSE));
    EXPECT_FALSE(Succeeded(E_INVALIDARG));
}

}  // namespace
