#include "ZanDicTrace.h"

#include <charconv>
#include <cstdint>
#include <string>

#include "ZELStackTrace.h"

namespace {

/// Whether the lines written now are caused by a document.
constinit bool documentIsRead = false;

}  // namespace

ZanDicTrace::DocumentScope::DocumentScope(bool fromDocument) : _Before(documentIsRead) {
    documentIsRead = fromDocument;
}

ZanDicTrace::DocumentScope::~DocumentScope() { documentIsRead = _Before; }

struct ZanDicTraceLine::Draft {
    std::string text;
    ZELLineSeverity severity;
    bool separated = false;  ///< what stands behind the operation's name is settled

    void Separate() {
        if (!separated) text += "- ";
        separated = true;
    }
};

ZanDicTraceLine::ZanDicTraceLine(std::string_view operation, ZELLineSeverity severity)
    : _Draft(new Draft{std::string(operation), severity}) {}

ZanDicTraceLine& ZanDicTraceLine::operator<<(std::string_view text) {
    if (_Draft == nullptr || text.empty()) return *this;
    if (text.front() == '-') _Draft->separated = true;
    return Value(text);
}

ZanDicTraceLine& ZanDicTraceLine::operator<<(const ZELDbBinary& uuid) {
    return Value(uuid.IsEmpty() ? std::string("UNDEFINED") : uuid.HexText());
}

ZanDicTraceLine& ZanDicTraceLine::operator<<(const void* address) {
    if (address == nullptr) return Value("0");
    char digits[2 + 2 * sizeof address] = {'0', 'x'};
    const auto number = reinterpret_cast<std::uintptr_t>(address);
    return Value({digits, std::to_chars(digits + 2, digits + sizeof digits, number, 16).ptr});
}

ZanDicTraceLine& ZanDicTraceLine::Value(std::string_view text) {
    if (_Draft == nullptr) return *this;
    _Draft->Separate();
    _Draft->text += text;
    return *this;
}

ZanDicTraceLine& ZanDicTraceLine::Append(long long number) { return Value(std::to_string(number)); }

void ZanDicTraceLine::Write() noexcept {
    _Draft->Separate();
    _Draft->text += '.';
    ZELWriteLine({_Draft->text, ZELLineStream::Output, _Draft->severity, documentIsRead});
    delete _Draft;
}

void ZanDicTraceScope::WriteText(std::string_view text, ZELLineSeverity severity) const {
    ZanDicTraceLine(_Operation, severity) << text;
}

void ZanDicTraceScope::WriteExit(HRESULT rc) const {
    ZanDicTraceLine(_Operation, ZELLineSeverity::None) << "=== exit === " << _ExitWord << Word(rc);
}

void ZanDicTraceScope::CallStack() const {
    Error("*** ERROR *** Printing call stack:");
    ZELPrintStackTrace();
}

void ZanDicWriteAlways(std::string_view text, ZELLineSeverity severity) {
    ZELWriteLine({text, ZELLineStream::Output, severity, documentIsRead});
}

void ZanDicWriteError(std::string_view text, ZELLineSeverity severity) {
    ZELWriteLine({text, ZELLineStream::Error, severity, documentIsRead});
}
