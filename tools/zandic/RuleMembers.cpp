#include "RuleMembers.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "RuleCodes.h"

namespace tool {
namespace {

namespace word = ZANDicFormat::word;

std::string TitleOf(const RuleDocument& document, const RuleElement& element) {
    return fmt::format("{} {}", element.node.getTag(), Quoted(document.Name(element.node)));
}

/// A number as the reader takes it; none for a text without digits or a number that does not fit, of which
/// the reader tells.
std::optional<int> NumberOf(const ZELVBTXMLAttribute& attribute) {
    std::string_view text = attribute.Value();
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    int number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() ? std::optional(number) : std::nullopt;
}

/// The targets of one reference, in the order of their items.
std::vector<const RuleTarget*> TargetsOf(const RuleElement& element, Slot slot) {
    std::vector<const RuleTarget*> targets;
    for (const RuleTarget& target : element.targets) {
        if (target.slot == slot) targets.push_back(&target);
    }
    return targets;
}

/// A name that stands beside a reference, and what the reference is for.
struct NameRow {
    Slot reference;
    Slot name;
    std::string_view without;  ///< what is so when the name stands alone; empty where that is no fault
};

constexpr NameRow kNameRows[] = {
    {Slot::SuperRef, Slot::SuperName, "there is no super class"},
    {Slot::TargetRef, Slot::TargetName, "there is no target"},
    {Slot::ApplyToRBOClassRef, Slot::ApplyToRBOClass, ""},
    {Slot::BaseClassRef, Slot::BaseClass, "there is no base class"},
};

std::string_view ReferenceName(Slot slot) {
    switch (slot) {
        case Slot::SuperRef:
            return word::kSuperRef;
        case Slot::ApplyToRBOClassRef:
            return word::kApplyToRBOClassRef;
        case Slot::BaseClassRef:
            return word::kBaseClassRef;
        default:
            return word::kTargetRef;
    }
}

void CheckName(RuleDocument& document, const RuleElement& element, const NameRow& row) {
    const ZELVBTXMLAttribute& name = element[row.name];
    if (!name || name.Value().empty()) return;
    const ZELVBTXMLAttribute& reference = element[row.reference];
    if (!reference) {
        if (row.without.empty()) return;
        document.Tell(rule::kNameDisagrees, element.node, name,
                      fmt::format("{} of {} says {}, but without {} {}", name.Name(),
                                  Quoted(document.Name(element.node)), Quoted(name.Value()),
                                  ReferenceName(row.reference), row.without));
        return;
    }
    const Party* const target = element.TargetOf(row.reference);
    if (target == nullptr) return;
    if (target->node && NameAttribute(target->node) == name.Value()) return;
    const std::string actual = document.NameOf(*target);
    if (actual == name.Value() || document.IsTold(reference)) return;
    Finding* const finding = document.Tell(
        rule::kNameDisagrees, element.node, name,
        fmt::format("{} of {} says {}, but {} is {} {}", name.Name(), Quoted(document.Name(element.node)),
                    Quoted(name.Value()), reference.Name(), document.TagOf(*target), Quoted(actual)));
    document.Note(finding, *target,
                  fmt::format("{} {} is here", document.TagOf(*target), document.QualifiedNameOf(*target)));
}

/// The names of a list may stand in another order than the references; a name with a blank in it cannot be
/// told from two.
void CheckNameList(RuleDocument& document, const RuleElement& element) {
    const ZELVBTXMLAttribute& names = element[Slot::ScopeNames];
    const ZELVBTXMLAttribute& references = element[Slot::ScopeRefs];
    if (!names) return;
    std::vector<std::string> said;
    ForEachItem(names.Value(), [&](std::string_view item) { said.emplace_back(item); });
    std::vector<std::string> actual;
    std::size_t items = 0;
    if (references) ForEachItem(references.Value(), [&](std::string_view) { ++items; });
    for (const RuleTarget* const target : TargetsOf(element, Slot::ScopeRefs)) {
        actual.push_back(document.NameOf(target->party));
        if (actual.back().find(' ') != std::string::npos) return;
    }
    if (items != actual.size()) return;  // the reader tells which are not found
    const std::string list = fmt::format("{}", fmt::join(actual, " "));
    std::sort(said.begin(), said.end());
    std::sort(actual.begin(), actual.end());
    if (said == actual || (references && document.IsTold(references))) return;
    Finding* const finding =
        document.Tell(rule::kNameDisagrees, element.node, names,
                      fmt::format("{} of {} says {}, but {}", names.Name(),
                                  Quoted(document.Name(element.node)), Quoted(names.Value()),
                                  references ? fmt::format("{} means {}", references.Name(), Quoted(list))
                                             : fmt::format("there is no {}", word::kScopeRefs)));
    for (const RuleTarget* const target : TargetsOf(element, Slot::ScopeRefs)) {
        if (std::binary_search(said.begin(), said.end(), document.NameOf(target->party))) continue;
        document.Note(finding, target->party,
                      fmt::format("{} {} is here", document.TagOf(target->party),
                                  document.QualifiedNameOf(target->party)));
    }
}

}  // namespace

void CheckType(RuleDocument& document, const RuleElement& element) {
    const auto tell = [&](std::string_view what) {
        document.Tell(rule::kUntyped, element.node,
                      fmt::format("{} has no type: {}", TitleOf(document, element), what));
    };
    if (element[Slot::Type] || element[Slot::TargetRef]) return;
    switch (element.kind) {
        case OXMDicTYPE_Simple:
            tell("it has neither Type nor TargetRef");
            break;
        case OXMDicTYPE_Relationship:
        case OXMDicTYPE_Inverse:
            tell("it has neither TargetRef nor Type");
            break;
        case OXMDicTYPE_Parameter:
            if (!element[Slot::TypeRef] && !element[Slot::ClassRef]) tell("it has neither Type nor TypeRef");
            break;
        default:
            break;
    }
}

void CheckBounds(RuleDocument& document, const RuleElement& element) {
    const ZELVBTXMLAttribute& lower = element[Slot::Lower];
    const ZELVBTXMLAttribute& upper = element[Slot::Upper];
    if (!lower || !upper) return;
    const std::optional<int> least = NumberOf(lower);
    const std::optional<int> most = NumberOf(upper);
    if (!least || !most || *most <= 0 || *least <= *most) return;  // 0 and below stand for no upper bound
    Finding* const finding = document.Tell(rule::kContradictoryBounds, element.node, lower,
                                           fmt::format("Lower of {} is {}, which is above Upper, {}",
                                                       Quoted(document.Name(element.node)), *least, *most));
    document.Note(finding, upper, "Upper is here");
}

void CheckRepeatedReferences(RuleDocument& document, const RuleElement& element) {
    if (element.targets.size() < 2) return;
    std::vector<const RuleTarget*> targets;
    for (const RuleTarget& target : element.targets) {
        // A block with an attribute twice is refused, by the reader's word.
        if (target.slot != Slot::AttributeUuids) targets.push_back(&target);
    }
    const auto isBefore = [](const RuleTarget* a, const RuleTarget* b) {
        return a->slot != b->slot ? a->slot < b->slot : a->party.uuid < b->party.uuid;
    };
    const auto isSame = [](const RuleTarget* a, const RuleTarget* b) {
        return a->slot == b->slot && a->party.uuid == b->party.uuid;
    };
    std::stable_sort(targets.begin(), targets.end(), isBefore);
    for (std::size_t index = 1; index < targets.size(); ++index) {
        const RuleTarget& target = *targets[index];
        const bool isRepeated = isSame(&target, targets[index - 1]);
        const bool isToldAlready = index > 1 && isSame(&target, targets[index - 2]);
        if (!isRepeated || isToldAlready || document.IsTold(target.attribute)) continue;
        Finding* const finding = document.Tell(
            rule::kRepeatedReference, element.node, target.attribute,
            fmt::format("{} of {} names {} more than once", target.attribute.Name(),
                        Quoted(document.Name(element.node)), Quoted(document.NameOf(target.party))));
        document.Note(finding, target.party,
                      fmt::format("{} {} is here", document.TagOf(target.party),
                                  document.QualifiedNameOf(target.party)));
    }
}

void CheckNames(RuleDocument& document, const RuleElement& element) {
    for (const NameRow& row : kNameRows) CheckName(document, element, row);
    CheckNameList(document, element);
}

void CheckScopeNames(RuleDocument& document, const RuleElement& element) {
    std::vector<std::pair<std::string, const RuleTarget*>> names;
    for (const RuleTarget* const target : TargetsOf(element, Slot::ScopeRefs)) {
        names.emplace_back(document.NameOf(target->party), target);
    }
    if (names.size() < 2) return;
    std::stable_sort(names.begin(), names.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto first = names.begin(); first != names.end();) {
        const auto end =
            std::find_if(first, names.end(), [&](const auto& each) { return each.first != first->first; });
        const bool isShared = std::any_of(first, end, [&](const auto& each) {
            return !(each.second->party.uuid == first->second->party.uuid);
        });
        if (isShared) {
            Finding* const finding = document.Tell(
                rule::kSameNameInScope, element.node, first->second->attribute,
                fmt::format("{} of {} holds several classes of the name {}", first->second->attribute.Name(),
                            Quoted(document.Name(element.node)), Quoted(first->first)));
            for (auto each = first; each != end; ++each) {
                document.Note(finding, each->second->party,
                              fmt::format("one is {}", document.QualifiedNameOf(each->second->party)));
            }
        }
        first = end;
    }
}

}  // namespace tool
