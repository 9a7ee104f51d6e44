#include "ZELPool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

namespace {

TEST(ZELPoolTest, BlocksOfEverySizeDoNotOverlap) {
    struct Block {
        unsigned char* bytes;
        std::size_t size;
    };
    std::vector<Block> blocks;
    for (std::size_t size = 0; size <= 1100; ++size) {
        auto* const bytes = static_cast<unsigned char*>(ZELPoolAllocate(size));
        std::memset(bytes, static_cast<int>(size % 251), size);
        blocks.push_back({bytes, size});
    }

    for (const Block& block : blocks) {
        for (std::size_t at = 0; at < block.size; ++at) ASSERT_EQ(block.bytes[at], block.size % 251);
    }

    for (const Block& block : blocks) ZELPoolFree(block.bytes, block.size);
}

TEST(ZELPoolTest, ManyBlocksOfOneSizeAreAllDifferent) {
    constexpr int kCount = 20000;
    std::set<void*> blocks;

    for (int number = 0; number < kCount; ++number) blocks.insert(ZELPoolAllocate(24));

    EXPECT_EQ(blocks.size(), static_cast<std::size_t>(kCount));
    for (void* const block : blocks) ZELPoolFree(block, 24);
}

TEST(ZELPoolTest, BlocksAreAlignedAsTheirSizeAllows) {
    void* const eight = ZELPoolAllocate(24);
    void* const sixteen = ZELPoolAllocate(48);

    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(eight) % 8, 0U);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(sixteen) % 16, 0U);

    ZELPoolFree(eight, 24);
    ZELPoolFree(sixteen, 48);
}

TEST(ZELPoolTest, FreeingNullDoesNothing) {
    ZELPoolFree(nullptr, 8);
    ZELPoolFree(nullptr, 4096);
}

#if defined(__SANITIZE_ADDRESS__)
#define POOL_IS_BYPASSED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define POOL_IS_BYPASSED 1
#endif
#endif

#ifdef POOL_IS_BYPASSED

TEST(ZELPoolDeathTest, AUseAfterTheFreeIsSeen) {
    EXPECT_DEATH(
        {
            auto* const bytes = static_cast<volatile unsigned char*>(ZELPoolAllocate(32));
            ZELPoolFree(const_cast<unsigned char*>(bytes), 32);
            bytes[0] = 1;
        },
        "heap-use-after-free");
}

#else

TEST(ZELPoolTest, AFreedBlockServesTheNextRequestOfItsSize) {
    void* const first = ZELPoolAllocate(40);
    const auto place = reinterpret_cast<std::uintptr_t>(first);
    ZELPoolFree(first, 40);

    void* const second = ZELPoolAllocate(33);

    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(second), place);
    ZELPoolFree(second, 33);
}

TEST(ZELPoolTest, BeginningsOfLargerBlocksAreInOneLine) {
    constexpr int kCount = 3000;
    std::vector<void*> blocks;
    for (int number = 0; number < kCount; ++number) blocks.push_back(ZELPoolAllocate(96));

    for (void* const block : blocks) EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 32, 0U);

    for (void* const block : blocks) ZELPoolFree(block, 96);
}

TEST(ZELPoolTest, BlocksAbove128BytesAreWholeLines) {
    std::vector<std::pair<void*, std::size_t>> blocks;
    for (std::size_t size = 129; size <= 512; ++size) blocks.emplace_back(ZELPoolAllocate(size), size);

    for (const auto& [block, size] : blocks) EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 64, 0U);

    for (const auto& [block, size] : blocks) ZELPoolFree(block, size);
}

#endif

struct Base : ZELPooled {
    virtual ~Base() = default;
    int number = 1;
};
struct Derived : Base {
    ~Derived() override { *ended = true; }
    bool* ended = nullptr;
    char more[100] = {};
};

TEST(ZELPoolTest, AnObjectIsFreedThroughItsBase) {
    bool ended = false;
    auto* const derived = new Derived;
    derived->ended = &ended;
    Base* const object = derived;

    delete object;

    EXPECT_TRUE(ended);
}

TEST(ZELPoolTest, AnObjectCanBePlacedByHand) {
    alignas(Base) unsigned char room[sizeof(Base)];

    Base* const object = new (room) Base;

    EXPECT_EQ(static_cast<void*>(object), static_cast<void*>(room));
    object->~Base();
}

}  // namespace
