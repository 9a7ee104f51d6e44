#include "ZELDurableFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include "ZELEnvironment.h"
#include "ZELOwnFileCalls.h"

namespace {

constexpr unsigned kNewFileMode = 0666;
constexpr int kMostNames = 64;  ///< of files beside one final name that processes write at once

int LastError() noexcept { return errno != 0 ? errno : EIO; }

/// Repeats a call for as long as signals interrupt it.
template <class Call>
auto Uninterrupted(Call call) {
    for (;;) {
        const auto rc = call();
        if (rc >= 0 || errno != EINTR) return rc;
    }
}

/// While one lives, a write beyond the limit of the file size fails without ending the process.
class SizeSignalHeld {
public:
    SizeSignalHeld() noexcept {
        sigemptyset(&_Signal);
        sigaddset(&_Signal, SIGXFSZ);
        sigset_t pending;
        sigpending(&pending);
        _WasPending = sigismember(&pending, SIGXFSZ) == 1;
        pthread_sigmask(SIG_BLOCK, &_Signal, &_Before);
    }
    ~SizeSignalHeld() {
        const int error = errno;
        const timespec atOnce{};
        if (!_WasPending) Uninterrupted([&] { return sigtimedwait(&_Signal, nullptr, &atOnce); });
        pthread_sigmask(SIG_SETMASK, &_Before, nullptr);
        errno = error;
    }
    SizeSignalHeld(const SizeSignalHeld&) = delete;
    SizeSignalHeld& operator=(const SizeSignalHeld&) = delete;

private:
    sigset_t _Signal{};
    sigset_t _Before{};
    bool _WasPending;
};

std::string ReasonText(int error) {
    return error == ENOTSUP ? "Not a regular file" : std::generic_category().message(error);
}

/// \returns where the file is that \p path leads to, also over links; \p path when there is none yet.
std::string ResolveLinks(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(path.c_str(), nullptr), &std::free);
    return resolved != nullptr ? std::string(resolved.get()) : path;
}

/// \returns 0 when \p path is a file that may be replaced, or nothing at all.
int CheckReplaceable(const std::string& path, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) return EISDIR;
    if (!S_ISREG(status.st_mode)) return ENOTSUP;
    return access(path.c_str(), W_OK) == 0 ? 0 : LastError();
}

bool SameFile(const struct stat& a, const struct stat& b) noexcept {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Whether \p path still names what \p descriptor has open.
bool Names(const std::string& path, int descriptor) {
    struct stat named {};
    struct stat opened {};
    return lstat(path.c_str(), &named) == 0 && fstat(descriptor, &opened) == 0 && SameFile(named, opened);
}

bool Lock(int descriptor) { return ZELPresentFileCalls().Lock(descriptor) == 0; }

/// The same for a file that this process has made: where the system has no locks nobody else takes it either.
bool LockOwn(int descriptor) { return Lock(descriptor) || errno != EWOULDBLOCK; }

/// What a close reports is of no interest: the file was flushed before, or is given up.
void Close(int descriptor) { ZELPresentFileCalls().Close(descriptor); }

/// Removes the file \p path if its writer is no more: a living one holds the lock.
/// \returns whether nothing bears that name now.
bool RemoveLeftover(const std::string& path) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0) return errno == ENOENT;
    const bool removed =
        Lock(descriptor) && Names(path, descriptor) && ZELPresentFileCalls().Remove(path.c_str()) == 0;
    Close(descriptor);
    return removed;
}

/// Offers the names beside \p directory + \p name one by one until \p take answers with something else than
/// EEXIST. Leftovers under these names are removed first. \returns that answer.
template <class Take>
int TakeFreeName(const std::string& directory, std::string_view name, std::string& taken, Take take) {
    // The longest name of a file has 255 bytes; this one is longer than the final name by a few.
    const std::string_view begin = name.substr(0, NAME_MAX - sizeof("..zel-99"));
    int error = EEXIST;
    for (int number = 0; number < kMostNames && error == EEXIST; ++number) {
        taken = directory + "." + std::string(begin) + ".zel-" + std::to_string(number);
        error = take();
        if (error == EEXIST && RemoveLeftover(taken)) error = take();
    }
    if (error != 0) taken.clear();
    return error;
}

/// The file that was opened last, and the number of what it failed for; 0 while it has not.
struct LatestFile {
    std::string path;
    int error = 0;
};

LatestFile& Latest() {
    static LatestFile latest;
    return latest;
}

}  // namespace

std::string ZELDurableFile::LatestReason(std::string_view path) {
    const LatestFile& latest = Latest();
    if (latest.error == 0 || latest.path != ZELNativePath(path)) return {};
    return ReasonText(latest.error);
}

HRESULT ZELDurableFile::Open(std::string_view path) {
    Discard();
    _Reason.clear();
    _Error = 0;
    Latest() = {ZELNativePath(path), 0};
    if (path.empty() || path.find('\0') != std::string_view::npos) return Fail(ENOENT);
    _Path = ResolveLinks(ZELNativePath(path));
    _Directory = _Path.substr(0, _Path.rfind('/') + 1);
    if (_Directory.size() == _Path.size()) return Fail(EISDIR);

    struct stat status {};
    const bool replaces = stat(_Path.c_str(), &status) == 0;
    if (!replaces && errno != ENOENT) return Fail(LastError());
    if (const int error = replaces ? CheckReplaceable(_Path, status) : 0; error != 0) return Fail(error);

    _Buffer.reset(new char[kBufferSize]);
    if (const int error = OpenBeside(); error != 0) return Fail(error);
    if (replaces && fchmod(_Descriptor, status.st_mode & 07777U) != 0) return Fail(LastError());
    _End = _Buffer.get();
    _Room = kBufferSize;
    return S_OK;
}

