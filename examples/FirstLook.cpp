// Loads a package and says which of its classes derives from which: FirstLook DIRECTORIES PACKAGE
#include <iostream>

#include "OXMIDicClass.h"
#include "zandic.hpp"

int main(int argc, char** argv) {
    const auto dictionary = zandic::Dictionary::Open();
    if (argc != 3 || !dictionary.Load(argv[2], argv[1])) return 1;
    const auto package = dictionary.Package(argv[2]);
    for (OXMIDicClass& each : zandic::All<OXMIDicClass>(*package, &OXMIDicPackage::GetClasses)) {
        std::cout << zandic::Name(each).View();
        if (const auto super = zandic::Link(each, &OXMIDicClass::GetSuperClass)) {
            std::cout << " is a " << zandic::Name(*super).View();
        }
        std::cout << '\n';
    }
}
