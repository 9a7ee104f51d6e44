#include <fmt/format.h>

#include <string>
#include <unordered_map>

#include "AttributeText.h"
#include "Model.h"
#include "OXMIDicExtension.h"
#include "OXMIDicRelationship.h"
#include "Views.h"
#include "ZELHash.h"

namespace tool {
namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string FlagsText(OXMIDicClass& classElement) {
    std::vector<std::string> flags;
    const bool persistent = zandic::Flag(classElement, &OXMIDicClass::GetPersistent);
    flags.emplace_back(persistent ? "persistent" : "not persistent");
    if (zandic::Flag(classElement, &OXMIDicClass::GetAbstract)) flags.emplace_back("abstract");
    if (zandic::Flag(classElement, &OXMIDicClass::GetExtensible)) {
        const bool own = zandic::Get(classElement, &OXMIDicClass::GetClassExtensible).has_value();
        flags.emplace_back(own ? "extensible" : "extensible (inherited)");
    }
    return Joined(flags);
}

/// \returns the classes that an extension extends; of a class, none.
std::vector<std::string> ScopesOf(const View& view, OXMIDicClass& classElement) {
    if (zandic::Kind(classElement) != OXMDicTYPE_Extension) return {};
    const auto extension = zandic::As<OXMIDicExtension>(classElement);
    return NamesIn(view, zandic::All<OXMIDicClass>(*extension, &OXMIDicExtension::GetScopes));
}

std::string DerivableText(OXMIDicClass& classElement) {
    const std::string_view own =
        WordOf(classElement, &OXMIDicClass::GetClassKVADerivable, ZANDicFormat::kKVADerivableWords);
    if (!own.empty()) return std::string(own);
    const std::string_view inherited =
        WordOf(classElement, &OXMIDicClass::GetKVADerivable, ZANDicFormat::kKVADerivableWords);
    return inherited.empty() ? "" : fmt::format("{} (inherited)", inherited);
}

void AddRelationNotes(const View& view, OXMIDicRelationship& relation, std::vector<std::string>& notes) {
    if (zandic::Kind(relation) != OXMDicTYPE_Relationship) return;
    if (zandic::Get(relation, &OXMIDicRelationship::GetAggregationMode) == OXMDicAGGREGATION_Composition) {
        notes.emplace_back("composition");
    }
    if (zandic::Flag(relation, &OXMIDicRelationship::GetInjective)) notes.emplace_back("injective");
    const auto inverses = zandic::All<OXMIDicElementH>(relation, &OXMIDicRelationship::GetInvertedAttributes);
    if (!inverses.IsEmpty()) notes.push_back("inverse " + Joined(NamesIn(view, inverses)));
}

std::string NotesOf(const View& view, OXMIDicAttribute& attribute) {
    std::vector<std::string> notes;
    if (const auto redefined = zandic::Link(attribute, &OXMIDicAttribute::GetSpecializedAttribute)) {
        notes.push_back("redefines " + NameIn(view, *redefined));
    }
    if (zandic::Kind(attribute) != OXMDicTYPE_Simple) {
        AddRelationNotes(view, *zandic::As<OXMIDicRelationship>(attribute), notes);
    }
    if (zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated) &&
        zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory)) {
        notes.emplace_back("mandatory");
    }
    const std::string value = TextOf(attribute, &OXMIDicAttribute::GetDefault);
    if (!value.empty()) notes.push_back("default " + value);
    if (zandic::Flag(attribute, &OXMIDicAttribute::GetSensitive)) notes.emplace_back("sensitive");
    const auto visibility = zandic::Get(attribute, &OXMIDicAttribute::GetVisibility);
    if (visibility == OXMDicVISIBILITY_Protected) notes.emplace_back("protected");
    if (visibility == OXMDicVISIBILITY_Private) notes.emplace_back("private");
    return Joined(notes);
}

std::vector<std::string> AttributeRow(const View& view, OXMIDicAttribute& attribute) {
    return {std::string(zandic::Name(attribute).View()), AttributeTypeText(view, attribute),
            ValuesText(attribute), NotesOf(view, attribute)};
}

/// Attributes that the same class declares, one section each: the root's first, the own ones last.
struct Origin {
    std::string name;
    Rows rows;
};

