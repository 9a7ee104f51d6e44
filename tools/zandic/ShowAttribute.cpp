#include <fmt/format.h>

#include "Model.h"
#include "OXMIDicInverse.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "Views.h"

namespace tool {
namespace {

namespace format = ZANDicFormat;

std::string YesNo(bool flag) { return std::string(flag ? format::value::kYes : format::value::kNo); }

std::string TypeText(const View& view, OXMIDicAttribute& attribute) {
    const auto type = zandic::TypeOf(attribute);
    if (!type) return "none";
    if (zandic::As<OXMIDicPrimitive>(type)) return std::string(zandic::Name(*type).View());
    return fmt::format("{} {}", TagOf(*type), NameIn(view, *type));
}

std::string CollectionText(OXMIDicAttribute& attribute) {
    if (!zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated)) return YesNo(false);
    return fmt::format("{}, {} with lower bound {} and upper bound {}", YesNo(true),
                       WordOf(attribute, &OXMIDicAttribute::GetCollectionType, format::kCollectionWords),
                       zandic::Get(attribute, &OXMIDicAttribute::GetLower).value_or(0),
                       zandic::Get(attribute, &OXMIDicAttribute::GetUpper).value_or(0));
}

std::string MaxLengthText(OXMIDicAttribute& attribute) {
    const int maxLength = zandic::Get(attribute, &OXMIDicAttribute::GetMaxLength).value_or(-1);
    return maxLength == -1 ? "" : std::to_string(maxLength);
}

void ShowSimpleFields(const View& view, OXMIDicSimple& simple) {
    view.sheet.Field("Case mode", WordOf(simple, &OXMIDicSimple::GetCaseMode, format::kCaseModeWords));
    view.sheet.Field("Magnitude", TextOf(simple, &OXMIDicSimple::GetMagnitude));
    view.sheet.Field("Database format", TextOf(simple, &OXMIDicSimple::GetDBFormat));
}

void ShowRelationFields(const View& view, OXMIDicRelationship& relation) {
    view.sheet.Field("Aggregation",
                     WordOf(relation, &OXMIDicRelationship::GetAggregationMode, format::kAggregationWords));
    view.sheet.Field("Injective", YesNo(zandic::Flag(relation, &OXMIDicRelationship::GetInjective)));
    view.sheet.Field("Scope", WordOf(relation, &OXMIDicRelationship::GetScope, format::kScopeWords));
    view.sheet.Field("Applies to",
                     NamesIn(view, zandic::All<OXMIDicElementH>(relation, &OXMIDicRelationship::GetScopes)));
}

/// The other side of a relationship or inverse.
void ShowOtherSide(const View& view, OXMIDicAttribute& attribute) {
    if (zandic::Kind(attribute) == OXMDicTYPE_Relationship) {
        const auto relationship = zandic::As<OXMIDicRelationship>(attribute);
        view.sheet.Field("Inverted by",
                         NamesIn(view, zandic::All<OXMIDicElementH>(
                                           *relationship, &OXMIDicRelationship::GetInvertedAttributes)));
    } else if (zandic::Kind(attribute) == OXMDicTYPE_Inverse) {
        const auto inverse = zandic::As<OXMIDicInverse>(attribute);
        const auto of = zandic::Link(*inverse, &OXMIDicInverse::GetInverse);
        view.sheet.Field("Inverse of", of ? NameIn(view, *of) : "");
    }
}

/// What became of an attribute in the classes below the one that declares it.
struct Heirs {
    std::vector<std::string> inherit;   ///< classes that have it as it is
    std::vector<std::string> redefine;  ///< attributes that stand in its place
};

Heirs HeirsOf(const View& view, OXMIDicAttribute& attribute) {
    Heirs heirs;
    const auto origin = zandic::Link(attribute, &OXMIDicAttribute::GetOrigin);
    if (!origin) return heirs;
    const ZELString name = zandic::Name(attribute);
    // Not recursive: the depth of a hierarchy is its author's choice.
    std::vector<zandic::Handle<OXMIDicClass>> pending{origin};
    while (!pending.empty()) {
        const auto above = std::move(pending.back());
        pending.pop_back();
        for (OXMIDicClass& below : zandic::All<OXMIDicClass>(*above, &OXMIDicClass::GetSubClasses)) {
            if (const auto own = zandic::Find(below, &OXMIDicClass::GetClassElement, name.View())) {
                heirs.redefine.push_back(NameIn(view, *own));
            } else {
                heirs.inherit.push_back(NameIn(view, below));
                pending.push_back(zandic::Handle<OXMIDicClass>::Share(&below));
            }
        }
    }
    return heirs;
}

/// \returns the unique keys of all classes that the attribute is part of.
std::vector<std::string> KeysWith(const View& view, OXMIDicAttribute& attribute) {
    std::vector<std::string> keys;
    ForEachClass(view.dictionary, [&](OXMIDicClass& classElement) {
        for (OXMIDicUnique& unique : zandic::All<OXMIDicUnique>(classElement, &OXMIDicClass::GetUniques)) {
            for (OXMIDicElementH& part : zandic::All<OXMIDicElementH>(unique, &OXMIDicUnique::GetElements)) {
                if (!IsSame(part, attribute)) continue;
                keys.push_back(fmt::format("{}{}{}", NameIn(view, classElement), kNameSeparator,
                                           zandic::Name(unique).View()));
            }
        }
    });
    return keys;
}

void ShowLinks(const View& view, OXMIDicAttribute& attribute) {
    Sheet& sheet = view.sheet;
    const auto origin = zandic::Link(attribute, &OXMIDicAttribute::GetOrigin);
    sheet.Field("Declared in", origin ? NameIn(view, *origin) : "");
    sheet.Field("Type", TypeText(view, attribute));
    ShowOtherSide(view, attribute);
    const auto redefined = zandic::Link(attribute, &OXMIDicAttribute::GetSpecializedAttribute);
    sheet.Field("Redefines", redefined ? NameIn(view, *redefined) : "");
    const Heirs heirs = HeirsOf(view, attribute);
    sheet.Field("Redefined by", heirs.redefine);
    sheet.Field("Inherited by", heirs.inherit);
    sheet.Field("In unique keys", KeysWith(view, attribute));
}

}  // namespace

void ShowAttribute(const View& view, OXMIDicAttribute& attribute) {
    Sheet& sheet = view.sheet;
    sheet.Title(TagOf(attribute), QualifiedName(attribute));
    ShowIdentity(view, attribute);
    ShowLinks(view, attribute);
    sheet.Field("Values", ValuesText(attribute));
    sheet.Field("Mandatory", YesNo(zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory)));
    sheet.Field("Multi-valued", CollectionText(attribute));
    sheet.Field("Maximum length", MaxLengthText(attribute));
    sheet.Field("Default", TextOf(attribute, &OXMIDicAttribute::GetDefault));
    sheet.Field("Access mode",
                WordOf(attribute, &OXMIDicAttribute::GetAccessMode, AccessModeWords(attribute)));
    sheet.Field("Update facet",
                WordOf(attribute, &OXMIDicAttribute::GetUpdateFacet, format::kUpdateFacetWords));
    sheet.Field("Sensitive", YesNo(zandic::Flag(attribute, &OXMIDicAttribute::GetSensitive)));
    if (zandic::Kind(attribute) == OXMDicTYPE_Simple) {
        ShowSimpleFields(view, *zandic::As<OXMIDicSimple>(attribute));
    } else {
        ShowRelationFields(view, *zandic::As<OXMIDicRelationship>(attribute));
    }
    ShowExtras(view, attribute);
    ShowUsers(view, attribute);
}

}  // namespace tool
