#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "CheckReport.h"
#include "Command.h"
#include "JsonWriter.h"
#include "Nearest.h"
#include "Rules.h"
#include "Style.h"

namespace tool {
namespace {

constexpr std::string_view kIndent = "    ";

/// Writes a text with blanks in front of each line.
void WriteIndented(std::string_view text, Output& output) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        output.Write(kIndent);
        output.Write(text.substr(0, end));
        output.Write("\n");
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void WriteExample(std::string_view heading, std::string_view example, Output& output) {
    if (example.empty()) return;
    output.Write(fmt::format("\n{}\n\n", Style::Output().Paint(Role::Heading, heading)));
    WriteIndented(example, output);
}

void WriteRule(const Rule& rule, Output& output) {
    const bool isError = rule.severity == ZanDicSeverity::Error;
    output.Write(
        fmt::format("{}: {}\n\n",
                    Style::Output().Paint(isError ? Role::Error : Role::Warning,
                                          fmt::format("{}[{}]", SeverityWord(rule.severity), rule.code)),
                    rule.title));
    output.Write(rule.words);
    output.Write("\n");
    WriteExample("Wrong", rule.wrong, output);
    WriteExample("Right", rule.right, output);
}

/// A line a rule.
void WriteList(const std::vector<const Rule*>& rules, Output& output) {
    std::size_t width = 0;
    for (const Rule* const rule : rules) width = std::max(width, rule->code.size());
    for (const Rule* const rule : rules) {
        output.Write(
            fmt::format("{:<7}  {:<{}}  {}\n", SeverityWord(rule->severity), rule->code, width, rule->title));
    }
}

void WriteJson(const std::vector<const Rule*>& rules, Output& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Key("rules");
    json.BeginArray();
    for (const Rule* const rule : rules) {
        json.BeginObject();
        const std::pair<std::string_view, std::string_view> members[] = {
            {"code", rule->code},   {"severity", SeverityWord(rule->severity)},
            {"title", rule->title}, {"words", rule->words},
            {"wrong", rule->wrong}, {"right", rule->right},
        };
        for (const auto& [key, text] : members) {
            json.Key(key);
            json.Text(text);
        }
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    json.End();
}

/// \returns the rules that are asked for; what is none is told to the session.
std::vector<const Rule*> RulesAskedFor(Session& session, const Options& options) {
    std::vector<const Rule*> all = AllRules();
    if (options.names.empty()) return all;
    std::vector<const Rule*> rules;
    for (const std::string& code : options.names) {
        if (const Rule* const rule = FindRule(code); rule != nullptr) {
            rules.push_back(rule);
            continue;
        }
        Nearest nearest(code);
        for (const Rule* const rule : all) nearest.Add(rule->code);
        session.Refuse(code, "there is no such code" + nearest.Question());
    }
    return rules;
}

}  // namespace

void RunExplain(Session& session, const Options& options, Output& output) {
    const std::vector<const Rule*> rules = RulesAskedFor(session, options);
    if (rules.empty()) return;
    if (options.json) return WriteJson(rules, output);
    if (options.names.empty()) return WriteList(rules, output);
    for (const Rule* const rule : rules) {
        if (rule != rules.front()) output.Write("\n\n");
        WriteRule(*rule, output);
    }
}

}  // namespace tool
