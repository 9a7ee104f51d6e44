#include "DocumentFile.h"

#include <cstdlib>
#include <memory>

#include "OxmBuildFileName.h"
#include "ZANDicWords.h"

std::string FindDocument(const char* dirNames, const ZELString& package, const ZELString& extension,
                         HRESULT* result) {
    char* fullName = nullptr;
    const HRESULT rc =
        OxmBuildFileName('r', dirNames, package.ConvertToChar(), extension.ConvertToChar(), &fullName);
    const std::unique_ptr<char, decltype(&std::free)> owner(fullName, &std::free);
    if (result != nullptr) *result = rc;
    return Succeeded(rc) && fullName != nullptr ? std::string(fullName) : std::string();
}

ZELVBTXMLNode FindPackageNode(const ZELVBTXMLDocument& document) {
    const ZELVBTXMLNode root = document.Root();
    if (root.getTag() == ZANDicFormat::tag::kPackage) return root;
    for (const ZELVBTXMLNode child : root.Children()) {
        if (child.getTag() == ZANDicFormat::tag::kPackage) return child;
    }
    return {};
}
