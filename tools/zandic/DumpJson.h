#ifndef ZANDIC_TOOL_DUMP_JSON_H
#define ZANDIC_TOOL_DUMP_JSON_H

#include <string>

#include "JsonWriter.h"
#include "Output.h"
#include "zandic.hpp"

namespace tool {

/// Writes every loaded package with all that it holds as one JSON document. Every class is asked for all
/// its attributes first, so the answer does not depend on who asked before: equal models give equal bytes.
/// Time is linear in what is written.
void DumpJson(const zandic::Dictionary& dictionary, Output& output);

/// Writes one object of any kind as DumpJson does, with all that it holds. The classes must have been asked
/// for all attributes.
void DumpObject(JsonWriter& json, OXMIDicElementH& object);

/// \returns the dump as a text.
std::string DumpText(const zandic::Dictionary& dictionary);

}  // namespace tool

#endif
