// The sheets of the RBO kinds.
#include <fmt/format.h>

#include "Model.h"
#include "Views.h"

namespace tool {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// \returns the name of what a getter hands out, without the package of the view, else the stored text.
template <class Object, class Getter, class TextGetter>
std::string LinkedIn(const View& view, Object& object, Getter getter, TextGetter textGetter) {
    if (const auto linked = zandic::Link(object, getter)) return NameIn(view, *linked);
    return TextOf(object, textGetter);
}

template <class Node>
std::string BaseClassOf(const View& view, Node& node) {
    return LinkedIn(view, node, &Node::GetBaseClass, &Node::GetBaseClassName);
}

std::string TargetOf(const View& view, OXMIDicRBOPathExpression& path) {
    return LinkedIn(view, path, &OXMIDicRBOPathExpression::GetTarget,
                    &OXMIDicRBOPathExpression::GetTargetName);
}

/// \returns type, sub-type and target in one line; empty without a path expression.
std::string PathText(const View& view, OXMIDicRBOComponent& component) {
    const auto path = zandic::Link(component, &OXMIDicRBOComponent::GetRBOPathExpression);
    if (!path) return "";
    std::vector<std::string> parts{TextOf(*path, &OXMIDicRBOPathExpression::GetPathExprType),
                                   TextOf(*path, &OXMIDicRBOPathExpression::GetPathExprSubType)};
    std::erase(parts, "");
    const std::string target = TargetOf(view, *path);
    return fmt::format("{}{}-> {}", fmt::join(parts, " "), parts.empty() ? "" : " ",
                       target.empty() ? "?" : target);
}

template <class Node>
std::vector<std::string> NodeRow(const View& view, Node& node, const std::string& note) {
    const std::string base = BaseClassOf(view, node);
    const int below = ComponentsOf(node).Size();
    std::vector<std::string> notes{
        note, below == 0 ? "" : Counted(static_cast<std::size_t>(below), "component", "components"),
        QuotedAlias(node)};
    std::erase(notes, "");
    return {std::string(zandic::Name(node).View()), base.empty() ? "" : "on " + base, Joined(notes)};
}

template <class Node>
void ShowComponents(const View& view, Node& owner) {
    Rows rows;
    for (OXMIDicRBOComponent& component : ComponentsOf(owner)) {
        rows.push_back(NodeRow(view, component, PathText(view, component)));
    }
    view.sheet.Section(fmt::format("Components ({})", rows.size()));
    view.sheet.Rows(rows);
}

}  // namespace

std::string AppliesTo(const View& view, OXMIDicRBOMapping& mapping) {
    return LinkedIn(view, mapping, &OXMIDicRBOMapping::GetApplyToRBOClass,
                    &OXMIDicRBOMapping::GetApplyToRBOClassName);
}

void ShowRBOClass(const View& view, OXMIDicRBOClass& rboClass) {
    view.sheet.Title(TagOf(rboClass), QualifiedName(rboClass));
    ShowIdentity(view, rboClass);
    ShowExtras(view, rboClass);
    ShowUsers(view, rboClass);
}

void ShowMapping(const View& view, OXMIDicRBOMapping& mapping) {
    view.sheet.Title(TagOf(mapping), QualifiedName(mapping));
    ShowIdentity(view, mapping);
    view.sheet.Field("Applies to", AppliesTo(view, mapping));
    ShowExtras(view, mapping);
    Rows rows;
    for (OXMIDicRBORoot& root : zandic::All<OXMIDicRBORoot>(mapping, &OXMIDicRBOMapping::GetElements)) {
        rows.push_back(NodeRow(view, root, ""));
    }
    view.sheet.Section(fmt::format("Roots ({})", rows.size()));
    view.sheet.Rows(rows);
    ShowUsers(view, mapping);
}

void ShowRoot(const View& view, OXMIDicRBORoot& root) {
    ShowOwned(view, root);
    view.sheet.Field("Base class", BaseClassOf(view, root));
    ShowExtras(view, root);
    ShowComponents(view, root);
    ShowUsers(view, root);
}

void ShowComponent(const View& view, OXMIDicRBOComponent& component) {
    ShowOwned(view, component);
    view.sheet.Field("Base class", BaseClassOf(view, component));
    view.sheet.Field("Validity rule", TextOf(component, &OXMIDicRBOComponent::GetValidityRule));
    view.sheet.Field("Path", PathText(view, component));
    ShowExtras(view, component);
    ShowComponents(view, component);
    ShowUsers(view, component);
}

void ShowPath(const View& view, OXMIDicRBOPathExpression& path) {
    ShowOwned(view, path);
    view.sheet.Field("Type", TextOf(path, &OXMIDicRBOPathExpression::GetPathExprType));
    view.sheet.Field("Sub-type", TextOf(path, &OXMIDicRBOPathExpression::GetPathExprSubType));
    view.sheet.Field("Target", TargetOf(view, path));
    ShowExtras(view, path);
}

}  // namespace tool
