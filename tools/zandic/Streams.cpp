#include "Streams.h"

#include <unistd.h>

#include <cstdio>
#include <mutex>
#include <string>

#include "ZELEnvironment.h"

namespace tool {
namespace {

constexpr std::string_view kToBeginning = "\r";
constexpr std::string_view kClearRest = "\033[K";

bool Passes(const ZELLine& line, LineRule rule) {
    if (rule == LineRule::All) return true;
    const bool isError = line.severity == ZELLineSeverity::Error;
    if (!isError && line.severity != ZELLineSeverity::Warning) return false;
    switch (rule) {
        case LineRule::FromDocuments:
            return line.fromDocument;
        case LineRule::Errors:
            return line.fromDocument || isError;
        default:
            return rule == LineRule::Faults;
    }
}

/// The status line and who may write.
struct Terminal {
    std::mutex mutex;
    bool hasLine = false;

    /// To be called with the mutex.
    void Draw(std::string_view line) {
        if (line.empty() && !hasLine) return;
        const std::string text = std::string(kToBeginning).append(line).append(kClearRest);
        std::fwrite(text.data(), 1, text.size(), stderr);
        hasLine = !line.empty();
    }
};

/// It outlives the libraries, as the line filter does.
Terminal& TheTerminal() {
    static Terminal& terminal = *new Terminal;
    return terminal;
}

}  // namespace

void LineFilter::Write(const ZELLine& line) {
    if (Passes(line, _Rule)) WriteErrorLine(line.text);
}

LineFilter& Lines() {
    static LineFilter& filter = *new LineFilter;
    return filter;
}

bool HasStatusLine() { return isatty(STDERR_FILENO) != 0 && ZELGetEnv("TERM").value_or("dumb") != "dumb"; }

void DrawStatusLine(std::string_view line) {
    const std::lock_guard lock(TheTerminal().mutex);
    TheTerminal().Draw(line);
}

void WriteErrorLine(std::string_view line) {
    const std::lock_guard lock(TheTerminal().mutex);
    TheTerminal().Draw("");
    // One piece, so that the lines of several programs on one terminal stay whole.
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace tool
