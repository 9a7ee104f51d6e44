/// The rules about what a load accepts and a modeller would want to know.
#ifndef ZANDIC_TOOL_DOCUMENT_RULES_H
#define ZANDIC_TOOL_DOCUMENT_RULES_H

#include <string>

#include "Documents.h"
#include "Finding.h"
#include "zandic.hpp"

namespace tool {

/// A well-formed document with a package tag, as the rules look at it. What it uses is loaded, as far as that
/// could be. The rules do not report again what the reader reports.
struct CheckedDocument {
    const std::string& file;       ///< as it is named in findings
    const DocumentPlaces& places;  ///< what is in it, and where
    Documents& documents;          ///< where other elements stand, for notes
    const zandic::Dictionary& dictionary;
    /// What it became; null when the document has an error, and of a tuning document the package that it
    /// tunes. Without a package only the document can be looked at, and its faulty parts must not give
    /// findings that follow from the error.
    OXMIDicPackage* package;
    /// What the reader said of this document.
    const Findings& faults;
};

/// Adds what the rules find in a package document, in any order.
void CheckDocument(const CheckedDocument& document, Findings& findings);

/// The same for a tuning document; the package is there.
void CheckTuningDocument(const CheckedDocument& document, Findings& findings);

}  // namespace tool

#endif
