#ifndef GENERATED_DOCUMENT_H
#define GENERATED_DOCUMENT_H

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
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

/// A generated document on disk. With ZANDIC_BENCH_DOCUMENTS, a directory, it is kept there and only written
/// where it is not there yet, so that a process which measures has made nothing itself; else it lies in a
/// directory of its own, which goes with this object.
class DocumentOnDisk {
public:
    static constexpr const char* kPackageName = "Generated";

    explicit DocumentOnDisk(std::int64_t elements, std::int64_t attributesPerClass = 20) {
        if (const char* kept = std::getenv("ZANDIC_BENCH_DOCUMENTS"); kept != nullptr) {
            directory_ =
                std::string(kept) + "/" + std::to_string(elements) + "-" + std::to_string(attributesPerClass);
        } else {
            own_.emplace();
            directory_ = own_->Path();
        }
        if (std::ifstream(directory_ + "/elements") >> elements_) return;
        PackageShape shape;
        shape.elements = static_cast<int>(elements);
        shape.attributesPerClass = static_cast<int>(attributesPerClass);
        const GeneratedPackage package = GeneratePackage(kPackageName, shape);
        elements_ = package.elements;
        std::filesystem::create_directories(directory_);
        std::ofstream(File()) << package.document;
        std::ofstream(directory_ + "/elements") << elements_;
    }

    std::string File() const { return directory_ + "/" + kPackageName + ".metadata"; }
    const std::string& Directory() const { return directory_; }
    int Elements() const { return elements_; }
    std::size_t Bytes() const { return std::filesystem::file_size(File()); }

private:
    std::optional<OwnDirectory> own_;
    std::string directory_;
    int elements_ = 0;
};

#endif
