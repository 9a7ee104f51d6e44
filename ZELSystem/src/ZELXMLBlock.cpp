#include "ZELXMLBlock.h"

#include <cstdlib>
#include <new>

#include "ZELHugePages.h"
#include "ZELOwnMemoryCalls.h"

void* ZELXMLGrow(void* memory, std::size_t bytes) {
    void* const grown = ZELResizeBlock(memory, bytes);
    if (grown == nullptr) throw std::bad_alloc();
    ZELAdviseHugePages(grown, bytes);
    return grown;
}

void ZELXMLFree(void* memory) { std::free(memory); }

void ZELXMLMakeReady(void* memory, std::size_t bytes) noexcept { ZELTakePages(memory, bytes); }
