#include "ZanDicTrace.h"

#include <charconv>
#include <cstdint>
#include <new>
#include <string>
#include <utility>

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

ZanDicTraceLine::ZanDicTraceLine(std::string_view operation, ZELLineSeverity severity) noexcept {
    try {
        _Draft = new Draft{std::string(operation), severity};
    } catch (const std::bad_alloc&) {
    }
}

ZanDicTraceLine& ZanDicTraceLine::operator<<(std::string_view text) noexcept {
    if (_Draft == nullptr || text.empty()) return *this;
    if (text.front() == '-') _Draft->separated = true;
    return Value(text);
}

ZanDicTraceLine& ZanDicTraceLine::operator<<(const ZELDbBinary& uuid) noexcept {
    if (uuid.IsEmpty()) return Value("UNDEFINED");
    try {
        return Value(uuid.HexText());
    } catch (const std::bad_alloc&) {
        delete std::exchange(_Draft, nullptr);
        return *this;
    }
}

ZanDicTraceLine& ZanDicTraceLine::operator<<(const void* address) noexcept {
    if (address == nullptr) return Value("0");
    char digits[2 + 2 * sizeof address] = {'0', 'x'};
    const auto number = reinterpret_cast<std::uintptr_t>(address);
    return Value({digits, std::to_chars(digits + 2, digits + sizeof digits, number, 16).ptr});
}

ZanDicTraceLine& ZanDicTraceLine::Value(std::string_view text) noexcept {
    if (_Draft == nullptr) return *this;
    try {
        _Draft->Separate();
        _Draft->text += text;
    } catch (const std::bad_alloc&) {
        delete std::exchange(_Draft, nullptr);
    }
    return *this;
}

ZanDicTraceLine& ZanDicTraceLine::Append(long long number) noexcept {
    char digits[24];
    return Value({digits, std::to_chars(digits, digits + sizeof digits, number).ptr});
}

void ZanDicTraceLine::Write() noexcept {
    Value("");
    Value(".");
    if (_Draft == nullptr) return;
    ZELWriteLine({_Draft->text, ZELLineStream::Output, _Draft->severity, documentIsRead});
    delete _Draft;
}

void ZanDicTraceScope::WriteText(std::string_view text, ZELLineSeverity severity) const {
    // A short line of fixed text needs no memory: so it can say that there is none.
    char buffer[256];
    const std::string_view separator = text.starts_with('-') ? "" : "- ";
    if (_Operation.size() + separator.size() + text.size() + 1 > sizeof buffer) {
        ZanDicTraceLine(_Operation, severity) << text;
        return;
    }
    char* end = buffer;
    for (const std::string_view part : {_Operation, separator, text, std::string_view(".")}) {
        end += part.copy(end, part.size());
    }
    ZELWriteLine({{buffer, end}, ZELLineStream::Output, severity, documentIsRead});
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
