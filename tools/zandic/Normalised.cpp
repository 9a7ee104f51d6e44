#include "Normalised.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "ZANDicValueWords.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace format = ZANDicFormat;

constexpr std::string_view kNull = "null";
constexpr std::string_view kNoLength = "-1";
constexpr std::string_view kPackages = "packages";
constexpr std::string_view kFreeAttributes = "other";
constexpr std::string_view kUnorderedLists[] = {"subclasses", "invertedBy", "injectivesPointingOnMe"};

/// The members of an object that take part; the order of kMemberKeys.
enum Member : std::size_t {
    Kind,
    Name,
    Alias,
    ExpositionLevel,
    ApplicationName,
    MultiValuated,
    Lower,
    Upper,
    CollectionType,
    MaxLength,
    Primitive,
    CaseMode,
    Scope,
    kMembers
};
constexpr std::array<std::string_view, kMembers> kMemberKeys = {
    "kind",  "name",           "alias",     "expositionLevel", "applicationName", "multiValuated", "lower",
    "upper", "collectionType", "maxLength", "primitive",       "caseMode",        "scope"};

/// A line of the dump without the comma and the newline at its end, in two pieces: the value is what may
/// change.
struct Line {
    std::string_view head;
    std::string_view value;

    bool Opens() const { return value == "{" || value == "["; }
    bool Closes() const { return value == "}" || value == "]"; }
    friend bool operator<(const Line& a, const Line& b) {
        return a.head != b.head ? a.head < b.head : a.value < b.value;
    }
};

/// A bracket that is open.
struct Bracket {
    bool isObject = false;
    bool isFree = false;  ///< its keys are names that somebody else chose
    std::string_view key;
    std::size_t first = 0;                   ///< the line behind it
    std::array<std::size_t, kMembers> at{};  ///< the lines of its members; 0: it has none
};

/// \returns the line taken apart. The key of an object's member ends at the first quote that no backslash
/// stands before.
Line TakenApart(std::string_view text, bool inObject) {
    std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    if (inObject && begin < text.size() && text[begin] == '"') {
        std::size_t end = begin + 1;
        while (end < text.size() && text[end] != '"') end += text[end] == '\\' ? 2 : 1;
        begin = std::min(end + 3, text.size());  // behind the quote, the colon and the blank
    }
    return {text.substr(0, begin), text.substr(begin)};
}

std::string_view KeyOf(const Line& line) {
    const std::size_t begin = line.head.find('"');
    if (begin == line.head.npos) return {};
    return line.head.substr(begin + 1, line.head.rfind('"') - begin - 1);
}

/// \returns whether \p value is a text of one character at most.
bool IsShort(std::string_view value) {
    if (value.size() < 2 || value.front() != '"') return false;
    std::size_t characters = 0;
    for (std::size_t index = 1; index + 1 < value.size(); ++index) {
        const auto byte = static_cast<unsigned char>(value[index]);
        if (byte == '\\') index += value[index + 1] == 'u' ? 5 : 1;
        characters += (byte & 0xC0U) == 0x80U ? 0 : 1;
        if (characters > 1) return false;
    }
    return true;
}

bool IsBelowOne(std::string_view number) { return number == "0" || number.starts_with('-'); }

bool IsQuoted(std::string_view value, std::string_view word) {
    return value.size() == word.size() + 2 && value.substr(1, word.size()) == word;
}

bool IsOneOf(std::string_view value, std::span<const format::CodeWord> words) {
    return std::any_of(words.begin(), words.end(),
                       [value](const format::CodeWord& each) { return IsQuoted(value, each.word); });
}

constexpr format::CodeWord kString = format::kPrimitiveWords[OXMDicPRIMITIVEType_String - 1];
constexpr format::CodeWord kLengthOfSimple[] = {kString,
                                                format::kPrimitiveWords[OXMDicPRIMITIVEType_Binary - 1]};
constexpr std::string_view kInitialCaseMode = "\"Mixed\"";

class Dump {
public:
    explicit Dump(std::string_view text) : _Text(text) {
        Read();
        SortPackages();
    }

    std::string Text() const;

private:
    void Read();
    void Add(std::string_view text);
    void Open(const Line& line);
    void Close();
    void Note(const Line& line);
    void SetInitialValues(const Bracket& object);
    void SetInitialLength(const Bracket& object, std::span<const format::CodeWord> typesWithLength);
    void SortPackages();

    std::string_view Value(const Bracket& object, Member member) const {
        return object.at[member] != 0 ? _LINES[object.at[member]].value : std::string_view();
    }
    void Set(const Bracket& object, Member member, std::string_view value) {
        if (object.at[member] != 0) _LINES[object.at[member]].value = value;
    }

    /// The lines of a package, its brackets included.
    struct Package {
        std::string_view name;
        std::size_t begin;
        std::size_t end;
    };

    std::string_view _Text;
    std::vector<Line> _LINES;
    std::vector<Bracket> _OPEN;  ///< the inner one last
    std::vector<Package> _PACKAGES;
};

