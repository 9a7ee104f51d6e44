#include <fmt/format.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "DiagramText.h"

namespace tool {
namespace {

using Kind = DiagramEdge::Kind;

bool IsLetterOrDigit(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// \returns a text of letters, digits and "_".
std::string Identifier(std::string_view text) {
    std::string identifier;
    for (const char c : text) identifier += IsLetterOrDigit(c) ? c : '_';
    return identifier.empty() || (identifier[0] >= '0' && identifier[0] <= '9') ? "_" + identifier
                                                                                : identifier;
}

/// \returns the text with references for what Mermaid reads as marks.
std::string Plain(std::string_view text) {
    constexpr std::string_view kHarmless = " .,*-+/=!?'";
    std::string plain;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x20) {
            plain += ' ';
        } else if (code >= 0x80 || IsLetterOrDigit(c) || kHarmless.find(c) != kHarmless.npos) {
            plain += c;
        } else {
            plain += fmt::format("#{};", static_cast<unsigned>(code));
        }
    }
    return plain;
}

class MermaidText {
public:
    MermaidText(const ClassGraph& graph, const Diagram& diagram, Output& output)
        : _Graph(graph), _Diagram(diagram), _Output(output) {
        std::set<std::string> taken;
        for (const DiagramBox& box : diagram.boxes) {
            const std::string wanted = Identifier(graph[box.index].name);
            std::string name = wanted;
            for (int number = 2; !taken.insert(name).second; ++number)
                name = fmt::format("{}_{}", wanted, number);
            _NAMES.push_back(std::move(name));
        }
    }

    void Write(std::string_view caption) {
        if (!caption.empty()) _Output.Write(fmt::format("---\ntitle: {}\n---\n", Quoted(caption)));
        _Output.Write("classDiagram\n  direction TB\n");
        ForEachCluster(_Graph, _Diagram,
                       [this](const std::string& package, std::size_t first, std::size_t end) {
                           _Output.Write(fmt::format("  namespace {} {{\n", Identifier(package)));
                           for (std::size_t place = first; place < end; ++place) WriteBox(place);
                           _Output.Write("  }\n");
                       });
        for (const DiagramEdge& edge : _Diagram.edges) WriteEdge(edge);
    }

private:
    /// \returns a text of YAML.
    static std::string Quoted(std::string_view text) {
        std::string quoted = "\"";
        for (const char c : text) {
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
        return quoted + "\"";
    }

    void WriteBox(std::size_t place) {
        const DiagramBox& box = _Diagram.boxes[place];
        const GraphClass& element = _Graph[box.index];
        std::string head = "    class " + _NAMES[place];
        if (_NAMES[place] != element.name) head += fmt::format("[\"{}\"]", Plain(element.name));
        std::string lines;
        const auto addLine = [&lines](std::string_view line) { lines += fmt::format("      {}\n", line); };
        if (element.form == GraphClass::Form::Instance) addLine("<<instance>>");
        if (element.form == GraphClass::Form::Extension) addLine("<<extension>>");
        if (element.isAbstract) addLine("<<abstract>>");
        for (const DiagramRow& row : box.rows) {
            const GraphAttribute& attribute = *row.attribute;
            addLine(fmt::format("{} {} {}", Plain(attribute.name), Plain(attribute.type), attribute.values));
        }
        if (box.folded > 0) addLine(fmt::format("and {} more", box.folded));
        _Output.Write(head + (lines.empty() ? "\n" : " {\n" + lines + "    }\n"));
    }

    void WriteEdge(const DiagramEdge& edge) {
        const std::string& from = _NAMES[static_cast<std::size_t>(edge.from)];
        const std::string& to = _NAMES[static_cast<std::size_t>(edge.to)];
        switch (edge.kind) {
            case Kind::Super:
                return _Output.Write(fmt::format("  {} <|-- {}\n", to, from));
            case Kind::Scope:
                return _Output.Write(fmt::format("  {} <|.. {} : extends\n", to, from));
            case Kind::Reference:
                return _Output.Write(fmt::format("  {} <.. {} : reference\n", to, from));
            default:
                break;
        }
        const std::string_view arrow = edge.kind == Kind::Composition ? "*-->" : "-->";
        for (const DiagramRole& role : edge.roles) {
            const std::string inverse =
                role.inverse == nullptr
                    ? ""
                    : fmt::format(" \"{} {}\"", Plain(role.inverse->name), role.inverse->values);
            _Output.Write(fmt::format("  {}{} {} \"{}\" {} : {}\n", from, inverse, arrow,
                                      role.attribute->values, to, Plain(role.attribute->name)));
        }
        if (edge.folded > 0)
            _Output.Write(fmt::format("  {} {} {} : and {} more\n", from, arrow, to, edge.folded));
    }

    const ClassGraph& _Graph;
    const Diagram& _Diagram;
    Output& _Output;
    std::vector<std::string> _NAMES;  ///< by box
};

}  // namespace

void WriteMermaid(const ClassGraph& graph, const Diagram& diagram, std::string_view caption, Output& output) {
    MermaidText(graph, diagram, output).Write(caption);
}

}  // namespace tool
