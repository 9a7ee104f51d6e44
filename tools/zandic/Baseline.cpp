#include "Baseline.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>
#include <utility>

#include "JsonWriter.h"
#include "Output.h"
#include "ZELDurableFile.h"
#include "ZELFile.h"

namespace tool {
namespace {

constexpr std::string_view kNoBaseline = "this is no baseline: make it with --write-baseline";

std::string WithReason(std::string_view text, const std::string& reason) {
    return reason.empty() ? std::string(text) : fmt::format("{}: {}", text, reason);
}

/// \returns a text of an entry; none when it has no such text.
std::optional<std::string> TextOf(const nlohmann::json& entry, const char* key) {
    const auto member = entry.find(key);
    if (member == entry.end() || !member->is_string()) return std::nullopt;
    return member->get<std::string>();
}

}  // namespace

Baseline::Key Baseline::KeyOf(const Finding& finding) {
    const std::string& file = finding.at.file;
    return {file.substr(file.find_last_of('/') + 1), std::string(finding.code), finding.element,
            finding.text};
}

Baseline::Baseline(const Findings& findings) {
    for (const Finding& finding : findings) {
        if (finding.cause == Finding::kNone) ++_COUNTS[KeyOf(finding)];
    }
}

std::optional<Baseline> Baseline::Read(const std::string& file, std::string& fault) {
    ZELFileContent content;
    std::string reason;
    if (Failed(ZELReadFile(file.c_str(), content, &reason))) {
        fault = WithReason("it cannot be read", reason);
        return std::nullopt;
    }
    const nlohmann::json json = nlohmann::json::parse(content.View(), nullptr, false);
    const bool isObject = json.is_object() && json.contains("findings") && json["findings"].is_array();
    fault = kNoBaseline;
    if (!isObject) return std::nullopt;
    Baseline baseline;
    for (const nlohmann::json& entry : json["findings"]) {
        if (!entry.is_object()) return std::nullopt;
        auto name = TextOf(entry, "file");
        auto code = TextOf(entry, "code");
        auto element = TextOf(entry, "element");
        auto text = TextOf(entry, "text");
        const auto count = entry.find("count");
        const bool isEntry =
            name && code && element && text && count != entry.end() && count->is_number_unsigned();
        if (!isEntry) return std::nullopt;
        baseline._COUNTS[{std::move(*name), std::move(*code), std::move(*element), std::move(*text)}] +=
            count->get<std::size_t>();
    }
    fault.clear();
    return baseline;
}

std::string Baseline::Write(const std::string& file) const {
    std::string text;
    Output output(text);
    JsonWriter json(output);
    json.BeginObject();
    json.Key("findings");
    json.BeginArray();
    for (const auto& [key, count] : _COUNTS) {
        const auto& [name, code, element, what] = key;
        json.BeginObject();
        json.Key("file");
        json.Text(name);
        json.Key("code");
        json.Text(code);
        json.Key("element");
        json.Text(element);
        json.Key("text");
        json.Text(what);
        json.Key("count");
        json.Number(static_cast<std::int64_t>(count));
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    json.End();
    output.Flush();

    ZELDurableFile written;
    written.Open(file);
    written.Append(text);
    if (Failed(written.Commit())) return WithReason("it could not be written", written.Reason());
    return "";
}

std::vector<bool> Baseline::Accept(const Findings& findings, std::size_t& gone) const {
    std::map<Key, std::size_t> left = _COUNTS;
    gone = Size();
    std::vector<bool> accepted(findings.size());
    for (std::size_t number = 0; number < findings.size(); ++number) {
        if (findings[number].cause != Finding::kNone) continue;
        const auto entry = left.find(KeyOf(findings[number]));
        if (entry == left.end() || entry->second == 0) continue;
        --entry->second;
        --gone;
        accepted[number] = true;
    }
    return accepted;
}

std::size_t Baseline::Size() const {
    std::size_t size = 0;
    for (const auto& [key, count] : _COUNTS) size += count;
    return size;
}

}  // namespace tool
