#ifndef ZANDIC_TOOL_NEAREST_H
#define ZANDIC_TOOL_NEAREST_H

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tool {

/// \returns "A, B or C". \param words at least one.
std::string Alternatives(std::vector<std::string> words);

/// Finds the words that somebody who wrote another one may have meant: a few letters apart or in another
/// case; where there is none, those that begin with it. The same words give the same answer, in whatever
/// order they come. Costs little for words that are nothing like it, so that a large package may be gone
/// through.
class Nearest {
public:
    explicit Nearest(std::string_view word);

    /// Looks through \p candidates at once.
    template <class Candidates>
    Nearest(std::string_view word, const Candidates& candidates) : Nearest(word) {
        for (const auto& each : candidates) Add(each);
    }

    /// Looks at one more candidate.
    void Add(std::string_view candidate);

    /// \returns the nearest ones, at most three, the best first.
    std::vector<std::string> Words() const;

    /// \returns "; did you mean A, B or C?"; empty when nothing is near.
    std::string Question() const;

private:
    std::size_t DistanceTo(std::string_view candidate) const;

    std::string _Word;
    std::size_t _Limit;  ///< the greatest distance that counts as near
    std::vector<std::pair<std::size_t, std::string>> _BEST;
};

}  // namespace tool

#endif
