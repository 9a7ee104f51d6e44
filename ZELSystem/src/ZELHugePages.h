#ifndef ZELHUGEPAGES_H
#define ZELHUGEPAGES_H

#include <cstddef>

/// Asks the system to back the first megabytes of a large block from the C allocator with huge pages: a block
/// that is filled once, from end to end, otherwise costs more in page faults than in filling. Only the first,
/// because a virtual machine gives huge pages that lay idle back to its host: a few are at hand and cost a
/// quarter of the small ones for the same bytes, many are fetched anew and cost five times as much. Small
/// blocks and systems without huge pages are left alone.
void ZELAdviseHugePages(void* memory, std::size_t bytes) noexcept;

/// Asks the system for the pages of a block that is about to be filled, all at once instead of one fault
/// each.
void ZELTakePages(void* memory, std::size_t bytes) noexcept;

#endif