/// Opens the directory, for its flush at the end, and in it the file that is written.
int ZELDurableFile::OpenBeside() {
    ZELFileCalls& calls = ZELPresentFileCalls();
    const char* const directory = _Directory.empty() ? "." : _Directory.c_str();
    _DirectoryDescriptor =
        Uninterrupted([&] { return calls.Open(directory, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0); });
    // A directory may be written to without being readable: the file is flushed, its name cannot be.
    if (_DirectoryDescriptor < 0 && errno != EACCES) return LastError();

    _Descriptor =
        Uninterrupted([&] { return calls.Open(directory, O_TMPFILE | O_WRONLY | O_CLOEXEC, kNewFileMode); });
    if (_Descriptor < 0) {
        const bool unknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL || errno == ENOENT;
        return unknown ? OpenNamed() : LastError();
    }
    if (access(ZELDescriptorPath(_Descriptor).c_str(), F_OK) != 0) {
        Close(std::exchange(_Descriptor, -1));  // nothing could give it a name later
        return OpenNamed();
    }
    Lock(_Descriptor);
    return 0;
}

int ZELDurableFile::OpenNamed() {
    const auto create = [this] {
        _Descriptor = Uninterrupted([&] {
            return ZELPresentFileCalls().Open(_Beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                              kNewFileMode);
        });
        if (_Descriptor < 0) return LastError();
        // Another process may have taken it for a leftover before the lock was there.
        if (LockOwn(_Descriptor) && Names(_Beside, _Descriptor)) return 0;
        Close(std::exchange(_Descriptor, -1));
        return EEXIST;
    };
    return TakeFreeName(_Directory, std::string_view(_Path).substr(_Directory.size()), _Beside, create);
}

/// Gives the file the name from which it is renamed, unless it has that already.
int ZELDurableFile::TakeName() {
    if (!_Beside.empty()) return 0;
    const auto link = [this] {
        const int rc =
            Uninterrupted([&] { return ZELPresentFileCalls().Link(_Descriptor, _Beside.c_str()); });
        return rc == 0 ? 0 : LastError();
    };
    return TakeFreeName(_Directory, std::string_view(_Path).substr(_Directory.size()), _Beside, link);
}

HRESULT ZELDurableFile::Commit() {
    if (!IsOpen()) return E_FAIL;
    Flush();
    ZELFileCalls& calls = ZELPresentFileCalls();
    if (_Error == 0 && Uninterrupted([&] { return calls.Sync(_Descriptor); }) != 0) _Error = LastError();
    if (_Error == 0) _Error = TakeName();
    if (_Error != 0) return Fail(_Error);
    if (Uninterrupted([&] { return calls.Rename(_Beside.c_str(), _Path.c_str()); }) != 0) {
        return Fail(LastError());
    }
    _Beside.clear();
    if (_DirectoryDescriptor >= 0 && Uninterrupted([&] { return calls.Sync(_DirectoryDescriptor); }) != 0) {
        // Some file systems know no flush of a directory: they need none.
        if (errno != EINVAL && errno != ENOTSUP) return Fail(LastError());
    }
    Discard();
    return S_OK;
}

void ZELDurableFile::Discard() noexcept {
    if (!_Beside.empty()) ZELPresentFileCalls().Remove(_Beside.c_str());
    _Beside.clear();
    // The lock ends with the descriptor, so the name has to go first.
    if (_Descriptor >= 0) Close(std::exchange(_Descriptor, -1));
    if (_DirectoryDescriptor >= 0) Close(std::exchange(_DirectoryDescriptor, -1));
    _Buffer.reset();
    _End = nullptr;
    _Room = 0;
}

HRESULT ZELDurableFile::Fail(int error) {
    Discard();
    _Error = error;
    Latest().error = error;
    _Reason = ReasonText(error);
    return E_FAIL;
}

void ZELDurableFile::AppendSlowly(std::string_view bytes) {
    while (IsOpen() && _Error == 0 && !bytes.empty()) {
        if (_Room == 0) Flush();
        const std::string_view part = bytes.substr(0, _Room);
        _End += part.copy(_End, part.size());
        _Room -= part.size();
        bytes.remove_prefix(part.size());
    }
}

/// Writes the buffer out and makes room, unless that fails.
void ZELDurableFile::Flush() {
    const SizeSignalHeld held;
    const char* next = _Buffer.get();
    while (_Error == 0 && next != _End) {
        const auto size = static_cast<std::size_t>(_End - next);
        const long count =
            Uninterrupted([&] { return ZELPresentFileCalls().Write(_Descriptor, next, size); });
        if (count < 0) _Error = LastError();
        if (count == 0) _Error = EIO;  // a file that takes nothing and says no reason
        if (count > 0) next += count;
    }
    _End = _Buffer.get();
    _Room = _Error == 0 ? kBufferSize : 0;
}
