#ifndef ZELENVIRONMENT_H
#define ZELENVIRONMENT_H

#include <optional>
#include <string>
#include <string_view>

#include "ZELExport.h"

/// \returns the value of the environment variable \p name, maybe empty; none when it is not set.
ZELSYSTEM_API std::optional<std::string> ZELGetEnv(const char* name);

/// Searches the directories of \p pathList, separated by ":", in their order for the regular file \p
/// fileName. Symbolic links are followed. What bears the name but is no regular file is passed over and never
/// opened; so are empty items of the list. A backslash before the last part of a name separates directories.
/// \returns the path of the first one found; none when no directory holds it.
ZELSYSTEM_API std::optional<std::string> ZELFindPath(std::string_view pathList, std::string_view fileName);

/// \returns \p path as the system wants it: where a backslash stands before the last part, a slash.
///          Backslashes further left are part of directory names and stay.
ZELSYSTEM_API std::string ZELNativePath(std::string_view path);

#endif
