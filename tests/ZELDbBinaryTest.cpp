#include "ZELDbBinary.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <vector>

namespace {

constexpr unsigned char kBytes[20] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99,
                                      0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 0x01, 0x02, 0x03, 0x04};

TEST(ZELDbBinaryTest, IsEmptyByDefaultAndFromNothing) {
    EXPECT_TRUE(ZELDbBinary().IsEmpty());
    EXPECT_TRUE(ZELDbBinary(nullptr, 16).IsEmpty());
    EXPECT_TRUE(ZELDbBinary(kBytes, 0).IsEmpty());
    EXPECT_TRUE(ZELDbBinary(kBytes, -1).IsEmpty());
    EXPECT_EQ(ZELDbBinary().Length(), 0);
    EXPECT_EQ(ZELDbBinary().HexText(), "");
}

TEST(ZELDbBinaryTest, HoldsItsBytes) {
    const ZELDbBinary binary(kBytes, 16);

    EXPECT_EQ(binary.Length(), 16);
    EXPECT_EQ(std::memcmp(binary.Data(), kBytes, 16), 0);
    EXPECT_EQ(binary.HexText(), "00112233445566778899AABBCCDDEEFF");
}

TEST(ZELDbBinaryTest, KeepsSixteenBytesAtMost) {
    const ZELDbBinary binary(kBytes, 20);

    EXPECT_EQ(binary.Length(), 16);
    EXPECT_EQ(binary, ZELDbBinary(kBytes, 16));
}

TEST(ZELDbBinaryTest, TellsMissingBytesFromZeros) {
    const unsigned char zeros[16] = {};
    const ZELDbBinary four(zeros, 4);
    const ZELDbBinary five(zeros, 5);

    EXPECT_NE(four, five);
    EXPECT_LT(four.Compare(five), 0);
    EXPECT_GT(five.Compare(four), 0);
    EXPECT_NE(four.ComputeHashKey(), five.ComputeHashKey());
}

TEST(ZELDbBinaryTest, ComparesLikeTheSequenceOfItsBytes) {
    EXPECT_TRUE(rc::check("order and equality", [] {
        const auto bytes = rc::gen::resize(
            16, rc::gen::container<std::vector<unsigned char>>(rc::gen::inRange<unsigned char>(0, 3)));
        std::vector<unsigned char> a = *bytes;
        std::vector<unsigned char> b = *bytes;
        if (a.size() > 16) a.resize(16);
        if (b.size() > 16) b.resize(16);

        const ZELDbBinary left(a.data(), static_cast<int>(a.size()));
        const ZELDbBinary right(b.data(), static_cast<int>(b.size()));

        RC_ASSERT((left == right) == (a == b));
        RC_ASSERT((left < right) == (a < b));
        RC_ASSERT((left.Compare(right) == 0) == (a == b));
        if (a == b) RC_ASSERT(left.ComputeHashKey() == right.ComputeHashKey());
    }));
}

}  // namespace