void ShowInherited(const View& view, OXMIDicClass& classElement) {
    std::vector<Origin> origins;
    std::unordered_map<std::string, std::size_t, ZELTextHash> places;  // of the origins, by name
    for (OXMIDicAttribute& attribute :
         zandic::All<OXMIDicAttribute>(classElement, &OXMIDicClass::GetAllElements)) {
        const auto origin = zandic::Link(attribute, &OXMIDicAttribute::GetOrigin);
        if (!origin || IsSame(*origin, classElement)) continue;
        const std::string name = NameIn(view, *origin);
        const auto [place, isNew] = places.try_emplace(name, origins.size());
        if (isNew) origins.push_back({name, {}});
        origins[place->second].rows.push_back(AttributeRow(view, attribute));
    }
    for (const Origin& origin : origins) {
        view.sheet.Section(fmt::format("Attributes inherited from {} ({})", origin.name, origin.rows.size()));
        view.sheet.Rows(origin.rows);
    }
}

void ShowOwn(const View& view, OXMIDicClass& classElement) {
    Rows rows;
    for (OXMIDicAttribute& attribute :
         zandic::All<OXMIDicAttribute>(classElement, &OXMIDicClass::GetClassElements)) {
        rows.push_back(AttributeRow(view, attribute));
    }
    view.sheet.Section(fmt::format("Own attributes ({})", rows.size()));
    view.sheet.Rows(rows);
}

void AddKeys(OXMIDicClass& classElement, const std::string& origin, Rows& rows) {
    for (OXMIDicUnique& unique : zandic::All<OXMIDicUnique>(classElement, &OXMIDicClass::GetUniques)) {
        rows.push_back({std::string(zandic::Name(unique).View()),
                        PlainNames(zandic::All<OXMIDicElementH>(unique, &OXMIDicUnique::GetElements)),
                        origin});
    }
}

void ShowKeys(const View& view, OXMIDicClass& classElement) {
    Rows rows;
    AddKeys(classElement, "", rows);
    for (OXMIDicClass& above : zandic::All<OXMIDicClass>(classElement, &OXMIDicClass::GetSuperClasses)) {
        AddKeys(above, "from " + NameIn(view, above), rows);
    }
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("Unique keys ({})", rows.size()));
    view.sheet.Rows(rows);
}

void ShowInjectives(const View& view, OXMIDicClass& classElement) {
    Rows rows;
    for (OXMIDicAttribute& attribute :
         zandic::All<OXMIDicAttribute>(classElement, &OXMIDicClass::GetInjectivesPointingOnMe)) {
        const auto target = zandic::TypeOf(attribute);
        const bool direct = target && IsSame(*target, classElement);
        rows.push_back({NameIn(view, attribute), ValuesText(attribute),
                        direct || !target ? "" : "through " + NameIn(view, *target)});
    }
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("Injective relationships that point here ({})", rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace

void ShowClass(const View& view, OXMIDicClass& classElement) {
    Sheet& sheet = view.sheet;
    sheet.Title(TagOf(classElement), QualifiedName(classElement));
    ShowIdentity(view, classElement);
    sheet.Field("Super classes",
                NamesIn(view, zandic::All<OXMIDicClass>(classElement, &OXMIDicClass::GetSuperClasses)));
    sheet.Field("Subclasses",
                NamesIn(view, zandic::All<OXMIDicClass>(classElement, &OXMIDicClass::GetSubClasses)));
    if (const auto reference = zandic::Link(classElement, &OXMIDicClass::GetReference)) {
        sheet.Field("Reference", NameIn(view, *reference));
    }
    sheet.Field("Extends", ScopesOf(view, classElement));
    sheet.Field("Flags", FlagsText(classElement));
    sheet.Field("KVA derivable", DerivableText(classElement));
    sheet.Field("Late type", TextOf(classElement, &OXMIDicClass::GetLateType));
    sheet.Field("Application name", TextOf(classElement, &OXMIDicClass::GetApplicationName));
    ShowExtras(view, classElement);

    ShowOwn(view, classElement);
    ShowInherited(view, classElement);
    ShowKeys(view, classElement);
    ShowVisibleBlocks(view, classElement);
    ShowUsers(view, classElement);
    ShowInjectives(view, classElement);
}

}  // namespace tool
