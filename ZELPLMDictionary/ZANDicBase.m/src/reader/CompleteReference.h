/// How a reference by UUID becomes a link: found, checked for kind and domain, given to a setter.
#ifndef COMPLETE_REFERENCE_H
#define COMPLETE_REFERENCE_H

#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "HexToBinary.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "WordList.h"

namespace complete {

/// What a reference may point at: an interface that the object answers, and the types that it may have.
/// Several kinds answer the same interfaces, so the type decides as well.
struct TargetKind {
    std::string_view word;  ///< for people
    std::string_view interfaceName;
    ZELInterfaceId interfaceId;
    std::span<const OXMDicTYPE> types;

    /// No types: each is admitted.
    bool Admits(OXMDicTYPE type) const {
        if (types.empty()) return true;
        for (const OXMDicTYPE admitted : types) {
            if (admitted == type) return true;
        }
        return false;
    }
};

inline constexpr OXMDicTYPE kClassTypes[] = {OXMDicTYPE_Class, OXMDicTYPE_Extension};
inline constexpr OXMDicTYPE kEnumTypes[] = {OXMDicTYPE_Enum};
inline constexpr OXMDicTYPE kCategoryTypes[] = {OXMDicTYPE_Category};
inline constexpr OXMDicTYPE kCommandTypes[] = {OXMDicTYPE_Command};
inline constexpr OXMDicTYPE kAttributeTypes[] = {OXMDicTYPE_Simple, OXMDicTYPE_Relationship,
                                                 OXMDicTYPE_Inverse};
inline constexpr OXMDicTYPE kRelationshipTypes[] = {OXMDicTYPE_Relationship};
inline constexpr OXMDicTYPE kInterfaceTypes[] = {OXMDicTYPE_Interface};
inline constexpr OXMDicTYPE kRBOClassTypes[] = {OXMDicTYPE_RBOClass};

inline constexpr TargetKind kClassKind{"class", "OXMIDicClass", IID_OXMIDicClass, kClassTypes};
inline constexpr TargetKind kEnumKind{"enumeration", "OXMIDicEnum", IID_OXMIDicEnum, kEnumTypes};
inline constexpr TargetKind kCategoryKind{"category", "OXMIDicCategory", IID_OXMIDicCategory, kCategoryTypes};
inline constexpr TargetKind kCommandKind{"command", "OXMIDicCommand", IID_OXMIDicCommand, kCommandTypes};
inline constexpr TargetKind kAttributeKind{"attribute", "OXMIDicAttribute", IID_OXMIDicAttribute,
                                           kAttributeTypes};
inline constexpr TargetKind kRelationshipKind{"relationship", "OXMIDicRelationship", IID_OXMIDicRelationship,
                                              kRelationshipTypes};
inline constexpr TargetKind kInterfaceKind{"interface", "OXMIDicInterface", IID_OXMIDicInterface,
                                           kInterfaceTypes};
inline constexpr TargetKind kRBOClassKind{"RBO class", "OXMIDicRBOClass", IID_OXMIDicRBOClass,
                                          kRBOClassTypes};
inline constexpr TargetKind kAnyKind{"element", "OXMIDicElement", IID_OXMIDicElement, {}};

/// One reference attribute of one tag, or one item of it.
struct ReferenceSpot {
    Reading& reading;
    const ZanDicTraceScope& trace;
    const ZELVBTXMLNode& node;
    OXMIDicElement* element;  ///< the target must be in its domain; null when it need not
    ZELVBTXMLAttribute attribute;
};

/// The line of a reference that failed.
std::string ReferenceLine(const ReferenceSpot& spot, std::string_view reason);

/// A failed reference as a fault, its lines apart.
Fault ReferenceFault(const ReferenceSpot& spot, ZanDicDiagnosticCode code, OXMIDicElementH* target);

/// Reports that a reference follows the object that it means into the fault of number \p cause.
/// \returns E_FAIL.
HRESULT ReportLeftOut(const ReferenceSpot& spot, std::string_view uuidText, int cause);

/// Reports that a setter refused the target. \returns E_FAIL.
HRESULT ReportSetterFailed(const ReferenceSpot& spot, OXMIDicElementH& target, std::string_view setter);

/// Why two elements may not be related; empty when they lie in packages of the same domain.
std::string DomainConflict(OXMIDicElement& element, OXMIDicElement& other);

/// Adds the line of a failed reference to its fault.
using AddLine = void (*)(Fault&, const ReferenceSpot&, std::string_view reason);

void AddReferenceLine(Fault& fault, const ReferenceSpot& spot, std::string_view reason);

/// Finds the object that a UUID of the document means, of the kind and in the domain that it must have.
/// \returns S_OK; E_FAIL, reported: where the object was left out after a fault of its own, as what follows
/// from that.
template <class Face>
HRESULT Resolve(const ReferenceSpot& spot, std::string_view uuidText, const TargetKind& kind,
                ZanDicRef<Face>& target, AddLine addLine = AddReferenceLine) {
    using enum ZanDicDiagnosticCode;

    Reading& reading = spot.reading;
    const ZELDbBinary uuid = UuidFromText(uuidText);
    ZanDicRef<OXMIDicElementH> found;
    const bool isFound = Succeeded(reading.manager.Search(&uuid, found.Out())) && found;
    if (!isFound || (reading.isThorough && !reading.Reaches(*found))) {
        if (const int cause = reading.CauseOf(uuid); cause != 0) return ReportLeftOut(spot, uuidText, cause);
        Fault fault = ReferenceFault(spot, ReferenceNotFound, isFound ? found.Get() : nullptr);
        fault.detail = isFound ? Joined({uuidText, " but ", fault.otherParty, ", whose package is not used"})
                               : std::string(uuidText);
        addLine(fault, spot, Joined({text::kNoObject, uuidText}));
        return reading.faults.Report(fault);
    }

    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    found->GetType(&type);
    if (!kind.Admits(type) || Failed(found->QueryInterface(kind.interfaceId, target.OutVoid()))) {
        target.Reset();
        if (const int cause = reading.leftOut.CauseOf(uuid); cause != 0) {
            return ReportLeftOut(spot, uuidText, cause);
        }
        Fault fault = ReferenceFault(spot, ReferenceOfWrongKind, found.Get());
        fault.detail = kind.word;
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

}  // namespace complete

#endif
