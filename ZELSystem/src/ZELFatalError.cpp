#include "ZELFatalError.h"

#include <cstdio>
#include <cstdlib>

void ZELFatalError(const char* message, const char* source, int line) noexcept {
    std::fflush(stdout);
    std::fprintf(stderr, "%s, %s, line %d\n", message, source, line);
    std::fflush(stderr);
    std::abort();
}
