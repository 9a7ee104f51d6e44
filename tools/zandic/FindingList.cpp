#include "FindingList.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

namespace tool {
namespace {

auto KeyOf(const Finding& finding) {
    return std::tie(finding.at.file, finding.at.place.line, finding.at.place.column, finding.severity,
                    finding.code, finding.text, finding.element);
}

/// Errors first among those of one place: severity counts down.
bool IsBefore(const Finding& a, const Finding& b) {
    const auto place = [](const Finding& each) {
        return std::tie(each.at.file, each.at.place.line, each.at.place.column);
    };
    if (place(a) != place(b)) return place(a) < place(b);
    if (a.severity != b.severity) return a.severity > b.severity;
    return KeyOf(a) < KeyOf(b);
}

/// Puts the findings of the numbers \p order, by place in it, into a new list. Causes follow \p newNumbers.
void Rearrange(Findings& findings, const std::vector<std::size_t>& order,
               const std::vector<std::size_t>& newNumbers) {
    Findings arranged;
    arranged.reserve(order.size());
    for (const std::size_t number : order) {
        arranged.push_back(std::move(findings[number]));
        std::size_t& cause = arranged.back().cause;
        if (cause != Finding::kNone) cause = newNumbers[cause];
        if (cause == arranged.size() - 1) cause = Finding::kNone;  // the same fault, told by two loads
    }
    findings = std::move(arranged);
}

/// \returns the finding from which all others follow that lead to \p number.
std::size_t RootOf(const Findings& findings, std::size_t number) {
    // A cause is told before what follows from it, so that no chain is longer than the list.
    for (std::size_t steps = 0; steps < findings.size() && findings[number].cause != Finding::kNone;
         ++steps) {
        number = findings[number].cause;
    }
    return number;
}

}  // namespace

void Append(Findings& findings, Findings more) {
    const std::size_t offset = findings.size();
    for (Finding& finding : more) {
        if (finding.cause != Finding::kNone) finding.cause += offset;
    }
    findings.insert(findings.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

void Erase(Findings& findings, const std::function<bool(const Finding&)>& isUnwanted) {
    std::vector<std::size_t> order;
    std::vector<std::size_t> newNumbers(findings.size(), Finding::kNone);
    for (std::size_t number = 0; number < findings.size(); ++number) {
        if (isUnwanted(findings[number])) continue;
        newNumbers[number] = order.size();
        order.push_back(number);
    }
    Rearrange(findings, order, newNumbers);
}

void EraseWithConsequences(Findings& findings, const std::vector<bool>& isUnwanted) {
    std::vector<bool> all(findings.size());
    for (std::size_t number = 0; number < findings.size(); ++number) {
        all[number] = isUnwanted[number] || isUnwanted[RootOf(findings, number)];
    }
    std::size_t number = 0;
    Erase(findings, [&](const Finding&) { return all[number++]; });
}

void Arrange(Findings& findings) {
    std::vector<std::size_t> sorted(findings.size());
    std::iota(sorted.begin(), sorted.end(), 0U);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](std::size_t a, std::size_t b) { return IsBefore(findings[a], findings[b]); });
    std::vector<std::size_t> order;
    std::vector<std::size_t> newNumbers(findings.size());
    for (const std::size_t number : sorted) {
        const bool isSame = !order.empty() && KeyOf(findings[order.back()]) == KeyOf(findings[number]);
        if (!isSame) order.push_back(number);
        newNumbers[number] = order.size() - 1;
    }
    Rearrange(findings, order, newNumbers);
}

std::vector<std::size_t> CountConsequences(const Findings& findings) {
    std::vector<std::size_t> counts(findings.size());
    for (std::size_t number = 0; number < findings.size(); ++number) {
        if (findings[number].cause != Finding::kNone) ++counts[RootOf(findings, number)];
    }
    return counts;
}

}  // namespace tool
