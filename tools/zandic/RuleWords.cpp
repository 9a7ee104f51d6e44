#include "RuleWords.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <span>

#include "RuleCodes.h"
#include "RuleSuggestions.h"

namespace tool {
namespace {

using namespace ZANDicFormat;

/// The attributes whose other words the reader takes without a word of its own, and what those count as.
struct OtherWord {
    std::string_view attribute;
    std::span<const CodeWord> words;
    int code;
    std::string_view countsAs;  ///< where the code has no word
};

constexpr OtherWord kOtherWords[] = {
    {word::kVisibility, kVisibilityWords, kOtherVisibility, ""},
    {word::kAccessMode, kAccessModeSimpleWords, kOtherAccessMode, ""},
    {word::kAggregation, kAggregationWords, kOtherAggregation, ""},
    {word::kScope, kScopeWords, kOtherScope, "no scope"},
    {word::kKVADerivable, kKVADerivableWords, kOtherKVADerivable, "inherited"},
    {word::kType, kPrimitiveWords, kOtherRelationType, ""},
};

/// \returns what a word that is none counts as; empty where the reader tells of it.
std::string_view CountsAs(const RuleElement& element, const AttributeRow& row) {
    if (row.form == AttributeForm::Flag) return row.mandatory ? std::string_view() : value::kNo;
    const bool isRelation = element.kind == OXMDicTYPE_Relationship || element.kind == OXMDicTYPE_Inverse;
    if (row.name == word::kType && !isRelation) return {};
    for (const OtherWord& other : kOtherWords) {
        if (other.attribute != row.name) continue;
        return other.countsAs.empty() ? WordOf(other.words, other.code) : other.countsAs;
    }
    return {};
}

constexpr std::array<bool, 256> kIsDigit = [] {
    std::array<bool, 256> isDigit{};
    for (const char c : std::string_view("0123456789abcdefABCDEF")) {
        isDigit[static_cast<unsigned char>(c)] = true;
    }
    return isDigit;
}();

bool IsDigit(char c) { return kIsDigit[static_cast<unsigned char>(c)]; }

/// As the dictionary writes it.
bool IsUsualUuid(std::string_view text) {
    if (text.size() != 35 || text[8] != '-' || text[13] != '-' || text[18] != '-') return false;
    bool areDigits = true;
    for (std::size_t at = 0; at < 8; ++at) areDigits &= IsDigit(text[at]);
    for (std::size_t at = 0; at < 4; ++at) areDigits &= IsDigit(text[9 + at]) && IsDigit(text[14 + at]);
    for (std::size_t at = 19; at < 35; ++at) areDigits &= IsDigit(text[at]);
    return areDigits;
}

std::string_view CodeOf(ZanDicDiagnosticCode code) { return ZanDicDiagnosticName(code); }

bool IsIdentity(std::string_view name) { return name == word::kName || name == word::kUuid; }

}  // namespace

bool IsUuidText(std::string_view text) {
    if (IsUsualUuid(text)) return true;
    std::size_t at = text.starts_with('-') ? 1 : 0;
    for (int byte = 0; byte < ZELDbBinary::kCapacity; ++byte) {
        if (at + 1 >= text.size() || !IsDigit(text[at]) || !IsDigit(text[at + 1])) return false;
        at += 2;
        if (at < text.size() && text[at] == '-') ++at;
    }
    return at == text.size();
}

void WordRules::Check(const TagWords& words, RuleElement& element) {
    static_assert(std::size(kInverseAttributes) <= 32 && std::size(kClassAttributes) <= 32 &&
                  std::size(kSimpleAttributes) <= 32);
    element.Clear();
    _UNKNOWN.clear();
    std::uint32_t isGiven = 0;
    for (const ZELVBTXMLAttribute attribute : element.node.Attributes()) {
        const TagWords::Word* const word = words.Find(attribute.Name());
        if (word == nullptr) {
            _UNKNOWN.push_back(attribute);
            if (words.LosesUnknown()) tell_Unread({words, element, attribute});
            continue;
        }
        const std::uint32_t bit = 1U << word->index;
        const bool isRepeated = (isGiven & bit) != 0;
        isGiven |= bit;
        if (isRepeated) tell_Repeated({words, element, attribute}, word->lastCounts);
        if (word->look != TagWords::Look::Nothing) look_At({words, element, attribute}, *word);
        if (word->slot != Slot::None && (!isRepeated || word->lastCounts)) {
            element.Set(word->slot, attribute);
        }
    }
    if (_UNKNOWN.size() > 1) tell_RepeatedUnknown(words, element);
}

void WordRules::look_At(const Given& given, const TagWords::Word& word) {
    const std::string_view text = given.attribute.Value();
    switch (word.look) {
        case TagWords::Look::Word:
            if (!word.Has(text)) tell_UnknownWord(given, *word.row);
            break;
        case TagWords::Look::Uuid:
            if (!IsUuidText(text) && !word.Has(text)) tell_Malformed(given, text);
            break;
        case TagWords::Look::Uuids:
            ForEachItem(text, [&](std::string_view item) {
                if (!IsUuidText(item)) tell_Malformed(given, item);
            });
            break;
        case TagWords::Look::Unread:
            tell_Unread(given);
            break;
        case TagWords::Look::Nothing:
            break;
    }
}

void WordRules::tell_UnknownWord(const Given& given, const AttributeRow& row) {
    const std::string_view text = given.attribute.Value();
    const std::string_view countsAs = CountsAs(given.element, row);
    if (countsAs.empty()) return;
    _Document.Tell(CodeOf(ZanDicDiagnosticCode::UnknownWord), given.element.node, given.attribute,
                   fmt::format("{} is no word of {}; it counts as {}{}", Quoted(text), row.name, countsAs,
                               SuggestWord(row, text)));
}

void WordRules::tell_Malformed(const Given& given, std::string_view text) {
    if (_Document.IsTold(given.attribute)) return;
    _Document.Tell(
        rule::kMalformedUuid, given.element.node, given.attribute,
        fmt::format("{} of {} is no UUID: {} is not 32 hexadecimal digits, with or without dashes",
                    given.attribute.Name(), Quoted(_Document.Name(given.element.node)), Quoted(text)));
}

void WordRules::tell_Unread(const Given& given) {
    const std::string_view name = given.attribute.Name();
    const bool isAdmitted = given.words.Find(name) != nullptr;
    _Document.Tell(
        rule::kUnreadAttribute, given.element.node, given.attribute,
        fmt::format("attribute {} of {} {} is never read{}", name, given.words.Row().tag,
                    Quoted(_Document.Name(given.element.node)),
                    isAdmitted ? "; only an extension has one" : SuggestAttribute(given.words.Row(), name)));
}

void WordRules::tell_Repeated(const Given& given, bool lastCounts) {
    const std::string_view name = given.attribute.Name();
    if (given.words.HowRepeatsCount() == TagWords::Repeats::ReaderTells && !IsIdentity(name)) return;
    Finding* const finding =
        _Document.Tell(CodeOf(ZanDicDiagnosticCode::RepeatedAttribute), given.element.node, given.attribute,
                       fmt::format("attribute {} of {} {} is given more than once; the {} one counts", name,
                                   given.words.Row().tag, Quoted(_Document.Name(given.element.node)),
                                   lastCounts ? "last" : "first"));
    _Document.Note(finding, given.element.node.getAttribute(name), "it is given here too");
}

/// What is lost is told as that. What is kept, is kept as it was given last.
void WordRules::tell_RepeatedUnknown(const TagWords& words, const RuleElement& element) {
    if (words.LosesUnknown()) return;
    std::stable_sort(
        _UNKNOWN.begin(), _UNKNOWN.end(),
        [](const ZELVBTXMLAttribute& a, const ZELVBTXMLAttribute& b) { return a.Name() < b.Name(); });
    for (std::size_t index = 1; index < _UNKNOWN.size(); ++index) {
        if (_UNKNOWN[index].Name() != _UNKNOWN[index - 1].Name()) continue;
        tell_Repeated({words, element, _UNKNOWN[index]}, true);
    }
}

}  // namespace tool
