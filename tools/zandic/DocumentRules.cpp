#include "DocumentRules.h"

#include <fmt/format.h>

#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "HexToBinary.h"
#include "RuleBlocks.h"
#include "RuleClasses.h"
#include "RuleCodes.h"
#include "RuleExpress.h"
#include "RuleMembers.h"
#include "RulePackages.h"
#include "RuleSuggestions.h"
#include "RuleWords.h"

namespace tool {
namespace {

/// Walks over all elements of a document whose tags the vocabulary knows, owners first, and gives each to a
/// visitor with what it says. Nests are a list, since they are as deep as the document says.
class ElementWalk {
public:
    ElementWalk(RuleDocument& document, const Vocabulary& vocabulary)
        : _Document(document), _Words(document), _IsTuning(&vocabulary == &Vocabulary::OfTunings()) {
        const ZELVBTXMLNode package = document.Package();
        _OPEN.push_back({EndOf(package), package.Index(), &vocabulary.Package()});
        Open(package, vocabulary.Package());
        _Waiting = 0;  // its lists are looked at as a whole
    }

    template <class Visit>
    void Run(Visit&& visit) {
        const std::uint32_t end = _OPEN.front().end;
        for (std::uint32_t index = _OPEN.front().element + 1; index < end;) {
            while (_OPEN.back().end <= index) _OPEN.pop_back();
            const ZELVBTXMLNode node = _Document.Document().ElementAt(index);
            const TagWords* const words = Enter(node);
            if (words == nullptr) {
                index = EndOf(node);
                continue;
            }
            Open(node, *words);
            if (_Waiting == _ITEMS.size()) VisitAll(visit);
            ++index;
            if (const std::uint32_t endOfNode = EndOf(node); endOfNode > index) {
                _OPEN.push_back({endOfNode, node.Index(), words});
            }
        }
        VisitAll(visit);
    }

private:
    struct Level {
        std::uint32_t end;
        std::uint32_t element;
        const TagWords* words;
    };

    struct Reference {
        Slot slot;
        ZELVBTXMLAttribute attribute;
        ZELDbBinary uuid;
    };

    /// An element that waits for what it refers to.
    struct Item {
        RuleElement element;
        std::vector<Reference> references;
    };

    std::uint32_t EndOf(const ZELVBTXMLNode& node) const {
        const ZELVBTXMLNode root = _Document.Document().Root();
        if (node.Index() == root.Index()) return _Document.Document().ElementCount();
        ZELVBTXMLNodePosition position{node.Index()};
        root.getNextNode(position);
        return position.element;
    }

    /// \returns the words of a tag that is read; null for one that is not, and what nobody else tells is
    /// told.
    const TagWords* Enter(const ZELVBTXMLNode& node) {
        const Level& owner = _OPEN.back();
        _Document.SetOwner(node.Index(), owner.element);
        if (IsComment(node)) return nullptr;
        const TagWords* const words = owner.words->Child(node.getTag());
        const bool isOfClass =
            owner.words->Kind() == OXMDicTYPE_Class || owner.words->Kind() == OXMDicTYPE_Extension;
        const bool isPassedOver = isOfClass && !_IsTuning && NameAttribute(node).empty();
        if (words == nullptr && (isPassedOver || owner.words->Row().children.empty())) {
            _Document.Tell(ZanDicDiagnosticName(ZanDicDiagnosticCode::UnknownTag), node,
                           fmt::format("tag {} is unknown here; it is skipped{}", node.getTag(),
                                       SuggestTag(&owner.words->Row(), node.getTag())));
        } else if (isPassedOver) {
            _Document.Tell(rule::kSkippedMember, node,
                           fmt::format("{} of {} has no Name; it is skipped", node.getTag(),
                                       Quoted(_Document.Name(_Document.Owner(node)))));
        }
        // Only a class has simple attributes; of those in mapped classes the reader tells.
        const bool isIgnored = !isOfClass && node.getTag() == ZANDicFormat::tag::kSimple;
        return isPassedOver || isIgnored ? nullptr : words;
    }

