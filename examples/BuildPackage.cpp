// Builds a package by code and saves it, as a document and as an EXPRESS schema: BuildPackage SAMPLES
// DIRECTORY
#include <iostream>

#include "OXMIDicEnum.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "zandic.hpp"

namespace {

/// A class, its attributes and what types them. Whatever is refused leaves a null handle.
bool Fill(const zandic::Dictionary& dictionary, OXMIDicPackage& package) {
    const auto tool = zandic::Create(package, &OXMIDicPackage::CreateClass, "Tool", zandic::NewUuid());
    const auto state = zandic::Create(package, &OXMIDicPackage::CreateEnum, "State", zandic::NewUuid());
    if (!tool || !state) return false;
    zandic::Set(*tool, &OXMIDicClass::SetAlias, "Anything that machines are fitted with");
    int value = 0;
    for (const char* const word : {"New", "Worn", "Scrapped"}) {
        const ZELString name(word);
        if (Failed(state->CreateEnumValue(&name, ++value))) return false;
    }

    const auto number = zandic::Create(*tool, &OXMIDicClass::CreateSimple, "Number", zandic::NewUuid());
    const auto wear = zandic::Create(*tool, &OXMIDicClass::CreateSimple, "Wear", zandic::NewUuid());
    const auto spare = zandic::Create(*tool, &OXMIDicClass::CreateRelationship, "Spare", zandic::NewUuid());
    if (!number || !wear || !spare) return false;
    number->SetMandatory(1);
    number->SetMaxLength(12);
    spare->SetMultiValuated(1);
    return Succeeded(number->SetType(dictionary.Primitive(OXMDicPRIMITIVEType_String).Get())) &&
           Succeeded(wear->SetType(state.Get())) && Succeeded(spare->SetTarget(tool.Get()));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 1;
    const char* const directory = argv[2];
    const auto dictionary = zandic::Dictionary::Open();
    const auto package = dictionary.NewPackage("Tools", zandic::NewUuid());
    if (!package || !Fill(dictionary, *package)) return 1;

    for (const zandic::Result& saved :
         {dictionary.Save("Tools", directory), dictionary.SaveExpress("Tools", directory)}) {
        if (!saved) {
            std::cerr << saved.Text() << '\n';
            return 1;
        }
    }

    // The proof: forget everything and read it back.
    dictionary.Manager().End();
    if (const zandic::Result loaded = zandic::Dictionary::Open().Load("Tools", directory); !loaded) {
        std::cerr << loaded.Text() << '\n';
        return 1;
    }
    const auto tool = zandic::Find(*dictionary.Package("Tools"), &OXMIDicPackage::GetElement, "Tool");
    for (OXMIDicAttribute& attribute : zandic::OwnAttributes(*zandic::As<OXMIDicClass>(tool))) {
        std::cout << zandic::Name(attribute).View() << " : "
                  << zandic::Name(*zandic::TypeOf(attribute)).View() << '\n';
    }
}
