#include "ZELFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <system_error>

#include "ZELEnvironment.h"
#include "ZELHugePages.h"
#include "ZELOwnMemoryCalls.h"

namespace {

/// An open file; closed at the end of the scope.
class OpenFile {
public:
    explicit OpenFile(const char* path) noexcept
        : _Descriptor(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~OpenFile() {
        if (_Descriptor >= 0) close(_Descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Descriptor() const noexcept { return _Descriptor; }

private:
    int _Descriptor;
};

/// \returns the system's number for the last call's failure, from now on in a value.
int LastError() noexcept { return errno != 0 ? errno : EIO; }

/// \returns 0 when \p status, got with result \p rc, is that of a regular file, else the number of the
/// reason.
int CheckRegular(int rc, const struct stat& status) noexcept {
    if (rc != 0) return LastError();
    if (S_ISDIR(status.st_mode)) return EISDIR;
    return S_ISREG(status.st_mode) ? 0 : ENOTSUP;
}

std::string ReasonText(int error) {
    return error == ENOTSUP ? "Not a regular file" : std::generic_category().message(error);
}

/// Memory that grows by the C allocator, which extends a large block in place.
struct Room {
    char* bytes = nullptr;
    std::size_t size = 0;  ///< without the padding

    bool Resize(std::size_t wanted) noexcept {
        if (wanted > std::numeric_limits<std::size_t>::max() / 4) return false;
        void* const moved = ZELResizeBlock(bytes, wanted + ZELFileContent::kPadding);
        if (moved == nullptr) return false;
        ZELAdviseHugePages(moved, wanted);
        bytes = static_cast<char*>(moved);
        size = wanted;
        return true;
    }
};

/// So much is read at once: its pages, taken just before, are in the cache when they are filled.
constexpr std::size_t kReadStep = std::size_t{256} * 1024;

/// Reads to the end of the file, wherever that is by then.
/// \returns 0, or the number of the reason; \p room is the caller's to free either way.
int ReadAll(int descriptor, std::size_t expected, Room& room, std::size_t& length) noexcept {
    // One byte more than expected, so that the read that fills it also sees the end.
    if (!room.Resize(expected + 1)) return ENOMEM;
    length = 0;
    for (;;) {
        if (length == room.size && !room.Resize(room.size * 2)) return ENOMEM;
        const std::size_t step = std::min(room.size - length, kReadStep);
        if (step == kReadStep) ZELTakePages(room.bytes + length, step);
        const ssize_t count = read(descriptor, room.bytes + length, step);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return LastError();
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
    }
    std::memset(room.bytes + length, 0, room.size - length + ZELFileContent::kPadding);
    return 0;
}

/// Looks before it opens: opening alone may already do something to a device.
int OpenAndRead(const char* path, Room& room, std::size_t& length) noexcept {
    struct stat status {};
    if (const int error = CheckRegular(stat(path, &status), status); error != 0) return error;
    const OpenFile file(path);
    if (file.Descriptor() < 0) return LastError();
    if (const int error = CheckRegular(fstat(file.Descriptor(), &status), status); error != 0) return error;
    return ReadAll(file.Descriptor(), static_cast<std::size_t>(status.st_size), room, length);
}

}  // namespace

void ZELFileContent::FreeBytes::operator()(char* bytes) const noexcept { std::free(bytes); }

HRESULT ZELReadFile(const char* path, ZELFileContent& content, std::string* reason) {
    Room room;
    std::size_t length = 0;
    const int error =
        path != nullptr ? OpenAndRead(ZELNativePath(path).c_str(), room, length) : static_cast<int>(ENOENT);
    if (error != 0) {
        std::free(room.bytes);
        if (error == ENOMEM) ZELNoteShortage();
        if (reason != nullptr) *reason = ReasonText(error);
        return E_FAIL;
    }
    content._Bytes.reset(room.bytes);
    content._Size = length;
    return S_OK;
}
