// Loads a package with its tuning document and asks a class which attributes belong on one sheet:
// AskBlocks DIRECTORIES
#include <iostream>

#include "zandic.hpp"

int main(int argc, char** argv) {
    const auto dictionary = zandic::Dictionary::Open();
    if (argc != 2 || !dictionary.Load("BomItems", argv[1])) return 1;
    const auto element =
        zandic::Find(*dictionary.Package("BomItems"), &OXMIDicPackage::GetElement, "BomPart");
    const auto part = zandic::As<OXMIDicClass>(element);

    for (OXMIDicAttributeBlock& block : zandic::Blocks(*part)) {
        std::cout << zandic::Name(block).View() << ':';
        for (OXMIDicAttribute& attribute : zandic::Attributes(block)) {
            std::cout << ' ' << zandic::Name(attribute).View();
        }
        std::cout << '\n';
    }

    if (const auto block = zandic::Find(*part, &OXMIDicClass::GetAttBlockForAtt, "Mass")) {
        std::cout << "Mass is on the sheet " << zandic::Name(*block).View() << '\n';
    }
}
