#include "FailingMemory.h"

#include <cstdlib>
#include <new>

#include "ZELMemory.h"

namespace {

struct Plan {
    bool isOn = false;
    bool goesOn = false;
    int untilFailure = 0;
    int failures = 0;
};

constinit Plan plan;

bool IsRefused() noexcept {
    if (!plan.isOn) return false;
    if (plan.untilFailure > 0) --plan.untilFailure;
    if (plan.untilFailure != 0 || (plan.failures != 0 && !plan.goesOn)) return false;
    ++plan.failures;
    return true;
}

class RefusedCalls final : public ZELMemoryCalls {
public:
    void* Allocate(std::size_t bytes, std::size_t alignment) override {
        return IsRefused() ? nullptr : ZELMemoryCalls::Allocate(bytes, alignment);
    }
    void* Reallocate(void* block, std::size_t bytes) override {
        return IsRefused() ? nullptr : ZELMemoryCalls::Reallocate(block, bytes);
    }
};

RefusedCalls refusedCalls;

void* Allocate(std::size_t size, std::size_t alignment) noexcept {
    if (IsRefused()) return nullptr;
    if (alignment <= alignof(std::max_align_t)) return std::malloc(size != 0 ? size : 1);
    return std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment);
}

void* AllocateOrThrow(std::size_t size, std::size_t alignment = 1) {
    void* const block = Allocate(size, alignment);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

}  // namespace

FailingMemory::FailingMemory(int failAt, Shortage shortage) {
    ZELSetMemoryCalls(&refusedCalls);
    plan = {true, shortage == Shortage::FromThenOn, failAt, 0};
}

FailingMemory::~FailingMemory() {
    plan.isOn = false;
    ZELSetMemoryCalls(nullptr);
}

int FailingMemory::Failures() const { return plan.failures; }

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return AllocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return AllocateOrThrow(size, static_cast<std::size_t>(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size, 1); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size, 1); }
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return Allocate(size, static_cast<std::size_t>(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    return Allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, std::align_val_t) noexcept { std::free(block); }
void operator delete[](void* block, std::align_val_t) noexcept { std::free(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { std::free(block); }
