#ifndef GENERATED_DOCUMENT_H
#define GENERATED_DOCUMENT_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

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
    explicit OwnDirectory(const std::filesystem::path& parent) {
        path_ = (parent / "zandic-bench-XXXXXX").string();
        if (mkdtemp(path_.data()) == nullptr) std::abort();
    }
    ~OwnDirectory() { std::filesystem::remove_all(path_); }
    OwnDirectory(const OwnDirectory&) = delete;
    OwnDirectory& operator=(const OwnDirectory&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

/// A generated document in a directory of its own, which goes with this object.
class DocumentOnDisk {
public:
    static constexpr const char* kPackageName = "Generated";

    explicit DocumentOnDisk(int elements) : directory_(std::filesystem::temp_directory_path()) {
        PackageShape shape;
        shape.elements = elements;
        const GeneratedPackage package = GeneratePackage(kPackageName, shape);
        elements_ = package.elements;
        bytes_ = package.document.size();
        std::ofstream(File()) << package.document;
    }

    std::string File() const { return Directory() + "/" + kPackageName + ".metadata"; }
    const std::string& Directory() const { return directory_.Path(); }
    int Elements() const { return elements_; }
    std::size_t Bytes() const { return bytes_; }

private:
    OwnDirectory directory_;
    int elements_ = 0;
    std::size_t bytes_ = 0;
};

#endif
