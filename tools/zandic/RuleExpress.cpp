#include "RuleExpress.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "HexToBinary.h"
#include "OXMIDicClass.h"
#include "RuleCodes.h"
#include "ZELUnicodeString.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;
namespace value = ZANDicFormat::value;

/// Characters. The language sets no limit; the programs that read schemas do, and longer ones are not safe.
constexpr int kLongestName = 128;

/// What ISO 10303-11 reserves: keywords, operators, and the names of built-in constants, functions and
/// procedures; in the order of letters.
constexpr std::string_view kReserved[] = {
    "ABS",
    "ABSTRACT",
    "ACOS",
    "AGGREGATE",
    "ALIAS",
    "AND",
    "ANDOR",
    "ARRAY",
    "AS",
    "ASIN",
    "ATAN",
    "BAG",
    "BASED_ON",
    "BEGIN",
    "BINARY",
    "BLENGTH",
    "BOOLEAN",
    "BY",
    "CASE",
    "CONSTANT",
    "CONST_E",
    "COS",
    "DERIVE",
    "DIV",
    "ELSE",
    "END",
    "END_ALIAS",
    "END_CASE",
    "END_CONSTANT",
    "END_ENTITY",
    "END_FUNCTION",
    "END_IF",
    "END_LOCAL",
    "END_PROCEDURE",
    "END_REPEAT",
    "END_RULE",
    "END_SCHEMA",
    "END_SUBTYPE_CONSTRAINT",
    "END_TYPE",
    "ENTITY",
    "ENUMERATION",
    "ESCAPE",
    "EXISTS",
    "EXP",
    "EXTENSIBLE",
    "FALSE",
    "FIXED",
    "FOR",
    "FORMAT",
    "FROM",
    "FUNCTION",
    "GENERIC",
    "GENERIC_ENTITY",
    "HIBOUND",
    "HIINDEX",
    "IF",
    "IN",
    "INSERT",
    "INTEGER",
    "INVERSE",
    "LENGTH",
    "LIKE",
    "LIST",
    "LOBOUND",
    "LOCAL",
    "LOG",
    "LOG10",
    "LOG2",
    "LOGICAL",
    "LOINDEX",
    "MOD",
    "NOT",
    "NUMBER",
    "NVL",
    "ODD",
    "OF",
    "ONEOF",
    "OPTIONAL",
    "OR",
    "OTHERWISE",
    "PI",
    "PROCEDURE",
    "QUERY",
    "REAL",
    "REFERENCE",
    "REMOVE",
    "RENAMED",
    "REPEAT",
    "RETURN",
    "ROLESOF",
    "RULE",
    "SCHEMA",
    "SELECT",
    "SELF",
    "SET",
    "SIN",
    "SIZEOF",
    "SKIP",
    "SQRT",
    "STRING",
    "SUBTYPE",
    "SUBTYPE_CONSTRAINT",
    "SUPERTYPE",
    "TAN",
    "THEN",
    "TO",
    "TOTAL_OVER",
    "TRUE",
    "TYPE",
    "TYPEOF",
    "UNIQUE",
    "UNKNOWN",
    "UNTIL",
    "USE",
    "USEDIN",
    "USING",
    "VALUE",
    "VALUE_IN",
    "VALUE_UNIQUE",
    "VAR",
    "WHERE",
    "WHILE",
    "WITH",
    "XOR",
};
static_assert(std::is_sorted(std::begin(kReserved), std::end(kReserved)));

constexpr std::size_t kLongestReserved = std::string_view("END_SUBTYPE_CONSTRAINT").size();

