#ifndef ZANDIC_TOOL_DUMP_JSON_H
#define ZANDIC_TOOL_DUMP_JSON_H

#include <string>

#include "Output.h"
#include "zandic.hpp"

namespace tool {

/// Writes every loaded package with all that it holds as one JSON document. Every class is asked for all
/// its attributes first, so the answer does not depend on who asked before: equal models give equal bytes.
/// Time is linear in what is written.
void DumpJson(const zandic::Dictionary& dictionary, Output& output);

/// \returns the same as a text.
std::string DumpText(const zandic::Dictionary& dictionary);

}  // namespace tool

#endif
