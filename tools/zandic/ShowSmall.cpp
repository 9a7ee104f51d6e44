// The sheets of the small kinds: enumerations and their values, unique keys, categories.
#include <fmt/format.h>

#include <algorithm>

#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

/// Title and owner of a member that does not know its owner itself.
void ShowOwned(const View& view, OXMIDicElement& member) {
    const auto owner = OwnerOf(view.dictionary, member);
    const std::string above = owner ? QualifiedName(*owner) : view.package;
    view.sheet.Title(TagOf(member),
                     fmt::format("{}{}{}", above, kNameSeparator, zandic::Name(member).View()));
    ShowIdentity(view, member);
    if (owner) view.sheet.Field("Declared in", NameIn(view, *owner));
}

}  // namespace

void ShowUnique(const View& view, OXMIDicUnique& unique) {
    ShowOwned(view, unique);
    view.sheet.Field("Attributes",
                     NamesIn(view, zandic::All<OXMIDicElementH>(unique, &OXMIDicUnique::GetElements)));
    ShowExtras(view, unique);
}

void ShowEnumerator(const View& view, OXMIDicEnumerator& enumerator) {
    ShowOwned(view, enumerator);
    view.sheet.Field("Value",
                     std::to_string(zandic::Get(enumerator, &OXMIDicEnumerator::GetValue).value_or(0)));
    ShowExtras(view, enumerator);
}

void ShowEnum(const View& view, OXMIDicEnum& enumeration) {
    view.sheet.Title(TagOf(enumeration), QualifiedName(enumeration));
    ShowIdentity(view, enumeration);
    ShowExtras(view, enumeration);

    std::vector<std::vector<std::string>> rows;
    std::size_t valueWidth = 0;
    for (OXMIDicEnumerator& each :
         zandic::All<OXMIDicEnumerator>(enumeration, &OXMIDicEnum::GetEnumerators)) {
        rows.push_back({std::string(zandic::Name(each).View()),
                        std::to_string(zandic::Get(each, &OXMIDicEnumerator::GetValue).value_or(0)),
                        QuotedAlias(each)});
        valueWidth = std::max(valueWidth, rows.back()[1].size());
    }
    for (auto& row : rows) row[1].insert(0, valueWidth - row[1].size(), ' ');
    view.sheet.Section(fmt::format("Enumerators ({})", rows.size()));
    view.sheet.Rows(rows);
    ShowUsers(view, enumeration);
}

void ShowCategory(const View& view, OXMIDicCategory& category) {
    view.sheet.Title(TagOf(category), QualifiedName(category));
    ShowIdentity(view, category);
    view.sheet.Field("Group", TextOf(category, &OXMIDicCategory::GetGroup));
    ShowExtras(view, category);
    ShowUsers(view, category);
}

}  // namespace tool
