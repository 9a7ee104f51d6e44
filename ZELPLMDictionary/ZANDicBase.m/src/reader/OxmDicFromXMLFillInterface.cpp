// First pass: interfaces with their methods and parameters.
#include "FillWords.h"
#include "HexToBinary.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OxmDicFromXMLFill.h"

using namespace ZANDicFormat;
using namespace fill;

namespace {

constexpr LoopTexts kInterfaceLoop{text::kProcessingAttributeOf, text::kUnknownInterfaceAttribute,
                                   text::kInvalidValue};

HRESULT ParameterType(OXMIDicParameter& element, const Given& given) {
    const CodeWord* const row = FindWord(kSimpleTypeWords, given.Value());
    if (row == nullptr) return E_FAIL;
    // The setter's result says nothing, so it is not looked at.
    SetPrimitiveType(given.reading, element, row->code);
    return S_OK;
}

constexpr AttributeWord<OXMIDicInterface> kInterfaceWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicInterface::SetAlias>},
    {word::kSuperRef, Reference<slot::kSuper>},
};
static_assert(AreAttributesOf(kInterfaceWords, {tag::kInterface}));

constexpr AttributeWord<OXMIDicMethod> kMethodWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicMethod::SetAlias>},
};
static_assert(AreAttributesOf(kMethodWords, {tag::kMethod}));

constexpr AttributeWord<OXMIDicParameter> kParameterWords[] = {
    {word::kName, Skip},
    {word::kUuid, Skip},
    {word::kAlias, Text<&OXMIDicParameter::SetAlias>},
    {word::kType, ParameterType},
    {word::kTypeRef, Skip},   // second pass
    {word::kClassRef, Skip},  // second pass
    {word::kKind, StrictWord<&OXMIDicParameter::SetKind, kKindWords>},
    {word::kDefault, Text<&OXMIDicParameter::SetDefault>},
};
static_assert(AreAttributesOf(kParameterWords, {tag::kParameter}));

/// Checks that a method or parameter has `Name` and `Uuid`. \returns S_OK; E_FAIL, reported.
HRESULT CheckMemberIdentity(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node) {
    HRESULT result = S_OK;
    for (const std::string_view attribute : {word::kName, word::kUuid}) {
        if (attribute == word::kName ? !NameOf(node).empty()
                                     : static_cast<bool>(node.getAttribute(attribute)))
            continue;
        Fault fault = FaultOf(reading, ZanDicDiagnosticCode::MissingAttribute, node);
        fault.attributeName = attribute;
        fault.lines.push_back({trace, Joined({text::kExitOf, node.getTag(), text::kNoAttribute, attribute})});
        if (!reading.faults.GoesOn(reading.faults.Report(fault), result)) return result;
    }
    if (Failed(result)) LeaveOut(reading, node);
    return result;
}

/// Makes a member by its owner's factory. \returns E_FAIL, reported, when it was not made and registered.
template <class Owner, class Face>
HRESULT CreateMember(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node, Owner& owner,
                     HRESULT (Owner::*factory)(const ZELString*, const ZELDbBinary*, Face**),
                     HRESULT (Owner::*find)(const ZELString*, Face**), ZanDicRef<Face>& member) {
    const ZELString name = reading.texts.Text(NameOf(node));
    const ZELDbBinary uuid = UuidFromText(*node.getAttributeValue(word::kUuid));
    const HRESULT rc = (owner.*factory)(&name, &uuid, member.Out());
    if (Succeeded(rc) && member) return S_OK;
    ZanDicRef<Face> other;
    (owner.*find)(&name, other.Out());
    return ReportNotCreated(reading, trace, node, static_cast<bool>(member), other.Get(),
                            Joined({text::kNotCreated, name.View(), text::kNotCreatedEnd}));
}

/// Gives each child that has \p tagName to \p fill; another is told and passed over.
template <class FillChild>
HRESULT FillMembers(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                    std::string_view tagName, FillChild fillChild) {
    HRESULT result = S_OK;
    for (const ZELVBTXMLNode child : node.Children()) {
        if (child.getTag() != tagName) {
            ReportUnknownTag(reading, trace, child, text::kUnknownTag);
            continue;
        }
        HRESULT rc = CheckMemberIdentity(reading, trace, child);
        if (Succeeded(rc)) rc = fillChild(child);
        if (!reading.faults.GoesOn(rc, result)) break;
    }
    return result;
}

HRESULT FillMethod(Reading& reading, const ZELVBTXMLNode& node, OXMIDicMethod& method) {
    const ZanDicTraceScope trace(text::kFillMethod, "RC=");
    trace.Start();
    HRESULT result = S_OK;
    const HRESULT rc = FillAttributes<kMethodWords>(reading, trace, node, method, kInterfaceLoop);
    if (!reading.faults.GoesOn(rc, result)) return trace.Exit(result);

    reading.owners.push_back(NameOf(node));
    reading.faults.GoesOn(
        FillMembers(reading, trace, node, tag::kParameter,
                    [&](const ZELVBTXMLNode& child) {
                        ZanDicRef<OXMIDicParameter> parameter;
                        const HRESULT made =
                            CreateMember(reading, trace, child, method, &OXMIDicMethod::CreateParameter,
                                         &OXMIDicMethod::GetParameter, parameter);
                        return Failed(made) ? made
                                            : FillPlain<kParameterWords>(reading, text::kFillParameter, child,
                                                                         *parameter, kInterfaceLoop);
                    }),
        result);
    reading.owners.pop_back();
    return trace.Exit(result);
}

}  // namespace

HRESULT FillInterface(Reading& reading, const ZELVBTXMLNode& node, OXMIDicInterface& element,
                      ElementNote& note) {
    const ZanDicTraceScope trace(text::kFillInterface, "RC=");
    trace.Start();
    reading.references = {};
    HRESULT result = S_OK;
    const HRESULT rc = FillAttributes<kInterfaceWords>(reading, trace, node, element, kInterfaceLoop);
    note.references = reading.references;
    if (!reading.faults.GoesOn(rc, result)) return trace.Exit(result);

    reading.owners.push_back(NameOf(node));
    reading.faults.GoesOn(FillMembers(reading, trace, node, tag::kMethod,
                                      [&](const ZELVBTXMLNode& child) {
                                          ZanDicRef<OXMIDicMethod> method;
                                          const HRESULT made = CreateMember(
                                              reading, trace, child, element, &OXMIDicInterface::CreateMethod,
                                              &OXMIDicInterface::GetClassMethod, method);
                                          return Failed(made) ? made : FillMethod(reading, child, *method);
                                      }),
                          result);
    reading.owners.pop_back();
    return trace.Exit(result);
}
