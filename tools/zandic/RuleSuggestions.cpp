#include "RuleSuggestions.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Nearest.h"

namespace tool {
namespace {

using namespace ZANDicFormat;

constexpr CodeWord kFlagWords[] = {{value::kYes, 1}, {value::kNo, 0}};

const AttributeRow* AttributeRowOf(const ZanDicDiagnostic& fault) {
    const TagRow* const tagRow = FindTag(kTags, fault.Tag());
    return tagRow != nullptr ? FindAttribute(*tagRow, fault.Attribute()) : nullptr;
}

/// \returns where a known tag may stand: a question of spelling it is not.
std::string PlaceOf(std::string_view tagName) {
    std::vector<std::string> parents;
    for (const TagRow& row : kTags) {
        const bool isParent =
            std::find(row.children.begin(), row.children.end(), tagName) != row.children.end();
        if (isParent) parents.emplace_back(row.tag);
    }
    return parents.empty() ? "" : fmt::format("; its place is in {}", Alternatives(std::move(parents)));
}

}  // namespace

std::string SuggestAttribute(const TagRow& tagRow, std::string_view name) {
    Nearest nearest(name);
    for (const AttributeRow& row : tagRow.attributes) nearest.Add(row.name);
    return nearest.Question();
}

std::string SuggestWord(const AttributeRow& row, std::string_view text) {
    const std::span<const CodeWord> words = row.form == AttributeForm::Flag ? kFlagWords : row.words;
    Nearest nearest(text);
    for (const CodeWord& each : words) nearest.Add(each.word);
    if (std::string question = nearest.Question(); !question.empty() || words.empty()) return question;
    std::string list;
    for (const CodeWord& each : words) {
        const bool isLast = &each == &words.back();
        list += list.empty() ? "" : isLast ? " and " : ", ";
        list += each.word;
    }
    return fmt::format("; its words are {}", list);
}

std::string SuggestTag(const TagRow* parent, std::string_view tagName) {
    if (FindTag(kTags, tagName) != nullptr) return PlaceOf(tagName);
    Nearest nearest(tagName);
    if (parent != nullptr) {
        for (const std::string_view child : parent->children) nearest.Add(child);
    } else {
        for (const TagRow& row : kTags) nearest.Add(row.tag);
    }
    return nearest.Question();
}

std::string SuggestionFor(const ZanDicDiagnostic& fault) {
    using enum ZanDicDiagnosticCode;
    switch (fault.Code()) {
        case UnknownAttribute: {
            const TagRow* const tagRow = FindTag(kTags, fault.Tag());
            return tagRow != nullptr ? SuggestAttribute(*tagRow, fault.Attribute()) : "";
        }
        case UnknownWord:
        case InvalidValue: {
            const AttributeRow* const row = AttributeRowOf(fault);
            const bool hasWords =
                row != nullptr && (row->form == AttributeForm::Word || row->form == AttributeForm::Flag);
            return hasWords ? SuggestWord(*row, fault.Value()) : "";
        }
        case UnknownTag:
            return SuggestTag(nullptr, fault.Tag());
        default:
            return "";
    }
}

}  // namespace tool
