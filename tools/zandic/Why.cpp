#include "Why.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "Model.h"
#include "OXMIDicExtension.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "Views.h"
#include "ZANDicWords.h"
#include "ZELEnvironment.h"

namespace tool {
namespace {

namespace format = ZANDicFormat;
namespace word = ZANDicFormat::word;

using Block = zandic::Handle<OXMIDicAttributeBlock>;
using Class = zandic::Handle<OXMIDicClass>;

/// Where the elements of loaded packages stand.
class Sources {
public:
    Sources(const Session& session, Documents& documents) : _Session(session), _Documents(documents) {}

    /// \returns the element with its place: that of an attribute of its tag, or of its "<".
    WhyPlace PlaceOf(OXMIDicElement& element, std::string_view attribute = {}) {
        const std::string package = TextOf(element, &OXMIDicElement::GetPackageName);
        NoteFile(package);
        return {QualifiedName(element), _Documents.PlaceOf(package, zandic::Uuid(element), attribute)};
    }

    /// \returns a block of a tuning document with the place of its list of attributes.
    WhyPlace PlaceOf(OXMIDicAttributeBlock& block) {
        WhyPlace place{QualifiedName(block), {}};
        const Class owner = zandic::Link(block, &OXMIDicAttributeBlock::GetClass);
        if (!owner) return place;
        const std::string package = TextOf(*owner, &OXMIDicElement::GetPackageName);
        const auto file = FindDocument(package, format::kContentWords[OXMDicCONTENT_tuning].word);
        if (!file) return place;
        place.at.file = *file;
        if (const DocumentPlaces* const places = _Documents.Read(*file)) {
            place.at.place = places->PlaceOf(zandic::Uuid(block), word::kAttributeUuids);
        }
        return place;
    }

private:
    std::optional<std::string> FindDocument(const std::string& package, std::string_view content) const {
        const std::string name = _Session.AskedFor(package) + "." + std::string(content);
        return ZELFindPath(_Session.Path(), name);
    }

    /// Finds the document that a package came from: the one that has its UUID.
    void NoteFile(const std::string& package) {
        if (!_Documents.FileOf(package).empty()) return;
        const auto loaded = _Session.Dictionary().Package(package);
        if (!loaded) return;
        for (const format::CodeWord& content : format::kContentWords) {
            if (content.code == OXMDicCONTENT_tuning) continue;
            const auto file = FindDocument(package, content.word);
            const DocumentPlaces* const places = file ? _Documents.Read(*file) : nullptr;
            if (places == nullptr || !places->Find(zandic::Uuid(*loaded))) continue;
            return _Documents.Note(package, *file);
        }
    }

