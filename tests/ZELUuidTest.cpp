#include "ZELUuid.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(ZELUuidTest, GivesSixteenBytesOfTheStandardVariant) {
    const ZELDbBinary uuid = getuuid();

    ASSERT_EQ(uuid.Length(), 16);
    EXPECT_EQ(uuid.Data()[8] & 0xC0, 0x80);
}

TEST(ZELUuidTest, NeverGivesOneTwice) {
    std::set<ZELDbBinary> uuids;

    for (int number = 0; number < 1000; ++number) uuids.insert(getuuid());

    EXPECT_EQ(uuids.size(), 1000U);
}

}  // namespace
