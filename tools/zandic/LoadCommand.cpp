#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "Command.h"
#include "Model.h"
#include "OXMIDicInterface.h"
#include "OXMIDicMethod.h"
#include "RboWalk.h"
#include "Targets.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;

/// The kinds that are counted, in the order of the columns. A kind that no package has gets no column.
constexpr std::string_view kCountedTags[] = {
    tag::kClass,
    tag::kInstance,
    tag::kExtension,
    tag::kSimple,
    tag::kRelationship,
    tag::kInverse,
    tag::kUnique,
    tag::kAttributeBlock,
    tag::kInterface,
    tag::kMethod,
    tag::kParameter,
    tag::kEnum,
    tag::kEnumerator,
    tag::kCategory,
    tag::kRBOClass,
    tag::kRBOMapping,
    tag::kRBORoot,
    tag::kRBOComponent,
    tag::kRBOPathExpression,
};

/// One line of the answer.
struct Line {
    std::string name;
    std::string uuid;
    std::map<std::string_view, int> counts;
    LoadClock::Duration own{};
};

template <class Object, class Getter>
void CountMembers(Object& object, Getter getter, Line& line) {
    for (OXMIDicElementH& member : zandic::All<OXMIDicElementH>(object, getter)) ++line.counts[TagOf(member)];
}

void CountMethods(OXMIDicInterface& interface, Line& line) {
    for (OXMIDicMethod& method : zandic::All<OXMIDicMethod>(interface, &OXMIDicInterface::GetMethods)) {
        ++line.counts[TagOf(method)];
        CountMembers(method, &OXMIDicMethod::GetParameters, line);
    }
}

void CountBelow(OXMIDicElement& element, Line& line) {
    if (const auto mapping = zandic::As<OXMIDicRBOMapping>(element)) {
        ForEachBelow(*mapping,
                     [&line](OXMIDicElement& each, OXMIDicElement&) { ++line.counts[TagOf(each)]; });
    } else if (const auto enumeration = zandic::As<OXMIDicEnum>(element)) {
        CountMembers(*enumeration, &OXMIDicEnum::GetEnumerators, line);
    } else if (zandic::Kind(element) == OXMDicTYPE_Interface) {
        CountMethods(*zandic::As<OXMIDicInterface>(element), line);
    } else if (const auto classElement = zandic::As<OXMIDicClass>(element)) {
        CountMembers(*classElement, &OXMIDicClass::GetClassElements, line);
        CountMembers(*classElement, &OXMIDicClass::GetUniques, line);
        CountMembers(*classElement, &OXMIDicClass::GetClassAttBlocks, line);
    }
}

Line LineOf(OXMIDicPackage& package) {
    Line line{std::string(zandic::Name(package).View()),
              std::string(zandic::UuidText(zandic::Uuid(package)).View()),
              {},
              {}};
    for (OXMIDicElement& element : zandic::All<OXMIDicElement>(package, &OXMIDicPackage::GetElements)) {
        ++line.counts[TagOf(element)];
        CountBelow(element, line);
    }
    return line;
}

/// \returns one line for each package, those first whose load ended first.
std::vector<Line> LinesOf(const Session& session) {
    std::vector<Line> lines;
    for (const auto& [name, own] : session.LoadTimes()) {
        const auto package = session.Dictionary().Package(name);
        if (!package) continue;  // refused
        lines.push_back(LineOf(*package));
        lines.back().own = own;
    }
    return lines;
}

Line TotalOf(const std::vector<Line>& lines) {
    Line total{
        "total", fmt::format("{} {}", lines.size(), lines.size() == 1 ? "package" : "packages"), {}, {}};
    for (const Line& line : lines) {
        for (const auto& [tagName, count] : line.counts) total.counts[tagName] += count;
        total.own += line.own;
    }
    return total;
}

/// Writes lines whose columns are as wide as the total, which is the widest, needs them.
void WriteLines(const std::vector<Line>& lines, const Line& total, Output& output) {
    std::size_t nameWidth = total.name.size();
    for (const Line& line : lines) nameWidth = std::max(nameWidth, line.name.size());
    const auto write = [&](const Line& line) {
        std::string text =
            fmt::format("{:<{}}  {:<{}}", line.name, nameWidth, line.uuid, zandic::UuidText::kLength);
        for (const std::string_view tagName : kCountedTags) {
            const auto counted = total.counts.find(tagName);
            if (counted == total.counts.end()) continue;
            const auto own = line.counts.find(tagName);
            text += fmt::format("  {:>{}} {}", own != line.counts.end() ? own->second : 0,
                                fmt::formatted_size("{}", counted->second), tagName);
        }
        const std::chrono::duration<double, std::milli> milliseconds = line.own;
        output.Write(text + fmt::format("  {:>8.3f} ms\n", milliseconds.count()));
    };
    for (const Line& line : lines) write(line);
    write(total);
}

}  // namespace

void RunLoad(Session& session, const Options& options, Output& output) {
    Targets(session, options).Packages();
    const std::vector<Line> lines = LinesOf(session);
    if (!lines.empty()) WriteLines(lines, TotalOf(lines), output);
}

}  // namespace tool
