// What it costs to ask the loaded model: all attributes of every class, and lookups in random order. Each
// benchmark runs in a process of its own; scripts/bench starts the processes and compares.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "LoadedPackage.h"
#include "OXMIDicClass.h"

namespace {

/// One question to ask.
struct Lookup {
    OXMIDicClass* element;  ///< held elsewhere
    ZELString name;
    ZELDbBinary uuid;
};

/// The classes of the package and one lookup for each attribute that \p Of finds to ask for, in random order.
class Lookups {
public:
    template <class Of>
    Lookups(const LoadedPackage& loaded, Of of) : classes_(zandic::Classes(*loaded.Package())) {
        for (OXMIDicClass& element : classes_) {
            for (OXMIDicAttribute& attribute : of(element)) {
                all_.push_back({&element, zandic::Name(attribute), zandic::Uuid(attribute)});
            }
        }
    }

    /// Makes the lookups for one round of asking, in another order each time.
    void Shuffle() {
        std::shuffle(all_.begin(), all_.end(), random_);
        // Backwards, so that the next names lie in memory in the order in which they are asked for.
        while (!lookups_.empty()) lookups_.pop_back();
        // A caller has the name at hand, as a text of its own of which nothing is known yet.
        for (const Lookup& each : all_) {
            lookups_.push_back({each.element, ZELString(each.name.View()), each.uuid});
        }
    }

    auto begin() const { return lookups_.begin(); }
    auto end() const { return lookups_.end(); }
    double Count() const { return static_cast<double>(lookups_.size()); }

private:
    zandic::List<OXMIDicClass> classes_;
    std::vector<Lookup> all_;
    std::vector<Lookup> lookups_;
    std::mt19937 random_{20};
};

/// The attributes of the root of the class's chain, for as many of its own.
zandic::List<OXMIDicAttribute> AttributesOfTheRoot(OXMIDicClass& element) {
    auto root = zandic::Handle<OXMIDicClass>::Share(&element);
    while (auto super = zandic::Link(*root, &OXMIDicClass::GetSuperClass)) root = std::move(super);
    return zandic::OwnAttributes(*root);
}

/// Asks every class for all its attributes, which are released again. \returns how many there were.
double AskAll(const zandic::List<OXMIDicClass>& classes) {
    double count = 0;
    for (OXMIDicClass& element : classes) {
        ZELListPtrIUnknown attributes;
        element.GetAllElements(&attributes);
        for (IUnknown* const attribute : attributes) attribute->Release();
        count += attributes.Size();
    }
    return count;
}

/// The first call makes the answer; the second has it. Items: attributes handed out.
void AllElements(benchmark::State& state, bool isAskedBefore) {
    const Silence silence;
    const LoadedPackage loaded(state);
    const auto classes = zandic::Classes(*loaded.Package());
    if (isAskedBefore) AskAll(classes);
    double count = 0;
    for (auto _ : state) count = AskAll(classes);
    state.counters["items"] = count;
}
void BM_AllElementsFirst(benchmark::State& state) { AllElements(state, false); }
void BM_AllElementsAgain(benchmark::State& state) { AllElements(state, true); }

/// Items: lookups, whose answers are released.
template <class Of, class Ask>
void LookUp(benchmark::State& state, Of of, Ask ask) {
    const Silence silence;
    const LoadedPackage loaded(state);
    Lookups lookups(loaded, of);
    int missed = 0;
    for (auto _ : state) {
        state.PauseTiming();
        lookups.Shuffle();
        state.ResumeTiming();
        for (const Lookup& each : lookups) missed += ask(loaded, each) ? 0 : 1;
    }
    state.counters["items"] = lookups.Count();
    if (missed != 0) state.SkipWithError("a lookup finds nothing");
}

void BM_LookUpUuid(benchmark::State& state) {
    LookUp(state, zandic::OwnAttributes, [](const LoadedPackage& loaded, const Lookup& lookup) {
        OXMIDicElementH* found = nullptr;
        loaded.Dictionary().Manager().Search(&lookup.uuid, &found);
        return found != nullptr && (found->Release(), true);
    });
}

bool AskByName(const LoadedPackage&, const Lookup& lookup) {
    OXMIDicElement* found = nullptr;
    lookup.element->GetElement(&lookup.name, &found);
    return found != nullptr && (found->Release(), true);
}
void BM_LookUpName(benchmark::State& state) { LookUp(state, zandic::OwnAttributes, AskByName); }
void BM_LookUpThroughChain(benchmark::State& state) { LookUp(state, AttributesOfTheRoot, AskByName); }

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({21'300, 20})->Args({213'000, 20})->Iterations(1)->Unit(benchmark::kMillisecond);
}
/// A round of the small package takes a millisecond, so short that any disturbance shows: as many lookups for
/// both.
void OneRound(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({213'000, 20})->Iterations(1)->Unit(benchmark::kMillisecond);
}
void TenRounds(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({21'300, 20})->Iterations(10)->Unit(benchmark::kMillisecond);
}
BENCHMARK(BM_AllElementsFirst)->Apply(Sizes);
BENCHMARK(BM_AllElementsAgain)->Apply(Sizes);
BENCHMARK(BM_LookUpUuid)->Apply(OneRound);
BENCHMARK(BM_LookUpUuid)->Apply(TenRounds);
BENCHMARK(BM_LookUpName)->Apply(OneRound);
BENCHMARK(BM_LookUpName)->Apply(TenRounds);
BENCHMARK(BM_LookUpThroughChain)->Apply(OneRound);
BENCHMARK(BM_LookUpThroughChain)->Apply(TenRounds);

}  // namespace
