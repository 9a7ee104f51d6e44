#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Command.h"
#include "Hierarchy.h"
#include "JsonWriter.h"
#include "Model.h"
#include "Objects.h"
#include "PackageCounts.h"
#include "References.h"
#include "Sheet.h"
#include "Style.h"
#include "Targets.h"
#include "ZELHash.h"

namespace tool {
namespace {

constexpr int kDefaultTop = 10;
constexpr std::int64_t kKibi = 1024;

/// Something that stands high in a list.
struct Ranked {
    int number = 0;
    std::string name;
    std::string note;
    int own = 0;                                ///< of a class: its own attributes
    std::map<ReferenceKind, int> references{};  ///< of what is referred to: by kind
};

/// What is told of the loaded packages.
struct Stats {
    std::vector<PackageCounts> packages;
    std::map<std::string, int> deepest;  ///< by package: classes on its longest way down, the root included
    std::vector<Ranked> deep;
    std::vector<Ranked> wide;
    std::vector<Ranked> referredTo;
};

/// Keeps the first \p top in the order of their numbers, then of their names.
void Rank(std::vector<Ranked>& list, std::size_t top) {
    const auto isBefore = [](const Ranked& a, const Ranked& b) {
        return a.number != b.number ? a.number > b.number : a.name < b.name;
    };
    const std::size_t kept = std::min(top, list.size());
    std::partial_sort(list.begin(), list.begin() + static_cast<std::ptrdiff_t>(kept), list.end(), isBefore);
    list.resize(kept);
}

/// Goes down the hierarchies and knows, in each class, how many attributes it has. A redefinition counts
/// once. Linear in classes and own attributes.
class WidthCounter {
public:
    /// Goes on to a class, which stands behind what it is derived from. \returns the number of its
    /// attributes.
    int Enter(const HierarchyNode& node) {
        while (_LEVELS.size() > static_cast<std::size_t>(node.depth)) Leave();
        std::vector<std::string> names;
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(*node.element)) {
            names.emplace_back(zandic::Name(attribute).View());
            if (_COUNTS[names.back()]++ == 0) ++_Width;
        }
        _LEVELS.push_back(std::move(names));
        return _Width;
    }

private:
    void Leave() {
        for (const std::string& name : _LEVELS.back()) {
            if (--_COUNTS[name] == 0) --_Width;
        }
        _LEVELS.pop_back();
    }

