#ifndef ZANDIC_TOOL_SHEET_H
#define ZANDIC_TOOL_SHEET_H

#include <string>
#include <string_view>
#include <vector>

#include "Output.h"

namespace tool {

/// Lays text out for a terminal of 80 columns: a title, fields, sections with rows. Lines break at blanks;
/// a single word that is longer than a line stays whole. Characters that would move the cursor are shown
/// as escapes. Widths count characters.
class Sheet {
public:
    static constexpr std::size_t kWidth = 80;

    explicit Sheet(Output& output) : _Output(output) {}

    /// A blank line between two sheets.
    void Separate() { _Output.Write("\n"); }

    /// What the sheet is about, in the first line.
    void Title(std::string_view tag, std::string_view name);

    /// One field: label and value side by side. Nothing for an empty value.
    void Field(std::string_view label, std::string_view value);

    /// As Field, the entries separated by commas.
    void Field(std::string_view label, const std::vector<std::string>& values);

    /// Begins a section.
    void Section(std::string_view heading);

    /// A line of its own inside a section.
    void Line(std::string_view text);

    /// Cells in columns as wide as they need to be, up to a limit; one that is wider has its line for itself.
    /// The last cell of a row is free text, which goes below the others where it does not fit beside them.
    void Rows(const std::vector<std::vector<std::string>>& rows);

private:
    void Write(std::size_t indent, std::string_view text);
    void Row(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths);

    Output& _Output;
};

/// \returns the text with an escape for each character that would move the cursor.
std::string Printable(std::string_view text);

/// \returns the number of characters of a UTF-8 text.
std::size_t WidthOf(std::string_view text);

/// \returns the lines of \p text, none wider than \p width unless it is a single word.
std::vector<std::string> Wrapped(std::string_view text, std::size_t width);

/// \returns the first \p count characters of a UTF-8 text.
std::string Beginning(std::string_view text, std::size_t count);

/// \returns the texts with ", " between them.
std::string Joined(const std::vector<std::string>& texts);

/// \returns "1 class", "2 classes".
std::string Counted(std::size_t count, std::string_view one, std::string_view many);

}  // namespace tool

#endif
