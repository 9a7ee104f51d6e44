/// A value word of the documents beside the code that the model keeps for it, and how to get from one
/// to the other. Words compare exactly, case included.
#ifndef ZAN_DIC_CODE_WORD_H
#define ZAN_DIC_CODE_WORD_H

#include <span>
#include <string_view>

namespace ZANDicFormat {

struct CodeWord {
    std::string_view word;  ///< static storage
    int code;
};

/// \returns the row of \p word, or null.
constexpr const CodeWord* FindWord(std::span<const CodeWord> words, std::string_view word) noexcept {
    for (const CodeWord& row : words) {
        if (row.word == word) return &row;
    }
    return nullptr;
}

/// \returns the row of \p code, or null.
constexpr const CodeWord* FindCode(std::span<const CodeWord> words, int code) noexcept {
    for (const CodeWord& row : words) {
        if (row.code == code) return &row;
    }
    return nullptr;
}

/// \returns the code of \p word; \p otherCode when the table does not know it.
constexpr int CodeOf(std::span<const CodeWord> words, std::string_view word, int otherCode) noexcept {
    const CodeWord* const row = FindWord(words, word);
    return row != nullptr ? row->code : otherCode;
}

/// \returns the word of \p code; empty when the table has none.
constexpr std::string_view WordOf(std::span<const CodeWord> words, int code) noexcept {
    const CodeWord* const row = FindCode(words, code);
    return row != nullptr ? row->word : std::string_view();
}

}  // namespace ZANDicFormat

#endif
