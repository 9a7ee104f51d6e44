#include "Documents.h"

namespace tool {

void Documents::Note(std::string_view package, std::string_view file) {
    _FILES.insert_or_assign(std::string(package), std::string(file));
}

std::string_view Documents::FileOf(std::string_view package) const {
    const auto found = _FILES.find(package);
    return found != _FILES.end() ? std::string_view(found->second) : std::string_view();
}

const DocumentPlaces* Documents::Read(std::string_view file) {
    auto found = _DOCUMENTS.find(file);
    if (found == _DOCUMENTS.end()) {
        const std::string path(file);
        found = _DOCUMENTS.emplace(path, DocumentPlaces::Read(path.c_str())).first;
    }
    return found->second.get();
}

FilePlace Documents::PlaceOf(std::string_view package, const ZELDbBinary& uuid, std::string_view attribute) {
    const std::string_view file = FileOf(package);
    if (file.empty()) return {};
    FilePlace at{std::string(file)};
    if (const DocumentPlaces* const places = Read(file); places != nullptr) {
        at.place = attribute.empty() ? places->PlaceOf(uuid) : places->PlaceOf(uuid, attribute);
    }
    return at;
}

}  // namespace tool
