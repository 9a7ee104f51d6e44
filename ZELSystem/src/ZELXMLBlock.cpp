#include "ZELXMLBlock.h"

#include <cstdlib>
#include <new>

void* ZELXMLGrow(void* memory, std::size_t bytes) {
    void* const grown = std::realloc(memory, bytes);
    if (grown == nullptr) throw std::bad_alloc();
    return grown;
}

void ZELXMLFree(void* memory) { std::free(memory); }
