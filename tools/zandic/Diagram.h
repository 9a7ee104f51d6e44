#ifndef ZANDIC_TOOL_DIAGRAM_H
#define ZANDIC_TOOL_DIAGRAM_H

#include <cstddef>
#include <string>
#include <vector>

#include "ClassGraph.h"

namespace tool {

/// How large a picture may get.
struct DiagramLimits {
    int boxes = 40;
    int rows = 12;  ///< of a box
};

/// What a picture is about.
struct DiagramSubjects {
    std::vector<int> classes;  ///< those asked for, in the order of their numbers
    std::vector<int> context;  ///< those that stand beside them by their names, if there is room
    std::vector<int> steps;    ///< how far each of `classes` is from the middle; empty: there is none
};

/// A line in a box.
struct DiagramRow {
    const GraphAttribute* attribute;
    bool pointsOut;  ///< at a class that has no box
};

/// A class in the picture.
struct DiagramBox {
    int index = -1;                ///< in the graph
    bool isContext = false;        ///< its name only
    std::vector<DiagramRow> rows;  ///< the attributes that no edge stands for
    std::size_t folded = 0;        ///< how many more there are
    std::vector<int> above;        ///< the super class, scopes and reference that have no box
};

/// A relationship, as an edge is labelled.
struct DiagramRole {
    const GraphAttribute* attribute;
    const GraphAttribute* inverse;  ///< null: none
};

/// An edge between two boxes, by their places among the boxes.
struct DiagramEdge {
    enum class Kind { Super, Scope, Reference, Relationship, Composition };

    Kind kind = Kind::Super;
    int from = -1;  ///< the subclass, the extension, the class that has the relationship
    int to = -1;
    std::vector<DiagramRole> roles;  ///< of relationships: all that lead the same way
    std::size_t folded = 0;          ///< how many more there are
};

/// What a picture does not show though it was asked for.
struct DiagramLosses {
    int boxes = 0;     ///< classes without a box
    int subjects = 0;  ///< how many were asked for
    std::size_t rows = 0;
    int foldedBoxes = 0;
    std::size_t roles = 0;
    int contextOut = 0;  ///< classes beside them for which there was no room
};

/// A class diagram, whatever it is drawn by. Boxes stand in the order of the graph, edges by their boxes.
struct Diagram {
    std::vector<DiagramBox> boxes;
    std::vector<DiagramEdge> edges;
    DiagramLosses losses;
};

/// Chooses what to draw, and folds what is long.
///
/// Where not all have room, the picture grows from the class with the most neighbours (or the middle) by the
/// class that is joined to most of those chosen, and of several by the one that has most neighbours: it stays
/// one piece, and shows the classes that hold a schema together. Nearer ones come before farther ones, and
/// what was asked for before what stands beside it. The same graph gives the same diagram.
Diagram MakeDiagram(const ClassGraph& graph, const DiagramSubjects& subjects, const DiagramLimits& limits);

/// \returns one line about everything that is left out; empty when nothing is.
std::string LossesText(const DiagramLosses& losses);

}  // namespace tool

#endif
