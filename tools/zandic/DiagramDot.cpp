#include <fmt/format.h>

#include <functional>
#include <queue>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "DiagramText.h"

namespace tool {
namespace {

using Kind = DiagramEdge::Kind;
using Form = GraphClass::Form;

/// Colours and words of a box.
struct BoxStyle {
    std::string_view head;
    std::string_view line;
    std::string_view word;  ///< above the name
};
constexpr BoxStyle kClassStyle{"#d6e4f5", "#3d5a80", ""};
constexpr BoxStyle kInstanceStyle{"#d9efdc", "#3f7a4b", "instance"};
constexpr BoxStyle kExtensionStyle{"#fbe8c8", "#96691c", "extension"};
constexpr BoxStyle kContextStyle{"#eef0f2", "#8a939c", ""};

constexpr int kMostInARow = 5;
constexpr std::string_view kFaint = "#5f6b76";
constexpr std::string_view kHead =
    "digraph classes {\n"
    "  graph [fontname=\"Helvetica,Arial,sans-serif\" fontsize=11 fontcolor=\"#33414e\" bgcolor=white\n"
    "         pad=0.25 nodesep=0.3 ranksep=0.55 rankdir=TB newrank=true]\n"
    "  node [shape=plain fontname=\"Helvetica,Arial,sans-serif\" fontsize=10 fontcolor=\"#1d2730\"]\n"
    "  edge [fontname=\"Helvetica,Arial,sans-serif\" fontsize=9 fontcolor=\"#33414e\" color=\"#5f6b76\"\n"
    "        arrowsize=0.8]\n";

/// \returns how a class is joined to one that stands above it.
std::string_view AboveWord(const GraphClass& element, int above) {
    if (above == element.superClass) return "is a";
    return above == element.reference ? "refers to" : "extends";
}

const BoxStyle& StyleOf(const GraphClass& element, const DiagramBox& box) {
    if (box.isContext) return kContextStyle;
    if (element.form == Form::Instance) return kInstanceStyle;
    return element.form == Form::Extension ? kExtensionStyle : kClassStyle;
}

/// \returns the text for an HTML-like label.
std::string Label(std::string_view text) {
    std::string label;
    for (const char c : text) {
        switch (c) {
            case '&':
                label += "&amp;";
                break;
            case '<':
                label += "&lt;";
                break;
            case '>':
                label += "&gt;";
                break;
            case '"':
                label += "&quot;";
                break;
            default:
                label += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
        }
    }
    return label;
}

/// \returns the text in quotes, so that Graphviz gives it back.
std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"') quoted += '\\';
        quoted += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
        if (c == '\\') quoted += ' ';  // one before a quote would take its meaning
    }
    return quoted + "\"";
}

std::string Faint(std::string_view label) {
    return fmt::format("<FONT COLOR=\"{}\">{}</FONT>", kFaint, label);
}

/// Writes a row of a box that goes over its whole width.
std::string WideRow(std::string_view label) {
    return fmt::format("<TR><TD COLSPAN=\"2\" ALIGN=\"LEFT\">{}</TD></TR>", label);
}

/// Whether what an edge leads to stands above.
bool IsUpward(Kind kind) { return kind == Kind::Super || kind == Kind::Scope || kind == Kind::Reference; }

/// Which of two boxes stands above the other: a super class above its subclasses, and as far as that goes
/// what refers above what it refers to. The boxes are put into an order one by one: among those whose super
/// classes have a place already the one to which fewest relationships lead from boxes without a place.
class Levels {
public:
    explicit Levels(const Diagram& diagram) : _BOXES(diagram.boxes.size()) {
        for (const DiagramEdge& edge : diagram.edges) {
            if (edge.from == edge.to) continue;
            const bool isUpward = IsUpward(edge.kind);
            At(isUpward ? edge.to : edge.from).below.push_back({isUpward ? edge.from : edge.to, isUpward});
            (isUpward ? At(edge.from).supers : At(edge.to).users) += 1;
        }
        for (int place = 0; place < static_cast<int>(_BOXES.size()); ++place) Offer(place);
        while (!_WAITING.empty()) PlaceNext();
    }

    bool IsAbove(int upper, int lower) const {
        return _BOXES[static_cast<std::size_t>(upper)].order < _BOXES[static_cast<std::size_t>(lower)].order;
    }

private:
    static constexpr int kNone = -1;

    struct Link {
        int below;
        bool isUpward;
    };

