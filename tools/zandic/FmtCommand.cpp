#include <fmt/format.h>

#include <optional>
#include <string>
#include <vector>

#include "Command.h"
#include "Formatted.h"
#include "JsonWriter.h"
#include "ZELDurableFile.h"
#include "ZELFile.h"

namespace tool {
namespace {

/// A document that was read.
struct LaidOut {
    std::string file;
    bool isChanged;
};

/// Replaces \p file, or leaves it as it is. \returns what went wrong; none when nothing did.
std::optional<std::string> Replace(const std::string& file, const std::string& text) {
    ZELDurableFile written;
    written.Open(file);
    written.Append(text);
    if (Succeeded(written.Commit())) return std::nullopt;
    return "it could not be written: " + written.Reason();
}

/// Lays one document out. \returns none when it cannot be read or written, which is told.
std::optional<LaidOut> LayOut(Session& session, const std::string& file, bool isTrial) {
    ZELFileContent content;
    std::string reason;
    if (Failed(ZELReadFile(file.c_str(), content, &reason))) {
        session.Refuse(file, reason);
        return std::nullopt;
    }
    ZELVBTXMLError error;
    const auto document = ZELVBTXMLDocument::CreateFromMemory(content.View(), &error, ZELVBTXMLKeep::Pieces);
    if (document == nullptr) {
        session.Refuse({file, {error.line, error.column}, error.reason});
        return std::nullopt;
    }
    const std::string text = Formatted(*document);
    const bool isChanged = text != content.View();
    if (isChanged && !isTrial) {
        if (const auto fault = Replace(file, text)) {
            session.Refuse(file, *fault);
            return std::nullopt;
        }
    }
    return LaidOut{file, isChanged};
}

void WriteJson(const std::vector<LaidOut>& files, Output& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Key("files");
    json.BeginArray();
    for (const LaidOut& each : files) {
        json.BeginObject();
        json.Key("file");
        json.Text(each.file);
        json.Key("changed");
        json.Flag(each.isChanged);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    json.End();
}

}  // namespace

void RunFmt(Session& session, const Options& options, Output& output) {
    std::vector<LaidOut> files;
    for (const std::string& name : options.names) {
        if (auto file = LayOut(session, name, options.check)) files.push_back(std::move(*file));
    }
    for (const LaidOut& each : files) {
        if (!each.isChanged) continue;
        if (options.check) session.Fail();
        if (!options.json) output.Write(each.file + "\n");
    }
    if (options.json) WriteJson(files, output);
}

}  // namespace tool
