#ifndef ZANDIC_TOOL_BASELINE_H
#define ZANDIC_TOOL_BASELINE_H

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "Finding.h"

namespace tool {

/// Findings that somebody has accepted: kept in a file, so that a check fails on new ones only.
///
/// A finding is known by the name of its file without directories, its code, its element and its text, and by
/// how many there are of them: its place may move, and so may the documents.
/// docs/schemas/baseline.schema.json
class Baseline {
public:
    Baseline() = default;

    /// Accepts the findings that stand for themselves.
    explicit Baseline(const Findings& findings);

    /// Reads a file. \param[out] fault what is wrong with it. \returns none then.
    static std::optional<Baseline> Read(const std::string& file, std::string& fault);

    /// Writes the file, whole or not at all: sorted, so that the same findings give the same bytes.
    /// \returns what went wrong; empty when nothing did.
    std::string Write(const std::string& file) const;

    /// Says which of \p findings are accepted: of those that are known alike, the first ones.
    /// \param[out] gone how many others it would accept.
    std::vector<bool> Accept(const Findings& findings, std::size_t& gone) const;

    std::size_t Size() const;

private:
    using Key =
        std::tuple<std::string, std::string, std::string, std::string>;  ///< file, code, element, text

    static Key KeyOf(const Finding& finding);

    std::map<Key, std::size_t> _COUNTS;
};

}  // namespace tool

#endif