    struct Box {
        std::vector<Link> below;
        int supers = 0;  ///< that have no place yet
        int users = 0;   ///< that have no place yet
        int order = kNone;
    };

    /// Users, what is below with its sign turned, and the place: fewest users first, of these most below.
    using Waiting = std::tuple<int, int, int>;

    Box& At(int place) { return _BOXES[static_cast<std::size_t>(place)]; }

    void Offer(int place) {
        const Box& box = At(place);
        if (box.supers == 0 && box.order == kNone)
            _WAITING.push({box.users, -static_cast<int>(box.below.size()), place});
    }

    void PlaceNext() {
        const int users = std::get<0>(_WAITING.top());
        const int place = std::get<2>(_WAITING.top());
        _WAITING.pop();
        Box& box = At(place);
        if (box.order != kNone || users != box.users) return;  // a better entry is there
        box.order = _Placed++;
        for (const Link& link : box.below) {
            Box& other = At(link.below);
            (link.isUpward ? other.supers : other.users) -= 1;
            Offer(link.below);
        }
    }

    std::vector<Box> _BOXES;
    std::priority_queue<Waiting, std::vector<Waiting>, std::greater<>> _WAITING;
    int _Placed = 0;
};

class DotText {
public:
    DotText(const ClassGraph& graph, const Diagram& diagram, Output& output)
        : _Graph(graph),
          _Diagram(diagram),
          _Output(output),
          _Levels(diagram),
          _SUBCLASSES(diagram.boxes.size()) {
        for (const DiagramEdge& edge : diagram.edges) {
            if (edge.kind == Kind::Super) ++_SUBCLASSES[static_cast<std::size_t>(edge.to)].count;
        }
    }

    void Write(std::string_view caption) {
        _Output.Write(kHead);
        if (!caption.empty()) {
            _Output.Write(fmt::format("  label=<{}> labelloc=b labeljust=l\n", Faint(Label(caption))));
        }
        ForEachCluster(_Graph, _Diagram,
                       [this](const std::string& package, std::size_t first, std::size_t end) {
                           WriteCluster(package, first, end);
                       });
        for (const DiagramEdge& edge : _Diagram.edges) WriteEdge(edge);
        _Output.Write("}\n");
    }

private:
    /// The subclasses of a box.
    struct Subclasses {
        int count = 0;
        int written = 0;
    };

    void WriteCluster(const std::string& package, std::size_t first, std::size_t end) {
        _Output.Write(fmt::format(
            "  subgraph {} {{\n"
            "    label=<<B>{}</B>> labelloc=t labeljust=l style=\"rounded,filled\" color=\"#c3ccd5\" "
            "fillcolor=\"#f7f9fb\" margin=14\n",
            Quoted("cluster_" + package), Label(package)));
        for (std::size_t place = first; place < end; ++place) WriteBox(_Diagram.boxes[place]);
        _Output.Write("  }\n");
    }

    void WriteBox(const DiagramBox& box) {
        const GraphClass& element = _Graph[box.index];
        const BoxStyle& style = StyleOf(element, box);
        _Output.Write(fmt::format(
            "    {} [label=<<TABLE BORDER=\"1\" CELLBORDER=\"0\" CELLSPACING=\"0\" CELLPADDING=\"3\" "
            "COLOR=\"{}\" "
            "BGCOLOR=\"white\"{}>\n",
            Quoted(element.QualifiedName()), style.line, box.isContext ? " STYLE=\"dashed\"" : ""));
        _Output.Write(
            fmt::format("      <TR><TD COLSPAN=\"2\" BGCOLOR=\"{}\">{}</TD></TR>\n", style.head, Head(box)));
        if (!box.rows.empty()) _Output.Write("      <HR/>\n");
        for (const DiagramRow& row : box.rows) WriteRow(row);
        if (box.folded > 0) {
            _Output.Write("      " +
                          WideRow(fmt::format("<I>{}</I>", Faint(fmt::format("and {} more", box.folded)))) +
                          "\n");
        }
        _Output.Write("    </TABLE>>]\n");
    }

