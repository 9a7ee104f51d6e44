#ifndef ZELONETHREAD_H
#define ZELONETHREAD_H

#include "ZELExport.h"

/// The libraries are for one thread: the first that asks for the dictionary's manager. A build for debugging
/// (without NDEBUG) ends the process, with a line that says so, when another calls an operation of an
/// interface; a release build tests nothing. Before a thread is the owner any may call.

/// Makes the calling thread the owner if there is none yet.
ZELSYSTEM_API void ZELOwnThread() noexcept;

/// Ends the process when another thread than the caller's is the owner. \param operation what was called.
ZELSYSTEM_API void ZELRequireThread(const char* operation) noexcept;

/// What an operation begins with: ZELRequireThread in a build for debugging, else nothing.
inline void ZELCheckThread([[maybe_unused]] const char* operation) noexcept {
#ifndef NDEBUG
    ZELRequireThread(operation);
#endif
}

#endif
