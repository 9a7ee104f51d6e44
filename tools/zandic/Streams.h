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

/// Writes \p line and a newline to standard error.
void WriteErrorLine(std::string_view line);

}  // namespace tool

#endif
