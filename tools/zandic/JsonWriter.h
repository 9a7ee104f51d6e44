#ifndef ZANDIC_TOOL_JSON_WRITER_H
#define ZANDIC_TOOL_JSON_WRITER_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Output.h"

namespace tool {

/// Writes one JSON document piece by piece, so that a large model never stands in memory a second time:
/// every member and entry on a line of its own, two blanks of indentation, which 128 open brackets bring to
/// its end, UTF-8 as it is.
///
/// The caller opens and closes in pairs and gives a key before each value of an object.
class JsonWriter {
public:
    explicit JsonWriter(Output& output) : _Output(output) {}

    void BeginObject() { Open('{'); }
    void EndObject() { Close('}'); }
    void BeginArray() { Open('['); }
    void EndArray() { Close(']'); }

    /// Names the value that comes next. \param key needs no escape.
    void Key(std::string_view key);

    /// As Key, for names that somebody else chose.
    void AnyKey(std::string_view key);

    void Text(std::string_view text);
    void Number(std::int64_t number);

    /// A number with that many digits behind the point.
    void Decimal(double number, int digits);
    void Flag(bool flag);
    void Null();

    /// A key with a text, or with null where the text is empty.
    void TextOf(std::string_view key, std::string_view text);

    /// A key with a list of texts.
    void TextsOf(std::string_view key, const std::vector<std::string>& texts);

    /// Ends the document with a newline.
    void End() { _Output.Write("\n"); }

private:
    void Open(char bracket);
    void Close(char bracket);
    void BeginValue();
    void NewLine();
    void Quote(std::string_view text);

    Output& _Output;
    std::vector<bool> _FILLED;  ///< one for each bracket that is open: whether something is in it
    bool _AfterKey = false;
};

}  // namespace tool

#endif
