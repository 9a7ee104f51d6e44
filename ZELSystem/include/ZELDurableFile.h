#ifndef ZELDURABLEFILE_H
#define ZELDURABLEFILE_H

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "ZELExport.h"
#include "ZELResult.h"

/// A file that is written whole or not at all.
///
/// The bytes go to a file of another name in the same directory (to one without a name where the system has
/// such), which is flushed to the disk and renamed over the final name once complete. Until then, and after
/// any failure up to there, what bore the final name is as it was. The file beside it is removed on failure
/// and by the destructor; what a process that was killed left behind is removed by the next one that writes
/// to the same name. Two processes that write the same name do not disturb each other; the later one wins.
///
/// A replaced file keeps its permissions; a symbolic link stays one, and the file that it leads to is
/// replaced. Something that is no regular file, or that may not be written, is left alone. Directories are
/// not made.
///
/// A limit of the file size is a failure like others: no handler is set, but the signal that the system sends
/// (SIGXFSZ) is blocked for the thread during each write and taken back after it, so that neither the process
/// ends nor a handler of the program runs, and what the program has set stays so.
///
/// 256 KiB of buffer while open. The first failure decides: what follows it does nothing. One thread.
class ZELSYSTEM_API ZELDurableFile {
public:
    static constexpr std::size_t kBufferSize = std::size_t{256} * 1024;

    ZELDurableFile() noexcept = default;
    ~ZELDurableFile() { Discard(); }
    ZELDurableFile(const ZELDurableFile&) = delete;
    ZELDurableFile& operator=(const ZELDurableFile&) = delete;

    /// Begins the file that is to be \p path; a backslash before the last part separates directories. What
    /// was open before is discarded. \returns S_OK; E_FAIL, with a reason, when nothing can be written there.
    HRESULT Open(std::string_view path);

    /// Adds \p bytes at the end. A failure shows when the file is committed.
    void Append(std::string_view bytes) {
        if (bytes.size() >= _Room) return AppendSlowly(bytes);
        _End += bytes.copy(_End, bytes.size());
        _Room -= bytes.size();
    }
    void Append(char byte) {
        if (_Room == 0) return AppendSlowly({&byte, 1});
        *_End++ = byte;
        --_Room;
    }

    /// Adds the first \p size bytes of \p block, which can be read as a whole: cheaper where they are few.
    template <std::size_t capacity>
    void AppendBlock(const char (&block)[capacity], std::size_t size) {
        if (capacity >= _Room) return AppendSlowly({block, size});
        std::memcpy(_End, block, capacity);
        _End += size;
        _Room -= size;
    }

    /// Adds texts one behind the other; cheaper than one by one.
    template <class... Texts>
    void AppendAll(const Texts&... texts) {
        const std::size_t size = (texts.size() + ...);
        if (size >= _Room) return (AppendSlowly(texts), ...);
        ((_End += texts.copy(_End, texts.size())), ...);
        _Room -= size;
    }

    /// Makes the file durable under its final name and closes it.
    /// \returns S_OK; E_FAIL, with a reason. Only when what failed was the last step, the flush of the
    /// directory, does the final name bear the new file then, whole as well.
    HRESULT Commit();

    /// Removes what was written and closes the file; nothing when none is open.
    void Discard() noexcept;

    bool IsOpen() const noexcept { return _Descriptor >= 0; }

    /// \returns why the last file could not be written, in a few words without its path; empty when it could.
    const std::string& Reason() const noexcept { return _Reason; }

    /// For callers of an operation that writes a file of its own and keeps the reason to itself.
    /// \returns that of the file which the process opened last, if \p path was asked for and it could not be
    /// written; else empty.
    static std::string LatestReason(std::string_view path);

private:
    HRESULT Fail(int error);
    int OpenBeside();
    int OpenNamed();
    int TakeName();
    void AppendSlowly(std::string_view bytes);
    void Flush();

    std::string _Path;       ///< the final name, links resolved
    std::string _Directory;  ///< with the closing slash; empty for the present one
    std::string _Beside;     ///< the name that the file has meanwhile; empty while it has none
    std::string _Reason;
    int _Descriptor = -1;
    int _DirectoryDescriptor = -1;
    int _Error = 0;  ///< the first failure of a write
    std::unique_ptr<char[]> _Buffer;
    char* _End = nullptr;   ///< where the next byte goes
    std::size_t _Room = 0;  ///< bytes free behind it; 0 too after a failure
};

#endif
