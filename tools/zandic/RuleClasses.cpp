#include "RuleClasses.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <unordered_map>
#include <utility>

#include "OXMIDicAttribute.h"
#include "OXMIDicClass.h"
#include "OXMIDicRelationship.h"
#include "RuleCodes.h"
#include "RuleCycles.h"
#include "ZELHash.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;
namespace value = ZANDicFormat::value;

bool IsClassTag(std::string_view tagName) {
    return tagName == tag::kClass || tagName == tag::kInstance || tagName == tag::kExtension;
}

/// Whether a mandatory relationship may hold an empty collection all the same.
bool MayBeEmpty(const RuleElement& element) {
    const ZELVBTXMLAttribute& lower = element[Slot::Lower];
    return element.IsYes(Slot::MultiValuated) && lower &&
           std::strtol(std::string(lower.Value()).c_str(), nullptr, 10) <= 0;
}

/// Whether a class of a loaded package is \p uuid, or inherits from it.
bool Inherits(zandic::Handle<OXMIDicClass> heir, const ZELDbBinary& uuid) {
    for (; heir; heir = zandic::Link(*heir, &OXMIDicClass::GetSuperClass)) {
        if (zandic::Uuid(*heir) == uuid) return true;
    }
    return false;
}

}  // namespace

void ClassRules::AddClass(const RuleElement& element) {
    const Party* const super = element.TargetOf(Slot::SuperRef);
    Class added{};
    added.element = element.node.Index();
    added.superElement = super != nullptr && super->IsHere() ? super->node.Index() : kNone;
    if (super != nullptr && !super->IsHere()) added.superElsewhere = *super;
    added.super = kNone;
    added.firstMember = static_cast<std::uint32_t>(_MEMBERS.size());
    added.isExtension = element.kind == OXMDicTYPE_Extension;
    added.root = kNone;
    _CLASS_OF[added.element] = static_cast<std::uint32_t>(_CLASSES.size());
    _CLASSES.push_back(std::move(added));
}

void ClassRules::AddMember(const RuleElement& element) {
    const Party* const target = element.TargetOf(Slot::TargetRef);
    if (element.kind == OXMDicTYPE_Inverse) {
        const Party* const relationship = element.TargetOf(Slot::InverseOfRef);
        _INVERSES.push_back({element.node, target != nullptr ? *target : Party(),
                             relationship != nullptr ? *relationship : Party(), element[Slot::TargetRef],
                             element[Slot::InverseOfRef]});
        return;
    }
    Member added{element.node.Index(), static_cast<std::uint32_t>(_CLASSES.size() - 1), kNone, kNone,
                 target != nullptr && IsClassTag(_Document.TagOf(*target)) &&
                     element.IsYes(Slot::Mandatory) && !MayBeEmpty(element)};
    if (target != nullptr && target->IsHere()) {
        if (IsClassTag(target->node.getTag())) added.targetElement = target->node.Index();
    } else if (added.isMandatory) {
        added.outward = static_cast<std::uint32_t>(_OUTWARD.size());
        _OUTWARD.push_back(*target);
    }
    _MEMBERS.push_back(added);
}

std::uint32_t ClassRules::end_OfMembers(std::uint32_t classNumber) const {
    return classNumber + 1 < _CLASSES.size() ? _CLASSES[classNumber + 1].firstMember
                                             : static_cast<std::uint32_t>(_MEMBERS.size());
}

void ClassRules::Finish() {
    for (Class& each : _CLASSES) each.super = class_At(each.superElement);
    number_Hierarchy();
    for (const Inverse& inverse : _INVERSES) check_Inverse(inverse);
    const auto isMandatory = [](const Member& member) { return member.isMandatory; };
    if (std::none_of(_MEMBERS.begin(), _MEMBERS.end(), isMandatory)) return;
    drop_Redefined();
    check_Cycles();
}

