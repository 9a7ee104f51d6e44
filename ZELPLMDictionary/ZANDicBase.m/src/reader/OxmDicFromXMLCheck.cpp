#include "OxmDicFromXMLCheck.h"

#include "HexToBinary.h"
#include "OXMIDicRelationship.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;

namespace {

/// The class that an attribute refers to; null for an attribute that has no class for its target.
ZanDicRef<OXMIDicClass> TargetOf(OXMIDicElement& attribute) {
    ZanDicRef<OXMIDicRelationship> relationship;
    ZanDicRef<OXMIDicClass> target;
    if (Failed(attribute.QueryInterface(IID_OXMIDicRelationship, relationship.OutVoid())) ||
        Failed(relationship->GetTarget(target.Out()))) {
        target.Reset();
    }
    return target;
}

ZELString NameOfObject(OXMIDicElementH& object) {
    ZELString name;
    object.GetName(&name);
    return name;
}

/// Whether a target passes for the one that was inherited: a root by its own name, any other by that
/// of one of its super classes only.
/// Deliberate: the target of the inherited relationship itself fails when it has a super class
/// (OxmDicFromXMLCheckTest.TheInheritedTargetItselfFailsOnceItHasASuperClass).
bool Passes(OXMIDicClass& target, const ZELString& expectedName) {
    ZanDicRef<OXMIDicClass> super;
    if (target.GetSuperClass(super.Out()) != S_OK || !super) return NameOfObject(target) == expectedName;
    while (NameOfObject(*super) != expectedName) {
        ZanDicRef<OXMIDicClass> next;
        if (super->GetSuperClass(next.Out()) != S_OK || !next) return false;
        super = std::move(next);
    }
    return true;
}

/// The check of one class.
class ClassCheck {
public:
    ClassCheck(Reading& reading, const ZanDicTraceScope& trace, const ElementNote& note, OXMIDicClass& super)
        : _Reading(reading),
          _Trace(trace),
          _Class(note.As<OXMIDicClass>()),
          _Super(super),
          _ClassName(NameOfObject(_Class)) {}

    /// Checks the relationship of a tag. \returns S_OK; E_FAIL, reported.
    HRESULT CheckRelationship(const ZELVBTXMLNode& node) const {
        const ZELString name(NameOf(node));
        ZanDicRef<OXMIDicElement> inherited;
        if (Failed(_Super.GetElement(&name, inherited.Out())) || !inherited) return S_OK;

        const ZanDicRef<OXMIDicClass> expected = TargetOf(*inherited);
        if (!expected) {
            if (is_Untargeted(*inherited)) return S_OK;
            return Report(node, *inherited, "the inherited attribute has no target class",
                          {Joined({text::kNoTargetOf, name.View(), text::kRelationshipOf, text::kSuperClass,
                                   NameOfObject(_Super).View()})});
        }
        ZanDicRef<OXMIDicElement> own;
        if (Failed(_Class.GetClassElement(&name, own.Out())) || !own) {
            if (is_LeftOut(node)) return S_OK;
            return Report(node, *inherited, "the class has no such relationship",
                          {Joined({text::kNoRelationship, name.View(), text::kRelationshipFor,
                                   _ClassName.View(), text::kClass})});
        }
        const ZanDicRef<OXMIDicClass> target = TargetOf(*own);
        if (!target) {
            if (is_Untargeted(*own) || is_LeftOut(node)) return S_OK;
            return Report(node, *inherited, "it has no target class",
                          {Joined({text::kNoTargetOf, name.View(), text::kRelationshipOf, text::kCurrentClass,
                                   _ClassName.View()})});
        }
        const ZELString expectedName = NameOfObject(*expected);
        if (Passes(*target, expectedName)) return S_OK;
        return ReportWrongTarget(node, *inherited, NameOfObject(*target).View(), expectedName.View());
    }

private:
    // After faults that did not end the load: what they caused is no fault again.

    bool is_Untargeted(OXMIDicElement& attribute) const {
        ZELDbBinary uuid;
        return Succeeded(attribute.GetUuid(&uuid)) && _Reading.untargeted.Has(uuid);
    }

    bool is_LeftOut(const ZELVBTXMLNode& node) const {
        const auto uuid = node.getAttributeValue(word::kUuid);
        return !uuid || _Reading.leftOut.Has(UuidFromText(*uuid));
    }

    HRESULT ReportWrongTarget(const ZELVBTXMLNode& node, OXMIDicElement& inherited, std::string_view target,
                              std::string_view expected) const {
        const std::string_view className = _ClassName.View();
        const std::string_view name = NameOf(node);
        return Report(
            node, inherited, Joined({"target class ", target, " does not inherit from ", expected}),
            {Joined({text::kInvalidReference, tag::kClass, "=", className, text::kAttributeIs, name}),
             Joined({text::kReferredClass, target, text::kDoesNotInherit, expected, ","}),
             Joined({text::kReferredOfSuper, className}),
             Joined({text::kVerify, className, ", ", name, " ", word::kTargetRef}),
             Joined({text::kOrChange, target, " ", word::kSuperRef, text::kToInherit, expected})});
    }

    HRESULT Report(const ZELVBTXMLNode& node, OXMIDicElement& inherited, std::string detail,
                   std::initializer_list<std::string> messages) const {
        Fault fault = FaultOf(_Reading, ZanDicDiagnosticCode::InvalidRedefinition, node);
        fault.attribute = node.getAttribute(word::kTargetRef);
        SetOther(fault, inherited);
        fault.detail = std::move(detail);
        for (const std::string& message : messages) fault.lines.push_back({_Trace, message});
        return _Reading.faults.Report(fault);
    }

    Reading& _Reading;
    const ZanDicTraceScope& _Trace;
    OXMIDicClass& _Class;
    OXMIDicClass& _Super;
    ZELString _ClassName;
};

}  // namespace

HRESULT CheckClass(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kCheckClass, "RC=");
    trace.Start();
    ZanDicRef<OXMIDicClass> super;
    if (!note.hasRelationships || note.As<OXMIDicClass>().GetSuperClass(super.Out()) != S_OK || !super) {
        return trace.Exit(S_OK);
    }

    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    const ClassCheck check(reading, trace, note, *super);
    HRESULT result = S_OK;
    reading.owners.push_back(NameOf(node));
    // A failed check does not end the walk, whether or not anybody asked to go on.
    for (const ZELVBTXMLNode child : node.Children()) {
        if (child.getTag() != tag::kRelationship) continue;
        if (const HRESULT rc = check.CheckRelationship(child); Failed(rc)) result = rc;
    }
    reading.owners.pop_back();
    return trace.Exit(result);
}
