#include "OxmDicFromXMLComplete.h"

#include <span>
#include <utility>

#include "HexToBinary.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "WordList.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;

namespace {

/// What a reference may point at: an interface that the object answers, and the types that it may have.
/// Several kinds answer the same interfaces, so the type decides as well.
struct TargetKind {
    std::string_view interfaceName;
    ZELInterfaceId interfaceId;
    std::span<const OXMDicTYPE> types;

    bool Admits(OXMDicTYPE type) const {
        for (const OXMDicTYPE admitted : types) {
            if (admitted == type) return true;
        }
        return false;
    }
};

constexpr OXMDicTYPE kClassTypes[] = {OXMDicTYPE_Class, OXMDicTYPE_Extension};
constexpr OXMDicTYPE kEnumTypes[] = {OXMDicTYPE_Enum};
constexpr OXMDicTYPE kCategoryTypes[] = {OXMDicTYPE_Category};
constexpr OXMDicTYPE kCommandTypes[] = {OXMDicTYPE_Command};
constexpr OXMDicTYPE kAttributeTypes[] = {OXMDicTYPE_Simple, OXMDicTYPE_Relationship, OXMDicTYPE_Inverse};
constexpr OXMDicTYPE kRelationshipTypes[] = {OXMDicTYPE_Relationship};

constexpr TargetKind kClassKind{"OXMIDicClass", IID_OXMIDicClass, kClassTypes};
constexpr TargetKind kEnumKind{"OXMIDicEnum", IID_OXMIDicEnum, kEnumTypes};
constexpr TargetKind kCategoryKind{"OXMIDicCategory", IID_OXMIDicCategory, kCategoryTypes};
constexpr TargetKind kCommandKind{"OXMIDicCommand", IID_OXMIDicCommand, kCommandTypes};
constexpr TargetKind kAttributeKind{"OXMIDicAttribute", IID_OXMIDicAttribute, kAttributeTypes};
constexpr TargetKind kRelationshipKind{"OXMIDicRelationship", IID_OXMIDicRelationship, kRelationshipTypes};

/// One reference attribute of one tag, or one item of it.
struct ReferenceSpot {
    Reading& reading;
    const ZanDicTraceScope& trace;
    const ZELVBTXMLNode& node;
    OXMIDicElement* element;  ///< null for the package itself
    ZELVBTXMLAttribute attribute;
};

/// The line of a reference that failed.
std::string ReferenceLine(const ReferenceSpot& spot, std::string_view reason) {
    return Joined({text::kCouldNotProcess, NameOf(spot.node), text::kAttributeOf, spot.attribute.Name(),
                   text::kBecause, reason});
}

/// A failed reference as a fault, its lines apart.
Fault ReferenceFault(const ReferenceSpot& spot, ZanDicDiagnosticCode code, OXMIDicElementH* target) {
    Fault fault = FaultOf(spot.reading, code, spot.node);
    fault.attribute = spot.attribute;
    if (target != nullptr) fault.otherParty = QualifiedName(*target);
    return fault;
}

HRESULT ReportSetterFailed(const ReferenceSpot& spot, OXMIDicElementH& target, std::string_view setter) {
    Fault fault = ReferenceFault(spot, ZanDicDiagnosticCode::ReferenceRefused, &target);
    fault.detail = Joined({setter, text::kFailed});
    fault.lines.push_back({spot.trace, ReferenceLine(spot, fault.detail)});
    return spot.reading.faults.Report(fault);
}

/// Package, name and domain of an element, as far as it has them.
struct Whereabouts {
    explicit Whereabouts(OXMIDicElement& element) {
        element.GetName(&name);
        if (element.GetPackage(package.Out()) != S_OK || !package) return;
        package->GetName(&packageName);
        package->GetDomain(&domain);
    }

    std::string Text() const {
        std::string text = Joined({name.View(), text::kInPackage, packageName.View()});
        if (!domain.IsEmpty()) text += Joined({text::kForDomain, domain.View()});
        return text;
    }

