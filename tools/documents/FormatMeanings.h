/// What the words of package documents mean, for people. That every word of the vocabulary has a meaning, and
/// every meaning a word, is checked when the page is made.
#ifndef ZANDIC_FORMAT_MEANINGS_H
#define ZANDIC_FORMAT_MEANINGS_H

#include <span>
#include <string_view>

#include "ZANDicCodeWord.h"

namespace documents {

/// What a tag is for. Markdown.
struct TagMeaning {
    std::string_view tag;
    std::string_view meaning;
};

/// What an attribute means. A row that names a tag goes before one without.
struct AttributeMeaning {
    std::string_view tag;  ///< empty: of every tag
    std::string_view attribute;
    std::string_view meaning;
};

/// What becomes of a word that a list does not know.
struct OtherWords {
    std::span<const ZANDicFormat::CodeWord> words;
    std::string_view title;  ///< of the list
    std::string_view other;
};

/// What a file is for whose extension is a content word.
struct ContentMeaning {
    std::string_view word;
    std::string_view meaning;
};

std::span<const TagMeaning> TagMeanings();
std::span<const AttributeMeaning> AttributeMeanings();

/// Of tuning documents, where they differ from those above.
std::span<const TagMeaning> TuningTagMeanings();
std::span<const AttributeMeaning> TuningAttributeMeanings();

std::span<const OtherWords> OtherWordMeanings();
std::span<const ContentMeaning> ContentMeanings();

}  // namespace documents

#endif
