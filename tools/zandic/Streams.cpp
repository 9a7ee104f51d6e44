#include "Streams.h"

#include <cstdio>
#include <string>

namespace tool {
namespace {

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

}  // namespace

void LineFilter::Write(const ZELLine& line) {
    if (Passes(line, _Rule)) WriteErrorLine(line.text);
}

LineFilter& Lines() {
    static LineFilter& filter = *new LineFilter;
    return filter;
}

void WriteErrorLine(std::string_view line) {
    // One piece, so that the lines of several programs on one terminal stay whole.
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace tool
