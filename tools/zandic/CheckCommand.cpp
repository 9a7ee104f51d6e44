#include <fmt/format.h>

#include <algorithm>
#include <string>

#include "Baseline.h"
#include "CheckPlan.h"
#include "CheckReport.h"
#include "CheckRun.h"
#include "Command.h"
#include "FindingList.h"
#include "Names.h"
#include "ProfilingScope.h"
#include "Streams.h"

namespace tool {
namespace {

struct Format {
    std::string_view name;
    void (*write)(const CheckReport& report, Output& output);
};

constexpr Format kFormats[] = {
    {"text", WriteText},
    {"json", WriteJson},
    {"sarif", WriteSarif},
    {"junit", WriteJunit},
};

/// The format that the options ask for; its name is one of those of the command's row.
const Format& FormatOf(const Options& options) {
    const std::string name = options.json ? "json" : options.format.value_or("text");
    return *std::find_if(std::begin(kFormats), std::end(kFormats),
                         [&](const Format& each) { return each.name == name; });
}

/// The lines of the dictionary say again what the findings say: they are passed on only where traces are
/// asked for.
class LinesAside {
public:
    LinesAside() : _Before(Lines().Rule()) {
        if (_Before == LineRule::FromDocuments) Lines().SetRule(LineRule::None);
    }
    ~LinesAside() { Lines().SetRule(_Before); }
    LinesAside(const LinesAside&) = delete;
    LinesAside& operator=(const LinesAside&) = delete;

private:
    LineRule _Before;
};

/// Adds what an operand of the command, or a value of --in, means. \returns whether it may be asked for.
bool AddOperand(const std::string& operand, Session& session, CheckPlan& plan) {
    if (!operand.empty() && IsFileOperand(operand)) {
        plan.AddFile(operand, session.Path());
        return true;
    }
    if (const auto wrong = WrongPackageName(operand)) {
        session.RejectUse(operand, *wrong);
        return false;
    }
    if (session.Path().empty()) {
        session.Refuse(operand, "there is no path to search: give --path, or set ZELDictionaryPath");
        return false;
    }
    plan.AddName(operand, session.Path());
    return true;
}

/// \returns what is to be checked; what may not be asked for is told to the session.
CheckPlan PlanOf(Session& session, const Options& options) {
    CheckPlan plan;
    const std::vector<std::string>& operands = options.names.empty() ? options.in : options.names;
    for (const std::string& operand : operands) AddOperand(operand, session, plan);
    if (!operands.empty()) return plan;
    if (session.Path().empty()) {
        session.Refuse("", "there is no path to search: give --path, or set ZELDictionaryPath");
        return plan;
    }
    plan.AddPath(session.Path(), options.all);
    if (plan.rounds.empty()) session.Refuse(session.Path(), "no package document on the path");
    return plan;
}

/// Takes out what the baseline accepts. \returns whether there is one to be used; else the fault is told.
bool ApplyBaseline(Session& session, const std::string& file, CheckReport& report) {
    std::string fault;
    const std::optional<Baseline> baseline = Baseline::Read(file, fault);
    if (!baseline) {
        session.Refuse(file, fault);
        return false;
    }
    const std::vector<bool> accepted = baseline->Accept(report.findings, report.gone);
    report.accepted = static_cast<std::size_t>(std::count(accepted.begin(), accepted.end(), true));
    EraseWithConsequences(report.findings, accepted);
    return true;
}

void WriteBaseline(Session& session, const std::string& file, const Findings& findings, Output& output) {
    const Baseline baseline(findings);
    if (const std::string fault = baseline.Write(file); !fault.empty()) return session.Refuse(file, fault);
    output.Write(fmt::format("{}: {} {} recorded\n", file, baseline.Size(),
                             baseline.Size() == 1 ? "fault" : "faults"));
}

}  // namespace

std::string_view WrongCheck(const Options& options) {
    if (options.all && !(options.names.empty() && options.in.empty())) return "--all is without a name";
    if (options.json && options.format && *options.format != "json") return "--json is --format json";
    if (options.baseline && options.writeBaseline)
        return "--baseline and --write-baseline exclude each other";
    return "";
}

void RunCheck(Session& session, const Options& options, Output& output) {
    CheckPlan plan = PlanOf(session, options);
    if (plan.rounds.empty() && plan.findings.empty()) return;

    CheckReport report;
    report.tellsConsequences = options.allFaults;
    report.isStrict = options.strict;
    {
        const LinesAside aside;
        session.Expect("checking", 1);
        const ProfilingScope step("check", "documents");
        CheckResult result = Check(session.Dictionary(), std::move(plan));
        report.documents = std::move(result.documents);
        report.findings = std::move(result.findings);
    }
    if (options.writeBaseline) return WriteBaseline(session, *options.writeBaseline, report.findings, output);
    if (options.baseline && !ApplyBaseline(session, *options.baseline, report)) return;

    FormatOf(options).write(report, output);
    if (report.IsFailed()) session.Raise(ExitStatus::Refused);
}

}  // namespace tool