    /// Looks at the tag, and lets the element wait with what it refers to.
    void Open(const ZELVBTXMLNode& node, const TagWords& words) {
        Item& item = _ITEMS[_Waiting++];
        RuleElement& element = item.element;
        element.node = node;
        element.kind = words.Kind();
        element.targets.clear();
        item.references.clear();
        _Words.Check(words, element);
        constexpr std::uint32_t kReferences = (1U << kReferenceSlots) - 1;
        for (std::uint32_t left = element.isGiven & kReferences; left != 0; left &= left - 1) {
            const auto index = static_cast<std::size_t>(std::countr_zero(left));
            const ZELVBTXMLAttribute& attribute = element.given[index];
            const auto note = [&](std::string_view text) {
                item.references.push_back({static_cast<Slot>(index), attribute, UuidFromText(text)});
                _Document.Checked().places.PrefetchSlot(item.references.back().uuid);
            };
            if (attribute.Name().ends_with('s')) {
                ForEachItem(attribute.Value(), note);
            } else if (attribute.Value() != ZANDicFormat::value::kAnyObject) {
                note(attribute.Value());
            }
        }
    }

    /// What elements refer to lies all over the document: it is fetched for all that wait, step by step.
    template <class Visit>
    void VisitAll(Visit&& visit) {
        const std::span<Item> items = std::span(_ITEMS).first(std::exchange(_Waiting, 0));
        for (const Item& item : items) {
            for (const Reference& each : item.references) _Document.Checked().places.PrefetchEntry(each.uuid);
        }
        for (Item& item : items) {
            for (const Reference& each : item.references) {
                Party party = _Document.Find(each.uuid);
                if (party) item.element.targets.push_back({each.slot, each.attribute, std::move(party)});
            }
        }
        for (const Item& item : items) {
            for (const RuleTarget& target : item.element.targets) {
                if (!target.party.node) continue;
                const ZELVBTXMLAttributes attributes = target.party.node.Attributes();
                if (attributes.Size() > 0) __builtin_prefetch((*attributes.begin()).Name().data());
            }
        }
        for (const Item& item : items) visit(item.element);
    }

    RuleDocument& _Document;
    WordRules _Words;
    std::array<Item, 16> _ITEMS;
    std::size_t _Waiting = 0;
    std::vector<Level> _OPEN;
    bool _IsTuning;
};

void CheckAlone(RuleDocument& document, const RuleElement& element) {
    CheckType(document, element);
    CheckBounds(document, element);
    CheckRepeatedReferences(document, element);
    CheckNames(document, element);
    CheckScopeNames(document, element);
}

}  // namespace

void CheckDocument(const CheckedDocument& checked, Findings& findings) {
    RuleDocument document(checked, findings);
    if (!document.Package()) return;
    PackageRules packages(document);
    ClassRules classes(document);
    ExpressRules express(document);
    ElementWalk(document, Vocabulary::OfPackages()).Run([&](const RuleElement& element) {
        CheckAlone(document, element);
        packages.Refer(element);
        switch (element.kind) {
            case OXMDicTYPE_Class:
            case OXMDicTYPE_Extension:
                classes.AddClass(element);
                express.AddClass(element);
                break;
            case OXMDicTYPE_Relationship:
            case OXMDicTYPE_Inverse:
                classes.AddMember(element);
                express.AddMember(element);
                break;
            case OXMDicTYPE_Simple:
            case OXMDicTYPE_Unique:
                express.AddMember(element);
                break;
            default:
                break;
        }
    });
    packages.Finish();
    classes.Finish();
    express.Finish();
}

void CheckTuningDocument(const CheckedDocument& checked, Findings& findings) {
    RuleDocument document(checked, findings);
    if (!document.Package()) return;
    BlockRules blocks(document);
    ElementWalk(document, Vocabulary::OfTunings()).Run([&](const RuleElement& element) {
        if (element.kind == OXMDicTYPE_AttributeBlock) blocks.AddBlock(element);
    });
    blocks.Finish();
}

}  // namespace tool
