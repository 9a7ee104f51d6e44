#include "Output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tool {

void Output::Flush() {
    if (_Text != nullptr) {
        _Text->append(_Buffer);
    } else if (!_Fault) {
        errno = 0;
        const bool written = std::fwrite(_Buffer.data(), 1, _Buffer.size(), stdout) == _Buffer.size();
        if (!written || std::fflush(stdout) != 0) _Fault = std::strerror(errno);
    }
    _Buffer.clear();
}

}  // namespace tool
