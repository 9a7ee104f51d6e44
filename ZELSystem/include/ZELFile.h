#ifndef ZELFILE_H
#define ZELFILE_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "ZELExport.h"
#include "ZELResult.h"

/// The bytes of a file, followed by kPadding zeros, so that a scanner may look a little past the end.
/// Move-only.
class ZELSYSTEM_API ZELFileContent {
public:
    static constexpr std::size_t kPadding = 64;

    ZELFileContent() noexcept = default;

    /// \returns the bytes without the padding; valid while the content lives, wherever it is moved to.
    std::string_view View() const noexcept { return {_Bytes != nullptr ? _Bytes.get() : "", _Size}; }
    const char* Data() const noexcept { return View().data(); }
    std::size_t Size() const noexcept { return _Size; }

private:
    friend ZELSYSTEM_API HRESULT ZELReadFile(const char* path, ZELFileContent& content, std::string* reason);

    struct FreeBytes {
        void operator()(char* bytes) const noexcept;
    };

    std::unique_ptr<char, FreeBytes> _Bytes;
    std::size_t _Size = 0;
};

/// Reads the regular file \p path, symbolic links followed, whole and in one block. A backslash before the
/// last part separates directories. A file that grows or shrinks meanwhile gives what there was when it was
/// read. \param[out] content written on success only. \param[out] reason when not null: why not, in a few
/// words without the path; written on failure only. \returns S_OK; E_FAIL when there is no such file, it is
/// not regular (it is not opened then), cannot be
///          read or is larger than memory.
ZELSYSTEM_API HRESULT ZELReadFile(const char* path, ZELFileContent& content, std::string* reason = nullptr);

#endif
