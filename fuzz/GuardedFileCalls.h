#ifndef GUARDED_FILE_CALLS_H
#define GUARDED_FILE_CALLS_H

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include "ZELFileCalls.h"

/// File calls that open and remove nothing but what is in one directory, whatever name they are given, and
/// wait for no disk. In force while it lives.
class GuardedFileCalls final : public ZELFileCalls {
public:
    explicit GuardedFileCalls(std::string directory)
        : _Directory(std::move(directory)), _Before(ZELSetFileCalls(this)) {}
    ~GuardedFileCalls() { ZELSetFileCalls(_Before); }
    GuardedFileCalls(const GuardedFileCalls&) = delete;
    GuardedFileCalls& operator=(const GuardedFileCalls&) = delete;

    bool HasWritten() const { return _HasWritten; }

    int Open(const char* path, int flags, unsigned mode) override {
        return IsInside(path) ? ZELFileCalls::Open(path, flags, mode) : Refuse();
    }
    int Sync(int) override { return 0; }
    int Link(int descriptor, const char* path) override {
        return IsInside(path) ? ZELFileCalls::Link(descriptor, path) : Refuse();
    }
    int Rename(const char* from, const char* to) override {
        return IsInside(from) && IsInside(to) ? ZELFileCalls::Rename(from, to) : Refuse();
    }
    int Remove(const char* path) override { return IsInside(path) ? ZELFileCalls::Remove(path) : Refuse(); }

private:
    bool IsInside(std::string_view path) {
        if (!path.starts_with(_Directory) || path.find("/../") != path.npos) return false;
        _HasWritten = true;
        return true;
    }
    static int Refuse() {
        errno = EACCES;
        return -1;
    }

    std::string _Directory;
    ZELFileCalls* _Before;
    bool _HasWritten = false;
};

#endif
