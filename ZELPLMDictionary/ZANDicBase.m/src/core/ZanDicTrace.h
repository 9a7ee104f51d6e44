/// The dictionary's trace: whether a line is written, how it is made up, and where it ends.
///
/// A line is the operation's qualified name, "- ", the operands and "."; a message that begins with a
/// dash brings its own separator and follows the name directly. A trace site is one statement:
///
///     if (auto line = trace.Line(TraceLevel::Detail)) line << "_Name=" << name;
///
/// The test is one inline comparison; operands of a line that is not written are never evaluated.
#ifndef ZAN_DIC_TRACE_H
#define ZAN_DIC_TRACE_H

#include <concepts>
#include <string>
#include <string_view>

#include "ZELDbBinary.h"
#include "ZELLineSink.h"
#include "ZELResult.h"
#include "ZELString.h"
#include "ZELUnicodeString.h"
#include "ZanDicExport.h"

/// Level of a line.
enum class TraceLevel : int {
    Error = 0,
    Call = 1,  ///< start and exit of operations, short notices
    Information = 2,
    Tag = 4,
    Detail = 5,
};

namespace ZanDicTrace {

/// The highest level that any line may have to be written; above every level once an operation is
/// listed, so that the common case is decided by this comparison alone.
extern constinit int threshold;

/// The whole test, reached when the comparison passes.
bool IsWritten(int level, std::string_view operation);

/// Reads the settings from the environment, once per process.
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

/// One line being made; it is written when it goes out of scope. Inactive lines do nothing.
class ZanDicTraceLine {
public:
    ZanDicTraceLine() = default;
    ZanDicTraceLine(std::string_view operation, ZELLineSeverity severity);
    ~ZanDicTraceLine();
    ZanDicTraceLine(const ZanDicTraceLine&) = delete;
    ZanDicTraceLine& operator=(const ZanDicTraceLine&) = delete;

    explicit operator bool() const { return _Active; }

    ZanDicTraceLine& operator<<(std::string_view text);
    ZanDicTraceLine& operator<<(const char* text) { return *this << std::string_view(text); }
    ZanDicTraceLine& operator<<(const ZELString& text) { return *this << text.View(); }
    ZanDicTraceLine& operator<<(const ZELUnicodeString& text) { return *this << text.View(); }
    /// A UUID, as 32 upper-case digits; an empty one as "UNDEFINED".
    ZanDicTraceLine& operator<<(const ZELDbBinary& uuid);
    /// An address; null as "0".
    ZanDicTraceLine& operator<<(const void* address);
    template <std::integral Number>
    ZanDicTraceLine& operator<<(Number number) {
        return Append(static_cast<long long>(number));
    }

private:
    ZanDicTraceLine& Append(long long number);

    bool _Active = false;
    bool _Separated = false;  ///< the separator after the operation's name is settled
    ZELLineSeverity _Severity = ZELLineSeverity::None;
    std::string _Text;
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
        return static_cast<int>(level) <= ZanDicTrace::threshold &&
               ZanDicTrace::IsWritten(static_cast<int>(level), _Operation);
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
        if (auto line = Line(level)) line << text;
    }
    void Error(std::string_view text) const {
        if (auto line = Error()) line << text;
    }
    void Warning(std::string_view text) const {
        if (auto line = Warning()) line << text;
    }

    /// Writes the start line. \param marker with or without the trailing blank that some have.
    void Start(std::string_view marker = "=== start ===") const { Say(TraceLevel::Call, marker); }

    /// Writes the exit line, "OK" unless \p rc is a failure. \returns \p rc.
    HRESULT Exit(HRESULT rc) const {
        if (auto line = Line(TraceLevel::Call)) line << "=== exit === " << _ExitWord << Word(rc);
        return rc;
    }

    /// "OK" or "KO".
    static constexpr std::string_view Word(HRESULT rc) { return Failed(rc) ? "KO" : "OK"; }

    std::string_view Operation() const { return _Operation; }

private:
    std::string_view _Operation;
    std::string_view _ExitWord;
};

/// Writes a line whatever the trace settings: to standard output, or to standard error.
void ZanDicWriteAlways(std::string_view text, ZELLineSeverity severity = ZELLineSeverity::None);
void ZanDicWriteError(std::string_view text, ZELLineSeverity severity = ZELLineSeverity::Error);

#endif
