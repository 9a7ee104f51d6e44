// Second pass: interfaces.
#include "CompleteReference.h"
#include "HexToBinary.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OxmDicFromXMLComplete.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;
using namespace complete;

namespace {

/// The super interface that cannot be found or is none is told in words of its own.
void AddSuperLine(Fault& fault, const ReferenceSpot& spot, std::string_view reason) {
    using enum ZanDicDiagnosticCode;
    if (fault.code == ReferenceNotFound) {
        fault.lines.push_back({spot.trace, std::string(text::kNoSuperInterface)});
    } else if (fault.code == ReferenceOfWrongKind) {
        fault.lines.push_back({spot.trace, std::string(text::kSuperIsNoInterface)});
    } else {
        AddReferenceLine(fault, spot, reason);
    }
}

HRESULT CompleteSuper(const ReferenceSpot& spot, OXMIDicInterface& element) {
    if (!spot.attribute) return S_OK;
    ZanDicRef<OXMIDicInterface> target;
    const HRESULT rc = Resolve(spot, spot.attribute.Value(), kInterfaceKind, target, AddSuperLine);
    if (Failed(rc) || !target || Succeeded(element.SetSuperInterface(target.Get()))) return rc;
    return ReportSetterFailed(spot, *target, "SetSuperInterface");
}

/// The type of a parameter; what `ClassRef` says counts only without a `TypeRef`.
HRESULT CompleteParameter(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                          OXMIDicMethod& method) {
    ZELVBTXMLAttribute attribute = node.getAttribute(word::kTypeRef);
    if (!attribute) attribute = node.getAttribute(word::kClassRef);
    const ZELString name(NameOf(node));
    ZanDicRef<OXMIDicParameter> parameter;
    if (!attribute || Failed(method.GetParameter(&name, parameter.Out()))) return S_OK;

    // A parameter has no package: its domain is its method's.
    return CompleteOne<OXMIDicElement>({reading, trace, node, &method, attribute}, kAnyKind, "SetType",
                                       [&](OXMIDicElement* type) {
                                           parameter->SetType(type);  // its result says nothing
                                           return S_OK;
                                       });
}

/// Finds the own method of a tag. \returns S_OK; E_FAIL when it was left out or another bears its name.
HRESULT FindMethod(OXMIDicInterface& element, const ZELVBTXMLNode& node, ZanDicRef<OXMIDicMethod>& method) {
    const ZELString name(NameOf(node));
    if (const HRESULT rc = element.GetClassMethod(&name, method.Out()); Failed(rc)) return rc;
    ZELDbBinary uuid;
    method->GetUuid(&uuid);
    return uuid == UuidFromText(node.getAttributeValue(word::kUuid).value_or("")) ? S_OK : E_FAIL;
}

HRESULT CompleteMethod(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                       OXMIDicInterface& element) {
    ZanDicRef<OXMIDicMethod> method;
    if (const HRESULT rc = FindMethod(element, node, method); Failed(rc)) {
        if (auto line = trace.Error()) line << text::kNoMethod << NameOf(node) << text::kResultIs << rc;
        return S_OK;
    }
    HRESULT result = S_OK;
    reading.owners.push_back(NameOf(node));
    for (const ZELVBTXMLNode child : node.Children()) {
        if (child.getTag() != tag::kParameter) continue;
        if (!reading.faults.GoesOn(CompleteParameter(reading, trace, child, *method), result)) break;
    }
    reading.owners.pop_back();
    return result;
}

}  // namespace

HRESULT CompleteInterface(Reading& reading, const ElementNote& note) {
    const ZanDicTraceScope trace(text::kCompleteInterface, "RC=");
    trace.Start();
    auto& element = note.As<OXMIDicInterface>();
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    const ZELVBTXMLAttribute super = note.references.At(slot::kSuper, reading.document);
    HRESULT result = S_OK;
    if (!reading.faults.GoesOn(CompleteSuper({reading, trace, node, &element, super}, element), result)) {
        return trace.Exit(result);
    }
    reading.owners.push_back(NameOf(node));
    for (const ZELVBTXMLNode child : node.Children()) {
        if (NameOf(child).empty() || !child.getAttribute(word::kUuid)) continue;
        if (child.getTag() != tag::kMethod) {
            trace.Error(Joined({text::kUnknownTag, child.getTag(), "[", NameOf(child), text::kSkippingTag}));
            continue;
        }
        if (!reading.faults.GoesOn(CompleteMethod(reading, trace, child, element), result)) break;
    }
    reading.owners.pop_back();
    return trace.Exit(result);
}
