// What the thin layer for C++ programs adds to the interfaces: nothing. Each question is asked twice of the
// same loaded model, once through zandic.hpp and once through the interfaces alone; scripts/bench compares
// the two.

#include <benchmark/benchmark.h>

#include "LoadedPackage.h"
#include "OXMIDicClass.h"

namespace {

/// What a walk over the model finds, so that both ways can be seen to do the same.
struct Sum {
    std::size_t attributes = 0;
    std::size_t characters = 0;  ///< of names and of the names of types
    std::size_t mandatory = 0;
};

Sum WalkByLayer(const zandic::Handle<OXMIDicPackage>& package) {
    Sum sum;
    for (OXMIDicClass& element : zandic::Classes(*package)) {
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(element)) {
            ++sum.attributes;
            sum.characters += zandic::Name(attribute).View().size();
            if (const auto type = zandic::TypeOf(attribute)) {
                sum.characters += zandic::Name(*type).View().size();
            }
            sum.mandatory += zandic::Flag(attribute, &OXMIDicAttribute::GetMandatory) ? 1 : 0;
        }
    }
    return sum;
}

void AddAttribute(OXMIDicAttribute& attribute, Sum& sum) {
    ++sum.attributes;
    ZELString name;
    attribute.GetName(&name);
    sum.characters += name.View().size();
    OXMIDicElement* type = nullptr;
    if (attribute.GetType(&type) == S_OK && type != nullptr) {
        ZELString typeName;
        type->GetName(&typeName);
        sum.characters += typeName.View().size();
        type->Release();
    }
    unsigned char mandatory = 0;
    attribute.GetMandatory(&mandatory);
    sum.mandatory += mandatory != 0 ? 1 : 0;
}

Sum WalkByInterfaces(const zandic::Handle<OXMIDicPackage>& package) {
    Sum sum;
    ZELListPtrIUnknown classes;
    package->GetClasses(&classes);
    for (IUnknown* const element : classes) {
        ZELListPtrIUnknown attributes;
        static_cast<OXMIDicClass*>(element)->GetClassElements(&attributes);
        for (IUnknown* const attribute : attributes) {
            AddAttribute(*static_cast<OXMIDicAttribute*>(attribute), sum);
        }
        for (IUnknown* const attribute : attributes) attribute->Release();
    }
    for (IUnknown* const element : classes) element->Release();
    return sum;
}

/// Items: attributes.
template <class Walk>
void WalkModel(benchmark::State& state, Walk walk) {
    const Silence silence;
    const LoadedPackage loaded(state);
    const Sum expected = WalkByInterfaces(loaded.Package());
    Sum sum;
    for (auto _ : state) sum = walk(loaded.Package());
    state.counters["items"] = static_cast<double>(sum.attributes);
    if (sum.attributes == 0 || sum.characters != expected.characters || sum.mandatory != expected.mandatory) {
        state.SkipWithError("the ways find different models");
    }
}
void BM_WalkByLayer(benchmark::State& state) { WalkModel(state, WalkByLayer); }
void BM_WalkByInterfaces(benchmark::State& state) { WalkModel(state, WalkByInterfaces); }

BENCHMARK(BM_WalkByLayer)->Args({21'300, 20})->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WalkByInterfaces)->Args({21'300, 20})->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
