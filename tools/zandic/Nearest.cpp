#include "Nearest.h"

#include <fmt/format.h>

#include <algorithm>

namespace tool {
namespace {

constexpr std::size_t kMost = 3;
constexpr std::size_t kLongest = 200;  // bytes; longer words are not misspelt but made
constexpr std::size_t kShortestBeginning = 3;
constexpr std::size_t kEdit = 2;  // cost of a letter more, less, other, or in the wrong place
constexpr std::size_t kCase = 1;  // cost of a letter in the other case

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::size_t CostOf(char a, char b) {
    if (a == b) return 0;
    return Lower(a) == Lower(b) ? kCase : kEdit;
}

bool IsSameLetter(char a, char b) { return Lower(a) == Lower(b); }

bool IsBeginning(std::string_view word, std::string_view candidate) {
    return word.size() >= kShortestBeginning && candidate.size() > word.size() &&
           std::equal(word.begin(), word.end(), candidate.begin(), IsSameLetter);
}

}  // namespace

Nearest::Nearest(std::string_view word)
    : _Word(word), _Limit(kEdit * std::max<std::size_t>(1, word.size() / 3) + kCase) {}

void Nearest::Add(std::string_view candidate) {
    if (_Word.empty() || candidate.empty() || _Word.size() > kLongest) return;
    const std::size_t longer = std::max(candidate.size(), _Word.size());
    const std::size_t shorter = std::min(candidate.size(), _Word.size());
    std::size_t distance = _Limit + 1;
    if ((longer - shorter) * kEdit <= _Limit && longer <= kLongest) distance = DistanceTo(candidate);
    if (std::equal(_Word.begin(), _Word.end(), candidate.begin(), candidate.end(), IsSameLetter))
        distance = kCase;
    if (distance > _Limit) {
        if (!IsBeginning(_Word, candidate)) return;
        distance = _Limit + 1;  // behind all others
    }

    std::pair<std::size_t, std::string> found(distance, candidate);
    const auto place = std::lower_bound(_BEST.begin(), _BEST.end(), found);
    if (place != _BEST.end() && *place == found) return;
    _BEST.insert(place, std::move(found));
    if (_BEST.size() > kMost) _BEST.pop_back();
}

/// The cost of the cheapest way from the word to the candidate by single letters and swaps of neighbours.
std::size_t Nearest::DistanceTo(std::string_view candidate) const {
    std::vector<std::size_t> before(candidate.size() + 1);
    std::vector<std::size_t> last(candidate.size() + 1);
    std::vector<std::size_t> now(candidate.size() + 1);
    for (std::size_t column = 0; column <= candidate.size(); ++column) last[column] = column * kEdit;
    for (std::size_t row = 1; row <= _Word.size(); ++row) {
        now[0] = row * kEdit;
        for (std::size_t column = 1; column <= candidate.size(); ++column) {
            now[column] = std::min({last[column] + kEdit, now[column - 1] + kEdit,
                                    last[column - 1] + CostOf(_Word[row - 1], candidate[column - 1])});
            const bool isSwapped = row > 1 && column > 1 && _Word[row - 1] == candidate[column - 2] &&
                                   _Word[row - 2] == candidate[column - 1];
            if (isSwapped) now[column] = std::min(now[column], before[column - 2] + kEdit);
        }
        before.swap(last);
        last.swap(now);
    }
    return last.back();
}

std::vector<std::string> Nearest::Words() const {
    std::vector<std::string> words;
    for (const auto& [distance, word] : _BEST) {
        // What only begins with the word is a guess for want of a better one.
        if (distance <= _Limit || _BEST.front().first > _Limit) words.push_back(word);
    }
    return words;
}

std::string Nearest::Question() const {
    return _BEST.empty() ? "" : fmt::format("; did you mean {}?", Alternatives(Words()));
}

std::string Alternatives(std::vector<std::string> words) {
    std::string last = std::move(words.back());
    words.pop_back();
    return words.empty() ? last : fmt::format("{} or {}", fmt::join(words, ", "), last);
}

}  // namespace tool
