// Loads a package, edits it and saves it elsewhere, where it is found before the original from then on:
// EditPackage DIRECTORIES DIRECTORY
#include <iostream>
#include <string>

#include "OXMIDicSimple.h"
#include "zandic.hpp"

int main(int argc, char** argv) {
    if (argc != 3) return 1;
    const std::string samples = argv[1];
    const std::string directory = argv[2];
    const auto dictionary = zandic::Dictionary::Open();
    if (!dictionary.Load("BomPeople", samples.c_str())) return 1;

    {
        // What is found is edited in place; handles end with the block, before everything is forgotten.
        const auto people = dictionary.Package("BomPeople");
        const auto person =
            zandic::As<OXMIDicClass>(zandic::Find(*people, &OXMIDicPackage::GetElement, "BomPerson"));
        if (!person) return 1;
        zandic::Set(*person, &OXMIDicClass::SetAlias, "Somebody with a badge");
        const auto badge = zandic::Create(*person, &OXMIDicClass::CreateSimple, "Badge", zandic::NewUuid());
        if (!badge) return 1;
        badge->SetType(dictionary.Primitive(OXMDicPRIMITIVEType_Integer).Get());
    }

    if (const zandic::Result saved = dictionary.Save("BomPeople", directory.c_str()); !saved) {
        std::cerr << saved.Text() << '\n';
        return 1;
    }

    dictionary.Manager().End();
    const auto again = zandic::Dictionary::Open();
    if (!again.Load("BomPeople", (directory + ":" + samples).c_str())) return 1;
    const auto person = zandic::As<OXMIDicClass>(
        zandic::Find(*again.Package("BomPeople"), &OXMIDicPackage::GetElement, "BomPerson"));
    std::cout << zandic::Get(*person, &OXMIDicClass::GetAlias)->View() << '\n';
    for (OXMIDicAttribute& attribute : zandic::OwnAttributes(*person)) {
        std::cout << "  " << zandic::Name(attribute).View() << '\n';
    }
}
