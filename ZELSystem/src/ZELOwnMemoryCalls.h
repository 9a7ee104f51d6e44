/// The calls that are set now, for the platform's own use.
#ifndef ZELOWNMEMORYCALLS_H
#define ZELOWNMEMORYCALLS_H

#include "ZELMemory.h"

ZELMemoryCalls& ZELPresentMemoryCalls() noexcept;

#endif
