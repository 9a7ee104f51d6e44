// The keys of mappings and of what they own.
#include <memory>
#include <utility>
#include <vector>

#include "DumpFields.h"
#include "OXMIDicRBOClass.h"
#include "RboWalk.h"

namespace tool::dump {
namespace {

template <auto kGetter, auto kTextGetter, class Element>
void NameOfLink(JsonWriter& json, Element& element) {
    WriteText(json, LinkedName(element, kGetter, kTextGetter));
}

constexpr Field<OXMIDicRBOPathExpression> kPathFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&OXMIDicRBOPathExpression::GetAlias>},
    {"type", Text<&OXMIDicRBOPathExpression::GetPathExprType>},
    {"subType", Text<&OXMIDicRBOPathExpression::GetPathExprSubType>},
    {"targetName",
     NameOfLink<&OXMIDicRBOPathExpression::GetTarget, &OXMIDicRBOPathExpression::GetTargetName>},
    {"target", Link<&OXMIDicRBOPathExpression::GetTarget>},
    {"other", Of<WriteFreeAttributes>},
};

/// The keys of roots and components that stand before `components`.
template <class Node>
constexpr Field<Node> kNodeFields[] = {
    {"name", Of<WriteName>},
    {"uuid", Of<WriteUuid>},
    {"alias", Text<&Node::GetAlias>},
    {"baseClass", Link<&Node::GetBaseClass>},
    {"baseClassName", NameOfLink<&Node::GetBaseClass, &Node::GetBaseClassName>},
    {"other", Of<WriteFreeAttributes>},
};

void WritePath(JsonWriter& json, OXMIDicRBOComponent& component) {
    const auto path = zandic::Link(component, &OXMIDicRBOComponent::GetRBOPathExpression);
    if (!path) {
        json.Null();
        return;
    }
    json.BeginObject();
    WriteFields(json, *path, kPathFields);
    json.EndObject();
}

/// The keys of a component that stand behind `components`.
constexpr Field<OXMIDicRBOComponent> kComponentEndFields[] = {
    {"validityRule", Text<&OXMIDicRBOComponent::GetValidityRule>},
    {"path", WritePath},
};

template <class Node>
void BeginNode(JsonWriter& json, Node& node) {
    json.BeginObject();
    WriteFields(json, node, kNodeFields<Node>);
    json.Key("components");
    json.BeginArray();
}

/// The components of one owner, as far as they are written.
struct Level {
    explicit Level(zandic::List<OXMIDicRBOComponent> list)
        : components(std::move(list)), next(components.begin()) {}

    zandic::List<OXMIDicRBOComponent> components;
    zandic::List<OXMIDicRBOComponent>::Iterator next;
};

/// Writes the components of a root or component and everything below them. A nest has any depth: what would
/// be calls inside each other are levels of a list.
template <class Node>
void WriteComponents(JsonWriter& json, Node& owner) {
    std::vector<std::unique_ptr<Level>> levels;
    levels.push_back(std::make_unique<Level>(ComponentsOf(owner)));
    while (true) {
        Level& level = *levels.back();
        if (level.next != level.components.end()) {
            OXMIDicRBOComponent& component = *level.next;
            BeginNode(json, component);
            levels.push_back(std::make_unique<Level>(ComponentsOf(component)));
            continue;
        }
        levels.pop_back();
        if (levels.empty()) return;
        json.EndArray();
        WriteFields(json, *levels.back()->next, kComponentEndFields);
        json.EndObject();
        ++levels.back()->next;
    }
}

void WriteRoots(JsonWriter& json, OXMIDicRBOMapping& mapping) {
    json.BeginArray();
    for (OXMIDicRBORoot& root : zandic::All<OXMIDicRBORoot>(mapping, &OXMIDicRBOMapping::GetElements)) {
        WriteRoot(json, root);
    }
    json.EndArray();
}

constexpr Field<OXMIDicRBOMapping> kMappingFields[] = {
    {"appliesTo", Link<&OXMIDicRBOMapping::GetApplyToRBOClass>},
    {"appliesToName",
     NameOfLink<&OXMIDicRBOMapping::GetApplyToRBOClass, &OXMIDicRBOMapping::GetApplyToRBOClassName>},
    {"roots", WriteRoots},
};

}  // namespace

void WriteMapping(JsonWriter& json, OXMIDicElement& element) {
    WriteFields(json, *zandic::As<OXMIDicRBOMapping>(element), kMappingFields);
}

void WriteRoot(JsonWriter& json, OXMIDicElementH& object) {
    const auto root = zandic::As<OXMIDicRBORoot>(object);
    BeginNode(json, *root);
    WriteComponents(json, *root);
    json.EndArray();
    json.EndObject();
}

void WriteComponent(JsonWriter& json, OXMIDicElementH& object) {
    const auto component = zandic::As<OXMIDicRBOComponent>(object);
    BeginNode(json, *component);
    WriteComponents(json, *component);
    json.EndArray();
    WriteFields(json, *component, kComponentEndFields);
    json.EndObject();
}

void WritePathExpression(JsonWriter& json, OXMIDicElementH& object) {
    ObjectOf<OXMIDicRBOPathExpression, kPathFields>(json, object);
}

}  // namespace tool::dump
