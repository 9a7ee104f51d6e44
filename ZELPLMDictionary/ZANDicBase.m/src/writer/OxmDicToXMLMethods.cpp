// Interfaces, their methods and the parameters of these.

#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicPrimitive.h"
#include "WriterTexts.h"
#include "XmlRows.h"
#include "ZANDicTags.h"

namespace {

using namespace ZANDicFormat;
using LinkName = ZanDicObj::LinkName;

HRESULT SuperInterface(XmlNode& node, OXMIDicInterface& element, std::string_view word) {
    ZanDicRef<OXMIDicInterface> superInterface;
    const HRESULT rc = element.GetSuperInterface(superInterface.Out());
    if (Failed(rc)) {
        ZanDicWriteError(writer::kGetSuperInterfaceFailed);
        return rc;
    }
    if (superInterface) {
        node.Uuid(word, emit::UuidOf(*superInterface));
    } else {
        node.WarnLost(element, LinkName::SuperClass, word);
    }
    return S_OK;
}

constexpr XmlRow<OXMIDicInterface> kInterfaceRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kUuid, emit::Uuid},
    {word::kSuperRef, SuperInterface},
};

constexpr XmlRow<OXMIDicMethod> kMethodRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kUuid, emit::Uuid},
};

/// The word of the primitive that types a parameter, or the UUID of another type, under both names.
HRESULT ParameterType(XmlNode& node, OXMIDicParameter& parameter, std::string_view) {
    ZanDicRef<OXMIDicElement> type;
    parameter.GetType(type.Out());
    if (!type) {
        node.WarnLost(parameter, LinkName::Type, word::kTypeRef);
        return S_OK;
    }
    OXMDicTYPE code = OXMDicTYPE_UNDEFINED;
    type->GetType(&code);
    if (code != OXMDicTYPE_Primitive) {
        const ZELDbBinary uuid = emit::UuidOf(*type);
        node.Uuid(word::kClassRef, uuid);
        node.Uuid(word::kTypeRef, uuid);
    } else if (const ZanDicRef<OXMIDicPrimitive> primitive = As<OXMIDicPrimitive>(*type)) {
        // A primitive that no parameter can name is left out: its word would make the document unloadable.
        node.Word(word::kType, WordOf(kSimpleTypeWords, primitive->Primitive()));
    }
    return S_OK;
}

constexpr XmlRow<OXMIDicParameter> kParameterRows[] = {
    {word::kName, emit::Text<&OXMIDicElementH::GetName>},
    {word::kUuid, emit::Uuid},
    {word::kAlias, emit::LongText<&OXMIDicElement::GetAlias>},
    {word::kTypeRef, ParameterType},
    {word::kKind, emit::Word<OXMDicKIND, &OXMIDicParameter::GetKind, kKindWords>},
    {word::kDefault, emit::SomeText<&OXMIDicParameter::GetDefault>},
};

}  // namespace

constexpr XmlKind kInterfaceKind{OXMDicTYPE_Interface, writer::kDisplayInterface, FixedTag<tag::kInterface>,
                                 WriteRows<OXMIDicInterface, kInterfaceRows>,
                                 ListChildren<OXMIDicInterface, &OXMIDicInterface::GetMethods>};
constexpr XmlKind kMethodKind{OXMDicTYPE_Method, writer::kDisplayMethod, FixedTag<tag::kMethod>,
                              WriteRows<OXMIDicMethod, kMethodRows>,
                              ListChildren<OXMIDicMethod, &OXMIDicMethod::GetParameters>};
constexpr XmlKind kParameterKind{OXMDicTYPE_Parameter, writer::kDisplayParameter, FixedTag<tag::kParameter>,
                                 WriteRows<OXMIDicParameter, kParameterRows>, nullptr};
