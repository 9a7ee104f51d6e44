/// Memory that runs out where a test wants it.
#ifndef FAILING_MEMORY_H
#define FAILING_MEMORY_H

#include <cstddef>

/// In force while it lives: counts the allocations of the whole process and lets the one numbered \p failAt,
/// from 1, fail, alone or with all that follow. A program that links FailingMemory.cpp has its language
/// allocator replaced; the blocks that the platform takes by itself are counted as well. In builds with
/// AddressSanitizer pools hand each object an allocation of its own, so that every one of them is met;
/// without it those that need a new chunk are.
class FailingMemory {
public:
    enum class Shortage { Once, FromThenOn };

    FailingMemory(int failAt, Shortage shortage);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// \returns how many allocations failed so far.
    int Failures() const;
};

#endif
