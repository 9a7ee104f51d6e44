#include "Reading.h"

#include "AttributeWord.h"
#include "HexToBinary.h"
#include "OXMIDicAttribute.h"
#include "ReaderTexts.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;

std::string QualifiedName(OXMIDicElementH& object) {
    std::string qualified;
    ZanDicRef<OXMIDicElement> element;
    if (Succeeded(object.QueryInterface(IID_OXMIDicElement, element.OutVoid()))) {
        ZELString package;
        if (element->GetPackageName(&package) == S_OK) qualified = Joined({package.View(), "::"});
    }
    ZanDicRef<OXMIDicAttribute> attribute;
    if (Succeeded(object.QueryInterface(IID_OXMIDicAttribute, attribute.OutVoid()))) {
        ZanDicRef<OXMIDicClass> origin;
        ZELString className;
        if (attribute->GetOrigin(origin.Out()) == S_OK && Succeeded(origin->GetName(&className))) {
            qualified += Joined({className.View(), "::"});
        }
    }
    ZELString name;
    object.GetName(&name);
    qualified += name.View();
    return qualified;
}

void LeftOut::AddAll(const ZELVBTXMLNode& node) {
    // Whatever is inside follows its tag in the order of the document.
    std::vector<ZELVBTXMLNode> open{node};
    while (!open.empty()) {
        const ZELVBTXMLNode next = open.back();
        open.pop_back();
        if (const auto uuid = next.getAttributeValue(word::kUuid)) Add(UuidFromText(*uuid));
        for (const ZELVBTXMLNode child : next.Children()) open.push_back(child);
    }
}

std::string_view NameOf(const ZELVBTXMLNode& node) {
    // Nearly always the first attribute.
    const ZELVBTXMLAttributes attributes = node.Attributes();
    if (attributes.Size() != 0 && IsWord<word::kName>((*attributes.begin()).Name())) {
        return (*attributes.begin()).Value();
    }
    return node.getAttributeValue(word::kName).value_or(std::string_view());
}

std::string Reading::ElementName(const ZELVBTXMLNode& node) const {
    return owner.empty() ? std::string(NameOf(node)) : Joined({owner, "::", NameOf(node)});
}

OXMIDicPrimitive* Reading::Primitive(int kind) {
    ZanDicRef<OXMIDicPrimitive>& primitive = _PRIMITIVES.at(static_cast<std::size_t>(kind));
    if (!primitive) manager.GetPrimitive(static_cast<OXMDicPRIMITIVEType>(kind), primitive.Out());
    return primitive.Get();
}

Fault FaultOf(const Reading& reading, ZanDicDiagnosticCode code, const ZELVBTXMLNode& node) {
    Fault fault{code};
    fault.node = node;
    fault.element = reading.ElementName(node);
    return fault;
}

HRESULT ReportNotCreated(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                         bool isHandedOut, bool isNameTaken, std::string message) {
    using enum ZanDicDiagnosticCode;

    Fault fault = FaultOf(reading,
                          isHandedOut   ? DuplicateUuid
                          : isNameTaken ? DuplicateName
                                        : NotCreated,
                          node);
    if (isHandedOut) {
        fault.attribute = node.getAttribute(word::kUuid);
        const ZELDbBinary uuid = UuidFromText(fault.attribute.Value());
        ZanDicRef<OXMIDicElementH> registered;
        if (Succeeded(reading.manager.Search(&uuid, registered.Out()))) {
            fault.otherParty = QualifiedName(*registered);
        }
    } else {
        if (isNameTaken) fault.attribute = node.getAttribute(word::kName);
        fault.lines.push_back({trace, std::move(message)});
    }
    const HRESULT rc = reading.faults.Report(fault);
    if (!reading.faults.IsStopped()) reading.leftOut.AddAll(node);
    return rc;
}
