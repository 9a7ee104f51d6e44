// What a save and an export cost, beside pugixml writing its tree of the same document to memory: time per
// element. Each benchmark runs once in its process; scripts/bench starts the processes and compares.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <pugixml.hpp>
#include <string>

#include "GeneratedDocument.h"
#include "GetOXMIDicMgr.h"
#include "OXMIDicMgr.h"

namespace {

constexpr const char* kMemoryFileSystem = "/dev/shm";

/// Takes what pugixml writes.
class MemoryWriter final : public pugi::xml_writer {
public:
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }

    std::string text;
};

/// The tree alone, by pugixml, without indentation.
void BM_PugixmlSave(benchmark::State& state) {
    const DocumentOnDisk document(state.range(0), state.range(1));
    pugi::xml_document dom;
    if (!dom.load_file(document.File().c_str())) state.SkipWithError("pugixml refuses the document");
    for (auto _ : state) {
        MemoryWriter writer;
        dom.save(writer, "", pugi::format_raw);
        benchmark::DoNotOptimize(writer.text.data());
        state.PauseTiming();
        state.counters["bytes_per_element"] = static_cast<double>(writer.text.size()) / document.Elements();
        writer = {};
        state.ResumeTiming();
    }
    state.counters["elements"] = document.Elements();
}

/// The first save of a loaded package, to a memory file system, over a file of about the same size.
void Write(benchmark::State& state, OXMDicPERSISTENT mode, const char* extension, double sizeToDocument) {
    if (!std::filesystem::is_directory(kMemoryFileSystem)) {
        state.SkipWithError("no memory file system");
        return;
    }
    const Silence silence;
    const DocumentOnDisk document(state.range(0), state.range(1));
    const OwnDirectory target(kMemoryFileSystem);
    OXMIDicMgr* manager = nullptr;
    if (Failed(GetOXMIDicMgr(&manager))) {
        state.SkipWithError("no manager");
        return;
    }
    manager->Init(0);
    const ZELString name(DocumentOnDisk::kPackageName);
    if (Failed(manager->LoadPackageFromDir(document.Directory().c_str(), &name, OXMDicPERSISTENT_Xml))) {
        state.SkipWithError("the load fails");
    }
    const std::filesystem::path file = target.Path() + "/" + DocumentOnDisk::kPackageName + extension;
    const auto size = static_cast<std::size_t>(static_cast<double>(document.Bytes()) * sizeToDocument);
    std::ofstream(file) << std::string(size, 'x');
    for (auto _ : state) {
        const HRESULT rc = manager->SavePackageToDir(target.Path().c_str(), &name, mode);
        if (Failed(rc)) state.SkipWithError("the save fails");
    }
    state.counters["elements"] = document.Elements();
    state.counters["bytes_per_element"] =
        static_cast<double>(std::filesystem::file_size(file)) / document.Elements();
    manager->End();
    manager->Release();
}

void BM_SaveXml(benchmark::State& state) { Write(state, OXMDicPERSISTENT_Xml, ".metadata", 1.0); }
void BM_SaveExpress(benchmark::State& state) { Write(state, OXMDicPERSISTENT_Express, ".express", 0.25); }

/// The number of elements, and the attributes of a class.
void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgsProduct({{21'300, 213'000, 1'065'000}, {20}});
    benchmark->Iterations(1)->Unit(benchmark::kMillisecond);
}
BENCHMARK(BM_PugixmlSave)->Apply(Sizes);
BENCHMARK(BM_SaveXml)->Apply(Sizes);
BENCHMARK(BM_SaveExpress)->Apply(Sizes);

}  // namespace
