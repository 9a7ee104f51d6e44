#ifndef ZELFATALERROR_H
#define ZELFATALERROR_H

#include "ZELExport.h"

/// Ends the process after a broken promise of a caller: writes out standard output's buffer, then one line on
/// standard error ("message, source, line n"), then aborts. Bad input never leads here.
/// \param message for an assertion "AssertionFailed:" and the condition.
/// \param source, line where it was found; fixed texts, not those of the compiler.
[[noreturn]] ZELSYSTEM_API void ZELFatalError(const char* message, const char* source, int line) noexcept;

#endif
