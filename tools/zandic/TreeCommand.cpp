#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "AttributeText.h"
#include "Command.h"
#include "Hierarchy.h"
#include "JsonWriter.h"
#include "Model.h"
#include "Style.h"
#include "Targets.h"
#include "Views.h"

namespace tool {
namespace {

constexpr std::size_t kWidestName = 44;  // of a line, when a note follows

/// Levels below this one are drawn no further to the right: what is written stays linear in the classes.
constexpr std::size_t kDeepestDrawn = 16;

/// One picture: a heading, and classes each before what is below it.
struct Tree {
    std::string heading;  ///< empty for none
    std::string package;  ///< names of this package are shown without it
    std::vector<HierarchyNode> nodes;
};

/// The branches to the left of a class: "│  ├─ ".
class Branches {
public:
    /// Goes on to the next class. \returns what stands left of it.
    std::string To(const HierarchyNode& node) {
        const auto depth = static_cast<std::size_t>(node.depth);
        _LAST.resize(depth);
        if (depth > 0) _LAST.back() = node.isLast;
        return Lines(depth) + (depth == 0 ? "" : node.isLast ? "└─ " : "├─ ") + Level(depth);
    }

    /// \returns what stands left of the lines that belong to the class.
    std::string Beside(const HierarchyNode& node, bool hasMore) const {
        const auto depth = static_cast<std::size_t>(node.depth);
        return Lines(depth) + (depth == 0 ? "" : node.isLast ? "   " : "│  ") + (hasMore ? "│  " : "   ");
    }

private:
    std::string Lines(std::size_t depth) const {
        std::string lines;
        for (std::size_t level = 1; level < std::min(depth, kDeepestDrawn); ++level) {
            lines += _LAST[level - 1] ? "   " : "│  ";
        }
        return lines;
    }

    static std::string Level(std::size_t depth) {
        return depth > kDeepestDrawn ? fmt::format("(level {}) ", depth) : "";
    }

