/// What the dictionary traces. The environment variables "ZANDIC_TRACE_LEVEL" and
/// "ZANDIC_TRACE_METHODS" give the settings when the library is loaded; an embedding program may set
/// them at any time after that, with the same effect from then on. Where the lines go is another
/// matter (`ZELSetLineSink`). One thread.
#ifndef ZAN_DIC_TRACE_SETTINGS_H
#define ZAN_DIC_TRACE_SETTINGS_H

#include "ZELResult.h"
#include "ZanDicExport.h"

/// Sets the trace level: a line is written when its own level is not above it. 0, the default, lets
/// errors and warnings through, 1 also start and exit of operations, 2 the reader's information, 4 its
/// tags, 5 every detail; a negative level silences even errors.
ZANDICBASE_API void ZanDicSetTraceLevel(int level);

/// \returns the trace level.
ZANDICBASE_API int ZanDicGetTraceLevel();

/// Reads the names of operations that are traced whatever the level, one a line, and forgets those of
/// before. A line that starts with "#" is a comment; of each line the first 79 characters count.
/// \param path the file; null or empty lists no operation.
/// \returns S_OK; E_FAIL, after a warning line, when the file cannot be opened: nothing has changed.
ZANDICBASE_API HRESULT ZanDicSetTraceMethodsFile(const char* path);

#endif
