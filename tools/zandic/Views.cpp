#include "Views.h"

#include <fmt/format.h>

#include "Model.h"
#include "OXMIDicExtension.h"

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

bool HasCategory(OXMIDicElementH& object, OXMIDicElementH& category) {
    for (OXMIDicElementH& each : zandic::All<OXMIDicElementH>(object, &OXMIDicElementH::GetCategories)) {
        if (IsSame(each, category)) return true;
    }
    return false;
}

using Rows = std::vector<std::vector<std::string>>;

void AddUser(const View& view, OXMIDicElementH& user, const std::string& note, Rows& rows) {
    rows.push_back({NameIn(view, user), std::string(TagOf(user)), note});
}

void AddAttributeUsers(const View& view, OXMIDicClass& classElement, OXMIDicElementH& target, Rows& rows) {
    for (OXMIDicAttribute& attribute :
         zandic::All<OXMIDicAttribute>(classElement, &OXMIDicClass::GetClassElements)) {
        if (const auto type = zandic::TypeOf(attribute); type && IsSame(*type, target)) {
            AddUser(view, attribute, ValuesText(attribute), rows);
        }
        if (HasCategory(attribute, target)) AddUser(view, attribute, "", rows);
    }
}

/// Those that refer to \p target from a kind of element that has no attributes.
void AddScopeUsers(const View& view, OXMIDicElement& element, OXMIDicElementH& target, Rows& rows) {
    if (zandic::Kind(element) != OXMDicTYPE_Extension) return;
    const auto extension = zandic::As<OXMIDicExtension>(element);
    for (OXMIDicElementH& scope : zandic::All<OXMIDicElementH>(*extension, &OXMIDicExtension::GetScopes)) {
        if (IsSame(scope, target)) AddUser(view, element, "extends it", rows);
    }
}

void AddParameterUsers(const View& view, OXMIDicElement& element, OXMIDicElementH& target, Rows& rows) {
    if (zandic::Kind(element) != OXMDicTYPE_Interface) return;
    const auto interface = zandic::As<OXMIDicInterface>(element);
    for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(*interface, &OXMIDicInterface::GetMethods)) {
        for (OXMIDicParameter& parameter :
             zandic::All<OXMIDicParameter>(method, &OXMIDicMethod::GetParameters)) {
            const auto type = zandic::TypeOf(parameter);
            if (type && IsSame(*type, target)) {
                AddUser(view, parameter,
                        std::string(WordOf(parameter, &OXMIDicParameter::GetKind, ZANDicFormat::kKindWords)),
                        rows);
            }
        }
    }
}

template <class Object, class Getter>
bool IsLinked(Object& object, Getter getter, OXMIDicElementH& target) {
    const auto linked = zandic::Link(object, getter);
    return linked && IsSame(*linked, target);
}

void AddMappingUsers(const View& view, OXMIDicElement& element, OXMIDicElementH& target, Rows& rows) {
    const auto mapping = zandic::As<OXMIDicRBOMapping>(element);
    if (!mapping) return;
    if (IsLinked(*mapping, &OXMIDicRBOMapping::GetApplyToRBOClass, target)) {
        AddUser(view, element, "applies to it", rows);
    }
    ForEachBelow(*mapping, [&](OXMIDicElement& each, OXMIDicElement&) {
        const auto root = zandic::As<OXMIDicRBORoot>(each);
        const auto component = zandic::As<OXMIDicRBOComponent>(each);
        const auto path = zandic::As<OXMIDicRBOPathExpression>(each);
        if ((root && IsLinked(*root, &OXMIDicRBORoot::GetBaseClass, target)) ||
            (component && IsLinked(*component, &OXMIDicRBOComponent::GetBaseClass, target))) {
            AddUser(view, each, "is based on it", rows);
        } else if (path && IsLinked(*path, &OXMIDicRBOPathExpression::GetTarget, target)) {
            AddUser(view, each, "leads to it", rows);
        }
    });
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
        const std::string package = TextOf(*element, &OXMIDicElement::GetPackageName);
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
    ForEachElement(view.dictionary, [&](OXMIDicElement& element) {
        if (HasCategory(element, target)) AddUser(view, element, "", rows);
        if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
            const auto reference = zandic::Link(*classElement, &OXMIDicClass::GetReference);
            if (reference && IsSame(*reference, target)) AddUser(view, element, "as its reference", rows);
            AddAttributeUsers(view, *classElement, target, rows);
        }
        AddScopeUsers(view, element, target, rows);
        AddParameterUsers(view, element, target, rows);
        AddMappingUsers(view, element, target, rows);
    });
    if (rows.empty()) return;
    view.sheet.Section(fmt::format("Referred to by ({})", rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace tool
