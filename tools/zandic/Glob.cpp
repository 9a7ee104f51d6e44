#include "Glob.h"

#include <cstddef>
#include <iterator>

namespace tool {
namespace {

/// Capital letters that stand one behind the other, and how far their small ones are from them.
struct CaseRange {
    char32_t first;
    char32_t last;
    char32_t distance;
};
constexpr CaseRange kCaseRanges[] = {
    {U'A', U'Z', 32},      // Latin
    {0x00C0, 0x00D6, 32},  // Latin with marks
    {0x00D8, 0x00DE, 32},  // the same
    {0x0391, 0x03AB, 32},  // Greek
    {0x0400, 0x040F, 80},  // Cyrillic
    {0x0410, 0x042F, 32},  // the same
};

/// Blocks in which a capital letter at an even, or odd, place has its small one behind it.
struct CasePairs {
    char32_t first;
    char32_t last;
    bool isOdd;
};
constexpr CasePairs kCasePairs[] = {
    {0x0100, 0x0137, false},
    {0x0139, 0x0148, true},
    {0x014A, 0x0177, false},
    {0x0179, 0x017E, true},
};

char32_t Folded(char32_t letter) {
    for (const CaseRange& range : kCaseRanges) {
        if (letter >= range.first && letter <= range.last) return letter + range.distance;
    }
    for (const CasePairs& pairs : kCasePairs) {
        const bool isCapital = (letter % 2 != 0) == pairs.isOdd;
        if (letter >= pairs.first && letter <= pairs.last && isCapital) return letter + 1;
    }
    return letter;
}

/// Reads the character at \p at, which moves behind it. A byte that begins none stands for itself.
char32_t Next(std::string_view text, std::size_t& at) {
    const auto byte = [&text](std::size_t index) {
        return static_cast<char32_t>(static_cast<unsigned char>(text[index]));
    };
    const char32_t first = byte(at++);
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
    if (more == 0 || at + more > text.size()) return Folded(first);
    char32_t letter = first & (0x3FU >> more);
    for (std::size_t index = 0; index < more; ++index) letter = letter << 6U | (byte(at + index) & 0x3FU);
    at += more;
    return Folded(letter);
}

}  // namespace

Glob::Glob(std::string_view pattern) {
    for (std::size_t at = 0; at < pattern.size();) _Pattern.push_back(Next(pattern, at));
}

/// Matches one letter by what stands at \p at, which moves behind it.
bool Glob::MatchesOne(std::size_t& at, char32_t letter) const {
    const char32_t sign = _Pattern[at++];
    if (sign == U'?') return true;
    if (sign == U'\\' && at < _Pattern.size()) return _Pattern[at++] == letter;
    if (sign != U'[') return sign == letter;
    const bool isOther = at < _Pattern.size() && (_Pattern[at] == U'!' || _Pattern[at] == U'^');
    const std::size_t first = at + (isOther ? 1 : 0);
    const std::size_t close = _Pattern.find(U']', first + 1);  // one that stands first is listed
    if (close == std::u32string::npos) return sign == letter;
    at = first;
    bool isListed = false;
    while (at < close) {
        const char32_t from = _Pattern[at++];
        char32_t last = from;
        if (at + 1 < close && _Pattern[at] == U'-') {
            last = _Pattern[at + 1];
            at += 2;
        }
        isListed = isListed || (letter >= from && letter <= last);
    }
    at = close + 1;
    return isListed != isOther;
}

bool Glob::Matches(std::string_view text) const {
    std::size_t at = 0;     // in the pattern
    std::size_t place = 0;  // in the text
    std::size_t starAt = std::u32string::npos;
    std::size_t starPlace = 0;  // where what the last star takes ends
    while (place < text.size()) {
        if (at < _Pattern.size() && _Pattern[at] == U'*') {
            starAt = ++at;
            starPlace = place;
            continue;
        }
        std::size_t next = place;
        const char32_t letter = Next(text, next);
        std::size_t behind = at;
        if (at < _Pattern.size() && MatchesOne(behind, letter)) {
            at = behind;
            place = next;
        } else if (starAt != std::u32string::npos) {
            Next(text, starPlace);
            at = starAt;
            place = starPlace;
        } else {
            return false;
        }
    }
    while (at < _Pattern.size() && _Pattern[at] == U'*') ++at;
    return at == _Pattern.size();
}

}  // namespace tool
