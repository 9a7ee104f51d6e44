/// The rule about cycles in which every relationship is mandatory.
#ifndef ZANDIC_TOOL_RULE_CYCLES_H
#define ZANDIC_TOOL_RULE_CYCLES_H

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "RuleDocument.h"
#include "ZELHash.h"

namespace tool {

/// Gathers which classes need objects of which others: by a mandatory relationship, or since they inherit
/// what their super class needs. Where the document's package is in a ring with others, what their classes
/// need is asked of the model. Linear in the classes and relationships, and nothing recurs.
class CycleRules {
public:
    explicit CycleRules(RuleDocument& document)
        : _Document(document), _NUMBERS(document.Document().ElementCount(), kNone) {}

    void AddSuper(const Party& heir, const Party& super);

    /// Adds a mandatory relationship of this document, in its order.
    void AddRelationship(const Party& owner, const Party& relationship, const Party& target);

    /// Tells of each cycle that goes through this document, at its first relationship there.
    void Finish();

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    struct Relationship {
        Party party;
        std::uint32_t owner;  ///< numbers of classes
        std::uint32_t target;
    };

    struct Need {
        std::uint32_t to;
        std::uint32_t relationship;  ///< number; kNone for the super class
    };

    std::uint32_t number_Of(const Party& element);
    bool is_InRing() const;
    void ask_Model();
    void ask_Model(std::uint32_t number);
    void group_Classes();
    std::vector<std::uint32_t> way_Back(std::uint32_t relationship) const;
    void tell_Cycle(std::uint32_t relationship);
    std::string name_Of(const Party& party) const;

    RuleDocument& _Document;
    std::vector<std::uint32_t> _NUMBERS;  ///< of the classes here, by element
    std::unordered_map<std::string, std::uint32_t, ZELTextHash> _OUTSIDE;  ///< of the others, by UUID
    std::vector<Party> _CLASSES;
    std::vector<std::vector<Need>> _NEEDS;  ///< by class
    std::vector<Relationship> _RELATIONSHIPS;
    std::vector<std::uint32_t> _GROUPS;  ///< by class: those that need each other have the same
};

}  // namespace tool

#endif
