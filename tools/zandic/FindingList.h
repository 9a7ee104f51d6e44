/// Findings as a list in which causes are numbers of other findings of the list.
#ifndef ZANDIC_TOOL_FINDING_LIST_H
#define ZANDIC_TOOL_FINDING_LIST_H

#include <functional>

#include "Finding.h"

namespace tool {

/// Adds \p more at the end; its causes are numbers among themselves.
void Append(Findings& findings, Findings more);

/// Takes out the findings that \p isUnwanted. What followed from one of them stands for itself then.
void Erase(Findings& findings, const std::function<bool(const Finding&)>& isUnwanted);

/// Takes out those findings, and with them whatever follows from them.
void EraseWithConsequences(Findings& findings, const std::vector<bool>& isUnwanted);

/// Sorts by file, place, code and text, and keeps one of those that say the same.
void Arrange(Findings& findings);

/// \returns for each finding how many follow from it, directly or through others.
std::vector<std::size_t> CountConsequences(const Findings& findings);

}  // namespace tool

#endif
