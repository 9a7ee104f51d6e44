#ifndef ZELOWNFILECALLS_H
#define ZELOWNFILECALLS_H

#include <string>

#include "ZELFileCalls.h"

/// \returns the calls that are set: the system's own unless a test says otherwise.
ZELFileCalls& ZELPresentFileCalls() noexcept;

/// \returns the path by which this process reaches what \p descriptor has open, also when that has no name.
std::string ZELDescriptorPath(int descriptor);

#endif
