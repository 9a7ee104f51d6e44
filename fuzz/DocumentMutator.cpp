// Changes documents as one who knows their grammar: libFuzzer takes this mutation in turn with its own, which
// know bytes only. What one element, attribute or value says goes to the place of another, twice, or away.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t longest);

namespace {

using Random = std::minstd_rand;

struct Piece {
    std::size_t start;
    std::size_t size;
};

std::size_t Below(Random& random, std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
}

/// What stands between quotes.
std::vector<Piece> ValuesIn(std::string_view text) {
    std::vector<Piece> values;
    for (std::size_t at = text.find('"'); at != text.npos;) {
        const std::size_t end = text.find('"', at + 1);
        if (end == text.npos) break;
        values.push_back({at + 1, end - at - 1});
        at = text.find('"', end + 1);
    }
    return values;
}

/// Names with their values and the blank before them.
std::vector<Piece> AttributesIn(std::string_view text) {
    std::vector<Piece> attributes;
    for (const Piece& value : ValuesIn(text)) {
        const std::size_t start = text.substr(0, value.start).rfind(' ');
        if (start != text.npos) attributes.push_back({start, value.start + value.size + 1 - start});
    }
    return attributes;
}

/// From a "<" to the end of its element; of one whose end is not found, to its tag's.
std::vector<Piece> ElementsIn(std::string_view text) {
    std::vector<Piece> elements;
    for (std::size_t at = text.find('<'); at != text.npos; at = text.find('<', at + 1)) {
        const std::size_t close = text.find('>', at);
        if (close == text.npos) break;
        std::size_t end = close + 1;
        if (text[close - 1] != '/' && text[at + 1] != '/') {
            const std::string_view tag = text.substr(at + 1, text.find_first_of(" >\n", at) - at - 1);
            const std::string endTag = "</" + std::string(tag) + ">";
            const std::size_t found = text.find(endTag, close);
            if (found != text.npos) end = found + endTag.size();
        }
        elements.push_back({at, end - at});
    }
    return elements;
}

/// Puts one piece over another, or before it, or takes it away.
std::string Rearranged(const std::string& text, const std::vector<Piece>& pieces, Random& random) {
    const Piece& from = pieces[Below(random, pieces.size())];
    const Piece& to = pieces[Below(random, pieces.size())];
    const std::string copied = text.substr(from.start, from.size);
    std::string changed = text;
    switch (Below(random, 4)) {
        case 0:
            return changed.erase(to.start, to.size);
        case 1:
            return changed.insert(to.start, copied);
        default:
            return changed.replace(to.start, to.size, copied);
    }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t longest,
                                               unsigned seed) {
    Random random(seed);
    const std::string text(reinterpret_cast<const char*>(data), size);
    const std::size_t kind = Below(random, 8);
    const std::vector<Piece> pieces = kind < 2    ? ElementsIn(text)
                                      : kind < 4  ? AttributesIn(text)
                                      : kind == 4 ? ValuesIn(text)
                                                  : std::vector<Piece>();
    if (pieces.empty()) return LLVMFuzzerMutate(data, size, longest);
    const std::string changed = Rearranged(text, pieces, random);
    if (changed.empty() || changed.size() > longest) return LLVMFuzzerMutate(data, size, longest);
    std::memcpy(data, changed.data(), changed.size());
    return changed.size();
}
