#ifndef ZANDIC_TOOL_NORMALISED_H
#define ZANDIC_TOOL_NORMALISED_H

#include <string>
#include <string_view>

namespace tool {

/// \returns a dump, in the layout in which DumpJson writes it, as it is once its packages are saved and
/// loaded again. What documents leave out on purpose has its initial value:
/// - an alias (but not of a category), an exposition level and an application name of one character;
/// - a maximum length below 1, that of a simple attribute which is neither String nor Binary, and that of a
///   relationship or inverse which is none of Binary, String and URL;
/// - the scope of an inverse, the case mode of what is no String;
/// - bounds and collection type of an attribute with one value.
/// And lists whose order no document holds are sorted: `packages` by name, `subclasses`, `invertedBy` and
/// `injectivesPointingOnMe` by their text. Everything else is as it was, free attributes of such names too.
/// Time grows with the dump as that of sorting its longest list; no depth is too deep.
std::string Normalised(std::string_view dump);

}  // namespace tool

#endif
