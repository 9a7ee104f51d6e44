// What the guard counts the instructions of, one process an operation: InstructionRun OPERATION DIRECTORY
//   generate   writes the document that the others load
//   open       opens the dictionary and closes it; the others do that as well
//   load       loads the document
//   save       loads it and saves it beside
//   navigate   loads it and asks for all attributes of every class, and for each attribute by name and UUID

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "PackageGenerator.h"
#include "ZELHash.h"
#include "ZELLineSink.h"
#include "zandic.hpp"

namespace {

constexpr const char* kPackage = "Guarded";

class Silence : public ZELLineSink {
public:
    void Write(const ZELLine&) override {}
};

void Generate(const std::string& directory) {
    PackageShape shape;
    shape.elements = 2'000;
    std::ofstream(directory + "/" + kPackage + ".metadata") << GeneratePackage(kPackage, shape).document;
}

/// \returns whether every question was answered.
bool Navigate(const zandic::Dictionary& dictionary) {
    bool answered = true;
    for (OXMIDicClass& element : zandic::Classes(*dictionary.Package(kPackage))) {
        for (OXMIDicAttribute& attribute : zandic::Attributes(element)) {
            const ZELString name(zandic::Name(attribute).View());
            answered = answered && zandic::Find(element, &OXMIDicClass::GetElement, name.View()) &&
                       dictionary.Search(zandic::Uuid(attribute));
        }
    }
    return answered;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const std::string_view operation = argv[1];
    const std::string directory = argv[2];
    if (operation == "generate") {
        Generate(directory);
        return 0;
    }
    ZELSetHashSeed(20);
    Silence silence;
    ZELSetLineSink(&silence);
    const auto dictionary = zandic::Dictionary::Open();
    bool worked = static_cast<bool>(dictionary);
    if (operation != "open") worked = worked && dictionary.Load(kPackage, directory.c_str());
    if (operation == "save") worked = worked && dictionary.Save(kPackage, (directory + "/saved").c_str());
    if (operation == "navigate") worked = worked && Navigate(dictionary);
    // The process ends here: taking down what was loaded is not what is counted.
    std::cout.flush();
    std::_Exit(worked ? 0 : 1);
}
