#include <fmt/format.h>

#include <map>

#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
using Rows = std::vector<std::vector<std::string>>;

std::string Note(std::vector<std::string> parts) {
    std::erase(parts, "");
    return Joined(parts);
}

std::vector<std::string> ClassRow(const View& view, OXMIDicElement& element) {
    const auto classElement = zandic::As<OXMIDicClass>(element);
    const auto superClass = zandic::Link(*classElement, &OXMIDicClass::GetSuperClass);
    const int own = zandic::All<OXMIDicElement>(*classElement, &OXMIDicClass::GetClassElements).Size();
    return {std::string(zandic::Name(element).View()), superClass ? "is a " + NameIn(view, *superClass) : "",
            Note({zandic::Flag(*classElement, &OXMIDicClass::GetAbstract) ? "abstract" : "",
                  Counted(static_cast<std::size_t>(own), "attribute", "attributes"), QuotedAlias(element)})};
}

std::vector<std::string> EnumRow(const View&, OXMIDicElement& element) {
    const auto enumeration = zandic::As<OXMIDicEnum>(element);
    std::vector<std::string> values;
    for (OXMIDicEnumerator& each :
         zandic::All<OXMIDicEnumerator>(*enumeration, &OXMIDicEnum::GetEnumerators)) {
        values.emplace_back(zandic::Name(each).View());
    }
    return {std::string(zandic::Name(element).View()), Joined(values)};
}

std::vector<std::string> CategoryRow(const View&, OXMIDicElement& element) {
    const std::string group = TextOf(*zandic::As<OXMIDicCategory>(element), &OXMIDicCategory::GetGroup);
    return {std::string(zandic::Name(element).View()),
            Note({group.empty() ? "" : "group " + group, QuotedAlias(element)})};
}

/// The sections of the sheet, in their order.
struct SectionOfTag {
    std::string_view tag;
    std::string_view heading;
    std::vector<std::string> (*row)(const View& view, OXMIDicElement& element);
};
constexpr SectionOfTag kSections[] = {
    {tag::kClass, "Classes", ClassRow},          {tag::kInstance, "Instances", ClassRow},
    {tag::kExtension, "Extensions", ClassRow},   {tag::kEnum, "Enumerations", EnumRow},
    {tag::kCategory, "Categories", CategoryRow},
};

using Getter = HRESULT (OXMIDicPackage::*)(ZELListPtrIUnknown*);

/// \returns the loaded packages that have \p package in the list of \p getter.
std::vector<std::string> PackagesWith(const View& view, OXMIDicPackage& package, Getter getter) {
    std::vector<std::string> names;
    ForEachPackage(view.dictionary, [&](OXMIDicPackage& each) {
        for (OXMIDicPackage& used : zandic::All<OXMIDicPackage>(each, getter)) {
            if (IsSame(used, package)) names.emplace_back(zandic::Name(each).View());
        }
    });
    return names;
}

void ShowFields(const View& view, OXMIDicPackage& package) {
    Sheet& sheet = view.sheet;
    sheet.Field("UUID", zandic::UuidText(zandic::Uuid(package)).View());
    sheet.Field("Alias", TextOf(package, &OXMIDicPackage::GetAlias));
    sheet.Field("Exposition level", TextOf(package, &OXMIDicPackage::GetExpositionLevel));
    sheet.Field("Domain", TextOf(package, &OXMIDicPackage::GetDomain));
    sheet.Field("Uses",
                NamesIn(view, zandic::All<OXMIDicPackage>(package, &OXMIDicPackage::GetUsedPackages)));
    sheet.Field("Uses scopes of",
                NamesIn(view, zandic::All<OXMIDicPackage>(package, &OXMIDicPackage::GetScopePackages)));
    sheet.Field("Used by", PackagesWith(view, package, &OXMIDicPackage::GetUsedPackages));
    sheet.Field("Scopes used by", PackagesWith(view, package, &OXMIDicPackage::GetScopePackages));
    ShowExtras(view, package);
}

}  // namespace

void ShowPackage(const View& view, OXMIDicPackage& package) {
    view.sheet.Title(TagOf(package), zandic::Name(package).View());
    ShowFields(view, package);

    std::map<std::string_view, Rows> rowsByTag;
    for (OXMIDicElement& element : zandic::All<OXMIDicElement>(package, &OXMIDicPackage::GetElements)) {
        for (const SectionOfTag& section : kSections) {
            if (section.tag == TagOf(element)) rowsByTag[section.tag].push_back(section.row(view, element));
        }
    }
    for (const SectionOfTag& section : kSections) {
        const Rows& rows = rowsByTag[section.tag];
        if (rows.empty()) continue;
        view.sheet.Section(fmt::format("{} ({})", section.heading, rows.size()));
        view.sheet.Rows(rows);
    }
}

}  // namespace tool
