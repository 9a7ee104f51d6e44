#include "Streams.h"

#include <cstdio>
#include <string>

namespace tool {
namespace {

bool IsFaultOfDocument(const ZELLine& line) {
    return line.fromDocument &&
           (line.severity == ZELLineSeverity::Warning || line.severity == ZELLineSeverity::Error);
}

}  // namespace

void LineFilter::Write(const ZELLine& line) {
    const bool passes =
        _Rule == LineRule::All || (_Rule == LineRule::FromDocuments && IsFaultOfDocument(line));
    if (passes) WriteErrorLine(line.text);
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
