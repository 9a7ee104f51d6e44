// Loads a package and lists its classes with the attributes that they have of their own, once by the thin
// layer, once by the interfaces alone: WalkPackage DIRECTORIES
#include <iostream>

#include "OXMIDicClass.h"
#include "zandic.hpp"

namespace {

/// By the layer: handles and lists give back what they hold.
void Walk(OXMIDicPackage& package) {
    for (OXMIDicClass& each : zandic::Classes(package)) {
        std::cout << zandic::Name(each).View() << ':';
        for (OXMIDicAttribute& attribute : zandic::OwnAttributes(each)) {
            std::cout << ' ' << zandic::Name(attribute).View();
            if (const auto type = zandic::TypeOf(attribute))
                std::cout << '(' << zandic::Name(*type).View() << ')';
        }
        std::cout << '\n';
    }
}

/// By the interfaces: every reference that a call hands out is released here.
int CountAttributes(OXMIDicMgr& manager, const char* packageName) {
    const ZELString name(packageName);
    OXMIDicPackage* package = nullptr;
    if (Failed(manager.GetPackage(&name, &package))) return 0;
    ZELListPtrIUnknown classes;
    int count = 0;
    if (Succeeded(package->GetClasses(&classes))) {
        for (int position = 1; position <= classes.Size(); ++position) {
            auto* const each = static_cast<OXMIDicClass*>(classes[position]);
            ZELListPtrIUnknown attributes;
            if (Succeeded(each->GetAllElements(&attributes))) count += attributes.Size();
            for (IUnknown* const attribute : attributes) attribute->Release();
            each->Release();
        }
    }
    package->Release();
    return count;
}

}  // namespace

int main(int argc, char** argv) {
    const auto dictionary = zandic::Dictionary::Open();
    if (argc != 2 || !dictionary.Load("BomItems", argv[1])) return 1;

    Walk(*dictionary.Package("BomItems"));
    std::cout << CountAttributes(dictionary.Manager(), "BomItems")
              << " attributes, inherited ones included\n";
}
