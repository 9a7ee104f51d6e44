/// An element of a document as the rules see it: its tag's words, and those attributes that they ask for.
#ifndef ZANDIC_TOOL_RULE_ELEMENT_H
#define ZANDIC_TOOL_RULE_ELEMENT_H

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include "RuleDocument.h"
#include "ZANDicTags.h"

namespace tool {

/// The attributes that rules ask for. References first.
enum class Slot : std::uint8_t {
    SuperRef,
    ReferenceRef,
    CommandRefs,
    ScopeRefs,
    TargetRef,
    CategoryRefs,
    InverseOfRef,
    UniqueRefs,
    TypeRef,
    ClassRef,
    ApplyToRBOClassRef,
    BaseClassRef,
    Extents,
    AttributeUuids,
    // the others
    Name,
    SuperName,
    ScopeNames,
    TargetName,
    ApplyToRBOClass,
    BaseClass,
    Persistent,
    Type,
    Mandatory,
    MultiValuated,
    Lower,
    Upper,
    None,  ///< nobody asks for it
};
inline constexpr std::size_t kReferenceSlots = static_cast<std::size_t>(Slot::Name);
inline constexpr std::size_t kSlots = static_cast<std::size_t>(Slot::None);
static_assert(kSlots <= 32);

/// What one item of a reference points at.
struct RuleTarget {
    Slot slot;
    ZELVBTXMLAttribute attribute;
    Party party;
};

/// An element and what is given in its tag. Of an attribute given twice, the one that counts.
struct RuleElement {
    ZELVBTXMLNode node;
    OXMDicTYPE kind = OXMDicTYPE_UNDEFINED;
    std::array<ZELVBTXMLAttribute, kSlots> given;
    std::uint32_t isGiven = 0;        ///< a bit for each slot
    std::vector<RuleTarget> targets;  ///< of all references, in the order of the slots; those found

    const ZELVBTXMLAttribute& operator[](Slot slot) const { return given[static_cast<std::size_t>(slot)]; }

    void Set(Slot slot, const ZELVBTXMLAttribute& attribute) {
        given[static_cast<std::size_t>(slot)] = attribute;
        isGiven |= 1U << static_cast<unsigned>(slot);
    }

    /// Forgets what was given.
    void Clear() {
        for (; isGiven != 0; isGiven &= isGiven - 1) {
            given[static_cast<std::size_t>(std::countr_zero(isGiven))] = {};
        }
    }

    /// \returns the first thing that a reference points at; nothing when there is none.
    const Party* TargetOf(Slot slot) const {
        for (const RuleTarget& target : targets) {
            if (target.slot == slot) return &target.party;
        }
        return nullptr;
    }

    bool Is(std::string_view tag) const { return node.getTag() == tag; }

    /// Whether a flag is given and true.
    bool IsYes(Slot slot) const {
        return (*this)[slot] && (*this)[slot].Value() == ZANDicFormat::value::kYes;
    }
};

/// The first 16 bytes of a text as two numbers, with zeros behind its end: compared in two steps.
struct TextHead {
    std::uint64_t first = 0;
    std::uint64_t second = 0;

    /// \param text at least 16 bytes can be read from its beginning, as of any text of a document.
    static TextHead OfDocument(std::string_view text) {
        TextHead head;
        std::memcpy(&head.first, text.data(), sizeof head.first);
        std::memcpy(&head.second, text.data() + sizeof head.first, sizeof head.second);
        head.first &= MaskOf(std::min<std::size_t>(text.size(), 8));
        head.second &= MaskOf(text.size() > 8 ? std::min<std::size_t>(text.size() - 8, 8) : 0);
        return head;
    }

    /// The same for any text.
    static TextHead Of(std::string_view text) {
        char bytes[16] = {};
        text.copy(bytes, sizeof bytes);
        return OfDocument(std::string_view(bytes, std::min(text.size(), sizeof bytes)));
    }

