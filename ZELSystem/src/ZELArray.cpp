#include "ZELArray.h"

#include <cstdio>

#include "ZELFatalError.h"

void ZELPositionError(int position, int size) noexcept {
    char message[96];
    std::snprintf(message, sizeof message, "AssertionFailed:position %d in a list of %d", position, size);
    ZELFatalError(message, "ZELArray", 164);
}
