// Shapes of packages that a careless structure would make quadratic: the load, the question that suits the
// shape, and the unload, per element, at two sizes. The figures stay flat as the shape grows.
// scripts/bench starts the processes and compares.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>

#include "LoadedPackage.h"
#include "OXMIDicClass.h"
#include "OXMIDicEnum.h"
#include "OXMIDicRelationship.h"

namespace {

/// Writes a document element by element; UUIDs are numbers, so that a reference can name what comes later.
class Document {
public:
    explicit Document(const std::string& package, int number = 0, const std::string& attributes = {}) {
        text_ = "<?xml version=\"1.0\"?>\n<Package Domain=\"VALKOR\" Name=\"" + package + "\"";
        Uuid("Uuid", kPackageFamily, number);
        text_ += attributes + ">\n";
    }

    Document& Begin(const char* tag, const std::string& name, int family, int number) {
        text_ += std::string("<") + tag + " Name=\"" + name + "\"";
        return Uuid("Uuid", family, number);
    }
    Document& Uuid(const char* word, int family, int number) { return Add(word, UuidText(family, number)); }
    Document& Add(const char* word, const std::string& value) {
        text_ += std::string(" ") + word + "=\"" + value + "\"";
        return *this;
    }
    Document& Class(int number) {
        return Begin("Class", "Class" + std::to_string(number), kClassFamily, number)
            .Add("Persistent", "Yes")
            .Add("LateType", "")
            .Add("Abstract", "No");
    }
    Document& Simple(const std::string& name, int number) {
        return Begin("Simple", name, kAttributeFamily, number).Add("Type", "Integer").End();
    }
    Document& End() { return Text("/>\n"); }
    Document& Text(const char* text) {
        text_ += text;
        return *this;
    }

    void WriteTo(const std::string& file) { std::ofstream(file) << text_ << "</Package>\n"; }

    static std::string UuidText(int family, int number) {
        char text[36];
        std::snprintf(text, sizeof text, "%08X-0000-4000-80000000%08X", static_cast<unsigned>(family),
                      static_cast<unsigned>(number));
        return text;
    }

