/// Calls of the operating system that fail as a test wants it, under what writes files.
#ifndef FAILING_FILE_CALLS_H
#define FAILING_FILE_CALLS_H

#include <fcntl.h>

#include <cerrno>
#include <cstddef>
#include <string>

#include "ZELFileCalls.h"

/// In force while it lives. Counts the calls; the one numbered failAt, from 1, fails with error instead of
/// being made.
class FailingFileCalls final : public ZELFileCalls {
public:
    FailingFileCalls() : _Before(ZELSetFileCalls(this)) {}
    ~FailingFileCalls() { ZELSetFileCalls(_Before); }
    FailingFileCalls(const FailingFileCalls&) = delete;
    FailingFileCalls& operator=(const FailingFileCalls&) = delete;

    int failAt = 0;
    int error = EIO;
    bool hasUnnamedFiles = true;                ///< whether a file can be opened that has no name yet
    std::size_t mostWritten = ~std::size_t{0};  ///< bytes that one write takes
    bool hasLocks = true;                       ///< whether the file system knows locks
    bool closesFail = false;   ///< closes are made and say that they failed; they are not counted
    bool removesFail = false;  ///< nothing can be removed
    int count = 0;
    std::string made;  ///< a letter for each call that was made: open, write, sync, link, name, remove

    int Open(const char* path, int flags, unsigned mode) override {
        if (Fails('o')) return -1;
        if (hasUnnamedFiles || (flags & O_TMPFILE) != O_TMPFILE) return ZELFileCalls::Open(path, flags, mode);
        errno = EOPNOTSUPP;
        return -1;
    }
    long Write(int descriptor, const char* bytes, std::size_t size) override {
        return Fails('w') ? -1
                          : ZELFileCalls::Write(descriptor, bytes, size < mostWritten ? size : mostWritten);
    }
    int Sync(int descriptor) override { return Fails('s') ? -1 : ZELFileCalls::Sync(descriptor); }
    int Link(int descriptor, const char* path) override {
        return Fails('l') ? -1 : ZELFileCalls::Link(descriptor, path);
    }
    int Rename(const char* from, const char* to) override {
        return Fails('n') ? -1 : ZELFileCalls::Rename(from, to);
    }
    int Remove(const char* path) override {
        if (Fails('r')) return -1;
        if (!removesFail) return ZELFileCalls::Remove(path);
        errno = EPERM;
        return -1;
    }
    int Lock(int descriptor) override {
        if (hasLocks) return ZELFileCalls::Lock(descriptor);
        errno = ENOLCK;
        return -1;
    }
    int Close(int descriptor) override {
        const int rc = ZELFileCalls::Close(descriptor);
        if (!closesFail) return rc;
        errno = error;
        return -1;
    }

private:
    bool Fails(char call) {
        ++count;
        if (count == failAt) {
            errno = error;
            return true;
        }
        made += call;
        return false;
    }

    ZELFileCalls* _Before;
};

#endif
