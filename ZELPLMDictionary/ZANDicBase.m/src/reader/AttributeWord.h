/// How the row of a word of the document is found: the name of a tag or an attribute, or a word for a value.
#ifndef ATTRIBUTE_WORD_H
#define ATTRIBUTE_WORD_H

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

/// A text of at most 16 bytes as two numbers, with zeros behind its end: compared and hashed in a few steps.
struct ShortWord {
    static constexpr std::size_t kLongest = 16;

    std::uint64_t first = 0;
    std::uint64_t second = 0;

    ShortWord() = default;

    /// \param text no longer than kLongest.
    consteval explicit ShortWord(std::string_view text) {
        std::array<char, 8> head{};
        std::array<char, 8> tail{};
        for (std::size_t at = 0; at < text.size(); ++at) (at < 8 ? head[at] : tail[at - 8]) = text[at];
        first = std::bit_cast<std::uint64_t>(head);
        second = std::bit_cast<std::uint64_t>(tail);
    }

    /// \param text of a document, no longer than kLongest: it has no zeros, and what stands behind it can be
    /// read.
    static ShortWord Of(std::string_view text) {
        ShortWord word;
        std::memcpy(&word.first, text.data(), sizeof word.first);
        std::memcpy(&word.second, text.data() + 8, sizeof word.second);
        word.first &= kMasks[text.size() < 8 ? text.size() : 8];
        word.second &= kMasks[text.size() > 8 ? text.size() - 8 : 0];
        return word;
    }

    friend constexpr bool operator==(const ShortWord& a, const ShortWord& b) {
        return ((a.first ^ b.first) | (a.second ^ b.second)) == 0;
    }

private:
    /// By number of bytes that count.
    static constexpr std::array<std::uint64_t, 9> kMasks = [] {
        std::array<std::uint64_t, 9> masks{};
        std::array<unsigned char, 8> bytes{};
        for (std::size_t count = 1; count <= 8; ++count) {
            bytes[count - 1] = 0xFF;
            masks[count] = std::bit_cast<std::uint64_t>(bytes);
        }
        return masks;
    }();
};

/// Whether a text of a document is \p word, which is no longer than a ShortWord.
template <const auto& Word>
bool IsWord(std::string_view text) {
    static constexpr ShortWord kWord{Word};
    return text.size() == std::string_view(Word).size() && ShortWord::Of(text) == kWord;
}

/// Finds a row by its `name` or `word`, by one hash and one comparison. The hash has no two words of the rows
/// in one place, which is settled when the table is compiled.
template <class Row, std::size_t N>
class WordIndex {
public:
    consteval explicit WordIndex(const Row (&rows)[N]) : WordIndex(std::span<const Row, N>(rows)) {}

    consteval explicit WordIndex(std::span<const Row, N> rows) : _Rows(rows.data()) {
        for (std::size_t index = 0; index < N; ++index) {
            if (is_Long(rows[index])) continue;
            _Words[index] = ShortWord(word_Of(rows[index]));
        }
        while (!fill_Places()) _Seed = _Seed * 6364136223846793005U + 2U;
    }

    /// \param text of a document. \returns its row, or null.
    const Row* Find(std::string_view text) const {
        if (text.size() > ShortWord::kLongest) return find_Long(text);
        const ShortWord word = ShortWord::Of(text);
        const std::uint8_t index = _Places[place_Of(word)];
        return index != kNone && _Words[index] == word ? &_Rows[index] : nullptr;
    }

    /// \returns the place of \p row among the rows.
    constexpr std::size_t IndexOf(const Row& row) const { return static_cast<std::size_t>(&row - _Rows); }

private:
    static constexpr unsigned kBits = N <= 8 ? 5 : 7;
    static constexpr std::uint8_t kNone = 0xFF;
    static_assert(N < kNone);

    static constexpr std::string_view word_Of(const Row& row) {
        if constexpr (requires { row.name; }) {
            return row.name;
        } else {
            return row.word;
        }
    }

    static constexpr bool is_Long(const Row& row) { return word_Of(row).size() > ShortWord::kLongest; }

    /// Few words are long, and no frequent one: they are looked for one by one.
    const Row* find_Long(std::string_view text) const {
        for (std::size_t index = 0; index < N; ++index) {
            if (is_Long(_Rows[index]) && word_Of(_Rows[index]) == text) return &_Rows[index];
        }
        return nullptr;
    }

    constexpr std::size_t place_Of(const ShortWord& word) const {
        const std::uint64_t mixed = (word.first ^ std::rotl(word.second, 29)) * _Seed;
        return static_cast<std::size_t>(mixed >> (64U - kBits));
    }

    consteval bool fill_Places() {
        _Places.fill(kNone);
        for (std::size_t index = 0; index < N; ++index) {
            if (is_Long(_Rows[index])) continue;
            std::uint8_t& place = _Places[place_Of(_Words[index])];
            if (place != kNone) return false;
            place = static_cast<std::uint8_t>(index);
        }
        return true;
    }

    const Row* _Rows;
    std::uint64_t _Seed = 0x9E3779B97F4A7C15U;  ///< odd, so that no bit of a word is lost
    std::array<ShortWord, N> _Words{};
    std::array<std::uint8_t, std::size_t{1} << kBits> _Places{};
};

#endif
