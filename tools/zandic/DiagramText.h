/// The forms in which a class diagram is written.
#ifndef ZANDIC_TOOL_DIAGRAM_TEXT_H
#define ZANDIC_TOOL_DIAGRAM_TEXT_H

#include "Diagram.h"
#include "JsonWriter.h"
#include "Output.h"

namespace tool {

/// Writes the diagram for Graphviz: tables for boxes, a cluster for each package, \p caption below.
void WriteDot(const ClassGraph& graph, const Diagram& diagram, std::string_view caption, Output& output);

/// Writes the diagram for Mermaid: a namespace for each package, \p caption as its title.
void WriteMermaid(const ClassGraph& graph, const Diagram& diagram, std::string_view caption, Output& output);

/// Writes the diagram as a JSON value.
void WriteDiagram(const ClassGraph& graph, const Diagram& diagram, JsonWriter& json);

/// Calls \p write(name, boxes) for each package with boxes, in the order of its first one.
template <class Write>
void ForEachCluster(const ClassGraph& graph, const Diagram& diagram, Write&& write) {
    // Boxes stand in the order of the graph, which goes package by package.
    for (std::size_t first = 0; first < diagram.boxes.size();) {
        const std::string& package = graph[diagram.boxes[first].index].package;
        std::size_t end = first;
        while (end < diagram.boxes.size() && graph[diagram.boxes[end].index].package == package) ++end;
        write(package, first, end);
        first = end;
    }
}

}  // namespace tool

#endif
