#include "ZELXMLBlock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

namespace {

TEST(ZELXMLBlock, IsEmptyAtFirst) {
    const ZELXMLBlock<int> block;

    EXPECT_EQ(block.Size(), 0u);
    EXPECT_EQ(block.Data(), nullptr);
}

TEST(ZELXMLBlock, KeepsItsValuesAsItGrows) {
    // Past the size from which the system is asked for huge pages.
    constexpr std::uint32_t kCount = 2'000'000;
    ZELXMLBlock<std::uint32_t> block;

    for (std::uint32_t value = 0; value < kCount; ++value) block.Append(value);

    ASSERT_EQ(block.Size(), kCount);
    for (std::uint32_t value = 0; value < kCount; ++value) ASSERT_EQ(block[value], value);
}

TEST(ZELXMLBlock, AppendsARowOfValues) {
    constexpr std::string_view kText = "abc";
    ZELXMLBlock<char> block;

    block.Append(kText.data(), kText.data() + 3);
    block.Append(kText.data(), kText.data());
    block.Append(kText.data() + 1, kText.data() + 3);

    EXPECT_EQ(std::string_view(block.Data(), block.Size()), "abcbc");
}

TEST(ZELXMLBlock, ReservingChangesNoSizeAndNeverShrinks) {
    ZELXMLBlock<int> block;
    block.Append(7);

    block.Reserve(100);
    block.Reserve(10);

    const int* const data = block.Data();
    EXPECT_EQ(block.Size(), 1u);
    EXPECT_EQ(block[0], 7);
    while (block.Size() < 100) block.Append(8);
    EXPECT_EQ(block.Data(), data);
}

}  // namespace
