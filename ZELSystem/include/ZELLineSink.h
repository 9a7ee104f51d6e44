#ifndef ZELLINESINK_H
#define ZELLINESINK_H

#include <string_view>

#include "ZELExport.h"

/// Where a line goes unless a sink takes it.
enum class ZELLineStream { Output, Error };

/// How much a line matters.
enum class ZELLineSeverity { None, Information, Warning, Error };

/// One line that the libraries write.
struct ZELSYSTEM_API ZELLine {
    std::string_view text;  ///< without the newline; valid during the call only
    ZELLineStream stream = ZELLineStream::Output;
    ZELLineSeverity severity = ZELLineSeverity::None;
    bool fromDocument = false;  ///< whether the content of a document caused it
};

/// Takes the libraries' lines in the order in which they are written.
class ZELSYSTEM_API ZELLineSink {
public:
    /// Takes one line. It must neither throw nor write a line itself.
    virtual void Write(const ZELLine& line) = 0;

protected:
    ~ZELLineSink() = default;
};

/// Sends the lines written from now on to \p sink, which the caller keeps alive until another is set;
/// at process exit too, since the last lines are written when the libraries are unloaded.
/// Null stands for the sink that is there from the start: lines go to the process's standard output through
/// its own buffer, not flushed one by one, or to standard error. One thread. \returns the sink set before;
/// null when it was that one.
ZELSYSTEM_API ZELLineSink* ZELSetLineSink(ZELLineSink* sink) noexcept;

/// Gives \p line to the sink that is set.
ZELSYSTEM_API void ZELWriteLine(const ZELLine& line);

#endif
