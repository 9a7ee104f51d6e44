#include "ZELEnvironment.h"

#include <sys/stat.h>

#include <cstdlib>

namespace {

/// Asks for the kind only; nothing is opened, so a pipe cannot block and a device is left alone.
bool IsRegularFile(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool HasZero(std::string_view text) { return text.find('\0') != std::string_view::npos; }

}  // namespace

std::optional<std::string> ZELGetEnv(const char* name) {
    const char* const value = name != nullptr ? std::getenv(name) : nullptr;
    if (value == nullptr) return std::nullopt;
    return value;
}

std::optional<std::string> ZELFindPath(std::string_view pathList, std::string_view fileName) {
    // A zero would cut the name short and find something else.
    if (fileName.empty() || HasZero(fileName) || HasZero(pathList)) {
        return std::nullopt;
    }
    while (!pathList.empty()) {
        const std::size_t length = pathList.find(':');
        const std::string_view directory = pathList.substr(0, length);
        pathList.remove_prefix(length != std::string_view::npos ? length + 1 : pathList.size());
        if (directory.empty()) continue;

        std::string path(directory);
        if (path.back() != '/') path += '/';
        path = ZELNativePath(path.append(fileName));
        if (IsRegularFile(path)) return path;
    }
    return std::nullopt;
}

std::string ZELNativePath(std::string_view path) {
    std::string native(path);
    const std::size_t separator = native.find_last_of("/\\");
    if (separator != std::string::npos) native[separator] = '/';
    return native;
}
