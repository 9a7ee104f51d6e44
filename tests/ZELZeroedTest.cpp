#include "ZELZeroed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace {

using Words = ZELZeroed<std::uint64_t>;

bool IsZero(const Words& words, std::size_t count) {
    return std::all_of(words.get(), words.get() + count, [](std::uint64_t word) { return word == 0; });
}

TEST(ZELZeroed, IsZeroAndWritableWhateverItsSize) {
    // A few bytes, a page, and blocks that are asked for in large pages, in part and whole.
    for (const std::size_t count :
         {std::size_t{1}, std::size_t{512}, std::size_t{1} << 18, std::size_t{3} << 20}) {
        const Words words = ZELMakeZeroed<std::uint64_t>(count);

        EXPECT_TRUE(IsZero(words, count)) << count;
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(words.get()) % 64, 0U) << "not at a line of the cache";
        words[0] = 1;
        words[count - 1] = 1;
    }
}

TEST(ZELZeroed, IsZeroAgainWhereAnotherWas) {
    constexpr std::size_t kCount = 1000;
    {
        const Words words = ZELMakeZeroed<std::uint64_t>(kCount);
        std::fill_n(words.get(), kCount, ~std::uint64_t{0});
    }

    EXPECT_TRUE(IsZero(ZELMakeZeroed<std::uint64_t>(kCount), kCount));
}

}  // namespace
