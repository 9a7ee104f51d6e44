#include <fmt/format.h>
#include <stdlib.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "Command.h"
#include "Files.h"
#include "Model.h"
#include "ProfilingScope.h"
#include "Streams.h"
#include "Targets.h"
#include "ZELFile.h"

namespace tool {
namespace {

constexpr std::string_view kEndOfSchema = "END_SCHEMA ;\n";

/// A directory that is gone, with everything in it, at the end.
class PassingDirectory {
public:
    PassingDirectory() {
        std::error_code fault;
        std::string name = (std::filesystem::temp_directory_path(fault) / "zandicXXXXXX").string();
        if (!fault && mkdtemp(name.data()) != nullptr) _Path = name;
    }
    ~PassingDirectory() {
        std::error_code none;
        if (!_Path.empty()) std::filesystem::remove_all(_Path, none);
    }
    PassingDirectory(const PassingDirectory&) = delete;
    PassingDirectory& operator=(const PassingDirectory&) = delete;

    /// \returns its path; empty when it could not be made.
    const std::string& Path() const { return _Path; }

private:
    std::string _Path;
};

/// \returns why a schema ends before this class; none when it does not.
std::optional<std::string_view> EndsTheSchema(OXMIDicClass& element) {
    const bool isPersistent = zandic::Flag(element, &OXMIDicClass::GetPersistent);
    if (!isPersistent && zandic::All<OXMIDicClass>(element, &OXMIDicClass::GetSubClasses).IsEmpty()) {
        return "is not persistent and has no subclasses";
    }
    if (zandic::Flag(element, &OXMIDicClass::GetInstance)) return "is an instance";
    return std::nullopt;
}

/// Warns of the classes that a schema of the package does not have.
void TellLeftOut(Session& session, OXMIDicPackage& package) {
    const auto classes = zandic::All<OXMIDicClass>(package, &OXMIDicPackage::GetClasses);
    int written = 0;
    for (OXMIDicClass& each : classes) {
        if (const auto why = EndsTheSchema(each)) {
            session.Warn(
                zandic::Name(package).View(),
                fmt::format("{} of {} classes are not written: {} ends the schema, since it {}",
                            classes.Size() - written, classes.Size(), zandic::Name(each).View(), *why));
            return;
        }
        ++written;
    }
}

std::string SchemaPath(const std::string& directory, std::string_view package) {
    return PathIn(directory, std::string(package) + ".express");
}

/// Exports the package into \p directory.
/// \returns the schema; none when it is not there or not complete, which is told.
std::optional<ZELFileContent> Export(Session& session, OXMIDicPackage& package,
                                     const std::string& directory) {
    const ZELString name = zandic::Name(package);
    const FileWatch file(SchemaPath(directory, name.View()));
    const LineScope errorsAreTold(LineRule::Errors);
    const ProfilingScope step("express", name.View());
    const zandic::Result result = session.Dictionary().Manager().SaveExpress(directory.c_str(), &name);

    if (!result || !file.IsWritten()) {
        session.Refuse(file.Path(), NotWritten(file.Path()));
        return std::nullopt;
    }
    ZELFileContent schema;
    std::string reason;
    if (Failed(ZELReadFile(file.Path().c_str(), schema, &reason))) {
        session.Refuse(file.Path(), "it cannot be read back: " + reason);
        return std::nullopt;
    }
    if (!schema.View().ends_with(kEndOfSchema)) {
        session.Refuse(file.Path(), "the schema is not complete");
        return std::nullopt;
    }
    return schema;
}

}  // namespace

void RunExpress(Session& session, const Options& options, Output& output) {
    std::optional<PassingDirectory> passing;
    if (options.toOutput) passing.emplace();
    const std::string directory = passing ? passing->Path() : options.to.value_or(".");
    if (directory.empty() && passing) {
        return session.Refuse("standard output", "there is no place for a temporary file");
    }
    if (auto wrong = WrongDirectory(directory)) return session.Refuse(directory, *wrong);

    // Everything is loaded first: which attribute redefines another, and which class has subclasses, is then
    // the same for all.
    const std::vector<AskedPackage> packages = Targets(session, options).Packages();
    AskForAllAttributes(session.Dictionary());
    session.Expect("writing", packages.size());
    std::set<std::string, std::less<>> exported;
    std::vector<std::string> files;
    for (const auto& [asked, package] : packages) {
        if (!package) continue;
        const std::string name(zandic::Name(*package).View());
        if (!exported.insert(name).second) continue;
        const auto schema = Export(session, *package, directory);
        session.Done();
        if (!schema) continue;
        TellLeftOut(session, *package);
        if (passing) {
            output.Write(schema->View());
        } else {
            files.push_back(SchemaPath(directory, name));
        }
    }
    if (!passing) WriteFileList(files, options.json, output);
}

}  // namespace tool
