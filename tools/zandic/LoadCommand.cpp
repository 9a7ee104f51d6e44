#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Command.h"
#include "JsonWriter.h"
#include "PackageCounts.h"
#include "Targets.h"
#include "zandic.hpp"

namespace tool {
namespace {

/// Writes lines whose columns are as wide as the total, which is the widest, needs them. A kind that no
/// package has gets no column.
void WriteLines(const std::vector<PackageCounts>& packages, bool withTimes, Output& output) {
    const PackageCounts total = SumOf(packages);
    std::size_t nameWidth = total.name.size();
    for (const PackageCounts& each : packages) nameWidth = std::max(nameWidth, each.name.size());
    const auto write = [&](const PackageCounts& line) {
        std::string text =
            fmt::format("{:<{}}  {:<{}}", line.name, nameWidth, line.uuid, zandic::UuidText::kLength);
        for (const std::string_view tagName : CountedTags()) {
            const auto counted = total.counts.find(tagName);
            if (counted == total.counts.end()) continue;
            const auto own = line.counts.find(tagName);
            text += fmt::format("  {:>{}} {}", own != line.counts.end() ? own->second : 0,
                                fmt::formatted_size("{}", counted->second), tagName);
        }
        if (withTimes) text += fmt::format("  {:>8.3f} ms", line.cost.Milliseconds());
        output.Write(text.substr(0, text.find_last_not_of(' ') + 1) + "\n");
    };
    for (const PackageCounts& each : packages) write(each);
    write(total);
}

void WriteJson(const std::vector<PackageCounts>& packages, bool withTimes, Output& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Key("packages");
    json.BeginArray();
    for (const PackageCounts& each : packages) {
        json.BeginObject();
        json.Key("name");
        json.Text(each.name);
        json.Key("uuid");
        json.Text(each.uuid);
        WriteCounts(each, withTimes, json);
        json.EndObject();
    }
    json.EndArray();
    json.Key("total");
    json.BeginObject();
    WriteCounts(SumOf(packages), withTimes, json);
    json.EndObject();
    json.EndObject();
    json.End();
}

}  // namespace

void RunLoad(Session& session, const Options& options, Output& output) {
    if (!options.noTimes && options.json) session.MeasureMemory();
    Targets(session, options).Packages();
    const std::vector<PackageCounts> packages = CountPackages(session);
    if (options.json) {
        WriteJson(packages, !options.noTimes, output);
    } else if (!packages.empty()) {
        WriteLines(packages, !options.noTimes, output);
    }
}

}  // namespace tool
