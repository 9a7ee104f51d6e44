#include "RuleCycles.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "OXMIDicClass.h"
#include "OXMIDicRelationship.h"
#include "RuleCodes.h"

namespace tool {
namespace {

constexpr std::size_t kShownSteps = 5;  ///< of a cycle, in its text and its notes

/// Whether a relationship of a loaded package needs an object of its target.
bool Needs(OXMIDicRelationship& relationship) {
    if (!zandic::Flag(relationship, &OXMIDicRelationship::GetMandatory)) return false;
    const bool mayBeEmpty = zandic::Flag(relationship, &OXMIDicRelationship::GetMultiValuated) &&
                            zandic::Get(relationship, &OXMIDicRelationship::GetLower).value_or(0) <= 0;
    return !mayBeEmpty;
}

/// Finds which of the numbered things reach each other, by Tarjan's way with a list instead of calls.
class Groups {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    template <class Edges>
    static std::vector<std::uint32_t> Of(const std::vector<Edges>& edges) {
        Groups groups(edges.size());
        for (std::uint32_t start = 0; start < edges.size(); ++start) {
            if (groups._ORDER[start] == kNone) groups.Visit(edges, start);
        }
        return std::move(groups._GROUPS);
    }

private:
    struct Step {
        std::uint32_t at;
        std::size_t next;
    };

    explicit Groups(std::size_t size) : _ORDER(size, kNone), _LOWEST(size, kNone), _GROUPS(size, kNone) {}

    void Enter(std::uint32_t at) {
        _ORDER[at] = _LOWEST[at] = _Count++;
        _OPEN.push_back(at);
        _STEPS.push_back({at, 0});
    }

    template <class Edges>
    void Visit(const std::vector<Edges>& edges, std::uint32_t start) {
        Enter(start);
        while (!_STEPS.empty()) {
            Step& step = _STEPS.back();
            const std::uint32_t at = step.at;
            if (step.next < edges[at].size()) {
                const std::uint32_t to = edges[at][step.next++].to;
                if (_ORDER[to] == kNone) {
                    Enter(to);
                } else if (_GROUPS[to] == kNone) {
                    _LOWEST[at] = std::min(_LOWEST[at], _ORDER[to]);
                }
                continue;
            }
            _STEPS.pop_back();
            if (!_STEPS.empty()) {
                std::uint32_t& lowest = _LOWEST[_STEPS.back().at];
                lowest = std::min(lowest, _LOWEST[at]);
            }
            if (_LOWEST[at] == _ORDER[at]) Close(at);
        }
    }

    void Close(std::uint32_t first) {
        std::uint32_t at = kNone;
        do {
            at = _OPEN.back();
            _OPEN.pop_back();
            _GROUPS[at] = first;
        } while (at != first);
    }

