#include "Diagram.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <queue>
#include <tuple>

#include "Sheet.h"

namespace tool {
namespace {

using Kind = GraphAttribute::Kind;

constexpr std::size_t kMostRoles = 4;  // beside one edge

/// The growth of a picture: which class is next.
class Growth {
public:
    Growth(const ClassGraph& graph, const DiagramSubjects& subjects)
        : _Graph(graph), _STATES(static_cast<std::size_t>(graph.Size())) {
        int last = 0;
        for (std::size_t place = 0; place < subjects.classes.size(); ++place) {
            const int step = subjects.steps.empty() ? 0 : subjects.steps[place];
            last = std::max(last, step);
            Offer(subjects.classes[place], step);
        }
        for (const int index : subjects.context) Offer(index, last + 1);
    }

    /// \returns the next class; -1 when there is none left.
    int Next() {
        while (!_WAITING.empty()) {
            const Candidate best = _WAITING.top();
            _WAITING.pop();
            State& state = At(best.index);
            if (state.isChosen || best.joined != state.joined) continue;  // a better entry was there
            state.isChosen = true;
            for (const int other : _Graph.Neighbours(best.index)) Join(other);
            return best.index;
        }
        return -1;
    }

private:
    struct State {
        bool isOffered = false;
        bool isChosen = false;
        int step = 0;
        int joined = 0;  ///< to how many of those chosen
    };

    struct Candidate {
        int step;
        int joined;
        std::size_t neighbours;
        int index;

        bool operator<(const Candidate& other) const {
            return std::tuple(-step, joined, neighbours, -index) <
                   std::tuple(-other.step, other.joined, other.neighbours, -other.index);
        }
    };

    State& At(int index) { return _STATES[static_cast<std::size_t>(index)]; }

    void Offer(int index, int step) {
        State& state = At(index);
        if (state.isOffered) return;
        state.isOffered = true;
        state.step = step;
        Push(index);
    }

    void Join(int index) {
        State& state = At(index);
        ++state.joined;
        if (state.isOffered && !state.isChosen) Push(index);
    }

    void Push(int index) {
        const State& state = At(index);
        _WAITING.push({state.step, state.joined, _Graph.Neighbours(index).size(), index});
    }

    const ClassGraph& _Graph;
    std::vector<State> _STATES;
    std::priority_queue<Candidate> _WAITING;  ///< entries that were bettered are passed over
};

class Drawing {
public:
    Drawing(const ClassGraph& graph, const DiagramLimits& limits) : _Graph(graph), _Limits(limits) {}

    Diagram Draw(const DiagramSubjects& subjects) {
        ChooseBoxes(subjects);
        for (DiagramBox& box : _Diagram.boxes) DrawInheritance(box);
        for (DiagramBox& box : _Diagram.boxes) DrawAttributes(box);
        std::stable_sort(_Diagram.edges.begin(), _Diagram.edges.end(),
                         [](const DiagramEdge& a, const DiagramEdge& b) {
                             return std::tuple(a.from, a.to, a.kind) < std::tuple(b.from, b.to, b.kind);
                         });
        return std::move(_Diagram);
    }

private:
    void ChooseBoxes(const DiagramSubjects& subjects) {
        Growth growth(_Graph, subjects);
        const auto room = static_cast<std::size_t>(_Limits.boxes);
        while (_Diagram.boxes.size() < room) {
            const int index = growth.Next();
            if (index < 0) break;
            _Diagram.boxes.emplace_back().index = index;
        }
        std::sort(_Diagram.boxes.begin(), _Diagram.boxes.end(),
                  [](const DiagramBox& a, const DiagramBox& b) { return a.index < b.index; });
        int shown = 0;
        for (DiagramBox& box : _Diagram.boxes) {
            _PLACES.emplace(box.index, static_cast<int>(_PLACES.size()));
            box.isContext = !std::binary_search(subjects.classes.begin(), subjects.classes.end(), box.index);
            shown += box.isContext ? 0 : 1;
        }
        DiagramLosses& losses = _Diagram.losses;
        losses.subjects = static_cast<int>(subjects.classes.size());
        losses.boxes = losses.subjects - shown;
        const auto beside = static_cast<int>(_Diagram.boxes.size()) - shown;
        losses.contextOut = static_cast<int>(subjects.context.size()) - beside;
    }

    int PlaceOf(int index) const {
        const auto found = _PLACES.find(index);
        return found != _PLACES.end() ? found->second : -1;
    }

    void AddEdge(DiagramEdge::Kind kind, int from, int to) {
        DiagramEdge& edge = _Diagram.edges.emplace_back();
        edge.kind = kind;
        edge.from = from;
        edge.to = to;
    }

