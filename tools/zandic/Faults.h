#ifndef ZANDIC_TOOL_FAULTS_H
#define ZANDIC_TOOL_FAULTS_H

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "ZanDicDiagnostic.h"

namespace tool {

/// Something that the tool has to say, and where.
struct Fault {
    std::string subject;  ///< a file, or what the user asked for
    ZanDicPlace place;    ///< zeros: none
    std::string text;
    bool isMissing = false;  ///< the subject is a document that is not there
};

/// How much a fault matters.
enum class Gravity { Error, Warning };

/// \returns the one form of the tool's own lines: "zandic: FILE:LINE:COLUMN: error: TEXT", without the
/// parts that there are not.
std::string FaultLine(const Fault& fault, Gravity gravity = Gravity::Error);

/// Is told the faults of documents. Keeps the first error of a load, which ends it, and passes on what the
/// trace settings do not let through: a user hears of every fault, once.
class FaultObserver final : public ZanDicDiagnosticObserver {
public:
    bool OnDiagnostic(const ZanDicDiagnostic& diagnostic) override;

    /// \returns the first error since the last call, or none.
    std::optional<Fault> TakeFirstError();

    /// \returns the name of the package in the document that is found under the name \p asked.
    std::string NameIn(std::string_view asked) const;

private:
    std::map<std::string, std::string, std::less<>> _NAMES;  ///< of those documents that differ
    std::optional<Fault> _FirstError;
};

}  // namespace tool

#endif
