#include "ZELLineSink.h"

#include <cstdio>
#include <cstring>

#include "ZELStandardError.h"

namespace {

// A plain pointer: lines are written until the last library is unloaded.
constinit ZELLineSink* lineSink = nullptr;

}  // namespace

void WriteErrorLine(std::string_view line) noexcept {
    char buffer[4096];
    if (line.size() < sizeof buffer) {
        if (!line.empty()) std::memcpy(buffer, line.data(), line.size());
        buffer[line.size()] = '\n';
        std::fwrite(buffer, 1, line.size() + 1, stderr);
    } else {
        std::fwrite(line.data(), 1, line.size(), stderr);
        std::fputc('\n', stderr);
    }
}

ZELLineSink* ZELSetLineSink(ZELLineSink* sink) noexcept {
    ZELLineSink* const before = lineSink;
    lineSink = sink;
    return before;
}

void ZELWriteLine(const ZELLine& line) {
    if (lineSink != nullptr) {
        lineSink->Write(line);
    } else if (line.stream == ZELLineStream::Error) {
        WriteErrorLine(line.text);
    } else {
        std::fwrite(line.text.data(), 1, line.text.size(), stdout);
        std::fputc('\n', stdout);
    }
}
