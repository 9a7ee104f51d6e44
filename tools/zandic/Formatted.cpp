#include "Formatted.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "ZELVBTXMLWriter.h"

namespace tool {
namespace {

using Kind = ZELVBTXMLPieceKind;

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kLineEnds = "\r\n";

bool IsBlank(std::string_view text) { return text.find_first_not_of(kBlanks) == text.npos; }
bool EndsALine(std::string_view text) { return text.find_first_of(kLineEnds) != text.npos; }

/// Appends \p text with a newline for each of its line ends.
void AppendLines(std::string_view text, std::string& out) {
    for (std::size_t end = 0; (end = text.find('\r')) != text.npos;) {
        out.append(text.substr(0, end)).push_back('\n');
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    out.append(text);
}

/// Takes blanks and the word behind them, or the quoted text, from \p text. \returns it, quotes included.
std::string_view TakeToken(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    if (text.empty()) return {};
    const bool isQuoted = text.front() == '"' || text.front() == '\'';
    std::size_t end = isQuoted ? text.find(text.front(), 1) + 1 : text.find_first_of(" \t\r\n=\"'");
    if (end == 0) end = 1;  // an equals sign
    const std::string_view token = text.substr(0, end);
    text.remove_prefix(token.size());
    return token;
}

std::string InDoubleQuotes(std::string_view quoted) {
    const std::string_view inside = quoted.substr(1, quoted.size() - 2);
    const char quote = inside.find('"') != inside.npos ? '\'' : '"';
    std::string text(1, quote);
    AppendLines(inside, text);
    return text + quote;
}

bool IsUtf8(std::string_view encoding) {
    constexpr std::string_view kLower = "utf-8";
    return std::equal(encoding.begin(), encoding.end(), kLower.begin(), kLower.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a + ('a' - 'A')) : a) == b;
    });
}

/// \returns the XML declaration, for a document in UTF-8.
std::string Declaration(std::string_view text) {
    constexpr std::string_view kOpen = "<?xml";
    text = text.substr(kOpen.size(), text.size() - kOpen.size() - 2);
    std::string out(kOpen);
    for (std::string_view name = TakeToken(text); !name.empty(); name = TakeToken(text)) {
        TakeToken(text);  // the equals sign
        const std::string value = InDoubleQuotes(TakeToken(text));
        const bool changes =
            name == "encoding" && !IsUtf8(std::string_view(value).substr(1, value.size() - 2));
        out.append(" ").append(name).append("=").append(changes ? "\"UTF-8\"" : value);
    }
    return out + "?>";
}

/// \returns a document type declaration; as it stands, when it has declarations inside.
std::string DocumentType(std::string_view text) {
    constexpr std::string_view kOpen = "<!DOCTYPE";
    std::string out(kOpen);
    std::string_view rest = text.substr(kOpen.size(), text.size() - kOpen.size() - 1);
    bool hasLiteral = false;
    for (std::string_view token = TakeToken(rest); !token.empty(); token = TakeToken(rest)) {
        const bool isQuoted = token.front() == '"' || token.front() == '\'';
        if (!isQuoted && token.find('[') != token.npos) {
            out.clear();
            AppendLines(text, out);
            return out;
        }
        out.append(" ").append(isQuoted ? InDoubleQuotes(token) : std::string(token));
        hasLiteral = hasLiteral || isQuoted;
    }
    return out + (hasLiteral ? " >" : ">");  // the blank is the writer's
}

/// \returns for each element whether it holds text, which blanks would change.
std::vector<bool> FindText(const ZELVBTXMLDocument& document) {
    std::vector<bool> hasText(document.ElementCount());
    for (std::uint32_t index = 0; index < document.PieceCount(); ++index) {
        const ZELVBTXMLPiece piece = document.PieceAt(index);
        const bool isText =
            piece.Kind() == Kind::Text ? !IsBlank(piece.Text()) : piece.Kind() == Kind::CharacterMark;
        if (isText) hasText[piece.Parent()] = true;
    }
    return hasText;
}

/// The walk over a document that writes it again: every tag and piece once, in document order.
class Layout {
public:
    explicit Layout(const ZELVBTXMLDocument& document) : _Document(document), _HASTEXT(FindText(document)) {}

    std::string Write() {
        const ZELVBTXMLNode root = _Document.Root();
        while (HasPiece() && Piece().IsBefore(root)) PutPiece();
        Begin(root);
        while (!_LEVELS.empty()) Step();
        while (HasPiece()) PutPiece();
        _Out += '\n';
        return std::move(_Out);
    }

private:
    /// An element that has begun and not ended.
    struct Level {
        ZELVBTXMLNode node;
        ZELVBTXMLChildren::iterator next;
        ZELVBTXMLChildren::iterator end;
        bool isFixed;  ///< no blank is added or taken inside
    };

