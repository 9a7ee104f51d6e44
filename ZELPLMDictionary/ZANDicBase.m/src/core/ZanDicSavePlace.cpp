#include "ZanDicSavePlace.h"

#include "ZELEnvironment.h"

bool CanNameADocument(std::string_view packageName) {
    return !packageName.empty() && packageName.find_first_of("/\\.") == std::string_view::npos;
}

std::string SaveDirectory(std::string_view pathList, std::string_view fileName) {
    if (const auto found = ZELFindPath(pathList, fileName)) {
        return found->substr(0, found->size() - fileName.size() - 1);
    }
    const std::size_t begin = pathList.find_first_not_of(':');
    if (begin == std::string_view::npos) return {};
    return std::string(pathList.substr(begin, pathList.find(':', begin) - begin));
}

std::string SaveDirectoryFor(const char* directory, std::string_view packageName,
                             std::string_view extension) {
    if (directory != nullptr && *directory != 0) return directory;
    const auto path = ZELGetEnv(kSearchPathVariable);
    if (!path) return {};
    std::string fileName(packageName);
    return SaveDirectory(*path, fileName.append(".").append(extension));
}
