#include "ClassGraph.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "Model.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInverse.h"
#include "OXMIDicRelationship.h"

namespace tool {
namespace {

using Kind = GraphAttribute::Kind;

constexpr std::string_view kUnbounded = "*";

Kind KindOf(OXMIDicAttribute& attribute) {
    switch (zandic::Kind(attribute)) {
        case OXMDicTYPE_Relationship:
            return Kind::Relationship;
        case OXMDicTYPE_Inverse:
            return Kind::Inverse;
        default:
            return Kind::Simple;
    }
}

/// \returns how many values there are, the kind of collection aside.
std::string CountOf(OXMIDicAttribute& attribute) {
    const bool isMandatory = zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory);
    if (!zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated)) return isMandatory ? "1" : "0..1";
    const int lower =
        std::max(zandic::Get(attribute, &OXMIDicAttribute::GetLower).value_or(0), isMandatory ? 1 : 0);
    const int upper = zandic::Get(attribute, &OXMIDicAttribute::GetUpper).value_or(0);
    if (upper == lower && upper > 0) return std::to_string(upper);
    return fmt::format("{}..{}", lower, upper > 0 ? std::to_string(upper) : std::string(kUnbounded));
}

void SortOnce(std::vector<int>& numbers) {
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

std::vector<int> ScopesOf(OXMIDicClass& element, const ClassGraph& graph) {
    std::vector<int> scopes;
    const auto extension = zandic::As<OXMIDicExtension>(element);
    if (!extension) return scopes;
    for (OXMIDicClass& scope : zandic::All<OXMIDicClass>(*extension, &OXMIDicExtension::GetScopes)) {
        if (const int index = graph.IndexOf(scope); index >= 0) scopes.push_back(index);
    }
    SortOnce(scopes);
    return scopes;
}

/// \returns the scopes of an extension without those that it has from the extension above it.
std::vector<int> OwnScopesOf(OXMIDicClass& element, const ClassGraph& graph) {
    std::vector<int> own = ScopesOf(element, graph);
    if (const auto super = zandic::Link(element, &OXMIDicClass::GetSuperClass)) {
        const std::vector<int> above = ScopesOf(*super, graph);
        std::erase_if(own, [&](int scope) { return std::binary_search(above.begin(), above.end(), scope); });
    }
    return own;
}

/// Where the attribute of a UUID stands.
struct AttributePlace {
    int classIndex;
    int attribute;
};

}  // namespace

ClassGraph::ClassGraph(const zandic::Dictionary& dictionary) {
    ForEachClass(dictionary, [&](OXMIDicClass& each) {
        _PLACES.emplace(zandic::Uuid(each), static_cast<int>(_PLACES.size()));
    });
    _CLASSES.resize(_PLACES.size());
    std::size_t index = 0;
    ForEachClass(dictionary, [&](OXMIDicClass& each) { ReadClass(each, _CLASSES[index++]); });
    JoinInverses(dictionary);
    JoinNeighbours();
}

int ClassGraph::IndexOf(OXMIDicClass& element) const {
    const auto found = _PLACES.find(zandic::Uuid(element));
    return found != _PLACES.end() ? found->second : -1;
}

void ClassGraph::ReadClass(OXMIDicClass& element, GraphClass& read) {
    read.package = TextOf(element, &OXMIDicElement::GetPackageName);
    read.name = zandic::Name(element).View();
    read.isAbstract = zandic::Flag(element, &OXMIDicClass::GetAbstract);
    if (zandic::Flag(element, &OXMIDicClass::GetInstance)) read.form = GraphClass::Form::Instance;
    if (const auto reference = zandic::Link(element, &OXMIDicClass::GetReference)) {
        read.reference = IndexOf(*reference);
    }
    if (const auto super = zandic::Link(element, &OXMIDicClass::GetSuperClass))
        read.superClass = IndexOf(*super);
    if (zandic::Kind(element) == OXMDicTYPE_Extension) {
        read.form = GraphClass::Form::Extension;
        read.scopes = OwnScopesOf(element, *this);
    }
    for (OXMIDicAttribute& attribute : zandic::OwnAttributes(element)) {
        GraphAttribute& row = read.attributes.emplace_back();
        row.name = zandic::Name(attribute).View();
        row.values = CountOf(attribute);
        row.kind = KindOf(attribute);
        row.isMandatory = zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory);
        const auto type = zandic::TypeOf(attribute);
        row.type = type ? zandic::Name(*type).View() : std::string_view("?");
        if (row.kind == Kind::Simple) continue;
        if (const auto target = type ? zandic::As<OXMIDicClass>(*type) : zandic::Handle<OXMIDicClass>()) {
            row.target = IndexOf(*target);
        }
        const auto relation = zandic::As<OXMIDicRelationship>(attribute);
        row.isComposition =
            row.kind == Kind::Relationship &&
            zandic::Get(*relation, &OXMIDicRelationship::GetAggregationMode) == OXMDicAGGREGATION_Composition;
    }
}

void ClassGraph::JoinInverses(const zandic::Dictionary& dictionary) {
    std::map<ZELDbBinary, AttributePlace> relationships;
    std::vector<std::pair<AttributePlace, ZELDbBinary>> inverses;
    int index = 0;
    ForEachClass(dictionary, [&](OXMIDicClass& each) {
        int place = 0;
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(each)) {
            if (zandic::Kind(attribute) == OXMDicTYPE_Relationship) {
                relationships.emplace(zandic::Uuid(attribute), AttributePlace{index, place});
            } else if (zandic::Kind(attribute) == OXMDicTYPE_Inverse) {
                const auto inverse = zandic::As<OXMIDicInverse>(attribute);
                if (const auto of = zandic::Link(*inverse, &OXMIDicInverse::GetInverse)) {
                    inverses.push_back({{index, place}, zandic::Uuid(*of)});
                }
            }
            ++place;
        }
        ++index;
    });
    const auto at = [this](const AttributePlace& place) -> GraphAttribute& {
        return _CLASSES[static_cast<std::size_t>(place.classIndex)]
            .attributes[static_cast<std::size_t>(place.attribute)];
    };
    for (const auto& [place, uuid] : inverses) {
        const auto found = relationships.find(uuid);
        if (found == relationships.end()) continue;
        GraphAttribute& inverse = at(place);
        GraphAttribute& relationship = at(found->second);
        inverse.otherClass = found->second.classIndex;
        inverse.otherAttribute = found->second.attribute;
        if (relationship.otherClass >= 0) continue;
        relationship.otherClass = place.classIndex;
        relationship.otherAttribute = place.attribute;
    }
}

std::vector<int> ClassGraph::Named(int index) const {
    const GraphClass& from = (*this)[index];
    std::vector<int> named = from.scopes;
    if (from.superClass >= 0) named.push_back(from.superClass);
    if (from.reference >= 0) named.push_back(from.reference);
    for (const GraphAttribute& attribute : from.attributes) {
        if (attribute.target >= 0) named.push_back(attribute.target);
    }
    SortOnce(named);
    named.erase(std::remove(named.begin(), named.end(), index), named.end());
    return named;
}

void ClassGraph::JoinNeighbours() {
    _NEIGHBOURS.resize(_CLASSES.size());
    for (int index = 0; index < Size(); ++index) {
        for (const int other : Named(index)) {
            _NEIGHBOURS[static_cast<std::size_t>(index)].push_back(other);
            _NEIGHBOURS[static_cast<std::size_t>(other)].push_back(index);
        }
    }
    for (std::vector<int>& neighbours : _NEIGHBOURS) SortOnce(neighbours);
}

}  // namespace tool
