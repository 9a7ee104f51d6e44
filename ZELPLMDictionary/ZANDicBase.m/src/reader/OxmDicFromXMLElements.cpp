#include "OxmDicFromXMLElements.h"

#include <utility>

#include "FillWords.h"
#include "HexToBinary.h"
#include "OXMIDicCategory.h"
#include "OXMIDicEnum.h"
#include "OXMIDicInterface.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOMapping.h"
#include "OxmDicFromXMLCheck.h"
#include "OxmDicFromXMLComplete.h"
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
    package.GetElement(&tag.name, other.Out());
    return ReportNotCreated(tag.reading, kTrace, tag.node, static_cast<bool>(element), other.Get(),
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

/// Keeps an element for the later passes.
template <class Face>
Face& Note(const ElementTag& tag, OXMDicTYPE type, ZanDicRef<Face>& element, ElementNote& note) {
    note.node = tag.node.Index();
    note.type = type;
    note.element = ZanDicRef<OXMIDicElement>(element.Detach());
    return note.As<Face>();
}

template <class Face, Factory<Face> Create, OXMDicTYPE Type, unsigned char IsInstance>
HRESULT ReadClass(const ElementTag& tag) {
    ZanDicRef<Face> made;
    HRESULT rc = CreateElement<Face>(tag, Create, made);
    if (Failed(rc)) return rc;
    ElementNote note{};
    Face& element = Note(tag, Type, made, note);
    element.SetInstance(IsInstance);
    rc = FillClass(tag.reading, tag.node, element, note);
    tag.reading.elements.push_back(std::move(note));
    if (Failed(rc)) TraceFillFailed(tag::kClass, tag.name.View());
    return rc;
}

/// What is filled with a note of its own.
template <class Face, Factory<Face> Create, OXMDicTYPE Type, auto FillFace>
HRESULT ReadNoted(const ElementTag& tag) {
    ZanDicRef<Face> made;
    HRESULT rc = CreateElement<Face>(tag, Create, made);
    if (Failed(rc)) return rc;
    ElementNote note{};
    Face& element = Note(tag, Type, made, note);
    rc = FillFace(tag.reading, tag.node, element, note);
    tag.reading.elements.push_back(std::move(note));
    if (Failed(rc)) TraceFillFailed(tag.node.getTag(), {});
    return rc;
}

/// What has no references.
template <class Face, Factory<Face> Create, auto FillFace>
HRESULT ReadPlain(const ElementTag& tag) {
    ZanDicRef<Face> element;
    HRESULT rc = CreateElement<Face>(tag, Create, element);
    if (Failed(rc)) return rc;
    rc = FillFace(tag.reading, tag.node, *element);
    if (Failed(rc)) TraceFillFailed(tag.node.getTag(), {});
    return rc;
}

HRESULT RefuseDeprecated(const ElementTag& tag) {
    Fault fault = FaultOf(tag.reading, DeprecatedTag, tag.node);
    fault.lines.push_back({kTrace, Joined({text::kDeprecatedTag, tag.node.getTag(), "[", tag.name.View(),
                                           text::kNotSupportedAnyMore})});
    const HRESULT rc = tag.reading.faults.Report(fault);
    LeaveOut(tag.reading, tag.node);
    return rc;
}

struct ElementRow {
    std::string_view name;
    HRESULT (*read)(const ElementTag&);  ///< null for what no pass looks at
};

constexpr ElementRow kElementRows[] = {
    {tag::kClass, ReadClass<OXMIDicClass, &OXMIDicPackage::CreateClass, OXMDicTYPE_Class, 0>},
    {tag::kInstance, ReadClass<OXMIDicClass, &OXMIDicPackage::CreateClass, OXMDicTYPE_Class, 1>},
    {tag::kExtension, ReadClass<OXMIDicExtension, &OXMIDicPackage::CreateExtension, OXMDicTYPE_Extension, 0>},
    {tag::kInterface,
     ReadNoted<OXMIDicInterface, &OXMIDicPackage::CreateInterface, OXMDicTYPE_Interface, FillInterface>},
    {tag::kEnum, ReadPlain<OXMIDicEnum, &OXMIDicPackage::CreateEnum, FillEnum>},
    {tag::kCategory, ReadPlain<OXMIDicCategory, &OXMIDicPackage::CreateCategory, FillCategory>},
    {tag::kRBOClass, ReadPlain<OXMIDicRBOClass, &OXMIDicPackage::CreateRBOClass, FillRBOClass>},
    {tag::kRBOMapping,
     ReadNoted<OXMIDicRBOMapping, &OXMIDicPackage::CreateRBOMapping, OXMDicTYPE_RBOMapping, FillRBOMapping>},
    {tag::kCommand, RefuseDeprecated},
    {tag::kBObject, RefuseDeprecated},
    {tag::kComment, nullptr},
    {tag::kKVAComment, nullptr},
};
static_assert(fill::AreChildrenOf(kElementRows, tag::kPackage));

const ElementRow* FindElementRow(std::string_view tagName) {
    for (const ElementRow& row : kElementRows) {
        if (row.name == tagName) return &row;
    }
    return nullptr;
}

/// The second pass, by type.
struct CompleteRow {
    OXMDicTYPE type;
    HRESULT (*complete)(Reading&, const ElementNote&);
    std::string_view failed;
};

constexpr CompleteRow kCompleteRows[] = {
    {OXMDicTYPE_Class, CompleteClass, text::kCompleteClassFailed},
    {OXMDicTYPE_Extension, CompleteExtension, text::kCompleteExtensionFailed},
    {OXMDicTYPE_Interface, CompleteInterface, text::kCompleteInterfaceFailed},
    {OXMDicTYPE_RBOMapping, CompleteRBOMapping, text::kCompleteRBOMappingFailed},
};

std::string UnknownTagMessage(const ZELVBTXMLNode& node) {
    return Joined({text::kUnknownTag, node.getTag(), "[", NameOf(node), text::kSkippingTag});
}

/// What a pass meets, at the level of tags.
void TraceTag(std::size_t pass, const ZELVBTXMLNode& node) {
    if (auto line = kTrace.Line(TraceLevel::Tag)) {
        line << text::kPassTags[pass] << node.getTag() << "[" << NameOf(node) << "]";
    }
}

}  // namespace

