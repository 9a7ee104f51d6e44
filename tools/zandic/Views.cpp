#include "Views.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "Model.h"
#include "References.h"

namespace tool {
namespace {

constexpr std::string_view kUnbounded = "*";

/// Shows the object as \p Interface if it is of that kind.
template <class Interface, void (*kShow)(const View&, Interface&)>
void ShowAs(const View& view, OXMIDicElementH& object) {
    if (const auto typed = zandic::As<Interface>(object)) kShow(view, *typed);
}

struct KindView {
    OXMDicTYPE kind;
    void (*show)(const View& view, OXMIDicElementH& object);
};

constexpr KindView kKindViews[] = {
    {OXMDicTYPE_Package, ShowAs<OXMIDicPackage, ShowPackage>},
    {OXMDicTYPE_Class, ShowAs<OXMIDicClass, ShowClass>},
    {OXMDicTYPE_Extension, ShowAs<OXMIDicClass, ShowClass>},
    {OXMDicTYPE_Simple, ShowAs<OXMIDicAttribute, ShowAttribute>},
    {OXMDicTYPE_Relationship, ShowAs<OXMIDicAttribute, ShowAttribute>},
    {OXMDicTYPE_Inverse, ShowAs<OXMIDicAttribute, ShowAttribute>},
    {OXMDicTYPE_Unique, ShowAs<OXMIDicUnique, ShowUnique>},
    {OXMDicTYPE_Enum, ShowAs<OXMIDicEnum, ShowEnum>},
    {OXMDicTYPE_Enumerator, ShowAs<OXMIDicEnumerator, ShowEnumerator>},
    {OXMDicTYPE_Category, ShowAs<OXMIDicCategory, ShowCategory>},
    {OXMDicTYPE_Interface, ShowAs<OXMIDicInterface, ShowInterface>},
    {OXMDicTYPE_Method, ShowAs<OXMIDicMethod, ShowMethod>},
    {OXMDicTYPE_Parameter, ShowAs<OXMIDicParameter, ShowParameter>},
    {OXMDicTYPE_AttributeBlock, ShowAs<OXMIDicAttributeBlock, ShowBlock>},
    {OXMDicTYPE_RBOClass, ShowAs<OXMIDicRBOClass, ShowRBOClass>},
    {OXMDicTYPE_RBOMapping, ShowAs<OXMIDicRBOMapping, ShowMapping>},
    {OXMDicTYPE_RBORoot, ShowAs<OXMIDicRBORoot, ShowRoot>},
    {OXMDicTYPE_RBOComponent, ShowAs<OXMIDicRBOComponent, ShowComponent>},
    {OXMDicTYPE_RBOPathExpression, ShowAs<OXMIDicRBOPathExpression, ShowPath>},
};

using Rows = std::vector<std::vector<std::string>>;

/// \returns whether a sheet tells of such references in a field of its own.
bool HasField(ReferenceKind kind) {
    constexpr ReferenceKind kKinds[] = {ReferenceKind::Subclass, ReferenceKind::Redefinition,
                                        ReferenceKind::Inverse,  ReferenceKind::Key,
                                        ReferenceKind::Use,      ReferenceKind::ScopeUse};
    return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

/// \returns how it refers: how often an attribute, in which way others.
std::string UserNote(const Reference& reference) {
    switch (reference.kind) {
        case ReferenceKind::Type:
        case ReferenceKind::Target:
            return ValuesText(*zandic::As<OXMIDicAttribute>(reference.from));
        case ReferenceKind::Parameter: {
            const auto parameter = zandic::As<OXMIDicParameter>(reference.from);
            return std::string(WordOf(*parameter, &OXMIDicParameter::GetKind, ZANDicFormat::kKindWords));
        }
        case ReferenceKind::Category:
            return "";
        default:
            return std::string(ReferencePhrase(reference.kind));
    }
}

}  // namespace

void ShowObject(const zandic::Dictionary& dictionary, OXMIDicElementH& object, Output& output) {
    Sheet sheet(output);
    const View view{dictionary, sheet, PackageNameOf(object)};
    for (const KindView& row : kKindViews) {
        if (row.kind == zandic::Kind(object)) row.show(view, object);
    }
}

std::string PackageNameOf(OXMIDicElementH& object) {
    if (const auto element = zandic::As<OXMIDicElement>(object)) {
        std::string package = TextOf(*element, &OXMIDicElement::GetPackageName);
        if (!package.empty()) return package;
    }
    const std::string name = QualifiedName(object);
    return name.substr(0, name.find(kNameSeparator));
}

std::string NameIn(const View& view, OXMIDicElementH& object) {
    std::string name = QualifiedName(object);
    const std::string own = view.package + std::string(kNameSeparator);
    return name.starts_with(own) ? name.substr(own.size()) : name;
}

void ShowIdentity(const View& view, OXMIDicElement& element) {
    view.sheet.Field("UUID", zandic::UuidText(zandic::Uuid(element)).View());
    view.sheet.Field("Alias", TextOf(element, &OXMIDicElement::GetAlias));
    view.sheet.Field("Exposition level", TextOf(element, &OXMIDicElement::GetExpositionLevel));
    view.sheet.Field("Visibility",
                     WordOf(element, &OXMIDicElement::GetVisibility, ZANDicFormat::kVisibilityWords));
}

void ShowExtras(const View& view, OXMIDicElementH& object) {
    view.sheet.Field("Categories",
                     NamesIn(view, zandic::All<OXMIDicElementH>(object, &OXMIDicElementH::GetCategories)));
    for (const auto [name, value] : zandic::FreeAttributes(object)) {
        view.sheet.Field("Free attribute", fmt::format("{} = {}", name, value));
    }
}

std::string QuotedAlias(OXMIDicElement& element) {
    const std::string alias = TextOf(element, &OXMIDicElement::GetAlias);
    return alias.empty() ? alias : fmt::format("\"{}\"", alias);
}

std::string PlainNames(const zandic::List<OXMIDicElementH>& objects) {
    std::vector<std::string> names;
    for (OXMIDicElementH& object : objects) names.emplace_back(zandic::Name(object).View());
    return Joined(names);
}

std::string ValuesText(OXMIDicAttribute& attribute) {
    const bool mandatory = zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory);
    if (!zandic::Flag(attribute, &OXMIDicAttribute::GetMultiValuated)) return mandatory ? "1" : "0..1";
    const int upper = zandic::Get(attribute, &OXMIDicAttribute::GetUpper).value_or(0);
    return fmt::format(
        "{} {}..{}", WordOf(attribute, &OXMIDicAttribute::GetCollectionType, ZANDicFormat::kCollectionWords),
        zandic::Get(attribute, &OXMIDicAttribute::GetLower).value_or(0),
        upper > 0 ? std::to_string(upper) : std::string(kUnbounded));
}

void ShowUsers(const View& view, OXMIDicElementH& target) {
    Rows rows;
    const ZELDbBinary uuid = zandic::Uuid(target);
    ForEachReference(view.dictionary, [&](const Reference& reference) {
        if (zandic::Uuid(reference.to) != uuid || HasField(reference.kind)) return;
        rows.push_back(
            {NameIn(view, reference.from), std::string(TagOf(reference.from)), UserNote(reference)});
    });
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("Referred to by ({})", rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace tool
