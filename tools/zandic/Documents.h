#ifndef ZANDIC_TOOL_DOCUMENTS_H
#define ZANDIC_TOOL_DOCUMENTS_H

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "DocumentPlaces.h"
#include "Finding.h"
#include "ZELDbBinary.h"

namespace tool {

/// The documents of a run and the packages in them. Each is read when it is asked for first, apart from the
/// dictionary, and stays. One thread.
class Documents {
public:
    /// Says in which file a package stands.
    void Note(std::string_view package, std::string_view file);

    /// \returns the file of a package; empty when none was noted.
    std::string_view FileOf(std::string_view package) const;

    /// Keeps a document that was read already.
    void Keep(std::string_view file, std::unique_ptr<ZELVBTXMLDocument> tree);

    /// \returns the document with the places of its elements; null when it cannot be read or is not well
    /// formed.
    const DocumentPlaces* Read(std::string_view file);

    /// \returns the place of an element of a package, or of an attribute of its tag; without line where it
    /// cannot be found, and without file for a package that nobody noted.
    FilePlace PlaceOf(std::string_view package, const ZELDbBinary& uuid, std::string_view attribute = {});

private:
    std::map<std::string, std::string, std::less<>> _FILES;  ///< by package
    /// By file: those that are kept and were not asked for yet.
    std::map<std::string, std::unique_ptr<ZELVBTXMLDocument>, std::less<>> _KEPT;
    std::map<std::string, std::unique_ptr<DocumentPlaces>, std::less<>>
        _DOCUMENTS;  ///< by file; null: unreadable
};

}  // namespace tool

#endif
