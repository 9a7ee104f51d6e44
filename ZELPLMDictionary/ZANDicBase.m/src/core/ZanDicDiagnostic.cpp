#include "ZanDicDiagnostic.h"

#include <iterator>
#include <utility>

namespace {

/// By code.
constexpr std::string_view kNames[] = {
    "file-not-found",         "invalid-file-extension", "invalid-package-name", "document-not-readable",
    "no-package-tag",         "package-name-differs",   "invalid-domain",       "prerequisite-failed",
    "package-not-created",    "tuning-failed",          "missing-attribute",    "invalid-value",
    "invalid-number",         "unknown-word",           "unknown-attribute",    "unknown-tag",
    "deprecated-tag",         "unsupported-tag",        "repeated-attribute",   "not-created",
    "duplicate-name",         "duplicate-uuid",         "reference-not-found",  "reference-of-wrong-kind",
    "cross-domain-reference", "reference-refused",      "invalid-redefinition", "invalid-block",
};
static_assert(std::size(kNames) == kZanDicDiagnosticCodeCount);

constinit ZanDicDiagnosticObserver* diagnosticObserver = nullptr;

}  // namespace

std::string_view ZanDicDiagnosticName(ZanDicDiagnosticCode code) {
    const auto index = static_cast<std::size_t>(code);
    return index < std::size(kNames) ? kNames[index] : "?";
}

ZanDicDiagnosticObserver* ZanDicSetDiagnosticObserver(ZanDicDiagnosticObserver* observer) {
    return std::exchange(diagnosticObserver, observer);
}

ZanDicDiagnosticObserver* ZanDicGetDiagnosticObserver() { return diagnosticObserver; }
