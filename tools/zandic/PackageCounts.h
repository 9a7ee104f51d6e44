/// What is in the loaded packages and what their loads cost, for `load` and `stats`.
#ifndef ZANDIC_TOOL_PACKAGE_COUNTS_H
#define ZANDIC_TOOL_PACKAGE_COUNTS_H

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "JsonWriter.h"
#include "Session.h"

namespace tool {

/// One package, or several together.
struct PackageCounts {
    std::string name;
    std::string uuid;
    std::map<std::string_view, int> counts;  ///< by tag: elements and all that belongs to them
    LoadCost cost;

    /// \returns all counts together.
    int Total() const;
};

/// \returns the tags that are counted, in the order in which they are told.
std::span<const std::string_view> CountedTags();

/// \returns the packages that are loaded, those first whose load ended first: a package after what it uses.
std::vector<PackageCounts> CountPackages(const Session& session);

/// \returns the sum; its name is "total", its UUID a text such as "2 packages".
PackageCounts SumOf(const std::vector<PackageCounts>& packages);

/// Writes the keys "elements" and, with \p withCost, "milliseconds" and "bytes".
void WriteCounts(const PackageCounts& counts, bool withCost, JsonWriter& json);

}  // namespace tool

#endif
