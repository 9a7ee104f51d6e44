/// The dictionary's trace: whether a line is written, how it is made up, and where it ends.
///
/// A line is the operation's qualified name, "- ", the operands and "."; a message that begins with a
/// dash brings its own separator and follows the name directly. A trace site is one statement:
///
///     if (auto line = trace.Line(TraceLevel::Detail)) line << "_Name=" << name;
///
/// The test is one inline comparison; operands of a line that is not written are never evaluated.
/// The settings are there before the first initialiser runs and outlive the last destructor.
#ifndef ZAN_DIC_TRACE_H
#define ZAN_DIC_TRACE_H

#include <concepts>
#include <string_view>
#include <type_traits>

#include "ZELDbBinary.h"
#include "ZELLineSink.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"

/// Level of a line.
enum class TraceLevel : int {
    Error = 0,
    Call = 1,  ///< start and exit of operations, short notices
    Information = 2,
    Tag = 4,
    Detail = 5,
};

namespace ZanDicTrace {

/// The highest level that a line may have to be written; above every level once an operation is
/// listed, so that the common case is decided by this comparison alone.
extern constinit int threshold;

/// The first half of the test: whether any operation's line of this level might be written.
inline bool MayWrite([[maybe_unused]] TraceLevel level) {
#ifdef ZANDIC_WITHOUT_TRACE  // for measuring what the tests of the trace cost
    return false;
#else
    return static_cast<int>(level) <= threshold;
#endif
}

/// The second half, reached when the first passes.
[[gnu::cold]] bool IsWritten(int level, std::string_view operation);

/// Reads the settings from the environment, once per process; later calls only say what they are.
void InitFromEnvironment();

/// While one lives, errors and warnings count as caused by the document that is being read.
class DocumentScope {
public:
    explicit DocumentScope(bool fromDocument = true);
    ~DocumentScope();
    DocumentScope(const DocumentScope&) = delete;
    DocumentScope& operator=(const DocumentScope&) = delete;

private:
    bool _Before;
};

}  // namespace ZanDicTrace

/// One line being made; it is written when it goes out of scope. Inactive lines do nothing. A line for which
/// there is no memory is left out: what it tells of must not fail for it.
class ZanDicTraceLine {
public:
    ZanDicTraceLine() = default;
    [[gnu::cold]] ZanDicTraceLine(std::string_view operation, ZELLineSeverity severity) noexcept;
    ~ZanDicTraceLine() {
        if (_Draft != nullptr) Write();
    }
    ZanDicTraceLine(const ZanDicTraceLine&) = delete;
    ZanDicTraceLine& operator=(const ZanDicTraceLine&) = delete;

    explicit operator bool() const { return _Draft != nullptr; }

    ZanDicTraceLine& operator<<(std::string_view text) noexcept;
    /// A text; a null pointer adds nothing.
    ZanDicTraceLine& operator<<(const char* text) noexcept {
        return *this << (text != nullptr ? std::string_view(text) : std::string_view());
    }
    /// A value: one that begins with a dash is no separator. A null pointer adds nothing.
    ZanDicTraceLine& operator<<(const ZELString& text) noexcept { return Value(text.View()); }
    ZanDicTraceLine& operator<<(const ZELUnicodeString& text) noexcept { return Value(text.View()); }
    ZanDicTraceLine& operator<<(const ZELString* text) noexcept {
        return Value(text != nullptr ? text->View() : std::string_view());
    }
    /// A UUID, as 32 upper-case digits; an empty one as "UNDEFINED".
    ZanDicTraceLine& operator<<(const ZELDbBinary& uuid) noexcept;
    /// An address; null as "0".
    ZanDicTraceLine& operator<<(const void* address) noexcept;
    template <std::integral Number>
    ZanDicTraceLine& operator<<(Number number) noexcept {
        return Append(static_cast<long long>(number));
    }
    template <class Code>
    requires std::is_enum_v<Code> ZanDicTraceLine& operator<<(Code code) noexcept {
        return Append(static_cast<long long>(code));
    }

private:
    struct Draft;

    ZanDicTraceLine& Value(std::string_view text) noexcept;
    ZanDicTraceLine& Append(long long number) noexcept;
    [[gnu::cold]] void Write() noexcept;

    Draft* _Draft = nullptr;  ///< owned; null when the line is not written
};

/// The trace of one operation: knows its name and its exit word.
class ZanDicTraceScope {
public:
    /// \param operation the qualified name; static storage.
    /// \param exitWord "rc=" in the object classes, "RC=" in the manager and where owners are flushed.
    explicit constexpr ZanDicTraceScope(std::string_view operation, std::string_view exitWord = "rc=")
        : _Operation(operation), _ExitWord(exitWord) {}

    /// Whether a line of this level is written.
    bool On(TraceLevel level) const {
        return ZanDicTrace::MayWrite(level) && ZanDicTrace::IsWritten(static_cast<int>(level), _Operation);
    }

    /// Starts a line of the given level.
    ZanDicTraceLine Line(TraceLevel level, ZELLineSeverity severity = ZELLineSeverity::None) const {
        return On(level) ? ZanDicTraceLine(_Operation, severity) : ZanDicTraceLine();
    }
    /// Starts a line of level 0; the words "*** ERROR *** " or "*** WARNING *** " are the caller's.
    ZanDicTraceLine Error() const { return Line(TraceLevel::Error, ZELLineSeverity::Error); }
    ZanDicTraceLine Warning() const { return Line(TraceLevel::Error, ZELLineSeverity::Warning); }

    /// Writes a whole line of text.
    void Say(TraceLevel level, std::string_view text) const {
        if (On(level)) WriteText(text, ZELLineSeverity::None);
    }
    void Error(std::string_view text) const {
        if (On(TraceLevel::Error)) WriteText(text, ZELLineSeverity::Error);
    }
    void Warning(std::string_view text) const {
        if (On(TraceLevel::Error)) WriteText(text, ZELLineSeverity::Warning);
    }

    /// Writes the start line. \param marker with or without the trailing blank that some have.
    void Start(std::string_view marker = "=== start ===") const { Say(TraceLevel::Call, marker); }

    /// Writes the exit line, "OK" unless \p rc is a failure. \returns \p rc.
    HRESULT Exit(HRESULT rc) const {
        if (On(TraceLevel::Call)) WriteExit(rc);
        return rc;
    }

    /// Writes the error line "Printing call stack:" and the stack itself to standard error.
    void CallStack() const;

    /// "OK" or "KO".
    static constexpr std::string_view Word(HRESULT rc) { return Failed(rc) ? "KO" : "OK"; }

    std::string_view Operation() const { return _Operation; }

private:
    [[gnu::cold]] void WriteText(std::string_view text, ZELLineSeverity severity) const;
    [[gnu::cold]] void WriteExit(HRESULT rc) const;

    std::string_view _Operation;
    std::string_view _ExitWord;
};

/// Writes a line whatever the trace settings: to standard output, or to standard error.
void ZanDicWriteAlways(std::string_view text, ZELLineSeverity severity = ZELLineSeverity::None);
void ZanDicWriteError(std::string_view text, ZELLineSeverity severity = ZELLineSeverity::Error);

#endif
