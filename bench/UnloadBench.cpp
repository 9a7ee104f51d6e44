// What an unload costs: time per element of one RemovePackage, of a package that was loaded from a document.
// Each benchmark runs once in its process; scripts/bench starts the processes and compares. The dictionary's
// lines go to standard output, as they always do.

#include <benchmark/benchmark.h>

#include "LoadedPackage.h"

namespace {

void BM_Unload(benchmark::State& state) {
    const LoadedPackage loaded(state);
    const ZELString name(DocumentOnDisk::kPackageName);
    for (auto _ : state) {
        if (Failed(loaded.Dictionary().Manager().RemovePackage(&name)))
            state.SkipWithError("the unload fails");
    }
}

BENCHMARK(BM_Unload)
    ->ArgsProduct({{21'300, 213'000, 1'065'000}, {5, 20, 60}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
