#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Command.h"
#include "JsonWriter.h"
#include "Model.h"
#include "Names.h"
#include "Sheet.h"
#include "Targets.h"
#include "Why.h"

namespace tool {
namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string PlaceText(const FilePlace& at) {
    if (at.place.line == 0) return at.file;
    return fmt::format("{}:{}:{}", at.file, at.place.line, at.place.column);
}

void AddRow(std::string_view word, const WhyPlace& place, Rows& rows) {
    rows.push_back({std::string(word), place.name, PlaceText(place.at)});
}

void ShowOrigin(const Why& why, Sheet& sheet) {
    Rows rows;
    AddRow("declared", why.attribute, rows);
    if (why.owner.name != why.declaredIn.name) {
        AddRow("in", why.declaredIn, rows);
        for (std::size_t index = why.through.size(); index > 0; --index) {
            AddRow("inherited by", why.through[index - 1], rows);
        }
        AddRow("inherited by", why.owner, rows);
    } else {
        AddRow("in", why.owner, rows);
    }
    sheet.Section("Where it comes from");
    sheet.Rows(rows);
}

void ShowRedefined(const Why& why, Sheet& sheet) {
    if (why.redefines.empty()) return;
    sheet.Section("What it redefines");
    for (const WhyRedefined& each : why.redefines) {
        Rows rows;
        AddRow("redefines", each.attribute, rows);
        sheet.Rows(rows);
        if (each.changes.empty()) sheet.Line("  and changes nothing of it");
        Rows changes;
        for (const WhyChange& change : each.changes) {
            changes.push_back(
                {"  " + std::string(change.property), fmt::format("{} -> {}", change.before, change.after)});
        }
        if (!changes.empty()) sheet.Rows(changes);
    }
}

void ShowBlock(const Why& why, Sheet& sheet) {
    const WhyBlock& block = why.block;
    sheet.Section("Its attribute block");
    if (block.kind == WhyBlock::Kind::None) {
        sheet.Line(fmt::format("none: {}", block.reason));
        return;
    }
    if (block.kind == WhyBlock::Kind::Default) {
        sheet.Line(fmt::format("the default block of {}: {}", block.owner, block.reason));
        return;
    }
    Rows rows;
    for (std::size_t index = 0; index < block.chain.size(); ++index) {
        AddRow(index == 0 ? "in" : "which extends", block.chain[index], rows);
    }
    rows.push_back({"listed there as", block.listedAs, ""});
    sheet.Rows(rows);
}

void ShowExtensions(const Why& why, Sheet& sheet) {
    if (!why.extensions.empty()) {
        sheet.Section(fmt::format("Extensions of the class ({})", why.extensions.size()));
        Rows rows;
        for (const WhyExtension& each : why.extensions) {
            rows.push_back({each.extension.name, "extends " + each.of, PlaceText(each.extension.at)});
        }
        sheet.Rows(rows);
    }
    if (!why.extends.empty()) {
        sheet.Section(fmt::format("Classes that its extension extends ({})", why.extends.size()));
        Rows rows;
        for (const WhyPlace& each : why.extends) rows.push_back({each.name, PlaceText(each.at)});
        sheet.Rows(rows);
    }
}

void ShowScopes(const Why& why, Sheet& sheet) {
    if (why.scopes.empty()) return;
    sheet.Section(fmt::format("Classes to which it applies ({})", why.scopes.size()));
    Rows rows;
    for (const WhyScope& each : why.scopes) {
        const bool covers = each.covers.value_or(false);
        rows.push_back({each.of.name,
                        !each.covers ? ""
                        : covers     ? "covers this class"
                                     : "does not cover this class",
                        PlaceText(each.of.at)});
    }
    sheet.Rows(rows);
}

void Show(const Why& why, Sheet& sheet) {
    sheet.Title(why.tag, why.attribute.name);
    sheet.Field("Asked of", why.owner.name);
    sheet.Field("Scope", why.scopeWord);
    ShowOrigin(why, sheet);
    ShowRedefined(why, sheet);
    ShowBlock(why, sheet);
    ShowExtensions(why, sheet);
    ShowScopes(why, sheet);
}

void WriteText(std::string_view key, std::string_view text, JsonWriter& json) {
    json.Key(key);
    json.Text(text);
}

/// Writes the members of a place into the object that is open.
void WritePlace(const WhyPlace& place, JsonWriter& json) {
    WriteText("name", place.name, json);
    if (place.at.file.empty()) return;
    WriteText("file", place.at.file, json);
    if (place.at.place.line == 0) return;
    json.Key("line");
    json.Number(place.at.place.line);
    json.Key("column");
    json.Number(place.at.place.column);
}

void WritePlace(std::string_view key, const WhyPlace& place, JsonWriter& json) {
    json.Key(key);
    json.BeginObject();
    WritePlace(place, json);
    json.EndObject();
}

/// Writes an array of objects: \p write adds the members of each.
template <class Each, class Write>
void WriteAll(std::string_view key, const std::vector<Each>& all, JsonWriter& json, Write&& write) {
    json.Key(key);
    json.BeginArray();
    for (const Each& each : all) {
        json.BeginObject();
        write(each);
        json.EndObject();
    }
    json.EndArray();
}

void WriteBlock(const WhyBlock& block, JsonWriter& json) {
    constexpr std::string_view kKinds[] = {"declared", "default", "none"};
    json.Key("block");
    json.BeginObject();
    WriteText("kind", kKinds[static_cast<std::size_t>(block.kind)], json);
    WriteText("class", block.owner, json);
    WriteText("reason", block.reason, json);
    if (block.kind == WhyBlock::Kind::Declared) {
        WriteText("name", block.name, json);
        WriteText("listedAs", block.listedAs, json);
        WriteAll("chain", block.chain, json, [&](const WhyPlace& each) { WritePlace(each, json); });
    }
    json.EndObject();
}

void Write(const Why& why, JsonWriter& json) {
    json.BeginObject();
    WriteText("asked", why.asked, json);
    WriteText("kind", why.tag, json);
    WritePlace("attribute", why.attribute, json);
    WritePlace("class", why.owner, json);
    WritePlace("declaredIn", why.declaredIn, json);
    WriteAll("through", why.through, json, [&](const WhyPlace& each) { WritePlace(each, json); });
    WriteAll("redefines", why.redefines, json, [&](const WhyRedefined& each) {
        WritePlace(each.attribute, json);
        WriteAll("changes", each.changes, json, [&](const WhyChange& change) {
            WriteText("property", change.property, json);
            WriteText("before", change.before, json);
            WriteText("after", change.after, json);
        });
    });
    WriteBlock(why.block, json);
    WriteAll("extensions", why.extensions, json, [&](const WhyExtension& each) {
        WritePlace(each.extension, json);
        WriteText("extends", each.of, json);
    });
    WriteAll("extends", why.extends, json, [&](const WhyPlace& each) { WritePlace(each, json); });
    if (!why.scopeWord.empty()) WriteText("scope", why.scopeWord, json);
    WriteAll("scopes", why.scopes, json, [&](const WhyScope& each) {
        WritePlace(each.of, json);
        if (!each.covers) return;
        json.Key("covers");
        json.Flag(*each.covers);
    });
    json.EndObject();
}

/// \returns the class that an attribute was asked of; that which declares it, where only the attribute was
/// named.
zandic::Handle<OXMIDicClass> OwnerAskedFor(const Session& session, const std::string& asked,
                                           OXMIDicAttribute& attribute) {
    const Target target = ParseTarget(asked);
    if (target.uuid) return zandic::Link(attribute, &OXMIDicAttribute::GetOrigin);
    const auto package = session.Package(target.package);
    const auto element = package ? zandic::Find(*package, &OXMIDicPackage::GetElement, target.element)
                                 : zandic::Handle<OXMIDicElement>();
    return element ? zandic::As<OXMIDicClass>(element) : zandic::Handle<OXMIDicClass>();
}

/// Answers for every attribute among the objects; what is none is told.
std::vector<Why> FindAnswers(Session& session, const std::vector<AskedObject>& objects) {
    Documents documents;
    std::vector<Why> answers;
    for (const AskedObject& each : objects) {
        // A unique key or a block may bear the same name: then the attribute is meant.
        const auto isAnswer = [&](const AskedObject& other) {
            return other.asked == each.asked && IsAttribute(*other.object);
        };
        if (!IsAttribute(*each.object)) {
            if (std::any_of(objects.begin(), objects.end(), isAnswer)) continue;
            session.Refuse(each.asked, fmt::format("{} {} is no attribute: give PACKAGE::CLASS::ATTRIBUTE",
                                                   TagOf(*each.object), QualifiedName(*each.object)));
            continue;
        }
        const auto attribute = zandic::As<OXMIDicAttribute>(each.object);
        const auto owner = OwnerAskedFor(session, each.asked, *attribute);
        if (!owner) {
            session.Refuse(each.asked, "its class is gone");
            continue;
        }
        answers.push_back(FindOutWhy(session, documents, *owner, *attribute));
        answers.back().asked = each.asked;
    }
    return answers;
}

}  // namespace

void RunWhy(Session& session, const Options& options, Output& output) {
    const std::vector<Why> answers = FindAnswers(session, Targets(session, options).Objects());
    if (options.json) {
        JsonWriter json(output);
        json.BeginObject();
        json.Key("answers");
        json.BeginArray();
        for (const Why& each : answers) Write(each, json);
        json.EndArray();
        json.EndObject();
        return json.End();
    }
    Sheet sheet(output);
    for (const Why& each : answers) {
        if (&each != &answers.front()) sheet.Separate();
        Show(each, sheet);
    }
}

}  // namespace tool