    ZELString name;
    ZELString packageName;
    ZELString domain;
    ZanDicRef<OXMIDicPackage> package;
};

/// Why two elements may not be related; empty when they lie in packages of the same domain.
std::string DomainConflict(OXMIDicElement& element, OXMIDicElement& other) {
    ZanDicRef<OXMIDicPackage> package;
    ZanDicRef<OXMIDicPackage> otherPackage;
    element.GetPackage(package.Out());
    other.GetPackage(otherPackage.Out());
    // An object has one adapter per interface: the same pointer is the same package.
    if (package && package.Get() == otherPackage.Get()) return {};

    const Whereabouts here(element);
    const Whereabouts there(other);
    if (!here.package || !there.package) return std::string(text::kNoPackageOfElement);
    if (here.domain == there.domain) return {};
    return Joined({text::kElement, here.Text(), text::kCannotBeRelated, there.Text(), text::kDomainsDiffer});
}

/// Adds the line of a failed reference to its fault.
using AddLine = void (*)(Fault&, const ReferenceSpot&, std::string_view reason);

void AddReferenceLine(Fault& fault, const ReferenceSpot& spot, std::string_view reason) {
    fault.lines.push_back({spot.trace, ReferenceLine(spot, reason)});
}

/// `InverseOfRef` says it in words of its own.
void AddInverseLine(Fault& fault, const ReferenceSpot& spot, std::string_view /*reason*/) {
    const bool isFound = fault.code != ZanDicDiagnosticCode::ReferenceNotFound;
    fault.lines.push_back({spot.trace, isFound ? Joined({text::kInverseNotProcessed, spot.attribute.Name(),
                                                         text::kAttributeForInverse, NameOf(spot.node)})
                                               : Joined({text::kInverseNoObject, fault.detail})});
}

/// Finds the object that a UUID of the document means, of the kind and in the domain that it must have.
/// \param[out] target null when the object was left out after a fault of its own: no fault again.
/// \returns S_OK; E_FAIL, reported.
template <class Face>
HRESULT Resolve(const ReferenceSpot& spot, std::string_view uuidText, const TargetKind& kind,
                ZanDicRef<Face>& target, AddLine addLine = AddReferenceLine) {
    using enum ZanDicDiagnosticCode;

    Reading& reading = spot.reading;
    const ZELDbBinary uuid = UuidFromText(uuidText);
    if (reading.leftOut.Has(uuid)) return S_OK;
    ZanDicRef<OXMIDicElementH> found;
    if (Failed(reading.manager.Search(&uuid, found.Out())) || !found) {
        if (reading.leftOut.MayHave(uuid)) return S_OK;
        Fault fault = ReferenceFault(spot, ReferenceNotFound, nullptr);
        fault.detail = uuidText;
        addLine(fault, spot, Joined({text::kNoObject, uuidText}));
        return reading.faults.Report(fault);
    }

    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    found->GetType(&type);
    if (!kind.Admits(type) || Failed(found->QueryInterface(kind.interfaceId, target.OutVoid()))) {
        target.Reset();
        Fault fault = ReferenceFault(spot, ReferenceOfWrongKind, found.Get());
        addLine(fault, spot, Joined({text::kQueryInterface, kind.interfaceName, text::kQueryFailed}));
        return reading.faults.Report(fault);
    }

    if constexpr (std::is_base_of_v<OXMIDicElement, Face>) {
        if (spot.element == nullptr) return S_OK;
        const ZanDicTraceScope domainTrace(text::kCheckSameDomain);
        std::string conflict = DomainConflict(*spot.element, *target);
        if (conflict.empty()) return S_OK;
        Fault fault = ReferenceFault(spot, CrossDomainReference, found.Get());
        fault.lines.push_back({domainTrace, std::move(conflict)});
        addLine(fault, spot, text::kCrossDomain);
        target.Reset();
        return reading.faults.Report(fault);
    }
    return S_OK;
}

/// A reference to one object: resolves it and gives it to \p set, which is named \p setter.
template <class Face, class Set>
HRESULT CompleteOne(const ReferenceSpot& spot, const TargetKind& kind, std::string_view setter, Set set) {
    if (!spot.attribute) return S_OK;
    ZanDicRef<Face> target;
    if (const HRESULT rc = Resolve(spot, spot.attribute.Value(), kind, target); Failed(rc)) return rc;
    if (!target || Succeeded(set(target.Get()))) return S_OK;
    return ReportSetterFailed(spot, *target, setter);
}

/// A list of references: as CompleteOne for each item in turn.
template <class Face, class Set>
HRESULT CompleteEach(const ReferenceSpot& spot, const TargetKind& kind, std::string_view setter, Set set) {
    if (!spot.attribute) return S_OK;
    HRESULT result = S_OK;
    WordList items(spot.attribute.Value());
    for (std::string_view item = items.Next(); !item.empty(); item = items.Next()) {
        ZanDicRef<Face> target;
        HRESULT rc = Resolve(spot, item, kind, target);
        if (target && Failed(set(target.Get()))) rc = ReportSetterFailed(spot, *target, setter);
        if (!spot.reading.faults.GoesOn(rc, result)) break;
    }
    return result;
}

HRESULT CompleteCategories(const ReferenceSpot& spot) {
    return CompleteEach<OXMIDicCategory>(
        spot, kCategoryKind, "AddCategory",
        [&spot](OXMIDicCategory* target) { return spot.element->AddCategory(target); });
}

/// Commands are retired: no object answers as one, so there is none to add.
HRESULT CompleteCommands(const ReferenceSpot& spot) {
    if (!spot.attribute) return S_OK;
    HRESULT result = S_OK;
    WordList items(spot.attribute.Value());
    for (std::string_view item = items.Next(); !item.empty(); item = items.Next()) {
        ZanDicRef<OXMIDicElementH> command;
        if (!spot.reading.faults.GoesOn(Resolve(spot, item, kCommandKind, command), result)) break;
    }
    return result;
}

// Members of a class. Each works on a note of the first pass.

/// A member and what its references need.
struct MemberSpot {
    Reading& reading;
    const ZELVBTXMLNode& node;
    const MemberNote& note;

