#include "Files.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>
#include <utility>

#include "JsonWriter.h"
#include "ZELDurableFile.h"
#include "ZELFile.h"

namespace tool {
namespace {

constexpr std::string_view kNotWritten = "it could not be written";
constexpr std::int64_t kNanoseconds = 1'000'000'000;

std::string WithReason(std::string text, const std::string& reason) {
    if (!reason.empty()) text += ": " + reason;
    return text;
}

}  // namespace

FileWatch::FileWatch(std::string path) : _Path(std::move(path)), _Before(Look()) {}

std::optional<FileWatch::Identity> FileWatch::Look() const {
    struct stat status {};
    if (stat(_Path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    const auto time = [](const timespec& at) { return at.tv_sec * kNanoseconds + at.tv_nsec; };
    return Identity{status.st_dev, status.st_ino, status.st_size, time(status.st_mtim), time(status.st_ctim)};
}

bool FileWatch::IsWritten() const {
    const std::optional<Identity> now = Look();
    return now && now != _Before;
}

std::optional<std::string> WrongDirectory(const std::string& directory) {
    std::error_code fault;
    const auto status = std::filesystem::status(directory, fault);
    if (std::filesystem::is_directory(status)) return std::nullopt;
    if (status.type() == std::filesystem::file_type::not_found) return "there is no such directory";
    return std::filesystem::exists(status) ? "this is no directory" : fault.message();
}

std::string NotWritten(const std::string& path) {
    return WithReason(std::string(kNotWritten), ZELDurableFile::LatestReason(path));
}

std::string PathIn(const std::string& directory, const std::string& name) {
    if (directory == ".") return name;
    return directory + (directory.ends_with('/') ? "" : "/") + name;
}

void WriteFileList(const std::vector<std::string>& files, bool asJson, Output& output) {
    if (!asJson) {
        for (const std::string& file : files) output.Write(file + "\n");
        return;
    }
    JsonWriter json(output);
    json.BeginObject();
    json.TextsOf("files", files);
    json.EndObject();
    json.End();
}

std::optional<std::string> CopyWhole(const std::string& from, const std::string& to) {
    ZELFileContent content;
    std::string reason;
    if (Failed(ZELReadFile(from.c_str(), content, &reason))) {
        return WithReason(std::string(kNotWritten) + ", since " + from + " cannot be read", reason);
    }
    ZELDurableFile copy;
    copy.Open(to);
    copy.Append(content.View());
    if (Succeeded(copy.Commit())) return std::nullopt;
    return WithReason(std::string(kNotWritten), copy.Reason());
}

}  // namespace tool