/// Walks from the roots down, so that the heirs of a class have numbers of their own range.
void ClassRules::number_Hierarchy() {
    std::vector<std::uint32_t> firstHeir(_CLASSES.size(), kNone);
    std::vector<std::uint32_t> nextHeir(_CLASSES.size(), kNone);
    std::vector<std::uint32_t> open;
    for (std::uint32_t number = static_cast<std::uint32_t>(_CLASSES.size()); number-- > 0;) {
        const std::uint32_t super = _CLASSES[number].super;
        if (super == kNone) {
            open.push_back(number);
        } else {
            nextHeir[number] = firstHeir[super];
            firstHeir[super] = number;
        }
    }
    while (!open.empty()) {
        const std::uint32_t number = open.back();
        open.pop_back();
        Class& each = _CLASSES[number];
        each.root = each.super == kNone ? number : _CLASSES[each.super].root;
        _WALK.push_back(number);
        each.begin = static_cast<std::uint32_t>(_WALK.size());
        each.end = each.begin + 1;
        for (std::uint32_t heir = firstHeir[number]; heir != kNone; heir = nextHeir[heir]) {
            open.push_back(heir);
        }
    }
    for (auto number = _WALK.rbegin(); number != _WALK.rend(); ++number) {
        const Class& each = _CLASSES[*number];
        if (each.super != kNone) _CLASSES[each.super].end = std::max(_CLASSES[each.super].end, each.end);
    }
}

/// A mandatory relationship that an heir redefines as one that is not forces nobody: the heir may be made
/// first.
void ClassRules::drop_Redefined() {
    std::unordered_map<std::string_view, std::vector<std::uint32_t>, ZELTextHash>
        open;  // mandatory ones of super classes
    for (const std::uint32_t number : _WALK) {
        const Class& each = _CLASSES[number];
        for (std::uint32_t index = each.firstMember; index < end_OfMembers(number); ++index) {
            const ZELVBTXMLNode node = _Document.Document().ElementAt(_MEMBERS[index].element);
            const auto found = open.find(NameAttribute(node));
            if (found != open.end()) {
                std::vector<std::uint32_t>& above = found->second;
                const auto isOver = [&](std::uint32_t member) {
                    return _CLASSES[_MEMBERS[member].owner].end <= each.begin;
                };
                while (!above.empty() && isOver(above.back())) above.pop_back();
                if (!above.empty() && !_MEMBERS[index].isMandatory)
                    _MEMBERS[above.back()].isMandatory = false;
            }
            if (_MEMBERS[index].isMandatory) open[NameAttribute(node)].push_back(index);
        }
    }
}

// Inverses.

Party ClassRules::owner_Of(const Party& member) {
    if (member.IsHere()) {
        const ZELVBTXMLNode owner = _Document.Owner(member.node);
        return {{}, owner, {}, nullptr, nullptr};
    }
    const auto attribute = zandic::As<OXMIDicAttribute>(member.object);
    if (!attribute) return {};
    const auto origin = zandic::Link(*attribute, &OXMIDicAttribute::GetOrigin);
    return origin ? _Document.Find(zandic::Uuid(*origin)) : Party();
}

Party ClassRules::target_Of(const Party& relationship) {
    if (relationship.IsHere()) {
        const auto member = std::lower_bound(
            _MEMBERS.begin(), _MEMBERS.end(), relationship.node.Index(),
            [](const Member& each, std::uint32_t element) { return each.element < element; });
        if (member != _MEMBERS.end() && member->element == relationship.node.Index() &&
            member->targetElement != kNone) {
            return {{}, _Document.Document().ElementAt(member->targetElement), {}, nullptr, nullptr};
        }
        const auto target = relationship.node.getAttributeValue(word::kTargetRef);
        return target && *target != value::kAnyObject ? _Document.Find(*target) : Party();
    }
    const auto object = zandic::As<OXMIDicRelationship>(relationship.object);
    if (!object) return {};
    const auto target = zandic::Link(*object, &OXMIDicRelationship::GetTarget);
    return target ? _Document.Find(zandic::Uuid(*target)) : Party();
}

bool ClassRules::are_RelatedHere(std::uint32_t first, std::uint32_t second) const {
    if (first == kNone || second == kNone) return true;  // no class: somebody else's fault
    const Class& a = _CLASSES[first];
    const Class& b = _CLASSES[second];
    if (a.isExtension || b.isExtension || a.begin == 0 || b.begin == 0) return true;
    return (a.begin <= b.begin && b.begin < a.end) || (b.begin <= a.begin && a.begin < b.end);
}

