/// The rules about the words of a tag: attributes that nobody reads, words that are none, UUIDs that are
/// none, attributes given twice.
#ifndef ZANDIC_TOOL_RULE_WORDS_H
#define ZANDIC_TOOL_RULE_WORDS_H

#include <string_view>
#include <vector>

#include "RuleElement.h"

namespace tool {

/// Looks at the attributes of one tag after the other.
class WordRules {
public:
    explicit WordRules(RuleDocument& document) : _Document(document) {}

    /// Tells what is wrong with the attributes of \p element, and sets those that rules ask for.
    void Check(const TagWords& words, RuleElement& element);

private:
    struct Given {
        const TagWords& words;
        const RuleElement& element;
        const ZELVBTXMLAttribute& attribute;
    };

    void look_At(const Given& given, const TagWords::Word& word);
    void tell_UnknownWord(const Given& given, const ZANDicFormat::AttributeRow& row);
    void tell_Malformed(const Given& given, std::string_view text);
    void tell_Unread(const Given& given);
    void tell_Repeated(const Given& given, bool lastCounts);
    void tell_RepeatedUnknown(const TagWords& words, const RuleElement& element);

    RuleDocument& _Document;
    std::vector<ZELVBTXMLAttribute> _UNKNOWN;  ///< of the tag at hand
};

/// Whether the reader takes every character of \p text as it is meant: 32 digits of either case, a dash in
/// front or behind any byte.
bool IsUuidText(std::string_view text);

}  // namespace tool

#endif
