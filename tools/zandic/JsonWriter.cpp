#include "JsonWriter.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tool {
namespace {

constexpr std::string_view kBlanks = "                                ";

/// Brackets inside this many others are indented no further: the size of a deep nest stays linear.
constexpr std::size_t kDeepestIndent = 128;

/// The letter behind the backslash of a character's short escape; 'u' for those that have none, 0 for
/// those that need no escape.
constexpr std::array<char, 256> MakeEscapes() {
    std::array<char, 256> escapes{};
    for (std::size_t code = 0; code < 0x20; ++code) escapes[code] = 'u';
    escapes['\b'] = 'b';
    escapes['\f'] = 'f';
    escapes['\n'] = 'n';
    escapes['\r'] = 'r';
    escapes['\t'] = 't';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    return escapes;
}
constexpr std::array<char, 256> kEscapes = MakeEscapes();

}  // namespace

void JsonWriter::Open(char bracket) {
    BeginValue();
    _Output.Write({&bracket, 1});
    _FILLED.push_back(false);
}

void JsonWriter::Close(char bracket) {
    const bool filled = _FILLED.back();
    _FILLED.pop_back();
    if (filled) NewLine();
    _Output.Write({&bracket, 1});
}

void JsonWriter::Key(std::string_view key) {
    BeginValue();
    _Output.Write("\"");
    _Output.Write(key);
    _Output.Write("\": ");
    _AfterKey = true;
}

void JsonWriter::AnyKey(std::string_view key) {
    BeginValue();
    Quote(key);
    _Output.Write(": ");
    _AfterKey = true;
}

void JsonWriter::Text(std::string_view text) {
    BeginValue();
    Quote(text);
}

void JsonWriter::Number(std::int64_t number) {
    BeginValue();
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    _Output.Write({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

void JsonWriter::Decimal(double number, int digits) {
    BeginValue();
    std::array<char, 64> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, digits).ptr;
    _Output.Write({text.data(), static_cast<std::size_t>(end - text.data())});
}

void JsonWriter::Flag(bool flag) {
    BeginValue();
    _Output.Write(flag ? "true" : "false");
}

void JsonWriter::Null() {
    BeginValue();
    _Output.Write("null");
}

void JsonWriter::TextOf(std::string_view key, std::string_view text) {
    Key(key);
    if (text.empty()) {
        Null();
    } else {
        Text(text);
    }
}

void JsonWriter::TextsOf(std::string_view key, const std::vector<std::string>& texts) {
    Key(key);
    BeginArray();
    for (const std::string& text : texts) Text(text);
    EndArray();
}

void JsonWriter::BeginValue() {
    if (_AfterKey) {
        _AfterKey = false;
        return;
    }
    if (_FILLED.empty()) return;
    if (_FILLED.back()) _Output.Write(",");
    _FILLED.back() = true;
    NewLine();
}

void JsonWriter::NewLine() {
    _Output.Write("\n");
    for (std::size_t blanks = 2 * std::min(_FILLED.size(), kDeepestIndent); blanks > 0;) {
        const std::size_t some = std::min(blanks, kBlanks.size());
        _Output.Write(kBlanks.substr(0, some));
        blanks -= some;
    }
}

void JsonWriter::Quote(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    _Output.Write("\"");
    std::size_t begin = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto code = static_cast<unsigned char>(text[index]);
        const char escape = kEscapes[code];
        if (escape == 0) continue;
        _Output.Write(text.substr(begin, index - begin));
        begin = index + 1;
        const char shortForm[] = {'\\', escape, '0', '0', kDigits[code >> 4U], kDigits[code & 15U]};
        _Output.Write({shortForm, escape == 'u' ? std::size_t{6} : std::size_t{2}});
    }
    _Output.Write(text.substr(begin));
    _Output.Write("\"");
}

}  // namespace tool
