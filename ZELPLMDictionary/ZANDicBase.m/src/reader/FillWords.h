/// How attributes get from a tag into an element: rows of words with their setters, and the loop that
/// gives each attribute of a tag to its row.
#ifndef FILL_WORDS_H
#define FILL_WORDS_H

#include <array>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "AttributeWord.h"
#include "IntegerText.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "ZANDicTags.h"

namespace fill {

/// The texts in which the loop of a kind of element speaks, and how it takes an attribute given twice.
struct LoopTexts {
    std::string_view processing = text::kProcessingAttribute;
    std::string_view unknown = text::kUnknownAttribute;
    std::string_view refused = text::kRefusedValue;
    bool tellsRepeats = false;
};
inline constexpr LoopTexts kPlainLoop{};

/// An attribute on its way to a setter.
struct Given {
    Reading& reading;
    const ZanDicTraceScope& trace;
    const ZELVBTXMLNode& node;
    const ZELVBTXMLAttribute& attribute;

    std::string_view Value() const { return attribute.Value(); }
};

/// What is done with an attribute of an element.
template <class Element>
struct AttributeWord {
    std::string_view name;
    HRESULT (*fill)(Element&, const Given&);
    bool isReference = false;  ///< told in words of its own when it is given twice
};

/// The row of a tag of the vocabulary; one without attributes and children when there is none.
/// By value: the sanitizers let no pointer to a table be compared while the compiler works.
constexpr ZANDicFormat::TagRow TagRowOf(std::string_view tagName) {
    for (const ZANDicFormat::TagRow& row : ZANDicFormat::kTags) {
        if (row.tag == tagName) return row;
    }
    return {};
}

template <class Rows>
constexpr bool HasName(const Rows& rows, std::string_view name) {
    for (const auto& row : rows) {
        if (row.name == name) return true;
    }
    return false;
}

/// Whether rows and vocabulary agree: each row's name is an attribute of one of the tags, and each attribute
/// of the tags has a row. Relationships need none for their identity and for what only repeats.
template <class Row, std::size_t N>
constexpr bool AreAttributesOf(const Row (&rows)[N], std::initializer_list<std::string_view> tagNames) {
    using namespace ZANDicFormat;
    for (const Row& row : rows) {
        bool isKnown = false;
        for (const std::string_view name : tagNames) {
            isKnown = isKnown || HasName(TagRowOf(name).attributes, row.name);
        }
        if (!isKnown) return false;
    }
    const bool hasIdentity = HasName(rows, word::kName);
    for (const std::string_view name : tagNames) {
        for (const AttributeRow& attribute : TagRowOf(name).attributes) {
            const bool needsNone =
                !hasIdentity && (attribute.form == AttributeForm::Repeated || attribute.name == word::kName ||
                                 attribute.name == word::kUuid);
            if (!needsNone && !HasName(rows, attribute.name)) return false;
        }
    }
    return true;
}

/// Whether rows of tags and vocabulary agree on what may stand inside a tag.
template <class Row, std::size_t N>
constexpr bool AreChildrenOf(const Row (&rows)[N], std::string_view tagName) {
    const ZANDicFormat::TagRow tagRow = TagRowOf(tagName);
    for (const std::string_view child : tagRow.children) {
        if (!HasName(rows, child)) return false;
    }
    return tagRow.children.size() == N;
}

/// The argument of a setter, without pointer and const.
template <class Setter>
struct ArgumentOf;
template <class Owner, class Argument>
struct ArgumentOf<HRESULT (Owner::*)(Argument)> {
    using Type = std::remove_cv_t<std::remove_pointer_t<Argument>>;
};
template <auto Setter>
using Argument = typename ArgumentOf<decltype(Setter)>::Type;

/// Name="value".
std::string Assignment(const Given& given);

void Warn(ZanDicDiagnosticCode code, const Given& given, TraceLevel level, std::string_view message,
          std::string_view detail);

// Setters. Each is the one place of its form.

/// Known, and without effect here.
template <class Element>
HRESULT Skip(Element&, const Given&) {
    return S_OK;
}

/// Left for the second pass.
template <std::size_t Slot, class Element>
HRESULT Reference(Element&, const Given& given) {
    given.reading.references.Note(Slot, given.attribute);
    return S_OK;
}

template <auto Setter, class Element>
HRESULT Text(Element& element, const Given& given) {
    const Argument<Setter> value(given.reading.texts.Text(given.Value()));
    return (element.*Setter)(&value);
}

template <auto Setter, class Element>
HRESULT Flag(Element& element, const Given& given) {
    return (element.*Setter)(IsWord<ZANDicFormat::value::kYes>(given.Value()) ? 1 : 0);
}

/// The index of a list of words.
template <const auto& Words>
constexpr WordIndex kIndex{std::span<std::remove_reference_t<decltype(Words[0])>, std::size(Words)>(Words)};

/// A word of a list; any other stands for a code of its own.
template <auto Setter, const auto& Words, int OtherCode, class Element>
HRESULT Word(Element& element, const Given& given) {
    const ZANDicFormat::CodeWord* const row = kIndex<Words>.Find(given.Value());
    return (element.*Setter)(static_cast<Argument<Setter>>(row != nullptr ? row->code : OtherCode));
}

/// A word of a list; any other changes nothing.
template <auto Setter, const auto& Words, class Element>
HRESULT KnownWord(Element& element, const Given& given) {
    if (const ZANDicFormat::CodeWord* const row = kIndex<Words>.Find(given.Value()); row != nullptr) {
        return (element.*Setter)(static_cast<Argument<Setter>>(row->code));
    }
    Warn(ZanDicDiagnosticCode::UnknownWord, given, TraceLevel::Error, text::kUnknownWord,
         "it is passed over");
    return S_OK;
}

/// A word of a list; any other is refused.
template <auto Setter, const auto& Words, class Element>
HRESULT StrictWord(Element& element, const Given& given) {
    const ZANDicFormat::CodeWord* const row = kIndex<Words>.Find(given.Value());
    return row != nullptr ? (element.*Setter)(static_cast<Argument<Setter>>(row->code)) : E_FAIL;
}

template <auto Setter, class Element>
HRESULT Integer(Element& element, const Given& given) {
    using enum IntegerText::Verdict;
    const auto warn = [&given](std::string_view detail) {
        Warn(ZanDicDiagnosticCode::InvalidNumber, given, TraceLevel::Error, text::kInvalidNumber, detail);
    };

    const IntegerText number = ReadInteger(given.Value());
    if (number.verdict == NoDigits) {
        warn("it is passed over");
        return S_OK;
    }
    if (number.verdict == TextBehind) warn("what stands behind the digits is passed over");
    if (number.verdict == Clamped) warn("the nearest number that fits is taken");
    return (element.*Setter)(number.value);
}

/// Kept on the element as it stands.
template <class Element>
HRESULT Keep(Element& element, const Given& given) {
    const ZELUnicodeString name(given.reading.texts.Text(given.attribute.Name()));
    const ZELUnicodeString value(given.reading.texts.Text(given.Value()));
    return element.SetOtherAttribute(name, value);
}

// The loop.

/// Gives an attribute to the setter of its row. \returns S_OK; E_FAIL when the value is refused.
template <class Element>
HRESULT Fill(const AttributeWord<Element>& row, Element& element, const Given& given,
             std::string_view refused = text::kRefusedValue) {
    if (Succeeded(row.fill(element, given))) return S_OK;
    Fault fault = FaultOf(given.reading, ZanDicDiagnosticCode::InvalidValue, given.node);
    fault.attribute = given.attribute;
    fault.lines.push_back({given.trace, Joined({refused, Assignment(given)})});
    return given.reading.faults.Report(fault);
}

/// Reports an attribute that no row knows and keeps it on the element.
template <class Element>
void FillUnknown(Element& element, const Given& given, std::string_view message) {
    Warn(ZanDicDiagnosticCode::UnknownAttribute, given, TraceLevel::Call, message, {});
    Keep(element, given);
}

/// Tells that an attribute was given before in the same tag.
void WarnOfRepeat(const Given& given, bool isReference);

/// Gives each attribute to its row, in document order; the last of a name wins.
template <const auto& Words, class Element>
HRESULT FillAttributes(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                       Element& element, const LoopTexts& texts = kPlainLoop) {
    HRESULT result = S_OK;
    int position = 0;
    std::array<bool, std::size(Words)> isGiven{};
    for (const ZELVBTXMLAttribute attribute : node.Attributes()) {
        ++position;
        const Given given{reading, trace, node, attribute};
        if (auto line = trace.Line(TraceLevel::Detail)) {
            line << texts.processing << position << "]:" << Assignment(given);
        }
        const auto* const row = kIndex<Words>.Find(attribute.Name());
        if (row == nullptr) {
            FillUnknown(element, given, texts.unknown);
            continue;
        }
        if (texts.tellsRepeats && row->name != ZANDicFormat::word::kName &&
            row->name != ZANDicFormat::word::kUuid &&
            std::exchange(isGiven[kIndex<Words>.IndexOf(*row)], true)) {
            WarnOfRepeat(given, row->isReference);
        }
        if (!reading.faults.GoesOn(Fill(*row, element, given, texts.refused), result)) break;
    }
    return result;
}

/// A whole element that has attributes only.
template <const auto& Words, class Element>
HRESULT FillPlain(Reading& reading, std::string_view operation, const ZELVBTXMLNode& node, Element& element,
                  const LoopTexts& texts = kPlainLoop) {
    const ZanDicTraceScope trace(operation, "RC=");
    trace.Start();
    return trace.Exit(FillAttributes<Words>(reading, trace, node, element, texts));
}

// Children.

/// Reports that a child has no `Name` or no `Uuid`. \returns E_FAIL.
HRESULT ReportMissing(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                      std::string_view attribute);

/// Checks that a child has `Name` and `Uuid`, and reports each that it has not. \returns S_OK; E_FAIL.
HRESULT CheckIdentity(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node);

/// Reports a child that is not known there; the load goes on without it.
void ReportUnknownTag(Reading& reading, const ZanDicTraceScope& trace, const ZELVBTXMLNode& node,
                      std::string_view message = text::kUnknownMemberTag);

}  // namespace fill

#endif
