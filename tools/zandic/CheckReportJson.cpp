// The forms of the answer of `check` for programs that read JSON.
#include <fmt/format.h>

#include <map>

#include "CheckReport.h"
#include "FindingList.h"
#include "JsonWriter.h"
#include "Rules.h"

namespace tool {
namespace {

constexpr std::string_view kSarifSchema = "https://json.schemastore.org/sarif-2.1.0.json";

void Member(JsonWriter& json, std::string_view key, std::string_view text) {
    json.Key(key);
    json.Text(text);
}

void Member(JsonWriter& json, std::string_view key, std::size_t number) {
    json.Key(key);
    json.Number(static_cast<std::int64_t>(number));
}

/// File, line and column; those that there are.
void WritePlace(JsonWriter& json, const FilePlace& at) {
    if (!at.file.empty()) Member(json, "file", at.file);
    if (at.place.line == 0) return;
    Member(json, "line", static_cast<std::size_t>(at.place.line));
    Member(json, "column", static_cast<std::size_t>(at.place.column));
}

void WriteNotes(JsonWriter& json, const std::vector<FindingNote>& notes) {
    json.Key("notes");
    json.BeginArray();
    for (const FindingNote& note : notes) {
        json.BeginObject();
        WritePlace(json, note.at);
        Member(json, "text", note.text);
        json.EndObject();
    }
    json.EndArray();
}

/// Percent-encodes what an address may not hold; the name stays relative or absolute as it is.
std::string Address(std::string_view file) {
    constexpr std::string_view kPlain = "-._~/!$&'()*+,;=@";
    std::string address = file.starts_with('/') ? "file://" : "";
    for (const char c : file) {
        const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                             kPlain.find(c) != kPlain.npos;
        if (isPlain) {
            address += c;
        } else {
            address += fmt::format("%{:02X}", static_cast<unsigned char>(c));
        }
    }
    return address;
}

// SARIF

void WriteMessage(JsonWriter& json, std::string_view key, std::string_view text) {
    json.Key(key);
    json.BeginObject();
    Member(json, "text", text);
    json.EndObject();
}

void WriteRules(JsonWriter& json, const std::vector<const Rule*>& rules) {
    json.Key("rules");
    json.BeginArray();
    for (const Rule* const rule : rules) {
        json.BeginObject();
        Member(json, "id", rule->code);
        WriteMessage(json, "shortDescription", rule->title);
        WriteMessage(json, "fullDescription", rule->words);
        json.Key("defaultConfiguration");
        json.BeginObject();
        Member(json, "level", SeverityWord(rule->severity));
        json.EndObject();
        json.EndObject();
    }
    json.EndArray();
}

void WriteLocation(JsonWriter& json, const FilePlace& at) {
    json.Key("physicalLocation");
    json.BeginObject();
    json.Key("artifactLocation");
    json.BeginObject();
    Member(json, "uri", Address(at.file));
    json.EndObject();
    if (at.place.line > 0) {
        json.Key("region");
        json.BeginObject();
        Member(json, "startLine", static_cast<std::size_t>(at.place.line));
        Member(json, "startColumn", static_cast<std::size_t>(at.place.column));
        json.EndObject();
    }
    json.EndObject();
}

void WriteRelated(JsonWriter& json, const Finding& finding) {
    json.Key("relatedLocations");
    json.BeginArray();
    for (const FindingNote& note : finding.notes) {
        json.BeginObject();
        WriteLocation(json, note.at.file.empty() ? finding.at : note.at);
        WriteMessage(json, "message", note.text);
        json.EndObject();
    }
    json.EndArray();
}

void WriteResult(JsonWriter& json, const Finding& finding, std::size_t ruleNumber) {
    json.BeginObject();
    Member(json, "ruleId", finding.code);
    Member(json, "ruleIndex", ruleNumber);
    Member(json, "level", SeverityWord(finding.severity));
    WriteMessage(json, "message", finding.text);
    json.Key("locations");
    json.BeginArray();
    json.BeginObject();
    WriteLocation(json, finding.at);
    if (!finding.element.empty()) {
        json.Key("logicalLocations");
        json.BeginArray();
        json.BeginObject();
        Member(json, "fullyQualifiedName", finding.element);
        json.EndObject();
        json.EndArray();
    }
    json.EndObject();
    json.EndArray();
    if (!finding.notes.empty()) WriteRelated(json, finding);
    json.EndObject();
}

}  // namespace

void WriteJson(const CheckReport& report, Output& output) {
    const std::vector<std::size_t> folded = CountConsequences(report.findings);
    std::size_t foldedInAll = 0;
    JsonWriter json(output);
    json.BeginObject();
    json.Key("documents");
    json.BeginArray();
    for (const std::string& document : report.documents) json.Text(document);
    json.EndArray();
    json.Key("findings");
    json.BeginArray();
    for (std::size_t number = 0; number < report.findings.size(); ++number) {
        const Finding& finding = report.findings[number];
        if (!report.IsTold(finding)) {
            ++foldedInAll;
            continue;
        }
        json.BeginObject();
        WritePlace(json, finding.at);
        Member(json, "severity", SeverityWord(finding.severity));
        Member(json, "code", finding.code);
        Member(json, "text", finding.text);
        Member(json, "element", finding.element);
        WriteNotes(json, finding.notes);
        Member(json, "consequences", folded[number]);
        if (finding.cause != Finding::kNone) Member(json, "cause", finding.cause);
        json.EndObject();
    }
    json.EndArray();
    Member(json, "errors", report.Errors());
    Member(json, "warnings", report.Warnings());
    Member(json, "folded", foldedInAll);
    Member(json, "accepted", report.accepted);
    json.EndObject();
    json.End();
}

void WriteSarif(const CheckReport& report, Output& output) {
    const std::vector<const Rule*> rules = AllRules();
    std::map<std::string_view, std::size_t> numbers;
    for (std::size_t number = 0; number < rules.size(); ++number)
        numbers.emplace(rules[number]->code, number);

    JsonWriter json(output);
    json.BeginObject();
    Member(json, "$schema", kSarifSchema);
    Member(json, "version", "2.1.0");
    json.Key("runs");
    json.BeginArray();
    json.BeginObject();
    json.Key("tool");
    json.BeginObject();
    json.Key("driver");
    json.BeginObject();
    Member(json, "name", "zandic");
    Member(json, "version", ZANDIC_VERSION);
    WriteRules(json, rules);
    json.EndObject();
    json.EndObject();
    Member(json, "columnKind", "unicodeCodePoints");
    json.Key("results");
    json.BeginArray();
    for (const Finding& finding : report.findings) {
        if (report.IsTold(finding)) WriteResult(json, finding, numbers.at(finding.code));
    }
    json.EndArray();
    json.EndObject();
    json.EndArray();
    json.EndObject();
    json.End();
}

}  // namespace tool
