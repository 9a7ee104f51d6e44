// What a load costs, beside the parse of the same document by pugixml: time, live heap and peak memory
// per element. Each benchmark runs once in its process, so that a first load is what is measured;
// scripts/bench starts the processes and compares.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <fstream>
#include <memory>
#include <pugixml.hpp>
#include <string>

#include "GeneratedDocument.h"
#include "GetOXMIDicMgr.h"
#include "ZELVBTXMLNode.h"

namespace {

constexpr const char* kPackageName = DocumentOnDisk::kPackageName;

double LiveHeap() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// A line of /proc/self/status in bytes.
double StatusBytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (double kilobytes = 0; word == key + ":" && status >> kilobytes) return kilobytes * 1024;
    }
    return 0;
}

/// Measures memory from its construction on and reports per element.
class MemoryMeter {
public:
    MemoryMeter() : heap_(LiveHeap()), resident_(StatusBytes("VmRSS")) {}

    void Report(benchmark::State& state, int elements) const {
        state.counters["heap_per_element"] = (LiveHeap() - heap_) / elements;
        state.counters["peak_per_element"] = (StatusBytes("VmHWM") - resident_) / elements;
        state.counters["elements"] = elements;
    }

private:
    double heap_;
    double resident_;
};

/// Parse alone, by pugixml into its DOM.
void BM_PugixmlParse(benchmark::State& state) {
    const DocumentOnDisk document(state.range(0), state.range(1));
    malloc_trim(0);
    for (auto _ : state) {
        const MemoryMeter meter;
        pugi::xml_document dom;
        if (!dom.load_file(document.File().c_str())) state.SkipWithError("pugixml refuses the document");
        state.PauseTiming();
        meter.Report(state, document.Elements());
        state.ResumeTiming();
    }
}

/// Parse alone, by the dictionary's own document reader.
void BM_DocumentParse(benchmark::State& state) {
    const DocumentOnDisk document(state.range(0), state.range(1));
    malloc_trim(0);
    for (auto _ : state) {
        const MemoryMeter meter;
        const auto dom = ZELVBTXMLDocument::CreateFromFile(document.File().c_str(), nullptr);
        if (dom == nullptr) state.SkipWithError("the document is refused");
        state.PauseTiming();
        meter.Report(state, document.Elements());
        state.ResumeTiming();
    }
}

/// A whole load through the manager: parse, elements, references, checks, registry.
void BM_Load(benchmark::State& state) {
    const Silence silence;
    const DocumentOnDisk document(state.range(0), state.range(1));
    OXMIDicMgr* manager = nullptr;
    if (Failed(GetOXMIDicMgr(&manager))) {
        state.SkipWithError("no manager");
        return;
    }
    manager->Init(0);
    malloc_trim(0);
    const ZELString name(kPackageName);
    for (auto _ : state) {
        const MemoryMeter meter;
        if (Failed(manager->LoadPackageFromDir(document.Directory().c_str(), &name, OXMDicPERSISTENT_Xml))) {
            state.SkipWithError("the load fails");
        }
        state.PauseTiming();
        meter.Report(state, document.Elements());
        manager->RemovePackage(&name);
        state.ResumeTiming();
    }
    manager->End();
    manager->Release();
}

/// The number of elements, and the attributes of a class.
void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgsProduct({{21'300, 213'000, 1'065'000}, {5, 20, 60}});
    benchmark->Iterations(1)->Unit(benchmark::kMillisecond);
}
BENCHMARK(BM_PugixmlParse)->Apply(Sizes);
BENCHMARK(BM_DocumentParse)->Apply(Sizes);
BENCHMARK(BM_Load)->Apply(Sizes);

}  // namespace
