#ifndef ZELHUGEPAGES_H
#define ZELHUGEPAGES_H

#include <cstddef>

/// Asks the system to back a large block from the C allocator with huge pages: a block that is filled
/// once, from end to end, otherwise costs more in page faults than in filling. Small blocks and systems
/// without huge pages are left alone.
void ZELAdviseHugePages(void* memory, std::size_t bytes) noexcept;

/// Asks the system for the pages of a block that is about to be filled, all at once instead of one fault
/// each.
void ZELTakePages(void* memory, std::size_t bytes) noexcept;

#endif
