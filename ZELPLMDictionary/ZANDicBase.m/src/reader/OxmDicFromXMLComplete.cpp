#include "OxmDicFromXMLComplete.h"

#include "CompleteReference.h"
#include "OXMIDicCategory.h"
#include "OXMIDicCommand.h"
#include "OXMIDicEnum.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ZANDicWords.h"
#include "ZanDicLoadRecord.h"

using namespace ZANDicFormat;
using namespace complete;

namespace {

HRESULT CompleteCategories(const ReferenceSpot& spot) {
    return CompleteEach<OXMIDicCategory>(
        spot, kCategoryKind, "AddCategory",
        [&spot](OXMIDicCategory* target) { return spot.element->AddCategory(target); });
}

/// Only a caller makes commands, and gives them a package or not: their domain is not looked at.
/// \param add gives a command to the owner.
template <class Add>
HRESULT CompleteCommands(const ReferenceSpot& spot, Add add) {
    ReferenceSpot commandSpot = spot;
    commandSpot.element = nullptr;
    return CompleteEach<OXMIDicCommand>(commandSpot, kCommandKind, "AddCommand", add);
}

// Members of a class. Each works on a note of the first pass.

/// A member and what its references need.
struct MemberSpot {
    Reading& reading;
    const ZELVBTXMLNode& node;
    const MemberNote& note;
    OXMIDicElement& member;  ///< as the interface of its type

    ReferenceSpot At(const ZanDicTraceScope& trace, std::size_t slot) const {
        return {reading, trace, node, &member, note.references.At(slot, reading.document)};
    }
};

HRESULT CompleteSimple(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteSimple);
    auto& member = static_cast<OXMIDicSimple&>(spot.member);
    HRESULT result = S_OK;
    const HRESULT rc = CompleteOne<OXMIDicEnum>(spot.At(trace, slot::kTarget), kEnumKind, "SetType",
                                                [&](OXMIDicEnum* target) { return member.SetType(target); });
    if (spot.reading.faults.GoesOn(rc, result)) {
        spot.reading.faults.GoesOn(CompleteCategories(spot.At(trace, slot::kCategories)), result);
    }
    return result;
}

/// The target class of a relationship or inverse.
template <class Member>
HRESULT CompleteTarget(const ReferenceSpot& spot, Member& member) {
    bool isSet = false;
    const HRESULT rc = CompleteOne<OXMIDicClass>(spot, kClassKind, "SetTarget", [&](OXMIDicClass* target) {
        const HRESULT setResult = member.SetTarget(target);
        isSet = Succeeded(setResult);
        return setResult;
    });
    if (spot.attribute && !isSet && !spot.reading.faults.IsStopped()) {
        ZELDbBinary uuid;
        member.GetUuid(&uuid);
        spot.reading.untargeted.Add(uuid, spot.reading.faults.LastNumber());
    }
    return rc;
}

HRESULT CompleteRelationship(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteRelationship);
    auto& member = static_cast<OXMIDicRelationship&>(spot.member);
    FaultReport& faults = spot.reading.faults;
    HRESULT result = S_OK;
    if (faults.GoesOn(CompleteTarget(spot.At(trace, slot::kTarget), member), result) &&
        faults.GoesOn(
            CompleteEach<OXMIDicElement>(spot.At(trace, slot::kScopes), kAnyKind, "AddScope",
                                         [&](OXMIDicElement* target) { return member.AddScope(target); }),
            result)) {
        faults.GoesOn(CompleteCategories(spot.At(trace, slot::kCategories)), result);
    }
    return result;
}

/// `InverseOfRef` says it in words of its own.
void AddInverseLine(Fault& fault, const ReferenceSpot& spot, std::string_view /*reason*/) {
    const bool isFound = fault.code != ZanDicDiagnosticCode::ReferenceNotFound;
    fault.lines.push_back({spot.trace, isFound ? Joined({text::kInverseNotProcessed, spot.attribute.Name(),
                                                         text::kAttributeForInverse, NameOf(spot.node)})
                                               : Joined({text::kInverseNoObject, fault.detail})});
}