    /// \returns the label of the head: what kind of class, its name, what stands above it and has no box.
    std::string Head(const DiagramBox& box) const {
        const GraphClass& element = _Graph[box.index];
        std::string head;
        const std::string_view word = StyleOf(element, box).word;
        if (!word.empty()) head += Faint(fmt::format("«{}»", word)) + "<BR/>";
        const std::string name = Label(element.name);
        head += element.isAbstract ? fmt::format("<B><I>{}</I></B>", name) : fmt::format("<B>{}</B>", name);
        for (const int above : box.above) {
            const GraphClass& other = _Graph[above];
            const std::string_view verb = AboveWord(element, above);
            const std::string otherName =
                other.package == element.package ? other.name : other.QualifiedName();
            head += "<BR/>" + Faint(Label(fmt::format("{} {}", verb, otherName)));
        }
        return head;
    }

    void WriteRow(const DiagramRow& row) {
        const GraphAttribute& attribute = *row.attribute;
        std::string type = Label(attribute.type);
        if (row.pointsOut) type = (attribute.kind == GraphAttribute::Kind::Inverse ? "← " : "→ ") + type;
        if (attribute.values != "1") type += " " + Faint(fmt::format("[{}]", attribute.values));
        _Output.Write(fmt::format("      <TR><TD ALIGN=\"LEFT\">{}</TD><TD ALIGN=\"LEFT\">{}</TD></TR>\n",
                                  Label(attribute.name), type));
    }

    /// Writes an edge so that what stands above is drawn above: Graphviz puts the first of two boxes there.
    void WriteEdge(const DiagramEdge& edge) {
        const std::string from = NameOf(edge.from);
        const std::string to = NameOf(edge.to);
        switch (edge.kind) {
            case Kind::Super:
                WriteEdge(to, from, "dir=back arrowtail=empty weight=4" + RowOf(edge) + " color=\"#3d5a80\"");
                return;
            case Kind::Scope:
                WriteEdge(to, from, "dir=back arrowtail=empty style=dashed color=\"#96691c\"");
                return;
            case Kind::Reference:
                WriteEdge(to, from, "dir=back arrowtail=vee style=dotted label=<" + Faint("reference") + ">");
                return;
            case Kind::Relationship:
                if (_Levels.IsAbove(edge.to, edge.from)) {
                    WriteEdge(to, from, "dir=back arrowtail=vee" + Roles(edge));
                } else {
                    WriteEdge(from, to, "arrowhead=vee" + Roles(edge));
                }
                return;
            case Kind::Composition:
                if (_Levels.IsAbove(edge.to, edge.from)) {
                    WriteEdge(to, from, "dir=both arrowhead=diamond arrowtail=vee" + Roles(edge));
                } else {
                    WriteEdge(from, to, "dir=both arrowhead=vee arrowtail=diamond" + Roles(edge));
                }
                return;
        }
    }

    /// \returns how far below its super class a subclass stands: many of one class share several rows.
    std::string RowOf(const DiagramEdge& edge) {
        Subclasses& all = _SUBCLASSES[static_cast<std::size_t>(edge.to)];
        const int rows = (all.count + kMostInARow - 1) / kMostInARow;
        const int row = all.written++ % rows;
        return row == 0 ? "" : fmt::format(" minlen={}", row + 1);
    }

    void WriteEdge(const std::string& upper, const std::string& lower, const std::string& attributes) {
        _Output.Write(fmt::format("  {} -> {} [{}]\n", upper, lower, attributes));
    }

    std::string Roles(const DiagramEdge& edge) const {
        std::string label;
        const auto addLine = [&label](const std::string& line) {
            label += fmt::format("&#160;{}<BR ALIGN=\"LEFT\"/>", line);
        };
        for (const DiagramRole& role : edge.roles) {
            addLine(fmt::format("{} {}", Label(role.attribute->name), Faint(role.attribute->values)));
            if (role.inverse != nullptr) {
                addLine(Faint(fmt::format("← {} {}", Label(role.inverse->name), role.inverse->values)));
            }
        }
        if (edge.folded > 0)
            addLine(fmt::format("<I>{}</I>", Faint(fmt::format("and {} more", edge.folded))));
        return fmt::format(" label=<{}>", label);
    }

    std::string NameOf(int place) const {
        return Quoted(_Graph[_Diagram.boxes[static_cast<std::size_t>(place)].index].QualifiedName());
    }

    const ClassGraph& _Graph;
    const Diagram& _Diagram;
    Output& _Output;
    Levels _Levels;
    std::vector<Subclasses> _SUBCLASSES;  ///< by box
};

}  // namespace

void WriteDot(const ClassGraph& graph, const Diagram& diagram, std::string_view caption, Output& output) {
    DotText(graph, diagram, output).Write(caption);
}

}  // namespace tool
