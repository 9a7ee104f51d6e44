#ifndef ZELSTACKTRACE_H
#define ZELSTACKTRACE_H

#include "ZELExport.h"

/// Writes the calls that led here to standard error, one line each, the innermost first; 64 at most.
/// Writes out standard output's buffer before, so that the lines there precede. Symbols are those that the
/// program and its libraries offer. One thread.
ZELSYSTEM_API void ZELPrintStackTrace() noexcept;

#endif
