/// Files that the dictionary writes, looked at from outside: it does not say whether it could.
#ifndef ZANDIC_TOOL_FILES_H
#define ZANDIC_TOOL_FILES_H

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "Output.h"

namespace tool {

/// Looks at a name twice: when it is made, and when it is asked whether the name bears another file by then.
class FileWatch {
public:
    explicit FileWatch(std::string path);

    const std::string& Path() const { return _Path; }

    /// \returns whether the name bears a regular file that was not there, or not as it is now, before.
    bool IsWritten() const;

private:
    /// Device, number, size and times of a file; they never stay the same when it is written.
    using Identity = std::tuple<std::uint64_t, std::uint64_t, std::int64_t, std::int64_t, std::int64_t>;
    std::optional<Identity> Look() const;

    std::string _Path;
    std::optional<Identity> _Before;  ///< none: no regular file
};

/// \returns why no file can be written into \p directory at all; none when one may be.
std::optional<std::string> WrongDirectory(const std::string& directory);

/// \returns "it could not be written", and why, for a file that the dictionary has just failed to write.
std::string NotWritten(const std::string& path);

/// \returns \p name in \p directory; of the present directory only the name.
std::string PathIn(const std::string& directory, const std::string& name);

/// Writes the paths of files that were written, one a line, or as JSON.
void WriteFileList(const std::vector<std::string>& files, bool asJson, Output& output);

/// Copies a file: the copy is complete, or what bore its name is as it was.
/// \returns what went wrong; none when nothing did.
std::optional<std::string> CopyWhole(const std::string& from, const std::string& to);

}  // namespace tool

#endif
