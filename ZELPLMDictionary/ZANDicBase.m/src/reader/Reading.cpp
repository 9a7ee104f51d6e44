#include "Reading.h"

#include <utility>

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

void SetOther(Fault& fault, OXMIDicElementH& object) {
    fault.otherParty = QualifiedName(object);
    object.GetUuid(&fault.otherUuid);
    ZanDicRef<OXMIDicElement> element;
    ZELString package;
    if (Succeeded(object.QueryInterface(IID_OXMIDicElement, element.OutVoid())) &&
        element->GetPackageName(&package) == S_OK) {
        fault.otherPackage = package.View();
    }
}

void LeftOut::AddAll(const ZELVBTXMLNode& node, int cause) {
    // Whatever is inside follows its tag in the order of the document.
    std::vector<ZELVBTXMLNode> open{node};
    while (!open.empty()) {
        const ZELVBTXMLNode next = open.back();
        open.pop_back();
        if (const auto uuid = next.getAttributeValue(word::kUuid)) Add(UuidFromText(*uuid), cause);
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
    constexpr std::size_t kMost = 16;
    std::string name;
    for (std::size_t level = 0; level < owners.size(); ++level) {
        if (owners.size() > kMost && level == 1) {
            name += "...::";
            level = owners.size() - kMost + 1;
        }
        name.append(owners[level]).append("::");
    }
    return name.append(NameOf(node));
}

OXMIDicPrimitive* Reading::Primitive(int kind) {
    ZanDicRef<OXMIDicPrimitive>& primitive = _PRIMITIVES.at(static_cast<std::size_t>(kind));
    if (!primitive) manager.GetPrimitive(static_cast<OXMDicPRIMITIVEType>(kind), primitive.Out());
    return primitive.Get();
}

bool Reading::Reaches(OXMIDicElementH& object) {
    ZanDicRef<OXMIDicElement> element;
    ZanDicRef<OXMIDicPackage> home;
    if (Failed(object.QueryInterface(IID_OXMIDicElement, element.OutVoid())) ||
        element->GetPackage(home.Out()) != S_OK || !home) {
        return true;
    }
    if (_REACH.empty()) note_Reach();
    ZELDbBinary uuid;
    home->GetUuid(&uuid);
    return _REACH.contains(uuid);
}

void Reading::note_Reach() {
    std::vector<ZanDicRef<OXMIDicPackage>> open;
    const auto reach = [&](ZanDicRef<OXMIDicPackage> reached) {
        ZELDbBinary uuid;
        reached->GetUuid(&uuid);
        if (_REACH.insert(uuid).second) open.push_back(std::move(reached));
    };
    reach(ZanDicRef<OXMIDicPackage>::Share(package.Get()));
    while (!open.empty()) {
        const ZanDicRef<OXMIDicPackage> next = std::move(open.back());
        open.pop_back();
        ZELListPtrIUnknown used;
        next->GetUsedPackages(&used);
        next->GetScopePackages(&used);
        for (int position = 1; position <= used.Size(); ++position) {
            const ZanDicRef<IUnknown> face(used[position]);
            ZanDicRef<OXMIDicPackage> found;
            if (Succeeded(face->QueryInterface(IID_OXMIDicPackage, found.OutVoid()))) reach(std::move(found));
        }
    }
}

Fault FaultOf(const Reading& reading, ZanDicDiagnosticCode code, const ZELVBTXMLNode& node) {
    Fault fault{code};
    fault.node = node;
    fault.element = reading.ElementName(node);
    return fault;
}

void LeaveOut(Reading& reading, const ZELVBTXMLNode& node) {
    if (!reading.faults.IsStopped()) reading.leftOut.AddAll(node, reading.faults.LastNumber());
}

HRESULT ReportNotCreated(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                         bool isHandedOut, OXMIDicElementH* namesake, std::string message) {
    using enum ZanDicDiagnosticCode;

    Fault fault = FaultOf(reading,
                          isHandedOut           ? DuplicateUuid
                          : namesake != nullptr ? DuplicateName
                                                : NotCreated,
                          node);
    if (isHandedOut) {
        fault.attribute = node.getAttribute(word::kUuid);
        const ZELDbBinary uuid = UuidFromText(fault.attribute.Value());
        ZanDicRef<OXMIDicElementH> registered;
        if (Succeeded(reading.manager.Search(&uuid, registered.Out()))) {
            SetOther(fault, *registered);
        }
    } else {
        if (namesake != nullptr) {
            fault.attribute = node.getAttribute(word::kName);
            SetOther(fault, *namesake);
        }
        fault.lines.push_back({trace, std::move(message)});
    }
    const HRESULT rc = reading.faults.Report(fault);
    LeaveOut(reading, node);
    return rc;
}
