#ifndef PACKAGE_GENERATOR_H
#define PACKAGE_GENERATOR_H

#include <string>

/// Shape of a generated package. Elements are classes, attributes, enumerations and enumerators.
struct PackageShape {
    int elements = 213'000;  ///< about; the last class is whole
    int attributesPerClass = 20;
    int enumeratorsPerEnum = 9;
};

/// A package document made up by rule: the same shape always gives the same bytes.
struct GeneratedPackage {
    std::string name;
    std::string document;
    int elements = 0;  ///< exactly
};

/// Makes a document named \p name of the given shape: of the attributes 70 % simple, 20 % relationships,
/// 5 % inverses and 5 % enumerated; super class chains of depth 1 to 5; targets spread over the whole
/// package.
GeneratedPackage GeneratePackage(const std::string& name, const PackageShape& shape);

#endif
