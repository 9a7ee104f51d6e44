#include "OxmBuildFileName.h"

#include <cstring>
#include <string>

#include "ZELCall.h"
#include "ZELEnvironment.h"

namespace {

HRESULT HandOut(const std::string& text, char** copy) {
    char* const made = ::strdup(text.c_str());
    if (made == nullptr) return ZELNoteShortage();
    *copy = made;
    return S_OK;
}

}  // namespace

HRESULT OxmBuildFileName(char mode, const char* path, const char* packageName, const char* extension,
                         char** fullName) {
    if (path == nullptr || packageName == nullptr || extension == nullptr || fullName == nullptr)
        return E_FAIL;

    return ZELCall([&] {
        const std::string fileName = std::string(packageName) + "." + extension;
        if (mode == 'w') return HandOut(std::string(path) + "\\" + fileName, fullName);
        if (mode != 'r') return E_FAIL;

        const auto found = ZELFindPath(path, fileName);
        if (found) return HandOut(*found, fullName);
        *fullName = nullptr;
        return E_FAIL;
    });
}