    std::vector<std::uint32_t> _ORDER;
    std::vector<std::uint32_t> _LOWEST;
    std::vector<std::uint32_t> _GROUPS;
    std::vector<std::uint32_t> _OPEN;
    std::vector<Step> _STEPS;
    std::uint32_t _Count = 0;
};

}  // namespace

// What is needed.

std::uint32_t CycleRules::number_Of(const Party& element) {
    std::uint32_t& number = element.IsHere()
                                ? _NUMBERS[element.node.Index()]
                                : _OUTSIDE.try_emplace(element.uuid.HexText(), kNone).first->second;
    if (number == kNone) {
        number = static_cast<std::uint32_t>(_CLASSES.size());
        _CLASSES.push_back(element);
        _NEEDS.emplace_back();
    }
    return number;
}

void CycleRules::AddSuper(const Party& heir, const Party& super) {
    const std::uint32_t to = number_Of(super);
    _NEEDS[number_Of(heir)].push_back({to, kNone});
}

void CycleRules::AddRelationship(const Party& owner, const Party& relationship, const Party& target) {
    const std::uint32_t from = number_Of(owner);
    const std::uint32_t to = number_Of(target);
    _NEEDS[from].push_back({to, static_cast<std::uint32_t>(_RELATIONSHIPS.size())});
    _RELATIONSHIPS.push_back({relationship, from, to});
}

/// Whether a package that this one uses, uses this one: nothing else leads from there back here.
bool CycleRules::is_InRing() const {
    OXMIDicPackage* const self = _Document.Checked().package;
    if (self == nullptr || _OUTSIDE.empty()) return false;
    std::set<std::string> met;
    std::vector<zandic::Handle<OXMIDicPackage>> open{zandic::Handle<OXMIDicPackage>::Share(self)};
    while (!open.empty()) {
        const zandic::Handle<OXMIDicPackage> package = std::move(open.back());
        open.pop_back();
        for (const auto getter : {&OXMIDicPackage::GetUsedPackages, &OXMIDicPackage::GetScopePackages}) {
            for (OXMIDicPackage& used : zandic::All<OXMIDicPackage>(*package, getter)) {
                const std::string name(zandic::Name(used).View());
                if (name == _Document.PackageName()) return true;
                if (met.insert(name).second) open.push_back(zandic::Handle<OXMIDicPackage>::Share(&used));
            }
        }
    }
    return false;
}

void CycleRules::ask_Model() {
    if (!is_InRing()) return;
    for (std::uint32_t number = 0; number < _CLASSES.size(); ++number) {
        if (!_CLASSES[number].IsHere()) ask_Model(number);
    }
}

void CycleRules::ask_Model(std::uint32_t number) {
    const Party outside = _CLASSES[number];
    const auto owner = zandic::As<OXMIDicClass>(outside.object);
    if (!owner) return;
    if (const auto super = zandic::Link(*owner, &OXMIDicClass::GetSuperClass)) {
        if (const Party party = _Document.Find(zandic::Uuid(*super))) AddSuper(outside, party);
    }
    for (OXMIDicAttribute& each : zandic::OwnAttributes(*owner)) {
        if (zandic::Kind(each) != OXMDicTYPE_Relationship) continue;
        const auto relationship = zandic::As<OXMIDicRelationship>(each);
        if (!Needs(*relationship)) continue;
        const auto target = zandic::Link(*relationship, &OXMIDicRelationship::GetTarget);
        if (!target) continue;
        const Party party = _Document.Find(zandic::Uuid(*target));
        if (party) AddRelationship(outside, _Document.Find(zandic::Uuid(each)), party);
    }
}

// Cycles.

void CycleRules::Finish() {
    const auto own = static_cast<std::uint32_t>(_RELATIONSHIPS.size());
    if (own == 0) return;
    ask_Model();
    _GROUPS = Groups::Of(_NEEDS);
    std::vector<bool> isTold(_CLASSES.size(), false);
    for (std::uint32_t index = 0; index < own; ++index) {
        const std::uint32_t group = _GROUPS[_RELATIONSHIPS[index].owner];
        if (group != _GROUPS[_RELATIONSHIPS[index].target] || isTold[group]) continue;
        isTold[group] = true;
        tell_Cycle(index);
    }
}

/// The relationships of a shortest way from the target of one back to its owner.
std::vector<std::uint32_t> CycleRules::way_Back(std::uint32_t relationship) const {
    struct Came {
        std::uint32_t from;
        std::uint32_t relationship;
    };
    const std::uint32_t start = _RELATIONSHIPS[relationship].target;
    const std::uint32_t end = _RELATIONSHIPS[relationship].owner;
    std::unordered_map<std::uint32_t, Came> came{{start, Came{kNone, kNone}}};
    std::vector<std::uint32_t> reached{start};
    for (std::size_t index = 0; index < reached.size() && !came.contains(end); ++index) {
        const std::uint32_t from = reached[index];
        for (const Need& need : _NEEDS[from]) {
            if (_GROUPS[need.to] != _GROUPS[start]) continue;
            if (came.emplace(need.to, Came{from, need.relationship}).second) reached.push_back(need.to);
        }
    }
    std::vector<std::uint32_t> way;
    for (std::uint32_t at = end; at != start; at = came.at(at).from) {
        if (came.at(at).relationship != kNone) way.push_back(came.at(at).relationship);
    }
    std::reverse(way.begin(), way.end());
    return way;
}

std::string CycleRules::name_Of(const Party& party) const {
    return party.IsHere() ? _Document.Name(party.node) : _Document.QualifiedNameOf(party);
}

void CycleRules::tell_Cycle(std::uint32_t relationship) {
    std::vector<std::uint32_t> way = way_Back(relationship);
    way.insert(way.begin(), relationship);
    const std::size_t shown = std::min(way.size(), kShownSteps);
    std::string steps;
    for (std::size_t index = 0; index < shown; ++index) {
        const Relationship& step = _RELATIONSHIPS[way[index]];
        steps += fmt::format("{}{} needs {}", index == 0 ? "" : ", ", name_Of(step.party),
                             name_Of(_CLASSES[step.target]));
    }
    if (way.size() > shown) steps += fmt::format(", and {} more", way.size() - shown);
    Finding* const finding = _Document.Tell(
        rule::kMandatoryCycle, _RELATIONSHIPS[relationship].party.node,
        fmt::format("no object can be the first, since every relationship of a cycle is mandatory: {}",
                    steps));
    for (std::size_t index = 1; index < shown; ++index) {
        const Party& party = _RELATIONSHIPS[way[index]].party;
        _Document.Note(finding, party, fmt::format("{} is here", Quoted(name_Of(party))));
    }
}

}  // namespace tool
