#include "ZELTraceChannel.h"

#include "ZELStandardError.h"

namespace {

constinit ZELTraceChannel* youngest = nullptr;  ///< first of the registered channels

}  // namespace

ZELTraceChannel::ZELTraceChannel(const char* name, const char* title, const char* target,
                                 int bufferSize) noexcept
    : _Name(name),
      _Title(title),
      _Target(target),
      _BufferSize(bufferSize > 1 ? bufferSize : 1),
      _Next(youngest) {
    youngest = this;
}

ZELTraceChannel::~ZELTraceChannel() {
    ZELTraceChannel** link = &youngest;
    while (*link != this) link = &(*link)->_Next;
    *link = _Next;
}

ZELTraceChannel* ZELTraceChannel::Find(std::string_view name) noexcept {
    ZELTraceChannel* channel = youngest;
    while (channel != nullptr && name != channel->_Name) channel = channel->_Next;
    return channel;
}

void ZELTraceChannel::Write(std::string_view line) const noexcept {
    if (std::string_view(_Target) != "STDERR") return;
    WriteErrorLine(line.substr(0, static_cast<std::size_t>(_BufferSize) - 1));
}
