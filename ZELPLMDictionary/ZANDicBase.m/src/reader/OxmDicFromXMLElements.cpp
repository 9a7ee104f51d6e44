#include "OxmDicFromXMLElements.h"

#include <utility>

#include "HexToBinary.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OxmDicFromXMLFill.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "ZANDicWords.h"

using namespace ZANDicFormat;
using enum ZanDicDiagnosticCode;

namespace {

constexpr ZanDicTraceScope kTrace(text::kDriver, "RC=");

/// A child of the package on its way to an element.
struct ElementTag {
    Reading& reading;
    const ZELVBTXMLNode& node;
    ZELString name;
    ZELDbBinary uuid;
};

template <class Face>
using Factory = HRESULT (OXMIDicPackage::*)(const ZELString*, const ZELDbBinary*, Face**);

/// Makes an element by one of the package's factories. \returns E_FAIL when it was not made and registered.
template <class Face>
HRESULT CreateElement(const ElementTag& tag, Factory<Face> factory, ZanDicRef<Face>& element) {
    OXMIDicPackage& package = *tag.reading.package;
    const HRESULT rc = (package.*factory)(&tag.name, &tag.uuid, element.Out());
    if (Succeeded(rc) && element) return S_OK;

    ZanDicRef<OXMIDicElement> other;
    const bool isNameTaken = Succeeded(package.GetElement(&tag.name, other.Out()));
    return ReportNotCreated(tag.reading, kTrace, tag.node, static_cast<bool>(element), isNameTaken,
                            Joined({text::kCouldNotCreate, tag.node.getTag(), " ", tag.name.View()}));
}

/// The line of a handler that failed; its faults are told already.
void TraceFillFailed(std::string_view kind, std::string_view name) {
    if (auto line = kTrace.Error()) {
        line << text::kFillFailed << kind;
        if (!name.empty()) line << text::kFor << name;
        line << text::kFailed;
    }
}

template <unsigned char IsInstance>
HRESULT ReadClass(const ElementTag& tag) {
    ElementNote note{tag.node.Index()};
    HRESULT rc = CreateElement<OXMIDicClass>(tag, &OXMIDicPackage::CreateClass, note.element);
    if (Failed(rc)) return rc;
    note.element->SetInstance(IsInstance);
    rc = FillClass(tag.reading, tag.node, *note.element, note);
    tag.reading.elements.push_back(std::move(note));
    if (Failed(rc)) TraceFillFailed(tag::kClass, tag.name.View());
    return rc;
}

HRESULT ReadEnum(const ElementTag& tag) {
    ZanDicRef<OXMIDicEnum> element;
    HRESULT rc = CreateElement<OXMIDicEnum>(tag, &OXMIDicPackage::CreateEnum, element);
    if (Failed(rc)) return rc;
    rc = FillEnum(tag.reading, tag.node, *element);
    if (Failed(rc)) TraceFillFailed(tag::kEnum, {});
    return rc;
}

HRESULT ReadCategory(const ElementTag& tag) {
    ZanDicRef<OXMIDicCategory> element;
    HRESULT rc = CreateElement<OXMIDicCategory>(tag, &OXMIDicPackage::CreateCategory, element);
    if (Failed(rc)) return rc;
    rc = FillCategory(tag.reading, tag.node, *element);
    if (Failed(rc)) TraceFillFailed(tag::kCategory, {});
    return rc;
}

HRESULT Refuse(const ElementTag& tag, ZanDicDiagnosticCode code, std::string_view before,
               std::string_view behind) {
    Fault fault = FaultOf(tag.reading, code, tag.node);
    fault.lines.push_back({kTrace, Joined({before, tag.node.getTag(), "[", tag.name.View(), behind})});
    const HRESULT rc = tag.reading.faults.Report(fault);
    if (!tag.reading.faults.IsStopped()) tag.reading.leftOut.AddAll(tag.node);
    return rc;
}

HRESULT RefuseDeprecated(const ElementTag& tag) {
    return Refuse(tag, DeprecatedTag, text::kDeprecatedTag, text::kNotSupportedAnyMore);
}

HRESULT RefuseUnsupported(const ElementTag& tag) {
    return Refuse(tag, UnsupportedTag, text::kUnsupportedTag, text::kNotSupportedYet);
}

struct ElementRow {
    std::string_view name;
    HRESULT (*read)(const ElementTag&);  ///< null for what no pass looks at
};

constexpr ElementRow kElementRows[] = {
    {tag::kClass, ReadClass<0>},
    {tag::kInstance, ReadClass<1>},
    {tag::kEnum, ReadEnum},
    {tag::kCategory, ReadCategory},
    {tag::kCommand, RefuseDeprecated},
    {tag::kBObject, RefuseDeprecated},
    {tag::kExtension, RefuseUnsupported},
    {tag::kInterface, RefuseUnsupported},
    {tag::kRBOClass, RefuseUnsupported},
    {tag::kRBOMapping, RefuseUnsupported},
    {tag::kComment, nullptr},
    {tag::kKVAComment, nullptr},
};

const ElementRow* FindElementRow(std::string_view tagName) {
    for (const ElementRow& row : kElementRows) {
        if (row.name == tagName) return &row;
    }
    return nullptr;
}

}  // namespace

std::string UnknownTagMessage(const ZELVBTXMLNode& node) {
    return Joined({text::kUnknownTag, node.getTag(), "[", NameOf(node), text::kSkippingTag});
}

HRESULT FillElement(Reading& reading, const ZELVBTXMLNode& node) {
    const ElementRow* const row = FindElementRow(node.getTag());
    if (row != nullptr && row->read == nullptr) return S_OK;

    HRESULT result = S_OK;
    const std::string_view name = NameOf(node);
    const auto uuid = node.getAttributeValue(word::kUuid);
    for (const std::string_view attribute : {word::kName, word::kUuid}) {
        if (attribute == word::kName ? !name.empty() : uuid.has_value()) continue;
        Fault fault = FaultOf(reading, MissingAttribute, node);
        fault.attributeName = attribute;
        fault.lines.push_back({kTrace, Joined({text::kCouldNotFindMandatory, attribute})});
        if (!reading.faults.GoesOn(reading.faults.Report(fault), result)) return result;
    }
    if (Failed(result)) {
        reading.leftOut.AddAll(node);
        return result;
    }
    if (row != nullptr) return row->read({reading, node, reading.texts.Text(name), UuidFromText(*uuid)});

    Fault fault = FaultOf(reading, UnknownTag, node);
    fault.severity = ZanDicSeverity::Warning;
    fault.lines.push_back({kTrace, UnknownTagMessage(node)});
    reading.faults.Report(fault);
    reading.elements.push_back({node.Index()});
    reading.elements.back().isUnknown = true;
    return S_OK;
}