    static constexpr int kPackageFamily = 1;
    static constexpr int kClassFamily = 2;
    static constexpr int kAttributeFamily = 3;
    static constexpr int kInverseFamily = 4;

private:
    std::string text_;
};

constexpr const char* kName = "Shape";

/// A shape: writes the documents of the package Shape with \p size of what repeats, and asks what suits it.
struct Shape {
    void (*write)(const OwnDirectory& directory, int size);
    /// \returns how many answers there were; what it costs is reported for each of them.
    double (*ask)(const zandic::Dictionary& dictionary);
};

zandic::Handle<OXMIDicClass> ClassOf(const zandic::Dictionary& dictionary, int number) {
    const std::string name = "Class" + std::to_string(number);
    return zandic::As<OXMIDicClass>(
        zandic::Find(*dictionary.Package(kName), &OXMIDicPackage::GetElement, name));
}

double AskAllElements(const zandic::Dictionary& dictionary) {
    double count = 0;
    for (OXMIDicClass& element : zandic::Classes(*dictionary.Package(kName))) {
        count += zandic::Attributes(element).Size();
    }
    return count;
}

double AskSubClasses(const zandic::Dictionary& dictionary) {
    return zandic::SubClasses(*ClassOf(dictionary, 0)).Size();
}

void WriteManyAttributes(const OwnDirectory& directory, int size) {
    Document document(kName);
    document.Class(0).Text(">\n");
    for (int number = 0; number < size; ++number) document.Simple("a" + std::to_string(number), number);
    document.Text("</Class>\n").WriteTo(directory.File(kName));
}

void WriteManySubclasses(const OwnDirectory& directory, int size) {
    Document document(kName);
    document.Class(0).End();
    for (int number = 1; number <= size; ++number) {
        document.Class(number).Uuid("SuperRef", Document::kClassFamily, 0).End();
    }
    document.WriteTo(directory.File(kName));
}

void WriteChain(const OwnDirectory& directory, int size) {
    Document document(kName);
    for (int number = 0; number < size; ++number) {
        document.Class(number);
        if (number > 0) document.Uuid("SuperRef", Document::kClassFamily, number - 1);
        document.Text(">").Simple("a" + std::to_string(number), number).Text("</Class>\n");
    }
    document.WriteTo(directory.File(kName));
}

void WriteChainOfPackages(const OwnDirectory& directory, int size) {
    for (int number = 0; number < size; ++number) {
        const bool isFirst = number == 0;
        const std::string name = isFirst ? kName : "Shape" + std::to_string(number);
        const std::string use =
            number + 1 == size ? std::string() : " UseNames=\"Shape" + std::to_string(number + 1) + "\"";
        Document document(name, number, use);
        document.Class(number).End().WriteTo(directory.File(name));
    }
}
double AskElementOfUsedPackages(const zandic::Dictionary& dictionary) {
    return zandic::All<OXMIDicElement>(*dictionary.Package(kName), &OXMIDicPackage::GetAllElements).Size();
}

void WriteManyEnumerators(const OwnDirectory& directory, int size) {
    Document document(kName);
    document.Begin("Enum", "Enum", Document::kClassFamily, 0).Text(">\n");
    for (int number = 0; number < size; ++number) {
        document.Begin("Enumerator", "v" + std::to_string(number), Document::kAttributeFamily, number)
            .Add("Value", std::to_string(number))
            .End();
    }
    document.Text("</Enum>\n").WriteTo(directory.File(kName));
}
double AskEnumerators(const zandic::Dictionary& dictionary) {
    const auto found = zandic::Find(*dictionary.Package(kName), &OXMIDicPackage::GetElement, "Enum");
    return zandic::All<OXMIDicElement>(*zandic::As<OXMIDicEnum>(found), &OXMIDicEnum::GetEnumerators).Size();
}

void WriteManyInverses(const OwnDirectory& directory, int size) {
    Document document(kName);
    document.Class(0).Text(">");
    document.Begin("Relationship", "r", Document::kAttributeFamily, 0)
        .Uuid("TargetRef", Document::kClassFamily, 1)
        .End()
        .Text("</Class>\n");
    document.Class(1).Text(">\n");
    for (int number = 0; number < size; ++number) {
        document.Begin("Inverse", "i" + std::to_string(number), Document::kInverseFamily, number)
            .Uuid("TargetRef", Document::kClassFamily, 0)
            .Uuid("InverseOfRef", Document::kAttributeFamily, 0)
            .End();
    }
    document.Text("</Class>\n").WriteTo(directory.File(kName));
}
double AskInverses(const zandic::Dictionary& dictionary) {
    const auto relationship = zandic::As<OXMIDicRelationship>(
        zandic::Find(*ClassOf(dictionary, 0), &OXMIDicClass::GetElement, "r"));
    return zandic::All<OXMIDicElement>(*relationship, &OXMIDicRelationship::GetInvertedAttributes).Size();
}

void WriteScopeOverSubclasses(const OwnDirectory& directory, int size) {
    Document document(kName);
    document.Class(0).Text(">");
    document.Begin("Relationship", "r", Document::kAttributeFamily, 0)
        .Uuid("TargetRef", Document::kClassFamily, 0)
        .Uuid("ScopeRefs", Document::kClassFamily, 0)
        .End()
        .Text("</Class>\n");
    for (int number = 1; number <= size; ++number) {
        document.Class(number).Uuid("SuperRef", Document::kClassFamily, 0).End();
    }
    document.WriteTo(directory.File(kName));
}
/// The first question expands the scope, and writes its lines to standard error.
double AskScope(const zandic::Dictionary& dictionary) {
    const auto root = ClassOf(dictionary, 0);
    const auto relationship =
        zandic::As<OXMIDicRelationship>(zandic::Find(*root, &OXMIDicClass::GetElement, "r"));
    double inScope = 0;
    for (OXMIDicClass& element : zandic::SubClasses(*root)) {
        const ZELDbBinary uuid = zandic::Uuid(element);
        unsigned char isIn = 0;
        relationship->IsClassInScope(&uuid, &isIn);
        inScope += isIn;
    }
    return inScope;
}

constexpr Shape kManyAttributes{WriteManyAttributes, AskAllElements};
constexpr Shape kManySubclasses{WriteManySubclasses, AskSubClasses};
constexpr Shape kChain{WriteChain, AskAllElements};
constexpr Shape kChainOfPackages{WriteChainOfPackages, AskElementOfUsedPackages};
constexpr Shape kManyEnumerators{WriteManyEnumerators, AskEnumerators};
constexpr Shape kManyInverses{WriteManyInverses, AskInverses};
constexpr Shape kScope{WriteScopeOverSubclasses, AskScope};

/// load_ns and unload_ns for each of what repeats, ask_ns for each answer.
template <const Shape& shape>
void BM_Shape(benchmark::State& state) {
    const Silence silence;
    const OwnDirectory directory;
    const int size = static_cast<int>(state.range(0));
    shape.write(directory, size);
    const auto dictionary = zandic::Dictionary::Open();
    malloc_trim(0);
    for (auto _ : state) {
        const Stopwatch load;
        if (!dictionary.Load(kName, directory.Path().c_str())) {
            state.SkipWithError("the load fails");
            break;
        }
        state.counters["load_ns"] = load.Nanoseconds() / size;
        const Stopwatch ask;
        const double answers = shape.ask(dictionary);
        state.counters["ask_ns"] = ask.Nanoseconds() / std::max(answers, 1.0);
        state.counters["answers"] = answers;
        const Stopwatch unload;
        dictionary.Manager().End();
        state.counters["unload_ns"] = unload.Nanoseconds() / size;
    }
}

/// The two sizes of a shape.
template <int small, int large>
void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(small)->Arg(large)->Iterations(1)->Unit(benchmark::kMillisecond);
}
BENCHMARK(BM_Shape<kManyAttributes>)->Apply(Sizes<10'000, 100'000>);
BENCHMARK(BM_Shape<kManySubclasses>)->Apply(Sizes<10'000, 100'000>);
BENCHMARK(BM_Shape<kChain>)->Apply(Sizes<1'000, 10'000>);
BENCHMARK(BM_Shape<kChainOfPackages>)->Apply(Sizes<500, 5'000>);
BENCHMARK(BM_Shape<kManyEnumerators>)->Apply(Sizes<100'000, 1'000'000>);
BENCHMARK(BM_Shape<kManyInverses>)->Apply(Sizes<5'000, 50'000>);
BENCHMARK(BM_Shape<kScope>)->Apply(Sizes<5'000, 50'000>);

}  // namespace
