#ifndef ZELSTANDARDERROR_H
#define ZELSTANDARDERROR_H

#include <string_view>

/// Writes \p line and a newline to standard error; in one go unless it is very long, so that lines of
/// several processes do not mix.
void WriteErrorLine(std::string_view line) noexcept;

#endif
