#include "Sheet.h"

#include <fmt/format.h>

#include <algorithm>

#include "Style.h"

namespace tool {
namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kValueColumn = 22;  // of fields
constexpr std::size_t kNoteIndent = 6;    // of the free text below a row
constexpr std::size_t kGap = 2;           // between columns
constexpr std::size_t kNarrowCell = 16;

std::string Padded(std::string_view text, std::size_t width) {
    const std::size_t used = WidthOf(text);
    return std::string(text) + std::string(width > used ? width - used : 0, ' ');
}

/// Takes from the widest column until all fit beside each other, or none is wide any more.
void FitIntoLine(std::vector<std::size_t>& widths) {
    std::size_t total = kIndent;
    for (const std::size_t width : widths) total += width + kGap;
    while (total > Sheet::kWidth) {
        std::size_t& widest = *std::max_element(widths.begin(), widths.end());
        if (widest <= kNarrowCell) return;
        --widest;
        --total;
    }
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string printable;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '\n') {
            printable += "\\n";
        } else if (c == '\t') {
            printable += "\\t";
        } else if (code < 0x20 || code == 0x7f) {
            printable += fmt::format("\\x{:02X}", code);
        } else {
            printable += c;
        }
    }
    return printable;
}

std::size_t WidthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xc0U) != 0x80U; }));
}

std::vector<std::string> Wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines(1);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        const std::size_t used = WidthOf(lines.back());
        if (used > 0 && used + 1 + WidthOf(word) > width) {
            lines.emplace_back(word);
        } else {
            if (used > 0) lines.back() += ' ';
            lines.back() += word;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string Beginning(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size()) {
        const bool isCharacter = (static_cast<unsigned char>(text[end]) & 0xc0U) != 0x80U;
        if (isCharacter && count-- == 0) break;
        ++end;
    }
    return std::string(text.substr(0, end));
}

std::string Joined(const std::vector<std::string>& texts) {
    return fmt::format("{}", fmt::join(texts, ", "));
}

std::string Counted(std::size_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

void Sheet::Title(std::string_view tag, std::string_view name) {
    Write(0, Style::Output().Paint(Role::Heading, fmt::format("{} {}", tag, Printable(name))));
    _Output.Write("\n");
}

void Sheet::Field(std::string_view label, std::string_view value) {
    if (value.empty()) return;
    std::string_view shown = label;
    for (const std::string& line : Wrapped(Printable(value), kWidth - kValueColumn)) {
        Write(kIndent, Style::Output().Paint(Role::Label, Padded(shown, kValueColumn - kIndent)) + line);
        shown = {};
    }
}

void Sheet::Field(std::string_view label, const std::vector<std::string>& values) {
    Field(label, Joined(values));
}

void Sheet::Section(std::string_view heading) {
    _Output.Write("\n");
    Write(0, Style::Output().Paint(Role::Heading, heading));
}

void Sheet::Line(std::string_view text) {
    for (const std::string& line : Wrapped(Printable(text), kWidth - kIndent)) Write(kIndent, line);
}

void Sheet::Rows(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size() - 1));
        for (std::size_t column = 0; column + 1 < row.size(); ++column) {
            widths[column] = std::max(widths[column], WidthOf(Printable(row[column])));
        }
    }
    FitIntoLine(widths);
    for (const auto& row : rows) Row(row, widths);
}

void Sheet::Row(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) {
    std::string line(kIndent, ' ');
    std::size_t column = kIndent;  // where the next cell begins
    for (std::size_t index = 0; index + 1 < cells.size(); ++index) {
        if (widths[index] == 0) continue;  // nobody has anything there
        const std::string cell = Printable(cells[index]);
        if (index > 0 && WidthOf(line) + kGap > column) {
            Write(0, line);
            line.clear();
        }
        line = Padded(line, column);
        line += cell;
        column += widths[index] + kGap;
    }
    const std::string note = Printable(cells.back());
    if (!note.empty() && WidthOf(line) + kGap <= column && column + WidthOf(note) <= kWidth) {
        Write(0, Padded(line, column) + note);
        return;
    }
    Write(0, line);
    if (note.empty()) return;
    for (const std::string& part : Wrapped(note, kWidth - kNoteIndent)) Write(kNoteIndent, part);
}

void Sheet::Write(std::size_t indent, std::string_view text) {
    const std::size_t end = text.find_last_not_of(' ');
    _Output.Write(std::string(indent, ' '));
    _Output.Write(end == text.npos ? std::string_view() : text.substr(0, end + 1));
    _Output.Write("\n");
}

}  // namespace tool
