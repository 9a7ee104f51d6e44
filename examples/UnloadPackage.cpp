// Unloads a package that another uses, and what the links into it answer then: UnloadPackage DIRECTORIES
#include <iostream>

#include "OXMIDicClass.h"
#include "ZELLineSink.h"
#include "zandic.hpp"

namespace {

/// An unload tells what it empties, whatever the trace level; this program keeps that off its output.
class Silence : public ZELLineSink {
public:
    void Write(const ZELLine&) override {}
};

void Tell(OXMIDicClass& element) {
    const auto super = zandic::Link(element, &OXMIDicClass::GetSuperClass);
    std::cout << zandic::Name(element).View() << " is a " << (super ? zandic::Name(*super).View() : "root");
    std::cout << ", lost links: " << zandic::Get(element, &OXMIDicClass::GetLostLinks).value_or(0) << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    const auto dictionary = zandic::Dictionary::Open();
    if (argc != 2 || !dictionary.Load("BomDocuments", argv[1])) return 1;
    const auto documents = dictionary.Package("BomDocuments");
    const auto people = dictionary.Package("BomPeople");
    const auto person =
        zandic::As<OXMIDicClass>(zandic::Find(*people, &OXMIDicPackage::GetElement, "BomPerson"));

    Silence silence;
    ZELSetLineSink(&silence);
    dictionary.Unload("BomPeople");
    ZELSetLineSink(nullptr);

    // Whoever still holds an interface may ask it: it answers for itself, and belongs to nothing.
    std::cout << zandic::Name(*person).View() << " belongs to "
              << (zandic::Link(*person, &OXMIDicClass::GetPackage) ? "a package" : "no package") << '\n';
    for (OXMIDicClass& each : zandic::Classes(*documents)) Tell(each);
    for (OXMIDicClass& each : zandic::Classes(*documents)) {
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(each)) {
            if (zandic::Get(attribute, &OXMIDicAttribute::GetLostLinks).value_or(0) == 0) continue;
            std::cout << zandic::Name(each).View() << "::" << zandic::Name(attribute).View()
                      << " lost a link\n";
        }
    }
}