    void DrawInheritance(DiagramBox& box) {
        const GraphClass& element = _Graph[box.index];
        if (element.superClass >= 0) DrawAbove(box, element.superClass, DiagramEdge::Kind::Super);
        for (const int scope : element.scopes) DrawAbove(box, scope, DiagramEdge::Kind::Scope);
        if (element.reference >= 0) DrawAbove(box, element.reference, DiagramEdge::Kind::Reference);
    }

    void DrawAbove(DiagramBox& box, int above, DiagramEdge::Kind kind) {
        const int to = PlaceOf(above);
        if (to >= 0) {
            AddEdge(kind, PlaceOf(box.index), to);
        } else if (!box.isContext) {
            box.above.push_back(above);
        }
    }

    void DrawAttributes(DiagramBox& box) {
        std::vector<DiagramRow> rows;
        for (const GraphAttribute& attribute : _Graph[box.index].attributes) {
            if (IsEdgeOfOther(attribute) || DrawEdge(box, attribute)) continue;
            rows.push_back({&attribute, attribute.target >= 0});
        }
        if (box.isContext) return;
        const auto most = static_cast<std::size_t>(_Limits.rows);
        if (rows.size() > most + 1) {
            box.folded = rows.size() - most;
            rows.resize(most);
            _Diagram.losses.rows += box.folded;
            ++_Diagram.losses.foldedBoxes;
        }
        box.rows = std::move(rows);
    }

    /// \returns whether an inverse stands at the edge of its relationship.
    bool IsEdgeOfOther(const GraphAttribute& attribute) const {
        if (attribute.kind != Kind::Inverse || attribute.otherClass < 0 || PlaceOf(attribute.otherClass) < 0)
            return false;
        const GraphAttribute& relationship = _Graph.Attribute(attribute.otherClass, attribute.otherAttribute);
        return relationship.target >= 0 && PlaceOf(relationship.target) >= 0 &&
               &_Graph.Attribute(relationship.otherClass, relationship.otherAttribute) == &attribute;
    }

    /// \returns whether the attribute is drawn as an edge.
    bool DrawEdge(const DiagramBox& box, const GraphAttribute& attribute) {
        const int to = attribute.target >= 0 ? PlaceOf(attribute.target) : -1;
        if (to < 0) return false;
        // Of two classes that stand beside the picture nothing is told but their names.
        if (box.isContext && _Diagram.boxes[static_cast<std::size_t>(to)].isContext) return true;
        const int from = PlaceOf(box.index);
        const auto kind =
            attribute.isComposition ? DiagramEdge::Kind::Composition : DiagramEdge::Kind::Relationship;
        const auto [known, isNew] = _RELATIONS.emplace(std::tuple(from, to, kind), _Diagram.edges.size());
        if (isNew) AddEdge(kind, from, to);
        DiagramEdge& edge = _Diagram.edges[known->second];
        const bool hasInverse = attribute.kind == Kind::Relationship && attribute.otherClass >= 0;
        const GraphAttribute* const inverse =
            hasInverse ? &_Graph.Attribute(attribute.otherClass, attribute.otherAttribute) : nullptr;
        if (edge.roles.size() < kMostRoles) {
            edge.roles.push_back({&attribute, inverse});
        } else {
            ++edge.folded;
            ++_Diagram.losses.roles;
        }
        return true;
    }

    const ClassGraph& _Graph;
    const DiagramLimits& _Limits;
    std::map<int, int> _PLACES;  ///< boxes by their classes
    std::map<std::tuple<int, int, DiagramEdge::Kind>, std::size_t> _RELATIONS;
    Diagram _Diagram;
};

}  // namespace

Diagram MakeDiagram(const ClassGraph& graph, const DiagramSubjects& subjects, const DiagramLimits& limits) {
    return Drawing(graph, limits).Draw(subjects);
}

std::string LossesText(const DiagramLosses& losses) {
    std::vector<std::string> parts;
    if (losses.boxes > 0) parts.push_back(fmt::format("{} of {} classes", losses.boxes, losses.subjects));
    if (losses.contextOut > 0) {
        parts.push_back(Counted(static_cast<std::size_t>(losses.contextOut), "neighbouring class",
                                "neighbouring classes"));
    }
    if (losses.rows > 0) {
        parts.push_back(
            fmt::format("{} in {}", Counted(losses.rows, "attribute", "attributes"),
                        Counted(static_cast<std::size_t>(losses.foldedBoxes), "long box", "long boxes")));
    }
    if (losses.roles > 0)
        parts.push_back(Counted(losses.roles, "relationship", "relationships") + " beside others");
    if (parts.empty()) return "";
    return fmt::format("left out: {}", fmt::join(parts, ", "));
}

}  // namespace tool