    std::vector<bool> _LAST;  ///< for each level, whether its class is the last of its siblings
};

std::string NoteOf(const View& view, const HierarchyNode& node) {
    OXMIDicClass& element = *node.element;
    std::vector<std::string> parts;
    const auto above = AboveOf(element);
    if (node.depth == 0 && above) parts.push_back("is a " + NameIn(view, *above));
    if (zandic::Flag(element, &OXMIDicClass::GetAbstract)) parts.emplace_back("abstract");
    const std::string_view tag = TagOf(element);
    if (tag != ZANDicFormat::tag::kClass) parts.emplace_back(tag);
    const int own = zandic::OwnAttributes(element).Size();
    if (own > 0) parts.push_back(Counted(static_cast<std::size_t>(own), "attribute", "attributes"));
    parts.push_back(QuotedAlias(element));
    if (node.below > 0) {
        parts.push_back(Counted(static_cast<std::size_t>(node.below), "more below", "more below"));
    }
    std::erase(parts, "");
    return Joined(parts);
}

void WriteText(const View& view, const Tree& tree, bool withAttributes, Output& output) {
    struct Line {
        std::string left;
        std::string name;
        std::string note;
    };
    Branches branches;
    std::vector<Line> lines;
    std::size_t width = 0;
    for (std::size_t index = 0; index < tree.nodes.size(); ++index) {
        const HierarchyNode& node = tree.nodes[index];
        lines.push_back({branches.To(node), NameIn(view, *node.element), NoteOf(view, node)});
        width = std::max(width, std::min(WidthOf(lines.back().left + lines.back().name), kWidestName));
        if (!withAttributes) continue;
        const bool hasMore = index + 1 < tree.nodes.size() && tree.nodes[index + 1].depth > node.depth;
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(*node.element)) {
            lines.push_back({branches.Beside(node, hasMore) + "· ", AttributeText(view, attribute), ""});
        }
    }
    if (!tree.heading.empty()) {
        output.Write(Style::Output().Paint(Role::Heading, Printable(tree.heading)) + "\n\n");
    }
    for (const Line& line : lines) {
        const std::size_t used = WidthOf(line.left + line.name);
        output.Write(Style::Output().Paint(Role::Faint, line.left) + Printable(line.name));
        if (!line.note.empty()) {
            output.Write(std::string(used < width ? width - used : 0, ' ') + "  " + Printable(line.note));
        }
        output.Write("\n");
    }
}

void WriteAttributesJson(const View& view, OXMIDicClass& element, JsonWriter& json) {
    json.Key("attributes");
    json.BeginArray();
    for (OXMIDicAttribute& attribute : zandic::OwnAttributes(element)) {
        json.BeginObject();
        json.Key("name");
        json.Text(zandic::Name(attribute).View());
        json.Key("kind");
        json.Text(TagOf(attribute));
        json.Key("type");
        json.Text(AttributeTypeText(view, attribute));
        json.Key("values");
        json.Text(ValuesText(attribute));
        json.EndObject();
    }
    json.EndArray();
}

void WriteJson(const View& view, const Tree& tree, bool withAttributes, JsonWriter& json) {
    for (const HierarchyNode& node : tree.nodes) {
        const auto above = AboveOf(*node.element);
        json.BeginObject();
        json.Key("name");
        json.Text(QualifiedName(*node.element));
        json.Key("kind");
        json.Text(TagOf(*node.element));
        json.Key("uuid");
        json.Text(zandic::UuidText(zandic::Uuid(*node.element)).View());
        json.Key("depth");
        json.Number(node.depth);
        json.TextOf("super", above ? QualifiedName(*above) : "");
        json.Key("abstract");
        json.Flag(zandic::Flag(*node.element, &OXMIDicClass::GetAbstract));
        json.Key("ownAttributes");
        json.Number(zandic::OwnAttributes(*node.element).Size());
        json.Key("leftOutBelow");
        json.Number(node.below);
        if (withAttributes) WriteAttributesJson(view, *node.element, json);
        json.EndObject();
    }
}

/// The hierarchies that begin in the package: at its classes that are derived from none of its own. Of a
/// forest, only those that are derived from nothing, since the others stand in another package's tree.
Tree TreeOfPackage(OXMIDicPackage& package, const Options& options, bool isForest) {
    Tree tree{fmt::format("Package {}", zandic::Name(package).View()),
              std::string(zandic::Name(package).View()),
              {}};
    for (const ClassHandle& each : HierarchyElements(package)) {
        const ClassHandle above = AboveOf(*each);
        const bool isOwn = above && PackageNameOf(*above) == tree.package;
        if (above && (isForest || isOwn)) continue;
        AppendBelow(*each, 0, options.depth, true, tree.nodes);
    }
    return tree;
}

/// The chain above the class, the class, and all below it.
Tree TreeOfClass(OXMIDicClass& element, const Options& options) {
    Tree tree{"", PackageNameOf(element), {}};
    int depth = 0;
    for (const ClassHandle& above : ChainAbove(element)) tree.nodes.push_back({above, depth++, true, 0});
    AppendBelow(element, depth, options.depth, true, tree.nodes);
    return tree;
}

std::vector<Tree> TreesOf(Session& session, const Options& options) {
    Targets targets(session, options);
    std::vector<Tree> trees;
    for (const AskedObject& each : targets.Objects()) {
        if (const auto package = zandic::As<OXMIDicPackage>(each.object)) {
            Tree tree = TreeOfPackage(*package, options, targets.AreAll());
            if (!tree.nodes.empty() || !targets.AreAll()) trees.push_back(std::move(tree));
        } else if (IsInHierarchy(*each.object)) {
            trees.push_back(TreeOfClass(*zandic::As<OXMIDicClass>(each.object), options));
        } else {
            session.Refuse(each.asked, fmt::format("{} {} is no class and has no hierarchy",
                                                   TagOf(*each.object), QualifiedName(*each.object)));
        }
    }
    return trees;
}

}  // namespace

void RunTree(Session& session, const Options& options, Output& output) {
    const std::vector<Tree> trees = TreesOf(session, options);
    Sheet sheet(output);
    if (!options.json) {
        for (const Tree& tree : trees) {
            if (&tree != &trees.front()) output.Write("\n");
            const View view{session.Dictionary(), sheet, tree.package};
            WriteText(view, tree, options.attributes, output);
            if (tree.nodes.empty()) sheet.Line("There is no class.");
        }
        return;
    }
    JsonWriter json(output);
    json.BeginObject();
    json.Key("classes");
    json.BeginArray();
    for (const Tree& tree : trees) {
        WriteJson({session.Dictionary(), sheet, ""}, tree, options.attributes, json);
    }
    json.EndArray();
    json.EndObject();
    json.End();
}

}  // namespace tool