/// Whether one of two classes is, or inherits from, the other. What is not known counts as related.
// NOLINTNEXTLINE(misc-no-recursion): once, the other way round.
bool ClassRules::are_Related(const Party& first, const Party& second) const {
    if (!first || !second) return true;
    if (first.IsHere() && second.IsHere()) {
        return are_RelatedHere(class_At(first.node.Index()), class_At(second.node.Index()));
    }
    if (first.IsHere()) return are_Related(second, first);
    const auto outside = zandic::As<OXMIDicClass>(first.object);
    if (!outside || zandic::Kind(*first.object) == OXMDicTYPE_Extension) return true;
    if (!second.IsHere()) {
        const auto other = zandic::As<OXMIDicClass>(second.object);
        if (!other || zandic::Kind(*second.object) == OXMDicTYPE_Extension) return true;
        return Inherits(outside, second.uuid) || Inherits(other, first.uuid);
    }
    const std::uint32_t number = class_At(second.node.Index());
    if (number == kNone || _CLASSES[number].isExtension || _CLASSES[number].begin == 0) return true;
    const Party& super = _CLASSES[_CLASSES[number].root].superElsewhere;
    if (super && !super.object) return true;
    return (super && Inherits(zandic::As<OXMIDicClass>(super.object), first.uuid)) ||
           Inherits(outside, UuidFromText(second.node.getAttributeValue(word::kUuid).value_or("")));
}

void ClassRules::check_Inverse(const Inverse& inverse) {
    const std::string name = Quoted(_Document.Name(inverse.node));
    if (!inverse.inverseOf) {
        _Document.Tell(rule::kOneSidedInverse, inverse.node,
                       fmt::format("Inverse {} has no InverseOfRef: no relationship knows it", name));
        return;
    }
    const Party& relationship = inverse.relationship;
    if (!relationship || _Document.TagOf(relationship) != tag::kRelationship) return;
    if (relationship.IsHere() && _Document.IsLeftOut(relationship.node)) return;

    const Party owner{{}, _Document.Owner(inverse.node), {}, nullptr, nullptr};
    const Party back = target_Of(relationship);
    const Party source = owner_Of(relationship);
    const std::string relationshipName = Quoted(_Document.QualifiedNameOf(relationship));
    Finding* finding = nullptr;
    if (!are_Related(owner, back)) {
        finding = _Document.Tell(
            rule::kOneSidedInverse, inverse.node, inverse.inverseOf,
            fmt::format("Inverse {} inverts {}, which does not lead back here: its target is {} {}", name,
                        relationshipName, _Document.TagOf(back), Quoted(_Document.NameOf(back))));
    } else if (inverse.targetRef && !are_Related(inverse.target, source)) {
        finding = _Document.Tell(
            rule::kOneSidedInverse, inverse.node, inverse.targetRef,
            fmt::format("Inverse {} leads to {} {}, but the relationship that it inverts is {}", name,
                        _Document.TagOf(inverse.target), Quoted(_Document.NameOf(inverse.target)),
                        relationshipName));
    } else {
        return;
    }
    _Document.Note(finding, relationship, fmt::format("the relationship {} is here", relationshipName));
}

// Cycles.

Party ClassRules::here(std::uint32_t element) const {
    return {{}, _Document.Document().ElementAt(element), {}, nullptr, nullptr};
}

void ClassRules::check_Cycles() {
    CycleRules cycles(_Document);
    for (const Class& each : _CLASSES) {
        if (each.super != kNone) cycles.AddSuper(here(each.element), here(each.superElement));
        if (each.superElsewhere) cycles.AddSuper(here(each.element), each.superElsewhere);
    }
    for (const Member& member : _MEMBERS) {
        if (!member.isMandatory) continue;
        const Party target =
            member.targetElement != kNone ? here(member.targetElement) : _OUTWARD[member.outward];
        cycles.AddRelationship(here(_CLASSES[member.owner].element), here(member.element), target);
    }
    cycles.Finish();
}

}  // namespace tool
