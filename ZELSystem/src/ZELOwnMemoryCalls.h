/// The calls that are set now, for the platform's own use: the system's unless a test has set others.
#ifndef ZELOWNMEMORYCALLS_H
#define ZELOWNMEMORYCALLS_H

#include "ZELMemory.h"

void* ZELTakeBlock(std::size_t bytes, std::size_t alignment);
void* ZELResizeBlock(void* block, std::size_t bytes);

#endif
