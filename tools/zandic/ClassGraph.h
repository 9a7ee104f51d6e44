#ifndef ZANDIC_TOOL_CLASS_GRAPH_H
#define ZANDIC_TOOL_CLASS_GRAPH_H

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "OXMIDicClass.h"
#include "zandic.hpp"

namespace tool {

/// What a picture says of an attribute.
struct GraphAttribute {
    enum class Kind { Simple, Relationship, Inverse };

    std::string name;
    std::string type;    ///< what types it; a class without its package, "?" for none
    std::string values;  ///< how many: "1", "0..1", "0..*"
    Kind kind = Kind::Simple;
    int target = -1;  ///< the class that it points at; -1: none
    bool isComposition = false;
    bool isMandatory = false;

    /// Of a relationship its first inverse, of an inverse its relationship: the class, and the place among
    /// its attributes; -1: none.
    int otherClass = -1;
    int otherAttribute = -1;
};

/// What a picture says of a class.
struct GraphClass {
    enum class Form { Class, Instance, Extension };

    std::string package;
    std::string name;
    Form form = Form::Class;
    bool isAbstract = false;
    int superClass = -1;      ///< -1: none
    int reference = -1;       ///< the class that it refers to; -1: none
    std::vector<int> scopes;  ///< the classes that an extension extends, those of its super class aside
    std::vector<GraphAttribute> attributes;

    std::string QualifiedName() const { return package + "::" + name; }
};

/// The classes of all loaded packages and what joins them, as plain values: package by package, each in the
/// order of its document. Linear in the model.
class ClassGraph {
public:
    explicit ClassGraph(const zandic::Dictionary& dictionary);

    int Size() const { return static_cast<int>(_CLASSES.size()); }
    const GraphClass& operator[](int index) const { return _CLASSES[static_cast<std::size_t>(index)]; }
    const GraphAttribute& Attribute(int index, int attribute) const {
        return (*this)[index].attributes[static_cast<std::size_t>(attribute)];
    }

    /// \returns the number of a class; -1 when it is none of a loaded package.
    int IndexOf(OXMIDicClass& element) const;

    /// The classes that one is joined to by a super class, a scope, a reference or a relationship of either
    /// side: sorted, each once, never itself.
    const std::vector<int>& Neighbours(int index) const {
        return _NEIGHBOURS[static_cast<std::size_t>(index)];
    }

    /// The classes that one names itself: its super class, scopes, reference and targets. Sorted, each once,
    /// never itself.
    std::vector<int> Named(int index) const;

private:
    void ReadClass(OXMIDicClass& element, GraphClass& read);
    void JoinInverses(const zandic::Dictionary& dictionary);
    void JoinNeighbours();

    std::vector<GraphClass> _CLASSES;
    std::vector<std::vector<int>> _NEIGHBOURS;
    std::map<ZELDbBinary, int> _PLACES;  ///< numbers by UUID
};

}  // namespace tool

#endif
