#include "DumpFields.h"

#include <string>

namespace tool::dump {

void WriteText(JsonWriter& json, std::string_view text) {
    if (text.empty()) {
        json.Null();
    } else {
        json.Text(text);
    }
}

void WriteReference(JsonWriter& json, OXMIDicElementH& target) {
    static std::string name;  // one text for all references of a dump, so that none allocates
    name.clear();
    AppendQualifiedName(target, name);
    json.Text(name);
}

void WriteKind(JsonWriter& json, OXMIDicElement& element) { WriteText(json, TagOf(element)); }

void WriteName(JsonWriter& json, OXMIDicElementH& object) { WriteText(json, zandic::Name(object).View()); }

void WriteUuid(JsonWriter& json, OXMIDicElementH& object) {
    json.Text(zandic::UuidText(zandic::Uuid(object)).View());
}

void WriteFreeAttributes(JsonWriter& json, OXMIDicElementH& object) {
    json.BeginObject();
    for (const auto [name, value] : zandic::FreeAttributes(object)) {
        json.AnyKey(name);
        json.Text(value);
    }
    json.EndObject();
}

}  // namespace tool::dump
