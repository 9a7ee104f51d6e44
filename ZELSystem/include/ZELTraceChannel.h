#ifndef ZELTRACECHANNEL_H
#define ZELTRACECHANNEL_H

#include <string_view>

#include "ZELExport.h"

/// Named way for trace lines, registered for as long as it lives: a static object of the library that uses
/// it. The texts must outlive it. Of channels of one name the youngest is found. One thread.
class ZELSYSTEM_API ZELTraceChannel {
public:
    /// \param name by which it is found.
    /// \param title says what it is for.
    /// \param target "STDERR"; lines for any other target are dropped.
    /// \param bufferSize bytes of the longest line, its newline included; what is longer is cut. At least 1.
    ZELTraceChannel(const char* name, const char* title, const char* target, int bufferSize) noexcept;
    ~ZELTraceChannel();

    ZELTraceChannel(const ZELTraceChannel&) = delete;
    ZELTraceChannel& operator=(const ZELTraceChannel&) = delete;

    /// \returns the channel registered as \p name; null when there is none.
    static ZELTraceChannel* Find(std::string_view name) noexcept;

    const char* Name() const noexcept { return _Name; }
    const char* Title() const noexcept { return _Title; }
    const char* Target() const noexcept { return _Target; }
    int BufferSize() const noexcept { return _BufferSize; }

    /// Writes \p line and a newline to the target.
    void Write(std::string_view line) const noexcept;

private:
    const char* _Name;
    const char* _Title;
    const char* _Target;
    int _BufferSize;
    ZELTraceChannel* _Next;  ///< registered before this one
};

#endif
