// What a program learns when something goes wrong: HandleErrors DIRECTORIES
#include <iostream>

#include "ZELLineSink.h"
#include "ZanDicDiagnostic.h"
#include "zandic.hpp"

namespace {

/// Keeps the dictionary's own lines off the program's output.
class Silence : public ZELLineSink {
public:
    void Write(const ZELLine&) override {}
};

/// Is told every fault of the documents, not the first one only.
class AllFaults : public ZanDicDiagnosticObserver {
public:
    bool OnDiagnostic(const ZanDicDiagnostic& fault) override {
        std::cout << "  " << ZanDicDiagnosticName(fault.Code()) << ": " << fault.Reason() << '\n';
        return true;  // go on: report what else there is
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 1;
    Silence silence;
    ZELSetLineSink(&silence);
    const auto dictionary = zandic::Dictionary::Open();

    // A result tells what went wrong.
    std::cout << dictionary.Load("Nowhere", argv[1]).Text() << '\n';

    // What fails leaves nothing behind; what was loaded stays.
    if (!dictionary.Load("BomPeople", argv[1])) return 1;
    std::cout << "packages: " << dictionary.Packages("VALKOR").Size() << '\n';

    // A name can be taken: a null handle, and nothing has changed.
    const auto people = dictionary.Package("BomPeople");
    const auto second = zandic::Create(*people, &OXMIDicPackage::CreateClass, "BomPerson", zandic::NewUuid());
    std::cout << "a second BomPerson: " << (second ? "made" : "refused") << '\n';

    // A place that cannot be written to.
    std::cout << dictionary.Save("BomPeople", "/nowhere").Text() << '\n';

    AllFaults faults;
    ZanDicSetDiagnosticObserver(&faults);
    std::cout << "all faults:\n";
    dictionary.Load("Nowhere", argv[1]);
    ZanDicSetDiagnosticObserver(nullptr);
    ZELSetLineSink(nullptr);
}
