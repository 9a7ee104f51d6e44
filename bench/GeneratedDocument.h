#ifndef GENERATED_DOCUMENT_H
#define GENERATED_DOCUMENT_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "PackageGenerator.h"
#include "ZELLineSink.h"

/// Drops the dictionary's lines while it lives.
class Silence final : public ZELLineSink {
public:
    Silence() : before_(ZELSetLineSink(this)) {}
    ~Silence() { ZELSetLineSink(before_); }
    void Write(const ZELLine&) override {}

private:
    ZELLineSink* before_;
};

/// A directory of its own below another one; goes with this object.
class OwnDirectory {
public:
    explicit OwnDirectory(const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        path_ = (parent / "zandic-bench-XXXXXX").string();
        if (mkdtemp(path_.data()) == nullptr) std::abort();
    }
    ~OwnDirectory() { std::filesystem::remove_all(path_); }
    OwnDirectory(const OwnDirectory&) = delete;
    OwnDirectory& operator=(const OwnDirectory&) = delete;

    const std::string& Path() const { return path_; }
    std::string File(std::string_view packageName) const {
        return path_ + "/" + std::string(packageName) + ".metadata";
    }

private:
    std::string path_;
};

/// A generated document in a directory of its own, which goes with this object.
class DocumentOnDisk {
public:
    static constexpr const char* kPackageName = "Generated";

    explicit DocumentOnDisk(std::int64_t elements, std::int64_t attributesPerClass = 20) {
        PackageShape shape;
        shape.elements = static_cast<int>(elements);
        shape.attributesPerClass = static_cast<int>(attributesPerClass);
        const GeneratedPackage package = GeneratePackage(kPackageName, shape);
        elements_ = package.elements;
        bytes_ = package.document.size();
        std::ofstream(File()) << package.document;
    }

    std::string File() const { return directory_.File(kPackageName); }
    const std::string& Directory() const { return directory_.Path(); }
    int Elements() const { return elements_; }
    std::size_t Bytes() const { return bytes_; }

private:
    OwnDirectory directory_;
    int elements_ = 0;
    std::size_t bytes_ = 0;
};

#endif
