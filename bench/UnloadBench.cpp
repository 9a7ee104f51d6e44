// Unloading a package: the time per element stays flat as the package grows, whatever its shape.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "OXMIDicClass.h"
#include "OXMIDicPackage.h"
#include "OXMIDicSimple.h"
#include "ZELLineSink.h"
#include "zandic.hpp"

namespace {

/// Drops the dictionary's lines.
class Silence final : public ZELLineSink {
public:
    Silence() : before_(ZELSetLineSink(this)) {}
    ~Silence() { ZELSetLineSink(before_); }
    void Write(const ZELLine&) override {}

private:
    ZELLineSink* before_;
};

constexpr const char* kPackageName = "Unloaded";

/// UUIDs by count: cheap, and never the same twice.
ZELDbBinary NextUuid() {
    static std::uint64_t count = 0;
    unsigned char bytes[16] = {0xBE};
    std::uint64_t number = ++count;
    for (int index = 15; index > 7; --index, number >>= 8) bytes[index] = static_cast<unsigned char>(number);
    return {bytes, 16};
}

zandic::Handle<OXMIDicPackage> MakePackage(OXMIDicMgr& manager) {
    const ZELString name(kPackageName);
    const ZELString domain("VALKOR");
    const ZELDbBinary uuid = NextUuid();
    zandic::Handle<OXMIDicPackage> package;
    manager.CreatePackage(&name, &uuid, &domain, package.Out());
    return package;
}

zandic::Handle<OXMIDicClass> MakeClass(OXMIDicPackage& package, std::int64_t number) {
    const ZELString name(("Class" + std::to_string(number)).c_str());
    const ZELDbBinary uuid = NextUuid();
    zandic::Handle<OXMIDicClass> made;
    package.CreateClass(&name, &uuid, made.Out());
    return made;
}

/// Classes of 20 attributes each.
void FillWithAttributes(OXMIDicPackage& package, std::int64_t attributes) {
    constexpr std::int64_t kPerClass = 20;
    for (std::int64_t number = 0; number < attributes / kPerClass; ++number) {
        const auto owner = MakeClass(package, number);
        for (std::int64_t place = 0; place < kPerClass; ++place) {
            const ZELString name(("attribute" + std::to_string(place)).c_str());
            const ZELDbBinary uuid = NextUuid();
            zandic::Handle<OXMIDicSimple> simple;
            owner->CreateSimple(&name, &uuid, simple.Out());
        }
    }
}

/// Classes that all derive from the first one.
void FillWithSubclasses(OXMIDicPackage& package, std::int64_t subclasses) {
    const auto root = MakeClass(package, 0);
    for (std::int64_t number = 1; number <= subclasses; ++number) {
        MakeClass(package, number)->SetSuperClass(root.Get());
    }
}

/// Time of one RemovePackage, the making of the package left out.
template <void (*Fill)(OXMIDicPackage&, std::int64_t)>
void BM_Unload(benchmark::State& state) {
    const Silence silence;
    const auto dictionary = zandic::Dictionary::Open();
    const ZELString name(kPackageName);
    for (auto _ : state) {
        state.PauseTiming();
        Fill(*MakePackage(dictionary.Manager()), state.range(0));
        state.ResumeTiming();
        if (Failed(dictionary.Manager().RemovePackage(&name))) state.SkipWithError("the unload fails");
    }
    state.counters["per_element"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    dictionary.Manager().End();
}

BENCHMARK(BM_Unload<FillWithAttributes>)->Arg(20'000)->Arg(200'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Unload<FillWithSubclasses>)->Arg(5'000)->Arg(50'000)->Unit(benchmark::kMillisecond);

}  // namespace
