#ifndef ZANDIC_TOOL_STYLE_H
#define ZANDIC_TOOL_STYLE_H

#include <string>
#include <string_view>

namespace tool {

/// What a piece of text is to its reader.
enum class Role {
    Plain,
    Heading,
    Label,  ///< the name of a field
    Name,   ///< what the reader may ask for next
    Error,
    Warning,
    Faint,  ///< beside the point
};

/// Colours for one of the two output streams: only on a terminal, and never where `NO_COLOR` is set to
/// something. Text is laid out before it is painted, since a painted one has more characters than it shows.
class Style {
public:
    /// \returns the style of standard output, and that of standard error.
    static const Style& Output();
    static const Style& Errors();

    bool HasColours() const { return _HasColours; }

    /// \returns \p text, in the colour of its role where there are colours.
    std::string Paint(Role role, std::string_view text) const;

private:
    explicit Style(int stream);

    bool _HasColours;
};

}  // namespace tool

#endif