/// The link between an inverse and its relationship stands on both sides; the relationship's side is set
/// first, so that a refusal leaves no half of it.
HRESULT CompleteInverseOf(const ReferenceSpot& spot, OXMIDicInverse& member) {
    if (!spot.attribute) return S_OK;
    ZanDicRef<OXMIDicRelationship> relationship;
    const HRESULT rc = Resolve(spot, spot.attribute.Value(), kRelationshipKind, relationship, AddInverseLine);
    if (Failed(rc) || !relationship) return rc;
    if (auto line = spot.trace.Line(TraceLevel::Detail)) {
        ZELString name;
        relationship->GetName(&name);
        line << text::kInvertedName << name;
    }
    if (Failed(relationship->SetInvertedAttribute(&member))) {
        return ReportSetterFailed(spot, *relationship, "SetInvertedAttribute");
    }
    if (Failed(member.SetInverse(relationship.Get()))) {
        return ReportSetterFailed(spot, *relationship, "SetInverse");
    }
    return S_OK;
}

HRESULT CompleteInverse(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteInverse);
    auto& member = static_cast<OXMIDicInverse&>(spot.member);
    FaultReport& faults = spot.reading.faults;
    HRESULT result = S_OK;
    if (faults.GoesOn(CompleteTarget(spot.At(trace, slot::kTarget), member), result) &&
        faults.GoesOn(CompleteInverseOf(spot.At(trace, slot::kInverseOf), member), result)) {
        faults.GoesOn(CompleteCategories(spot.At(trace, slot::kCategories)), result);
    }
    return trace.Exit(result);
}

HRESULT CompleteUnique(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteUnique);
    auto& member = static_cast<OXMIDicUnique&>(spot.member);
    return CompleteEach<OXMIDicAttribute>(
        spot.At(trace, slot::kUniques), kAttributeKind, "AddElement",
        [&](OXMIDicAttribute* target) { return member.AddElement(target); });
}

struct MemberRow {
    OXMDicTYPE type;
    HRESULT (*complete)(const MemberSpot&);
};

constexpr MemberRow kMemberRows[] = {
    {OXMDicTYPE_Simple, CompleteSimple},
    {OXMDicTYPE_Relationship, CompleteRelationship},
    {OXMDicTYPE_Inverse, CompleteInverse},
    {OXMDicTYPE_Unique, CompleteUnique},
};

/// Fetches what the members behind one will need into the cache: their targets lie all over the package.
void LookAhead(const Reading& reading, std::size_t index) {
    constexpr std::size_t kStep = 6;
    const std::vector<MemberNote>& members = reading.members;
    if (index + 3 * kStep < members.size()) ZanDicPrefetchPlace(members[index + 3 * kStep].key);
    if (index + 2 * kStep < members.size()) {
        const MemberNote& note = members[index + 2 * kStep];
        ZanDicPrefetchObject(note.key);
        const ZELVBTXMLAttribute target = note.references.At(slot::kTarget, reading.document);
        if (target) __builtin_prefetch(target.Value().data());
    }
    if (index + kStep < members.size()) ZanDicPrefetchLinks(members[index + kStep].key);
}

HRESULT CompleteMember(Reading& reading, const MemberNote& note) {
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    const auto member = note.member.Own<OXMIDicElement>();
    for (const MemberRow& row : kMemberRows) {
        if (row.type == note.type) return row.complete({reading, node, note, *member});
    }
    return S_OK;
}

/// An extension and the scopes of it that are to be set.
struct ScopesSpot {
    ReferenceSpot reference;
    OXMIDicExtension& extension;
    std::size_t firstItem;
    bool isLastCall;  ///< what is not extensible now will not be
};

bool IsExtensible(OXMIDicClass& target) {
    unsigned char isExtensible = 0;
    return Succeeded(target.GetExtensible(&isExtensible)) && isExtensible == 1;
}

HRESULT ReportNotExtensible(const ReferenceSpot& spot, OXMIDicClass& target) {
    ZELString name;
    target.GetName(&name);
    Fault fault = ReferenceFault(spot, ZanDicDiagnosticCode::ReferenceRefused, &target);
    fault.detail = "it is not extensible";
    fault.lines.push_back({spot.trace, Joined({text::kExtension, NameOf(spot.node), text::kCannotExtent,
                                               name.View(), text::kNotExtensible})});
    return spot.reading.faults.Report(fault);
}