    ReferenceSpot At(const ZanDicTraceScope& trace, std::size_t slot) const {
        return {reading, trace, node, note.member.Get(), note.references.At(slot, reading.document)};
    }
};

HRESULT CompleteSimple(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteSimple);
    auto& member = static_cast<OXMIDicSimple&>(*spot.note.member);
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
        spot.reading.untargeted.Add(uuid);
    }
    return rc;
}

/// Scopes of relationships are refused until extensions exist.
HRESULT RefuseScopes(const ReferenceSpot& spot) {
    if (!spot.attribute || WordList(spot.attribute.Value()).Next().empty()) return S_OK;
    Fault fault = ReferenceFault(spot, ZanDicDiagnosticCode::UnsupportedAttribute, nullptr);
    fault.lines.push_back({spot.trace, ReferenceLine(spot, text::kUnsupported)});
    return spot.reading.faults.Report(fault);
}

HRESULT CompleteRelationship(const MemberSpot& spot) {
    const ZanDicTraceScope trace(text::kCompleteRelationship);
    auto& member = static_cast<OXMIDicRelationship&>(*spot.note.member);
    FaultReport& faults = spot.reading.faults;
    HRESULT result = S_OK;
    if (faults.GoesOn(CompleteTarget(spot.At(trace, slot::kTarget), member), result) &&
        faults.GoesOn(RefuseScopes(spot.At(trace, slot::kScopes)), result)) {
        faults.GoesOn(CompleteCategories(spot.At(trace, slot::kCategories)), result);
    }
    return result;
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
    auto& member = static_cast<OXMIDicInverse&>(*spot.note.member);
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
    auto& member = static_cast<OXMIDicUnique&>(*spot.note.member);
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

HRESULT CompleteMember(Reading& reading, const MemberNote& note) {
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    for (const MemberRow& row : kMemberRows) {
        if (row.type == note.type) return row.complete({reading, node, note});
    }
    return S_OK;
}

}  // namespace

HRESULT CompleteClass(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kCompleteClass, "RC=");
    trace.Start();
    OXMIDicClass& element = *note.element;
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    const auto spotAt = [&](std::size_t slot) {
        return ReferenceSpot{reading, trace, node, &element, note.references.At(slot, reading.document)};
    };

    HRESULT result = S_OK;
    const auto goesOn = [&](HRESULT rc) { return reading.faults.GoesOn(rc, result); };
    const bool isWhole = goesOn(CompleteOne<OXMIDicClass>(
                             spotAt(slot::kSuper), kClassKind, "SetSuperClass",
                             [&](OXMIDicClass* target) { return element.SetSuperClass(target); })) &&
                         goesOn(CompleteOne<OXMIDicClass>(
                             spotAt(slot::kReference), kClassKind, "SetReference",
                             [&](OXMIDicClass* target) { return element.SetReference(target); })) &&
                         goesOn(CompleteCommands(spotAt(slot::kCommands)));
    if (!isWhole) return trace.Exit(result);

    reading.owner = NameOf(node);
    for (std::size_t index = note.firstMember; index < note.endMember; ++index) {
        if (!goesOn(CompleteMember(reading, reading.members[index]))) break;
    }
    reading.owner = {};
    return trace.Exit(result);
}

HRESULT CompletePackage(Reading& reading, const ZELVBTXMLNode& node) {
    const ZanDicTraceScope trace(text::kDriver, "RC=");
    return CompleteCommands({reading, trace, node, nullptr, node.getAttribute(word::kCommandRefs)});
}
