/// What writes the keys of an object and their values, to stand in tables: one row a key.
#ifndef ZANDIC_TOOL_DUMP_FIELDS_H
#define ZANDIC_TOOL_DUMP_FIELDS_H

#include <cstddef>
#include <string_view>

#include "JsonWriter.h"
#include "Model.h"

namespace tool::dump {

/// One key of an object, and what writes its value.
template <class Element>
struct Field {
    std::string_view key;
    void (*write)(JsonWriter& json, Element& element);
};

template <class Element, std::size_t N>
void WriteFields(JsonWriter& json, Element& element, const Field<Element> (&fields)[N]) {
    for (const Field<Element>& field : fields) {
        json.Key(field.key);
        field.write(json, element);
    }
}

/// A text, null where it is empty or unset.
void WriteText(JsonWriter& json, std::string_view text);

void WriteReference(JsonWriter& json, OXMIDicElementH& target);

template <class Target>
void WriteReferenceOrNull(JsonWriter& json, const zandic::Handle<Target>& target) {
    if (target) {
        WriteReference(json, *target);
    } else {
        json.Null();
    }
}

template <class Target>
void WriteReferences(JsonWriter& json, const zandic::List<Target>& targets) {
    json.BeginArray();
    for (Target& target : targets) WriteReference(json, target);
    json.EndArray();
}

// What every object has.

void WriteKind(JsonWriter& json, OXMIDicElement& element);
void WriteName(JsonWriter& json, OXMIDicElementH& object);
void WriteUuid(JsonWriter& json, OXMIDicElementH& object);
void WriteFreeAttributes(JsonWriter& json, OXMIDicElementH& object);

/// One of the above as a row of objects of another interface.
template <void (*kWrite)(JsonWriter&, OXMIDicElementH&), class Element>
void Of(JsonWriter& json, Element& element) {
    kWrite(json, element);
}

// What writes the value that a getter gives.

template <auto kGetter, class Element>
void Text(JsonWriter& json, Element& element) {
    const auto text = zandic::Get(element, kGetter);
    WriteText(json, text ? text->View() : std::string_view());
}

template <auto kGetter, class Element>
void Flag(JsonWriter& json, Element& element) {
    json.Flag(zandic::Flag(element, kGetter));
}

template <auto kGetter, class Element>
void Number(JsonWriter& json, Element& element) {
    if (const auto number = zandic::Get(element, kGetter)) {
        json.Number(*number);
    } else {
        json.Null();
    }
}

template <auto kGetter, auto& kWords, class Element>
void Word(JsonWriter& json, Element& element) {
    WriteText(json, WordOf(element, kGetter, kWords));
}

template <auto kGetter, class Element>
void Link(JsonWriter& json, Element& element) {
    WriteReferenceOrNull(json, zandic::Link(element, kGetter));
}

template <auto kGetter, class Element>
void Links(JsonWriter& json, Element& element) {
    WriteReferences(json, zandic::All<OXMIDicElementH>(element, kGetter));
}

/// A list of members, each written as an object of \p kFields.
template <auto kGetter, auto& kFields, class Member, class Element>
void Members(JsonWriter& json, Element& element) {
    json.BeginArray();
    for (Member& member : zandic::All<Member>(element, kGetter)) {
        json.BeginObject();
        WriteFields(json, member, kFields);
        json.EndObject();
    }
    json.EndArray();
}

// One source for each family of kinds: the keys that it has of its own, and its members by themselves.
void WriteInterface(JsonWriter& json, OXMIDicElement& element);
void WriteMapping(JsonWriter& json, OXMIDicElement& element);
void WriteOwnBlocks(JsonWriter& json, OXMIDicClass& classElement);
void WriteAllBlocks(JsonWriter& json, OXMIDicClass& classElement);
void WriteMethod(JsonWriter& json, OXMIDicElementH& object);
void WriteParameter(JsonWriter& json, OXMIDicElementH& object);
void WriteRoot(JsonWriter& json, OXMIDicElementH& object);
void WriteComponent(JsonWriter& json, OXMIDicElementH& object);
void WritePathExpression(JsonWriter& json, OXMIDicElementH& object);
void WriteBlock(JsonWriter& json, OXMIDicElementH& object);

/// One object of \p Element with the keys of \p kFields.
template <class Element, auto& kFields>
void ObjectOf(JsonWriter& json, OXMIDicElementH& object) {
    json.BeginObject();
    if (const auto element = zandic::As<Element>(object)) WriteFields(json, *element, kFields);
    json.EndObject();
}

}  // namespace tool::dump

#endif