    bool HasPiece() const { return _Next < _Document.PieceCount(); }
    ZELVBTXMLPiece Piece() const { return _Document.PieceAt(_Next); }
    bool IsFixed() const { return !_LEVELS.empty() && _LEVELS.back().isFixed; }

    /// Puts what comes next in the innermost element: a piece, a child, or its end.
    void Step() {
        Level& level = _LEVELS.back();
        const bool hasChild = level.next != level.end;
        if (HasPiece() && Piece().IsIn(level.node) && (!hasChild || Piece().IsBefore(*level.next))) {
            PutPiece();
        } else if (hasChild) {
            const ZELVBTXMLNode child = *level.next;
            ++level.next;
            Begin(child);
        } else {
            End();
        }
    }

    void Begin(const ZELVBTXMLNode& node) {
        const bool isFixed =
            IsFixed() || _HASTEXT[node.Index()] || node.getAttributeValue("xml:space") == "preserve";
        CloseTag();
        if (!IsFixed()) BeginLine();
        _Out.append("<").append(node.getTag());
        for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
            _Out.append(" ").append(attribute.Name()).append("=\"");
            ZELXMLEscape(attribute.Value(), _Out);
            _Out += '"';
        }
        const ZELVBTXMLChildren children = node.Children();
        _LEVELS.push_back({node, children.begin(), children.end(), isFixed});
        _TagIsOpen = true;
    }

    void End() {
        const Level level = _LEVELS.back();
        _LEVELS.pop_back();
        if (_TagIsOpen) {
            _Out += "/>";
        } else {
            if (!level.isFixed) BeginLine();
            _Out.append("</").append(level.node.getTag()).append(">");
        }
        _TagIsOpen = false;
    }

    void PutPiece() {
        const ZELVBTXMLPiece piece = Piece();
        if (piece.Kind() == Kind::Text && !IsFixed()) {
            ++_Next;  // blanks between tags: the layout has its own
            return;
        }
        CloseTag();
        if (Trails()) {
            _Out += ' ';
        } else if (!IsFixed()) {
            BeginLine();
        }
        if (piece.Kind() == Kind::Declaration) {
            _Out += Declaration(piece.Text());
        } else if (piece.Kind() == Kind::DocumentType) {
            _Out += DocumentType(piece.Text());
        } else {
            AppendLines(piece.Text(), _Out);
        }
        ++_Next;
    }

    /// \returns whether the present comment or instruction ends a line that something else begins.
    bool Trails() const {
        const ZELVBTXMLPiece piece = Piece();
        const bool canTrail = piece.Kind() == Kind::Comment || piece.Kind() == Kind::Instruction;
        return canTrail && !IsFixed() && !_Out.empty() && !IsFirstOnLine(piece) && IsLastOnLine(piece);
    }

    bool IsFirstOnLine(const ZELVBTXMLPiece& piece) const {
        if (_Next == 0) return false;
        const ZELVBTXMLPiece before = _Document.PieceAt(_Next - 1);
        return before.Kind() == Kind::Text && before.Touches(piece) && EndsALine(before.Text());
    }

    bool IsLastOnLine(const ZELVBTXMLPiece& piece) const {
        if (_Next + 1 == _Document.PieceCount()) return piece.IsOutside();
        const ZELVBTXMLPiece behind = _Document.PieceAt(_Next + 1);
        return behind.Kind() == Kind::Text && piece.Touches(behind) && EndsALine(behind.Text());
    }

    void CloseTag() {
        if (_TagIsOpen) _Out += '>';
        _TagIsOpen = false;
    }

    void BeginLine() {
        constexpr std::size_t kMost = ZELVBTXMLWriter::kMostIndented;
        if (!_Out.empty()) _Out += '\n';
        _Out.append(2 * std::min(_LEVELS.size(), kMost), ' ');
    }

    const ZELVBTXMLDocument& _Document;
    std::vector<bool> _HASTEXT;  ///< by element
    std::uint32_t _Next = 0;     ///< the first piece that is not put yet
    std::vector<Level> _LEVELS;
    std::string _Out;
    bool _TagIsOpen = false;  ///< the last start tag lacks its ">"
};

}  // namespace

std::string Formatted(const ZELVBTXMLDocument& document) { return Layout(document).Write(); }

}  // namespace tool