    const Session& _Session;
    Documents& _Documents;
};

std::string TypeName(OXMIDicAttribute& attribute) {
    const auto type = zandic::TypeOf(attribute);
    return type ? QualifiedName(*type) : "none";
}

std::string MaxLength(OXMIDicAttribute& attribute) {
    const int length = zandic::Get(attribute, &OXMIDicAttribute::GetMaxLength).value_or(-1);
    return length == -1 ? "none" : std::to_string(length);
}

std::string Default(OXMIDicAttribute& attribute) {
    const std::string value = TextOf(attribute, &OXMIDicAttribute::GetDefault);
    return value.empty() ? "none" : value;
}

template <auto Getter>
std::string Flag(OXMIDicAttribute& attribute) {
    return std::string(zandic::Flag(attribute, Getter) ? format::value::kYes : format::value::kNo);
}

template <auto Getter, const auto& Words>
std::string Word(OXMIDicAttribute& attribute) {
    return std::string(WordOf(attribute, Getter, Words));
}

std::string AccessMode(OXMIDicAttribute& attribute) {
    return std::string(WordOf(attribute, &OXMIDicAttribute::GetAccessMode, AccessModeWords(attribute)));
}

std::string Aggregation(OXMIDicAttribute& attribute) {
    const auto relation = zandic::As<OXMIDicRelationship>(attribute);
    return std::string(
        WordOf(*relation, &OXMIDicRelationship::GetAggregationMode, format::kAggregationWords));
}

std::string Magnitude(OXMIDicAttribute& attribute) {
    return TextOf(*zandic::As<OXMIDicSimple>(attribute), &OXMIDicSimple::GetMagnitude);
}

/// What a redefinition may make different.
struct Property {
    std::string_view name;
    std::string (*text)(OXMIDicAttribute& attribute);
};
constexpr Property kProperties[] = {
    {"kind", [](OXMIDicAttribute& attribute) { return std::string(TagOf(attribute)); }},
    {"type", TypeName},
    {"values", ValuesText},
    {"mandatory", Flag<&OXMIDicAttribute::GetMandatory>},
    {"maximum length", MaxLength},
    {"default", Default},
    {"access mode", AccessMode},
    {"visibility", Word<&OXMIDicElement::GetVisibility, format::kVisibilityWords>},
    {"update facet", Word<&OXMIDicAttribute::GetUpdateFacet, format::kUpdateFacetWords>},
    {"sensitive", Flag<&OXMIDicAttribute::GetSensitive>},
    {"aggregation", Aggregation},
    {"magnitude", Magnitude},
};

std::vector<WhyChange> ChangesFrom(OXMIDicAttribute& above, OXMIDicAttribute& below) {
    std::vector<WhyChange> changes;
    for (const Property& property : kProperties) {
        WhyChange change{property.name, property.text(above), property.text(below)};
        if (change.before != change.after) changes.push_back(std::move(change));
    }
    return changes;
}

/// Finds out about one attribute.
class Inquiry {
public:
    Inquiry(const Session& session, Documents& documents, OXMIDicClass& owner, OXMIDicAttribute& attribute)
        : _Session(session), _Sources(session, documents), _Owner(owner), _Attribute(attribute) {
        _ABOVE.push_back(Class::Share(&owner));
        for (OXMIDicClass& each : zandic::All<OXMIDicClass>(owner, &OXMIDicClass::GetSuperClasses)) {
            _ABOVE.push_back(Class::Share(&each));
        }
    }

    Why Run() {
        Why why;
        why.tag = TagOf(_Attribute);
        why.owner = _Sources.PlaceOf(_Owner);
        why.attribute = _Sources.PlaceOf(_Attribute);
        AddOrigin(why);
        AddRedefined(why);
        why.block = FindBlock();
        AddExtensions(why);
        AddScopes(why);
        return why;
    }

private:
    void AddOrigin(Why& why) {
        const Class origin = zandic::Link(_Attribute, &OXMIDicAttribute::GetOrigin);
        if (!origin) return;
        why.declaredIn = _Sources.PlaceOf(*origin);
        for (const Class& each : _ABOVE) {
            if (IsSame(*each, *origin)) break;
            if (!IsSame(*each, _Owner)) why.through.push_back(_Sources.PlaceOf(*each));
        }
        const auto extension = zandic::As<OXMIDicExtension>(origin);
        if (!extension || zandic::Kind(*origin) != OXMDicTYPE_Extension) return;
        for (OXMIDicClass& scope : zandic::All<OXMIDicClass>(*extension, &OXMIDicExtension::GetScopes)) {
            why.extends.push_back(_Sources.PlaceOf(scope));
        }
    }

    void AddRedefined(Why& why) {
        // Which attribute redefines which is known once a class was asked for all of them.
        zandic::Attributes(_Owner);
        auto below = zandic::Handle<OXMIDicAttribute>::Share(&_Attribute);
        while (const auto link = zandic::Link(*below, &OXMIDicAttribute::GetSpecializedAttribute)) {
            auto above = zandic::As<OXMIDicAttribute>(link);
            if (!above) break;
            why.redefines.push_back({_Sources.PlaceOf(*above), ChangesFrom(*above, *below)});
            below = std::move(above);
        }
    }

    /// \returns the attribute of that name in a block; null when it holds none.
    zandic::Handle<OXMIDicAttribute> Held(OXMIDicAttributeBlock& block) const {
        const ZELString name = zandic::Name(_Attribute);
        for (OXMIDicAttribute& each : zandic::Attributes(block)) {
            if (zandic::Name(each).View() == name.View())
                return zandic::Handle<OXMIDicAttribute>::Share(&each);
        }
        return {};
    }

