/// Where the lines of the dictionary go, and the tool's own ones: standard error.
#ifndef ZANDIC_TOOL_STREAMS_H
#define ZANDIC_TOOL_STREAMS_H

#include <string_view>

#include "ZELLineSink.h"

namespace tool {

/// Which of the dictionary's lines are passed on.
enum class LineRule {
    None,
    FromDocuments,  ///< errors and warnings that the content of a document caused
    Errors,         ///< these, and all other errors
    Faults,         ///< these, and all other errors and warnings
    All,
};

/// Passes the dictionary's lines to standard error, whichever stream they were meant for.
class LineFilter final : public ZELLineSink {
public:
    void Write(const ZELLine& line) override;

    void SetRule(LineRule rule) { _Rule = rule; }
    LineRule Rule() const { return _Rule; }

private:
    LineRule _Rule = LineRule::FromDocuments;
};

/// \returns the one filter of the process. It outlives the libraries, whose last lines come when they are
/// unloaded.
LineFilter& Lines();

/// While one lives, lines pass by \p rule that are otherwise only passed where documents caused them.
class LineScope {
public:
    explicit LineScope(LineRule rule) : _Before(Lines().Rule()) {
        if (_Before == LineRule::FromDocuments) Lines().SetRule(rule);
    }
    ~LineScope() { Lines().SetRule(_Before); }
    LineScope(const LineScope&) = delete;
    LineScope& operator=(const LineScope&) = delete;

private:
    LineRule _Before;
};

/// Writes \p line and a newline to standard error. A status line goes before.
void WriteErrorLine(std::string_view line);

/// \returns whether standard error is a terminal on which a line can be drawn anew.
bool HasStatusLine();

/// Draws \p line as the last one of the terminal, in place of the one before; an empty one takes it away.
/// Any thread.
void DrawStatusLine(std::string_view line);

}  // namespace tool

#endif