char UpperOf(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/// By the first letter, a bit for each length that a reserved word with it has: few names get further.
constexpr std::array<std::uint32_t, 26> kLengths = [] {
    std::array<std::uint32_t, 26> lengths{};
    for (const std::string_view word : kReserved) {
        lengths[static_cast<std::size_t>(word[0] - 'A')] |= 1U << word.size();
    }
    return lengths;
}();

/// Letters of either case are the same there.
bool IsReserved(std::string_view name) {
    if (name.empty() || name.size() > kLongestReserved) return false;
    const char first = UpperOf(name[0]);
    if (first < 'A' || first > 'Z') return false;
    if ((kLengths[static_cast<std::size_t>(first - 'A')] >> name.size() & 1U) == 0) return false;
    std::string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(), UpperOf);
    return std::binary_search(std::begin(kReserved), std::end(kReserved), upper);
}

}  // namespace

ExpressRules::ExpressRules(RuleDocument& document)
    : _Document(document), _IsSuper(document.Document().ElementCount(), false) {}

void ExpressRules::AddClass(const RuleElement& element) {
    const ZELVBTXMLAttribute& persistent = element[Slot::Persistent];
    if (_CLASSES.empty()) check_Name(_Document.Package(), _Document.Package().getAttribute(word::kName));
    _CLASSES.push_back(
        {element.node, element.Is(tag::kInstance), !persistent || persistent.Value() != value::kNo});
    const Party* const super = element.TargetOf(Slot::SuperRef);
    if (super != nullptr && super->IsHere()) _IsSuper[super->node.Index()] = true;
    if (!_CLASSES.back().isInstance) check_Name(element.node, element[Slot::Name]);
}

void ExpressRules::AddMember(const RuleElement& element) {
    if (!_CLASSES.back().isInstance) check_Name(element.node, element[Slot::Name]);
}

void ExpressRules::check_Name(const ZELVBTXMLNode& node, const ZELVBTXMLAttribute& name) {
    if (!name) return;
    if (IsReserved(name.Value())) {
        _Document.Tell(rule::kReservedInExpress, node, name,
                       fmt::format("{} is a reserved word of EXPRESS", Quoted(name.Value())));
        return;
    }
    if (name.Value().size() <= kLongestName) return;  // bytes are no fewer than characters
    const int length = ZELUnicodeString(name.Value()).Length();
    if (length <= kLongestName) return;
    _Document.Tell(rule::kTooLongForExpress, node, name,
                   fmt::format("the name of {} has {} characters, {} more than EXPRESS is sure to take",
                               node.getTag(), length, length - kLongestName));
}

/// Also in the packages that are loaded beside this one.
bool ExpressRules::has_SubClass(const ZELVBTXMLNode& node) const {
    if (_IsSuper[node.Index()]) return true;
    const CheckedDocument& checked = _Document.Checked();
    if (checked.package == nullptr) return false;
    const ZELDbBinary uuid = UuidFromText(node.getAttributeValue(word::kUuid).value_or(""));
    const auto element = zandic::As<OXMIDicClass>(checked.dictionary.Search(uuid));
    return element && !zandic::SubClasses(*element).IsEmpty();
}

/// The first class that is left out ends the walk of the export.
void ExpressRules::Finish() {
    for (std::size_t index = 0; index + 1 < _CLASSES.size(); ++index) {
        const Class& each = _CLASSES[index];
        if (!each.isInstance && (each.isPersistent || has_SubClass(each.node))) continue;
        if (_Document.IsLeftOut(each.node)) continue;
        const std::size_t hidden = _CLASSES.size() - index - 1;
        const ZELVBTXMLNode first = _CLASSES[index + 1].node;
        Finding* const finding = _Document.Tell(
            rule::kHiddenFromExpress, each.node,
            fmt::format("{} {} {} and ends the EXPRESS schema: {} behind it {} not written",
                        each.node.getTag(), Quoted(_Document.Name(each.node)),
                        each.isInstance ? "is an instance" : "is neither persistent nor a super class",
                        hidden == 1 ? "the class" : fmt::format("{} classes", hidden),
                        hidden == 1 ? "is" : "are"));
        _Document.Note(finding, first,
                       fmt::format("{}{} is here", hidden == 1 ? "" : "the first of them, ",
                                   Quoted(_Document.Name(first))));
        return;
    }
}

}  // namespace tool
