#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Command.h"
#include "DumpJson.h"
#include "Files.h"
#include "ProfilingScope.h"
#include "ReadBack.h"
#include "Streams.h"
#include "Targets.h"
#include "ZANDicValueWords.h"
#include "ZELDbBinary.h"
#include "ZELEnvironment.h"

namespace tool {
namespace {

namespace format = ZANDicFormat;

/// One NAME, and what became of it.
struct Request : AskedPackage {
    std::string document;  ///< the file name that it was saved as; empty: it was not
};

/// \returns the names of all documents that a package may be saved as; which of them is the dictionary's
/// choice: that of the kind of document that the package was loaded from.
std::vector<std::string> DocumentNames(const std::string& package) {
    std::vector<std::string> names;
    for (const format::CodeWord& content : format::kContentWords) {
        if (content.code != OXMDicCONTENT_tuning) names.push_back(package + "." + std::string(content.word));
    }
    return names;
}

/// \returns what a failed save is told of: the document that the user named, or that was to be expected.
std::string DocumentMeant(const Request& request, const std::string& package) {
    const std::size_t dot = request.asked.find('.');
    return dot != request.asked.npos ? package + request.asked.substr(dot) : DocumentNames(package).front();
}

/// Saves the package. \returns the name of its document; empty when it was not written, which is told.
std::string SaveDocument(Session& session, const Request& request, const std::string& directory) {
    const ZELString name = zandic::Name(*request.package);
    const std::string package(name.View());
    std::vector<std::pair<std::string, FileWatch>> documents;
    for (const std::string& document : DocumentNames(package)) {
        documents.emplace_back(document, PathIn(directory, document));
    }
    const LineScope lossesAreTold(LineRule::Faults);
    const ProfilingScope step("save", package);
    const zandic::Result result = session.Dictionary().Manager().SaveXml(directory.c_str(), &name);

    // The result says nothing of the file: a document is saved when one is there that was not before.
    const auto written = std::find_if(documents.begin(), documents.end(),
                                      [](const auto& each) { return each.second.IsWritten(); });
    if (result && written != documents.end()) return written->first;
    const std::string path = PathIn(directory, DocumentMeant(request, package));
    session.Refuse(path, result ? NotWritten(path) : "the dictionary refuses to save it");
    return {};
}

/// Copies the tuning document with which the package was loaded, if there is one, to where the package is.
void CopyTuning(Session& session, const std::string& package, const std::string& directory,
                std::vector<std::string>& written) {
    const std::string name = package + "." + std::string(format::kContentWords[OXMDicCONTENT_tuning].word);
    const auto source = ZELFindPath(session.Path(), name);
    const std::string copy = PathIn(directory, name);
    std::error_code none;
    if (!source || std::filesystem::equivalent(*source, copy, none)) return;
    if (const auto fault = CopyWhole(*source, copy)) {
        session.Refuse(copy, *fault);
    } else {
        written.push_back(copy);
    }
}

/// Saves what was asked for, each package once. \returns the paths of the files that were written.
std::vector<std::string> SaveAll(Session& session, std::vector<Request>& requests,
                                 const std::string& directory) {
    std::vector<std::string> written;
    std::map<ZELDbBinary, const Request*> first;  // by the package's UUID
    for (Request& request : requests) {
        if (!request.package) continue;
        const auto [same, isFirst] = first.try_emplace(zandic::Uuid(*request.package), &request);
        if (!isFirst) {
            request.document = same->second->document;
            continue;
        }
        request.document = SaveDocument(session, request, directory);
        session.Done();
        if (request.document.empty()) continue;
        written.push_back(PathIn(directory, request.document));
        CopyTuning(session, std::string(zandic::Name(*request.package).View()), directory, written);
    }
    return written;
}

/// \returns what a process asks for that is to get the same model from the documents.
std::vector<std::string> NamesOf(const std::vector<Request>& requests) {
    std::vector<std::string> names;
    names.reserve(requests.size());
    for (const Request& each : requests) names.push_back(each.document.empty() ? each.asked : each.document);
    return names;
}

/// \returns why nothing can be saved to \p directory and read back from there; none when it can.
std::optional<std::string> WrongTarget(const std::string& directory) {
    if (directory.find(':') != directory.npos) {
        return "a directory with ':' in its name cannot be searched, so nothing could be read back";
    }
    return WrongDirectory(directory);
}

}  // namespace

void RunSave(Session& session, const Options& options, Output& output) {
    const std::string& directory = *options.to;
    if (auto wrong = WrongTarget(directory)) return session.Refuse(directory, *wrong);

    std::vector<Request> requests;
    for (AskedPackage& each : Targets(session, options).Packages()) requests.push_back({std::move(each), {}});
    const bool mayRefuse = !session.IsClean();
    std::string model = DumpText(session.Dictionary());
    session.Expect("saving", requests.size());
    const std::vector<std::string> written = SaveAll(session, requests, directory);
    if (written.empty()) return WriteFileList({}, options.json, output);

    session.Expect("reading back", 1);
    const ProfilingScope step("read back", directory);
    const std::string path = directory + ":" + session.Path();
    if (const auto wrong = WrongReadBack(NamesOf(requests), options.in, path, std::move(model), mayRefuse)) {
        return session.Refuse(directory, *wrong);
    }
    WriteFileList(written, options.json, output);
}

}  // namespace tool
