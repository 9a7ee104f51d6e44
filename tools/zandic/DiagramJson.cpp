#include <iterator>

#include "DiagramText.h"

namespace tool {
namespace {

constexpr std::string_view kForms[] = {"Class", "Instance", "Extension"};
constexpr std::string_view kAttributeKinds[] = {"Simple", "Relationship", "Inverse"};
constexpr std::string_view kEdgeKinds[] = {"super", "scope", "reference", "relationship", "composition"};

template <class Code, std::size_t count>
std::string_view WordFor(Code code, const std::string_view (&words)[count]) {
    return words[static_cast<std::size_t>(code)];
}

template <class Count>
void WriteCount(std::string_view key, Count count, JsonWriter& json) {
    json.Key(key);
    json.Number(static_cast<std::int64_t>(count));
}

void WriteText(std::string_view key, std::string_view text, JsonWriter& json) {
    json.Key(key);
    json.Text(text);
}

void WriteBox(const ClassGraph& graph, const DiagramBox& box, JsonWriter& json) {
    const GraphClass& element = graph[box.index];
    json.BeginObject();
    WriteText("package", element.package, json);
    WriteText("name", element.name, json);
    WriteText("form", WordFor(element.form, kForms), json);
    json.Key("abstract");
    json.Flag(element.isAbstract);
    json.Key("byNameOnly");
    json.Flag(box.isContext);
    json.Key("above");
    json.BeginArray();
    for (const int above : box.above) json.Text(graph[above].QualifiedName());
    json.EndArray();
    json.Key("attributes");
    json.BeginArray();
    for (const DiagramRow& row : box.rows) {
        json.BeginObject();
        WriteText("name", row.attribute->name, json);
        WriteText("kind", WordFor(row.attribute->kind, kAttributeKinds), json);
        WriteText("type", row.attribute->type, json);
        WriteText("values", row.attribute->values, json);
        json.EndObject();
    }
    json.EndArray();
    WriteCount("moreAttributes", box.folded, json);
    json.EndObject();
}

void WriteRole(const DiagramRole& role, JsonWriter& json) {
    json.BeginObject();
    WriteText("name", role.attribute->name, json);
    WriteText("values", role.attribute->values, json);
    if (role.inverse != nullptr) {
        json.Key("inverse");
        json.BeginObject();
        WriteText("name", role.inverse->name, json);
        WriteText("values", role.inverse->values, json);
        json.EndObject();
    }
    json.EndObject();
}

}  // namespace

void WriteDiagram(const ClassGraph& graph, const Diagram& diagram, JsonWriter& json) {
    const auto nameOf = [&](int place) {
        return graph[diagram.boxes[static_cast<std::size_t>(place)].index].QualifiedName();
    };
    json.BeginObject();
    json.Key("classes");
    json.BeginArray();
    for (const DiagramBox& box : diagram.boxes) WriteBox(graph, box, json);
    json.EndArray();
    json.Key("edges");
    json.BeginArray();
    for (const DiagramEdge& edge : diagram.edges) {
        json.BeginObject();
        WriteText("kind", WordFor(edge.kind, kEdgeKinds), json);
        WriteText("from", nameOf(edge.from), json);
        WriteText("to", nameOf(edge.to), json);
        json.Key("relationships");
        json.BeginArray();
        for (const DiagramRole& role : edge.roles) WriteRole(role, json);
        json.EndArray();
        WriteCount("moreRelationships", edge.folded, json);
        json.EndObject();
    }
    json.EndArray();
    json.Key("leftOut");
    json.BeginObject();
    WriteCount("classes", diagram.losses.boxes, json);
    WriteCount("ofClasses", diagram.losses.subjects, json);
    WriteCount("neighbours", diagram.losses.contextOut, json);
    WriteCount("attributes", diagram.losses.rows, json);
    WriteCount("ofBoxes", diagram.losses.foldedBoxes, json);
    WriteCount("relationships", diagram.losses.roles, json);
    json.EndObject();
    json.EndObject();
}

}  // namespace tool
