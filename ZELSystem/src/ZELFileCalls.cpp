#include "ZELFileCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <string>
#include <utility>

#include "ZELOwnFileCalls.h"

namespace {

class SystemFileCalls final : public ZELFileCalls {};

SystemFileCalls systemCalls;
ZELFileCalls* presentCalls = &systemCalls;

}  // namespace

int ZELFileCalls::Open(const char* path, int flags, unsigned mode) { return open(path, flags, mode); }

long ZELFileCalls::Write(int descriptor, const char* bytes, std::size_t size) {
    return write(descriptor, bytes, size);
}

int ZELFileCalls::Sync(int descriptor) { return fsync(descriptor); }

int ZELFileCalls::Lock(int descriptor) { return flock(descriptor, LOCK_EX | LOCK_NB); }

int ZELFileCalls::Link(int descriptor, const char* path) {
    return linkat(AT_FDCWD, ZELDescriptorPath(descriptor).c_str(), AT_FDCWD, path, AT_SYMLINK_FOLLOW);
}

int ZELFileCalls::Rename(const char* from, const char* to) { return std::rename(from, to); }

int ZELFileCalls::Remove(const char* path) { return unlink(path); }

int ZELFileCalls::Close(int descriptor) { return close(descriptor); }

ZELFileCalls* ZELSetFileCalls(ZELFileCalls* calls) noexcept {
    ZELFileCalls* const before = std::exchange(presentCalls, calls != nullptr ? calls : &systemCalls);
    return before != &systemCalls ? before : nullptr;
}

ZELFileCalls& ZELPresentFileCalls() noexcept { return *presentCalls; }

std::string ZELDescriptorPath(int descriptor) { return "/proc/self/fd/" + std::to_string(descriptor); }
