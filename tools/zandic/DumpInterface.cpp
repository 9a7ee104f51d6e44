// The keys of interfaces, methods and parameters.
#include "DumpFields.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "OXMIDicParameter.h"
#include "OXMIDicPrimitive.h"

namespace tool::dump {
namespace {

void WritePrimitive(JsonWriter& json, OXMIDicParameter& parameter) {
    const auto primitive = zandic::As<OXMIDicPrimitive>(zandic::TypeOf(parameter));
    WriteText(json, primitive ? zandic::Name(*primitive).View() : std::string_view());
}

void WriteType(JsonWriter& json, OXMIDicParameter& parameter) {
    const auto type = zandic::TypeOf(parameter);
    WriteReferenceOrNull(json, zandic::As<OXMIDicPrimitive>(type) ? zandic::Handle<OXMIDicElement>() : type);
}

constexpr Field<OXMIDicParameter> kParameterFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicParameter::GetAlias>},
    {"primitive", WritePrimitive},
    {"type", WriteType},
    {"kind", Word<&OXMIDicParameter::GetKind, ZANDicFormat::kKindWords>},
    {"default", Text<&OXMIDicParameter::GetDefault>},
    {"other", Of<WriteFreeAttributes>},
};

constexpr Field<OXMIDicMethod> kMethodFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicMethod::GetAlias>},
    {"other", Of<WriteFreeAttributes>},
    {"parameters", Members<&OXMIDicMethod::GetParameters, kParameterFields, OXMIDicParameter>},
};

constexpr Field<OXMIDicInterface> kInterfaceFields[] = {
    {"super", Link<&OXMIDicInterface::GetSuperInterface>},
    {"subclasses",
     [](JsonWriter& json, OXMIDicInterface& interface) {
         Links<&OXMIDicClass::GetSubClasses>(json, *zandic::As<OXMIDicClass>(interface));
     }},
    {"methods", Members<&OXMIDicInterface::GetMethods, kMethodFields, OXMIDicMethod>},
};

}  // namespace

void WriteInterface(JsonWriter& json, OXMIDicElement& element) {
    WriteFields(json, *zandic::As<OXMIDicInterface>(element), kInterfaceFields);
}

void WriteMethod(JsonWriter& json, OXMIDicElementH& object) {
    ObjectOf<OXMIDicMethod, kMethodFields>(json, object);
}

void WriteParameter(JsonWriter& json, OXMIDicElementH& object) {
    ObjectOf<OXMIDicParameter, kParameterFields>(json, object);
}

}  // namespace tool::dump
