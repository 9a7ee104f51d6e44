#ifndef ZANDIC_TOOL_READER_FINDINGS_H
#define ZANDIC_TOOL_READER_FINDINGS_H

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Documents.h"
#include "Finding.h"
#include "ZELDbBinary.h"
#include "ZELVBTXMLNode.h"
#include "ZanDicDiagnostic.h"

namespace tool {

/// \returns whether a file is named as a tuning document is.
bool IsTuningFile(std::string_view file);

/// A document that the reader has read.
struct ReadDocument {
    std::string file;  ///< as it is shown
    std::string package;
    ZanDicReading end;
    std::unique_ptr<ZELVBTXMLDocument> tree;  ///< null when it is not well formed

    bool IsTuning() const { return IsTuningFile(file); }
};

/// Turns what the reader says of documents into findings: every fault, since it always goes on, and what
/// follows from each. For one load.
class ReaderFindings final : public ZanDicDiagnosticObserver {
public:
    /// \param directories that are searched, separated by ":".
    explicit ReaderFindings(std::string directories) : _Directories(std::move(directories)) {}

    bool OnDiagnostic(const ZanDicDiagnostic& diagnostic) override;
    void OnDocument(ZanDicReadDocument document) override;
    bool IsThorough() const override { return true; }

    /// \returns the documents, those first whose reading ended first.
    std::vector<ReadDocument>& Documents() { return _DOCUMENTS; }

    /// \returns the findings, in the order of telling; their notes get their places from \p documents.
    Findings Take(class Documents& documents);

private:
    /// The other party of a finding, to be found once the load is over.
    struct Party {
        std::size_t finding;
        std::string package;
        ZELDbBinary uuid;
        std::string text;
    };

    void note_Party(const ZanDicDiagnostic& diagnostic);
    void tell_Missing(const ZanDicDiagnostic& diagnostic, Finding& finding);

    std::string _Directories;
    std::vector<std::string> _NAMES;  ///< of the packages in the directories; looked up when one is missing
    Findings _FINDINGS;
    std::vector<Party> _PARTIES;
    std::vector<std::size_t> _BY_NUMBER;  ///< findings by the reader's number less 1
    std::vector<ReadDocument> _DOCUMENTS;
};

}  // namespace tool

#endif