    std::vector<std::vector<std::string>> _LEVELS;  ///< the own names of each class on the way down
    std::unordered_map<std::string, int, ZELTextHash> _COUNTS;  ///< how many classes on the way have it
    int _Width = 0;
};

std::string PackageNameIn(const std::string& name) { return name.substr(0, name.find(kNameSeparator)); }

void AddHierarchies(OXMIDicPackage& package, Stats& stats) {
    for (const ClassHandle& root : HierarchyElements(package)) {
        if (AboveOf(*root)) continue;
        const std::string rootName(zandic::Name(*root).View());
        std::vector<HierarchyNode> nodes;
        AppendBelow(*root, 0, std::nullopt, true, nodes);
        WidthCounter width;
        for (const HierarchyNode& node : nodes) {
            const std::string name = QualifiedName(*node.element);
            const int depth = node.depth + 1;
            int& deepest = stats.deepest[PackageNameIn(name)];
            deepest = std::max(deepest, depth);
            stats.deep.push_back({depth, name, "below " + rootName});
            const int own = zandic::OwnAttributes(*node.element).Size();
            const int all = width.Enter(node);
            stats.wide.push_back({all, name, fmt::format("{} own", own), own});
        }
    }
}

std::string NoteOf(const std::map<ReferenceKind, int>& references) {
    std::vector<std::string> parts;
    parts.reserve(references.size());
    for (const auto& [kind, count] : references) {
        parts.push_back(fmt::format("{} {}", count, ReferenceWord(kind)));
    }
    return Joined(parts);
}

void AddReferences(const zandic::Dictionary& dictionary, Stats& stats) {
    std::vector<std::pair<zandic::Handle<OXMIDicElementH>, std::map<ReferenceKind, int>>> targets;
    UuidMap<std::size_t> places;
    ForEachReference(dictionary, [&](const Reference& reference) {
        const bool isCounted = zandic::Kind(reference.to) != OXMDicTYPE_Primitive &&
                               reference.kind != ReferenceKind::Redefinition;
        if (!isCounted) return;
        const auto [place, isNew] = places.try_emplace(zandic::Uuid(reference.to), targets.size());
        if (isNew) targets.push_back({zandic::As<OXMIDicElementH>(reference.to), {}});
        ++targets[place->second].second[reference.kind];
    });
    for (auto& [object, references] : targets) {
        int number = 0;
        for (const auto& [kind, count] : references) number += count;
        stats.referredTo.push_back(
            {number, QualifiedName(*object), NoteOf(references), 0, std::move(references)});
    }
}

Stats StatsOf(const Session& session, std::size_t top) {
    Stats stats{CountPackages(session), {}, {}, {}, {}};
    ForEachPackage(session.Dictionary(), [&](OXMIDicPackage& package) { AddHierarchies(package, stats); });
    AddReferences(session.Dictionary(), stats);
    std::erase_if(stats.deep, [](const Ranked& each) { return each.number < 2; });
    std::erase_if(stats.wide, [](const Ranked& each) { return each.number == 0; });
    Rank(stats.deep, top);
    Rank(stats.wide, top);
    Rank(stats.referredTo, top);
    return stats;
}

std::string Heading(std::string_view text) { return Style::Output().Paint(Role::Heading, text) + "\n"; }

std::size_t WidthOfNumber(int number) { return fmt::formatted_size("{}", number); }

void WriteKinds(const PackageCounts& total, Output& output) {
    output.Write(Heading(fmt::format(
        "{} in {}", Counted(static_cast<std::size_t>(total.Total()), "object", "objects"), total.uuid)));
    std::size_t width = 0;
    for (const auto& [tagName, count] : total.counts) width = std::max(width, WidthOfNumber(count));
    for (const std::string_view tagName : CountedTags()) {
        const auto found = total.counts.find(tagName);
        if (found != total.counts.end()) {
            output.Write(fmt::format("  {:>{}}  {}\n", found->second, width, tagName));
        }
    }
}

void WritePackages(const Stats& stats, const PackageCounts& total, bool withCost, Output& output) {
    std::size_t nameWidth = total.name.size();
    for (const PackageCounts& each : stats.packages) nameWidth = std::max(nameWidth, WidthOf(each.name));
    std::string heading =
        fmt::format("\n{:<{}}  {:>9}  {:>7}", "Packages", nameWidth + 2, "objects", "deepest");
    if (withCost) heading += fmt::format("  {:>12}  {:>12}", "load time", "memory");
    output.Write(Heading(heading));
    const auto write = [&](const PackageCounts& line, int deepest) {
        std::string text = fmt::format("  {:<{}}  {:>9}  {:>7}", line.name, nameWidth, line.Total(), deepest);
        if (withCost) {
            text += fmt::format("  {:>9.3f} ms  {:>8} KiB", line.cost.Milliseconds(),
                                (line.cost.bytes + kKibi - 1) / kKibi);
        }
        output.Write(text + "\n");
    };
    int deepestOfAll = 0;
    for (const PackageCounts& each : stats.packages) {
        const auto deepest = stats.deepest.find(each.name);
        write(each, deepest != stats.deepest.end() ? deepest->second : 0);
        if (deepest != stats.deepest.end()) deepestOfAll = std::max(deepestOfAll, deepest->second);
    }
    if (stats.packages.size() > 1) write(total, deepestOfAll);
}

void WriteRanked(std::string_view heading, const std::vector<Ranked>& list, Output& output) {
    if (list.empty()) return;
    const std::size_t width = WidthOfNumber(list.front().number);
    std::vector<std::vector<std::string>> rows;
    rows.reserve(list.size());
    for (const Ranked& each : list) {
        rows.push_back({fmt::format("{:>{}}", each.number, width), each.name, each.note});
    }
    Sheet sheet(output);
    sheet.Section(heading);
    sheet.Rows(rows);
}

void WriteText(const Stats& stats, bool withCost, Output& output) {
    const PackageCounts total = SumOf(stats.packages);
    WriteKinds(total, output);
    WritePackages(stats, total, withCost, output);
    WriteRanked("Deepest in a hierarchy", stats.deep, output);
    WriteRanked("Widest classes, by attributes", stats.wide, output);
    WriteRanked("Most referred to", stats.referredTo, output);
}

void WriteJson(const Stats& stats, bool withCost, Output& output) {
    JsonWriter json(output);
    const auto list = [&json](std::string_view key, const std::vector<Ranked>& ranked,
                              std::string_view number, const auto& more) {
        json.Key(key);
        json.BeginArray();
        for (const Ranked& each : ranked) {
            json.BeginObject();
            json.Key("name");
            json.Text(each.name);
            json.Key(number);
            json.Number(each.number);
            more(each);
            json.EndObject();
        }
        json.EndArray();
    };
    json.BeginObject();
    json.Key("packages");
    json.BeginArray();
    for (const PackageCounts& each : stats.packages) {
        const auto deepest = stats.deepest.find(each.name);
        json.BeginObject();
        json.Key("name");
        json.Text(each.name);
        json.Key("uuid");
        json.Text(each.uuid);
        json.Key("deepest");
        json.Number(deepest != stats.deepest.end() ? deepest->second : 0);
        WriteCounts(each, withCost, json);
        json.EndObject();
    }
    json.EndArray();
    json.Key("total");
    json.BeginObject();
    WriteCounts(SumOf(stats.packages), withCost, json);
    json.EndObject();
    list("deepest", stats.deep, "depth", [](const Ranked&) {});
    list("widest", stats.wide, "attributes", [&json](const Ranked& each) {
        json.Key("own");
        json.Number(each.own);
    });
    list("mostReferredTo", stats.referredTo, "references", [&json](const Ranked& each) {
        json.Key("by");
        json.BeginObject();
        for (const auto& [kind, count] : each.references) {
            json.Key(ReferenceWord(kind));
            json.Number(count);
        }
        json.EndObject();
    });
    json.EndObject();
    json.End();
}

}  // namespace

void RunStats(Session& session, const Options& options, Output& output) {
    const bool withCost = !options.noTimes;
    if (withCost) session.MeasureMemory();
    Targets(session, options).Packages();
    const Stats stats = StatsOf(session, static_cast<std::size_t>(options.top.value_or(kDefaultTop)));
    if (options.json) {
        WriteJson(stats, withCost, output);
    } else if (!stats.packages.empty()) {
        WriteText(stats, withCost, output);
    }
}

}  // namespace tool