    WhyBlock FindBlock() {
        const ZELString name = zandic::Name(_Attribute);
        const auto visible = zandic::All<OXMIDicAttributeBlock>(_Owner, &OXMIDicClass::GetAttBlocks);
        for (OXMIDicAttributeBlock& block : visible) {
            if (const auto held = Held(block)) return DeclaredBlock(block, *held);
        }
        WhyBlock found;
        found.owner = QualifiedName(_Owner);
        Block made;
        const bool isDefault = Succeeded(_Owner.GetCBlockForAtt(&name, 1, made.Out())) && made;
        found.kind = isDefault ? WhyBlock::Kind::Default : WhyBlock::Kind::None;
        const std::string_view blocks =
            visible.IsEmpty() ? "the class sees no block" : "no block that the class sees lists it";
        if (isDefault) {
            found.reason = fmt::format("{}, and it has one value", blocks);
        } else if (zandic::Kind(_Attribute) == OXMDicTYPE_Inverse) {
            found.reason = fmt::format("{}, and default blocks hold no inverses", blocks);
        } else if (zandic::Flag(_Attribute, &OXMIDicAttribute::GetMultiValuated)) {
            found.reason = fmt::format("{}, and default blocks hold nothing that has several values", blocks);
        } else {
            found.reason = blocks;
        }
        return found;
    }

    WhyBlock DeclaredBlock(OXMIDicAttributeBlock& visible, OXMIDicAttribute& held) {
        WhyBlock found;
        found.kind = WhyBlock::Kind::Declared;
        found.name = zandic::Name(visible).View();
        const Class owner = zandic::Link(visible, &OXMIDicAttributeBlock::GetClass);
        if (owner) found.owner = QualifiedName(*owner);
        found.listedAs = QualifiedName(held);
        // A block also holds what its father holds: the last father that holds the attribute lists it.
        Block block = Block::Share(&visible);
        found.chain.push_back(_Sources.PlaceOf(*block));
        while (Block father = zandic::Link(*block, &OXMIDicAttributeBlock::GetFather)) {
            const auto above = Held(*father);
            if (!above || !IsSame(*above, held)) break;
            found.chain.push_back(_Sources.PlaceOf(*father));
            block = std::move(father);
        }
        found.listed = found.chain.back();
        found.reason = "a tuning document lists it";
        return found;
    }

    /// \returns whether the class that was asked for is \p element or below it.
    bool IsBelow(OXMIDicElementH& element) const {
        return std::any_of(_ABOVE.begin(), _ABOVE.end(),
                           [&](const Class& each) { return IsSame(*each, element); });
    }

    void AddExtensions(Why& why) {
        ForEachClass(_Session.Dictionary(), [&](OXMIDicClass& each) {
            if (zandic::Kind(each) != OXMDicTYPE_Extension) return;
            const auto extension = zandic::As<OXMIDicExtension>(each);
            for (OXMIDicClass& scope : zandic::All<OXMIDicClass>(*extension, &OXMIDicExtension::GetScopes)) {
                if (!IsBelow(scope)) continue;
                why.extensions.push_back({_Sources.PlaceOf(each), QualifiedName(scope)});
                return;
            }
        });
    }

    void AddScopes(Why& why) {
        if (zandic::Kind(_Attribute) != OXMDicTYPE_Relationship) return;
        const auto relation = zandic::As<OXMIDicRelationship>(_Attribute);
        const bool isExtension = zandic::Kind(_Owner) == OXMDicTYPE_Extension;
        why.scopeWord = WordOf(*relation, &OXMIDicRelationship::GetScope, format::kScopeWords);
        for (OXMIDicElement& scope :
             zandic::All<OXMIDicElement>(*relation, &OXMIDicRelationship::GetScopes)) {
            WhyScope& row = why.scopes.emplace_back();
            row.of = _Sources.PlaceOf(scope);
            if (!isExtension) row.covers = IsBelow(scope);
        }
    }

    const Session& _Session;
    Sources _Sources;
    OXMIDicClass& _Owner;
    OXMIDicAttribute& _Attribute;
    std::vector<Class> _ABOVE;  ///< the class that was asked for, and those above it, the nearest first
};

}  // namespace

Why FindOutWhy(const Session& session, Documents& documents, OXMIDicClass& owner,
               OXMIDicAttribute& attribute) {
    return Inquiry(session, documents, owner, attribute).Run();
}

}  // namespace tool
