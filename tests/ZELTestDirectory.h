#ifndef ZELTESTDIRECTORY_H
#define ZELTESTDIRECTORY_H

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

/// A directory of the test's own; gone with everything in it at the end.
class TestDirectory {
public:
    TestDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "zelXXXXXX").string();
        _Path = mkdtemp(name.data());
    }
    ~TestDirectory() { std::filesystem::remove_all(_Path); }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    const std::string& Path() const { return _Path; }
    std::string Path(std::string_view name) const { return _Path + "/" + std::string(name); }

    /// Makes the file \p name with \p content. \returns its path.
    std::string MakeFile(std::string_view name, std::string_view content) const {
        std::ofstream(Path(name), std::ios::binary) << content;
        return Path(name);
    }

    /// Makes the directory \p name. \returns its path.
    std::string MakeDirectory(std::string_view name) const {
        std::filesystem::create_directory(Path(name));
        return Path(name);
    }

private:
    std::string _Path;
};

#endif
