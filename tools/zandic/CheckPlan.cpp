#include "CheckPlan.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <system_error>
#include <utility>

#include "ZANDicValueWords.h"
#include "ZELEnvironment.h"
#include "ZanDicDiagnostic.h"

namespace tool {
namespace {

namespace fs = std::filesystem;
using ZANDicFormat::kContentWords;

constexpr std::string_view kMetadata = kContentWords[OXMDicCONTENT_metadata].word;
constexpr std::string_view kTuning = kContentWords[OXMDicCONTENT_tuning].word;
constexpr std::string_view kShadowed = "shadowed-document";

/// \returns the content word that a file's name ends with, behind a dot and something before that; else none.
std::string_view ContentWordOf(std::string_view name) {
    for (const auto& row : kContentWords) {
        if (name.size() > row.word.size() + 1 && name.ends_with(row.word) &&
            name[name.size() - row.word.size() - 1] == '.') {
            return row.word;
        }
    }
    return {};
}

std::string_view PackageIn(std::string_view name) { return name.substr(0, name.find('.')); }

std::string Joined(std::string_view name, std::string_view content) {
    return std::string(name).append(".").append(content);
}

/// \returns the name, with content word, of the document of a package: the first kind that there is; empty
/// when there is none.
std::string DocumentOf(const std::string& directories, std::string_view package) {
    for (const auto& row : kContentWords) {
        std::string name = Joined(package, row.word);
        if (row.word != kTuning && ZELFindPath(directories, name)) return name;
    }
    return {};
}

/// The documents in a directory by name; none when it cannot be read.
std::vector<std::string> DocumentsIn(const std::string& directory, bool ofEveryKind) {
    std::vector<std::string> names;
    std::error_code fault;
    for (fs::directory_iterator entry(directory, fault), end; !fault && entry != end;
         entry.increment(fault)) {
        std::string name = entry->path().filename().string();
        const std::string_view content = ContentWordOf(name);
        std::error_code none;
        if (content.empty() || (!ofEveryKind && content != kMetadata) || !entry->is_regular_file(none))
            continue;
        names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

Finding FileFinding(std::string_view code, ZanDicSeverity severity, const std::string& file,
                    std::string text) {
    return {code, severity, {ShownFile(file)}, std::move(text), ""};
}

}  // namespace

bool IsFileOperand(std::string_view operand) {
    return operand.find_first_of("/\\") != std::string_view::npos || !ContentWordOf(operand).empty();
}

std::string ShownFile(std::string_view file) {
    while (file.starts_with("./") && file.size() > 2) file.remove_prefix(2);
    return std::string(file);
}

void CheckPlan::add(const std::string& directories, CheckTarget target) {
    // A package is in memory once: a second document of its name waits for the next round.
    for (std::size_t at = 0;; ++at) {
        if (at == rounds.size()) rounds.push_back({directories});
        CheckRound& round = rounds[at];
        if (round.directories != directories) continue;
        const auto [place, isNew] =
            round.places.try_emplace(std::string(PackageIn(target.name)), round.targets.size());
        if (isNew) return round.targets.push_back(std::move(target));
        CheckTarget& other = round.targets[place->second];
        if (other.name != target.name) continue;
        other.isForTuning = other.isForTuning && target.isForTuning;
        return;
    }
}

void CheckPlan::AddName(std::string_view name, const std::string& path) {
    std::string document = DocumentOf(path, name);
    if (document.empty()) document = Joined(name, kMetadata);
    add(path, {document, ShownFile(ZELFindPath(path, document).value_or(""))});
}

void CheckPlan::AddFile(std::string_view file, const std::string& path) {
    using enum ZanDicDiagnosticCode;

    std::string native = ZELNativePath(file);
    std::error_code fault;
    if (native.find('/') == native.npos && !fs::exists(native, fault)) {
        // A document of the path, as other commands take it.
        native = ZELFindPath(path, native).value_or(native);
    }
    const std::size_t separator = native.rfind('/');
    const std::string name = native.substr(separator + 1);
    const std::string directory(separator == native.npos ? std::string_view(".")
                                : separator == 0         ? std::string_view("/")
                                                         : std::string_view(native).substr(0, separator));

    const auto refuse = [&](ZanDicDiagnosticCode code, std::string text) {
        findings.push_back(
            FileFinding(ZanDicDiagnosticName(code), ZanDicSeverity::Error, native, std::move(text)));
    };
    if (fs::is_directory(native, fault)) {
        return refuse(FileNotFound, "it is a directory: give it by --path, with --all for all that is in it");
    }
    if (!fs::is_regular_file(native, fault)) return refuse(FileNotFound, "there is no such document");
    if (ContentWordOf(name).empty()) {
        return refuse(InvalidFileExtension, "its name does not end in a content word, such as .metadata");
    }
    if (directory.find(':') != directory.npos) {
        return refuse(FileNotFound, "a directory with a colon in its name cannot be searched");
    }
    const std::string directories = path.empty() ? directory : directory + ":" + path;
    if (ContentWordOf(name) == kTuning) return add_Tuning(directories, PackageIn(name), native);
    add(directories, {name, ShownFile(ZELFindPath(directories, name).value_or(native))});
}

void CheckPlan::add_Tuning(const std::string& directories, std::string_view package,
                           const std::string& file) {
    const std::string document = DocumentOf(directories, package);
    if (!document.empty()) {
        return add(directories, {document, ShownFile(ZELFindPath(directories, document).value_or("")), true});
    }
    findings.push_back(
        FileFinding(ZanDicDiagnosticName(ZanDicDiagnosticCode::FileNotFound), ZanDicSeverity::Error, file,
                    fmt::format("there is no document of package \"{}\", which it tunes", package)));
}

void CheckPlan::AddPath(const std::string& path, bool ofEveryKind) {
    std::map<std::string, std::string> first;  // by name
    for (std::string_view rest = path; !rest.empty();) {
        const std::string directory(rest.substr(0, rest.find(':')));
        rest.remove_prefix(std::min(directory.size() + 1, rest.size()));
        if (directory.empty()) continue;
        for (const std::string& name : DocumentsIn(directory, ofEveryKind)) {
            const std::string file =
                fmt::format("{}{}{}", directory, directory.back() == '/' ? "" : "/", name);
            const auto [entry, isFirst] = first.try_emplace(name, file);
            std::error_code fault;
            if (isFirst || !ofEveryKind || fs::equivalent(entry->second, file, fault)) continue;
            Finding finding =
                FileFinding(kShadowed, ZanDicSeverity::Warning, file,
                            fmt::format("it is never found behind the {} of an earlier directory", name));
            finding.notes.push_back({{ShownFile(entry->second)}, "this one is found"});
            findings.push_back(std::move(finding));
        }
    }
    for (const auto& [name, file] : first) {
        if (ContentWordOf(name) != kTuning) add(path, {name, ShownFile(file)});
    }
    for (const auto& [name, file] : first) {
        // One with a package is read with that.
        const bool isAlone = ContentWordOf(name) == kTuning && DocumentOf(path, PackageIn(name)).empty();
        if (isAlone) add_Tuning(path, PackageIn(name), file);
    }
}

}  // namespace tool
