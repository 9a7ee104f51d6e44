#ifndef ZELFILECALLS_H
#define ZELFILECALLS_H

#include <cstddef>

#include "ZELExport.h"

/// The calls of the operating system that durable files are written with, each as the system defines it:
/// a negative result is a failure, and errno says why.
///
/// Programs have no use for it. Tests derive from it to make one call fail, to write less than was asked
/// for or to be interrupted, and to see what is left of the files then. One thread.
class ZELSYSTEM_API ZELFileCalls {
public:
    virtual int Open(const char* path, int flags, unsigned mode);
    virtual long Write(int descriptor, const char* bytes, std::size_t size);
    virtual int Sync(int descriptor);
    /// Locks the file behind \p descriptor for this opening of it, without waiting.
    virtual int Lock(int descriptor);
    /// Gives the unnamed file behind \p descriptor the name \p path, which nothing bears yet.
    virtual int Link(int descriptor, const char* path);
    virtual int Rename(const char* from, const char* to);
    virtual int Remove(const char* path);
    virtual int Close(int descriptor);

protected:
    ~ZELFileCalls() = default;
};

/// Lets \p calls stand for the system's from now on; the caller keeps them alive until others are set. Null
/// stands for the system's own. \returns the calls set before; null when they were the system's.
ZELSYSTEM_API ZELFileCalls* ZELSetFileCalls(ZELFileCalls* calls) noexcept;

#endif
