#ifndef ZANDIC_TOOL_READ_BACK_H
#define ZANDIC_TOOL_READ_BACK_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Loads \p names, and \p beside after them, in a process of its own, from the directories of \p path, and
/// compares the model with that of \p dump, both normalised: what a document leaves out on purpose does not
/// count. \param mayRefuse whether some of the names are known to be refused. \returns what is wrong, in one
/// line; none when nothing is.
std::optional<std::string> WrongReadBack(const std::vector<std::string>& names,
                                         const std::vector<std::string>& beside, const std::string& path,
                                         std::string dump, bool mayRefuse);

/// \returns where two dumps that differ do so first: the object, and its two lines.
std::string FirstDifference(std::string_view saved, std::string_view readBack);

}  // namespace tool

#endif