    friend bool operator==(const TextHead& a, const TextHead& b) {
        return ((a.first ^ b.first) | (a.second ^ b.second)) == 0;
    }

private:
    static std::uint64_t MaskOf(std::size_t bytes) {
        static_assert(std::endian::native == std::endian::little);
        return bytes == 0 ? 0 : ~std::uint64_t{0} >> (64 - 8 * bytes);
    }
};

/// A word that texts of documents are compared with.
struct KnownText {
    std::string_view text;
    TextHead head;

    explicit KnownText(std::string_view word) : text(word), head(TextHead::Of(word)) {}

    /// Whether \p other, a text of a document that begins with \p otherHead, is this word.
    bool Is(std::string_view other, const TextHead& otherHead) const {
        if (text.size() != other.size() || !(head == otherHead)) return false;
        return text.size() <= 16 || text == other;
    }
};

/// A tag of the vocabulary, its attributes and children found quickly. Made once, for one of the two tables.
class TagWords {
public:
    /// How an attribute that is given twice is taken.
    enum class Repeats {
        LastCounts,
        FirstCounts,
        ReaderTells,  ///< the last counts, and the reader says so
    };

    /// What is looked at in a value.
    enum class Look : std::uint8_t {
        Nothing,
        Word,
        Uuid,  ///< or one of the words
        Uuids,
        Unread,  ///< the attribute is admitted, and the reader never asks for it
    };

    struct Word {
        const ZANDicFormat::AttributeRow* row;
        KnownText name;
        std::vector<KnownText> values;  ///< that the attribute may have: words, those of flags too
        Slot slot;
        Look look;
        bool lastCounts;  ///< of several in a tag
        std::uint8_t index;

        /// Whether a value is one of the words.
        bool Has(std::string_view value) const {
            const TextHead head = TextHead::OfDocument(value);
            for (const KnownText& each : values) {
                if (each.Is(value, head)) return true;
            }
            return false;
        }
    };

    TagWords(const ZANDicFormat::TagRow& row, bool isTuning);

    const ZANDicFormat::TagRow& Row() const { return *_Row; }
    OXMDicTYPE Kind() const { return _Kind; }
    Repeats HowRepeatsCount() const { return _Repeats; }

    /// Whether an attribute that no word names is lost; else it is kept on the element.
    bool LosesUnknown() const { return _LosesUnknown; }

    /// \returns the words of a tag that may stand inside this one; null where it may not.
    const TagWords* Child(std::string_view tag) const {
        for (const TagWords* const child : _CHILDREN) {
            if (child->_Row->tag == tag) return child;
        }
        return nullptr;
    }

    /// \returns the word of an attribute of a document, or null.
    const Word* Find(std::string_view name) const {
        const TextHead head = TextHead::OfDocument(name);
        for (std::uint8_t place = PlaceOf(head); _PLACES[place] != 0; place = Next(place)) {
            const Word& word = _WORDS[_PLACES[place] - 1U];
            if (word.name.Is(name, head)) return &word;
        }
        return nullptr;
    }

private:
    static constexpr std::size_t kPlaces = 128;
    static std::uint8_t Next(std::uint8_t place) { return static_cast<std::uint8_t>((place + 1U) % kPlaces); }
    static std::uint8_t PlaceOf(const TextHead& head) {
        return static_cast<std::uint8_t>(((head.first ^ head.second) * 0x9E3779B97F4A7C15U) >> 57);
    }

    const ZANDicFormat::TagRow* _Row;
    OXMDicTYPE _Kind;
    Repeats _Repeats;
    bool _LosesUnknown;
    std::vector<Word> _WORDS;
    std::array<std::uint8_t, kPlaces> _PLACES{};  ///< 1-based; 0: free
    std::vector<const TagWords*> _CHILDREN;

    friend class Vocabulary;
};

/// The words of all tags of package documents, or of tuning documents.
class Vocabulary {
public:
    static const Vocabulary& OfPackages();
    static const Vocabulary& OfTunings();

    const TagWords& Package() const { return _TAGS.front(); }

    const std::vector<TagWords>& Tags() const { return _TAGS; }

private:
    Vocabulary(std::span<const ZANDicFormat::TagRow> rows, bool isTuning);

    std::vector<TagWords> _TAGS;
};

}  // namespace tool

#endif