HRESULT ReadElement(Reading& reading, const ZELVBTXMLNode& node) {
    TraceTag(0, node);
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
        LeaveOut(reading, node);
        return result;
    }
    if (row != nullptr) return row->read({reading, node, reading.texts.Text(name), UuidFromText(*uuid)});

    Fault fault = FaultOf(reading, UnknownTag, node);
    fault.severity = ZanDicSeverity::Warning;
    fault.lines.push_back({kTrace, UnknownTagMessage(node)});
    reading.faults.Report(fault);
    reading.elements.push_back({node.Index()});
    return S_OK;
}

HRESULT CompleteElement(Reading& reading, const ElementNote& note) {
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    TraceTag(1, node);
    for (const CompleteRow& row : kCompleteRows) {
        if (row.type != note.type) continue;
        const HRESULT rc = row.complete(reading, note);
        if (Failed(rc)) kTrace.Error(row.failed);
        return rc;
    }
    kTrace.Error(UnknownTagMessage(node));
    return S_OK;
}

HRESULT CompletePutOff(Reading& reading) {
    HRESULT result = S_OK;
    for (const PutOffScopes& scopes : reading.putOff) {
        const HRESULT rc = CompletePutOffScopes(reading, scopes);
        if (Failed(rc)) kTrace.Error(text::kCompleteExtensionFailed);
        if (!reading.faults.GoesOn(rc, result)) break;
    }
    return result;
}

HRESULT CheckElement(Reading& reading, const ElementNote& note) {
    const ZELVBTXMLNode node = reading.document.ElementAt(note.node);
    TraceTag(2, node);
    if (note.type == OXMDicTYPE_UNDEFINED) {
        kTrace.Error(UnknownTagMessage(node));
        return S_OK;
    }
    if (node.getTag() != tag::kClass) return S_OK;  // instances and extensions are not checked
    const HRESULT rc = CheckClass(reading, note);
    if (Failed(rc)) kTrace.Error(text::kCheckClassFailed);
    return rc;
}