void Dump::Read() {
    _LINES.reserve(static_cast<std::size_t>(std::count(_Text.begin(), _Text.end(), '\n')) + 1);
    for (std::size_t begin = 0; begin < _Text.size();) {
        const std::size_t end = std::min(_Text.find('\n', begin), _Text.size());
        const bool hasComma = end > begin && _Text[end - 1] == ',';
        Add(_Text.substr(begin, end - begin - (hasComma ? 1 : 0)));
        begin = end + 1;
    }
}

void Dump::Add(std::string_view text) {
    const Line line = TakenApart(text, !_OPEN.empty() && _OPEN.back().isObject);
    _LINES.push_back(line);
    if (line.Closes()) {
        if (!_OPEN.empty()) Close();
        return;
    }
    if (!_OPEN.empty()) Note(line);
    if (line.Opens()) Open(line);
}

void Dump::Open(const Line& line) {
    Bracket bracket;
    bracket.isObject = line.value == "{";
    bracket.key = KeyOf(line);
    bracket.isFree = !_OPEN.empty() && _OPEN.back().isObject && bracket.key == kFreeAttributes;
    bracket.first = _LINES.size();
    _OPEN.push_back(bracket);
}

/// Notes where a member of the innermost object stands.
void Dump::Note(const Line& line) {
    Bracket& around = _OPEN.back();
    if (!around.isObject || around.isFree) return;
    const auto key = std::find(kMemberKeys.begin(), kMemberKeys.end(), KeyOf(line));
    if (key == kMemberKeys.end()) return;
    around.at[static_cast<std::size_t>(key - kMemberKeys.begin())] = _LINES.size() - 1;
}

void Dump::Close() {
    const Bracket closed = _OPEN.back();
    _OPEN.pop_back();
    const std::size_t end = _LINES.size() - 1;  // the closing bracket
    if (closed.isObject) {
        SetInitialValues(closed);
        const bool isPackage = _OPEN.size() == 2 && _OPEN.back().key == kPackages;
        if (isPackage) _PACKAGES.push_back({Value(closed, Name), closed.first - 1, end + 1});
    } else if (std::find(std::begin(kUnorderedLists), std::end(kUnorderedLists), closed.key) !=
               std::end(kUnorderedLists)) {
        std::sort(_LINES.begin() + static_cast<std::ptrdiff_t>(closed.first),
                  _LINES.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

void Dump::SetInitialValues(const Bracket& object) {
    if (object.isFree) return;
    const std::string_view kind = Value(object, Kind);
    for (const Member member : {Alias, ExpositionLevel, ApplicationName}) {
        const bool isKept = member == Alias && IsQuoted(kind, tag::kCategory);
        if (!isKept && IsShort(Value(object, member))) Set(object, member, kNull);
    }
    const bool isSimple = IsQuoted(kind, tag::kSimple);
    const bool isInverse = IsQuoted(kind, tag::kInverse);
    if (!isSimple && !isInverse && !IsQuoted(kind, tag::kRelationship)) return;

    if (Value(object, MultiValuated) == "false") {
        for (const Member member : {Lower, Upper, CollectionType}) Set(object, member, kNull);
    }
    if (isSimple) {
        SetInitialLength(object, kLengthOfSimple);
        if (!IsQuoted(Value(object, Primitive), kString.word)) Set(object, CaseMode, kInitialCaseMode);
    } else {
        SetInitialLength(object, format::kRelationTypeWords);
    }
    if (isInverse) Set(object, Scope, kNull);
}

void Dump::SetInitialLength(const Bracket& object, std::span<const format::CodeWord> typesWithLength) {
    if (IsBelowOne(Value(object, MaxLength)) || !IsOneOf(Value(object, Primitive), typesWithLength)) {
        Set(object, MaxLength, kNoLength);
    }
}

void Dump::SortPackages() {
    if (_PACKAGES.empty()) return;
    const std::size_t begin = _PACKAGES.front().begin;
    std::stable_sort(_PACKAGES.begin(), _PACKAGES.end(),
                     [](const Package& a, const Package& b) { return a.name < b.name; });
    std::vector<Line> sorted;
    for (const Package& package : _PACKAGES) {
        sorted.insert(sorted.end(), _LINES.begin() + static_cast<std::ptrdiff_t>(package.begin),
                      _LINES.begin() + static_cast<std::ptrdiff_t>(package.end));
    }
    std::copy(sorted.begin(), sorted.end(), _LINES.begin() + static_cast<std::ptrdiff_t>(begin));
}

std::string Dump::Text() const {
    std::string text;
    text.reserve(_Text.size() + _Text.size() / 16);
    for (std::size_t index = 0; index < _LINES.size(); ++index) {
        const bool isFollowed =
            !_LINES[index].Opens() && index + 1 < _LINES.size() && !_LINES[index + 1].Closes();
        text.append(_LINES[index].head).append(_LINES[index].value).append(isFollowed ? ",\n" : "\n");
    }
    return text;
}

}  // namespace

std::string Normalised(std::string_view dump) { return Dump(dump).Text(); }

}  // namespace tool
