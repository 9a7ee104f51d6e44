#ifndef LOADED_PACKAGE_H
#define LOADED_PACKAGE_H

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <chrono>

#include "GeneratedDocument.h"
#include "zandic.hpp"

/// The generated package, loaded: of `state.range(0)` elements, with `state.range(1)` attributes a class. Its
/// text is given back to the system first, so that what is measured does not use its memory again. Goes with
/// this object.
class LoadedPackage {
public:
    explicit LoadedPackage(benchmark::State& state) : document_(state.range(0), state.range(1)) {
        malloc_trim(0);
        state.counters["elements"] = document_.Elements();
        if (!dictionary_.Load(DocumentOnDisk::kPackageName, document_.Directory().c_str())) {
            state.SkipWithError("the load fails");
        }
    }

    ~LoadedPackage() { dictionary_.Manager().End(); }
    LoadedPackage(const LoadedPackage&) = delete;
    LoadedPackage& operator=(const LoadedPackage&) = delete;

    const zandic::Dictionary& Dictionary() const { return dictionary_; }
    zandic::Handle<OXMIDicPackage> Package() const {
        return dictionary_.Package(DocumentOnDisk::kPackageName);
    }
    const DocumentOnDisk& Document() const { return document_; }

private:
    DocumentOnDisk document_;
    zandic::Dictionary dictionary_ = zandic::Dictionary::Open();
};

/// Nanoseconds since its construction.
class Stopwatch {
public:
    double Nanoseconds() const {
        return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start_).count();
    }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

#endif