/// Sets the scopes of an extension, in order. A class may inherit that it is extensible from a super class
/// that it gets later: from the first that is not yet, the rest waits for the last call.
HRESULT CompleteScopes(const ScopesSpot& scopes) {
    const ReferenceSpot& spot = scopes.reference;
    if (!spot.attribute) return S_OK;
    HRESULT result = S_OK;
    WordList items(spot.attribute.Value());
    std::size_t index = 0;
    for (std::string_view item = items.Next(); !item.empty(); item = items.Next(), ++index) {
        if (index < scopes.firstItem) continue;
        ZanDicRef<OXMIDicClass> target;
        HRESULT rc = Resolve(spot, item, kClassKind, target);
        if (target && !IsExtensible(*target)) {
            if (!scopes.isLastCall) {
                spot.reading.putOff.push_back({spot.node.Index(), &scopes.extension, spot.attribute, index});
                return result;
            }
            rc = ReportNotExtensible(spot, *target);
            // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the extension is there.
        } else if (target && Failed(scopes.extension.AddScope(target.Get()))) {
            rc = ReportSetterFailed(spot, *target, "AddScope");
        }
        if (!spot.reading.faults.GoesOn(rc, result)) break;
    }
    return result;
}

/// What a class and an extension have in common.
HRESULT CompleteClassPart(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                          const ElementNote& note) {
    auto& element = note.As<OXMIDicClass>();
    const auto spotAt = [&](std::size_t slot) {
        return ReferenceSpot{reading, trace, node, &element, note.references.At(slot, reading.document)};
    };
    const auto addCommand = [&](OXMIDicCommand* command) {
        element.AddCommand(command);
        return S_OK;  // a class takes no commands, and that is no fault of the document
    };

    HRESULT result = S_OK;
    const auto goesOn = [&](HRESULT rc) { return reading.faults.GoesOn(rc, result); };
    const bool isWhole = goesOn(CompleteOne<OXMIDicClass>(
                             spotAt(slot::kSuper), kClassKind, "SetSuperClass",
                             [&](OXMIDicClass* target) { return element.SetSuperClass(target); })) &&
                         goesOn(CompleteOne<OXMIDicClass>(
                             spotAt(slot::kReference), kClassKind, "SetReference",
                             [&](OXMIDicClass* target) { return element.SetReference(target); })) &&
                         goesOn(CompleteCommands(spotAt(slot::kCommands), addCommand));
    if (!isWhole) return result;

    reading.owners.push_back(NameOf(node));
    for (std::size_t index = note.firstMember; index < note.endMember; ++index) {
        LookAhead(reading, index);
        if (!goesOn(CompleteMember(reading, reading.members[index]))) break;
    }
    reading.owners.pop_back();
    return result;
}

}  // namespace

HRESULT CompleteClass(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kCompleteClass, "RC=");
    trace.Start();
    return trace.Exit(CompleteClassPart(reading, trace, reading.document.ElementAt(note.node), note));
}

HRESULT CompleteExtension(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kCompleteExtension, "RC=");
    trace.Start();
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    auto& element = note.As<OXMIDicExtension>();
    HRESULT result = S_OK;
    if (reading.faults.GoesOn(CompleteClassPart(reading, trace, node, note), result)) {
        const ZELVBTXMLAttribute scopes = note.references.At(slot::kExtended, reading.document);
        reading.faults.GoesOn(CompleteScopes({{reading, trace, node, &element, scopes}, element, 0, false}),
                              result);
    }
    return trace.Exit(result);
}

HRESULT CompletePutOffScopes(Reading& reading, const PutOffScopes& scopes) {
    const ZanDicTraceScope trace(text::kCompleteExtension, "RC=");
    const ZELVBTXMLNode node = reading.document.ElementAt(scopes.node);
    return CompleteScopes({{reading, trace, node, scopes.extension, scopes.attribute},
                           *scopes.extension,
                           scopes.firstItem,
                           true});
}

HRESULT CompletePackage(Reading& reading, const ZELVBTXMLNode& node) {
    const ZanDicTraceScope trace(text::kDriver, "RC=");
    return CompleteCommands({reading, trace, node, nullptr, node.getAttribute(word::kCommandRefs)},
                            [&](OXMIDicCommand* command) { return reading.package->AddCommand(command); });
}
