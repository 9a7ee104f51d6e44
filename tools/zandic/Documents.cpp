#include "Documents.h"

#include <utility>

namespace tool {

void Documents::Note(std::string_view package, std::string_view file) {
    _FILES.insert_or_assign(std::string(package), std::string(file));
}

std::string_view Documents::FileOf(std::string_view package) const {
    const auto found = _FILES.find(package);
    return found != _FILES.end() ? std::string_view(found->second) : std::string_view();
}

void Documents::Keep(std::string_view file, std::unique_ptr<ZELVBTXMLDocument> tree) {
    _KEPT.insert_or_assign(std::string(file), std::move(tree));
}

const DocumentPlaces* Documents::Read(std::string_view file) {
    if (const auto found = _DOCUMENTS.find(file); found != _DOCUMENTS.end()) return found->second.get();
    const std::string path(file);
    const auto kept = _KEPT.extract(path);
    auto places = kept ? std::make_unique<DocumentPlaces>(std::move(kept.mapped()))
                       : DocumentPlaces::Read(path.c_str());
    return _DOCUMENTS.emplace(path, std::move(places)).first->second.get();
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
