#include "ZELHash.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>

namespace {

constexpr std::uint32_t kSeed = 20240229;

class ZELHashTest : public testing::Test {
protected:
    void SetUp() override { ZELSetHashSeed(kSeed); }
};

TEST_F(ZELHashTest, TheSeedIsKeptOnceSet) { EXPECT_EQ(ZELHashSeed(), kSeed); }

TEST_F(ZELHashTest, TheSameTextHasTheSameKeyWhereverItLies) {
    const std::string text = "xRelationshipToAssembly";
    for (std::size_t length = 0; length < text.size(); ++length) {
        const std::string copy = text.substr(1, length);
        EXPECT_EQ(ZELHashText(std::string_view(text).substr(1, length)), ZELHashText(copy));
    }
}

TEST_F(ZELHashTest, EveryByteOfATextCounts) {
    for (std::size_t length = 1; length <= 50; ++length) {
        const std::string text(length, 'a');
        for (std::size_t at = 0; at < length; ++at) {
            std::string other = text;
            other[at] = 'b';
            EXPECT_NE(ZELHashText(other), ZELHashText(text)) << length << ", " << at;
        }
        EXPECT_NE(ZELHashText(text), ZELHashText(text.substr(1))) << length;
    }
}

TEST_F(ZELHashTest, ContainersKeyTextsByTheSeedToo) {
    const std::size_t key = ZELTextHash()("Part");
    EXPECT_EQ(key, ZELHashText("Part"));

    ZELSetHashSeed(kSeed + 1);

    EXPECT_NE(ZELTextHash()("Part"), key);
}

TEST_F(ZELHashTest, EveryByteOfAnIdentifierCountsAndSoDoesItsLength) {
    const unsigned char zeros[16] = {};
    for (int at = 0; at < 16; ++at) {
        unsigned char bytes[16] = {};
        bytes[at] = 1;
        EXPECT_NE(ZELHashBytes16(bytes, 16), ZELHashBytes16(zeros, 16)) << at;
    }
    EXPECT_NE(ZELHashBytes16(zeros, 15), ZELHashBytes16(zeros, 16));
}

TEST_F(ZELHashTest, AnotherSeedGivesOtherKeys) {
    const std::uint32_t text = ZELHashText("Part");
    const unsigned char bytes[16] = {1, 2, 3};
    const std::uint32_t binary = ZELHashBytes16(bytes, 16);

    ZELSetHashSeed(kSeed + 1);

    EXPECT_NE(ZELHashText("Part"), text);
    EXPECT_NE(ZELHashBytes16(bytes, 16), binary);
}

TEST_F(ZELHashTest, TheSeedDrawnDiffersFromDrawToDraw) {
    std::unordered_set<std::uint32_t> seeds;
    for (int draw = 0; draw < 4; ++draw) {
        ZELDrawHashSeed();
        seeds.insert(ZELHashSeed());
    }
    EXPECT_GT(seeds.size(), 1U);
}

TEST_F(ZELHashTest, NumberedNamesHardlyCollide) {
    std::unordered_set<std::uint32_t> keys;
    for (int number = 0; number < 100000; ++number)
        keys.insert(ZELHashText("Attribute" + std::to_string(number)));

    EXPECT_GE(keys.size(), 100000U - 10U);
}

TEST_F(ZELHashTest, CountedIdentifiersHardlyCollide) {
    std::unordered_set<std::uint32_t> keys;
    for (unsigned number = 0; number < 100000; ++number) {
        const unsigned char bytes[16] = {static_cast<unsigned char>(number),
                                         static_cast<unsigned char>(number >> 8),
                                         static_cast<unsigned char>(number >> 16)};
        keys.insert(ZELHashBytes16(bytes, 16));
    }

    EXPECT_GE(keys.size(), 100000U - 10U);
}

}  // namespace
